// Code page tables: the upper half of each code page of one byte to a character that bookmarks are
// written in.
#pragma once

#include <array>
#include <string_view>

namespace magpie {

struct CodePageTable {
    unsigned number;                // as Windows numbers it
    std::string_view labels;        // its names, letters and digits only, a blank between them
    std::u16string_view upperHalf;  // the characters of 80 to FF; U+FFFD where there is none
};

extern const std::array<CodePageTable, 34> codePageTables;  // in order of number

}  // namespace magpie
