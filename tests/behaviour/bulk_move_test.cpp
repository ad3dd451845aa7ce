// "Move" in the menu of the record lists: what it does to rows and records.
#include "entries/bulk_list.h"
#include "platform/controls/control_failure.h"
#include "tests/behaviour/bulk_fixture.h"
#include "tests/unit/runtime/failure_of.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;
using testing::ElementsAre;
using testing::IsEmpty;

class BulkMove : public BulkFixture {
public:
    // What the side panel's face to come back to makes of a move.
    static void keepToASingleGroup(bool single) { savedAdvMode = single ? 1 : 0; }

    static int failureOfMoving(int group) {
        return failureOf([group] {
            MoveSelected(group, false);
            return 0;
        });
    }
};

TEST_F(BulkMove, InTheListOfASingleGroupRowsThatLeaveItGo) {
    open({"1", "2", "3"});
    keepToASingleGroup(true);
    select({0, 2});
    moveTo("B");
    EXPECT_THAT(titlesInView(), ElementsAre("2"));
    EXPECT_THAT(owners(), ElementsAre(1, 0, 1));
    EXPECT_EQ(urlsDirty, 2);
}

TEST_F(BulkMove, InTheListOfASingleGroupAMoveToThatGroupChangesNothingInView) {
    open({"1", "2", "3"});
    keepToASingleGroup(true);
    select({0, 1});
    moveTo("A");
    EXPECT_THAT(titlesInView(), ElementsAre("1", "2", "3"));
    EXPECT_THAT(column(3), ElementsAre("A", "A", "A"));
    EXPECT_THAT(selected(), ElementsAre(0, 1));
    EXPECT_THAT(owners(), ElementsAre(0, 0, 0));
    EXPECT_EQ(urlsDirty, 2);
}

TEST_F(BulkMove, ElseTheRowsStayUnderTheNameOfTheirNewGroup) {
    open({"1", "2", "3"});
    keepToASingleGroup(false);
    select({0, 2});
    moveTo("B");
    EXPECT_THAT(titlesInView(), ElementsAre("1", "2", "3"));
    EXPECT_THAT(column(3), ElementsAre("B", "A", "B"));
    EXPECT_THAT(selected(), IsEmpty());
    EXPECT_THAT(owners(), ElementsAre(1, 0, 1));
    EXPECT_EQ(urlsDirty, 2);
}

TEST_F(BulkMove, TheMovedRowsAreInStepWithTheirRecords) {
    open({"1", "2"});
    keepToASingleGroup(false);
    select({0, 1});
    moveTo("B");
    select({0, 1});
    choose("Low");
    EXPECT_THAT(ratings(), ElementsAre(1, 1));
}

TEST_F(BulkMove, TheFocusStaysOnItsRowOrAtItsPlace) {
    open({"1", "2", "3"});
    keepToASingleGroup(false);
    select({0, 1});
    moveTo("B");
    EXPECT_EQ(focused(), 1);
    keepToASingleGroup(true);
    select({1});
    MoveSelected(1, false);
    EXPECT_EQ(focused(), 1);
    EXPECT_EQ(records().SelectedItem().Text(), "3");
    select({1});
    MoveSelected(1, false);
    EXPECT_EQ(focused(), 0);
}

TEST_F(BulkMove, OnTheStandardTabTheGroupOfTheDropDownIsTheOneInView) {
    open({"1", "2"});
    clickTab(2);
    refresh();
    keepToASingleGroup(true);
    select({0});
    moveTo("A");
    EXPECT_THAT(titlesInView(), ElementsAre("1", "2"));
    moveTo("B");
    EXPECT_THAT(titlesInView(), ElementsAre("2"));
}

TEST_F(BulkMove, WithNothingSelectedTheStoreCountsAsChanged) {
    open({"1"});
    moveTo("B");
    EXPECT_THAT(owners(), ElementsAre(0));
    EXPECT_EQ(urlsDirty, 2);
}

TEST_F(BulkMove, WithoutAGroupInViewNothingMoves) {
    open({"1"});
    select({0});
    groups().Clear();
    EXPECT_EQ(failureOfMoving(1), failure::objectNotSet);
    clickTab(2);
    Form3.Combo1[1].Clear();
    EXPECT_EQ(failureOfMoving(1), failure::invalidProperty);
    EXPECT_THAT(owners(), ElementsAre(0));
    EXPECT_EQ(urlsDirty, 0);
}

TEST_F(BulkMove, AGroupThatDoesNotExistFailsWhenTheFirstRecordIsInIt) {
    open({"1", "2"});
    keepToASingleGroup(false);
    select({0, 1});
    EXPECT_EQ(failureOfMoving(7), failure::subscript);
    EXPECT_THAT(owners(), ElementsAre(7, 0));
    EXPECT_THAT(column(3), ElementsAre("A", "A"));
    EXPECT_THAT(selected(), ElementsAre(1));
    EXPECT_EQ(urlsDirty, 0);
}

// Both rows show a record of the group "Same", and the first such record is the one that the
// first row has just moved.
TEST_F(BulkMove, BetweenGroupsOfOneNameTheFirstRecordIsFoundForEveryRow) {
    openWith({"Same", "Same"});
    add("1");
    add("1");
    refresh();
    keepToASingleGroup(false);
    select({0, 1});
    MoveSelected(1, false);
    EXPECT_THAT(owners(), ElementsAre(1, 0));
    EXPECT_THAT(selected(), IsEmpty());
}

TEST_F(BulkMove, InAListOfAllGroupsARecordOfAGroupOfTheSameNameIsAsGood) {
    openWith({"Same", "Other", "Same"});
    add("1", 2);
    add("1", 0);
    listAll();
    refresh();
    keepToASingleGroup(false);
    select({1});
    MoveSelected(1, false);
    EXPECT_THAT(owners(), ElementsAre(1, 0));
    EXPECT_THAT(column(3), ElementsAre("Same", "Other"));
}

TEST_F(BulkMove, TheQuestionThatIsOfferedIsNeverPut) {
    open({"1"});
    keepToASingleGroup(false);
    select({0});
    MoveSelected(1, true);
    EXPECT_THAT(owners(), ElementsAre(1));
    EXPECT_THAT(driver::messageBoxes(), IsEmpty());
}

// With "List All" ticked the pick list shows rows of other groups, too.
TEST_F(BulkMove, RowsOfOtherGroupsThatComeIntoTheOneInViewShowItsName) {
    openWith({"A", "B"});
    Form3.advMode = 1;
    savedAdvMode = 1;
    add("a", 0);
    add("b", 1);
    chooseFrom(clickMenuButton, "List All");
    ASSERT_THAT(titlesInView(), ElementsAre("a", "b"));
    select({1});
    moveTo("A");
    EXPECT_THAT(owners(), ElementsAre(0, 0));
    EXPECT_THAT(column(3), ElementsAre("A", "A"));
    EXPECT_FALSE(frmMove.loaded());
}

TEST_F(BulkMove, AClickInTheGroupListMakesTheRowsLeaveThatAreMovedElsewhere) {
    openWith({"A", "B"});
    Form3.advMode = 1;
    savedAdvMode = 0;
    for (const char* name : {"1", "2"}) add(name, 0);
    clickRow(groups(), 1, win::memory::driver::Button::left);
    win::memory::driver::pump();
    EXPECT_EQ(savedAdvMode, 1);
    select({0});
    moveTo("B");
    EXPECT_THAT(titlesInView(), ElementsAre("2"));
    EXPECT_THAT(owners(), ElementsAre(1, 0));
}

}  // namespace
}  // namespace magpie
