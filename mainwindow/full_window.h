// Full-window mode: the screen on show fills the whole window, without tab strip and
// status bar.
#pragma once

namespace magpie {

// Enters or leaves full-window mode.
void toggleFullWindow();

}  // namespace magpie
