#include "platform/controls/default_button.h"

#include "platform/api/user32.h"
#include "platform/controls/form.h"

namespace magpie {

namespace {

void draw(Control& button, win::DWORD look) {
    constexpr win::DWORD lookMask = 0xF;
    const auto style =
        static_cast<win::DWORD>(win::GetWindowLongPtrA(button.hWnd(), win::GWL_STYLE));
    constexpr win::LPARAM redraw = 1;
    if ((style & lookMask) != look)
        win::SendMessageA(button.hWnd(), win::BM_SETSTYLE, look, redraw);
}

}  // namespace

Control* buttonOfEnter(win::HWND focused, Form& form) {
    constexpr int pushButton = win::DLGC_DEFPUSHBUTTON | win::DLGC_UNDEFPUSHBUTTON;
    Control* control = controlOf(focused);
    if (control == nullptr) return form.defaultButton();
    const auto code = win::SendMessageA(focused, win::WM_GETDLGCODE, 0, 0);
    return (code & pushButton) != 0 ? control : form.defaultButton();
}

void drawDefaultButton(Form& form) {
    if (form.defaultButton() == nullptr) return;
    Control* button = buttonOfEnter(win::GetFocus(), form);
    Control* before = form.drawnDefault(button);
    if (before != button) draw(*before, win::BS_PUSHBUTTON);
    draw(*button, win::BS_DEFPUSHBUTTON);
}

}  // namespace magpie
