#include "tests/conformance/log_window.h"

#include <algorithm>
#include <set>
#include <utility>

#include "platform/api/kernel32.h"

using namespace win;

namespace {

constexpr const char* className = "LogWindow";

struct Log {
    std::set<UINT> wanted;
    std::vector<std::string> lines;
};

Log& theLog() {
    static Log log;
    return log;
}

LogWindow* underConstruction = nullptr;

std::string extent(LPARAM size) {
    return std::to_string(xOf(size)) + "x" + std::to_string(yOf(size));
}

std::string at(LPARAM point) {
    return std::to_string(xOf(point)) + "," + std::to_string(yOf(point));
}

std::string number(std::uintptr_t value) {
    return std::to_string(value);
}

}  // namespace

LogWindow::LogWindow(std::string name) : LogWindow(std::move(name), Look{}) {}

LogWindow::LogWindow(std::string name, const Look& look) : name_(std::move(name)) {
    static const ATOM registered = [] {
        WNDCLASSEXA definition{};
        definition.cbSize = sizeof definition;
        definition.style = CS_DBLCLKS;
        definition.lpfnWndProc = procedure;
        definition.hInstance = GetModuleHandleA(nullptr);
        definition.hCursor = LoadCursorA(nullptr, resourceName(IDC_ARROW_NUMBER));
        definition.lpszClassName = className;
        return RegisterClassExA(&definition);
    }();
    (void)registered;
    underConstruction = this;
    POINT corner{look.place.left, look.place.top};
    SIZE size{look.place.right - look.place.left, look.place.bottom - look.place.top};
    if (look.defaultPlace) {
        corner = {CW_USEDEFAULT, CW_USEDEFAULT};
        size = {CW_USEDEFAULT, CW_USEDEFAULT};
    }
    window_ = CreateWindowExA(look.exStyle, className, name_.c_str(), look.style, corner.x,
                              corner.y, size.cx, size.cy, look.parent,
                              reinterpret_cast<HMENU>(look.id), GetModuleHandleA(nullptr), nullptr);
    underConstruction = nullptr;
}

LogWindow::~LogWindow() {
    answer = nullptr;
    if (!IsWindow(window_)) return;
    DestroyWindow(window_);
    desk::pump();
}

RECT LogWindow::rect() const {
    RECT rect{};
    GetWindowRect(window_, &rect);
    return rect;
}

RECT LogWindow::client() const {
    RECT rect{};
    GetClientRect(window_, &rect);
    return rect;
}

bool LogWindow::topmost() const {
    return (GetWindowLongPtrA(window_, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
}

LRESULT LogWindow::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
    if (underConstruction) {
        underConstruction->window_ = window;
        SetWindowLongPtrA(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(underConstruction));
        underConstruction = nullptr;
    }
    auto* self = reinterpret_cast<LogWindow*>(GetWindowLongPtrA(window, GWLP_USERDATA));
    if (theLog().wanted.contains(message))
        theLog().lines.push_back(self->name_ + " " + desk::words(message, wParam, lParam));
    if (self->answer) {
        if (auto given = self->answer(message, wParam, lParam)) return *given;
    }
    return DefWindowProcA(window, message, wParam, lParam);
}

void listenFor(std::initializer_list<UINT> messages) {
    desk::pump();
    theLog().wanted = messages;
    theLog().lines.clear();
}

std::vector<std::string> heard() {
    desk::pump();
    return heardSoFar();
}

std::vector<std::string> heardSoFar() {
    return std::exchange(theLog().lines, {});
}

namespace desk {

void pump(HWND dialog) {
    MSG message{};
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (dialog && IsDialogMessageA(dialog, &message)) continue;
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
}

std::string words(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_CREATE: return "create";
        case WM_DESTROY: return "destroy";
        case WM_NCDESTROY: return "ncdestroy";
        case WM_SIZE: return "size " + number(wParam) + " " + extent(lParam);
        case WM_MOVE: return "move " + at(lParam);
        case WM_SHOWWINDOW: return (wParam ? "show " : "hide ") + std::to_string(lParam);
        case WM_WINDOWPOSCHANGED: return "placed";
        case WM_ACTIVATE: return "activate " + number(LOWORD(wParam));
        case WM_ACTIVATEAPP: return wParam ? "application on" : "application off";
        case WM_SETFOCUS: return "focus";
        case WM_KILLFOCUS: return "blur";
        case WM_ENABLE: return wParam ? "enable" : "disable";
        case WM_CLOSE: return "close";
        case WM_PAINT: return "paint";
        case WM_TIMER: return "timer " + number(wParam);
        case WM_COMMAND: return "command " + number(LOWORD(wParam)) + " " + number(HIWORD(wParam));
        case WM_CAPTURECHANGED: return "capture lost";
        case WM_CONTEXTMENU: return "menu " + at(lParam);
        case WM_SETCURSOR: return "cursor";
        case WM_MOUSEMOVE: return "moved " + number(wParam) + " " + at(lParam);
        case WM_LBUTTONDOWN: return "left down " + number(wParam) + " " + at(lParam);
        case WM_LBUTTONUP: return "left up " + number(wParam) + " " + at(lParam);
        case WM_LBUTTONDBLCLK: return "left double " + number(wParam) + " " + at(lParam);
        case WM_RBUTTONDOWN: return "right down " + number(wParam) + " " + at(lParam);
        case WM_RBUTTONUP: return "right up " + number(wParam) + " " + at(lParam);
        case WM_MBUTTONDOWN: return "middle down " + number(wParam) + " " + at(lParam);
        case WM_MBUTTONUP: return "middle up " + number(wParam) + " " + at(lParam);
        case WM_MOUSEWHEEL: return "wheel " + std::to_string(yOf(static_cast<LPARAM>(wParam)));
        case WM_NCLBUTTONDOWN: return "caption down " + number(wParam);
        case WM_EXITSIZEMOVE: return "drag over";
        case WM_KEYDOWN: return "key down " + number(wParam);
        case WM_KEYUP: return "key up " + number(wParam);
        case WM_CHAR: return "char " + number(wParam);
        case WM_SYSKEYDOWN: return "system key down " + number(wParam);
        case WM_SYSKEYUP: return "system key up " + number(wParam);
        case WM_SYSCHAR: return "system char " + number(wParam);
        case WM_SYSCOMMAND: return "system command " + number(wParam);
        default: return "message " + number(message);
    }
}

std::vector<int> order(std::initializer_list<HWND> windows) {
    std::vector<int> found;
    HWND top = *windows.begin();
    for (HWND above = top; above; above = GetWindow(above, GW_HWNDPREV)) top = above;
    for (HWND each = top; each; each = GetWindow(each, GW_HWNDNEXT)) {
        const auto* position = std::find(windows.begin(), windows.end(), each);
        if (position != windows.end())
            found.push_back(static_cast<int>(position - windows.begin()));
    }
    return found;
}

}  // namespace desk
