#include "platform/controls/text_box.h"

#include <string_view>

#include "platform/api/user32.h"

namespace magpie {

void TextBox::create(Container& container, const Place& place, const std::string& text) {
    createWindow(container, {"EDIT", win::ES_AUTOHSCROLL | win::WS_TABSTOP, win::WS_EX_CLIENTEDGE},
                 place, text);
    // The class limits what is typed to 30,000 characters unless told otherwise.
    win::SendMessageA(hWnd(), win::EM_LIMITTEXT, 0, 0);
}

void TextBox::selectAll() {
    win::SendMessageA(hWnd(), win::EM_SETSEL, 0, -1);
}

bool TextBox::ownKey(int keyCode, int shift) {
    if (keyCode != 'A' || shift != shiftControl) return false;
    selectAll();
    return true;
}

// The keys of menus, Enter and Escape come as characters that the class knows nothing of, and
// that it beeps at.
bool TextBox::handleMessage(win::UINT message, win::WPARAM wParam, win::LPARAM lParam,
                            win::LRESULT& answer) {
    if (Control::handleMessage(message, wParam, lParam, answer)) return true;
    constexpr std::string_view known = "\x03\b\x16\x18\x1a";  // copy, erase, paste, cut, undo
    if (message != win::WM_CHAR || wParam >= ' ' ||
        known.find(static_cast<char>(wParam)) != std::string_view::npos)
        return false;
    answer = 0;
    return true;
}

void TextBox::onCommand(win::WORD code) {
    if (code == win::EN_CHANGE) onChange.raise(Index);
}

}  // namespace magpie
