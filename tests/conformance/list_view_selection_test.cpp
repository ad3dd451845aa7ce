// The class "SysListView32" in report view: focus, selection, check boxes, user.
#include <gmock/gmock.h>

#include "tests/conformance/hand.h"
#include "tests/conformance/list_view_user.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct ListViewSelection : ListViewUser {
    int next(int after, win::UINT flags) {
        return static_cast<int>(send(win::LVM_GETNEXTITEM, after, static_cast<win::LPARAM>(flags)));
    }
};

TEST_F(ListViewSelection, SeveralRowsCanBeSelectedOneHasTheFocus) {
    fill(3);
    EXPECT_TRUE(setState(0, both, both));
    EXPECT_THAT(parent.takeNotices(), ElementsAre(change(0, 100, 0, both)));
    EXPECT_TRUE(setState(2, both, both));
    EXPECT_THAT(parent.takeNotices(),
                ElementsAre(change(0, 100, both, selected), change(2, 102, 0, both)));
    EXPECT_THAT(states(), ElementsAre(selected, 0, both));
    EXPECT_EQ(send(win::LVM_GETSELECTEDCOUNT), 2);
    EXPECT_EQ(focusedRow(), 2);
    EXPECT_TRUE(setState(2, both, both));
    EXPECT_TRUE(setState(2, 0, focused));
    EXPECT_THAT(parent.takeNotices(), ElementsAre(change(2, 102, both, selected)));
    EXPECT_EQ(focusedRow(), -1);
    EXPECT_TRUE(setState(1, 0, focused));
    EXPECT_THAT(parent.takeNotices(), IsEmpty());
}

TEST_F(ListViewSelection, ASingleSelectionMovesWithANoticeForEachRow) {
    makeSingle();
    fill(3);
    setState(0, both, both);
    parent.takeNotices();
    EXPECT_TRUE(setState(2, both, both));
    EXPECT_THAT(parent.takeNotices(),
                ElementsAre(change(0, 100, both, focused), change(0, 100, focused, 0),
                            change(2, 102, 0, both)));
    EXPECT_THAT(states(), ElementsAre(0, 0, both));
    EXPECT_TRUE(setState(1, selected, selected));
    EXPECT_THAT(states(), ElementsAre(0, selected, focused));
    EXPECT_EQ(send(win::LVM_GETSELECTEDCOUNT), 1);
}

TEST_F(ListViewSelection, ARowThatIsNotThereHasNoState) {
    fill(1);
    EXPECT_FALSE(setState(1, both, both));
    EXPECT_EQ(send(win::LVM_GETITEMSTATE, 1, win::LPARAM{0xFFFF}), 0);
    EXPECT_EQ(send(win::LVM_GETITEMSTATE, -1, win::LPARAM{0xFFFF}), 0);
}

TEST_F(ListViewSelection, MinusOneMeansEveryRow) {
    fill(3);
    setState(1, both, both);
    parent.takeNotices();
    EXPECT_TRUE(setState(-1, selected, selected));
    EXPECT_THAT(parent.takeNotices(),
                ElementsAre(change(0, 100, 0, selected), change(2, 102, 0, selected)));
    EXPECT_EQ(send(win::LVM_GETSELECTEDCOUNT), 3);
    EXPECT_TRUE(setState(-1, 0, selected));
    EXPECT_THAT(states(), ElementsAre(0, focused, 0));
    EXPECT_FALSE(setState(-1, focused, focused));
    EXPECT_EQ(focusedRow(), 1);
    EXPECT_TRUE(setState(-1, 0, both));
    EXPECT_EQ(focusedRow(), -1);
    EXPECT_EQ(send(win::LVM_GETSELECTEDCOUNT), 0);
}

TEST_F(ListViewSelection, EveryRowIsTooManyForASingleSelection) {
    makeSingle();
    fill(2);
    EXPECT_FALSE(setState(-1, selected, selected));
    EXPECT_THAT(states(), ElementsAre(0, 0));
}

TEST_F(ListViewSelection, RowsAreFoundByTheirState) {
    fill(5);
    EXPECT_EQ(next(-1, win::LVNI_SELECTED), -1);
    setState(1, selected, selected);
    setState(3, both, both);
    EXPECT_EQ(next(-1, win::LVNI_FOCUSED), 3);
    EXPECT_EQ(next(-1, win::LVNI_SELECTED), 1);
    EXPECT_EQ(next(1, win::LVNI_SELECTED), 3);
    EXPECT_EQ(next(3, win::LVNI_SELECTED), -1);
    EXPECT_EQ(next(-1, 0), 0);
    EXPECT_EQ(next(3, 0), 4);
    EXPECT_EQ(next(4, 0), -1);
}

