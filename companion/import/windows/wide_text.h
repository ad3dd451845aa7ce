// Wide text: the platform's UTF-16 and the import's UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace magpie {

[[nodiscard]] std::wstring wideOf(std::string_view utf8);
[[nodiscard]] std::string utf8OfWide(std::wstring_view text);

}  // namespace magpie
