// The menu of the Group List: new, rename, remove.
#pragma once

#include "platform/api/types.h"

namespace magpie {

// Brings the menu's items to their design.
void designGroupMenu();

// Pops `mnuIPop` up, at the mouse pointer or at a place in pixels of the screen. The
// caller brings the items up to date.
void popUpGroupMenu();
void popUpGroupMenu(win::POINT at);

}  // namespace magpie