TEST_F(ListViewSelection, AStateMayHoldAGlowAndAnImageWithoutBoxes) {
    constexpr win::UINT all = 0x1013;
    fill(3);
    setState(0, both, both);
    parent.takeNotices();
    EXPECT_TRUE(setState(2, all, all));
    EXPECT_THAT(parent.takeNotices(),
                ElementsAre(change(0, 100, both, selected), change(2, 102, 0, all)));
    EXPECT_THAT(states(), ElementsAre(selected, 0, all));
    EXPECT_EQ(focusedRow(), 2);
    EXPECT_EQ(send(win::LVM_GETSELECTEDCOUNT), 2);
    EXPECT_TRUE(setState(2, all, all));
    EXPECT_THAT(parent.takeNotices(), IsEmpty());
    EXPECT_TRUE(setState(2, 0, selected));
    EXPECT_THAT(states(), ElementsAre(selected, 0, all & ~selected));
    EXPECT_TRUE(setState(1, focused, focused));
    EXPECT_THAT(states(), ElementsAre(selected, focused, all & ~both));
    EXPECT_TRUE(setState(2, 0, all));
    EXPECT_THAT(states(), ElementsAre(selected, focused, 0));
}

TEST_F(ListViewSelection, ARowCanBeCutWithoutBeingSelected) {
    fill(3);
    parent.takeNotices();
    EXPECT_TRUE(setState(1, cut, cut));
    EXPECT_THAT(parent.takeNotices(), ElementsAre(change(1, 101, 0, cut)));
    setState(2, both, both);
    EXPECT_THAT(states(), ElementsAre(0, cut, both));
    EXPECT_EQ(send(win::LVM_GETITEMSTATE, 1, win::LPARAM{selected}), 0);
    EXPECT_EQ(send(win::LVM_GETITEMSTATE, 1, win::LPARAM{selected | cut}), win::LRESULT{cut});
    EXPECT_EQ(send(win::LVM_GETITEMSTATE, 2, win::LPARAM{selected | cut}), win::LRESULT{selected});
    EXPECT_EQ(send(win::LVM_GETSELECTEDCOUNT), 1);
    EXPECT_TRUE(setState(1, 0, selected));
    EXPECT_THAT(states(), ElementsAre(0, cut, both));
    EXPECT_TRUE(setState(1, 0, cut));
    EXPECT_THAT(states(), ElementsAre(0, 0, both));
}

TEST_F(ListViewSelection, TheMarkIsWhereTheFirstFocusOrALaterSelectionByHandWas) {
    fill(5);
    EXPECT_EQ(send(win::LVM_GETSELECTIONMARK), -1);
    setState(4, selected, selected);
    EXPECT_EQ(send(win::LVM_GETSELECTIONMARK), -1);
    setState(1, focused, focused);
    EXPECT_EQ(send(win::LVM_GETSELECTIONMARK), 1);
    setState(2, both, both);
    EXPECT_EQ(send(win::LVM_GETSELECTIONMARK), 1);
    clickOn(3);
    EXPECT_EQ(send(win::LVM_GETSELECTIONMARK), 3);
    pressKey(list, win::VK_UP);
    EXPECT_EQ(send(win::LVM_GETSELECTIONMARK), 2);
    setState(0, both, both);
    EXPECT_EQ(send(win::LVM_GETSELECTIONMARK), 2);
}

TEST_F(ListViewSelection, TheMarkMovesWithItsRow) {
    fill(4);
    clickOn(2);
    insert(0, "front");
    EXPECT_EQ(send(win::LVM_GETSELECTIONMARK), 3);
    insert(3, "at it");
    EXPECT_EQ(send(win::LVM_GETSELECTIONMARK), 4);
    insert(5, "behind");
    EXPECT_EQ(send(win::LVM_GETSELECTIONMARK), 4);
    send(win::LVM_DELETEITEM, 0);
    EXPECT_EQ(send(win::LVM_GETSELECTIONMARK), 3);
    send(win::LVM_DELETEITEM, 4);
    EXPECT_EQ(send(win::LVM_GETSELECTIONMARK), 3);
    send(win::LVM_DELETEALLITEMS);
    EXPECT_EQ(send(win::LVM_GETSELECTIONMARK), -1);
}

