#include "platform/controls/mouse_area.h"

#include "platform/api/user32.h"

namespace magpie {

void MouseArea::forgetWindow() {
    Control::forgetWindow();
    pressed_ = false;
}

bool MouseArea::handleMessage(win::UINT message, win::WPARAM wParam, win::LPARAM lParam,
                              win::LRESULT& answer) {
    if (message == win::WM_NCHITTEST) {
        answer = win::HTCLIENT;
        return true;
    }
    if (message == win::WM_CAPTURECHANGED) pressed_ = false;
    if (!isMouseMessage(message)) return Control::handleMessage(message, wParam, lParam, answer);
    const MouseReport mouse = mouseReport(message, wParam, lParam, scaleTwips);
    switch (mouse.kind) {
        case MouseKind::down: press(mouse); break;
        case MouseKind::move: tellMouse(mouse); break;
        case MouseKind::up: release(mouse); break;
    }
    answer = 0;
    return true;
}

void MouseArea::press(const MouseReport& mouse) {
    win::SetCapture(hWnd());
    pressed_ = true;
    tellMouse(mouse);
}

void MouseArea::release(const MouseReport& mouse) {
    const bool clicked = pressed_ && mouse.x >= 0 && mouse.y >= 0 && mouse.x < ScaleWidth() &&
                         mouse.y < ScaleHeight();
    if (win::GetCapture() == hWnd()) win::ReleaseCapture();
    pressed_ = false;
    tellMouse(mouse);
    if (clicked) onClick.raise(Index);
}

}  // namespace magpie
