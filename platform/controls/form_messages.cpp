// What the desktop tells a form, and what the form makes of it.
#include <algorithm>
#include <utility>

#include "platform/api/user32.h"
#include "platform/controls/form.h"
#include "platform/controls/menu.h"
#include "platform/controls/mouse.h"
#include "platform/controls/reflect.h"
#include "platform/controls/tab_order.h"
#include "platform/controls/tab_strip.h"
#include "platform/controls/timer.h"

namespace magpie {

namespace {

Form* ownFormOf(win::HWND window) {
    return reinterpret_cast<Form*>(win::GetWindowLongPtrA(window, win::GWLP_USERDATA));
}

// A session that ends is the start-up form's affair: it closes the others first.
// The answer of every other form is yes.
win::LRESULT answerSessionEnd(Form& form) {
    if (&form != Form::startUp) return 1;
    bool cancel = false;
    form.onQueryUnload.raise(0, cancel, unloadBySessionEnd);
    return cancel ? 0 : 1;
}

}  // namespace

win::LRESULT formProcedure(win::HWND window, win::UINT message, win::WPARAM wParam,
                           win::LPARAM lParam) noexcept {
    Form* form = ownFormOf(window);
    if (form == nullptr) return win::DefWindowProcA(window, message, wParam, lParam);
    try {
        return form->handleMessage(message, wParam, lParam);
    } catch (const Failure&) {
        return 0;
    }
}

win::LRESULT Form::handleMessage(win::UINT message, win::WPARAM wParam, win::LPARAM lParam) {
    const win::HWND window = window_;
    switch (message) {
        case win::WM_SIZE:
            if (docked_ != nullptr) win::SendMessageA(docked_->hWnd(), message, wParam, lParam);
            sized(wParam);
            return 0;
        case win::WM_CLOSE: unload(unloadByCloseBox); return 0;
        case win::WM_QUERYENDSESSION: return answerSessionEnd(*this);
        case win::WM_ENDSESSION:
            if (wParam != 0 && this == startUp) {
                onUnload.raise(0);
                discard();
            }
            return 0;
        case win::WM_COMMAND:
        case win::WM_NOTIFY: {
            win::LRESULT answer = 0;
            reflect(message, wParam, lParam, answer);
            return answer;
        }
        case win::WM_TIMER: tick(wParam); return 0;
        case win::WM_MENUCHAR:
            return lineOfLetter(reinterpret_cast<win::HMENU>(lParam),
                                static_cast<char>(win::LOWORD(wParam)));
        case win::WM_ACTIVATE:
            if (win::LOWORD(wParam) == win::WA_INACTIVE) {
                keepFocus();
            } else {
                if (win::HIWORD(wParam) == 0) giveFocus();
                tellActivation(lParam != 0);
            }
            return 0;
        case win::WM_SETFOCUS: giveFocus(); return 0;
        case win::WM_NEXTDLGCTL: followAccessKey(wParam, lParam); return 0;
        case win::WM_SETCURSOR:
            if (Screen.MousePointer() == Pointer::standard) break;
            showPointer(Screen.MousePointer());
            return 1;
        case win::WM_NCDESTROY:
            forgetWindow();
            return win::DefWindowProcA(window, message, wParam, lParam);
        default: break;
    }
    if (isMouseMessage(message)) {
        tellMouse(mouseReport(message, wParam, lParam, ScaleMode));
        return 0;
    }
    return win::DefWindowProcA(window, message, wParam, lParam);
}

// The routine may unload the form and with it the timers.
void Form::tick(win::UINT_PTR id) {
    const auto due = std::find_if(timers_.begin(), timers_.end(),
                                  [id](const Timer* timer) { return timer->id() == id; });
    if (due != timers_.end()) (*due)->onTimer.raise(0);
}

void Form::tellMouse(const MouseReport& mouse) {
    const MouseEvent& event = mouse.kind == MouseKind::down   ? onMouseDown
                              : mouse.kind == MouseKind::move ? onMouseMove
                                                              : onMouseUp;
    event.raise(0, mouse.button, mouse.shift, mouse.x, mouse.y);
}

// Whoever comes back from another program finds the form as it was left.
void Form::tellActivation(bool fromOwnWindow) {
    const bool first = !std::exchange(toldActive_, true);
    if (first || fromOwnWindow) onActivate.raise(0);
}

void Form::keepFocus() {
    win::HWND focused = win::GetFocus();
    if (focused != nullptr && formOf(focused) == this && focused != window_) lastFocus_ = focused;
}

void Form::giveFocus() {
    if (!ready_) return;
    win::HWND to = lastFocus_;
    if (to == nullptr || !takesFocus(to)) to = firstStop(window_);
    if (to != nullptr) win::SetFocus(to);
}

// The access key of a label: the platform names the label as the control to go to, and then
// asks for the next one.
void Form::followAccessKey(win::WPARAM wParam, win::LPARAM lParam) {
    if (lParam != 0)
        labelOfKey_ = reinterpret_cast<win::HWND>(wParam);
    else
        enterStop(stopBehind(window_, std::exchange(labelOfKey_, nullptr)));
}

// What had the focus on a page gets it back when the page is on show again.
bool Form::turnPage(int step) {
    if (pages_ == nullptr) return false;
    const win::HWND before = win::GetFocus();
    pages_->turn(step);
    if (!loaded()) return true;
    if (leftOnPage_ != nullptr && takesFocus(leftOnPage_))
        enterStop(std::exchange(leftOnPage_, nullptr));
    else if (before != nullptr && !takesFocus(before))
        leftOnPage_ = before;
    return true;
}

Form* formOf(win::HWND window) {
    if (window == nullptr || !win::IsWindow(window)) return nullptr;
    const win::HWND root = win::GetAncestor(window, win::GA_ROOT);
    for (Form* form : loadedForms())
        if (form->loaded() && form->hWnd() == root) return form;
    return nullptr;
}

win::HWND dialogOwner() {
    win::HWND owner = win::GetActiveWindow();
    for (Form* form : loadedForms())
        if (win::IsWindowVisible(form->hWnd())) owner = form->hWnd();
    return owner;
}

}  // namespace magpie
