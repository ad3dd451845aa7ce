// Which window is active, has the focus, holds the mouse.
#include <gmock/gmock.h>

#include "tests/conformance/hand.h"
#include "tests/conformance/log_window.h"

using namespace win;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const LogWindow::Look visible{.style = WS_POPUP | WS_VISIBLE, .place = {20, 20, 120, 120}};

LogWindow::Look childOf(HWND parent) {
    return {.style = WS_CHILD | WS_VISIBLE, .place = {0, 0, 30, 30}, .parent = parent};
}

TEST(Activity, TheFirstWindowBringsTheApplicationForward) {
    LogWindow a("a", {.style = WS_POPUP, .place = {20, 20, 120, 120}});
    listenFor({WM_ACTIVATE, WM_ACTIVATEAPP, WM_SETFOCUS, WM_KILLFOCUS});
    ShowWindow(a, SW_SHOW);
    EXPECT_THAT(heard(), ElementsAre("a application on", "a activate 1", "a focus"));
    EXPECT_EQ(GetActiveWindow(), a);
    EXPECT_EQ(GetFocus(), a);
    EXPECT_EQ(GetForegroundWindow(), a);
}

TEST(Activity, ActivityGoesFromWindowToWindow) {
    LogWindow a("a", visible);
    LogWindow b("b", visible);
    listenFor({WM_ACTIVATE, WM_ACTIVATEAPP, WM_SETFOCUS, WM_KILLFOCUS});
    EXPECT_EQ(SetActiveWindow(a), b);
    EXPECT_THAT(heard(), ElementsAre("b activate 0", "a activate 1", "b blur", "a focus"));
    EXPECT_EQ(SetActiveWindow(a), a);
    EXPECT_TRUE(SetForegroundWindow(b));
    EXPECT_THAT(heard(), ElementsAre("a activate 0", "b activate 1", "a blur", "b focus"));
    EXPECT_THAT(desk::order({a, b}), ElementsAre(1, 0));
}

TEST(Activity, AChildCannotBeActive) {
    LogWindow a("a", visible);
    LogWindow c("c", childOf(a));
    LogWindow b("b", visible);
    EXPECT_EQ(SetActiveWindow(c), b);
    EXPECT_EQ(GetActiveWindow(), b);
}

TEST(Activity, TheFocusOfAnotherWindowActivatesItFirst) {
    LogWindow a("a", visible);
    LogWindow c("c", childOf(a));
    LogWindow b("b", visible);
    listenFor({WM_ACTIVATE, WM_SETFOCUS, WM_KILLFOCUS});
    // The activation gave the focus to the window itself before.
    EXPECT_EQ(SetFocus(c), a);
    EXPECT_EQ(GetFocus(), c);
    EXPECT_EQ(GetActiveWindow(), a);
    EXPECT_THAT(heard(), ElementsAre("b activate 0", "a activate 1", "b blur", "a focus", "a blur",
                                     "c focus"));
}

TEST(Activity, TheFocusCanBeGivenAway) {
    LogWindow a("a", visible);
    LogWindow c("c", childOf(a));
    EXPECT_EQ(SetFocus(c), a);
    EXPECT_EQ(SetFocus(c), c);
    EXPECT_EQ(SetFocus(nullptr), c);
    EXPECT_EQ(GetFocus(), nullptr);
    EXPECT_EQ(GetActiveWindow(), a);
    EXPECT_EQ(SetFocus(c), nullptr);
    EXPECT_EQ(GetFocus(), c);
}

TEST(Activity, ADisabledOrMinimisedWindowTakesNoFocus) {
    LogWindow a("a", visible);
    LogWindow c("c", childOf(a));
    EnableWindow(c, false);
    EXPECT_EQ(SetFocus(c), nullptr);
    EXPECT_EQ(GetFocus(), a);
    EnableWindow(c, true);
    SetFocus(c);
    EnableWindow(c, false);
    EXPECT_EQ(GetFocus(), nullptr);
}

TEST(Activity, TheHandlerOfTheActivationChoosesTheFocus) {
    LogWindow a("a", visible);
    LogWindow c("c", childOf(a));
    LogWindow b("b", visible);
    a.answer = [&](UINT message, WPARAM wParam, LPARAM) -> std::optional<LRESULT> {
        if (message != WM_ACTIVATE || LOWORD(wParam) == WA_INACTIVE) return std::nullopt;
        SetFocus(c);
        return 0;
    };
    listenFor({WM_SETFOCUS});
    SetActiveWindow(a);
    EXPECT_EQ(GetFocus(), c);
    EXPECT_THAT(heard(), ElementsAre("c focus"));
}

TEST(Activity, AnActivationThatIsNotHandledStillGivesTheFocus) {
    LogWindow a("a", visible);
    LogWindow b("b", visible);
    a.answer = [](UINT message, WPARAM, LPARAM) {
        return message == WM_ACTIVATE ? std::optional<LRESULT>(0) : std::nullopt;
    };
    SetActiveWindow(a);
    EXPECT_EQ(GetFocus(), a);
}

