// Creating and destroying windows.
#include <utility>

#include "platform/memory/activity.h"
#include "platform/memory/classes.h"
#include "platform/memory/desktop.h"
#include "platform/memory/drag_drop.h"
#include "platform/memory/faults.h"
#include "platform/memory/other_windows.h"
#include "platform/memory/place.h"
#include "platform/memory/queue.h"
#include "platform/memory/refuse.h"

namespace win::memory {
namespace {

constexpr DWORD knownExStyles = WS_EX_DLGMODALFRAME | WS_EX_TOPMOST | WS_EX_TOOLWINDOW |
                                WS_EX_CLIENTEDGE | WS_EX_CONTROLPARENT | WS_EX_APPWINDOW;

void checkStyles(const WindowClass& windowClass, DWORD style, DWORD exStyle) {
    if (exStyle & ~knownExStyles) refuse("extended style", exStyle);
    if ((style & 0xFFFF) & ~windowClass.knownStyles)
        refuse("style of a " + windowClass.name, style & 0xFFFF);
    if (style & (WS_MINIMIZE | WS_MAXIMIZE)) refuse("window created minimised or maximised", style);
    if ((style & WS_CHILD) && (style & WS_POPUP)) refuse("child that is a popup", style);
    if (style & (WS_VSCROLL | WS_HSCROLL) && !windowClass.ofSystem)
        refuse("window with scroll bars", style);
}

// What the platform adds to the styles of a window that is no child.
DWORD completedStyle(DWORD style) {
    if (style & WS_CHILD) return style;
    if (!(style & WS_POPUP)) style |= WS_CAPTION;
    return style | WS_CLIPSIBLINGS;
}

// CW_USEDEFAULT: the upper left corner and three quarters of the screen, but nothing for a
// popup or child.
RECT initialRect(const CREATESTRUCTA& create) {
    bool overlapped = !(create.style & static_cast<LONG>(WS_POPUP | WS_CHILD));
    const RECT& screen = desktop().screen;
    SIZE size{std::max(create.cx, 0), std::max(create.cy, 0)};
    if (create.cx == CW_USEDEFAULT)
        size = overlapped ? SIZE{screen.right * 3 / 4, screen.bottom * 3 / 4} : SIZE{0, 0};
    POINT corner{create.x, create.y};
    if (create.x == CW_USEDEFAULT) corner = {0, 0};
    return {corner.x, corner.y, corner.x + size.cx, corner.y + size.cy};
}

HWND ownerFor(HWND parent) {
    return parent ? rootOf(parent) : nullptr;
}

void fill(Window& window, const WindowClass& windowClass, const CREATESTRUCTA& create) {
    DWORD style = static_cast<DWORD>(create.style);
    window.className = windowClass.name;
    window.windowClass = &windowClass;
    window.procedure = windowClass.procedure;
    window.text = create.lpszName ? create.lpszName : "";
    window.style = style & ~WS_VISIBLE;
    window.exStyle = create.dwExStyle;
    window.rect = initialRect(create);
    window.frame = frameForStyle(window);
    if (style & WS_CHILD) {
        if (!create.hwndParent) refuse("child without a parent", windowClass.name);
        window.parent = create.hwndParent;
        window.id = reinterpret_cast<LONG_PTR>(create.hMenu);
    } else {
        if (create.hMenu) refuse("window with a menu bar", windowClass.name);
        window.owner = ownerFor(create.hwndParent);
    }
    window.awaitsFirstSize = !(style & (WS_CHILD | WS_POPUP));
}

void sendDestroy(HWND handle) {
    Window& window = windowOf(handle);
    window.dying = true;
    if (desktop().focus && isInside(handle, desktop().focus)) SetFocus(window.parent);
    if (desktop().active == handle) activateOther(handle);
    SendMessageA(handle, WM_DESTROY, 0, 0);
    for (HWND child : std::vector<HWND>(windowOf(handle).children)) {
        if (findWindow(child)) sendDestroy(child);
    }
}

// Children go before their parent, as WM_NCDESTROY promises.
void release(HWND handle) {
    for (HWND child : std::vector<HWND>(windowOf(handle).children)) release(child);
    SendMessageA(handle, WM_NCDESTROY, 0, 0);
    if (takesDrops(handle)) refuse("window gone while it takes drops", windowOf(handle).className);
    if (desktop().capture == handle) desktop().capture = nullptr;
    if (desktop().lastActive == handle) desktop().lastActive = nullptr;
    forgetMessagesOf(handle);
    leaveZOrder(windowOf(handle));
    forgetWindow(handle);
}

}  // namespace
}  // namespace win::memory

namespace win {

using namespace memory;

HWND CreateWindowExA(DWORD exStyle, const char* className, const char* windowName, DWORD style,
                     int x, int y, int width, int height, HWND parent, HMENU menuOrId,
                     HINSTANCE instance, void* param) {
    const WindowClass* windowClass = findClass(className);
    if (!windowClass) refuse("class of a new window", className);
    checkStyles(*windowClass, style, exStyle);
    if (faultIn("CreateWindowExA")) return nullptr;
    CREATESTRUCTA create{param,      instance,  menuOrId,
                         parent,     height,    width,
                         y,          x,         static_cast<LONG>(completedStyle(style)),
                         windowName, className, exStyle};
    Window& window = newWindow();
    HWND handle = window.handle;
    fill(window, *windowClass, create);
    create.hwndParent = window.parent ? window.parent : window.owner;
    RECT rect = window.rect;
    create.x = rect.left, create.y = rect.top;
    create.cx = widthOf(rect), create.cy = heightOf(rect);
    joinZOrder(window);
    if (SendMessageA(handle, WM_CREATE, 0, reinterpret_cast<LPARAM>(&create)) == -1)
        refuse("WM_CREATE that gives up", className);
    if (!window.awaitsFirstSize) {
        sendSize(handle);
        sendMove(handle);
    }
    if (style & WS_VISIBLE) ShowWindow(handle, SW_SHOW);
    return handle;
}

BOOL DestroyWindow(HWND handle) {
    Window& window = windowOf(handle);
    if (window.dying) refuse("window destroyed while it is being destroyed", window.className);
    if (window.style & WS_VISIBLE) {
        if (isChild(window)) {
            ShowWindow(handle, SW_HIDE);
        } else {
            UINT flags = SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_HIDEWINDOW;
            placeWindow(handle, {nullptr, window.rect, flags, false});
        }
    }
    for (HWND owned : ownedBy(handle)) {
        if (findWindow(owned)) DestroyWindow(owned);
    }
    sendDestroy(handle);
    release(handle);
    return true;
}

BOOL IsWindow(HWND handle) {
    return findWindow(handle) != nullptr || otherWindow(handle) != nullptr;
}

}  // namespace win
