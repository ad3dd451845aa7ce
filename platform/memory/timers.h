// Timers: what the program has asked SetTimer for.
#pragma once

#include <cstdint>
#include <vector>

#include "platform/api/user32.h"

namespace win::memory {

struct Timer {
    HWND window;
    UINT_PTR id;
    UINT period;  // milliseconds
    std::uint64_t due;
    TIMERPROC procedure;
};

struct Timers {
    std::uint64_t now = 0;
    std::uint64_t next = UINT64_MAX;  // when the first timer falls due
    std::vector<Timer> all;
    UINT_PTR lastOwnId = 0x7FFF;  // of timers without a window
};

Timers& timers();

bool timerDue();
bool anyTimer();
std::uint64_t nextTimerTick();  // when the first one falls due
// WM_TIMER of the timer that is due the longest, of `window` or (null) of any; message 0
// when none is. `remove` sets it going again.
MSG nextTimerMessage(HWND window, bool remove);
void forgetTimersOf(HWND handle);
void runTimerProcedure(const MSG& message);

}  // namespace win::memory
