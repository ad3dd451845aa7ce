// Activation, focus and the mouse's capture.
#include <algorithm>

#include "platform/memory/activity.h"
#include "platform/memory/desktop.h"
#include "platform/memory/faults.h"
#include "platform/memory/other_windows.h"
#include "platform/memory/place.h"
#include "platform/memory/refuse.h"

namespace win::memory {
namespace {

bool takesActivity(HWND handle) {
    const Window& window = windowOf(handle);
    return !window.dying && (window.style & (WS_VISIBLE | WS_DISABLED)) == WS_VISIBLE;
}

void tellActivity(HWND handle, int how, HWND other) {
    if (!handle || !findWindow(handle)) return;
    bool minimised = windowOf(handle).style & WS_MINIMIZE;
    SendMessageA(handle, WM_ACTIVATE, makeWParam(how, minimised), reinterpret_cast<LPARAM>(other));
}

void tellApplication(bool active) {
    for (HWND each : std::vector<HWND>(desktop().zOrder)) {
        if (findWindow(each)) SendMessageA(each, WM_ACTIVATEAPP, active, 0);
    }
}

BOOL bringOtherForward(HWND handle) {
    auto& others = otherWindows();
    const auto found = std::ranges::find(others, handle, &OtherWindow::handle);
    if (found == others.end()) return false;
    std::rotate(others.begin(), found, found + 1);
    activate(nullptr, false);
    otherForeground() = handle;
    return true;
}

void raise(HWND handle) {
    UINT flags = SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE;
    placeWindow(handle, {HWND_TOP, windowOf(handle).rect, flags, false});
}

}  // namespace

void activate(HWND handle, bool byMouse) {
    HWND previous = desktop().active;
    if (handle) otherForeground() = nullptr;
    if (previous == handle) return;
    tellActivity(previous, WA_INACTIVE, handle);
    desktop().active = handle;
    if (handle) {
        desktop().lastActive = handle;
        raise(handle);
    }
    if (!previous || !handle) tellApplication(handle != nullptr);
    if (handle) tellActivity(handle, byMouse ? WA_CLICKACTIVE : WA_ACTIVE, previous);
    // Whoever handles WM_ACTIVATE may have chosen a window for the focus.
    if (desktop().active != handle) return;
    bool keepsFocus = handle && desktop().focus && isInside(handle, desktop().focus);
    bool minimised = handle && windowOf(handle).style & WS_MINIMIZE;
    if (!keepsFocus) moveFocus(minimised ? nullptr : handle);
}

void activateOther(HWND going) {
    if (desktop().active != going) return;
    HWND owner = windowOf(going).owner;
    if (owner && takesActivity(owner)) return activate(owner, false);
    // The next one below, then from the top.
    std::vector<HWND> candidates = desktop().zOrder;
    std::rotate(candidates.begin(), std::find(candidates.begin(), candidates.end(), going),
                candidates.end());
    for (HWND each : candidates) {
        bool minimised = windowOf(each).style & WS_MINIMIZE;
        if (each != going && takesActivity(each) && !minimised) return activate(each, false);
    }
    activate(nullptr, false);
}

void leaveHidden(HWND handle) {
    activateOther(handle);
    if (desktop().focus == handle) moveFocus(windowOf(handle).parent);
}

void moveFocus(HWND handle) {
    HWND previous = desktop().focus;
    if (previous == handle) return;
    desktop().focus = handle;
    if (previous && findWindow(previous))
        SendMessageA(previous, WM_KILLFOCUS, reinterpret_cast<WPARAM>(handle), 0);
    if (handle && desktop().focus == handle && findWindow(handle))
        SendMessageA(handle, WM_SETFOCUS, reinterpret_cast<WPARAM>(previous), 0);
}

}  // namespace win::memory

namespace win {

using namespace memory;

// Returns the window that had the focus; null also when the focus did not move. An
// activation on the way counts: then it is the top-level window that had it.
HWND SetFocus(HWND handle) {
    if (handle && handle != desktop().focus) {
        for (HWND each = handle; each; each = windowOf(each).parent) {
            if (windowOf(each).style & (WS_DISABLED | WS_MINIMIZE)) return nullptr;
        }
        HWND root = rootOf(handle);
        if (root != desktop().active) {
            activate(root, false);
            if (!findWindow(handle) || desktop().active != root) return nullptr;
        }
    }
    HWND previous = desktop().focus;
    moveFocus(handle);
    return previous;
}

HWND GetFocus() {
    return desktop().focus;
}

HWND GetActiveWindow() {
    return desktop().active;
}

// Another program's window is its own affair.
HWND SetActiveWindow(HWND handle) {
    if (faultIn("SetActiveWindow") || isOthers(handle)) return nullptr;
    HWND previous = desktop().active;
    if (handle && isChild(windowOf(handle))) return previous;
    if (handle && windowOf(handle).style & WS_DISABLED) refuse("activated", "disabled window");
    activate(handle, false);
    return previous;
}

HWND GetForegroundWindow() {
    return desktop().active ? desktop().active : otherForeground();
}

BOOL SetForegroundWindow(HWND handle) {
    if (faultIn("SetForegroundWindow")) return false;
    if (isOthers(handle)) return bringOtherForward(handle);
    if (isChild(windowOf(handle))) refuse("foreground for a child", windowOf(handle).className);
    activate(handle, false);
    return true;
}

HWND SetCapture(HWND handle) {
    HWND previous = desktop().capture;
    windowOf(handle);
    desktop().capture = handle;
    if (previous) SendMessageA(previous, WM_CAPTURECHANGED, 0, reinterpret_cast<LPARAM>(handle));
    return previous;
}

HWND GetCapture() {
    return desktop().capture;
}

BOOL ReleaseCapture() {
    HWND previous = desktop().capture;
    desktop().capture = nullptr;
    if (previous) SendMessageA(previous, WM_CAPTURECHANGED, 0, 0);
    return true;
}

BOOL GetCursorPos(POINT* point) {
    *point = desktop().pointer;
    return true;
}

}  // namespace win
