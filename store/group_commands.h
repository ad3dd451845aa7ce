// Group commands: new, rename and remove, for the two screens' group controls: the combo of
// the Standard screen (menu items ...Combo) and the Group List of the Advanced one (...Group).
#pragma once

namespace magpie {

void mnuNewCombo_Click();
void mnuNewGroup_Click();

// Each works on its own screen's control. The one of the Group List does not count as a change
// of the store.
void mnuRenameCombo_Click();
void mnuRenameGroup_Click();

void mnuRemoveCombo_Click();
void mnuRemoveGroup_Click();

// Removes the group in view with all its records, those that the view hides among them; later
// groups move up by one. Asks first if `promptUser` is set and the list shows rows. Raises 91 or
// 380 when no group is selected.
void removeCurrentGroup(bool promptUser);

}  // namespace magpie
