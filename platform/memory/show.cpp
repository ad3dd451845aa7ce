// ShowWindow, minimising and restoring, and the placement record.
#include "platform/memory/activity.h"
#include "platform/memory/desktop.h"
#include "platform/memory/faults.h"
#include "platform/memory/place.h"
#include "platform/memory/refuse.h"

namespace win::memory {
namespace {

// Where the platform puts a minimised window, out of everyone's sight.
constexpr RECT minimisedRect{-32000, -32000, -32000 + 160, -32000 + 27};

// Of a placement: a minimised window comes back maximised.
constexpr UINT comesBackMaximised = 2;

constexpr UINT keepPlace = SWP_NOMOVE | SWP_NOSIZE;

void placeAt(HWND handle, const RECT& rect, UINT flags, bool stateChanged = false) {
    placeWindow(handle, {HWND_TOP, rect, flags, stateChanged});
}

void showOwned(HWND owner, bool show) {
    // The system's own reasons in WM_SHOWWINDOW: the owner opens, the owner closes.
    constexpr LPARAM parentOpening = 3;
    constexpr LPARAM parentClosing = 1;
    for (HWND each : ownedBy(owner)) {
        Window& window = windowOf(each);
        if (show && window.hiddenWithOwner) {
            window.hiddenWithOwner = false;
            SendMessageA(each, WM_SHOWWINDOW, 1, parentOpening);
        } else if (!show && window.style & WS_VISIBLE) {
            window.hiddenWithOwner = true;
            SendMessageA(each, WM_SHOWWINDOW, 0, parentClosing);
        }
    }
}

// Keeps the place to come back to, once the window leaves it.
void leaveNormalPlace(Window& window) {
    if (!(window.style & (WS_MINIMIZE | WS_MAXIMIZE))) window.normalRect = window.rect;
}

// WM_SHOWWINDOW is for windows that only appear; a change of state speaks for itself.
void minimise(HWND handle, int command) {
    Window& window = windowOf(handle);
    bool changes = !(window.style & WS_MINIMIZE);
    if (!changes && window.style & WS_VISIBLE) return;
    if (changes) {
        leaveNormalPlace(window);
        showOwned(handle, false);
        window.maximisedBefore = window.style & WS_MAXIMIZE;
        window.style = (window.style & ~WS_MAXIMIZE) | WS_MINIMIZE;
    } else {
        SendMessageA(handle, WM_SHOWWINDOW, 1, 0);
    }
    UINT flags = SWP_SHOWWINDOW | SWP_FRAMECHANGED;
    if (command != SW_SHOWMINIMIZED) flags |= SWP_NOACTIVATE | SWP_NOZORDER;
    placeAt(handle, minimisedRect, flags, changes);
    if (command == SW_MINIMIZE) activateOther(handle);
}

// A maximised window covers the work area with its client area and caption; its sizing
// edges stand outside.
RECT maximisedRect(const Window& window) {
    const RECT& area = desktop().workArea;
    int edge = frameForStyle(window).left;
    return {area.left - edge, area.top - edge, area.right + edge, area.bottom + edge};
}

void maximise(HWND handle, UINT flags) {
    Window& window = windowOf(handle);
    leaveNormalPlace(window);
    window.style = (window.style & ~WS_MINIMIZE) | WS_MAXIMIZE;
    placeAt(handle, maximisedRect(window), flags | SWP_SHOWWINDOW | SWP_FRAMECHANGED, true);
    showOwned(handle, true);
}

void restore(HWND handle, UINT flags) {
    Window& window = windowOf(handle);
    if (window.style & WS_MINIMIZE && window.maximisedBefore) return maximise(handle, flags);
    window.style &= ~(WS_MINIMIZE | WS_MAXIMIZE);
    placeAt(handle, window.normalRect, flags | SWP_SHOWWINDOW | SWP_FRAMECHANGED, true);
    showOwned(handle, true);
}

// The size that an overlapped window was not told at its creation.
void sendFirstSize(HWND handle) {
    Window* window = findWindow(handle);
    if (!window || !window->awaitsFirstSize || !(window->style & WS_VISIBLE)) return;
    window->awaitsFirstSize = false;
    sendSize(handle);
    sendMove(handle);
}

void show(HWND handle, int command) {
    Window& window = windowOf(handle);
    UINT flags = SWP_SHOWWINDOW | keepPlace;
    if (command == SW_SHOWNA || command == SW_SHOWNOACTIVATE) flags |= SWP_NOACTIVATE;
    if (command == SW_SHOWNOACTIVATE) flags |= SWP_NOZORDER;
    if (isChild(window)) flags |= SWP_NOACTIVATE | SWP_NOZORDER;
    if (command == SW_SHOWNA || !(window.style & WS_VISIBLE))
        SendMessageA(handle, WM_SHOWWINDOW, 1, 0);
    placeAt(handle, window.rect, flags);
}

void hide(HWND handle) {
    Window& window = windowOf(handle);
    SendMessageA(handle, WM_SHOWWINDOW, 0, 0);
    UINT flags = SWP_HIDEWINDOW | keepPlace;
    if (isChild(window) || desktop().active != handle) flags |= SWP_NOACTIVATE | SWP_NOZORDER;
    placeAt(handle, window.rect, flags);
    if (findWindow(handle)) leaveHidden(handle);
}

bool restores(int command) {
    return command == SW_SHOWNORMAL || command == SW_RESTORE || command == SW_SHOWNOACTIVATE;
}

}  // namespace
}  // namespace win::memory

