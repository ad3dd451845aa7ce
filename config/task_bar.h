// The height that the taskbar takes from the display.
#pragma once

namespace magpie {

// Twips; 0 when the platform does not tell the work area.
double taskBarHeight();

}  // namespace magpie
