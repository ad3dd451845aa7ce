// DefWindowProcA: what windows do by themselves.
#include <algorithm>
#include <cstring>

#include "platform/api/gdi32.h"
#include "platform/memory/activity.h"
#include "platform/memory/classes.h"
#include "platform/memory/desktop.h"
#include "platform/memory/drag.h"
#include "platform/memory/place.h"
#include "platform/memory/refuse.h"

namespace win::memory {
namespace {

LRESULT getText(const Window& window, WPARAM size, LPARAM buffer) {
    if (size == 0) return 0;
    char* to = reinterpret_cast<char*>(buffer);
    std::size_t length = std::min(window.text.size(), size - 1);
    std::memcpy(to, window.text.data(), length);
    to[length] = '\0';
    return static_cast<LRESULT>(length);
}

LRESULT setText(Window& window, LPARAM text) {
    window.text = text ? reinterpret_cast<const char*>(text) : "";
    return 1;
}

HICON& iconSlot(Window& window, WPARAM which) {
    if (which == static_cast<WPARAM>(ICON_SMALL)) return window.smallIcon;
    if (which != static_cast<WPARAM>(ICON_BIG)) refuse("kind of icon", which);
    return window.bigIcon;
}

LRESULT setIcon(Window& window, WPARAM which, LPARAM icon) {
    HICON& slot = iconSlot(window, which);
    HICON previous = slot;
    slot = reinterpret_cast<HICON>(icon);
    return reinterpret_cast<LRESULT>(previous);
}

// Redrawing is switched off by taking the window for hidden.
LRESULT setRedraw(Window& window, bool on) {
    window.redraw = on;
    window.style = on ? window.style | WS_VISIBLE : window.style & ~WS_VISIBLE;
    return 0;
}

// The parents are asked first, so that a form can set the cursor for all it holds.
LRESULT setCursor(const Window& window, WPARAM over, LPARAM where) {
    if (LOWORD(static_cast<std::uintptr_t>(where)) != HTCLIENT)
        refuse("cursor outside a client area", static_cast<std::uintmax_t>(where));
    if (isChild(window) && SendMessageA(window.parent, WM_SETCURSOR, over, where)) return 1;
    if (reinterpret_cast<HWND>(over) != window.handle) return 0;
    if (window.windowClass->cursor) SetCursor(window.windowClass->cursor);
    return 0;
}

LRESULT offerContextMenu(const Window& window, LPARAM at) {
    POINT point{xOf(at), yOf(at)};
    ClientToScreen(window.handle, &point);
    SendMessageA(window.handle, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(window.handle),
                 makeLParam(point.x, point.y));
    return 0;
}

// Hides and shows with the owner; the reason is in lParam.
LRESULT showWithOwner(const Window& window, bool show, LPARAM reason) {
    if (!reason || !window.owner) return 0;
    bool visible = window.style & WS_VISIBLE;
    if (visible != show) ShowWindow(window.handle, show ? SW_SHOWNOACTIVATE : SW_HIDE);
    return 0;
}

LRESULT systemCommand(HWND handle, WPARAM wParam) {
    UINT command = static_cast<UINT>(wParam & 0xFFF0);
    if (command == SC_MINIMIZE) {
        ShowWindow(handle, SW_MINIMIZE);
    } else if (command == SC_RESTORE) {
        ShowWindow(handle, SW_RESTORE);
    } else if (command == SC_CLOSE) {
        SendMessageA(handle, WM_CLOSE, 0, 0);
    } else if (wParam == SC_MOVE + static_cast<WPARAM>(HTCAPTION)) {
        dragByCaption(handle);
    } else {
        refuse("system command", wParam);
    }
    return 0;
}

LRESULT pressCaption(HWND handle, WPARAM where, LPARAM at) {
    if (where != static_cast<WPARAM>(HTCAPTION)) refuse("press outside the client area", where);
    activate(rootOf(handle), true);
    return SendMessageA(handle, WM_SYSCOMMAND, SC_MOVE + where, at);
}

LRESULT systemKey(HWND handle, WPARAM key) {
    if (key == static_cast<WPARAM>(VK_F4) && GetKeyState(VK_MENU) < 0) {
        PostMessageA(rootOf(handle), WM_SYSCOMMAND, SC_CLOSE, 0);
    } else if (key == static_cast<WPARAM>(VK_F10) && GetKeyState(VK_SHIFT) < 0) {
        SendMessageA(handle, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(handle), -1);
    }
    return 0;
}

LRESULT releaseKey(HWND handle, WPARAM key) {
    if (key == static_cast<WPARAM>(VK_APPS))
        SendMessageA(handle, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(handle), -1);
    return 0;
}

// Which part of the window is at this point of the screen.
LRESULT hitTest(const Window& window, LPARAM at) {
    POINT point{xOf(at), yOf(at)};
    POINT origin = clientOrigin(window);
    SIZE size = clientSize(window);
    RECT client{origin.x, origin.y, origin.x + size.cx, origin.y + size.cy};
    if (contains(client, point)) return HTCLIENT;
    const RECT& frame = window.frame;
    bool aboveClient = point.y < client.top && point.y >= client.top - frame.top + frame.left;
    if (aboveClient && point.x >= client.left && point.x < client.right) return HTCAPTION;
    refuse("hit test", "neither client area nor caption");
}

LRESULT toParent(const Window& window, UINT message, WPARAM wParam, LPARAM lParam) {
    return isChild(window) ? SendMessageA(window.parent, message, wParam, lParam) : 0;
}

// Answers 0 to the messages that come to nothing.
LRESULT ignore(const Window& window, UINT message) {
    switch (message) {
        case WM_NULL:
        case WM_CREATE:
        case WM_DESTROY:
        case WM_NCDESTROY:
        case WM_MOVE:
        case WM_SIZE:
        case WM_SETFOCUS:
        case WM_KILLFOCUS:
        case WM_ENABLE:
        case WM_ENDSESSION:
        case WM_SETTINGCHANGE:
        case WM_DPICHANGED:
        case WM_ACTIVATEAPP:
        case WM_NOTIFY:
        case WM_COMMAND:
        case WM_TIMER:
        case WM_GETDLGCODE:
        case WM_KEYDOWN:
        case WM_CHAR:
        case WM_SYSKEYUP:
        case WM_SYSCHAR:
        case WM_MOUSEMOVE:
        case WM_LBUTTONDOWN:
        case WM_LBUTTONUP:
        case WM_LBUTTONDBLCLK:
        case WM_RBUTTONDOWN:
        case WM_RBUTTONDBLCLK:
        case WM_MBUTTONDOWN:
        case WM_MBUTTONUP:
        case WM_MBUTTONDBLCLK:
        case WM_MOUSELEAVE:
        case WM_CAPTURECHANGED:
        case WM_EXITSIZEMOVE:
        case WM_NEXTDLGCTL:
        case DM_GETDEFID:
        case DM_SETDEFID: return 0;
        default: refuse("message to a " + window.className, message);
    }
}

}  // namespace
}  // namespace win::memory

