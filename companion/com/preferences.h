// Preferences: the class `gcfg`: the settings as the host hands them over, and the dialog.
#pragma once

// The SDK's base comes first.
// clang-format off
#include <windows.h>
// clang-format on

namespace magpie {

// A new object, held once by the caller.
IDispatch* newPreferences();

}  // namespace magpie
