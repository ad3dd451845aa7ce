// Threads: work beside the interface thread. Of all threads one runs at a time: the interface
// thread until it waits for something, then each of the others as far as it comes. So a test
// always runs the same way.
#pragma once

#include <cstdint>

namespace win::memory {

inline constexpr std::uint64_t never = ~std::uint64_t{0};

// Holds the calling thread up for so many ticks, or for ever. For the interface thread the time
// passes at once; any other goes on when the interface thread waits long enough.
void holdThreadUp(std::uint64_t ticks);

}  // namespace win::memory
