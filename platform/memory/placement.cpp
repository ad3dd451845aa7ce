// Rectangles and SetWindowPos.
#include "platform/memory/activity.h"
#include "platform/memory/desktop.h"
#include "platform/memory/faults.h"
#include "platform/memory/place.h"
#include "platform/memory/refuse.h"

namespace win::memory {
namespace {

// The platform's WINDOWPOS, with which WM_WINDOWPOSCHANGED comes. Its last flags are
// not in the list of constants, because only DefWindowProcA reads them.
struct WindowPos {
    HWND hwnd;
    HWND insertAfter;
    int x, y, width, height;
    UINT flags;
};
constexpr UINT noClientSize = 0x0800;
constexpr UINT noClientMove = 0x1000;
constexpr UINT stateChanged = 0x8000;
constexpr UINT nothingChanged =
    SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | noClientSize | noClientMove;
constexpr UINT changes = nothingChanged | SWP_FRAMECHANGED | SWP_SHOWWINDOW | SWP_HIDEWINDOW;

constexpr int sizingEdge = 4;
constexpr int dialogEdge = 3;
constexpr int clientEdge = 2;
constexpr int caption = 19;
constexpr int smallCaption = 16;

// Leaves of the wanted flags what is to change.
UINT effectiveFlags(const Window& window, const Placing& placing) {
    UINT flags = placing.flags;
    if (placing.rect.left == window.rect.left && placing.rect.top == window.rect.top)
        flags |= SWP_NOMOVE;
    if (widthOf(placing.rect) == widthOf(window.rect) &&
        heightOf(placing.rect) == heightOf(window.rect))
        flags |= SWP_NOSIZE;
    if (window.style & WS_VISIBLE) {
        flags &= ~SWP_SHOWWINDOW;
    } else {
        flags &= ~SWP_HIDEWINDOW;
    }
    return flags;
}

// A window that is activated comes to the top, unless it changes its level.
bool comesToTop(const Window& window, const Placing& placing) {
    if (isChild(window) || placing.flags & (SWP_NOACTIVATE | SWP_HIDEWINDOW)) return false;
    return placing.flags & SWP_NOZORDER ||
           (placing.insertAfter != HWND_TOPMOST && placing.insertAfter != HWND_NOTOPMOST);
}

void moveLevel(HWND handle, const Placing& placing, UINT& flags) {
    Window& window = windowOf(handle);
    bool toTop = comesToTop(window, placing);
    if (!toTop && flags & SWP_NOZORDER) return;
    auto& list = isChild(window) ? windowOf(window.parent).children : desktop().zOrder;
    std::vector<HWND> before = list;
    moveInZOrder(handle, toTop ? HWND_TOP : placing.insertAfter);
    flags = before == list ? flags | SWP_NOZORDER : flags & ~SWP_NOZORDER;
}

}  // namespace

RECT frameForStyle(const Window& window) {
    int edge = 0;
    bool hasCaption = (window.style & WS_CAPTION) == WS_CAPTION;
    if (window.style & WS_THICKFRAME) {
        edge = sizingEdge;
    } else if (hasCaption || window.exStyle & WS_EX_DLGMODALFRAME) {
        edge = dialogEdge;
    } else if (window.style & WS_BORDER) {
        edge = 1;
    }
    if (window.exStyle & WS_EX_CLIENTEDGE) edge += clientEdge;
    RECT frame{edge, edge, edge, edge};
    if (hasCaption) frame.top += window.exStyle & WS_EX_TOOLWINDOW ? smallCaption : caption;
    return frame;
}

RECT screenRect(const Window& window) {
    if (!isChild(window)) return window.rect;
    POINT origin = clientOrigin(windowOf(window.parent));
    return {window.rect.left + origin.x, window.rect.top + origin.y, window.rect.right + origin.x,
            window.rect.bottom + origin.y};
}

POINT clientOrigin(const Window& window) {
    RECT rect = screenRect(window);
    const RECT& frame = window.frame;
    return {rect.left + frame.left, rect.top + frame.top};
}

SIZE clientSize(const Window& window) {
    if (window.style & WS_MINIMIZE) return {0, 0};
    const RECT& frame = window.frame;
    return {std::max(0, widthOf(window.rect) - frame.left - frame.right),
            std::max(0, heightOf(window.rect) - frame.top - frame.bottom)};
}

void sendSize(HWND handle) {
    Window& window = windowOf(handle);
    SIZE size = clientSize(window);
    int how = window.style & WS_MINIMIZE   ? SIZE_MINIMIZED
              : window.style & WS_MAXIMIZE ? SIZE_MAXIMIZED
                                           : SIZE_RESTORED;
    SendMessageA(handle, WM_SIZE, static_cast<WPARAM>(how), makeLParam(size.cx, size.cy));
}

void sendMove(HWND handle) {
    const Window& window = windowOf(handle);
    const RECT& frame = window.frame;
    SendMessageA(handle, WM_MOVE, 0,
                 makeLParam(window.rect.left + frame.left, window.rect.top + frame.top));
}

void reportPlace(HWND handle, LPARAM windowPos) {
    const auto& pos = *reinterpret_cast<const WindowPos*>(windowPos);
    UINT flags = pos.flags;
    if (!(flags & noClientMove)) sendMove(handle);
    if (!(flags & noClientSize) || flags & stateChanged) sendSize(handle);
}

void placeWindow(HWND handle, const Placing& placing) {
    Window& window = windowOf(handle);
    UINT flags = effectiveFlags(window, placing);
    SIZE oldClient = clientSize(window);
    POINT oldOrigin = clientOrigin(window);
    moveLevel(handle, placing, flags);
    window.rect = placing.rect;
    if (!(flags & SWP_NOSIZE) || flags & SWP_FRAMECHANGED) window.frame = frameForStyle(window);
    if (flags & SWP_SHOWWINDOW) window.style |= WS_VISIBLE;
    if (flags & SWP_HIDEWINDOW) window.style &= ~WS_VISIBLE;
    SIZE client = clientSize(window);
    POINT origin = clientOrigin(window);
    if (client.cx == oldClient.cx && client.cy == oldClient.cy) flags |= noClientSize;
    if (origin.x == oldOrigin.x && origin.y == oldOrigin.y) flags |= noClientMove;
    if (placing.stateChanged) flags |= stateChanged;
    if (!(flags & (SWP_NOACTIVATE | SWP_HIDEWINDOW)) && !isChild(window)) activate(handle, false);
    if ((flags & changes) == nothingChanged && !placing.stateChanged) return;
    Window* still = findWindow(handle);
    if (!still) return;
    RECT rect = still->rect;
    WindowPos pos{handle,        placing.insertAfter, rect.left, rect.top,
                  widthOf(rect), heightOf(rect),      flags};
    SendMessageA(handle, WM_WINDOWPOSCHANGED, 0, reinterpret_cast<LPARAM>(&pos));
}

}  // namespace win::memory

