// IsDialogMessageA: Tab, Enter, Escape and access keys among the controls of a window.
// The window need not be a dialog of the platform's own.
#include <cctype>

#include "platform/memory/desktop.h"
#include "platform/memory/refuse.h"

namespace win::memory {
namespace {

LRESULT dialogCode(HWND handle, const MSG* message = nullptr) {
    return SendMessageA(handle, WM_GETDLGCODE, message ? message->wParam : 0,
                        reinterpret_cast<LPARAM>(message));
}

struct Stop {
    HWND window;
    bool takesTab;
};

// The controls in tab order, containers replaced by what is in them.
void collect(HWND parent, bool usable, std::vector<Stop>& stops) {
    for (HWND child : windowOf(parent).children) {
        const Window& window = windowOf(child);
        bool here = usable && (window.style & (WS_VISIBLE | WS_DISABLED)) == WS_VISIBLE;
        if (window.exStyle & WS_EX_CONTROLPARENT) {
            collect(child, here, stops);
        } else {
            stops.push_back({child, here && window.style & WS_TABSTOP});
        }
    }
}

// The next control that takes the Tab key, after (or before) `from`; null without one. From
// the window itself the way leads only forward.
HWND nextStop(HWND dialog, HWND from, bool backward) {
    std::vector<Stop> stops;
    collect(dialog, true, stops);
    std::size_t count = stops.size();
    std::size_t at = count;
    for (std::size_t each = 0; each < count; ++each) {
        if (from && isInside(stops[each].window, from)) at = each;
    }
    if (at == count && backward) return nullptr;
    for (std::size_t step = 0; step < count; ++step) {
        if (at == count) {
            at = 0;
        } else {
            at = backward ? (at + count - 1) % count : (at + 1) % count;
        }
        if (stops[at].takesTab) return stops[at].window;
    }
    return nullptr;
}

void enter(HWND control) {
    if (dialogCode(control) & DLGC_HASSETSEL) SendMessageA(control, EM_SETSEL, 0, -1);
    SetFocus(control);
}

bool moveByTab(HWND dialog) {
    HWND next = nextStop(dialog, GetFocus(), GetKeyState(VK_SHIFT) < 0);
    if (next) enter(next);
    return next != nullptr;
}

HWND controlWithId(HWND parent, int id) {
    for (HWND child : windowOf(parent).children) {
        if (windowOf(child).id == id) return child;
        if (HWND below = controlWithId(child, id)) return below;
    }
    return nullptr;
}

void sendCommand(HWND dialog, int id, HWND control) {
    SendMessageA(dialog, WM_COMMAND, makeWParam(id, BN_CLICKED), reinterpret_cast<LPARAM>(control));
}

void pressDefault(HWND dialog) {
    HWND focus = GetFocus();
    if (focus && dialogCode(focus) & DLGC_DEFPUSHBUTTON) {
        sendCommand(dialog, static_cast<int>(windowOf(focus).id), focus);
        return;
    }
    auto answer = static_cast<std::uintptr_t>(SendMessageA(dialog, DM_GETDEFID, 0, 0));
    int id = HIWORD(answer) == DC_HASDEFID ? LOWORD(answer) : IDOK;
    HWND button = controlWithId(dialog, id);
    if (!button || IsWindowEnabled(button)) sendCommand(dialog, id, button);
}

// The letter after the last single "&", in lower case; 0 without one.
int accessKey(const std::string& text) {
    int key = 0;
    for (std::size_t at = 0; at + 1 < text.size(); ++at) {
        if (text[at] != '&') continue;
        char after = text[++at];
        if (after != '&' && !key) key = std::tolower(static_cast<unsigned char>(after));
    }
    return key;
}

bool isGroupBox(const Window& window) {
    return window.className == "Button" && (window.style & 0xF) == BS_GROUPBOX;
}

bool press(HWND dialog, HWND control, LRESULT code) {
    if (code & DLGC_STATIC || isGroupBox(windowOf(control))) {
        // A label or a frame hands its key to the next control, if the window sees to that.
        SendMessageA(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control), 1);
        SendMessageA(dialog, WM_NEXTDLGCTL, 0, 0);
        return true;
    }
    SendMessageA(control, BM_CLICK, 0, 0);
    return true;
}

// Presses the first usable control below `parent` with this access key.
bool pressAccessKey(HWND dialog, HWND parent, int key) {
    for (HWND child : std::vector<HWND>(windowOf(parent).children)) {
        const Window& window = windowOf(child);
        if ((window.style & (WS_VISIBLE | WS_DISABLED)) != WS_VISIBLE) continue;
        LRESULT code = dialogCode(child);
        if (code & (DLGC_BUTTON | DLGC_STATIC) && accessKey(window.text) == key)
            return press(dialog, child, code);
        if (pressAccessKey(dialog, child, key)) return true;
    }
    return false;
}

// Whether the key was one of the dialog's own.
bool handleKey(HWND dialog, const MSG& message) {
    LRESULT code = dialogCode(message.hwnd, &message);
    if (code & DLGC_WANTALLKEYS) return false;
    switch (static_cast<int>(message.wParam)) {
        case VK_TAB: return !(code & DLGC_WANTTAB) && moveByTab(dialog);
        case VK_ESCAPE: sendCommand(dialog, IDCANCEL, controlWithId(dialog, IDCANCEL)); return true;
        case VK_RETURN: pressDefault(dialog); return true;
        case VK_LEFT:
        case VK_UP:
        case VK_RIGHT:
        case VK_DOWN: return !(code & DLGC_WANTARROWS);
        default: return false;
    }
}

bool handleCharacter(HWND dialog, const MSG& message) {
    if (message.message == WM_CHAR) {
        LRESULT code = dialogCode(message.hwnd, &message);
        if (code & (DLGC_WANTCHARS | DLGC_WANTALLKEYS)) return false;
    }
    int key = std::tolower(static_cast<unsigned char>(message.wParam));
    return pressAccessKey(dialog, dialog, key);
}

}  // namespace
}  // namespace win::memory

namespace win {

using namespace memory;

BOOL IsDialogMessageA(HWND dialog, MSG* message) {
    if (!message->hwnd || !IsWindow(message->hwnd) || !isInside(dialog, message->hwnd))
        return false;
    bool handled = false;
    if (message->message == WM_KEYDOWN) handled = handleKey(dialog, *message);
    if (message->message == WM_CHAR || message->message == WM_SYSCHAR)
        handled = handleCharacter(dialog, *message);
    if (!handled && IsWindow(message->hwnd)) {
        TranslateMessage(message);
        DispatchMessageA(message);
    }
    return true;
}

}  // namespace win
