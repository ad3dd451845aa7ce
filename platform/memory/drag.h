// Drag: the modal loop in which the user moves a window by its caption.
#pragma once

#include "platform/api/user32.h"

namespace win::memory {

// Moves the top-level window to where the test's user lets it go; refuses when no test
// has said where.
void dragByCaption(HWND handle);

}  // namespace win::memory
