// Shifted Japanese (ISO-2022-JP): bytes of seven bits, in which an escape says whether what comes
// is ASCII or pairs for letters. Not every Windows knows it.
#pragma once

#include <string>
#include <string_view>

namespace magpie {

// Whether a text without any other mark of its charset is such a one.
[[nodiscard]] bool hasJapaneseShift(std::string_view bytes);

// The same letters in Shift_JIS, in which no part of one is a sign of HTML.
[[nodiscard]] std::string shiftJisOf(std::string_view bytes);

}  // namespace magpie
