// The five strips of the Filter face, which slide open and shut: a strip `slideSwitch(i)`
// with its button, and a frame under it. "True" in the Tag of the button and of the frame
// means open, "False" shut.
#pragma once

#include <cstdint>

namespace magpie {

// Opens every strip of a form that has just loaded.
void startStrips();

// `state` 0 shuts strip `Index`, 1 opens it, any other value toggles it; a Tag that is not
// "False" counts as open. Lays all strips out anew, in one step. Raises 340 for an index
// that is not 0 to 4.
void slideBump(int Index, int state);

// The strips as a bit mask: bit i is set when strip i is open. Setting drives each strip
// open or shut; bits without a strip do nothing.
std::int32_t openStrips();
void openStrips(std::int32_t bits);

// A press that has dragged the panel is no click.
void slideButton_MouseDown(int Index, int button, int shift, double x, double y);
void slideButton_MouseUp(int Index, int button, int shift, double x, double y);
void slideButton_Click(int Index);

}  // namespace magpie
