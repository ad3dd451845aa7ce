// Threads: work beside the interface thread. Of all threads one runs at a time: the interface
// thread until it waits for something, then each of the others as far as it comes. So a test
// always runs the same way.
#pragma once

#include <cstdint>

#include "platform/api/types.h"

namespace win::memory {

inline constexpr std::uint64_t never = ~std::uint64_t{0};

// Holds the calling thread up for so many ticks, or for ever. For the interface thread the time
// passes at once; any other goes on when the interface thread waits long enough.
void holdThreadUp(std::uint64_t ticks);

// ---- Messages that another thread sends to a window --------------------------------

// False on the interface thread.
bool besideInterface();
// Sends from beside the interface thread: the sender is held up until that thread looks at its
// queue, and gets its window's answer.
LRESULT sendToInterface(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
// Hands over what was sent so far, on the interface thread.
void deliverSent();

}  // namespace win::memory
