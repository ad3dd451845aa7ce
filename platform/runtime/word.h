// Word: a truth value kept as a signed 16-bit number, the way records and control properties
// hold it: 0 is false, -1 is the true that is written, and any other number reads as true.
#pragma once

#include <cstdint>

namespace magpie {

inline constexpr std::int16_t wordFalse = 0;
inline constexpr std::int16_t wordTrue = -1;

[[nodiscard]] constexpr std::int16_t word(bool truth) {
    return truth ? wordTrue : wordFalse;
}

[[nodiscard]] constexpr bool isTrue(std::int16_t value) {
    return value != wordFalse;
}

}  // namespace magpie
