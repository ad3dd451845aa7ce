// Bulk list operations: what is done at once to all selected rows of the record list in view
// and to their records. A row finds its record by its texts: of records that look alike the
// first of the collection is taken. Each operation marks the store as changed, whether or not
// there was anything to do, and stops where a record fails, with the rows before it done. While
// another one waits at a row none of them does anything.
#pragma once

#include <cstdint>

namespace magpie {

// Deletes the rows and their records. Raises 6 for more than 32,767 selected rows.
void RemoveSelected();

// Rates the records and clears the marks of their rows. With `markOnly` only the first
// selected row from the one on that the selection began with. Raises 6 for a rating that is
// no byte, and 9 for one without a name, when the first record has it already.
void RateSelected(std::int16_t Index, bool markOnly);

// Moves the records to the group with this number. While the side panel keeps to a single
// group, rows that leave the group in view are deleted and others stay as they are, the first
// one standing for all; else the rows stay with their marks cleared. Nobody is asked, whatever
// `promptUser` says. Raises what getCurrentIDX raises, and 9 for a group that does not exist,
// when the first record is in it already.
void MoveSelected(std::int32_t newCat, bool promptUser);

// Writes a shortcut file for each row and clears its mark.
void SendSelectedToFolder();

}  // namespace magpie
