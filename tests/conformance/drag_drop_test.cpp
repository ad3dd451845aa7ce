// Texts dragged onto windows from a program.
#include <gmock/gmock.h>

#include "platform/api/ole32.h"
#include "tests/conformance/hand.h"
#include "tests/conformance/log_window.h"

using namespace win;

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string>& dropped() {
    static std::vector<std::string> texts;
    return texts;
}

void keep(HWND, std::string_view text) {
    dropped().emplace_back(text);
}

class DragDrop : public testing::Test {
protected:
    DragDrop() {
        dropped().clear();
        ShowWindow(window, SW_SHOWNORMAL);
        hand::settle();
        EXPECT_EQ(RegisterDragDrop(window, keep), 0);
    }
    ~DragDrop() override { RevokeDragDrop(window); }

    POINT inside() { return hand::pointIn(window, 60, 40); }

    LogWindow window{"target"};
};

TEST_F(DragDrop, ATextIsCopiedToAWindowThatTakesTexts) {
    const hand::SeenDrag drag = hand::dragText("http://server/page.html", inside());
    EXPECT_TRUE(drag.copyShown);
    EXPECT_TRUE(drag.taken);
    EXPECT_THAT(dropped(), ElementsAre("http://server/page.html"));
}

TEST_F(DragDrop, AnythingElseIsNot) {
    const hand::SeenDrag drag = hand::dragText({}, inside());
    EXPECT_FALSE(drag.copyShown);
    EXPECT_FALSE(drag.taken);
    EXPECT_THAT(dropped(), IsEmpty());
}

TEST_F(DragDrop, AWindowThatWasNotRegisteredTakesNothing) {
    EXPECT_EQ(RevokeDragDrop(window), 0);
    const hand::SeenDrag drag = hand::dragText("text", inside());
    EXPECT_FALSE(drag.copyShown);
    EXPECT_FALSE(drag.taken);
    EXPECT_EQ(RegisterDragDrop(window, keep), 0);
    EXPECT_TRUE(hand::dragText("text", inside()).taken);
    EXPECT_THAT(dropped(), ElementsAre("text"));
}

TEST_F(DragDrop, WhatIsInAWindowBelongsToIt) {
    const LogWindow child(
        "child", {.style = WS_CHILD | WS_VISIBLE, .place = {20, 20, 120, 80}, .parent = window});
    hand::settle();
    EXPECT_TRUE(hand::dragText("text", hand::pointIn(child, 10, 10)).taken);
    EXPECT_THAT(dropped(), ElementsAre("text"));
}

TEST_F(DragDrop, AChildMayTakeTextsForItself) {
    EXPECT_EQ(RevokeDragDrop(window), 0);
    const LogWindow child(
        "child", {.style = WS_CHILD | WS_VISIBLE, .place = {20, 20, 120, 80}, .parent = window});
    EXPECT_EQ(RegisterDragDrop(child, keep), 0);
    hand::settle();
    EXPECT_TRUE(hand::dragText("text", hand::pointIn(child, 10, 10)).taken);
    EXPECT_FALSE(hand::dragText("text", hand::pointIn(window, 5, 5)).taken);
    EnableWindow(window, false);
    EXPECT_FALSE(hand::dragText("text", hand::pointIn(child, 10, 10)).taken);
    EnableWindow(window, true);
    EXPECT_THAT(dropped(), ElementsAre("text"));
    EXPECT_EQ(RevokeDragDrop(child), 0);
}

TEST_F(DragDrop, ADisabledWindowTakesNothing) {
    EnableWindow(window, false);
    const hand::SeenDrag drag = hand::dragText("text", inside());
    EXPECT_FALSE(drag.copyShown);
    EXPECT_FALSE(drag.taken);
    EXPECT_THAT(dropped(), IsEmpty());
}

TEST_F(DragDrop, ATextEndsAtItsFirstZero) {
    EXPECT_TRUE(hand::dragText(std::string("one\0two", 7), inside()).taken);
    EXPECT_TRUE(hand::dragText("", inside()).taken);
    EXPECT_TRUE(hand::dragText(std::string(20000, 'x') + "\r\n\xE9", inside()).taken);
    EXPECT_THAT(dropped(), ElementsAre("one", "", std::string(20000, 'x') + "\r\n\xE9"));
}

TEST_F(DragDrop, AWindowIsRegisteredOnce) {
    EXPECT_EQ(RegisterDragDrop(window, keep), DRAGDROP_E_ALREADYREGISTERED);
    EXPECT_EQ(RevokeDragDrop(window), 0);
    EXPECT_EQ(RevokeDragDrop(window), DRAGDROP_E_NOTREGISTERED);
    HWND gone = nullptr;
    {
        const LogWindow other("other");
        gone = other;
    }
    EXPECT_EQ(RegisterDragDrop(gone, keep), DRAGDROP_E_INVALIDHWND);
    EXPECT_EQ(RevokeDragDrop(gone), DRAGDROP_E_INVALIDHWND);
}

}  // namespace
