// The tray menu, which the icon and the pad share.
#pragma once

namespace magpie {

// Brings the menu's items to their design: "Flush" is grey.
void designTrayMenu();

// Pops `mSysTray` up at the mouse pointer.
void popUpTrayMenu();

void mMagpie_Click();      // shows the main window in the state it is in
void mPopRestore_Click();  // shows it in its normal state
void mHelp_Click();
void mContact_Click();
void mWebSite_Click();
void mFlush_Click();  // unloads the main window; the pad and the icon live on
void mAbout_Click();
void mPopExit_Click();  // ends the program

}  // namespace magpie
