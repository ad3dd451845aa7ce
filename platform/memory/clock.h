// Clock: the local time of the memory desktop. It goes on with the ticks, from the
// moment that a test set, and is asked for nothing else.
#pragma once

#include <cstdint>

namespace win::memory {

// Milliseconds since the first day of 1970, local time.
using LocalTime = std::int64_t;

// The local time that it was at tick 0.
LocalTime& timeAtTickZero();

}  // namespace win::memory
