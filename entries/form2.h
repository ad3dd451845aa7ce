// Form2: the dialog "URL Information" for a single entry, a new one or one under edit. Two
// pages under a tab strip: what the user writes, and what the program keeps count of.
#pragma once

#include <string>

#include "platform/controls/basic_controls.h"
#include "platform/controls/combo_box.h"
#include "platform/controls/control_array.h"
#include "platform/controls/form.h"
#include "platform/controls/tab_strip.h"
#include "platform/controls/text_box.h"

namespace magpie {

struct InformationForm : Form {
    InformationForm();

    ControlArray<magpie::Frame, 0, 1> Frame;  // pages: "Quick Edit", "Extended"
    ControlArray<Label, 0, 2> Label1;         // "Name:", "URL:", "Rating:"
    ControlArray<TextBox, 0, 1> Text1;        // name, address
    ControlArray<ComboBox, 0, 1> Combo1;      // rating, row by row; group, by item data
    Label Label5;                             // "Group:"
    ControlArray<Label, 0, 2> Label2;         // "Created:", "Last Accessed:", "Times Accessed:"
    ControlArray<Label, 0, 2> Label3;         // their values; empty for a new entry
    Button Command1;                          // "Accept"
    Button Command2;                          // "Cancel"
    magpie::TabStrip TabStrip;

    std::string toEdit;  // key of the record under edit
};

inline InformationForm Form2;

// The routines behind the form's events. Once, before the form loads.
void wireForm2();

// Builds the form's controls; runs at each load.
void makeForm2();

}  // namespace magpie
