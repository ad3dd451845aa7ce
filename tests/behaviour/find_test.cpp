// Find: the search itself and the commands that repeat it.
#include "views/find.h"

#include "platform/runtime/failure.h"
#include "tests/behaviour/find_fixture.h"
#include "tests/unit/runtime/failure_of.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;
using testing::ElementsAre;
using testing::IsEmpty;

class FindText : public FindFixture {
public:
    // Where the first row stands in the list, in pixels.
    static win::LONG topOfFirstRow() {
        win::RECT place{};
        place.left = win::LVIR_BOUNDS;
        win::SendMessageA(list().hWnd(), win::LVM_GETITEMRECT, 0,
                          reinterpret_cast<win::LPARAM>(&place));
        return place.top;
    }
};

// The state messages that reach the list.
struct StateMessage {
    int row;
    win::UINT state;
    win::UINT mask;
    bool operator==(const StateMessage&) const = default;
};

std::vector<StateMessage> stateMessages;
win::WNDPROC listenedTo = nullptr;

win::LRESULT listen(win::HWND window, win::UINT message, win::WPARAM wParam, win::LPARAM lParam) {
    if (message == win::LVM_SETITEMSTATE) {
        const auto* item = reinterpret_cast<const win::LVITEMA*>(lParam);
        stateMessages.push_back({static_cast<int>(wParam), item->state, item->stateMask});
    }
    return win::CallWindowProcA(listenedTo, window, message, wParam, lParam);
}

// The way through the list -----------------------------------------------------------------

TEST_F(FindText, TheNextRowWithTheTextTakesTheSelection) {
    open({"one", "two", "three", "one more"});
    findRow("one", 0);
    EXPECT_THAT(selected(), ElementsAre(3));
    EXPECT_EQ(focused(), 3);
}

// No selected row is kept then, and the search begins behind the first row.
TEST_F(FindText, WithTheFocusMarkOnARowThatIsNotSelectedTheSearchBeginsAtTheTop) {
    open({"one", "one", "two", "one"});
    select({2, 3});
    list().Row(1).Selected(false);
    list().Row(4).Selected(false);
    ASSERT_THAT(selected(), ElementsAre(2));
    ASSERT_EQ(focused(), 3);
    findRow("one", 0);
    EXPECT_THAT(selected(), ElementsAre(1));
    EXPECT_EQ(focused(), 1);
}

TEST_F(FindText, UpwardsTheRowBeforeIsTaken) {
    open({"one", "two", "one more", "three"});
    select({3});
    list().Row(1).Selected(false);
    findRow("one", 1);
    EXPECT_THAT(selected(), ElementsAre(2));
    findRow("one", 1);
    EXPECT_THAT(selected(), ElementsAre(0));
}

TEST_F(FindText, TheStartRowItselfIsNeverTested) {
    open({"one", "two"});
    findRow("one", 0);
    findRow("one", 1);
    EXPECT_THAT(selected(), ElementsAre(0));
}

TEST_F(FindText, OnTheLastRowDownwardsNothingChanges) {
    open({"one", "one", "one"});
    select({2});
    list().Row(1).Selected(false);
    findRow("one", 0);
    EXPECT_THAT(selected(), ElementsAre(2));
    EXPECT_EQ(focused(), 2);
}

TEST_F(FindText, OnTheFirstRowUpwardsNothingChanges) {
    open({"one", "one"});
    findRow("one", 1);
    EXPECT_THAT(selected(), ElementsAre(0));
}

TEST_F(FindText, OffTheEndThereIsNoWrapNoMessageAndNoBeep) {
    open({"x", "one", "two", "three"});
    select({2});
    list().Row(1).Selected(false);
    findRow("one", 0);
    EXPECT_THAT(selected(), ElementsAre(2));
    EXPECT_EQ(driver::beeps(), 0);
    EXPECT_THAT(driver::messageBoxes(), IsEmpty());
}

TEST_F(FindText, SeveralSelectedRowsAreCutDownToTheItemBeforeTheSearch) {
    open({"one", "two", "one more", "three", "once"});
    select({0, 3, 1});
    findRow("one", 0);
    EXPECT_THAT(selected(), ElementsAre(2));
    select({0, 4});
    findRow("none of them", 0);
    EXPECT_THAT(selected(), ElementsAre(4));
}

