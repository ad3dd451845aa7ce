// Ways out: how the main window goes away and comes back, and how the process ends.
// Closing only hides while keepResident is set; a flush saves as the settings say,
// empties the store and unloads the window; an exit does the same and ends.
#pragma once

namespace magpie {

void Form1_QueryUnload(bool& cancel, int mode);
void Form1_Unload();
void Form3_QueryUnload(bool& cancel, int mode);
void Form3_Unload();

// Saves what the settings say to save: the stack file, then the settings.
void leaveSave();

// Empties the store and the lists and forgets the load.
void flushEverything();

// Commands of the main window
void mnuClose_Click();   // hides
void mnuFree_Click();    // flushes
void mnuEject_Click();   // empties the store, keeps the window
void mnuUnload_Click();  // ends the program

}  // namespace magpie
