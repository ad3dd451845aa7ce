// The start of the common controls.
#pragma once

namespace magpie {

// Registers the classes that the controls are made of. Once, before the first form.
void startCommonControls();

}  // namespace magpie
