// The main window's menu of "<<" and "Menu".
#pragma once

namespace magpie {

// Brings the menu's items to their design.
void designMainMenu();

// Brings the menu up to date and pops `mnuList(1)` up at the mouse pointer.
void popUpMainMenu();

void mnuSettings_Click(int Index);  // 0 loads the settings, any other saves them
void mnuAbout_Click();
void mnuHelp_Click();

}  // namespace magpie
