// winproc: the hook on the main window's message stream. It takes the main window
// aside when the user moves to another application while the pad is on.
#pragma once

#include "platform/api/types.h"

namespace magpie {

// Puts the hook before the window's own procedure.
void hookMainWindow(win::HWND window);

// Takes the hook away again; does nothing while none is installed.
void unhookMainWindow(win::HWND window);

}  // namespace magpie
