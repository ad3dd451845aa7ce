// Hex date: a date as the stack file spells it, the day and the first five digits of its fraction
// as two hexadecimal numbers with nothing between them: 8E53EC00 is 2 October 1999, 14:30.
//
// The spelling loses: what stands behind the fifth digit, the zeros in front of the fraction (so
// that another time comes back) and every date whose text comes out shorter than 8 characters,
// which comes back as 0. The files of all versions read and write it so.
#pragma once

#include <string>
#include <string_view>

#include "platform/runtime/date.h"
#include "platform/runtime/decimal_text.h"

namespace magpie {

// "0" for the date 0. Raises Failure 13 for a date without a fraction (midnight exactly), which
// has no spelling, and for one whose decimal text has an exponent in place of digits; Failure 6
// for a number that is not finite.
[[nodiscard]] std::string GetHexDate(Date dat);

// The same without allocating. The answer is a view into the buffer or a literal.
std::string_view GetHexDate(Date dat, NumberBuffer& buffer);

// Fewer than 8 characters give the date 0. Otherwise the first four are the day and up to five
// behind them the fraction; Failure 13 unless they are hexadecimal. What follows is not read.
[[nodiscard]] Date ConvertHexDate(std::string_view hexDate);

}  // namespace magpie
