// Help: the program's help file in the system's viewer. Without the viewer, the file or the topic
// there is no help, and nothing worse.
#pragma once

#include <cstdint>

#include "platform/controls/form.h"

namespace magpie {

// The first topic. Raises 53 or 453 without the viewer.
void showHelp(Form& owner);

// The topic of that number, over this window. Public on Form3; the companion library calls it.
// Raises as above.
void out_ShowHelpID(std::int32_t ContextID, win::HWND hWND);

}  // namespace magpie
