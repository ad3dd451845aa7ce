// New groups and other names for groups, on both screens.
#include "store/group_commands.h"

#include "store/stack_file.h"
#include "tests/behaviour/group_fixture.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;
using testing::ElementsAre;
using testing::IsEmpty;

using GroupCommands = GroupFixture;

// New ----------------------------------------------------------------------------------

TEST_F(GroupCommands, TheQuestionStandsInsideTheMainWindowAndHoldsTheInterface) {
    openThree(2);
    Form3.Left(1500);
    Form3.Top(3000);
    Form3.Width(9000);
    Form3.Height(6000);
    mainOnTop = true;
    newGroup("D");
    EXPECT_EQ(asked.title, "New Group..");
    EXPECT_EQ(asked.text, "");
    EXPECT_EQ(asked.place.left, (1500 + 1500) / 15);
    EXPECT_EQ(asked.place.top, (3000 + 1200) / 15);
    EXPECT_EQ(asked.modal, 1);
    EXPECT_FALSE(asked.onTop);
    EXPECT_EQ(modalOpen, 0);
    EXPECT_TRUE(onTop());
}

TEST_F(GroupCommands, CancelAndAnEmptyNameMakeNoGroup) {
    openThree(2);
    newGroup("");
    driver::whenIdle([] {
        driver::key(win::VK_RETURN);
        win::PostMessageA(win::GetActiveWindow(), win::WM_NULL, 0, 0);
    });
    mnuNewCombo_Click();
    EXPECT_THAT(groupNames(), ElementsAre("A", "B", "C"));
    EXPECT_EQ(urlsDirty, 0);
    EXPECT_EQ(modalOpen, 0);
}

TEST_F(GroupCommands, ANewGroupOnTheStandardTabComesLastIsChosenAndShown) {
    openThree(2);
    Form3.mnuListAll.Checked = true;
    newGroup(" New ");
    EXPECT_THAT(comboTexts(), ElementsAre("A", "B", "C", " New "));
    EXPECT_EQ(Form3.Combo1[1].ListIndex(), 3);
    EXPECT_EQ(Form3.Combo1[1].ItemData(3), 3);
    EXPECT_FALSE(Form3.mnuListAll.Checked);
    EXPECT_THAT(titlesInView(), IsEmpty());
    EXPECT_EQ(urlsDirty, 1);
}

TEST_F(GroupCommands, ANewGroupOnThePickListIsSelectedAndShown) {
    openThree(1);
    newGroup("D");
    EXPECT_THAT(groupRows(), ElementsAre("A 0", "B 1", "C 2", "D 3"));
    EXPECT_EQ(Form3.ListView1[3].SelectedItem().position(), 4);
    EXPECT_EQ(Form3.tmpIDX, 3);
    EXPECT_THAT(titlesInView(), IsEmpty());
    EXPECT_EQ(urlsDirty, 1);
}

TEST_F(GroupCommands, TheFirstGroupAfterAResetComesUpUntickedTheOthersTicked) {
    openWith({});
    Form3.advMode = 0;
    IDXCount = 0;
    Form3.ListView1[3].CheckBoxes(true);
    newGroup("A");
    newGroup("B");
    EXPECT_FALSE(Form3.ListView1[3].Row(1).Checked());
    EXPECT_TRUE(Form3.ListView1[3].Row(2).Checked());
    EXPECT_TRUE(IDXList[0].Checked);
}

TEST_F(GroupCommands, GroupsMayBearTheSameName) {
    openThree(2);
    add("d", 3);
    newGroup("A");
    EXPECT_THAT(comboTexts(), ElementsAre("A", "B", "C", "A"));
    EXPECT_THAT(titlesInView(), ElementsAre("d"));
    pick(0);
    EXPECT_THAT(titlesInView(), ElementsAre("a"));
}

TEST_F(GroupCommands, ANameWithPlusIsTakenAndCutAtTheNextLoad) {
    openThree(2);
    add("d", 3);
    newGroup("C++ pages");
    EXPECT_EQ(IDXList[3].Name, "C++ pages");
    DePopulate();
    Populate();
    EXPECT_EQ(IDXList[3].Name, "C");
}

TEST_F(GroupCommands, TheMenuOfTheGroupListMakesANewGroupTheSameWay) {
    openThree(1);
    answer("D");
    mnuNewGroup_Click();
    EXPECT_THAT(groupNames(), ElementsAre("A", "B", "C", "D"));
}

