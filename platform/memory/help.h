// Help: what the program asked the help viewer for.
#pragma once

#include <string>
#include <vector>

#include "platform/api/types.h"

namespace win::memory {

struct HelpCall {
    HWND caller = nullptr;
    std::string file;
    UINT command = 0;
    DWORD_PTR data = 0;
};

// Every call so far.
std::vector<HelpCall>& helpCalls();

}  // namespace win::memory
