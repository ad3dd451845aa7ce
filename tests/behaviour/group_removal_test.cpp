// Removing groups, on both screens.
#include "store/group_commands.h"
#include "store/stack_file.h"
#include "tests/behaviour/group_fixture.h"
#include "tests/unit/runtime/failure_of.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;
using testing::ElementsAre;
using testing::IsEmpty;

using GroupRemoval = GroupFixture;

TEST_F(GroupRemoval, RemovingAsksWithTheNumberOfRowsInView) {
    openThree(2);
    add("a2", 0);
    pick(0);
    mainOnTop = true;
    driver::onMessageBox([this](const driver::Box&) {
        asked.modal = modalOpen;
        asked.onTop = onTop();
        return win::IDYES;
    });
    mnuRemoveCombo_Click();
    const driver::Box& box = driver::messageBoxes().back();
    EXPECT_EQ(box.text,
              "Remove Selected Group?\r\n\r\nA\r\n\r\nThis will Delete 2 contained entries.");
    EXPECT_EQ(box.caption, "Magpie");
    EXPECT_EQ(box.type & 0xFF, win::MB_YESNO | win::MB_ICONWARNING);
    EXPECT_EQ(asked.modal, 1);
    EXPECT_FALSE(asked.onTop);
    EXPECT_EQ(modalOpen, 0);
    EXPECT_TRUE(onTop());
    EXPECT_THAT(groupNames(), ElementsAre("B", "C"));
}

TEST_F(GroupRemoval, RemovingWithNoAsTheAnswerChangesNothing) {
    openThree(2);
    driver::answerMessageBox(win::IDNO);
    mnuRemoveCombo_Click();
    EXPECT_THAT(groupNames(), ElementsAre("A", "B", "C"));
    EXPECT_EQ(uBlock.URLDatas().Count(), 3);
    EXPECT_EQ(urlsDirty, 0);
    EXPECT_EQ(modalOpen, 0);
}

TEST_F(GroupRemoval, RemovingTheFirstOfThreeMovesTheOthersUp) {
    openThree(2);
    pick(0);
    driver::answerMessageBox(win::IDYES);
    mnuRemoveCombo_Click();
    EXPECT_THAT(groupNames(), ElementsAre("B", "C"));
    EXPECT_THAT(groupIds(), ElementsAre(0, 1));
    EXPECT_EQ(IDXList[2].GroupID, -1);
    EXPECT_THAT(owners(), ElementsAre(0, 1));
    EXPECT_THAT(comboTexts(), ElementsAre("B", "C"));
    EXPECT_EQ(Form3.Combo1[1].ListIndex(), 0);
    EXPECT_THAT(titlesInView(), ElementsAre("b"));
    EXPECT_EQ(urlsDirty, 1);
}

TEST_F(GroupRemoval, ANewGroupAfterARemovalLeavesAGapUntilTheNextLoad) {
    openThree(1);
    pick(0);
    removeCurrentGroup(false);
    newGroup("D");
    EXPECT_THAT(groupNames(), ElementsAre("B", "C", "D"));
    EXPECT_THAT(groupIds(), ElementsAre(0, 1, 3));
    add("d", 2);
    DePopulate();
    Populate();
    EXPECT_THAT(groupIds(), ElementsAre(0, 1, 2));
}

TEST_F(GroupRemoval, OnTheStandardTabTheRowsBehindItTakeTheNewNumbersOfTheirGroups) {
    openThree(2);
    pick(1);
    removeCurrentGroup(false);
    EXPECT_EQ(Form3.Combo1[1].ItemData(0), 0);
    EXPECT_EQ(Form3.Combo1[1].ItemData(1), 1);
    pick(1);
    EXPECT_THAT(titlesInView(), ElementsAre("c"));
    removeCurrentGroup(false);
    EXPECT_THAT(groupNames(), ElementsAre("A"));
    EXPECT_THAT(comboTexts(), ElementsAre("A"));
    EXPECT_THAT(titlesInView(), ElementsAre("a"));
    EXPECT_THAT(owners(), ElementsAre(0));
}