TEST_F(GroupCommands, ANewGroupInASortedGroupListIsTheSelectedRowWhereverItStands) {
    openThree(1);
    answer("Zed");
    mnuRenameGroup_Click();
    newGroup("Beta");
    EXPECT_THAT(groupRows(), ElementsAre("B 1", "Beta 3", "C 2", "Zed 0"));
    EXPECT_EQ(Form3.ListView1[3].SelectedItem().Text(), "Beta");
    EXPECT_EQ(Form3.tmpIDX, 3);
    add("d", 3);
    EXPECT_THAT(refreshed(), ElementsAre("d"));
}

TEST_F(GroupCommands, OnlyTheIndexMaskTicksTheRowOfANewGroup) {
    for (const int face : {0, 1, 2}) {
        if (!Form3.loaded()) openThree(1);
        Form3.advMode = static_cast<std::uint8_t>(face);
        newGroup("D");
        const int last = Form3.ListView1[3].Count();
        EXPECT_EQ(Form3.ListView1[3].Row(last).Checked(), face == 0) << face;
        EXPECT_TRUE(IDXList[last - 1].Checked);
    }
}

// Rename -------------------------------------------------------------------------------

TEST_F(GroupCommands, RenamingOnTheStandardTabChangesTheGroupItsRowAndEveryRowInView) {
    openThree(2);
    Form3.mnuListAll.Checked = true;
    RefreshURLPage();
    answer("Beta");
    pick(1);
    Form3.mnuListAll.Checked = true;
    RefreshURLPage();
    mnuRenameCombo_Click();
    EXPECT_EQ(asked.title, "Rename Group..");
    EXPECT_EQ(asked.text, "B");
    EXPECT_THAT(groupNames(), ElementsAre("A", "Beta", "C"));
    EXPECT_THAT(comboTexts(), ElementsAre("A", "Beta", "C"));
    EXPECT_EQ(Form3.Combo1[1].ListIndex(), 1);
    EXPECT_EQ(Form3.Combo1[1].ItemData(1), 1);
    EXPECT_TRUE(Form3.mnuListAll.Checked) << "the row's new text is no click";
    for (int row = 1; row <= 3; ++row) EXPECT_EQ(rowTexts(row)[3], "Beta");
    EXPECT_EQ(urlsDirty, 1);
}

TEST_F(GroupCommands, RenamingOnTheStandardTabCountsRowsNotNumbers) {
    openThree(2);
    pick(0);
    removeCurrentGroup(false);
    newGroup("D");
    EXPECT_THAT(groupIds(), ElementsAre(0, 1, 3));
    EXPECT_EQ(Form3.Combo1[1].ItemData(2), 3);
    answer("Delta");
    mnuRenameCombo_Click();
    EXPECT_THAT(groupNames(), ElementsAre("B", "C", "Delta"));
}

TEST_F(GroupCommands, RenamingToNothingCountsAsCancel) {
    openThree(2);
    answer("");
    mnuRenameCombo_Click();
    EXPECT_THAT(groupNames(), ElementsAre("A", "B", "C"));
    EXPECT_EQ(urlsDirty, 0);
    clickTab(1);
    answer("");
    mnuRenameGroup_Click();
    EXPECT_THAT(groupNames(), ElementsAre("A", "B", "C"));
    EXPECT_EQ(modalOpen, 0);
    EXPECT_EQ(urlsDirty, 0);
}

TEST_F(GroupCommands, RenamingOnTheGroupListSortsItAndIsNoChangeOfTheStore) {
    openThree(1);
    pick(0);
    answer("Zed");
    mnuRenameGroup_Click();
    EXPECT_EQ(asked.title, "Rename Group..");
    EXPECT_EQ(asked.text, "A");
    EXPECT_THAT(groupNames(), ElementsAre("Zed", "B", "C"));
    EXPECT_THAT(groupRows(), ElementsAre("B 1", "C 2", "Zed 0"));
    EXPECT_EQ(Form3.ListView1[3].SelectedItem().Text(), "Zed");
    EXPECT_EQ(rowTexts(1)[3], "Zed");
    EXPECT_EQ(urlsDirty, 0);
}

TEST_F(GroupCommands, RenamingOnTheGroupListAloneIsNotSaved) {
    openThree(1);
    answer("Zed");
    mnuRenameGroup_Click();
    autoSaveURLs = true;
    const auto before = stackFile();
    Form1.unload();
    EXPECT_EQ(stackFile(), before);
}

