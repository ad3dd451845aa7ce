// Find: looks for a text in the titles of the rows in view and moves the selection there.
// The rows are searched and not the store: what a mask keeps out of the list is not found.
#pragma once

#include <cstdint>
#include <string>

namespace magpie {

// The Find sub-menu: 0 opens the dialog, 1 finds the last text again down the list, 2 up
// the list. Does nothing while the list in view has no rows.
void mnuFind_Click(int Index);

// Looks for `text`, a pattern that may stand anywhere in a title, from the row behind the
// selected item on: down the list with `direction` 0, up with 1. Of several selected rows
// only the item's stays. The row found takes the selection and is not scrolled into view;
// at the end of the list nothing happens. Does nothing without a text or a selected row.
// Raises 93 for an invalid pattern, with the selection cut down already.
void findRow(const std::string& text, std::uint8_t direction);

void Find_Load();
void Find_Activate();
void Find_Unload();
void findNext_Click();
void findCancel_Click();

}  // namespace magpie
