#include "platform/controls/control.h"

#include <utility>

#include "platform/api/kernel32.h"
#include "platform/api/ole32.h"
#include "platform/api/user32.h"
#include "platform/controls/control_failure.h"
#include "platform/controls/form.h"
#include "platform/controls/mouse.h"
#include "platform/controls/reflect.h"
#include "platform/controls/tool_tips.h"

namespace magpie {

namespace {

win::LRESULT controlProcedure(win::HWND window, win::UINT message, win::WPARAM wParam,
                              win::LPARAM lParam) noexcept {
    auto* control = reinterpret_cast<Control*>(win::GetWindowLongPtrA(window, win::GWLP_USERDATA));
    win::WNDPROC previous = control->previousProcedure();
    if (message == win::WM_NCDESTROY) control->forgetWindow();
    try {
        win::LRESULT answer = 0;
        if (message != win::WM_NCDESTROY && control->handleMessage(message, wParam, lParam, answer))
            return answer;
    } catch (const Failure&) {
        return 0;
    }
    // A routine may have taken the form away.
    if (message != win::WM_NCDESTROY && !control->hasWindow(window)) return 0;
    return win::CallWindowProcA(previous, window, message, wParam, lParam);
}

void dropText(win::HWND window, std::string_view text) noexcept {
    Control* control = controlOf(window);
    if (control != nullptr) control->onOLEDragDrop.raise(control->Index, std::string(text));
}

// A menu that the mouse asks for comes with the place of the mouse.
bool isMenuKey(win::LPARAM place) {
    return win::xOf(place) == -1 && win::yOf(place) == -1;
}

}  // namespace

Control* controlOf(win::HWND window) {
    if (window == nullptr || win::GetParent(window) == nullptr) return nullptr;
    return reinterpret_cast<Control*>(win::GetWindowLongPtrA(window, win::GWLP_USERDATA));
}

Control::Control() : form_(*Form::underConstruction) {}

win::HWND Control::hWnd() {
    if (window_ == nullptr) form_.loadByAccess();
    if (window_ == nullptr) throw Failure{failure::objectNotSet};
    return window_;
}

void Control::createWindow(Container& container, const WindowKind& kind, const Place& place,
                           const std::string& caption) {
    container_ = &container;
    place_ = place;
    visible_ = true;
    pointer_ = Pointer::standard;
    toolTip_.clear();
    makeWindow(kind, caption);
}

void Control::makeWindow(const WindowKind& kind, const std::string& caption) {
    const win::DWORD visible = visible_ ? win::WS_VISIBLE : 0;
    window_ = win::CreateWindowExA(kind.exStyle, kind.className, caption.c_str(),
                                   kind.style | visible | win::WS_CHILD | win::WS_CLIPSIBLINGS, 0,
                                   0, 0, 0, container_->containerWindow(),
                                   reinterpret_cast<win::HMENU>(form_.nextControlId()),
                                   win::GetOwnModule(), nullptr);
    if (window_ == nullptr) throw Failure{failure::outOfMemory};
    win::SetWindowLongPtrA(window_, win::GWLP_USERDATA, reinterpret_cast<win::LONG_PTR>(this));
    previous_ = reinterpret_cast<win::WNDPROC>(win::SetWindowLongPtrA(
        window_, win::GWLP_WNDPROC, reinterpret_cast<win::LONG_PTR>(&controlProcedure)));
    win::SendMessageA(window_, win::WM_SETFONT, reinterpret_cast<win::WPARAM>(form_.font()), 0);
    this->place();
}

void Control::recreateWindow(const WindowKind& kind) {
    const std::string caption = Caption();
    const std::string tip = toolTip_;
    ToolTipText("");
    win::HWND before = win::GetWindow(window_, win::GW_HWNDPREV);
    win::DestroyWindow(window_);
    makeWindow(kind, caption);
    win::SetWindowPos(window_, before == nullptr ? win::HWND_TOP : before, 0, 0, 0, 0,
                      win::SWP_NOMOVE | win::SWP_NOSIZE | win::SWP_NOACTIVATE);
    ToolTipText(tip);
}

void Control::forgetWindow() {
    window_ = nullptr;
}

void Control::place() {
    win::SetWindowPos(window_, nullptr, pixelsX(place_.left), pixelsY(place_.top),
                      pixelsX(place_.width), pixelsY(place_.height),
                      win::SWP_NOZORDER | win::SWP_NOACTIVATE);
}

double Control::Left() {
    hWnd();
    return place_.left;
}

double Control::Top() {
    hWnd();
    return place_.top;
}

double Control::Width() {
    hWnd();
    return place_.width;
}

double Control::Height() {
    hWnd();
    return place_.height;
}

void Control::Left(double twips) {
    Move({twips, Top(), place_.width, place_.height});
}

void Control::Top(double twips) {
    Move({Left(), twips, place_.width, place_.height});
}

void Control::Width(double twips) {
    Move({Left(), place_.top, twips, place_.height});
}

void Control::Height(double twips) {
    Move({Left(), place_.top, place_.width, twips});
}

void Control::Move(const Place& to) {
    hWnd();
    if (to.width < 0 || to.height < 0) throw Failure{failure::invalidProperty};
    place_ = to;
    place();
}

bool Control::Visible() {
    hWnd();
    return visible_;
}

void Control::Visible(bool visible) {
    hWnd();
    visible_ = visible;
    win::ShowWindow(window_, visible ? win::SW_SHOWNA : win::SW_HIDE);
}

bool Control::Enabled() {
    return win::IsWindowEnabled(hWnd()) != 0;
}

void Control::Enabled(bool enabled) {
    win::EnableWindow(hWnd(), enabled);
}

std::string Control::Caption() {
    std::string text(static_cast<std::size_t>(win::GetWindowTextLengthA(hWnd())) + 1, '\0');
    const int length = win::GetWindowTextA(window_, text);
    text.resize(static_cast<std::size_t>(length));
    return text;
}

void Control::Caption(const std::string& text) {
    win::SetWindowTextA(hWnd(), text.c_str());
}

const std::string& Control::ToolTipText() {
    hWnd();
    return toolTip_;
}

void Control::ToolTipText(const std::string& text) {
    hWnd();
    if (text == toolTip_) return;
    form_.toolTips().tell(window_, toolTip_, text);
    toolTip_ = text;
}

Pointer Control::MousePointer() {
    hWnd();
    return pointer_;
}

void Control::MousePointer(Pointer pointer) {
    if (pointer == MousePointer()) return;
    pointer_ = pointer;
    if (Screen.MousePointer() == Pointer::standard) showPointer(pointer);
}

void Control::SetFocus() {
    win::SetFocus(hWnd());
}

bool Control::holdsFocus() {
    const win::HWND own = hWnd();
    win::HWND each = win::GetFocus();
    while (each != nullptr && each != own) each = win::GetParent(each);
    return each != nullptr;
}

void Control::takeTextDrops() {
    takesDrops_ = win::RegisterDragDrop(hWnd(), &dropText) == 0;
}

void Control::Refresh() {
    win::RedrawWindow(
        hWnd(), nullptr, nullptr,
        win::RDW_INVALIDATE | win::RDW_ERASE | win::RDW_ALLCHILDREN | win::RDW_UPDATENOW);
}

Control* Control::containingControl() {
    return controlOf(win::GetParent(hWnd()));
}

HeldDrawing::HeldDrawing(Control& control) : control_(control), held_(control.Visible()) {
    if (held_) win::SendMessageA(control_.hWnd(), win::WM_SETREDRAW, 0, 0);
}

// Switched on, drawing takes a window for visible whatever it was.
HeldDrawing::~HeldDrawing() {
    if (held_) win::SendMessageA(control_.hWnd(), win::WM_SETREDRAW, 1, 0);
}

double Control::ScaleWidth() {
    win::RECT inner{};
    win::GetClientRect(hWnd(), &inner);
    return inner.right * Screen.TwipsPerPixelX();
}

double Control::ScaleHeight() {
    win::RECT inner{};
    win::GetClientRect(hWnd(), &inner);
    return inner.bottom * Screen.TwipsPerPixelY();
}

win::POINT Control::menuPlace() {
    win::RECT inner{};
    win::GetClientRect(hWnd(), &inner);
    win::POINT place{0, inner.bottom};
    win::ClientToScreen(window_, &place);
    return place;
}

bool Control::ownKey(int, int) {
    return false;
}

void Control::onCommand(win::WORD) {}

win::LRESULT Control::onNotify(win::LPARAM) {
    return 0;
}

bool Control::handleMessage(win::UINT message, win::WPARAM wParam, win::LPARAM lParam,
                            win::LRESULT& answer) {
    switch (message) {
        case win::WM_COMMAND:
        case win::WM_NOTIFY:
            // What is not of a control of ours comes from a part of this one, as the
            // headings of a list or the opened list of a combo box, and is its own affair.
            if (reflect(message, wParam, lParam, answer)) return true;
            break;
        case win::WM_SETCURSOR:
            if (pointer_ == Pointer::standard || Screen.MousePointer() != Pointer::standard)
                return false;
            showPointer(pointer_);
            answer = 1;
            return true;
        case win::WM_KEYDOWN: onKeyDown.raise(Index, static_cast<int>(wParam), shiftState()); break;
        case win::WM_KEYUP: onKeyUp.raise(Index, static_cast<int>(wParam), shiftState()); break;
        case win::WM_DESTROY:
            if (std::exchange(takesDrops_, false)) win::RevokeDragDrop(window_);
            break;
        case win::WM_CHAR: onKeyPress.raise(Index, static_cast<int>(wParam)); break;
        case win::WM_CONTEXTMENU:
            if (!onMenuKey || !isMenuKey(lParam)) break;
            onMenuKey.raise(Index);
            answer = 0;
            return true;
        default: break;
    }
    if (isMouseMessage(message)) tellMouse(mouseReport(message, wParam, lParam, scaleTwips));
    return false;
}

void Control::tellMouse(const MouseReport& mouse) {
    const MouseEvent& event = mouse.kind == MouseKind::down   ? onMouseDown
                              : mouse.kind == MouseKind::move ? onMouseMove
                                                              : onMouseUp;
    event.raise(Index, mouse.button, mouse.shift, mouse.x, mouse.y);
}

bool reflect(win::UINT message, win::WPARAM wParam, win::LPARAM lParam, win::LRESULT& answer) {
    const bool command = message == win::WM_COMMAND;
    auto* sender = command ? reinterpret_cast<win::HWND>(lParam)
                           : reinterpret_cast<const win::NMHDR*>(lParam)->hwndFrom;
    Control* control = controlOf(sender);
    if (control == nullptr) return false;
    answer = 0;
    if (command)
        control->onCommand(win::HIWORD(wParam));
    else
        answer = control->onNotify(lParam);
    return true;
}

}  // namespace magpie
