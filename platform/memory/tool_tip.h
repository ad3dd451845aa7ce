// ToolTipState: the tools of one tool tip window and what it says about them.
#pragma once

#include <string>
#include <vector>

#include "platform/memory/window.h"

namespace win::memory {

struct Tool {
    HWND owner = nullptr;
    UINT_PTR id = 0;  // the window that the tip is about, or the number of a part of the owner
    std::string text;
};

struct ToolTipState : ControlState {
    std::vector<Tool> tools;

    // The tool that was added first with this owner and identifier, or null.
    Tool* find(HWND owner, UINT_PTR id);
};

}  // namespace win::memory
