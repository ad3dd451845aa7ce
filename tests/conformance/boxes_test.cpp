// Message boxes and the beep.
#include <gmock/gmock.h>

#include "tests/conformance/hand.h"
#include "tests/conformance/log_window.h"

using namespace win;

namespace {

TEST(Boxes, AnswerTheButton) {
    LogWindow a("a", {.style = WS_POPUP | WS_VISIBLE, .place = {20, 20, 120, 120}});
    hand::answerBox(IDNO);
    EXPECT_EQ(MessageBoxA(a, "Really?", "Question", MB_YESNO | MB_ICONQUESTION | MB_DEFBUTTON2),
              IDNO);
    hand::answerBox(IDYES);
    EXPECT_EQ(MessageBoxA(a, "Really?", "Question", MB_YESNO | MB_ICONWARNING), IDYES);
    hand::answerBox(IDOK);
    EXPECT_EQ(MessageBoxA(nullptr, "So it is.", "News", MB_OK), IDOK);
}

TEST(Boxes, DisableTheirOwnerAndGiveTheActivityBack) {
    LogWindow a("a", {.style = WS_POPUP | WS_VISIBLE, .place = {20, 20, 120, 120}});
    LogWindow c("c", {.style = WS_CHILD | WS_VISIBLE, .parent = a});
    SetFocus(c);
    hand::answerBox(IDOK);
    MessageBoxA(a, "text", "caption", MB_OK);
    EXPECT_FALSE(hand::seenBox().ownerEnabled);
    EXPECT_FALSE(hand::seenBox().ownerActive);
    EXPECT_TRUE(IsWindowEnabled(a));
    EXPECT_EQ(GetActiveWindow(), a);
}

TEST(Boxes, LeaveADisabledOwnerDisabled) {
    LogWindow a("a", {.style = WS_POPUP | WS_VISIBLE, .place = {20, 20, 120, 120}});
    EnableWindow(a, false);
    hand::answerBox(IDOK);
    MessageBoxA(a, "text", "caption", MB_OK);
    // Wine enables it.
    EXPECT_EQ(IsWindowEnabled(a), hand::underWine());
}

HWND ownerOfBox = nullptr;

TEST(Boxes, EndWithoutAnAnswerWhenTheirOwnerIsDestroyed) {
    LogWindow a("a", {.style = WS_POPUP | WS_VISIBLE, .place = {20, 20, 120, 120}});
    ownerOfBox = a;
    hand::actInBox([] { DestroyWindow(ownerOfBox); });
    EXPECT_EQ(MessageBoxA(a, "Really?", "Question", MB_YESNO | MB_ICONWARNING), 0);
    EXPECT_FALSE(IsWindow(ownerOfBox));
}

TEST(Beep, IsSounded) {
    EXPECT_TRUE(MessageBeep(MB_OK));
}

}  // namespace