TEST_F(ListViewSelection, ARowPutInWithAStateIsTold) {
    fill(2);
    setState(1, both, both);
    parent.takeNotices();
    EXPECT_EQ(insertWithState(0, selected, selected), 0);
    EXPECT_THAT(parent.takeNotices(), ElementsAre(change(0, 9, 0, selected)));
    EXPECT_THAT(states(), ElementsAre(selected, 0, both));
    EXPECT_EQ(insertWithState(3, both, both), 3);
    EXPECT_THAT(parent.takeNotices(),
                ElementsAre(change(2, 101, both, selected), change(3, 9, 0, both)));
    EXPECT_EQ(send(win::LVM_GETSELECTEDCOUNT), 3);
}

TEST_F(ListViewSelection, TheFocusedRowHandsTheFocusDownWhenItGoes) {
    fill(4);
    setState(1, both, both);
    parent.takeNotices();
    send(win::LVM_DELETEITEM, 1);
    EXPECT_THAT(parent.takeNotices(), ElementsAre(change(1, 101, both, 0)));
    EXPECT_THAT(states(), ElementsAre(0, focused, 0));
    EXPECT_EQ(send(win::LVM_GETSELECTEDCOUNT), 0);
    EXPECT_EQ(text(1), "r2");
}

TEST_F(ListViewSelection, TheLastRowHandsTheFocusUp) {
    fill(2);
    setState(1, both, both);
    send(win::LVM_DELETEITEM, 1);
    EXPECT_THAT(states(), ElementsAre(focused));
    send(win::LVM_DELETEITEM, 0);
    EXPECT_EQ(focusedRow(), -1);
}

TEST_F(ListViewSelection, FocusAndSelectionStayOnTheirRows) {
    fill(4);
    setState(2, both, both);
    setState(0, selected, selected);
    send(win::LVM_DELETEITEM, 1);
    EXPECT_THAT(states(), ElementsAre(selected, both, 0));
    parent.takeNotices();
    send(win::LVM_DELETEITEM, 0);
    EXPECT_THAT(parent.takeNotices(), ElementsAre(change(0, 100, selected, 0)));
    EXPECT_THAT(states(), ElementsAre(both, 0));
    insert(0, "front");
    EXPECT_THAT(states(), ElementsAre(0, both, 0));
    parent.takeNotices();
    send(win::LVM_DELETEALLITEMS);
    EXPECT_THAT(parent.takeNotices(), IsEmpty());
    EXPECT_EQ(focusedRow(), -1);
    EXPECT_EQ(send(win::LVM_GETSELECTEDCOUNT), 0);
}

TEST_F(ListViewSelection, CheckBoxesBeginEmpty) {
    fill(2);
    addCheckBoxes();
    EXPECT_THAT(parent.takeNotices(),
                ElementsAre(change(0, 100, 0, unticked), change(1, 101, 0, unticked)));
    insert(2, "new");
    insertWithState(3, ticked, win::LVIS_STATEIMAGEMASK);
    EXPECT_THAT(states(), ElementsAre(unticked, unticked, unticked, unticked));
    EXPECT_THAT(parent.takeNotices(), IsEmpty());
}

TEST_F(ListViewSelection, CheckBoxesAreTickedByState) {
    addCheckBoxes();
    fill(2);
    EXPECT_TRUE(setState(1, ticked, win::LVIS_STATEIMAGEMASK));
    EXPECT_THAT(parent.takeNotices(), ElementsAre(change(1, 101, unticked, ticked)));
    EXPECT_THAT(states(), ElementsAre(unticked, ticked));
    EXPECT_TRUE(setState(-1, ticked, win::LVIS_STATEIMAGEMASK));
    EXPECT_THAT(states(), ElementsAre(ticked, ticked));
}

