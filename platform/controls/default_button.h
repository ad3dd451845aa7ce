// Default button: which button Enter presses, and how that is seen.
#pragma once

#include "platform/api/types.h"

namespace magpie {

class Control;
class Form;

// The push button that has the focus, else the form's default button, which may be null.
Control* buttonOfEnter(win::HWND focused, Form& form);

// Draws that button as the one that Enter presses, and no other, after the focus has moved
// inside the form. The platform does so only as far as a dialog of its own goes.
void drawDefaultButton(Form& form);

}  // namespace magpie
