// Keyboard: the keys that the program has pressed itself, as for a user, and where they went.
#pragma once

#include <vector>

#include "platform/api/user32.h"

namespace win::memory {

struct SentKey {
    int virtualKey = 0;
    bool down = false;
    HWND to = nullptr;  // the window in the foreground; null for none
};

// In the order in which they were pressed.
std::vector<SentKey>& sentKeys();

}  // namespace win::memory