TEST_F(GroupRemoval, RemovingAGroupWithNoRowsInViewAsksNothingAndTakesHiddenRecordsToo) {
    openThree(2);
    pick(1);
    ratedMask.fill(false);
    RefreshURLPage();
    EXPECT_THAT(titlesInView(), IsEmpty());
    mnuRemoveCombo_Click();
    EXPECT_THAT(groupNames(), ElementsAre("A", "C"));
    EXPECT_EQ(uBlock.URLDatas().Count(), 2);
    EXPECT_THAT(owners(), ElementsAre(0, 1));
    EXPECT_EQ(urlsDirty, 1);
}

// On either screen.
class OnlyGroup : public GroupFixture, public testing::WithParamInterface<int> {};

TEST_P(OnlyGroup, RemovingItEmptiesTheStoreAndIsNoChange) {
    openWith({"A"});
    Form3.advMode = 1;
    add("a", 0);
    RefreshURLPage();
    if (GetParam() == 2) clickTab(2);
    EXPECT_THAT(titlesInView(), ElementsAre("a"));
    urlsDirty = 0;
    driver::answerMessageBox(win::IDYES);
    mnuRemoveCombo_Click();
    EXPECT_THAT(groupNames(), IsEmpty());
    EXPECT_EQ(uBlock.URLDatas().Count(), 0);
    EXPECT_EQ(urlsDirty, 0);
    EXPECT_EQ(Form3.StatusBar1.Pane(2), "Total: 0");
}

INSTANTIATE_TEST_SUITE_P(Screens, OnlyGroup, testing::Values(1, 2));

TEST_F(GroupRemoval, RemovingOnTheGroupListGoesOnToTheNextGroup) {
    openThree(1);
    NewCatagory("D");
    rebuildGroupList(true);
    pick(1);
    driver::answerMessageBox(win::IDYES);
    mnuRemoveGroup_Click();
    EXPECT_THAT(groupRows(), ElementsAre("A 0", "C 1", "D 2"));
    EXPECT_EQ(Form3.ListView1[3].SelectedItem().Text(), "C");
    EXPECT_THAT(titlesInView(), ElementsAre("c"));
    EXPECT_EQ(urlsDirty, 1);
}

TEST_F(GroupRemoval, RemovingTheLastOrTheNextToLastGroupJumpsToTheTop) {
    openThree(1);
    NewCatagory("D");
    rebuildGroupList(true);
    pick(2);
    removeCurrentGroup(false);
    EXPECT_EQ(Form3.ListView1[3].SelectedItem().Text(), "A");
    pick(2);
    removeCurrentGroup(false);
    EXPECT_EQ(Form3.ListView1[3].SelectedItem().Text(), "A");
    EXPECT_THAT(groupRows(), ElementsAre("A 0", "B 1"));
    EXPECT_THAT(titlesInView(), ElementsAre("a"));
}

TEST_F(GroupRemoval, RemovingWithNoGroupSelectedFailsAndChangesNothing) {
    openThree(2);
    Form3.Combo1[1].ListIndex(-1);
    EXPECT_THROW(mnuRemoveCombo_Click(), Failure);
    EXPECT_THAT(groupNames(), ElementsAre("A", "B", "C"));
    EXPECT_EQ(urlsDirty, 0);
}

TEST_F(GroupRemoval, ItAsksByTheNameOfTheSelectedRowOfTheGroupList) {
    openThree(1);
    pick(1);
    driver::answerMessageBox(win::IDNO);
    mnuRemoveGroup_Click();
    EXPECT_EQ(driver::messageBoxes().back().text,
              "Remove Selected Group?\r\n\r\nB\r\n\r\nThis will Delete 1 contained entries.");
}

// What the list shows is counted, and not what the group holds.
TEST_F(GroupRemoval, WithEveryGroupListedItTellsOfAllRowsInView) {
    openThree(2);
    pick(1);
    Form3.mnuListAll.Checked = true;
    RefreshURLPage();
    driver::answerMessageBox(win::IDYES);
    mnuRemoveCombo_Click();
    EXPECT_EQ(driver::messageBoxes().back().text,
              "Remove Selected Group?\r\n\r\nB\r\n\r\nThis will Delete 3 contained entries.");
    EXPECT_THAT(owners(), ElementsAre(0, 1));
}

TEST_F(GroupRemoval, TheAnswerNoPutsTheMainWindowBackOnTop) {
    openThree(2);
    mainOnTop = true;
    driver::onMessageBox([this](const driver::Box&) {
        asked.onTop = onTop();
        return win::IDNO;
    });
    mnuRemoveCombo_Click();
    EXPECT_FALSE(asked.onTop);
    EXPECT_TRUE(onTop());
    EXPECT_EQ(modalOpen, 0);
}

