// The driver's drags from other programs.
#include "platform/memory/drag_drop.h"
#include "platform/memory/driver.h"

namespace win::memory::driver {

bool canDrop(HWND window, POINT at, const std::optional<std::string>& text) {
    ClientToScreen(window, &at);
    return text && dropTargetAt(at) != nullptr;
}

bool drop(HWND window, POINT at, const std::optional<std::string>& text) {
    if (!canDrop(window, at, text)) return false;
    ClientToScreen(window, &at);
    dropText(dropTargetAt(at), *text);
    pump();
    return true;
}

}  // namespace win::memory::driver
