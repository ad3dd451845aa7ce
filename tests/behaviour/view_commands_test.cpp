// What brings a refresh about: groups, ticks, keys, buttons, and the two wrappers.
#include "views/view_commands.h"

#include "entries/list_events.h"
#include "tests/behaviour/view_fixture.h"
#include "views/refresh.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;
using testing::ElementsAre;
using testing::IsEmpty;

class ViewCommands : public ViewFixture {
public:
    // Two groups with a record each.
    static void open() {
        openWith({"A", "B"});
        add("a", 0);
        add("b", 1);
        RefreshURLPage();
    }

    static void clickButton(Button& button) {
        driver::click(button.hWnd(), driver::middleOf(button.hWnd()));
        driver::pump();
    }

    // A click on the text of a row of the group list.
    static void clickGroup(int row) {
        win::RECT place{};
        place.left = win::LVIR_BOUNDS;
        win::SendMessageA(Form3.ListView1[3].hWnd(), win::LVM_GETITEMRECT,
                          static_cast<win::WPARAM>(row - 1), reinterpret_cast<win::LPARAM>(&place));
        driver::click(Form3.ListView1[3].hWnd(), {place.left + 30, (place.top + place.bottom) / 2});
        driver::pump();
    }

    static void choose(const std::string& caption) {
        driver::choose(caption);
        clickButton(currentTab == 1 ? Form3.Command3[1] : Form3.Command1[1]);
    }

    static std::vector<std::string> groupNames() {
        std::vector<std::string> names;
        for (int row = 1; row <= Form3.ListView1[3].Count(); ++row)
            names.push_back(Form3.ListView1[3].Row(row).Text());
        return names;
    }
};

// Triggers -----------------------------------------------------------------------------

TEST_F(ViewCommands, PickingAGroupOnTheStandardTabUnticksListAll) {
    open();
    clickTab(2);
    choose("List All");
    EXPECT_TRUE(Form3.mnuListAll.Checked);
    EXPECT_THAT(titlesInView(), ElementsAre("a", "b"));
    Form3.Combo1[1].SetFocus();
    driver::key(win::VK_DOWN);
    driver::pump();
    EXPECT_FALSE(Form3.mnuListAll.Checked);
    EXPECT_THAT(titlesInView(), ElementsAre("b"));
}

TEST_F(ViewCommands, ListAllTogglesAndRefreshes) {
    open();
    EXPECT_THAT(titlesInView(), ElementsAre("a"));
    choose("List All");
    EXPECT_THAT(titlesInView(), ElementsAre("a", "b"));
    choose("List All");
    EXPECT_FALSE(Form3.mnuListAll.Checked);
    EXPECT_THAT(titlesInView(), ElementsAre("a"));
}

TEST_F(ViewCommands, AClickOnAGroupShowsItsRecordsAndUnticksListAll) {
    open();
    Form3.mnuListAll.Checked = true;
    clickGroup(2);
    EXPECT_THAT(titlesInView(), ElementsAre("b"));
    EXPECT_FALSE(Form3.mnuListAll.Checked);
    EXPECT_EQ(Form3.tmpIDX, 1);
}

TEST_F(ViewCommands, TheArrowKeysInTheGroupListShowTheGroupThatTheyReach) {
    open();
    Form3.ListView1[3].SetFocus();
    driver::key(win::VK_DOWN);
    driver::pump();
    EXPECT_THAT(titlesInView(), ElementsAre("b"));
    driver::key(win::VK_UP);
    driver::pump();
    EXPECT_THAT(titlesInView(), ElementsAre("a"));
}

TEST_F(ViewCommands, OtherKeysInTheGroupListRefreshNothing) {
    open();
    uBlock.URLDatas().Clear();
    for (int key : {win::VK_RETURN, win::VK_ESCAPE}) ListView1_KeyUp(3, key, 0);
    EXPECT_THAT(titlesInView(), ElementsAre("a"));
    ListView1_KeyUp(3, win::VK_UP, 0);
    EXPECT_THAT(titlesInView(), IsEmpty());
}

TEST_F(ViewCommands, EnterInTheTextMaskRefreshesAndTypingAloneDoesNot) {
    open();
    Form3.advMode = 1;
    clickButton(Form3.Command3[2]);
    EXPECT_EQ(Form3.advMode, 2);
    Form3.txtFilter.SetFocus();
    driver::type("B");
    driver::pump();
    EXPECT_THAT(titlesInView(), ElementsAre("a"));
    driver::key(win::VK_RETURN);
    driver::pump();
    EXPECT_THAT(titlesInView(), ElementsAre("b"));
}

TEST_F(ViewCommands, FilterTakesTheTicksAndRefreshes) {
    open();
    clickButton(Form3.Command3[0]);
    EXPECT_EQ(Form3.advMode, 0);
    rebuildGroupList(true);
    Form3.ListView1[3].Row(1).Checked(false);
    EXPECT_TRUE(IDXList[0].Checked);
    EXPECT_THAT(titlesInView(), ElementsAre("a"));
    clickButton(Form3.cmdIndex[2]);
    EXPECT_FALSE(IDXList[0].Checked);
    EXPECT_TRUE(IDXList[1].Checked);
    EXPECT_THAT(titlesInView(), ElementsAre("b"));
}