TEST(Activity, AHiddenWindowHandsItsActivityToItsOwner) {
    LogWindow a("a", visible);
    LogWindow b("b", visible);
    LogWindow owned("owned",
                    {.style = WS_POPUP | WS_VISIBLE, .place = {30, 30, 60, 60}, .parent = a});
    EXPECT_EQ(GetActiveWindow(), owned);
    ShowWindow(owned, SW_HIDE);
    EXPECT_EQ(GetActiveWindow(), a);
}

TEST(Activity, AHiddenWindowHandsItsActivityToTheNextBelow) {
    LogWindow a("a", visible);
    LogWindow b("b", visible);
    LogWindow c("c", visible);
    SetActiveWindow(b);
    // Now b, c, a; c is disabled and stands aside.
    EnableWindow(c, false);
    ShowWindow(b, SW_HIDE);
    EXPECT_EQ(GetActiveWindow(), a);
}

TEST(Activity, TheLastWindowTakesTheActivityWithIt) {
    LogWindow a("a", visible);
    listenFor({WM_ACTIVATE, WM_ACTIVATEAPP, WM_KILLFOCUS});
    ShowWindow(a, SW_HIDE);
    EXPECT_THAT(heard(), ElementsAre("a activate 0", "a application off", "a blur"));
    EXPECT_EQ(GetActiveWindow(), nullptr);
    EXPECT_EQ(GetFocus(), nullptr);
}

TEST(Activity, AHiddenChildGivesItsFocusToItsParent) {
    LogWindow a("a", visible);
    LogWindow c("c", childOf(a));
    LogWindow inner("inner", childOf(c));
    SetFocus(inner);
    ShowWindow(c, SW_HIDE);
    EXPECT_EQ(GetFocus(), inner);
    ShowWindow(c, SW_SHOW);
    SetFocus(c);
    ShowWindow(c, SW_HIDE);
    EXPECT_EQ(GetFocus(), a);
}

TEST(Activity, SetWindowPosHidesWithoutHandingOn) {
    LogWindow a("a", visible);
    LogWindow b("b", visible);
    UINT flags = SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_HIDEWINDOW;
    SetWindowPos(b, nullptr, 0, 0, 0, 0, flags);
    EXPECT_EQ(GetActiveWindow(), b);
    ShowWindow(b, SW_SHOW);
    LogWindow c("c", childOf(b));
    SetFocus(c);
    SetWindowPos(c, nullptr, 0, 0, 0, 0, flags);
    EXPECT_EQ(GetFocus(), c);
}

TEST(Activity, ADestroyedChildGivesItsFocusToItsParent) {
    LogWindow a("a", visible);
    LogWindow c("c", childOf(a));
    SetFocus(c);
    listenFor({WM_SETFOCUS, WM_KILLFOCUS, WM_DESTROY});
    DestroyWindow(c);
    EXPECT_EQ(GetFocus(), a);
    EXPECT_THAT(heard(), ElementsAre("c blur", "a focus", "c destroy"));
}

TEST(Activity, ADestroyedWindowHandsTheActivityOn) {
    LogWindow a("a", visible);
    LogWindow b("b", visible);
    listenFor({WM_ACTIVATE});
    DestroyWindow(b);
    EXPECT_EQ(GetActiveWindow(), a);
    EXPECT_THAT(heard(), ElementsAre("b activate 0", "a activate 1"));
}

TEST(Activity, TheCaptureIsToldWhenItEnds) {
    LogWindow a("a", visible);
    LogWindow b("b", visible);
    EXPECT_EQ(GetCapture(), nullptr);
    listenFor({WM_CAPTURECHANGED});
    EXPECT_EQ(SetCapture(a), nullptr);
    EXPECT_EQ(GetCapture(), a);
    EXPECT_EQ(SetCapture(b), a);
    EXPECT_THAT(heard(), ElementsAre("a capture lost"));
    EXPECT_TRUE(ReleaseCapture());
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_THAT(heard(), ElementsAre("b capture lost"));
    EXPECT_TRUE(ReleaseCapture());
    EXPECT_THAT(heard(), IsEmpty());
}

TEST(Activity, ADisabledOrDestroyedWindowLosesTheCapture) {
    LogWindow a("a", visible);
    LogWindow c("c", childOf(a));
    SetCapture(c);
    EnableWindow(a, false);
    EXPECT_EQ(GetCapture(), c);
    EnableWindow(c, false);
    EXPECT_EQ(GetCapture(), nullptr);
    EnableWindow(a, true);
    EnableWindow(c, true);
    SetCapture(c);
    DestroyWindow(c);
    EXPECT_EQ(GetCapture(), nullptr);
}

}  // namespace
