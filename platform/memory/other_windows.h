// OtherWindows: the top-level windows of other programs, and which of them is in the
// foreground. How they stand to the program's own windows is not kept: each program's are in
// an order of their own, and the others' come first.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/api/user32.h"

namespace win::memory {

struct OtherWindow {
    HWND handle = nullptr;
    std::string className;
    std::string title;
    std::function<void(int virtualKey, bool down)> onKey;  // may be empty
};

// Topmost first.
std::vector<OtherWindow>& otherWindows();

// Null for a window that is not another program's, or has gone.
OtherWindow* otherWindow(HWND handle);

// Whether the handle is, or was, that of another program's window.
bool isOthers(HWND handle);

// The other program's window in the foreground, or null.
HWND& otherForeground();

HWND newOtherHandle();

}  // namespace win::memory