TEST_F(ViewCommands, SetAllAndClearTickWithoutARefresh) {
    open();
    clickButton(Form3.Command3[0]);
    clickButton(Form3.cmdIndex[1]);
    EXPECT_FALSE(IDXList[0].Checked || IDXList[1].Checked);
    EXPECT_FALSE(Form3.ListView1[3].Row(1).Checked());
    EXPECT_THAT(titlesInView(), ElementsAre("a"));
    clickButton(Form3.cmdIndex[0]);
    EXPECT_TRUE(IDXList[0].Checked && IDXList[1].Checked);
    EXPECT_THAT(titlesInView(), ElementsAre("a"));
    RefreshURLPage();
    EXPECT_THAT(titlesInView(), ElementsAre("a", "b"));
}

TEST_F(ViewCommands, ApplyFilterRefreshesAndRemembersTheFace) {
    open();
    savedAdvMode = 1;
    clickButton(Form3.Command3[2]);
    Form3.txtFilter.Text("b");
    clickButton(Form3.cmdIndex[3]);
    EXPECT_THAT(titlesInView(), ElementsAre("b"));
    EXPECT_EQ(savedAdvMode, 2);
}

// The wrappers -------------------------------------------------------------------------

TEST_F(ViewCommands, TheTabViewIsRebuiltWithItsGroups) {
    open();
    clickTab(2);
    NewCatagory("C");
    add("a2", 0);
    refreshTabView();
    EXPECT_EQ(Form3.Combo1[1].ListCount(), 3);
    EXPECT_EQ(Form3.Combo1[1].ListIndex(), -1);
    // Without a selected group the rows stay.
    EXPECT_THAT(titlesInView(), ElementsAre("a"));
    clickTab(1);
    add("a3", 0);
    Form3.advMode = 2;
    refreshTabView();
    EXPECT_TRUE(Form3.filter3Box.Visible()) << "the side panel shows its face";
    EXPECT_FALSE(Form3.ListView1[3].Visible());
    EXPECT_THAT(titlesInView(), ElementsAre("a", "b", "a2", "a3"));
}

TEST_F(ViewCommands, TheAdvancedScreenIsRefreshedWithItsRowsOnDemand) {
    open();
    add("a2", 0);
    NewCatagory("C");
    fullScrnRefresh(false);
    EXPECT_THAT(groupNames(), ElementsAre("A", "B", "C"));
    EXPECT_THAT(titlesInView(), ElementsAre("a"));
    EXPECT_EQ(Form3.StatusBar1.Pane(2), "Total: 3");
    fullScrnRefresh(true);
    EXPECT_THAT(titlesInView(), ElementsAre("a", "a2"));
    EXPECT_EQ(Form3.StatusBar1.Pane(1), "Viewed: 2");
}

TEST_F(ViewCommands, TheAdvancedScreenIsRefreshedWithTheFaceOfItsPanelAndItsLayout) {
    open();
    const double whole = Form3.ListView1[3].Height();
    Form3.advMode = 0;
    fullScrnRefresh(false);
    EXPECT_TRUE(Form3.cmdIndex[0].Visible());
    EXPECT_TRUE(Form3.indexPanelBox.Visible());
    EXPECT_LT(Form3.ListView1[3].Height(), whole) << "the buttons need their room";
    Form3.advMode = 1;
    fullScrnRefresh(false);
    EXPECT_FALSE(Form3.indexPanelBox.Visible());
    EXPECT_EQ(Form3.ListView1[3].Height(), whole);
}

TEST_F(ViewCommands, TheStandardScreensRowsAreNeverRefreshedWithIt) {
    open();
    clickTab(2);
    add("a2", 0);
    NewCatagory("C");
    for (const bool demanded : {false, true}) {
        SCOPED_TRACE(demanded);
        fullScrnRefresh(demanded);
        EXPECT_EQ(Form3.Combo1[1].ListCount(), 3);
        EXPECT_THAT(titlesInView(), ElementsAre("a"));
        EXPECT_EQ(Form3.StatusBar1.Pane(2), "Total: 3");
    }
}

TEST_F(ViewCommands, TheGroupListIsRebuiltUnforcedOnlyForAFaceThatShowsIt) {
    open();
    NewCatagory("C");
    Form3.advMode = 2;
    rebuildGroupList(false);
    EXPECT_THAT(groupNames(), ElementsAre("A", "B"));
    rebuildGroupList(true);
    EXPECT_THAT(groupNames(), ElementsAre("A", "B", "C"));
    IDXList.reset();
    Form3.advMode = 1;
    rebuildGroupList(false);
    EXPECT_THAT(groupNames(), ElementsAre("A", "B", "C"));
    rebuildGroupList(true);
    EXPECT_THAT(groupNames(), IsEmpty());
}

TEST_F(ViewCommands, TheGroupListCarriesTicksAndNumbersAndSelectsTheRememberedGroup) {
    open();
    IDXList[0].Checked = false;
    Form3.advMode = 0;
    Form3.lastIDX2 = 1;
    fullScrnRefresh(false);
    EXPECT_FALSE(Form3.ListView1[3].Row(1).Checked());
    EXPECT_TRUE(Form3.ListView1[3].Row(2).Checked());
    EXPECT_EQ(Form3.ListView1[3].Row(2).Tag(), "1");
    EXPECT_EQ(Form3.ListView1[3].SelectedItem().Text(), "B");
}

}  // namespace
}  // namespace magpie