namespace win {

using namespace memory;

BOOL ShowWindow(HWND handle, int command) {
    Window& window = windowOf(handle);
    bool wasVisible = window.style & WS_VISIBLE;
    switch (command) {
        case SW_HIDE:
            if (wasVisible) hide(handle);
            break;
        case SW_MINIMIZE:
        case SW_SHOWMINIMIZED:
        case SW_SHOWMINNOACTIVE:
            if (isChild(window)) refuse("minimised child", window.className);
            minimise(handle, command);
            break;
        case SW_SHOWMAXIMIZED:
            if (isChild(window)) refuse("maximised child", window.className);
            if (!(window.style & WS_MAXIMIZE && wasVisible)) maximise(handle, 0);
            break;
        case SW_SHOWNORMAL:
        case SW_RESTORE:
        case SW_SHOWNOACTIVATE:
        case SW_SHOW:
        case SW_SHOWNA:
            // A window that is visible is shown already, and not activated either.
            if (restores(command) && window.style & (WS_MINIMIZE | WS_MAXIMIZE)) {
                restore(handle, command == SW_SHOWNOACTIVATE ? SWP_NOACTIVATE | SWP_NOZORDER : 0);
            } else if (command == SW_SHOWNA || !wasVisible) {
                show(handle, command);
            }
            break;
        default: refuse("command of ShowWindow", static_cast<std::uintmax_t>(command));
    }
    sendFirstSize(handle);
    return wasVisible;
}

BOOL GetWindowPlacement(HWND handle, WINDOWPLACEMENT* placement) {
    const Window& window = windowOf(handle);
    if (placement->length != sizeof(WINDOWPLACEMENT)) refuse("placement of", placement->length);
    if (isChild(window)) refuse("placement of a child", window.className);
    RECT normal = window.style & (WS_MINIMIZE | WS_MAXIMIZE) ? window.normalRect : window.rect;
    if (!(window.exStyle & WS_EX_TOOLWINDOW)) {
        const RECT& area = desktop().workArea;
        normal = {normal.left - area.left, normal.top - area.top, normal.right - area.left,
                  normal.bottom - area.top};
    }
    int command = window.style & WS_MINIMIZE   ? SW_SHOWMINIMIZED
                  : window.style & WS_MAXIMIZE ? SW_SHOWMAXIMIZED
                                               : SW_SHOWNORMAL;
    bool maximised = window.style & WS_MINIMIZE && window.maximisedBefore;
    *placement = {sizeof(WINDOWPLACEMENT),
                  maximised ? comesBackMaximised : 0,
                  static_cast<UINT>(command),
                  {-1, -1},
                  {-1, -1},
                  normal};
    return true;
}

BOOL SetWindowPlacement(HWND handle, const WINDOWPLACEMENT* placement) {
    Window& window = windowOf(handle);
    if (placement->length != sizeof(WINDOWPLACEMENT)) refuse("placement of", placement->length);
    if (placement->flags & ~comesBackMaximised) refuse("flags of a placement", placement->flags);
    if (isChild(window)) refuse("placement of a child", window.className);
    if (faultIn("SetWindowPlacement")) return false;
    RECT normal = placement->rcNormalPosition;
    if (!(window.exStyle & WS_EX_TOOLWINDOW)) {
        const RECT& area = desktop().workArea;
        normal = {normal.left + area.left, normal.top + area.top, normal.right + area.left,
                  normal.bottom + area.top};
    }
    window.normalRect = normal;
    window.maximisedBefore = placement->flags & comesBackMaximised;
    if (!(window.style & (WS_MINIMIZE | WS_MAXIMIZE)))
        placeWindow(handle, {HWND_TOP, normal, SWP_NOZORDER | SWP_NOACTIVATE, false});
    ShowWindow(handle, static_cast<int>(placement->showCmd));
    return true;
}

BOOL IsWindowVisible(HWND handle) {
    windowOf(handle);
    return isShown(handle);
}

BOOL IsIconic(HWND handle) {
    return (windowOf(handle).style & WS_MINIMIZE) != 0;
}

BOOL IsZoomed(HWND handle) {
    return (windowOf(handle).style & WS_MAXIMIZE) != 0;
}

}  // namespace win
