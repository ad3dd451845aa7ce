#include "tray/tray_icon.h"

#include <string_view>

#include "core/state.h"
#include "mainwindow/form3.h"
#include "platform/api/shell32.h"
#include "platform/api/user32.h"
#include "platform/runtime/rounding.h"
#include "platform/services/dde.h"
#include "platform/services/screen.h"
#include "tray/form1.h"
#include "tray/tray_menu.h"

namespace magpie {

namespace {

constexpr win::UINT iconId = 1;
constexpr win::UINT iconMessage = win::WM_MOUSEMOVE;
constexpr std::string_view trayTip = "Magpie Tray Control";

win::NOTIFYICONDATAA_V1 trayData{};

void fillTrayData() {
    trayData.hWnd = Form1.hWnd();
    trayData.uID = iconId;
    trayData.uFlags = win::NIF_MESSAGE | win::NIF_ICON | win::NIF_TIP;
    trayData.uCallbackMessage = iconMessage;
    trayData.hIcon = Form1.Icon().small;
    trayTip.copy(trayData.szTip, sizeof trayData.szTip - 1);
}

}  // namespace

void setTrayIcon(bool remove) {
    // A record of the wrong size is refused, also for an icon that never was.
    trayData.cbSize = sizeof trayData;
    if (remove) {
        win::Shell_NotifyIconA(win::NIM_DELETE, &trayData);
        return;
    }
    fillTrayData();
    win::Shell_NotifyIconA(win::NIM_ADD, &trayData);
}

void trayNotification(int, int, double x, double) {
    const bool inPixels = Form1.ScaleMode == scalePixels;
    const std::int32_t message = toInt32(inPixels ? x : x / Screen.TwipsPerPixelX());
    if (conversationWaits()) {
        // The shell sends where the user clicks; a click waits until events may run.
        win::PostMessageA(Form1.hWnd(), iconMessage, iconId, message);
        return;
    }
    if (message == static_cast<std::int32_t>(win::WM_LBUTTONUP)) {
        Form3.WindowState(stateNormal);
        Form3.load();
        if (reallyLoaded) Form3.Show();
    } else if (message == static_cast<std::int32_t>(win::WM_RBUTTONUP)) {
        win::SetForegroundWindow(Form1.hWnd());
        popUpTrayMenu();
    }
}

}  // namespace magpie
