// Edit: the class "Edit": one line of text with a caret and a selection.
#include <algorithm>
#include <string>

#include "platform/memory/refuse.h"
#include "platform/memory/window.h"

namespace win::memory {
namespace {

// Characters are as wide as each other on this desktop, in pixels.
constexpr int letterWidth = 6;
constexpr std::size_t greatestLimit = 0x7FFFFFFE;

struct EditState : ControlState {
    std::size_t anchor = 0;  // where the selection began
    std::size_t caret = 0;   // where it ends, and where text goes in
    std::size_t limit = 30000;

    std::size_t first() const { return std::min(anchor, caret); }
    std::size_t last() const { return std::max(anchor, caret); }
    void moveTo(std::size_t at) { anchor = caret = at; }
};

void tellChange(HWND edit) {
    notifyCommand(edit, EN_UPDATE);
    notifyCommand(edit, EN_CHANGE);
}

// Puts `text` in the place of the selection, as typing does. What the limit leaves no
// room for is dropped; the selection goes all the same.
void replaceSelection(HWND edit, std::string text) {
    auto& state = controlState<EditState>(edit);
    const std::size_t kept = windowOf(edit).text.size() - (state.last() - state.first());
    if (kept + text.size() > state.limit) {
        notifyCommand(edit, EN_MAXTEXT);
        text.resize(state.limit > kept ? state.limit - kept : 0);
    }
    windowOf(edit).text.replace(state.first(), state.last() - state.first(), text);
    state.moveTo(state.first() + text.size());
    tellChange(edit);
}

// Removes the selection; where there is none, the letter that `from` and `to` enclose.
void erase(HWND edit, std::size_t from, std::size_t to) {
    auto& state = controlState<EditState>(edit);
    if (state.anchor == state.caret) {
        state.anchor = from;
        state.caret = std::min(to, windowOf(edit).text.size());
    }
    if (state.anchor != state.caret) replaceSelection(edit, "");
}

void typeLetter(HWND edit, WPARAM letter) {
    const auto& state = controlState<EditState>(edit);
    constexpr WPARAM firstPrintable = 0x20;
    constexpr WPARAM rubOut = 0x7F;
    if (letter == VK_BACK) {
        erase(edit, state.caret - (state.caret > 0), state.caret);
    } else if (letter >= firstPrintable && letter != rubOut) {
        replaceSelection(edit, std::string(1, static_cast<char>(letter)));
    } else if (letter != VK_RETURN && letter != VK_TAB && letter != VK_ESCAPE) {
        refuse("control character typed into a text box", letter);
    }
}

void pressKey(HWND edit, WPARAM key) {
    auto& state = controlState<EditState>(edit);
    const bool plain = GetKeyState(VK_SHIFT) >= 0 && GetKeyState(VK_CONTROL) >= 0;
    switch (key) {
        case VK_LEFT:
        case VK_UP:
        case VK_RIGHT:
        case VK_DOWN:
        case VK_HOME:
        case VK_END:
        case VK_DELETE:
            if (!plain) refuse("shifted key in a text box", key);
            break;
        default: return;
    }
    const std::size_t length = windowOf(edit).text.size();
    if (key == VK_DELETE) erase(edit, state.caret, state.caret + 1);
    if (key == VK_HOME) state.moveTo(0);
    if (key == VK_END) state.moveTo(length);
    if (key == VK_LEFT || key == VK_UP) state.moveTo(state.caret - (state.caret > 0));
    if (key == VK_RIGHT || key == VK_DOWN) state.moveTo(std::min(state.caret + 1, length));
}

// -1 for the first takes the selection away; -1 for the last reaches to the end.
void setSelection(HWND edit, WPARAM first, LPARAM last) {
    auto& state = controlState<EditState>(edit);
    const std::size_t length = windowOf(edit).text.size();
    if (static_cast<INT>(first) == -1) {
        state.moveTo(state.caret);
        return;
    }
    state.anchor = std::min<std::size_t>(static_cast<UINT>(first), length);
    state.caret = std::min<std::size_t>(static_cast<UINT>(last), length);
}

LRESULT tellSelection(HWND edit, WPARAM first, LPARAM last) {
    const auto& state = controlState<EditState>(edit);
    if (first) *reinterpret_cast<DWORD*>(first) = static_cast<DWORD>(state.first());
    if (last) *reinterpret_cast<DWORD*>(last) = static_cast<DWORD>(state.last());
    return makeLParam(static_cast<int>(state.first()), static_cast<int>(state.last()));
}

LRESULT editMessage(HWND edit, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case EM_GETSEL: return tellSelection(edit, wParam, lParam);
        case EM_SETSEL: setSelection(edit, wParam, lParam); return 1;
        case EM_LIMITTEXT:
            controlState<EditState>(edit).limit = wParam ? wParam : greatestLimit;
            return 0;
        default: refuse("text box's message", message);
    }
}

LRESULT setText(HWND edit, LPARAM text) {
    const LRESULT answer = DefWindowProcA(edit, WM_SETTEXT, 0, text);
    controlState<EditState>(edit).moveTo(0);
    tellChange(edit);
    return answer;
}

}  // namespace

LRESULT editProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    constexpr UINT firstOfClass = EM_GETSEL;
    constexpr UINT lastOfClass = 0x00DB;
    if (message >= firstOfClass && message <= lastOfClass)
        return editMessage(window, message, wParam, lParam);
    switch (message) {
        case WM_GETDLGCODE: return DLGC_HASSETSEL | DLGC_WANTCHARS | DLGC_WANTARROWS;
        case WM_SETTEXT: return setText(window, lParam);
        case WM_CHAR: typeLetter(window, wParam); return 0;
        case WM_KEYDOWN: pressKey(window, wParam); return 0;
        case WM_LBUTTONDOWN: {
            const auto column = static_cast<std::size_t>(std::max(xOf(lParam), 0) / letterWidth);
            controlState<EditState>(window).moveTo(std::min(column, windowOf(window).text.size()));
            SetFocus(window);
            return 0;
        }
        case WM_SETFOCUS: notifyCommand(window, EN_SETFOCUS); return 0;
        case WM_KILLFOCUS: notifyCommand(window, EN_KILLFOCUS); return 0;
        default: return DefWindowProcA(window, message, wParam, lParam);
    }
}

}  // namespace win::memory
