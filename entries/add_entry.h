// Adding an entry: from the page on show in the browser, by hand, or from a dropped text.
#pragma once

#include <string>

namespace magpie {

// The Add sub-menu: 0 "From Browser", 1 "New Entry". Does nothing while something
// holds the interface.
void mnuAddEntry_Click(int Index);

// Shows the dialog for a new entry beside the main window instead of over it. No command
// leads here.
void mnuNew_Click();

// Adds an entry named "<Quick Add>" with this address, taken as it is, to the group in
// view and to the list, whatever its filter says. Does nothing while there is no group.
// Raises 91 or 380 when no group is selected, with nothing added, and 6 when the store is
// full; the list has a row without an entry then.
void QuickAdd(const std::string& url);

}  // namespace magpie
