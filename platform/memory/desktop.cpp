#include "platform/memory/desktop.h"

#include "platform/memory/refuse.h"

namespace win::memory {
namespace {

// Handles are multiples of four above 64 K, as the platform's are, and never used
// twice: so a stale one is found out.
constexpr std::uintptr_t firstHandle = 0x10000;

std::size_t numberOf(HWND handle) {
    return (reinterpret_cast<std::uintptr_t>(handle) - firstHandle) / 4;
}

}  // namespace

Desktop& desktop() {
    static Desktop theDesktop;
    return theDesktop;
}

Window* findWindow(HWND handle) {
    std::size_t number = numberOf(handle);
    return number < desktop().windows.size() ? desktop().windows[number].get() : nullptr;
}

Window& windowOf(HWND handle) {
    Window* window = findWindow(handle);
    if (!window) refuse("no such window", reinterpret_cast<std::uintptr_t>(handle));
    return *window;
}

Window& newWindow() {
    auto& windows = desktop().windows;
    windows.push_back(std::make_unique<Window>());
    windows.back()->handle = reinterpret_cast<HWND>(firstHandle + (windows.size() - 1) * 4);
    return *windows.back();
}

void forgetWindow(HWND handle) {
    desktop().windows[numberOf(handle)].reset();
}

bool isChild(const Window& window) {
    return window.parent != nullptr;
}

HWND rootOf(HWND handle) {
    while (HWND parent = windowOf(handle).parent) handle = parent;
    return handle;
}

bool isInside(HWND ancestor, HWND handle) {
    while (handle && handle != ancestor) handle = windowOf(handle).parent;
    return handle != nullptr;
}

std::vector<HWND> ownedBy(HWND owner) {
    std::vector<HWND> owned;
    for (HWND each : desktop().zOrder) {
        if (windowOf(each).owner == owner) owned.push_back(each);
    }
    return owned;
}

bool isShown(HWND handle) {
    for (; handle; handle = windowOf(handle).parent) {
        if (!(windowOf(handle).style & WS_VISIBLE)) return false;
    }
    return true;
}

}  // namespace win::memory
