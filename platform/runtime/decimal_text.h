// Decimal text: a number as the text that prints it, the same under every regional setting.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace magpie {

// Room for every text that this header and the dates write.
using NumberBuffer = std::array<char, 32>;

// The number with up to 15 significant digits: the point is ".", the last digit of a fraction is
// never 0, a whole number has no point, and a number below 1 has a zero before it:
// 36435.6041666667, 36404.75, 36404, 0.5. Zero of either sign is "0". From 1E+15 up and below
// 0.0001 (the number as rounded to 15 digits) an exponent of at least two digits stands behind an
// "E": 1.5E+15, 1E-05. Raises Failure 6 for a number that is not finite.
[[nodiscard]] std::string decimalText(double number);

// The same without allocating. The answer is a view into the buffer.
std::string_view decimalText(double number, NumberBuffer& buffer);

// Plain decimal, "-" before a negative number.
[[nodiscard]] std::string integerText(std::int32_t number);
std::string_view integerText(std::int32_t number, NumberBuffer& buffer);

// Upper-case hexadecimal without leading zeros, "0" for zero. A negative number prints as the 32
// bits that hold it: -1 is FFFFFFFF.
[[nodiscard]] std::string hexText(std::uint32_t number);
[[nodiscard]] std::string hexText(std::int32_t number);
std::string_view hexText(std::uint32_t number, NumberBuffer& buffer);

}  // namespace magpie
