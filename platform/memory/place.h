// Place: where windows are on the screen, how thick their frames are, and which
// window is above which.
#pragma once

#include "platform/memory/window.h"

namespace win::memory {

inline int widthOf(const RECT& rect) {
    return rect.right - rect.left;
}
inline int heightOf(const RECT& rect) {
    return rect.bottom - rect.top;
}
inline bool contains(const RECT& rect, POINT point) {
    return point.x >= rect.left && point.x < rect.right && point.y >= rect.top &&
           point.y < rect.bottom;
}

// What the styles put between a window's rectangle and its client area, on each side, in
// pixels. A window whose styles change keeps its old frame until it is placed anew.
RECT frameForStyle(const Window& window);
RECT screenRect(const Window& window);
POINT clientOrigin(const Window& window);  // on the screen
SIZE clientSize(const Window& window);

// What SetWindowPos does, with the changes of ShowWindow among them.
struct Placing {
    HWND insertAfter = nullptr;
    RECT rect{};  // where the window is to be; used unless both SWP_NOMOVE and SWP_NOSIZE
    UINT flags = 0;
    bool stateChanged = false;  // minimised, restored: WM_SIZE even if the size is the same
};
void placeWindow(HWND handle, const Placing& placing);

// A new window joins the z-order: a child below its siblings, any other above.
void joinZOrder(Window& window);
void leaveZOrder(Window& window);
void moveInZOrder(HWND handle, HWND insertAfter);

// What DefWindowProcA does at WM_WINDOWPOSCHANGED: WM_MOVE and WM_SIZE.
void reportPlace(HWND handle, LPARAM windowPos);
// WM_SIZE and WM_MOVE with the present place.
void sendSize(HWND handle);
void sendMove(HWND handle);

}  // namespace win::memory
