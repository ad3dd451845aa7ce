// Rounding: a floating number as a whole number of a prescribed width. A half goes to the even
// neighbour (0.5 is 0, 1.5 is 2, 2.5 is 2), whatever rounding mode the processor is in. A number
// that rounds to something outside the width, and one that is not finite, raises Failure 6.
#pragma once

#include <cstdint>
#include <limits>

#include "platform/runtime/failure.h"

namespace magpie {

template <class Whole>
[[nodiscard]] constexpr Whole roundedTo(double number) {
    static_assert(sizeof(Whole) <= 4, "the bounds below are exact in a double");
    constexpr double low = std::numeric_limits<Whole>::min();
    constexpr double high = std::numeric_limits<Whole>::max();
    // Written so that a NaN fails it too.
    if (!(number >= low - 1.0 && number <= high + 1.0)) throw Failure{failure::overflow};

    auto whole = static_cast<std::int64_t>(number);
    const double rest = number - static_cast<double>(whole);
    const bool odd = whole % 2 != 0;
    if (rest > 0.5 || (rest == 0.5 && odd)) ++whole;
    if (rest < -0.5 || (rest == -0.5 && odd)) --whole;
    if (whole < std::numeric_limits<Whole>::min() || whole > std::numeric_limits<Whole>::max()) {
        throw Failure{failure::overflow};
    }
    return static_cast<Whole>(whole);
}

// 0 to 255.
[[nodiscard]] constexpr std::uint8_t toByte(double number) {
    return roundedTo<std::uint8_t>(number);
}

// -32,768 to 32,767.
[[nodiscard]] constexpr std::int16_t toInt16(double number) {
    return roundedTo<std::int16_t>(number);
}

// -2,147,483,648 to 2,147,483,647.
[[nodiscard]] constexpr std::int32_t toInt32(double number) {
    return roundedTo<std::int32_t>(number);
}

}  // namespace magpie
