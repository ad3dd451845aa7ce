// frmMove: the dialog "Move to...", which asks for the group that the selected entries shall
// belong to.
#pragma once

#include "platform/controls/basic_controls.h"
#include "platform/controls/combo_box.h"
#include "platform/controls/form.h"

namespace magpie {

struct MoveForm : Form {
    MoveForm();

    ComboBox Combo1;   // the groups, sorted; the item data is the group's number
    Button acceptCmd;  // "Accept"; there is no other way out but the frame
};

inline MoveForm frmMove;

// The routines behind the form's events. Once, before the form loads.
void wireFrmMove();

// Builds the form's controls; runs at each load.
void makeFrmMove();

}  // namespace magpie
