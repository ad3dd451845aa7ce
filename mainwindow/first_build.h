// The first build of the main window at each of its loads.
#pragma once

namespace magpie {

// Puts the window at its default place, starts an empty group index and the lists of
// names, selects the Advanced screen and measures the margins around the tab strip.
void firstBuild();

}  // namespace magpie
