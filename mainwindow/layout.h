// Layout: the place of every control of the main window for its present size. A
// statement that fails, as with a window too small for a width above zero, leaves
// its control as it was and the next one runs.
#pragma once

namespace magpie {

void UpdateFilterTab();    // the Advanced screen
void layoutStandardTab();  // the Standard screen

}  // namespace magpie
