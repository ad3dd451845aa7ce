// The status bar's panes, and which menu items can be used.
#pragma once

namespace magpie {

// Writes the counts of rows and records, then updates the menus.
void UpdatePanel();

// Recomputes Enabled and Visible of the menu items from the store, the lists and what
// holds the interface.
void UpdateMenus();

}  // namespace magpie
