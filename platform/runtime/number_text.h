// Number text: a text read as the number or truth value it spells, the same under every regional
// setting. Each function raises Failure 13 for a text that spells none, and Failure 6 for one
// whose number is outside the width asked for.
#pragma once

#include <cstdint>
#include <string_view>

namespace magpie {

// The number that the text spells between blanks (spaces, tabs, line ends): a sign or none,
// digits with at most one ".", at least one digit, and perhaps "e" or "E" with a whole exponent,
// signed or not. A number too small for a double is 0; one too large raises Failure 6.
//
// "&H" or "&h" and hexadecimal digits, unsigned, are the bits of a whole number: of a signed
// 16-bit one up to FFFF (&H1F is 31, &HFFFF is -1), of a signed 32-bit one up to FFFFFFFF; more
// bits raise Failure 6.
[[nodiscard]] double numberOf(std::string_view text);

// numberOf, rounded to a whole number with halves to even.
[[nodiscard]] std::uint8_t byteOf(std::string_view text);
[[nodiscard]] std::int16_t int16Of(std::string_view text);
[[nodiscard]] std::int32_t int32Of(std::string_view text);

// "True" or "False" in whatever case and with nothing around, or a number, of which only 0 is
// false.
[[nodiscard]] bool boolOf(std::string_view text);

// Hexadecimal digits in either case and nothing else, as an unsigned number. Zeros in front do
// not count; more than eight digits behind them raise Failure 6.
[[nodiscard]] std::uint32_t hexOf(std::string_view text);

}  // namespace magpie
