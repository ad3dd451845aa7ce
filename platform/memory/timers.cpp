// Timers and the ticks they are measured in.
#include "platform/memory/timers.h"

#include <algorithm>

#include "platform/memory/faults.h"
#include "platform/memory/refuse.h"
#include "platform/memory/ticks.h"
#include "platform/memory/window.h"

namespace win::memory {
namespace {

// The shortest period that the platform grants.
constexpr UINT shortestPeriod = 10;

void findNext() {
    timers().next = UINT64_MAX;
    for (const Timer& each : timers().all) timers().next = std::min(timers().next, each.due);
}

std::vector<Timer>::iterator find(HWND window, UINT_PTR id) {
    auto& all = timers().all;
    return std::find_if(all.begin(), all.end(),
                        [=](const Timer& each) { return each.window == window && each.id == id; });
}

}  // namespace

Timers& timers() {
    static Timers theTimers;
    return theTimers;
}

std::uint64_t ticks() {
    return timers().now;
}

void passTicks(std::uint64_t milliseconds) {
    timers().now += milliseconds;
}

bool timerDue() {
    return timers().next <= timers().now;
}

bool anyTimer() {
    return !timers().all.empty();
}

std::uint64_t nextTimerTick() {
    return timers().next;
}

MSG nextTimerMessage(HWND window, bool remove) {
    Timer* first = nullptr;
    for (Timer& each : timers().all) {
        if (each.due > timers().now || (window && each.window != window)) continue;
        if (!first || each.due < first->due) first = &each;
    }
    if (!first) return {};
    MSG message{first->window,
                WM_TIMER,
                first->id,
                reinterpret_cast<LPARAM>(first->procedure),
                static_cast<DWORD>(timers().now),
                {}};
    if (remove) {
        // A timer that was missed several times is still told once.
        first->due += first->period;
        if (first->due <= timers().now) first->due = timers().now + first->period;
        findNext();
    }
    return message;
}

void forgetTimersOf(HWND handle) {
    std::erase_if(timers().all, [handle](const Timer& each) { return each.window == handle; });
    findNext();
}

void runTimerProcedure(const MSG& message) {
    auto procedure = reinterpret_cast<TIMERPROC>(message.lParam);
    procedure(message.hwnd, WM_TIMER, message.wParam, static_cast<DWORD>(ticks()));
}

}  // namespace win::memory

namespace win {

using namespace memory;

UINT_PTR SetTimer(HWND window, UINT_PTR id, UINT milliseconds, TIMERPROC procedure) {
    if (window) windowOf(window);
    if (faultIn("SetTimer")) return 0;
    if (!window && find(window, id) == timers().all.end()) id = ++timers().lastOwnId;
    auto found = find(window, id);
    if (found != timers().all.end()) timers().all.erase(found);
    UINT period = std::max(milliseconds, shortestPeriod);
    timers().all.push_back({window, id, period, timers().now + period, procedure});
    findNext();
    return id;
}

BOOL KillTimer(HWND window, UINT_PTR id) {
    if (window) windowOf(window);
    auto found = find(window, id);
    if (found == timers().all.end()) return false;
    timers().all.erase(found);
    findNext();
    return true;
}

}  // namespace win
