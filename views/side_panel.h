// The side panel of the Advanced screen, with one of its three faces by `advMode`:
// 0 Index Mask, 1 Group List, 2 Filter.
#pragma once

namespace magpie {

// Brings the panel to the state of `filterAdvanced` and `advMode`; answers whether it is shown.
bool showFace();
// The same, and lets events run when it is shown.
void buildFilterScrn();

void Command3_Click(int Index);  // 0 the face before, 1 the main menu, 2 the next face
// 0 tick all groups, 1 untick them, 2 filter by them, 3 apply the filter's controls, 4 untick
// all ratings, 5 tick them.
void cmdIndex_Click(int Index);
void indexFlipBox_Click();  // shows or hides the panel

}  // namespace magpie