TEST_F(GroupCommands, RenamingOnTheGroupListShowsTheNameInEveryRowUntilTheNextRefresh) {
    openThree(1);
    Form3.mnuListAll.Checked = true;
    RefreshURLPage();
    answer("Zed");
    mnuRenameGroup_Click();
    EXPECT_EQ(rowTexts(2)[3], "Zed");
    RefreshURLPage();
    EXPECT_EQ(rowTexts(2)[3], "B");
}

TEST_F(GroupCommands, RenamingOnTheGroupListIsSavedWithAnotherChange) {
    openThree(1);
    answer("Zed");
    mnuRenameGroup_Click();
    newGroup("D");
    EXPECT_EQ(urlsDirty, 1);
    autoSaveURLs = true;
    Form1.unload();
    EXPECT_THAT(stackFile().value(), testing::StartsWith("+Zed\r\n"));
}

// Sorted, a row stands elsewhere than its group.
TEST_F(GroupCommands, RenamingOnTheGroupListGoesByTheNumberOfTheRow) {
    openThree(1);
    answer("Zed");
    mnuRenameGroup_Click();
    ASSERT_THAT(groupRows(), ElementsAre("B 1", "C 2", "Zed 0"));
    pick(0);
    answer("Yes");
    mnuRenameGroup_Click();
    EXPECT_EQ(asked.text, "B");
    EXPECT_THAT(groupNames(), ElementsAre("Zed", "Yes", "C"));
    EXPECT_THAT(groupRows(), ElementsAre("C 2", "Yes 1", "Zed 0"));
}

TEST_F(GroupCommands, TheRenamedRowComesIntoSight) {
    openMany(60, 1);
    pick(0);
    EXPECT_TRUE(groupIsInSight());
    answer("Zed");
    mnuRenameGroup_Click();
    EXPECT_EQ(Form3.ListView1[3].SelectedItem().position(), 60);
    EXPECT_TRUE(groupIsInSight());
}

// The empty name is that of a line "+" in the stack file.
class UnnamedGroup : public GroupFixture, public testing::WithParamInterface<int> {};

TEST_P(UnnamedGroup, RenamedUnderASortByGroupChangesEveryRowInView) {
    openWith({""});
    Form3.advMode = 1;
    for (const char* name : {"1", "2", "3", "4", "5"}) add(name, 0);
    RefreshURLPage();
    if (GetParam() == 2) clickTab(2);
    ListView& list = Form3.ListView1[lvIndex];
    list.onColumnClick.raise(lvIndex, 4);
    ASSERT_TRUE(list.Sorted());
    answer("Zed");
    GetParam() == 2 ? mnuRenameCombo_Click() : mnuRenameGroup_Click();
    EXPECT_THAT(groupNames(), ElementsAre("Zed"));
    for (int row = 1; row <= 5; ++row) EXPECT_EQ(rowTexts(row)[3], "Zed") << row;
    EXPECT_THAT(titlesInView(), ElementsAre("1", "2", "3", "4", "5"));
}

INSTANTIATE_TEST_SUITE_P(Screens, UnnamedGroup, testing::Values(1, 2));

TEST_F(GroupCommands, RenamingAnEmptyGroupListFailsWithoutAQuestion) {
    openWith({});
    EXPECT_THROW(mnuRenameGroup_Click(), Failure);
    EXPECT_EQ(modalOpen, 0);
}

// The name was meant for a group of the window that asked.
TEST_F(GroupCommands, AWindowThatIsLoadedAnewUnderTheQuestionTakesNoName) {
    startAndOpen();
    for (const auto& command : {mnuNewGroup_Click, mnuRenameGroup_Click}) {
        driver::whenIdle([] {
            Form1.mFlush.onClick.raise(0);
            clickPad();
            ASSERT_TRUE(Form3.Visible());
            if (box() != nullptr) {
                driver::type("late");
                driver::key(win::VK_RETURN);
            }
            win::PostMessageA(win::GetActiveWindow(), win::WM_NULL, 0, 0);
        });
        command();
        EXPECT_THAT(groupNames(), ElementsAre("Reference", "Work"));
        EXPECT_EQ(urlsDirty, 0);
    }
}

}  // namespace
}  // namespace magpie
