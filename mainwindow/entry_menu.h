// The menu of the record lists: add, send, rate, edit, move, find, remove.
#pragma once

#include "platform/api/types.h"

namespace magpie {

// Brings the menu's items to their design.
void designEntryMenu();

// Pops `mnuPopup` up, at the mouse pointer or at a place in pixels of the screen. The
// caller brings the items up to date.
void popUpEntryMenu();
void popUpEntryMenu(win::POINT at);

// Runs the item whose key is Ctrl and this letter. False when the menu has no such key, or
// its item cannot be chosen; the character of the key then goes where the focus is.
bool entryMenuShortcut(char letter);

}  // namespace magpie
