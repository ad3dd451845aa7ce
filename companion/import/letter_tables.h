// Letter tables: of which letter and mark a letter is made, and what a character is written as
// where it is not to be had.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace magpie {

struct ComposedLetter {
    char16_t letter;
    char16_t base;
    char16_t mark;
};

struct AlikeText {
    char16_t character;
    std::u16string_view text;
};

extern const std::array<ComposedLetter, 840> composedLetters;  // in order of letter
extern const std::array<std::uint16_t, 840> composedByParts;   // places in it, by base and mark
extern const std::array<AlikeText, 614> alikeTexts;            // in order of character

}  // namespace magpie
