// "List All": every group's records in the list in view. Two menus carry its mark.
#pragma once

namespace magpie {

// Ticks or unticks "List All" in both menus; the list is the caller's affair.
void setListAll(bool ticked);

void mnuListAll_Click();
void mnuListAll2_Click();

}  // namespace magpie
