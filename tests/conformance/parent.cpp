#include "tests/conformance/parent.h"

#include <string>
#include <utility>

#include "platform/api/kernel32.h"

namespace {

constexpr const char* className = "ConformanceParent";

void registerOnce(win::WNDPROC procedure) {
    static bool registered = false;
    if (std::exchange(registered, true)) return;
    const win::INITCOMMONCONTROLSEX controls{
        sizeof controls, win::ICC_LISTVIEW_CLASSES | win::ICC_BAR_CLASSES | win::ICC_TAB_CLASSES |
                             win::ICC_STANDARD_CLASSES};
    win::InitCommonControlsEx(&controls);
    win::WNDCLASSEXA definition{};
    definition.cbSize = sizeof definition;
    definition.lpfnWndProc = procedure;
    definition.hInstance = win::GetModuleHandleA(nullptr);
    definition.lpszClassName = className;
    win::RegisterClassExA(&definition);
}

void post(win::HWND window, win::UINT message, win::WPARAM keys, int x, int y) {
    win::PostMessageA(window, message, keys, win::makeLParam(x, y));
}

void postPress(win::HWND window, int x, int y, MouseButton button) {
    if (button == MouseButton::left)
        post(window, win::WM_LBUTTONDOWN, win::MK_LBUTTON, x, y);
    else
        post(window, win::WM_RBUTTONDOWN, win::MK_RBUTTON, x, y);
}

void postRelease(win::HWND window, int x, int y, MouseButton button) {
    post(window, button == MouseButton::left ? win::WM_LBUTTONUP : win::WM_RBUTTONUP, 0, x, y);
}

}  // namespace

Parent::Parent() {
    registerOnce(procedure);
    current_ = this;
    window_ = win::CreateWindowExA(0, className, "Parent", win::WS_OVERLAPPEDWINDOW, 40, 40, 640,
                                   480, nullptr, nullptr, win::GetModuleHandleA(nullptr), nullptr);
    win::ShowWindow(window_, win::SW_SHOW);
    pump();
}

Parent::~Parent() {
    win::DestroyWindow(window_);
    pump();
    current_ = nullptr;
}

win::HWND Parent::add(const char* name, win::DWORD style, const win::RECT& place,
                      const char* text) {
    win::HWND made =
        win::CreateWindowExA(0, name, text, win::WS_CHILD | win::WS_VISIBLE | style, place.left,
                             place.top, place.right - place.left, place.bottom - place.top, window_,
                             nullptr, win::GetModuleHandleA(nullptr), nullptr);
    pump();
    takeCommands();
    takeNotices();
    return made;
}

std::vector<win::WORD> Parent::takeCommands() {
    return std::exchange(commands_, {});
}

std::vector<Notice> Parent::takeNotices() {
    return std::exchange(notices_, {});
}

void Parent::keepNotice(win::LPARAM header) {
    Notice kept;
    kept.code = reinterpret_cast<const win::NMHDR*>(header)->code;
    switch (kept.code) {
        case win::LVN_ITEMCHANGED:
        case win::LVN_COLUMNCLICK: {
            const auto& told = *reinterpret_cast<const win::NMLISTVIEW*>(header);
            kept = {kept.code,      told.iItem,    told.iSubItem, told.uNewState,
                    told.uOldState, told.uChanged, told.lParam};
            break;
        }
        case win::NM_CLICK:
        case win::NM_DBLCLK:
        case win::NM_RCLICK:
        case win::NM_RDBLCLK: {
            char name[32] = "";
            win::GetClassNameA(reinterpret_cast<const win::NMHDR*>(header)->hwndFrom, name);
            if (name == std::string(win::WC_LISTVIEWA)) {
                const auto& told = *reinterpret_cast<const win::NMITEMACTIVATE*>(header);
                kept.item = told.iItem;
                kept.column = told.iSubItem;
                kept.param = told.lParam;
                lastPoint = told.ptAction;
            }
            if (name == std::string(win::STATUSCLASSNAMEA)) {
                const auto& told = *reinterpret_cast<const win::NMMOUSE*>(header);
                kept.item = static_cast<int>(told.dwItemSpec);
                lastPoint = told.pt;
            }
            break;
        }
        case win::TCN_SELCHANGING:
        case win::TCN_SELCHANGE: break;
        default: return;
    }
    notices_.push_back(kept);
}

win::LRESULT Parent::procedure(win::HWND window, win::UINT message, win::WPARAM wParam,
                               win::LPARAM lParam) {
    if (message == win::WM_COMMAND) current_->commands_.push_back(win::HIWORD(wParam));
    if (message == win::WM_CONTEXTMENU) ++current_->contextMenus;
    if (message == win::WM_NOTIFY) {
        current_->keepNotice(lParam);
        return current_->noticeAnswer;
    }
    return win::DefWindowProcA(window, message, wParam, lParam);
}

void pump() {
    win::MSG message{};
    while (win::PeekMessageA(&message, nullptr, 0, 0, win::PM_REMOVE)) {
        win::TranslateMessage(&message);
        win::DispatchMessageA(&message);
    }
}

void press(win::HWND window, int x, int y, MouseButton button) {
    postPress(window, x, y, button);
    pump();
}

void release(win::HWND window, int x, int y, MouseButton button) {
    postRelease(window, x, y, button);
    pump();
}

// A press may wait by itself for what the mouse does next, so the release is there
// already when it is delivered.
void click(win::HWND window, int x, int y, MouseButton button) {
    postPress(window, x, y, button);
    postRelease(window, x, y, button);
    pump();
}

void secondClick(win::HWND window, int x, int y, MouseButton button) {
    if (button == MouseButton::left)
        post(window, win::WM_LBUTTONDBLCLK, win::MK_LBUTTON, x, y);
    else
        post(window, win::WM_RBUTTONDBLCLK, win::MK_RBUTTON, x, y);
    postRelease(window, x, y, button);
    pump();
}

void pressKey(win::HWND window, int key) {
    win::SendMessageA(window, win::WM_KEYDOWN, static_cast<win::WPARAM>(key), 0);
}

void releaseKey(win::HWND window, int key) {
    win::SendMessageA(window, win::WM_KEYUP, static_cast<win::WPARAM>(key), 0);
}

void typeLetter(win::HWND window, char letter) {
    win::SendMessageA(window, win::WM_CHAR, static_cast<unsigned char>(letter), 0);
}
