// Stack line: one line of a stack file. An entry line is seven fields with a separator byte
// between them, a group line is "+" and the group's name, and any other line means nothing.
// Nothing is escaped: a name or address that holds the separator or a line end makes lines that
// read back as something else.
#pragma once

#include <string>
#include <string_view>

#include "store/index_list.h"
#include "store/records.h"

namespace magpie {

inline constexpr char stackSeparator = '\x05';

// Takes a line, without its end, into the store: a group line as a new group, of whose name a
// second "+" and what follows are cut; an entry line as a new record of the newest group, or of
// -1 where there is none yet. An entry line that has not all seven fields, or more, was created
// now and never visited.
//
// A failure leaves what was done up to it: Failure 6, without a record, from a full collection;
// Failure 13 or 6 from a field that spells no number or one too large, with the record in the
// store and this field and those behind it at zero.
void ParseStackLine(std::string_view line);

// Append the line, CR LF included, to a text. An entry whose date has no spelling raises Failure
// 13 (GetHexDate) and appends nothing.
void appendGroupLine(std::string& text, const IDXEntry& group);
void appendEntryLine(std::string& text, const URLData& record);

}  // namespace magpie
