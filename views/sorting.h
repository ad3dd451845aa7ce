// Sorting of the record list in view: by its headings, and by the menu of "F".
#pragma once

namespace magpie {

// A click on a heading, counted from 1, of any of the lists. Texts are put into the sort that
// stays in force; ratings, dates and counts are put in order once, greatest first.
void columnHeading_Click(int heading);

// Sets the column of the sort that stays in force, and sets that alone: while there is no such
// sort, nothing is to be seen of it. 0 Title, 1 Rated, 2 Times Visited, descending, 3 Last
// Visited Date, 5 URL, 6 Creation Date; 7 Catagory sets no column.
void mnuSortz_Click(int Index);

}  // namespace magpie
