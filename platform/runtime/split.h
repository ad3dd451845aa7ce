// Split: a text as the parts between its separators. The parts are views into the text and live
// as long as it does.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

namespace magpie {

// The parts of the text between separator bytes, matched exactly, as many as there are. Empty
// text has no parts at all; a text without a separator is one part; a separator at the end has
// an empty part behind it.
[[nodiscard]] std::vector<std::string_view> split(std::string_view text, char separator);

// The same without allocating: stores the first parts.size() parts, leaves what is beyond the
// last one untouched, and answers how many parts the text has, stored or not.
std::size_t splitInto(std::span<std::string_view> parts, std::string_view text, char separator);

// The text without the spaces at both ends. Tabs and line ends are not spaces.
[[nodiscard]] std::string_view trimBlanks(std::string_view text);

}  // namespace magpie
