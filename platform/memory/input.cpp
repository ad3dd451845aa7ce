// Input: from what the user does with mouse and keys to the messages that come of it.
#include <array>

#include "platform/memory/activity.h"
#include "platform/memory/classes.h"
#include "platform/memory/desktop.h"
#include "platform/memory/key_map.h"
#include "platform/memory/place.h"
#include "platform/memory/queue.h"
#include "platform/memory/refuse.h"
#include "platform/memory/ticks.h"

namespace win::memory {
namespace {

constexpr int vkRightButton = 2;
constexpr int vkMiddleButton = 4;

// Alt is down and no other key was pressed since: letting it go is the system's affair.
bool altAlone = false;

std::array<bool, 256>& held() {
    static std::array<bool, 256> keys{};
    return keys;
}

bool isHeld(int virtualKey) {
    return held()[static_cast<std::size_t>(virtualKey)];
}

struct Hit {
    HWND window = nullptr;
    LRESULT where = 0;
    bool disabled = false;
};

// The deepest window at a point of the screen that does not let the mouse through.
Hit hitIn(HWND handle, POINT at) {
    const Window& window = windowOf(handle);
    if (!(window.style & WS_VISIBLE) || !contains(screenRect(window), at)) return {};
    if (window.style & WS_DISABLED) return isChild(window) ? Hit{} : Hit{handle, 0, true};
    POINT origin = clientOrigin(window);
    SIZE size = clientSize(window);
    if (contains({origin.x, origin.y, origin.x + size.cx, origin.y + size.cy}, at)) {
        for (HWND child : window.children) {
            Hit hit = hitIn(child, at);
            if (hit.window) return hit;
        }
    }
    LRESULT where = SendMessageA(handle, WM_NCHITTEST, 0, makeLParam(at.x, at.y));
    return where == HTTRANSPARENT ? Hit{} : Hit{handle, where, false};
}

Hit hitOnScreen(POINT at) {
    for (HWND each : desktop().zOrder) {
        Hit hit = hitIn(each, at);
        if (hit.window) return hit;
    }
    return {};
}

void holdButton(UINT message) {
    switch (message) {
        case WM_LBUTTONDOWN: held()[VK_LBUTTON] = true; break;
        case WM_LBUTTONUP: held()[VK_LBUTTON] = false; break;
        case WM_RBUTTONDOWN: held()[vkRightButton] = true; break;
        case WM_RBUTTONUP: held()[vkRightButton] = false; break;
        case WM_MBUTTONDOWN: held()[vkMiddleButton] = true; break;
        case WM_MBUTTONUP: held()[vkMiddleButton] = false; break;
    }
}

WPARAM heldWithMouse() {
    return (isHeld(VK_LBUTTON) ? MK_LBUTTON : 0) | (isHeld(vkRightButton) ? MK_RBUTTON : 0) |
           (isHeld(vkMiddleButton) ? MK_MBUTTON : 0) | (isHeld(VK_SHIFT) ? MK_SHIFT : 0) |
           (isHeld(VK_CONTROL) ? MK_CONTROL : 0);
}

bool isPress(UINT message) {
    return message == WM_LBUTTONDOWN || message == WM_RBUTTONDOWN || message == WM_MBUTTONDOWN;
}

void addReady(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
    DWORD time = static_cast<DWORD>(ticks());
    queue().ready.push_back({handle, message, wParam, lParam, time, desktop().pointer});
}

void addMouse(HWND handle, const InputEvent& event) {
    UINT message = event.message;
    // The message of a second click stands two after that of the first.
    if (event.secondClick && windowOf(handle).windowClass->style & CS_DBLCLKS) message += 2;
    POINT at = event.at;
    ScreenToClient(handle, &at);
    addReady(handle, message, heldWithMouse(), makeLParam(at.x, at.y));
}

void addWheel(const InputEvent& event) {
    constexpr int notch = 120;
    HWND focus = desktop().focus;
    if (!focus) return;
    WPARAM turned = heldWithMouse() | makeWParam(0, event.notches * notch);
    addReady(focus, WM_MOUSEWHEEL, turned, makeLParam(event.at.x, event.at.y));
}

void deliverMouse(const InputEvent& event) {
    desktop().pointer = event.at;
    holdButton(event.message);
    if (event.message == WM_MOUSEWHEEL) return addWheel(event);
    if (HWND holder = desktop().capture) return addMouse(holder, event);
    Hit hit = hitOnScreen(event.at);
    if (!hit.window || hit.disabled) return;
    if (isPress(event.message)) activate(rootOf(hit.window), true);
    if (hit.where == HTCAPTION) {
        if (event.message == WM_LBUTTONDOWN)
            addReady(hit.window, WM_NCLBUTTONDOWN, static_cast<WPARAM>(HTCAPTION),
                     makeLParam(event.at.x, event.at.y));
        return;
    }
    if (hit.where != HTCLIENT) return;
    SendMessageA(hit.window, WM_SETCURSOR, reinterpret_cast<WPARAM>(hit.window),
                 makeLParam(HTCLIENT, static_cast<int>(event.message)));
    addMouse(hit.window, event);
}

// Keys with Alt, and those of a program without a focus, are the system's.
void deliverKey(const InputEvent& event) {
    bool down = event.message == WM_KEYDOWN;
    bool alt = isHeld(VK_MENU) && !isHeld(VK_CONTROL);
    held()[static_cast<std::size_t>(event.virtualKey)] = down;
    HWND to = desktop().focus ? desktop().focus : desktop().active;
    if (!to) return;
    bool isAlt = event.virtualKey == VK_MENU;
    if (down) altAlone = isAlt;
    bool system = !desktop().focus || event.virtualKey == VK_F10 ||
                  (isAlt ? altAlone && !isHeld(VK_CONTROL) : alt);
    UINT message = system ? (down ? WM_SYSKEYDOWN : WM_SYSKEYUP) : event.message;
    constexpr LPARAM altHeld = 1 << 29;
    constexpr LPARAM goingUp = LPARAM{3} << 30;
    LPARAM details = 1 | (isHeld(VK_MENU) ? altHeld : 0) | (down ? 0 : goingUp);
    addReady(to, message, static_cast<WPARAM>(event.virtualKey), details);
}

}  // namespace

void deliverInput() {
    InputEvent event = queue().input.front();
    queue().input.pop_front();
    if (event.message == WM_KEYDOWN || event.message == WM_KEYUP) {
        deliverKey(event);
    } else {
        deliverMouse(event);
    }
}

}  // namespace win::memory

namespace win {

using namespace memory;

HWND WindowFromPoint(POINT point) {
    return hitOnScreen(point).window;
}

std::int16_t GetKeyState(int virtualKey) {
    return isHeld(virtualKey) ? std::int16_t(-32768) : std::int16_t(0);
}

// The character is posted, and so comes before further input.
BOOL TranslateMessage(const MSG* message) {
    bool system = message->message == WM_SYSKEYDOWN;
    if (message->message != WM_KEYDOWN && !system) return false;
    int letter = characterOf(static_cast<int>(message->wParam), isHeld(VK_SHIFT),
                             isHeld(VK_CONTROL) && !isHeld(VK_MENU));
    if (letter) {
        MSG typed = *message;
        typed.message = system ? WM_SYSCHAR : WM_CHAR;
        typed.wParam = static_cast<WPARAM>(letter);
        queue().posted.push_back(typed);
    }
    return true;
}

}  // namespace win
