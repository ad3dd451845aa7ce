#include "platform/controls/basic_controls.h"

#include "platform/api/gdi32.h"
#include "platform/api/user32.h"
#include "platform/controls/form.h"

namespace magpie {

void Label::create(Container& container, const Place& place, const std::string& caption) {
    createWindow(container, {"STATIC", win::SS_LEFT}, place, caption);
}

void Button::create(Container& container, const Place& place, const std::string& caption) {
    createWindow(container, {"BUTTON", win::BS_PUSHBUTTON | win::WS_TABSTOP}, place, caption);
}

void Button::onCommand(win::WORD code) {
    if (code == win::BN_CLICKED) onClick.raise(Index);
}

void Button::makeDefault() {
    form().defaultButton(this);
    win::SendMessageA(hWnd(), win::BM_SETSTYLE, win::BS_DEFPUSHBUTTON, 1);
}

void Button::makeCancel() {
    form().cancelButton(this);
}

void CheckBox::create(Container& container, const Place& place, const std::string& caption) {
    createWindow(container, {"BUTTON", win::BS_AUTOCHECKBOX | win::WS_TABSTOP}, place, caption);
}

void CheckBox::onCommand(win::WORD code) {
    if (code == win::BN_CLICKED) onClick.raise(Index);
}

int CheckBox::Value() {
    return win::SendMessageA(hWnd(), win::BM_GETCHECK, 0, 0) ==
                   static_cast<win::LRESULT>(win::BST_CHECKED)
               ? 1
               : 0;
}

void CheckBox::Value(int value) {
    win::SendMessageA(hWnd(), win::BM_SETCHECK, value != 0 ? win::BST_CHECKED : win::BST_UNCHECKED,
                      0);
}

void Frame::create(Container& container, const Place& place, const std::string& caption) {
    createWindow(container,
                 {"BUTTON", win::BS_GROUPBOX | win::WS_CLIPCHILDREN, win::WS_EX_CONTROLPARENT},
                 place, caption);
}

void Frame::createBare(Container& container, const Place& place) {
    createWindow(
        container,
        {"STATIC", win::SS_LEFT | win::SS_NOTIFY | win::WS_CLIPCHILDREN, win::WS_EX_CONTROLPARENT},
        place, "");
}

// A group box leaves its inside to the window below, and that one leaves out the place
// of its children.
bool Frame::handleMessage(win::UINT message, win::WPARAM wParam, win::LPARAM lParam,
                          win::LRESULT& answer) {
    if (message != win::WM_ERASEBKGND)
        return MouseArea::handleMessage(message, wParam, lParam, answer);
    win::RECT inner{};
    win::GetClientRect(hWnd(), &inner);
    answer = win::FillRect(reinterpret_cast<win::HDC>(wParam), &inner,
                           win::GetSysColorBrush(win::COLOR_BTNFACE));
    return true;
}

}  // namespace magpie
