#ifndef _WIN32

#include "platform/memory/driver.h"
#include "platform/memory/queue.h"
#include "tests/conformance/hand.h"
#include "tests/conformance/log_window.h"

using namespace win;

namespace hand {

namespace driver = win::memory::driver;

namespace {

POINT mouse{};
SeenBox lastBox;

void put(memory::InputEvent event) {
    event.at = mouse;
    memory::queue().input.push_back(event);
}

UINT downMessage(Button button) {
    return WM_LBUTTONDOWN + 3 * static_cast<UINT>(button);
}

UINT nthLine(const driver::Popup& popup, int wanted) {
    for (const driver::MenuLine& each : popup.menu.lines) {
        if (!each.separator && --wanted == 0) return each.id;
    }
    return 0;
}

}  // namespace

void moveTo(POINT at) {
    mouse = at;
    put({.message = WM_MOUSEMOVE});
}

void press(Button button) {
    put({.message = downMessage(button)});
}

void release(Button button) {
    put({.message = downMessage(button) + 1});
}

void pressAgain(Button button) {
    put({.message = downMessage(button), .secondClick = true});
}

void turnWheel(int notches) {
    put({.message = WM_MOUSEWHEEL, .notches = notches});
}

POINT pointIn(HWND window, int x, int y) {
    POINT point{x, y};
    ClientToScreen(window, &point);
    return point;
}

void keyDown(int virtualKey) {
    put({.message = WM_KEYDOWN, .virtualKey = virtualKey});
}

void keyUp(int virtualKey) {
    put({.message = WM_KEYUP, .virtualKey = virtualKey});
}

void answerPopup(int line) {
    driver::onPopup([line](const driver::Popup& popup) { return nthLine(popup, line); });
}

// The owner is asked what the letter means.
void answerPopupByLetter(char letter) {
    driver::onPopup([letter](const driver::Popup& popup) -> UINT {
        LRESULT meaning = SendMessageA(popup.owner, WM_MENUCHAR, makeWParam(letter, MF_POPUP),
                                       reinterpret_cast<LPARAM>(popup.handle));
        if (yOf(meaning) != MNC_EXECUTE) return 0;
        return popup.menu.lines[LOWORD(static_cast<std::uintptr_t>(meaning))].id;
    });
}

// The user chooses a line of the menu that has ended.
void actInPopup(void (*action)()) {
    driver::onPopup([action](const driver::Popup& popup) {
        action();
        return nthLine(popup, 1);
    });
}

void answerBox(int button) {
    driver::onMessageBox([button](const driver::Box& box) {
        lastBox = {box.owner && IsWindowEnabled(box.owner), GetActiveWindow() == box.owner};
        return button;
    });
}

// The user presses the button of the box that has ended.
void actInBox(void (*action)()) {
    driver::onMessageBox([action](const driver::Box&) {
        action();
        return IDYES;
    });
}

SeenBox seenBox() {
    return lastBox;
}

void dragByCaption(HWND window, POINT corner) {
    RECT rect{};
    GetWindowRect(window, &rect);
    driver::dragTo(corner.x, corner.y);
    moveTo({rect.left + 60, rect.top + 10});
    press(Button::left);
    release(Button::left);
}

SeenDrag dragText(const std::optional<std::string>& text, POINT to) {
    const HWND under = WindowFromPoint(to);
    if (!under) return {};
    ScreenToClient(under, &to);
    return {driver::canDrop(under, to, text), driver::drop(under, to, text)};
}

void settle(HWND dialog) {
    desk::pump(dialog);
}

bool underWine() {
    return false;
}

}  // namespace hand

#endif
