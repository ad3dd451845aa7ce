// Letter tables: of which letter and mark a letter is made, and what a character is written as
// where it is not to be had.
#pragma once

#include <array>
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

extern const std::array<ComposedLetter, 782> composedLetters;  // in order of letter
extern const std::array<AlikeText, 601> alikeTexts;            // in order of character

}  // namespace magpie