namespace win {

using namespace memory;

LRESULT DefWindowProcA(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
    Window& window = windowOf(handle);
    switch (message) {
        case WM_SETTEXT: return setText(window, lParam);
        case WM_GETTEXT: return getText(window, wParam, lParam);
        case WM_GETTEXTLENGTH: return static_cast<LRESULT>(window.text.size());
        case WM_SETFONT:
            // Only controls keep a font.
            if (window.windowClass->ofSystem) window.font = reinterpret_cast<HFONT>(wParam);
            return 0;
        case WM_GETFONT: return reinterpret_cast<LRESULT>(window.font);
        case WM_SETICON: return setIcon(window, wParam, lParam);
        case WM_GETICON: return reinterpret_cast<LRESULT>(iconSlot(window, wParam));
        case WM_SETREDRAW: return setRedraw(window, wParam != 0);
        case WM_PAINT: window.invalid = false; return 0;
        case WM_SETCURSOR: return setCursor(window, wParam, lParam);
        case WM_CTLCOLORSTATIC: return reinterpret_cast<LRESULT>(GetSysColorBrush(COLOR_BTNFACE));
        case WM_WINDOWPOSCHANGED: reportPlace(handle, lParam); return 0;
        case WM_SHOWWINDOW: return showWithOwner(window, wParam != 0, lParam);
        case WM_ACTIVATE:
            if (LOWORD(wParam) != WA_INACTIVE && !HIWORD(wParam)) SetFocus(handle);
            return 0;
        case WM_CLOSE: DestroyWindow(handle); return 0;
        case WM_QUERYENDSESSION: return 1;
        case WM_NCHITTEST: return hitTest(window, lParam);
        case WM_SYSCOMMAND: return systemCommand(handle, wParam);
        case WM_NCLBUTTONDOWN: return pressCaption(handle, wParam, lParam);
        case WM_SYSKEYDOWN: return systemKey(handle, wParam);
        case WM_KEYUP: return releaseKey(handle, wParam);
        case WM_RBUTTONUP: return offerContextMenu(window, lParam);
        case WM_CONTEXTMENU: return toParent(window, message, wParam, lParam);
        case WM_MOUSEWHEEL: return toParent(window, message, wParam, lParam);
        default: return ignore(window, message);
    }
}

}  // namespace win
