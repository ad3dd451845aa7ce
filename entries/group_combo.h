// Group combo: a drop-down list of the groups, as the dialogs on entries have it.
#pragma once

#include "platform/controls/combo_box.h"

namespace magpie {

// Adds a row for each group, with the group's number as its item data. The combo may sort
// its rows: a row's place says nothing of the group.
void BuildCatCombo(ComboBox& catCombo);

}  // namespace magpie
