// The connection watcher: looks at the line every four seconds, and on each change
// shows or hides the pad, raises the main window or flushes it.
#pragma once

namespace magpie {

// Timer1's tick. Does nothing while something holds the interface. Raises 53 or 453 without the
// library that the line is asked by, and the line then counts as it was last seen.
void Timer1_Timer();

}  // namespace magpie