TEST_F(GroupRemoval, OnTheStandardTabTheNextGroupIsChosenAsByTheUser) {
    openThree(2);
    pick(1);
    Form3.mnuListAll.Checked = true;
    removeCurrentGroup(false);
    EXPECT_EQ(Form3.Combo1[1].ListIndex(), 0);
    EXPECT_FALSE(Form3.mnuListAll.Checked);
    EXPECT_THAT(titlesInView(), ElementsAre("a"));
    EXPECT_EQ(Form3.StatusBar1.Pane(1), "Viewed: 1");
}

// With more groups than the drop-down list shows.
TEST_F(GroupRemoval, OnTheStandardTabTheRowOnTopOfTheDropDownListIsNext) {
    openMany(40, 2);
    pick(37);
    const int top = Form3.Combo1[1].TopIndex();
    ASSERT_GT(top, 0);
    ASSERT_LT(top, 37);
    removeCurrentGroup(false);
    EXPECT_EQ(Form3.Combo1[1].ListIndex(), top);
    EXPECT_THAT(titlesInView(), ElementsAre("record " + Form3.Combo1[1].List(top)));
    pick(10);
    removeCurrentGroup(false);
    EXPECT_EQ(Form3.Combo1[1].ListIndex(), 10);
    EXPECT_EQ(Form3.Combo1[1].List(10), "11");
    EXPECT_THAT(titlesInView(), ElementsAre("record 11"));
    EXPECT_EQ(uBlock.URLDatas().Count(), 38);
}

TEST_F(GroupRemoval, TheOnlyGroupsRowsStayInViewUntilTheNextRefresh) {
    openWith({"A"});
    Form3.advMode = 1;
    add("a", 0);
    RefreshURLPage();
    removeCurrentGroup(false);
    EXPECT_EQ(Form3.ListView1[3].Count(), 0);
    EXPECT_THAT(titlesInView(), ElementsAre("a"));
    EXPECT_EQ(Form3.StatusBar1.Pane(1), "Viewed: 1");
    EXPECT_EQ(Form3.StatusBar1.Pane(2), "Total: 0");
}

TEST_F(GroupRemoval, TheGroupThatIsNextComesIntoSight) {
    openMany(60, 1);
    pick(50);
    removeCurrentGroup(false);
    EXPECT_EQ(Form3.ListView1[3].SelectedItem().Text(), "51");
    EXPECT_TRUE(groupIsInSight());
    pick(58);
    removeCurrentGroup(false);
    EXPECT_EQ(Form3.ListView1[3].SelectedItem().Text(), "00");
    EXPECT_TRUE(groupIsInSight());
}

TEST_F(GroupRemoval, WithAnEmptyGroupListItFailsAndAsksNothing) {
    openWith({});
    Form3.advMode = 1;
    add("kept", 5);
    urlsDirty = 0;
    EXPECT_EQ(failureOf([] { removeCurrentGroup(true); }), failure::objectNotSet);
    EXPECT_EQ(uBlock.URLDatas().Count(), 1);
    EXPECT_EQ(urlsDirty, 0);
    EXPECT_EQ(modalOpen, 0);
    EXPECT_THAT(driver::messageBoxes(), IsEmpty());
}

// Behind a gap a row's number is above its group's position, and the number is what counts: the
// last element goes, which leaves the group's own one for the spare, and its records, which have
// the position, without a group.
TEST_F(GroupRemoval, AGroupBehindAGapGoesWithoutItsRecords) {
    openThree(2);
    pick(0);
    removeCurrentGroup(false);
    newGroup("D");
    ASSERT_THAT(groupIds(), ElementsAre(0, 1, 3));
    add("d", 2);
    EXPECT_THAT(owners(), ElementsAre(0, 1, 2));
    ASSERT_EQ(Form3.Combo1[1].ListIndex(), 2);
    removeCurrentGroup(false);
    EXPECT_THAT(groupNames(), ElementsAre("B", "C"));
    EXPECT_EQ(IDXList[2].Name, "D");
    EXPECT_THAT(owners(), ElementsAre(0, 1, 2));
    EXPECT_THAT(comboTexts(), ElementsAre("B", "C"));
}

}  // namespace
}  // namespace magpie
