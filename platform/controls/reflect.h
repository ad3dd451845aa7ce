// Reflection: a container hands WM_COMMAND and WM_NOTIFY to the control that they
// came from, however deep in frames and picture boxes it lies.
#pragma once

#include "platform/api/types.h"

namespace magpie {

// False, with nothing done, for what no control of ours has sent.
bool reflect(win::UINT message, win::WPARAM wParam, win::LPARAM lParam, win::LRESULT& answer);

}  // namespace magpie
