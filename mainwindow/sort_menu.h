// The menu of the button "F": by what the record list is sorted, and "List All".
#pragma once

namespace magpie {

// Brings the menu's items to their design.
void designSortMenu();

// Pops `mnuSort` up: the right button at the mouse pointer, the keys below the button.
void Command5_MouseUp(int button, int shift, double x, double y);
void Command5_MenuKey();

}  // namespace magpie