namespace win {

using namespace memory;

BOOL SetWindowPos(HWND handle, HWND insertAfter, int x, int y, int width, int height, UINT flags) {
    constexpr UINT known = SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE |
                           SWP_FRAMECHANGED | SWP_SHOWWINDOW | SWP_HIDEWINDOW;
    if (flags & ~known) refuse("flags of SetWindowPos", flags);
    Window& window = windowOf(handle);
    if (faultIn("SetWindowPos")) return false;
    RECT rect = window.rect;
    if (!(flags & SWP_NOSIZE)) {
        rect.right = rect.left + std::max(width, 0);
        rect.bottom = rect.top + std::max(height, 0);
    }
    if (!(flags & SWP_NOMOVE)) {
        rect = {x, y, x + widthOf(rect), y + heightOf(rect)};
    }
    bool moves = (flags & (SWP_NOMOVE | SWP_NOSIZE)) != (SWP_NOMOVE | SWP_NOSIZE);
    if (moves && window.style & WS_MINIMIZE) refuse("place of a minimised window", window.text);
    placeWindow(handle, {insertAfter, rect, flags, false});
    return true;
}

BOOL GetWindowRect(HWND handle, RECT* rect) {
    *rect = screenRect(windowOf(handle));
    return true;
}

BOOL GetClientRect(HWND handle, RECT* rect) {
    SIZE size = clientSize(windowOf(handle));
    *rect = {0, 0, size.cx, size.cy};
    return true;
}

BOOL ClientToScreen(HWND handle, POINT* point) {
    POINT origin = clientOrigin(windowOf(handle));
    *point = {point->x + origin.x, point->y + origin.y};
    return true;
}

BOOL ScreenToClient(HWND handle, POINT* point) {
    POINT origin = clientOrigin(windowOf(handle));
    *point = {point->x - origin.x, point->y - origin.y};
    return true;
}

}  // namespace win
