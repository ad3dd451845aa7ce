// The controls of the Filter face and the masks that they edit. The masks take on what
// the controls show only when it is applied.
#pragma once

namespace magpie {

// Ticks or unticks all rating boxes.
void setRatedBoxes(bool on);

// With `store` copies the boxes into ratedMask, without it ratedMask into the boxes.
void syncRatedBoxes(bool store);

// Shows the masks in the controls.
void showMasks();

// Takes the masks from the controls, one after the other. Raises 13 for a field that holds
// no number and 6 for a number beyond 16 bits; what comes after that field stays as it was.
void takeMasks();

}  // namespace magpie
