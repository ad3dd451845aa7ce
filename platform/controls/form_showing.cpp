// How a form comes on the screen and leaves it: visibility, window state, modality.
#include <utility>

#include "platform/api/user32.h"
#include "platform/controls/form.h"
#include "platform/controls/message_loop.h"

namespace magpie {

namespace {

bool isVisible(win::HWND window) {
    return (win::GetWindowLongPtrA(window, win::GWL_STYLE) & win::WS_VISIBLE) != 0;
}

// The latest of the modal forms that are up; null without one.
Form* modalForm() {
    Form* latest = nullptr;
    for (Form* form : loadedForms())
        if (form->modal()) latest = form;
    return latest;
}

// The dialog of another module, as of a library, that holds this window; null without one.
win::HWND holderFromOutside(win::HWND window) {
    struct Search {
        win::HWND held;
        win::HWND found = nullptr;
    } search{window};
    win::EnumWindows(
        [](win::HWND each, win::LPARAM parameter) -> win::BOOL {
            auto& wanted = *reinterpret_cast<Search*>(parameter);
            const auto style = win::GetWindowLongPtrA(each, win::GWL_EXSTYLE);
            const bool dialog = win::GetWindow(each, win::GW_OWNER) == wanted.held &&
                                (style & win::WS_EX_TOOLWINDOW) == 0 && win::IsWindowVisible(each);
            if (dialog && win::IsWindowEnabled(each)) wanted.found = each;
            return wanted.found == nullptr;
        },
        reinterpret_cast<win::LPARAM>(&search));
    return search.found;
}

// Under Wine neither the foreground nor the top of the order brings a window before another one
// while some window, as the pad, is always on top; to go up there and down again does.
void bringBack(win::HWND window) {
    const bool alwaysOnTop =
        (win::GetWindowLongPtrA(window, win::GWL_EXSTYLE) & win::WS_EX_TOPMOST) != 0;
    for (win::HWND level : {win::HWND_TOPMOST, win::HWND_NOTOPMOST})
        if (!alwaysOnTop)
            win::SetWindowPos(window, level, 0, 0, 0, 0,
                              win::SWP_NOMOVE | win::SWP_NOSIZE | win::SWP_NOACTIVATE);
    win::SetForegroundWindow(window);
}

}  // namespace

bool Form::Visible() {
    return isVisible(hWnd());
}

void Form::Visible(bool visible) {
    hWnd();
    if (visible == isVisible(window_)) return;
    if (visible) {
        reveal();
    } else {
        hiddenState_ = WindowState();
        endModal();
        win::ShowWindow(window_, win::SW_HIDE);
    }
}

void Form::Show() {
    load();
    Visible(true);
    // An event of the showing may have taken the form away.
    if (!loaded()) return;
    win::SetForegroundWindow(window_);
    if (win::IsWindowEnabled(window_)) return;
    if (Form* holder = modalForm())
        holder->comeBack();
    else if (win::HWND outside = holderFromOutside(window_))
        bringBack(outside);
}

void Form::comeBack() {
    bringBack(window_);
}

void Form::reveal() {
    switch (hiddenState_) {
        case stateMinimised:
            // It went small before it was hidden: showing it small is no news.
            knownMinimised_ = true;
            win::ShowWindow(window_, win::SW_SHOWMINNOACTIVE);
            break;
        case stateMaximised: win::ShowWindow(window_, win::SW_SHOWMAXIMIZED); break;
        default: win::ShowWindow(window_, win::SW_SHOWNORMAL); break;
    }
}

int Form::WindowState() {
    hWnd();
    if (!isVisible(window_)) return hiddenState_;
    if (win::IsIconic(window_)) return stateMinimised;
    return win::IsZoomed(window_) ? stateMaximised : stateNormal;
}

void Form::WindowState(int state) {
    if (state == WindowState()) return;
    hiddenState_ = state;
    if (!isVisible(window_)) return;
    const int commands[] = {win::SW_SHOWNORMAL, win::SW_MINIMIZE, win::SW_SHOWMAXIMIZED};
    win::ShowWindow(window_, commands[state]);
}

void Form::showModal(win::HWND outer) {
    // Also a form that fails to load is nobody's the next time.
    struct Owned {
        Form& form;
        ~Owned() { form.outer_ = nullptr; }
    } const owned{*this};
    outer_ = outer;
    load();
    beginModal();
    Show();
    pumpWhile([](void* form) { return static_cast<Form*>(form)->modal_; }, this);
}

void Form::beginModal() {
    modal_ = true;
    activeBeforeModal_ = win::GetActiveWindow();
    win::EnableWindow(window_, true);
    if (outer_ != nullptr) hold(outer_);
    for (Form* other : loadedForms())
        if (other != this && !other->design_.live) hold(other->window_);
}

void Form::hold(win::HWND other) {
    if (!win::IsWindowEnabled(other)) return;
    win::EnableWindow(other, false);
    disabledForModal_.push_back(other);
}

void Form::beHeld() {
    Form* holder = modalForm();
    if (holder != nullptr && !design_.live) holder->hold(window_);
}

// The others are enabled before this one goes, or the desktop would hand the activation
// to another application; and the one that the user came from takes it, or it would go to
// whatever lies below, as the pad.
void Form::endModal() {
    if (!modal_) return;
    modal_ = false;
    for (win::HWND window : disabledForModal_)
        if (win::IsWindow(window)) win::EnableWindow(window, true);
    disabledForModal_.clear();
    win::HWND before = std::exchange(activeBeforeModal_, nullptr);
    if (before != nullptr && win::GetActiveWindow() == window_ && win::IsWindow(before) &&
        win::IsWindowVisible(before) && win::IsWindowEnabled(before))
        win::SetActiveWindow(before);
}

void Form::sized(win::WPARAM kind) {
    if (!ready_) return;
    const bool minimised = kind == static_cast<win::WPARAM>(win::SIZE_MINIMIZED);
    const bool news = !minimised || !knownMinimised_;
    knownMinimised_ = minimised;
    if (news) onResize.raise(0);
}

}  // namespace magpie
