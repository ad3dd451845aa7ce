// Letter case: which byte is the capital of which in Western European ANSI text (code page
// 1252). The table is fixed, so that lists sort and masks match the same under every regional
// setting.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace magpie {

// For each byte its capital, or the byte itself where it has none: a to z, the accented letters
// E0 to FE (F7 is the division sign), and 9A, 9C, 9E, FF, whose capitals stand below A0. The
// sharp s and the other small letters without a capital in the code page stay.
inline constexpr std::array<unsigned char, 256> capitals = [] {
    std::array<unsigned char, 256> table{};
    for (unsigned byte = 0; byte < table.size(); ++byte) {
        const bool ascii = byte >= 'a' && byte <= 'z';
        const bool accented = byte >= 0xE0 && byte <= 0xFE && byte != 0xF7;
        table[byte] = static_cast<unsigned char>(ascii || accented ? byte - 0x20 : byte);
    }
    table[0x9A] = 0x8A;
    table[0x9C] = 0x8C;
    table[0x9E] = 0x8E;
    table[0xFF] = 0x9F;
    return table;
}();

[[nodiscard]] constexpr char upperCase(char byte) {
    return static_cast<char>(capitals[static_cast<unsigned char>(byte)]);
}

[[nodiscard]] std::string upperCase(std::string_view text);

// The same into a string that keeps its memory from call to call; `into` must not be the text.
void upperCaseInto(std::string& into, std::string_view text);

// Orders the texts byte by byte, unsigned, as their capitals; a text that is the beginning of
// the other comes first. Answers below 0, 0 or above 0.
[[nodiscard]] int compareIgnoringCase(std::string_view a, std::string_view b);

[[nodiscard]] bool equalIgnoringCase(std::string_view a, std::string_view b);

}  // namespace magpie
