// Row match: the rows of the record list in view by position, through the list's message
// interface, and the way from a row's texts back to its record. Positions count from 0.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "platform/api/types.h"
#include "store/records.h"

namespace magpie {

// Texts of one row in the order of the columns: 0 name, 1 URL, 2 rating, 3 group, 4 last
// visit, 5 created, 6 visits. Each holds at most 254 characters.
using RowTexts = std::array<std::string, 7>;

std::int32_t rowCount();
// How many rows are selected.
std::int32_t selectedCount();

// The row's LVIS_ flags under the mask; 0 for a row that is not there.
win::UINT rowState(std::int32_t row, win::UINT mask);
void setRowState(std::int32_t row, win::UINT state, win::UINT mask);
// The first row from `row` on whose state has one of the flags of the mask; the row count if
// none has.
std::int32_t nextRowWith(std::int32_t row, win::UINT mask);
// A row that no selected one stands above, found without asking many: the one with the focus
// mark if it alone is selected, else the first.
std::int32_t selectionStart();
// The row that a selection by mouse or keys began with; -1 before one.
std::int32_t selectionMark();

// One column's text, cut off behind 254 characters; empty for a row that is not there.
void readRowText(std::string& text, std::int32_t row, int column);
std::string rowText(std::int32_t row, int column);
void readRowTexts(RowTexts& texts, std::int32_t row);
void setRowText(std::int32_t row, int column, const std::string& text);
// The rows behind it move up by one.
void deleteRow(std::int32_t row);

// Whether the record would give these texts; its visits and its ID take no part, so that
// records alike in all else are not told apart. Raises 9 for a record whose group or
// rating does not exist, 5 for one with a date outside the calendar and 13 for a last visit
// that is no date, each only once the comparisons before it have come out equal.
[[nodiscard]] bool rowIsRecord(const RowTexts& texts, const URLData& record);

// The name of the record's rating; raises 9 where there is none.
const std::string& ratingName(std::size_t rating);

// The first record in collection order that would give these texts, `from` on if that is given;
// null if none would. Raises what rowIsRecord raises for a record before it.
[[nodiscard]] URLData* recordOfRow(const RowTexts& texts, URLData* from = nullptr);

// Cuts the selection down to the rows that show the record of the list's selected item,
// or to none with `removeAll`. Answers the last row that stays selected, 0 if none does.
// Raises 91 for an empty list and 5 when the item's record has gone, with the selection as
// it was.
std::int32_t singleSelect(bool removeAll);

}  // namespace magpie
