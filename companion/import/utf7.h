// UTF-7 as it stands in shortcut files: "+", the UTF-16 of some characters in base 64, "-". What
// writes these files is not strict, so neither is the reader: a "+" that begins nothing readable
// is a "+", and "," may stand for "/" as in names of mail folders.
#pragma once

#include <string>
#include <string_view>

namespace magpie {

// The text as UTF-8, bytes above 7F as they are.
[[nodiscard]] std::string decodeUtf7(std::string_view text);

}  // namespace magpie
