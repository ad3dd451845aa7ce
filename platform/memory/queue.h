// Queue: the messages that wait for the interface thread, by rank: posted ones, the
// user's input, timers. (Nothing is painted here, so a WM_PAINT is only sent by
// UpdateWindow, never queued.)
#pragma once

#include <deque>
#include <functional>

#include "platform/memory/window.h"

namespace win::memory {

// What the user does, before the desktop has found the window that it concerns.
struct InputEvent {
    UINT message = 0;  // WM_MOUSEMOVE, WM_LBUTTONDOWN, ..., WM_KEYDOWN, WM_KEYUP
    POINT at{};        // pixels of the screen, of a mouse event
    int virtualKey = 0;
    int notches = 0;           // of the wheel
    bool secondClick = false;  // soon enough after the first to make a double click
};

struct Queue {
    std::deque<MSG> posted;
    std::deque<InputEvent> input;
    std::deque<MSG> ready;  // input whose window is found
    bool quitting = false;
    int exitCode = 0;
    std::uint64_t waited = 0;  // by GetMessageA, in ticks, since more than a timer came
    int dispatching = 0;       // depth of DispatchMessageA

    // A pump is a run of PeekMessageA calls up to the one that finds nothing.
    bool pumpOver = true;                   // the next PeekMessageA begins a pump
    int pumps = 0;                          // begun so far
    int uncountedDepth = -1;                // pumps at this depth of dispatching are the tests' own
    std::function<void()> atPumpBegin;      // null while no test watches
    std::function<bool()> whenNothingToDo;  // of GetMessageA; true when it did something
};

Queue& queue();

// The next message that passes the filter, taken out if `remove`.
bool nextMessage(MSG& message, HWND window, UINT first, UINT last, bool remove);
void forgetMessagesOf(HWND handle);

// Finds the window for the next input event and puts its message into `ready`; none
// when the event comes to nothing, as a click on a disabled window does.
void deliverInput();

}  // namespace win::memory
