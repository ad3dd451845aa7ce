// Tab order: the controls in a window that the Tab key reaches, in their order. What
// stands in a container is reached at the container's place.
#pragma once

#include "platform/api/types.h"

namespace magpie {

// Whether the Tab key stops at this window, as it and what it stands in now are. False for
// one that has gone.
bool takesFocus(win::HWND window);

// The first stop inside; null for none.
win::HWND firstStop(win::HWND container);

// The first stop behind `from`, which need not be one, and on from the beginning; null for
// none.
win::HWND stopBehind(win::HWND container, win::HWND from);

// Gives the keyboard to a stop as the Tab key does: a text is entered with all of it marked.
void enterStop(win::HWND stop);

}  // namespace magpie
