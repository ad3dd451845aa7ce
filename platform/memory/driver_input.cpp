// The driver's mouse and keyboard.
#include "platform/memory/desktop.h"
#include "platform/memory/driver.h"
#include "platform/memory/key_map.h"
#include "platform/memory/place.h"
#include "platform/memory/queue.h"
#include "platform/memory/refuse.h"
#include "platform/memory/user_answers.h"

namespace win::memory::driver {
namespace {

HWND topLevelAt(POINT at) {
    for (HWND each : desktop().zOrder) {
        if (isShown(each) && contains(windowOf(each).rect, at)) return each;
    }
    return nullptr;
}

// The point of the screen, if a user could reach the window there.
POINT reach(HWND handle, POINT at) {
    const Window& window = windowOf(handle);
    if (!isShown(handle)) refuse("mouse on a hidden window", window.className);
    if (windowOf(rootOf(handle)).style & WS_MINIMIZE) refuse("mouse on a minimised", "window");
    ClientToScreen(handle, &at);
    if (!desktop().capture) {
        if (!contains(screenRect(window), at)) refuse("mouse beside the window", window.className);
        HWND top = topLevelAt(at);
        if (top != rootOf(handle))
            refuse("mouse on a covered window, above it", windowOf(top).text);
    }
    return at;
}

UINT downMessage(Button button) {
    switch (button) {
        case Button::left: return WM_LBUTTONDOWN;
        case Button::right: return WM_RBUTTONDOWN;
        case Button::middle: return WM_MBUTTONDOWN;
    }
    refuse("button of the mouse", static_cast<std::uintmax_t>(button));
}

void putMouse(UINT message, POINT at, bool secondClick = false) {
    InputEvent event;
    event.message = message;
    event.at = at;
    event.secondClick = secondClick;
    queue().input.push_back(event);
}

void putKey(int virtualKey, bool down) {
    InputEvent event;
    event.message = down ? WM_KEYDOWN : WM_KEYUP;
    event.virtualKey = virtualKey;
    queue().input.push_back(event);
}

// 0 for a character that no key gives.
int keyFor(char character, bool shift) {
    for (int virtualKey = 1; virtualKey < 256; ++virtualKey) {
        if (characterOf(virtualKey, shift, false) == character) return virtualKey;
    }
    return 0;
}

}  // namespace

void moveMouse(HWND window, POINT at) {
    putMouse(WM_MOUSEMOVE, reach(window, at));
    pump();
}

void press(HWND window, POINT at, Button button) {
    putMouse(downMessage(button), reach(window, at));
    pump();
}

void release(HWND window, POINT at, Button button) {
    putMouse(downMessage(button) + 1, reach(window, at));
    pump();
}

void click(HWND window, POINT at, Button button) {
    POINT where = reach(window, at);
    putMouse(downMessage(button), where);
    putMouse(downMessage(button) + 1, where);
    pump();
}

void doubleClick(HWND window, POINT at, Button button) {
    POINT where = reach(window, at);
    UINT down = downMessage(button);
    putMouse(down, where);
    putMouse(down + 1, where);
    putMouse(down, where, true);
    putMouse(down + 1, where);
    pump();
}

void wheel(HWND window, POINT at, int notches) {
    InputEvent event;
    event.message = WM_MOUSEWHEEL;
    event.at = reach(window, at);
    event.notches = notches;
    queue().input.push_back(event);
    pump();
}

POINT middleOf(HWND window) {
    SIZE size = clientSize(windowOf(window));
    return {size.cx / 2, size.cy / 2};
}

void dragTo(int x, int y) {
    userAnswers().drags.push_back({x, y});
}

void hold(int virtualKey, bool down) {
    putKey(virtualKey, down);
    pump();
}

void key(int virtualKey, Keys held) {
    if (!desktop().active) refuse("key without an active window", "");
    if (held.ctrl) putKey(VK_CONTROL, true);
    if (held.shift) putKey(VK_SHIFT, true);
    if (held.alt) putKey(VK_MENU, true);
    putKey(virtualKey, true);
    putKey(virtualKey, false);
    if (held.alt) putKey(VK_MENU, false);
    if (held.shift) putKey(VK_SHIFT, false);
    if (held.ctrl) putKey(VK_CONTROL, false);
    pump();
}

void type(std::string_view text) {
    for (char each : text) {
        if (int plain = keyFor(each, false)) {
            key(plain);
        } else if (int shifted = keyFor(each, true)) {
            key(shifted, {.ctrl = false, .shift = true, .alt = false});
        } else {
            HWND focus = desktop().focus;
            if (!focus) refuse("typed without a focus", text);
            PostMessageA(focus, WM_CHAR, static_cast<unsigned char>(each), 1);
            pump();
        }
    }
}

}  // namespace win::memory::driver
