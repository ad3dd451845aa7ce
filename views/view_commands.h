// What the user does to the view: picks a group of the drop-down, confirms the text mask.
#pragma once

namespace magpie {

void Combo1_Click();
void txtFilter_KeyDown(int keyCode, int shift);

}  // namespace magpie
