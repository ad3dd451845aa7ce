// The failures that only controls raise.
#pragma once

#include "platform/runtime/failure.h"

namespace magpie::failure {

inline constexpr int outOfMemory = 7;          // the desktop gives no more windows
inline constexpr int invalidProperty = 380;    // a size below zero, a row that is not there
inline constexpr int cancelWasChosen = 32755;  // a common dialog was cancelled

}  // namespace magpie::failure
