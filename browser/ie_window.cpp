#include "browser/ie_window.h"

#include "core/state.h"
#include "platform/api/user32.h"
#include "platform/runtime/letter_case.h"

namespace magpie {

namespace {

constexpr std::int32_t platformNT = 2;
constexpr win::BOOL goOn = -1;

// As the last search found them.
win::HWND ieFrameWindow = nullptr;
win::HWND cabinetWindow = nullptr;

win::BOOL stopAt(win::HWND window, win::LPARAM found) {
    *reinterpret_cast<win::HWND*>(found) = window;
    return 0;
}

win::HWND topmost(win::WNDENUMPROC probe) {
    win::HWND found = nullptr;
    const bool stopped = win::EnumWindows(probe, reinterpret_cast<win::LPARAM>(&found)) == 0;
    return stopped ? found : nullptr;
}

}  // namespace

win::BOOL ieTitleProbe(win::HWND window, win::LPARAM found) {
    constexpr std::size_t longestTitle = 255;
    char title[longestTitle + 1] = "";
    win::GetWindowTextA(window, title);
    return isIeTitle(title) ? stopAt(window, found) : goOn;
}

win::BOOL ieFrameProbe(win::HWND window, win::LPARAM found) {
    return window == ieFrameWindow || window == cabinetWindow ? stopAt(window, found) : goOn;
}

win::HWND topmostByTitle() {
    return topmost(&ieTitleProbe);
}

win::HWND topmostOfPlatform() {
    if (osPlatform != platformNT) return topmostByTitle();
    ieFrameWindow = win::FindWindowA("IEFrame", nullptr);
    cabinetWindow = win::FindWindowA("CabinetWClass", nullptr);
    return topmost(&ieFrameProbe);
}

bool isIeTitle(const std::string& title) {
    return upperCase(title).find("- MICROSOFT INTERNET") != std::string::npos;
}

}  // namespace magpie
