#include "platform/memory/tray.h"

#include <algorithm>

#include "platform/api/shell32.h"
#include "platform/api/user32.h"
#include "platform/memory/faults.h"
#include "platform/memory/refuse.h"

namespace win {

namespace memory {
namespace {

void check(const NOTIFYICONDATAA_V1& data) {
    if (data.cbSize != sizeof data) refuse("Shell_NotifyIconA size", data.cbSize);
    const UINT unknown = data.uFlags & ~(NIF_MESSAGE | NIF_ICON | NIF_TIP);
    if (unknown) refuse("Shell_NotifyIconA flags", unknown);
    if ((data.uFlags & NIF_TIP) && std::ranges::find(data.szTip, '\0') == std::end(data.szTip)) {
        refuse("Shell_NotifyIconA", "a tip without its end");
    }
}

void change(TrayIcon& icon, const NOTIFYICONDATAA_V1& data) {
    icon.flags |= data.uFlags;
    if (data.uFlags & NIF_MESSAGE) icon.callbackMessage = data.uCallbackMessage;
    if (data.uFlags & NIF_ICON) icon.icon = data.hIcon;
    if (data.uFlags & NIF_TIP) icon.tip = data.szTip;
}

}  // namespace

std::vector<TrayIcon>& trayIcons() {
    static std::vector<TrayIcon> area;
    return area;
}

}  // namespace memory

using namespace memory;

BOOL Shell_NotifyIconA(DWORD message, NOTIFYICONDATAA_V1* data) {
    check(*data);
    if (faultIn("Shell_NotifyIconA")) return 0;
    std::vector<TrayIcon>& icons = trayIcons();
    std::erase_if(icons, [](const TrayIcon& icon) { return !IsWindow(icon.window); });
    const auto known = std::ranges::find_if(icons, [data](const TrayIcon& icon) {
        return icon.window == data->hWnd && icon.id == data->uID;
    });
    const bool isKnown = known != icons.end();
    switch (message) {
        case NIM_ADD:
            if (!IsWindow(data->hWnd)) refuse("Shell_NotifyIconA", "an icon of no window");
            if (isKnown) return 0;
            change(icons.emplace_back(TrayIcon{data->hWnd, data->uID, 0, 0, nullptr, {}}), *data);
            return 1;
        case NIM_MODIFY:
            if (isKnown) change(*known, *data);
            return isKnown;
        case NIM_DELETE:
            if (isKnown) icons.erase(known);
            return isKnown;
        default: refuse("Shell_NotifyIconA message", message);
    }
}

}  // namespace win
