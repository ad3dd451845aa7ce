// Record key: from the tag of a list row to the key of its record.
#pragma once

#include <string>
#include <string_view>

namespace magpie {

// The tag printed with "00000": a number as at least five digits, rounded to a whole one; a text
// that is no number stays as it is, and so is no key that the collection knows.
[[nodiscard]] std::string recordKey(std::string_view tag);

}  // namespace magpie
