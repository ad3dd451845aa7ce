// Editing an entry: the one selected in the record list in view.
#pragma once

namespace magpie {

// Opens the dialog on the list's selected item. Does nothing while something holds the
// interface, or in an empty list.
void mnuEdit_Click();

}  // namespace magpie
