// Mask filters: the masks by rating, visits and last visit as the dialog `Rated` edits
// them. It does not know of the mask by age and of the text mask, which stay in force.
#pragma once

namespace magpie {

// "F" of the Standard screen: opens the dialog.
void Command5_Click(int Index);

void Rated_Load();
void Rated_Unload();
void tickRatings_Click(int Index);  // 0 unticks every rating, 1 ticks every one

// Takes the masks over and refreshes the list behind the dialog, which stays open. Ticks
// and modes stand in order before the numbers: raises 13 for a text that is no number and
// 6 for one outside 16 bits, with what comes before it taken over and no refresh.
void cmdFilter_Click();
void cmdCancel_Click();  // closes the dialog and undoes nothing

}  // namespace magpie