TEST_F(ListViewSelection, ATickIsKeptWithoutBoxesUntilTheyAppear) {
    fill(2);
    EXPECT_TRUE(setState(1, ticked, win::LVIS_STATEIMAGEMASK));
    EXPECT_THAT(states(), ElementsAre(0, ticked));
    addCheckBoxes();
    EXPECT_THAT(states(), ElementsAre(unticked, unticked));
    EXPECT_TRUE(setState(0, ticked, win::LVIS_STATEIMAGEMASK));
    addCheckBoxes();
    EXPECT_THAT(states(), ElementsAre(ticked, unticked));
    send(win::LVM_SETEXTENDEDLISTVIEWSTYLE, static_cast<int>(win::LVS_EX_CHECKBOXES),
         win::LPARAM{0});
    EXPECT_TRUE(setState(1, ticked, win::LVIS_STATEIMAGEMASK));
    EXPECT_THAT(states(), ElementsAre(ticked, ticked));
}

TEST_F(ListViewSelection, AClickSelectsARowAlone) {
    fill(4);
    setState(0, both, both);
    setState(1, selected, selected);
    win::SetFocus(parent.window());
    parent.takeNotices();
    clickOn(2, 1);
    EXPECT_EQ(win::GetFocus(), list);
    EXPECT_THAT(states(), ElementsAre(0, 0, both, 0));
    EXPECT_THAT(parent.takeNotices(),
                ElementsAre(change(0, 100, both, focused), change(1, 101, selected, 0),
                            change(0, 100, focused, 0), change(2, 102, 0, both),
                            Notice{.code = win::NM_CLICK, .item = 2, .column = 1, .param = 102}));
    EXPECT_EQ(parent.lastPoint.x, middle(2, 1).x);
    EXPECT_EQ(parent.lastPoint.y, middle(2, 1).y);
}

TEST_F(ListViewSelection, AClickOnOneOfSeveralSelectedRowsSelectsItAlone) {
    fill(3);
    setState(-1, selected, selected);
    clickOn(1);
    EXPECT_THAT(states(), ElementsAre(0, both, 0));
}

TEST_F(ListViewSelection, AClickWorksInASingleSelection) {
    makeSingle();
    fill(2);
    setState(0, both, both);
    clickOn(1);
    clickOn(1);
    EXPECT_THAT(states(), ElementsAre(0, both));
}

TEST_F(ListViewSelection, AClickBelowTheRowsTakesTheSelectionAway) {
    fill(2);
    setState(1, both, both);
    parent.takeNotices();
    click(list, 30, middle(1).y + 50);
    EXPECT_THAT(states(), ElementsAre(0, focused));
    EXPECT_THAT(takeClicks(), ElementsAre(Notice{.code = win::NM_CLICK, .item = -1}));
    click(list, 300, middle(1).y);
    EXPECT_THAT(takeClicks(), ElementsAre(Notice{.code = win::NM_CLICK, .item = -1, .column = -1}));
}

TEST_F(ListViewSelection, AReleaseWithoutAPressIsNoClick) {
    fill(1);
    release(list, 30, middle(0).y);
    EXPECT_THAT(parent.takeNotices(), IsEmpty());
}

TEST_F(ListViewSelection, ADoubleClickIsTold) {
    fill(2);
    clickOn(1);
    parent.takeNotices();
    secondClick(list, 30, middle(1).y);
    EXPECT_THAT(parent.takeNotices(),
                ElementsAre(Notice{.code = win::NM_DBLCLK, .item = 1, .param = 101}));
    secondClick(list, 30, middle(1).y + 50);
    EXPECT_THAT(parent.takeNotices(), ElementsAre(Notice{.code = win::NM_DBLCLK, .item = -1}));
}

TEST_F(ListViewSelection, ARightClickSelectsIsToldAndOffersAMenu) {
    fill(3);
    setState(0, both, both);
    parent.takeNotices();
    clickOn(1, 0, MouseButton::right);
    EXPECT_THAT(states(), ElementsAre(0, both, 0));
    EXPECT_THAT(takeClicks(), ElementsAre(Notice{.code = win::NM_RCLICK, .item = 1, .param = 101}));
    EXPECT_EQ(parent.contextMenus, 1);
}

TEST_F(ListViewSelection, ARightClickKeepsASelectionThatItFalls) {
    fill(3);
    setState(-1, selected, selected);
    clickOn(1, 0, MouseButton::right);
    EXPECT_THAT(states(), ElementsAre(selected, both, selected));
    click(list, 30, middle(2).y + 50, MouseButton::right);
    EXPECT_THAT(states(), ElementsAre(0, focused, 0));
}

