// Group lookup: between the group control of the screen in view and the numbers of the groups.
// That control is the Group List on the Advanced screen and the combo on the Standard one.
#pragma once

#include <cstdint>

namespace magpie {

// The number on the row that the user is on; 0 on no screen. It has no guard: raises Failure 91
// for a Group List without rows, 380 for a combo without a selected row.
[[nodiscard]] std::int32_t getCurrentIDX();

// The same for callers that bear with none: -1 where getCurrentIDX would fail for want of a row,
// and on no screen.
[[nodiscard]] std::int16_t GetSelectedIndex();

// Moves the group control to the first row with this number, which selects it; a number that no
// row has changes nothing. A negative one stands for the group of the record selected in the list
// in view; it stays negative, and so finds nothing, where that list is empty.
void selectGroupItem(std::int16_t Index);

}  // namespace magpie