// Of rows that look alike every one keeps its mark and the last is where the search starts.
TEST_F(FindText, RowsThatLookLikeTheItemStaySelected) {
    open({"same", "same", "one"});
    select({1, 0});
    findRow("one", 0);
    EXPECT_THAT(selected(), ElementsAre(0, 2));
}

TEST_F(FindText, WithoutATextNothingHappens) {
    open({"one", "two"});
    select({1, 0});
    findRow("", 0);
    EXPECT_THAT(selected(), ElementsAre(0, 1));
}

TEST_F(FindText, WithoutASelectedRowNothingHappens) {
    open({"one", "one"});
    list().Row(1).Selected(false);
    findRow("one", 0);
    EXPECT_THAT(selected(), IsEmpty());
    EXPECT_EQ(focused(), 0);
}

TEST_F(FindText, OnlyTheRowsInViewAreSearched) {
    open({"one", "two", "hidden"});
    uBlock.URLDatas().Item(3).Rated = 4;
    ratedMask[4] = false;
    RefreshURLPage();
    select({0});
    findRow("hidden", 0);
    EXPECT_THAT(selected(), ElementsAre(0));
}

TEST_F(FindText, ADirectionOtherThanUpIsDown) {
    open({"one", "two", "one"});
    findRow("one", 7);
    EXPECT_THAT(selected(), ElementsAre(2));
}

// The text ---------------------------------------------------------------------------------

TEST_F(FindText, AStarMatchesEveryTitleSoTheNextRowIsTaken) {
    open({"one", "", "three"});
    findRow("*", 0);
    EXPECT_THAT(selected(), ElementsAre(1));
    findRow("*", 0);
    EXPECT_THAT(selected(), ElementsAre(2));
    findRow("*", 1);
    EXPECT_THAT(selected(), ElementsAre(1));
}

TEST_F(FindText, TheCaseOfTextAndTitleIsIgnored) {
    open({"x", "Lower", "UPPER", "\xC4rger"});
    findRow("uPPer", 0);
    EXPECT_THAT(selected(), ElementsAre(2));
    findRow("l", 1);
    EXPECT_THAT(selected(), ElementsAre(1));
    findRow("\xE4", 0);
    EXPECT_THAT(selected(), ElementsAre(3));
}

TEST_F(FindText, TheWildcardsAreActive) {
    open({"x", "bat", "a1", "cut", "a-b"});
    for (const auto& [text, row] : {std::pair{"b?t", 1}, {"a#", 2}, {"c[!a]t", 3}, {"a[-]b", 4}}) {
        findRow(text, 0);
        EXPECT_THAT(selected(), ElementsAre(row)) << text;
    }
}

TEST_F(FindText, OnlyTheTitleIsSearched) {
    open({"one", "two"});
    findRow("http", 0);
    findRow("Not Rated", 0);
    EXPECT_THAT(selected(), ElementsAre(0));
}

TEST_F(FindText, SpacesAtTheEndsAreTakenAsTheyAre) {
    open({"x", "one", "one "});
    findRow("one ", 0);
    EXPECT_THAT(selected(), ElementsAre(2));
}

TEST_F(FindText, ATitleIsSearchedAsFarAsTheListHandsItOut) {
    open({"x"});
    add(std::string(254, 'a') + "end");
    add(std::string(251, 'a') + "end");
    RefreshURLPage();
    select({0});
    findRow("end", 0);
    EXPECT_THAT(selected(), ElementsAre(2));
}

TEST_F(FindText, AnInvalidPatternEndsTheSearchWithTheSelectionCutDown) {
    open({"one", "two", "three"});
    select({2, 0});
    EXPECT_EQ(failureOf([] { findRow("[", 0); }), failure::invalidPattern);
    EXPECT_THAT(selected(), ElementsAre(0));
    EXPECT_EQ(focused(), 0);
}

TEST_F(FindText, AnInvalidPatternIsNotReadWithoutATitleToHoldAgainstIt) {
    open({"one", "two"});
    EXPECT_EQ(failureOf([] { findRow("[", 1); }), 0);
    EXPECT_THAT(selected(), ElementsAre(0));
}

