// Ticks: the milliseconds of the memory desktop since it was switched on. They pass
// only when a test, a Sleep or an idle message loop lets them.
#pragma once

#include <cstdint>

namespace win::memory {

std::uint64_t ticks();

// Lets time pass without delivering anything: timers that fall due meanwhile wait for
// the next look into the message queue.
void passTicks(std::uint64_t milliseconds);

}  // namespace win::memory
