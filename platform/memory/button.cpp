// Button: the class "Button": push buttons, check boxes and group boxes.
#include "platform/memory/refuse.h"
#include "platform/memory/window.h"

namespace win::memory {
namespace {

constexpr DWORD typeMask = 0x000F;

struct ButtonState : ControlState {
    WPARAM check = BST_UNCHECKED;
    bool pressed = false;
};

DWORD typeOf(HWND button) {
    return windowOf(button).style & typeMask;
}

LRESULT dialogCode(DWORD type) {
    switch (type) {
        case BS_PUSHBUTTON: return DLGC_BUTTON | DLGC_UNDEFPUSHBUTTON;
        case BS_DEFPUSHBUTTON: return DLGC_BUTTON | DLGC_DEFPUSHBUTTON;
        case BS_AUTOCHECKBOX: return DLGC_BUTTON;
        case BS_GROUPBOX: return DLGC_STATIC;
        default: refuse("button type", type);
    }
}

void setStyle(HWND button, DWORD wanted) {
    dialogCode(wanted & typeMask);  // refuses a type that is not known
    DWORD& style = windowOf(button).style;
    style = (style & ~typeMask) | (wanted & typeMask);
}

void setCheck(HWND button, WPARAM check) {
    if (check > BST_CHECKED) refuse("check state of a button", check);
    if (typeOf(button) == BS_AUTOCHECKBOX) controlState<ButtonState>(button).check = check;
}

void press(HWND button) {
    SetCapture(button);
    controlState<ButtonState>(button).pressed = true;
}

// Ends a press; one that ends on the button is a click.
void release(HWND button, bool inside) {
    auto& state = controlState<ButtonState>(button);
    if (!state.pressed) return;
    state.pressed = false;
    if (inside) setCheck(button, state.check ? BST_UNCHECKED : BST_CHECKED);
    ReleaseCapture();
    if (inside) notifyCommand(button, BN_CLICKED);
}

bool isInside(HWND button, LPARAM point) {
    RECT area{};
    GetClientRect(button, &area);
    return xOf(point) >= 0 && xOf(point) < area.right && yOf(point) >= 0 &&
           yOf(point) < area.bottom;
}

void notifyIfWanted(HWND button, WORD code) {
    if (windowOf(button).style & BS_NOTIFY) notifyCommand(button, code);
}

// The messages of the class's own range.
LRESULT buttonMessage(HWND button, UINT message, WPARAM wParam) {
    switch (message) {
        case BM_GETCHECK: return static_cast<LRESULT>(controlState<ButtonState>(button).check);
        case BM_SETCHECK: setCheck(button, wParam); return 0;
        case BM_SETSTYLE: setStyle(button, static_cast<DWORD>(wParam)); return 0;
        case BM_CLICK:
            SendMessageA(button, WM_LBUTTONDOWN, 0, 0);
            SendMessageA(button, WM_LBUTTONUP, 0, 0);
            return 0;
        default: refuse("button message", message);
    }
}

}  // namespace

LRESULT buttonProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    constexpr UINT firstOfClass = BM_GETCHECK;
    constexpr UINT lastOfClass = 0x00F8;
    if (message >= firstOfClass && message <= lastOfClass)
        return buttonMessage(window, message, wParam);
    switch (message) {
        case WM_GETDLGCODE: return dialogCode(typeOf(window));
        case WM_NCHITTEST: return typeOf(window) == BS_GROUPBOX ? HTTRANSPARENT : HTCLIENT;
        case WM_LBUTTONDOWN:
            SetFocus(window);
            press(window);
            return 0;
        case WM_LBUTTONDBLCLK:
            if (windowOf(window).style & BS_NOTIFY) {
                notifyCommand(window, BN_DOUBLECLICKED);
                return 0;
            }
            SetFocus(window);
            press(window);
            return 0;
        case WM_LBUTTONUP: release(window, isInside(window, lParam)); return 0;
        case WM_KEYDOWN:
            if (wParam == VK_SPACE) press(window);
            return 0;
        case WM_KEYUP:
            if (wParam != VK_SPACE) return DefWindowProcA(window, message, wParam, lParam);
            release(window, true);
            return 0;
        case WM_CAPTURECHANGED: controlState<ButtonState>(window).pressed = false; return 0;
        case WM_SETFOCUS: notifyIfWanted(window, BN_SETFOCUS); return 0;
        case WM_KILLFOCUS:
            release(window, false);
            notifyIfWanted(window, BN_KILLFOCUS);
            return 0;
        default: return DefWindowProcA(window, message, wParam, lParam);
    }
}

}  // namespace win::memory