TEST_F(FindText, AnItemWhoseRecordHasGoneEndsTheSearch) {
    open({"one", "one"});
    uBlock.URLDatas().Delete(1);
    EXPECT_EQ(failureOf([] { findRow("one", 0); }), failure::invalidCall);
    EXPECT_THAT(selected(), ElementsAre(0));
}

// The marks --------------------------------------------------------------------------------

TEST_F(FindText, ThreeStateMessagesMoveTheSelection) {
    open({"one", "two", "one"});
    listenedTo = reinterpret_cast<win::WNDPROC>(win::SetWindowLongPtrA(
        list().hWnd(), win::GWLP_WNDPROC, reinterpret_cast<win::LONG_PTR>(&listen)));
    findRow("one", 0);
    EXPECT_THAT(stateMessages, ElementsAre(StateMessage{0, 0, 2}, StateMessage{2, 2, 2},
                                           StateMessage{2, 0x1013, 0x1013}));
    EXPECT_EQ(win::SendMessageA(list().hWnd(), win::LVM_GETITEMSTATE, 2, 0xFFFF), 0x1013);
    stateMessages.clear();
    findRow("one", 0);
    EXPECT_THAT(stateMessages, IsEmpty());
}

TEST_F(FindText, ARowThatIsOutOfSightStaysThere) {
    openWith({"A"});
    for (int i = 0; i < 300; ++i) add("row " + std::to_string(i));
    RefreshURLPage();
    select({0});
    const win::LONG top = topOfFirstRow();
    findRow("299", 0);
    EXPECT_THAT(selected(), ElementsAre(299));
    EXPECT_EQ(topOfFirstRow(), top);
    list().Row(300).EnsureVisible();
    const win::LONG topAtTheEnd = topOfFirstRow();
    ASSERT_LT(topAtTheEnd, top);
    findRow("row 1", 1);
    EXPECT_THAT(selected(), ElementsAre(199));
    EXPECT_EQ(topOfFirstRow(), topAtTheEnd);
}

// The found row is the list's selected item, so that commands go on from there.
TEST_F(FindText, TheFoundRowIsTheSelectedItem) {
    open({"one", "two", "three"});
    findRow("three", 0);
    EXPECT_EQ(list().SelectedItem().Text(), "three");
}

TEST_F(FindText, TheKeyboardStaysWhereItIs) {
    open({"one", "two", "one"});
    Form3.tbStrip.SetFocus();
    findRow("one", 0);
    EXPECT_EQ(win::GetFocus(), Form3.tbStrip.hWnd());
}

// The commands -----------------------------------------------------------------------------

TEST_F(FindText, TheCommandsRepeatTheLastTextDownAndUp) {
    open({"one", "two", "one", "two"});
    findText = "two";
    mnuFind_Click(1);
    EXPECT_THAT(selected(), ElementsAre(1));
    mnuFind_Click(1);
    EXPECT_THAT(selected(), ElementsAre(3));
    mnuFind_Click(2);
    EXPECT_THAT(selected(), ElementsAre(1));
    mnuFind_Click(2);
    EXPECT_THAT(selected(), ElementsAre(1));
}

TEST_F(FindText, TheCommandsDoNothingBeforeAFirstSearch) {
    open({"one", "two"});
    mnuFind_Click(1);
    mnuFind_Click(2);
    EXPECT_THAT(selected(), ElementsAre(0));
}

TEST_F(FindText, WithoutRowsNoCommandDoesAnything) {
    open({});
    findText = "one";
    for (const int Index : {0, 1, 2}) mnuFind_Click(Index);
    EXPECT_FALSE(Find.loaded());
    EXPECT_EQ(modalOpen, 0);
}

TEST_F(FindText, TheCommandsGoByTheListInView) {
    open({"one", "two", "one"});
    findText = "one";
    clickTab(2);
    select({0});
    mnuFind_Click(1);
    EXPECT_EQ(lvIndex, 1);
    EXPECT_THAT(selected(), ElementsAre(2));
}

TEST_F(FindText, TheLastTextSurvivesAFlush) {
    open({"one"});
    findText = "two";
    driver::choose("Flush to Tray");
    driver::click(Form3.Command3[1].hWnd(), driver::middleOf(Form3.Command3[1].hWnd()));
    driver::pump();
    ASSERT_FALSE(Form3.loaded());
    clickPad();
    EXPECT_EQ(findText, "two");
}

}  // namespace
}  // namespace magpie
