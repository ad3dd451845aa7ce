// Key map: which character a key gives, on a US keyboard.
#pragma once

namespace win::memory {

// The character of a virtual key, 0 for none. Ctrl with a letter gives 1 to 26.
int characterOf(int virtualKey, bool shift, bool ctrl);

}  // namespace win::memory
