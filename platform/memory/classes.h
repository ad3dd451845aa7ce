// Window classes: those of the system and those that the program registers.
#pragma once

#include <string>
#include <string_view>

#include "platform/api/user32.h"

namespace win::memory {

struct WindowClass {
    std::string name;  // as GetClassNameA answers it
    WNDPROC procedure = nullptr;
    UINT style = 0;
    HCURSOR cursor = nullptr;
    bool ofSystem = false;
    DWORD knownStyles = 0;  // of the lower half of a window's style
};

// Null for a class that is not registered (yet). Case does not matter.
const WindowClass* findClass(std::string_view name);

bool sameIgnoringCase(std::string_view left, std::string_view right);

}  // namespace win::memory
