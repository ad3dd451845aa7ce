#include "platform/controls/mouse.h"

#include "platform/api/user32.h"
#include "platform/services/screen.h"

namespace magpie {

namespace {

constexpr int leftButton = 1;
constexpr int rightButton = 2;
constexpr int middleButton = 4;

int heldButtons(win::WPARAM keys) {
    return ((keys & win::MK_LBUTTON) != 0 ? leftButton : 0) |
           ((keys & win::MK_RBUTTON) != 0 ? rightButton : 0) |
           ((keys & win::MK_MBUTTON) != 0 ? middleButton : 0);
}

bool isDown(int virtualKey) {
    return win::GetKeyState(virtualKey) < 0;
}

}  // namespace

bool isMouseMessage(win::UINT message) {
    return message >= win::WM_MOUSEMOVE && message <= win::WM_MBUTTONDBLCLK;
}

int shiftState() {
    return (isDown(win::VK_SHIFT) ? 1 : 0) | (isDown(win::VK_CONTROL) ? 2 : 0) |
           (isDown(win::VK_MENU) ? 4 : 0);
}

MouseReport mouseReport(win::UINT message, win::WPARAM wParam, win::LPARAM lParam, int scaleMode) {
    MouseReport report{MouseKind::down, 0, shiftState(), static_cast<double>(win::xOf(lParam)),
                       static_cast<double>(win::yOf(lParam))};
    if (scaleMode != scalePixels) {
        report.x *= Screen.TwipsPerPixelX();
        report.y *= Screen.TwipsPerPixelY();
    }
    switch (message) {
        case win::WM_MOUSEMOVE:
            report.kind = MouseKind::move;
            report.button = heldButtons(wParam);
            break;
        case win::WM_LBUTTONUP: report.kind = MouseKind::up; [[fallthrough]];
        case win::WM_LBUTTONDOWN:
        case win::WM_LBUTTONDBLCLK: report.button = leftButton; break;
        case win::WM_RBUTTONUP: report.kind = MouseKind::up; [[fallthrough]];
        case win::WM_RBUTTONDOWN:
        case win::WM_RBUTTONDBLCLK: report.button = rightButton; break;
        case win::WM_MBUTTONUP: report.kind = MouseKind::up; [[fallthrough]];
        default: report.button = middleButton; break;
    }
    return report;
}

}  // namespace magpie
