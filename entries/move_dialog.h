// What the dialog "Move to..." does: it offers every group, the first of them chosen, and
// moves the selected entries to the one that was accepted.
#pragma once

namespace magpie {

void frmMove_Load();
void frmMove_Activate();
void frmMove_Unload();

// Raises 380 while no group is chosen, and what MoveSelected and UpdateSelectedEntry raise;
// the dialog stays up then. Does nothing while a command waits at a row, and only closes the
// dialog when the main window has gone.
void acceptCmd_Click();

}  // namespace magpie