TEST_F(ListViewSelection, AParentThatAnswersARightClickGetsNoMenu) {
    fill(1);
    parent.noticeAnswer = 1;
    click(list, 30, middle(0).y + 50, MouseButton::right);
    EXPECT_THAT(takeClicks(), ElementsAre(Notice{.code = win::NM_RCLICK, .item = -1}));
    EXPECT_EQ(parent.contextMenus, 0);
}

TEST_F(ListViewSelection, TheMenuKeyAndShiftF10AreTheParents) {
    fill(1);
    win::SetFocus(list);
    hand::keyDown(win::VK_APPS);
    hand::keyUp(win::VK_APPS);
    hand::settle();
    EXPECT_EQ(parent.contextMenus, 1);
    hand::keyDown(win::VK_SHIFT);
    hand::keyDown(win::VK_F10);
    hand::settle();
    hand::keyUp(win::VK_SHIFT);
    hand::settle();
    EXPECT_EQ(parent.contextMenus, 2);
}

TEST_F(ListViewSelection, AClickOnACheckBoxTurnsItOverAndSelectsNothing) {
    addCheckBoxes();
    fill(2);
    setState(0, both, both);
    parent.takeNotices();
    const int y = middle(1).y;
    click(list, 8, y);
    EXPECT_THAT(parent.takeNotices(),
                ElementsAre(Notice{.code = win::NM_CLICK, .item = 1, .param = 101},
                            change(1, 101, unticked, ticked)));
    EXPECT_THAT(states(), ElementsAre(unticked | both, ticked));
    click(list, 8, y);
    secondClick(list, 8, y);
    EXPECT_THAT(states(), ElementsAre(unticked | both, unticked));
    clickOn(1);
    EXPECT_THAT(states(), ElementsAre(unticked, unticked | both));
}

TEST_F(ListViewSelection, TheArrowsMoveFocusAndSelection) {
    fill(4);
    pressKey(list, win::VK_UP);
    EXPECT_EQ(focusedRow(), -1);
    parent.takeNotices();
    pressKey(list, win::VK_DOWN);
    EXPECT_THAT(parent.takeNotices(), ElementsAre(change(0, 100, 0, both)));
    pressKey(list, win::VK_DOWN);
    EXPECT_THAT(parent.takeNotices(),
                ElementsAre(change(0, 100, both, focused), change(0, 100, focused, 0),
                            change(1, 101, 0, both)));
    pressKey(list, win::VK_UP);
    pressKey(list, win::VK_UP);
    EXPECT_THAT(states(), ElementsAre(both, 0, 0, 0));
    pressKey(list, win::VK_END);
    pressKey(list, win::VK_DOWN);
    EXPECT_THAT(states(), ElementsAre(0, 0, 0, both));
    pressKey(list, win::VK_HOME);
    EXPECT_THAT(states(), ElementsAre(both, 0, 0, 0));
    parent.takeNotices();
    pressKey(list, win::VK_HOME);
    for (int key : {win::VK_ESCAPE, win::VK_LEFT, win::VK_RIGHT, win::VK_DELETE})
        pressKey(list, key);
    EXPECT_THAT(parent.takeNotices(), IsEmpty());
}

TEST_F(ListViewSelection, KeysFindNoRowInAnEmptyList) {
    for (int key : {win::VK_UP, win::VK_DOWN, win::VK_HOME, win::VK_END, win::VK_SPACE})
        pressKey(list, key);
    EXPECT_EQ(focusedRow(), -1);
    EXPECT_THAT(parent.takeNotices(), IsEmpty());
}

TEST_F(ListViewSelection, TheSpaceBarSelectsTheFocusedRowAlone) {
    fill(3);
    setState(0, selected, selected);
    setState(1, focused, focused);
    pressKey(list, win::VK_SPACE);
    typeLetter(list, ' ');
    EXPECT_THAT(states(), ElementsAre(0, both, 0));
}

TEST_F(ListViewSelection, TheSpaceBarTurnsACheckBoxOver) {
    addCheckBoxes();
    fill(2);
    setState(1, both, both);
    pressKey(list, win::VK_SPACE);
    EXPECT_THAT(states(), ElementsAre(unticked, ticked | both));
    pressKey(list, win::VK_SPACE);
    EXPECT_THAT(states(), ElementsAre(unticked, unticked | both));
}

}  // namespace
