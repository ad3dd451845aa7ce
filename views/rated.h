// Rated: the dialog "Mask Filters", which edits the masks by rating, visits and last
// visit from the Standard screen.
#pragma once

#include "platform/controls/basic_controls.h"
#include "platform/controls/combo_box.h"
#include "platform/controls/control_array.h"
#include "platform/controls/form.h"
#include "platform/controls/list_view.h"
#include "platform/controls/text_box.h"

namespace magpie {

struct RatedForm : Form {
    RatedForm();

    ControlArray<ListView, 0, 0> ListView1;  // one row with a tick for each rating
    ControlArray<Button, 0, 1> Command2;     // "CLR", "SET"
    ControlArray<Frame, 0, 2> Command1;      // headings: 2 of the visits, 0 of the last visit
    ControlArray<ComboBox, 0, 2> Combo3;     // mode of the visits; mode and unit of the last
    ControlArray<TextBox, 0, 1> Text2;       // their numbers
    ControlArray<Label, 0, 0> Label5;
    Button cmdFilter;
    Button cmdCancel;
};

inline RatedForm Rated;

// The routines behind the form's events. Once, before the form loads.
void wireRated();

// Builds the form's controls; runs at each load.
void makeRated();

}  // namespace magpie
