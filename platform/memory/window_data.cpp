// What can be asked about a window and set at it: words, text, relations, enabling.
#include <algorithm>
#include <cstring>

#include "platform/memory/activity.h"
#include "platform/memory/classes.h"
#include "platform/memory/desktop.h"
#include "platform/memory/faults.h"
#include "platform/memory/other_windows.h"
#include "platform/memory/refuse.h"

namespace win {

using namespace memory;

namespace {

// The words that SetWindowLongPtrA exchanges, apart from the procedure.
LONG_PTR readWord(const Window& window, int index) {
    switch (index) {
        case GWL_STYLE: return window.style;
        case GWL_EXSTYLE: return window.exStyle;
        case GWLP_ID: return window.id;
        case GWLP_USERDATA: return window.userData;
        case GWLP_WNDPROC: return reinterpret_cast<LONG_PTR>(window.procedure);
        default: refuse("index of a window's word", std::to_string(index));
    }
}

// Null at either end of the list.
HWND neighbour(const Window& window, int step) {
    const auto& list = isChild(window) ? windowOf(window.parent).children : desktop().zOrder;
    auto at = std::find(list.begin(), list.end(), window.handle) - list.begin() + step;
    bool there = at >= 0 && at < static_cast<std::ptrdiff_t>(list.size());
    return there ? list[static_cast<std::size_t>(at)] : nullptr;
}

int copyText(std::span<char> to, const std::string& text) {
    if (to.empty()) return 0;
    std::size_t length = std::min(text.size(), to.size() - 1);
    std::memcpy(to.data(), text.data(), length);
    to[length] = '\0';
    return static_cast<int>(length);
}

}  // namespace

LONG_PTR GetWindowLongPtrA(HWND handle, int index) {
    return readWord(windowOf(handle), index);
}

LONG_PTR SetWindowLongPtrA(HWND handle, int index, LONG_PTR value) {
    Window& window = windowOf(handle);
    LONG_PTR previous = readWord(window, index);
    if (faultIn("SetWindowLongPtrA")) return 0;
    switch (index) {
        case GWL_STYLE: window.style = static_cast<DWORD>(value); break;
        case GWL_EXSTYLE:
            // The level is SetWindowPos's alone.
            window.exStyle =
                (static_cast<DWORD>(value) & ~WS_EX_TOPMOST) | (window.exStyle & WS_EX_TOPMOST);
            break;
        case GWLP_ID: window.id = value; break;
        case GWLP_USERDATA: window.userData = value; break;
        default: window.procedure = reinterpret_cast<WNDPROC>(value);
    }
    return previous;
}

HWND GetParent(HWND handle) {
    const Window& window = windowOf(handle);
    return window.style & WS_POPUP ? window.owner : window.parent;
}

HWND GetAncestor(HWND handle, UINT flags) {
    if (flags != GA_ROOT) refuse("ancestor", flags);
    return rootOf(handle);
}

HWND GetWindow(HWND handle, UINT relation) {
    const Window& window = windowOf(handle);
    switch (relation) {
        case GW_HWNDNEXT: return neighbour(window, 1);
        case GW_HWNDPREV: return neighbour(window, -1);
        case GW_OWNER: return window.owner;
        case GW_CHILD: return window.children.empty() ? nullptr : window.children.front();
        default: refuse("relation of windows", relation);
    }
}

int GetClassNameA(HWND handle, std::span<char> name) {
    return copyText(name, windowOf(handle).className);
}

BOOL SetWindowTextA(HWND handle, const char* text) {
    if (faultIn("SetWindowTextA")) return false;
    return SendMessageA(handle, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text)) != 0;
}

int GetWindowTextA(HWND handle, std::span<char> text) {
    if (faultIn("GetWindowTextA")) return 0;
    if (isOthers(handle)) {
        const OtherWindow* other = otherWindow(handle);
        return other ? copyText(text, other->title) : 0;
    }
    return static_cast<int>(
        SendMessageA(handle, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data())));
}

int GetWindowTextLengthA(HWND handle) {
    return static_cast<int>(SendMessageA(handle, WM_GETTEXTLENGTH, 0, 0));
}

BOOL EnableWindow(HWND handle, BOOL enable) {
    Window& window = windowOf(handle);
    bool wasDisabled = window.style & WS_DISABLED;
    if (enable && wasDisabled) {
        window.style &= ~WS_DISABLED;
        SendMessageA(handle, WM_ENABLE, 1, 0);
    } else if (!enable && !wasDisabled) {
        window.style |= WS_DISABLED;
        if (desktop().focus == handle) SetFocus(nullptr);
        if (desktop().capture == handle) ReleaseCapture();
        SendMessageA(handle, WM_ENABLE, 0, 0);
    }
    return wasDisabled;
}

BOOL IsWindowEnabled(HWND handle) {
    return !(windowOf(handle).style & WS_DISABLED);
}

BOOL InvalidateRect(HWND handle, const RECT*, BOOL) {
    windowOf(handle).invalid = true;
    return true;
}

BOOL UpdateWindow(HWND handle) {
    if (windowOf(handle).invalid && isShown(handle)) SendMessageA(handle, WM_PAINT, 0, 0);
    return true;
}

// The whole window and all that is in it, at once.
BOOL RedrawWindow(HWND handle, const RECT* rect, HRGN region, UINT flags) {
    constexpr UINT known = RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW;
    if (rect || region || flags != known) refuse("redrawing with flags", flags);
    if (!isShown(handle)) return true;
    InvalidateRect(handle, nullptr, true);
    UpdateWindow(handle);
    for (HWND child : std::vector<HWND>(windowOf(handle).children))
        RedrawWindow(child, nullptr, nullptr, flags);
    return true;
}

}  // namespace win
