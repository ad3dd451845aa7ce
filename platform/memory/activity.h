// Activity: which window is active, has the focus, holds the mouse.
#pragma once

#include "platform/memory/window.h"

namespace win::memory {

// Makes a top-level window (or none) the active one, with everything that the windows
// concerned are told. `byMouse` marks WM_ACTIVATE as a click's.
void activate(HWND handle, bool byMouse);

// Hands the activity of a window that goes to its owner or the next window.
void activateOther(HWND going);

// Takes focus and activity away from a window that was hidden.
void leaveHidden(HWND handle);

// WM_KILLFOCUS and WM_SETFOCUS.
void moveFocus(HWND handle);

}  // namespace win::memory
