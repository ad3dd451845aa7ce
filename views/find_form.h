// Find: the dialog that asks for a text to look for in the titles of the list in view.
#pragma once

#include "platform/controls/basic_controls.h"
#include "platform/controls/combo_box.h"
#include "platform/controls/form.h"
#include "platform/controls/text_box.h"

namespace magpie {

struct FindForm : Form {
    FindForm();

    Label Label1;
    TextBox Text1;
    Label Label2;
    ComboBox Combo1;  // rows: "Up", "Down"
    Button Command1;  // "Find Next"
    Button Command2;  // "Cancel"
};

inline FindForm Find;

// The routines behind the form's events. Once, before the form loads.
void wireFind();

// Builds the form's controls; runs at each load.
void makeFind();

}  // namespace magpie
