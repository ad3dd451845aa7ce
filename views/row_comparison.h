// Row comparison: the orders that a column's text does not have as text. By rating, by a date,
// by a count: greatest first.
#pragma once

#include "platform/api/types.h"
#include "platform/controls/list_view.h"

namespace magpie {

// What the list asks for the upper and the lower of two rows, named by their item parameters;
// `lParamSort` is the list's window handle. With a the key of the upper row and b that of the
// lower one: 0 if a > b, which leaves the two alone; 1 if a = b and 2 if a < b, either of which
// puts the lower row first. While `sortReversed`, 0 if a < b and 2 if a > b.
//
// The keys are read from the row's texts, of which 32 bytes count. A row that is not there has
// the texts of an empty one. A count that is no number, or none of 32 bits, ends the comparison
// with 0.
win::INT compareLastVisited(win::LPARAM lParam1, win::LPARAM lParam2, win::LPARAM lParamSort);
win::INT compareCreated(win::LPARAM lParam1, win::LPARAM lParam2, win::LPARAM lParamSort);
win::INT compareVisited(win::LPARAM lParam1, win::LPARAM lParam2, win::LPARAM lParamSort);
win::INT compareRated(win::LPARAM lParam1, win::LPARAM lParam2, win::LPARAM lParamSort);

// Rearranges a list's rows once by each of these, with every row's key read only once.
// `sortByVisited` raises 13 or 6, with the rows as they were, for a count that cannot be read.
void sortByLastVisited(ListView& list);
void sortByCreated(ListView& list);
void sortByVisited(ListView& list);
void sortByRated(ListView& list);

}  // namespace magpie
