// Desktop: what one session of the memory desktop holds besides its windows' own state:
// the window list, the z-order, the screen, who has the focus, the cursor.
#pragma once

#include <memory>
#include <vector>

#include "platform/memory/window.h"

namespace win::memory {

struct Desktop {
    std::vector<std::unique_ptr<Window>> windows;  // by the number in the handle; null: destroyed
    std::vector<HWND> zOrder;                      // top-level windows, topmost first
    RECT screen{0, 0, 1024, 768};
    RECT workArea{0, 0, 1024, 740};
    int dpi = 96;
    HWND focus = nullptr;
    HWND active = nullptr;
    HWND lastActive = nullptr;  // the window to come back to from another application
    HWND capture = nullptr;
    HCURSOR cursor = nullptr;
    POINT pointer{0, 0};  // pixels of the screen
};

Desktop& desktop();

// The window behind a handle, or null for a handle that is no window (any more).
Window* findWindow(HWND handle);
// A new window with a handle that no window had before.
Window& newWindow();
void forgetWindow(HWND handle);

bool isChild(const Window& window);         // has a parent, not an owner
HWND rootOf(HWND handle);                   // the top-level window it stands in
bool isInside(HWND ancestor, HWND handle);  // the window itself or anything in it
std::vector<HWND> ownedBy(HWND owner);      // directly, topmost first
bool isShown(HWND handle);                  // it and all its parents visible

}  // namespace win::memory
