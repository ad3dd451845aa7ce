// Drag and drop: which windows take the texts that another program drags.
#pragma once

#include <string_view>

#include "platform/api/types.h"

namespace win::memory {

// Whether the window was registered for drops itself.
bool takesDrops(HWND window);

// The window that a drag over this point of the screen reaches: the one under it or the next
// one up that takes drops. Null when there is none, or when it is disabled.
HWND dropTargetAt(POINT at);

// Lets go a text over a window that takes drops.
void dropText(HWND window, std::string_view text);

}  // namespace win::memory
