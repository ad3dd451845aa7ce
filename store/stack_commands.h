// Stack commands: the menu items that load and save the store.
#pragma once

namespace magpie {

void mnuOpen_Click(int Index);   // 0 the default file, 1 a chosen one
void mnuMerge_Click(int Index);  // 0 a chosen stack file, 1 favorites, 2 a bookmark file
void mnuSave_Click(int Index);   // 0 the default file, 1 a chosen one
void mnuLoadAll_Click();         // the default file and the settings
void mnuSaveAll_Click();         // the settings and the default file

}  // namespace magpie
