#include "platform/memory/keyboard.h"

#include "platform/memory/other_windows.h"
#include "platform/memory/queue.h"
#include "platform/memory/refuse.h"

namespace win {

namespace memory {

std::vector<SentKey>& sentKeys() {
    static std::vector<SentKey> keys;
    return keys;
}

}  // namespace memory

using namespace memory;

void keybd_event(BYTE virtualKey, BYTE scanCode, DWORD flags, ULONG_PTR extra) {
    if (scanCode || extra || flags & ~KEYEVENTF_KEYUP) refuse("keybd_event with flags", flags);
    const bool down = !(flags & KEYEVENTF_KEYUP);
    sentKeys().push_back({virtualKey, down, GetForegroundWindow()});
    if (const OtherWindow* other = otherWindow(GetForegroundWindow())) {
        if (other->onKey) other->onKey(virtualKey, down);
        return;
    }
    queue().input.push_back({.message = down ? WM_KEYDOWN : WM_KEYUP, .virtualKey = virtualKey});
}

}  // namespace win
