// Misc: window helpers that every dialog road goes through, and the platform's
// identifier. Nothing here reports a failure of the desktop.
#pragma once

#include <cstdint>

#include "platform/controls/form.h"

namespace magpie {

// Raises `form` to the always-on-top level if `onTop` is -1 (all bits set); any other
// value lowers it. Then puts the pad back on its own level, which is on top only
// while the line is up and the pad's setting asks for it. Activates neither.
void setTopMost(Form& form, std::int16_t onTop);

// Shows `form` modally; the main window is off the top level for that time.
void showDialogModal(Form& form);

// Puts `form` over the middle of the main window.
void centerOnMain(Form& form);

// Takes `form` off the screen: hidden, and minimised for its next showing.
void stepAside(Form& form);

// The platform's identifier (2 for the NT line), or 0 when it can't be had.
std::int32_t osPlatformId();

}  // namespace magpie
