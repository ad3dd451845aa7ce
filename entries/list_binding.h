// List binding: a row of a record list holds a copy of its record's fields as texts, and the
// record's ID as its tag. Rows are written from records, never the other way round.
#pragma once

#include <cstdint>

#include "platform/controls/list_view.h"
#include "store/records.h"

namespace magpie {

// Writes all fields of a record into its row: tag, text, then the six sub-items. Raises 9
// for a record whose rating or group does not exist, with what comes before it written.
void Flannel(const ListRow& row, const URLData& record);

// Brings one row of the list in view back in step with its record and then updates the
// menus; in an empty list only the latter. -1 means the list's selected item, any other
// number the first row with that number as its tag; no row is no failure. Raises 5 when
// there is no such record.
void UpdateSelectedEntry(std::int32_t itemTag);

}  // namespace magpie
