#include "platform/controls/message_loop.h"

#include "platform/api/user32.h"
#include "platform/controls/default_button.h"
#include "platform/controls/form.h"
#include "platform/controls/mouse.h"

namespace magpie {

namespace {

bool isEnterOrEscape(const win::MSG& message) {
    return message.wParam == win::VK_RETURN || message.wParam == win::VK_ESCAPE;
}

// A shortcut of the form comes before a key of the focused control's own. No character
// comes of either, so that one press acts once.
bool takenAtOnce(const win::MSG& message, Form& form) {
    if (message.message != win::WM_KEYDOWN) return false;
    const int key = static_cast<int>(message.wParam);
    const int shift = shiftState();
    try {
        const bool mayBeShortcut =
            form.onShortcut != nullptr && shift == shiftControl && key >= 'A' && key <= 'Z';
        if (mayBeShortcut && form.onShortcut(static_cast<char>(key))) return true;
        Control* focused = controlOf(message.hwnd);
        return focused != nullptr && focused->ownKey(key, shift);
    } catch (const Failure&) {
        return true;
    }
}

// Enter presses the default button and Escape the cancel button, wherever the focus is,
// and there it stays, so that who pressed Enter in a text goes on typing. A control may
// want these keys for itself, as an open drop-down list does.
bool pressFormButton(const win::MSG& message, Form& form) {
    if (message.message != win::WM_KEYDOWN || !isEnterOrEscape(message)) return false;
    const auto code = win::SendMessageA(message.hwnd, win::WM_GETDLGCODE, message.wParam,
                                        reinterpret_cast<win::LPARAM>(&message));
    if ((code & win::DLGC_WANTALLKEYS) != 0) return false;
    Control* button =
        message.wParam == win::VK_RETURN ? buttonOfEnter(message.hwnd, form) : form.cancelButton();
    if (button == nullptr || !button->Enabled()) return false;
    button->onCommand(win::BN_CLICKED);
    return true;
}

// Ctrl+Tab belongs to the pages of the form, if it has any.
bool turnsPage(const win::MSG& message, Form& form) {
    if (message.message != win::WM_KEYDOWN || message.wParam != win::VK_TAB) return false;
    const int shift = shiftState();
    constexpr int shiftAlt = 4;
    if ((shift & shiftControl) == 0 || (shift & shiftAlt) != 0) return false;
    constexpr int shiftShift = 1;
    return form.turnPage((shift & shiftShift) != 0 ? -1 : 1);
}

// The wheel turns what is under the mouse and listens to it, whoever has the focus. A
// control that holds the mouse, as a combo box with its list open does, is left alone.
bool turnUnderMouse(const win::MSG& message, const Form& form) {
    if (message.message != win::WM_MOUSEWHEEL || win::GetCapture() != nullptr) return false;
    const win::HWND under =
        win::WindowFromPoint({win::xOf(message.lParam), win::yOf(message.lParam)});
    if (formOf(under) != &form) return false;
    for (win::HWND each = under; each != nullptr; each = win::GetParent(each)) {
        Control* control = controlOf(each);
        if (control == nullptr || !control->onMouseWheel) continue;
        constexpr double notch = 120;
        const int turned = win::yOf(static_cast<win::LPARAM>(message.wParam));
        control->onMouseWheel.raise(control->Index, turned / notch);
        return true;
    }
    return false;
}

void tellTab(Form& form) {
    Control* focused = controlOf(win::GetFocus());
    if (focused != nullptr && &focused->form() == &form) form.onTab.raise(0, *focused);
}

// What moves the focus inside a form.
bool movesFocus(const win::MSG& message) {
    return message.message == win::WM_KEYDOWN || message.message == win::WM_SYSCHAR ||
           message.message == win::WM_LBUTTONDOWN;
}

void deliver(win::MSG& message) {
    if (Form* form = formOf(message.hwnd)) {
        if (message.message == win::WM_CHAR && form->design().keyPreview)
            form->onKeyPress.raise(0, static_cast<int>(message.wParam));
        if (takenAtOnce(message, *form) || pressFormButton(message, *form) ||
            turnsPage(message, *form) || turnUnderMouse(message, *form))
            return;
        // Enter and Escape without a button of their own are ordinary keys of the form.
        const win::HWND focus = win::GetFocus();
        if (form->loaded() && !isEnterOrEscape(message) &&
            win::IsDialogMessageA(form->hWnd(), &message)) {
            // Tab, or an arrow from one box to the next.
            if (message.message == win::WM_KEYDOWN && win::GetFocus() != focus) tellTab(*form);
            return;
        }
    }
    win::TranslateMessage(&message);
    win::DispatchMessageA(&message);
}

void dispatch(win::MSG& message) {
    deliver(message);
    if (!movesFocus(message)) return;
    if (Form* form = formOf(win::GetFocus())) drawDefaultButton(*form);
}

// False when there were no events.
bool runPending() {
    bool any = false;
    win::MSG message;
    while (win::PeekMessageA(&message, nullptr, 0, 0, win::PM_REMOVE)) {
        any = true;
        if (message.message == win::WM_QUIT) {
            // The end is for the outermost loop; here it only stops the pumping.
            win::PostQuitMessage(static_cast<int>(message.wParam));
            break;
        }
        dispatch(message);
    }
    return any;
}

}  // namespace

void DoEvents() {
    runPending();
}

void DoEventsOrSleep() {
    if (!runPending()) win::WaitMessage();
}

void pumpWhile(bool (*going)(void*), void* context) {
    win::MSG message;
    while (going(context)) {
        if (win::GetMessageA(&message, nullptr, 0, 0) <= 0) {
            win::PostQuitMessage(static_cast<int>(message.wParam));
            return;
        }
        dispatch(message);
    }
}

void startWith(Form& startUp) {
    Form::startUp = &startUp;
    Form::ending = false;
    startUp.load();
}

int runUntilNoForm() {
    win::MSG message{};
    while (!loadedForms().empty()) {
        if (win::GetMessageA(&message, nullptr, 0, 0) <= 0) return static_cast<int>(message.wParam);
        dispatch(message);
    }
    return 0;
}

}  // namespace magpie
