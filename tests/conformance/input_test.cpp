// The way of mouse and keys to the windows.
#include <gmock/gmock.h>

#include "platform/api/kernel32.h"
#include "tests/conformance/hand.h"
#include "tests/conformance/log_window.h"

using namespace win;
using hand::Button;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

namespace {

class Input : public testing::Test {
protected:
    Input() {
        hand::moveTo({700, 600});
        hand::settle();
    }

    LogWindow a{"a", {.style = WS_POPUP | WS_VISIBLE, .place = {20, 30, 320, 230}}};
    LogWindow c{"c", {.style = WS_CHILD | WS_VISIBLE, .place = {10, 10, 110, 110}, .parent = a}};

    void moveOver(HWND window, int x, int y) { hand::moveTo(hand::pointIn(window, x, y)); }
};

TEST_F(Input, TheMouseReachesTheDeepestWindow) {
    listenFor(
        {WM_LBUTTONDOWN, WM_LBUTTONUP, WM_RBUTTONDOWN, WM_RBUTTONUP, WM_MBUTTONDOWN, WM_MBUTTONUP});
    moveOver(c, 5, 6);
    for (Button each : {Button::left, Button::right, Button::middle}) {
        hand::press(each);
        hand::release(each);
    }
    hand::settle();
    EXPECT_THAT(heard(),
                ElementsAre("c left down 1 5,6", "c left up 0 5,6", "c right down 2 5,6",
                            "c right up 0 5,6", "c middle down 16 5,6", "c middle up 0 5,6"));
    moveOver(a, 200, 100);
    hand::press(Button::left);
    hand::release(Button::left);
    hand::settle();
    EXPECT_THAT(heard(), ElementsAre("a left down 1 200,100", "a left up 0 200,100"));
}

TEST_F(Input, AMoveTellsTheHeldButtonsAndSetsTheCursor) {
    listenFor({WM_MOUSEMOVE, WM_SETCURSOR});
    moveOver(c, 20, 20);
    hand::settle();
    EXPECT_THAT(heard(), testing::IsSupersetOf({"c cursor", "a cursor", "c moved 0 20,20"}));
    POINT now{};
    GetCursorPos(&now);
    EXPECT_EQ(now, hand::pointIn(c, 20, 20));
    hand::keyDown(VK_SHIFT);
    hand::press(Button::left);
    moveOver(c, 21, 22);
    hand::settle();
    EXPECT_THAT(heard(), Contains("c moved 5 21,22"));
    hand::release(Button::left);
    hand::keyUp(VK_SHIFT);
    hand::settle();
}

TEST_F(Input, ASecondClickMakesADoubleClick) {
    moveOver(c, 50, 50);
    hand::settle();
    Sleep(600);
    listenFor({WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK});
    hand::press(Button::left);
    hand::release(Button::left);
    hand::pressAgain(Button::left);
    hand::release(Button::left);
    hand::settle();
    EXPECT_THAT(heard(), ElementsAre("c left down 1 50,50", "c left up 0 50,50",
                                     "c left double 1 50,50", "c left up 0 50,50"));
}

TEST_F(Input, WhoHoldsTheCaptureGetsTheMouseEverywhere) {
    SetCapture(c);
    listenFor({WM_LBUTTONDOWN, WM_LBUTTONUP});
    moveOver(a, 200, 150);
    hand::press(Button::left);
    hand::release(Button::left);
    hand::settle();
    EXPECT_THAT(heard(), ElementsAre("c left down 1 190,140", "c left up 0 190,140"));
    ReleaseCapture();
}

TEST_F(Input, ADisabledChildLetsTheMouseThroughAndADisabledWindowSwallowsIt) {
    EnableWindow(c, false);
    listenFor({WM_LBUTTONDOWN, WM_LBUTTONUP});
    moveOver(c, 5, 5);
    hand::press(Button::left);
    hand::release(Button::left);
    hand::settle();
    EXPECT_THAT(heard(), ElementsAre("a left down 1 15,15", "a left up 0 15,15"));
    EnableWindow(a, false);
    hand::press(Button::left);
    hand::release(Button::left);
    hand::settle();
    EXPECT_THAT(heard(), IsEmpty());
}

TEST_F(Input, ATransparentChildLetsTheMouseThrough) {
    HWND label = CreateWindowExA(0, "STATIC", "", WS_CHILD | WS_VISIBLE, 0, 0, 50, 50, c, nullptr,
                                 nullptr, nullptr);
    listenFor({WM_LBUTTONDOWN});
    moveOver(label, 5, 5);
    hand::press(Button::left);
    hand::release(Button::left);
    hand::settle();
    EXPECT_THAT(heard(), ElementsAre("c left down 1 5,5"));
}

TEST_F(Input, TheWindowAtAPointIsTheOneThatTheMouseReaches) {
    HWND label = CreateWindowExA(0, "STATIC", "", WS_CHILD | WS_VISIBLE, 0, 0, 50, 50, c, nullptr,
                                 nullptr, nullptr);
    EXPECT_EQ(WindowFromPoint(hand::pointIn(a, 200, 100)), a);
    EXPECT_EQ(WindowFromPoint(hand::pointIn(c, 60, 60)), c);
    // A label lets the mouse through.
    EXPECT_EQ(WindowFromPoint(hand::pointIn(label, 5, 5)), c);
    ShowWindow(c, SW_HIDE);
    EXPECT_EQ(WindowFromPoint(hand::pointIn(a, 70, 70)), a);
    HWND beside = WindowFromPoint({700, 600});
    EXPECT_NE(beside, a);
    EXPECT_NE(beside, c);
}

TEST_F(Input, ADisabledWindowIsStillTheOneAtItsPlace) {
    EnableWindow(a, false);
    EXPECT_EQ(WindowFromPoint(hand::pointIn(a, 200, 100)), a);
    EnableWindow(a, true);
    EnableWindow(c, false);
    EXPECT_EQ(WindowFromPoint(hand::pointIn(c, 60, 60)), a);
}

TEST_F(Input, APressActivates) {
    LogWindow b("b", {.style = WS_POPUP | WS_VISIBLE, .place = {400, 30, 500, 130}});
    EXPECT_EQ(GetActiveWindow(), b);
    listenFor({WM_ACTIVATE, WM_LBUTTONDOWN});
    moveOver(a, 150, 150);
    hand::press(Button::left);
    hand::release(Button::left);
    hand::settle();
    std::vector<std::string> lines = heard();
    ASSERT_GE(lines.size(), 3u);
    // A window manager that did not see the press may take the activation back.
    lines.resize(3);
    EXPECT_THAT(lines, ElementsAre("b activate 0", "a activate 2", "a left down 1 150,150"));
    // Wine leaves the order to the window manager.
    if (!hand::underWine()) {
        EXPECT_THAT(desk::order({a, b}), ElementsAre(0, 1));
    }
}

TEST_F(Input, TheWheelTurnsWhereTheFocusIs) {
    SetFocus(c);
    listenFor({WM_MOUSEWHEEL});
    moveOver(a, 5, 5);
    hand::turnWheel(-1);
    hand::settle();
    EXPECT_THAT(heard(), Contains("a wheel -120"));
}

TEST_F(Input, KeysGoToTheFocus) {
    SetFocus(c);
    listenFor({WM_KEYDOWN, WM_KEYUP, WM_CHAR});
    hand::keyDown('A');
    hand::keyUp('A');
    hand::keyDown(VK_SHIFT);
    hand::keyDown('A');
    hand::keyUp('A');
    hand::keyDown('1');
    hand::keyUp('1');
    hand::keyUp(VK_SHIFT);
    hand::keyDown(VK_CONTROL);
    hand::keyDown('C');
    hand::keyUp('C');
    hand::keyDown(VK_RETURN);
    hand::keyUp(VK_RETURN);
    hand::keyUp(VK_CONTROL);
    hand::settle();
    EXPECT_THAT(heard(), ElementsAre("c key down 65", "c char 97", "c key up 65", "c key down 16",
                                     "c key down 65", "c char 65", "c key up 65", "c key down 49",
                                     "c char 33", "c key up 49", "c key up 16", "c key down 17",
                                     "c key down 67", "c char 3", "c key up 67", "c key down 13",
                                     "c char 10", "c key up 13", "c key up 17"));
}

TEST_F(Input, TheStateOfKeysFollowsTheMessages) {
    EXPECT_GE(GetKeyState(VK_SHIFT), 0);
    hand::keyDown(VK_SHIFT);
    hand::settle();
    EXPECT_LT(GetKeyState(VK_SHIFT), 0);
    hand::keyUp(VK_SHIFT);
    hand::settle();
    EXPECT_GE(GetKeyState(VK_SHIFT), 0);
    moveOver(c, 5, 5);
    hand::press(Button::left);
    hand::settle();
    EXPECT_LT(GetKeyState(VK_LBUTTON), 0);
    hand::release(Button::left);
    hand::settle();
    EXPECT_GE(GetKeyState(VK_LBUTTON), 0);
}

TEST_F(Input, KeysWithAltAreTheSystems) {
    SetFocus(c);
    listenFor({WM_KEYDOWN, WM_KEYUP, WM_SYSKEYDOWN, WM_SYSCHAR, WM_SYSKEYUP});
    c.answer = [](UINT message, WPARAM, LPARAM) {
        return message == WM_SYSCHAR ? std::optional<LRESULT>(0) : std::nullopt;
    };
    hand::keyDown(VK_MENU);
    hand::keyDown('X');
    hand::keyUp('X');
    hand::settle();
    hand::keyUp(VK_MENU);
    hand::settle();
    EXPECT_THAT(heard(), ElementsAre("c system key down 18", "c system key down 88",
                                     "c system char 120", "c system key up 88", "c key up 18"));
    hand::keyDown(VK_MENU);
    hand::settle();
    hand::keyUp(VK_MENU);
    c.answer = [](UINT message, WPARAM, LPARAM) {
        return message == WM_SYSKEYUP ? std::optional<LRESULT>(0) : std::nullopt;
    };
    hand::settle();
    EXPECT_THAT(heard(), ElementsAre("c system key down 18", "c system key up 18"));
}

TEST_F(Input, KeysOfAWindowWithoutAFocusAreTheSystems) {
    SetFocus(nullptr);
    listenFor({WM_KEYDOWN, WM_SYSKEYDOWN, WM_SYSKEYUP});
    hand::keyDown('X');
    hand::keyUp('X');
    hand::settle();
    EXPECT_THAT(heard(), ElementsAre("a system key down 88", "a system key up 88"));
}

}  // namespace
