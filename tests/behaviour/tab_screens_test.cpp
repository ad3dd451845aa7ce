// The two screens and the hand-over from one to the other.
#include "mainwindow/tab_screens.h"

#include "core/shutdown.h"
#include "tests/behaviour/view_fixture.h"
#include "views/refresh.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;
using testing::ElementsAre;
using testing::IsEmpty;

class TabScreens : public ViewFixture {
public:
    // Three groups with a record each.
    static void open() {
        openWith({"A", "B", "C"});
        add("a", 0);
        add("b", 1);
        add("c", 2);
        RefreshURLPage();
    }

    static std::vector<double> widths(int list) {
        std::vector<double> all;
        for (int i = 1; i <= Form3.ListView1[list].ColumnCount(); ++i)
            all.push_back(Form3.ListView1[list].ColumnWidth(i));
        return all;
    }

    static std::vector<std::string> comboTexts() {
        std::vector<std::string> texts;
        for (int row = 0; row < Form3.Combo1[1].ListCount(); ++row)
            texts.push_back(Form3.Combo1[1].List(row));
        return texts;
    }

    static std::string headings(int list) {
        std::string all;
        for (int i = 0; i < Form3.ListView1[list].ColumnCount(); ++i) {
            char text[40] = "";
            win::LVCOLUMNA column{};
            column.mask = win::LVCF_TEXT;
            column.pszText = text;
            column.cchTextMax = sizeof text;
            win::SendMessageA(Form3.ListView1[list].hWnd(), win::LVM_GETCOLUMNA,
                              static_cast<win::WPARAM>(i), reinterpret_cast<win::LPARAM>(&column));
            all += std::string(text) + "|";
        }
        return all;
    }
};

// What is there ------------------------------------------------------------------------

TEST_F(TabScreens, BothRecordListsHaveTheSevenColumnsAndTheGroupListOne) {
    open();
    EXPECT_EQ(headings(1), "Title|URL|Rated|Group|Last Visited|Created|Visited|");
    EXPECT_EQ(headings(2), "Title|URL|Rated|Group|Last Visited|Created|Visited|");
    EXPECT_EQ(Form3.ListView1[3].ColumnCount(), 1);
}

TEST_F(TabScreens, TheTabsHaveTheirCaptions) {
    open();
    for (const auto& [tab, caption] : {std::pair{0, "Advanced"}, std::pair{1, "Standard"}}) {
        std::array<char, 32> text{};
        win::TCITEMA item{};
        item.mask = win::TCIF_TEXT;
        item.pszText = text.data();
        item.cchTextMax = static_cast<win::INT>(text.size());
        win::SendMessageA(Form3.tbStrip.hWnd(), win::TCM_GETITEMA, static_cast<win::WPARAM>(tab),
                          reinterpret_cast<win::LPARAM>(&item));
        EXPECT_STREQ(text.data(), caption);
    }
}

TEST_F(TabScreens, TheButtonsHaveTheirCaptionsAndTips) {
    open();
    EXPECT_EQ(Form3.Command3[0].Caption(), "<<");
    EXPECT_EQ(Form3.Command3[1].Caption(), "Menu");
    EXPECT_EQ(Form3.Command3[2].Caption(), ">>");
    EXPECT_EQ(Form3.cmdIndex[0].Caption(), "Set All");
    EXPECT_EQ(Form3.cmdIndex[1].Caption(), "CLR");
    EXPECT_EQ(Form3.cmdIndex[2].Caption(), "Filter");
    EXPECT_EQ(Form3.cmdIndex[3].Caption(), "Apply Filter");
    EXPECT_EQ(Form3.Command5[0].Caption(), "F");
    EXPECT_EQ(Form3.Command5[0].ToolTipText(), "Rating Filters");
    EXPECT_EQ(Form3.Command1[1].Caption(), "<<");
}

TEST_F(TabScreens, ItStartsOnTheAdvancedScreen) {
    open();
    EXPECT_EQ(currentTab, 1);
    EXPECT_EQ(previousTab, 0);
    EXPECT_EQ(lvIndex, 2);
    EXPECT_TRUE(Form3.filtPicBox.Visible());
    EXPECT_FALSE(Form3.picTab[0].Visible());
}

// The hand-over ------------------------------------------------------------------------

TEST_F(TabScreens, TheStandardScreenTakesOver) {
    open();
    clickTab(2);
    EXPECT_EQ(currentTab, 2);
    EXPECT_EQ(previousTab, 2);
    EXPECT_EQ(lvIndex, 1);
    EXPECT_FALSE(Form3.filtPicBox.Visible());
    EXPECT_EQ(Form3.filtPicBox.Left(), -20000);
    EXPECT_TRUE(Form3.picTab[0].Visible());
    EXPECT_EQ(Form3.picTab[0].Left(), 120);
    EXPECT_FALSE(Form3.indexFlipBox.Visible());
    EXPECT_THAT(comboTexts(), ElementsAre("A", "B", "C"));
    EXPECT_EQ(Form3.Combo1[1].ItemData(2), 2);
    EXPECT_THAT(titlesInView(), ElementsAre("a"));
}

TEST_F(TabScreens, TheAdvancedScreenTakesOverAgain) {
    open();
    clickTab(2);
    clickTab(1);
    EXPECT_EQ(currentTab, 1);
    EXPECT_EQ(lvIndex, 2);
    EXPECT_TRUE(Form3.filtPicBox.Visible());
    EXPECT_EQ(Form3.filtPicBox.Left(), 120);
    EXPECT_FALSE(Form3.picTab[0].Visible());
    EXPECT_EQ(Form3.picTab[0].Left(), -20000);
    EXPECT_TRUE(Form3.indexFlipBox.Visible());
    EXPECT_EQ(Form3.Combo1[1].ListCount(), 0);
    EXPECT_EQ(Form3.ListView1[1].Count(), 0);
    EXPECT_EQ(Form3.ListView1[3].Count(), 3);
    EXPECT_THAT(titlesInView(), ElementsAre("a"));
}

TEST_F(TabScreens, LeavingTheAdvancedScreenEmptiesTheGroupList) {
    open();
    clickTab(2);
    clickTab(1);
    clickTab(2);
    EXPECT_EQ(Form3.ListView1[3].Count(), 0);
}

// Without a switch before, the tab on show is no tab that was left.
TEST_F(TabScreens, BeforeTheFirstSwitchAClickOnTheTabOnShowEntersIt) {
    open();
    ASSERT_EQ(previousTab, 0);
    Form3.ListView1[lvIndex].Clear();
    clickTab(1);
    EXPECT_EQ(previousTab, 1);
    EXPECT_GT(Form3.ListView1[lvIndex].Count(), 0);
}

TEST_F(TabScreens, AfterAnEjectAClickOnTheTabOnShowEntersIt) {
    open();
    clickTab(2);
    flushEverything();
    ASSERT_EQ(previousTab, -1);
    NewCatagory("D");
    clickTab(2);
    EXPECT_EQ(previousTab, 2);
    EXPECT_THAT(comboTexts(), ElementsAre("D"));
}

TEST_F(TabScreens, AnotherButtonOnTheStripSwitchesNothing) {
    open();
    driver::click(Form3.tbStrip.hWnd(), {20, 8}, driver::Button::right);
    EXPECT_EQ(previousTab, 0);
    driver::click(Form3.tbStrip.hWnd(), {20, 8}, driver::Button::left);
    EXPECT_EQ(previousTab, 1);
}

TEST_F(TabScreens, AClickOnTheTabOnShowDoesNothing) {
    open();
    for (int tab : {2, 1}) {
        SCOPED_TRACE(tab);
        clickTab(tab);
        Form3.ListView1[lvIndex].Clear();
        const int pumps = driver::pumps();
        clickTab(tab);
        EXPECT_EQ(Form3.ListView1[lvIndex].Count(), 0);
        EXPECT_EQ(driver::pumps(), pumps);
    }
}

TEST_F(TabScreens, WithoutGroupsTheStandardScreenStaysEmpty) {
    openWith({});
    Form3.ListView1[1].Add("left over");
    clickTab(2);
    EXPECT_EQ(Form3.Combo1[1].ListCount(), 0);
    EXPECT_EQ(Form3.ListView1[1].Count(), 1);
    clickTab(1);
    EXPECT_EQ(Form3.ListView1[1].Count(), 0);
    clickTab(2);
    EXPECT_EQ(Form3.Combo1[1].ListCount(), 0);
    EXPECT_EQ(Form3.ListView1[1].Count(), 0);
}

TEST_F(TabScreens, TheGroupInViewGoesFromTabToTab) {
    open();
    clickTab(2);
    Form3.Combo1[1].ListIndex(2);
    EXPECT_THAT(titlesInView(), ElementsAre("c"));
    clickTab(1);
    EXPECT_EQ(Form3.lastIDX2, 2);
    EXPECT_EQ(Form3.lastIDX1, 2);
    EXPECT_EQ(Form3.ListView1[3].SelectedItem().Text(), "C");
    EXPECT_THAT(titlesInView(), ElementsAre("c"));
    Form3.ListView1[3].Row(2).Selected(true);
    clickTab(2);
    EXPECT_EQ(Form3.lastIDX2, 1);
    EXPECT_EQ(Form3.Combo1[1].List(Form3.Combo1[1].ListIndex()), "B");
    EXPECT_THAT(titlesInView(), ElementsAre("b"));
}

TEST_F(TabScreens, TheGroupComesBackByItsNumberAlsoFromAnotherPlace) {
    open();
    clickTab(2);
    Form3.Combo1[1].ListIndex(1);
    clickTab(1);
    // The first group goes; the others keep their numbers.
    IDXList[0] = IDXList[1];
    IDXList[1] = IDXList[2];
    IDXList.resize(2);
    clickTab(2);
    EXPECT_THAT(comboTexts(), ElementsAre("B", "C"));
    EXPECT_EQ(Form3.Combo1[1].ListIndex(), 0);
    EXPECT_EQ(Form3.Combo1[1].List(Form3.Combo1[1].ListIndex()), "B");
}

TEST_F(TabScreens, ARememberedGroupThatIsGoneLeavesTheListEmpty) {
    open();
    clickTab(2);
    Form3.Combo1[1].ListIndex(2);
    clickTab(1);
    Form3.ListView1[3].Clear();
    IDXList.resize(2);
    clickTab(2);
    EXPECT_EQ(Form3.Combo1[1].ListIndex(), -1);
    EXPECT_THAT(titlesInView(), IsEmpty());
}

TEST_F(TabScreens, AnEmptyGroupListOrComboRemembersNothing) {
    open();
    clickTab(2);
    Form3.Combo1[1].ListIndex(1);
    clickTab(1);
    Form3.ListView1[3].Clear();
    clickTab(2);
    EXPECT_EQ(Form3.lastIDX2, 1);
    Form3.Combo1[1].Clear();
    Form3.lastIDX1 = 9;
    clickTab(1);
    EXPECT_EQ(Form3.lastIDX2, 1);
    EXPECT_EQ(Form3.lastIDX1, 9);
}

TEST_F(TabScreens, TheColumnWidthsFollowTheUserFromTabToTab) {
    open();
    clickTab(2);
    Form3.ListView1[1].ColumnWidth(1, 3000);
    Form3.ListView1[1].ColumnWidth(7, 0);
    clickTab(1);
    EXPECT_THAT(widths(2), ElementsAre(3000, 2400, 900, 1200, 1680, 1680, 0));
    Form3.ListView1[2].ColumnWidth(2, 1500);
    clickTab(2);
    EXPECT_THAT(widths(1), ElementsAre(3000, 1500, 900, 1200, 1680, 1680, 0));
}

// As a session goes: the Advanced tab of the settings, another group, wider columns.
TEST_F(TabScreens, TheFirstSwitchTakesGroupAndWidthsAlong) {
    putRecord("CF", "8 0 0 0 1 1 0 1500 1500 9000 6000 31 0 36500");
    open();
    Form3.ListView1[3].Row(3).Selected(true);
    Form3.ListView1[2].ColumnWidth(1, 3000);
    clickTab(2);
    EXPECT_THAT(titlesInView(), ElementsAre("c"));
    EXPECT_EQ(widths(1)[0], 3000);
    clickTab(1);
    EXPECT_EQ(Form3.ListView1[3].SelectedItem().Text(), "C");
    EXPECT_THAT(titlesInView(), ElementsAre("c"));
    EXPECT_EQ(widths(2)[0], 3000);
}

TEST_F(TabScreens, ASecondSwitchUnderTheFirstLeavesAScreenThatCanBeUsed) {
    open();
    clickTab(2);
    flushEverything();
    for (const char* name : {"A", "B", "C"}) NewCatagory(name);
    driver::atPump(1, [] { Form3.tbStrip.SelectTab(2); });
    clickTab(1);
    EXPECT_EQ(Form3.tbStrip.SelectedTab(), 2);
    for (int tab : {1, 2}) {
        clickTab(tab);
        EXPECT_EQ(currentTab, tab);
        EXPECT_EQ(previousTab, tab);
        EXPECT_EQ(Form3.picTab[0].Visible(), tab == 2);
        EXPECT_EQ(Form3.filtPicBox.Visible(), tab == 1);
        EXPECT_EQ(tab == 1 ? Form3.ListView1[3].Count() : Form3.Combo1[1].ListCount(), 3);
    }
}

TEST_F(TabScreens, ASwitchThatFailsEndsThereAndAnotherClickTriesAgain) {
    open();
    clickTab(2);
    Form3.ListView1[1].ColumnWidth(1, 33000);
    clickTab(1);
    EXPECT_EQ(currentTab, 1);
    EXPECT_EQ(previousTab, 2);
    EXPECT_TRUE(Form3.picTab[0].Visible());
    Form3.ListView1[1].ColumnWidth(1, 3000);
    clickTab(1);
    EXPECT_EQ(previousTab, 1);
    EXPECT_FALSE(Form3.picTab[0].Visible());
    EXPECT_TRUE(Form3.filtPicBox.Visible());
    EXPECT_EQ(widths(2)[0], 3000);
}

// By the press, by the release, and by every further click, until the record is whole.
TEST_F(TabScreens, ASwitchWhoseRefreshFailsIsTriedAgainByTheNextClick) {
    open();
    Form3.advMode = savedAdvMode = 0;
    clickTab(2);
    URLData& broken = add("x", -1);
    clickTab(1);
    EXPECT_EQ(currentTab, 1);
    EXPECT_EQ(previousTab, 2);
    broken.Owner = 1;
    clickTab(1);
    EXPECT_EQ(previousTab, 1);
    EXPECT_TRUE(Form3.filtPicBox.Visible());
    EXPECT_FALSE(Form3.picTab[0].Visible());
    EXPECT_EQ(Form3.ListView1[2].Count(), 4);
}

TEST_F(TabScreens, PuttingAScreenInItsPlaceShowsTheStrip) {
    open();
    Form3.tbStrip.Visible(false);
    tabThing();
    EXPECT_TRUE(Form3.tbStrip.Visible());
}

// The group list, the face, the switch itself and the refresh; on the other screen, where
// the choice of the group refreshes, only the refresh.
TEST_F(TabScreens, ASwitchLetsEventsRun) {
    open();
    clickTab(2);
    int pumps = driver::pumps();
    Form3.tbStrip.SelectTab(1);
    EXPECT_EQ(driver::pumps(), pumps + 4);
    pumps = driver::pumps();
    Form3.tbStrip.SelectTab(2);
    EXPECT_EQ(driver::pumps(), pumps + 1);
    Form3.tbStrip.SelectTab(1);
    IDXList.reset();
    pumps = driver::pumps();
    Form3.tbStrip.SelectTab(2);
    EXPECT_EQ(driver::pumps(), pumps + 1);
}

TEST_F(TabScreens, AfterAnEjectTheTabsStillSwitch) {
    open();
    clickTab(2);
    driver::choose("Eject Bookmarks");
    driver::click(Form3.Command1[1].hWnd(), {8, 8});
    driver::pump();
    EXPECT_EQ(previousTab, -1);
    EXPECT_EQ(Form3.Combo1[1].ListCount(), 0);
    clickTab(1);
    EXPECT_EQ(currentTab, 1);
    EXPECT_EQ(previousTab, 1);
    EXPECT_TRUE(Form3.filtPicBox.Visible());
    EXPECT_THAT(titlesInView(), IsEmpty());
}

// Widths -------------------------------------------------------------------------------

TEST_F(TabScreens, WidthsAreStoredRoundedAndSetBack) {
    open();
    Form3.ListView1[2].ColumnWidth(1, 1000);
    storeCHeaders();
    EXPECT_EQ(colWidths[0], 1005);
    colWidths[0] = 1500;
    colWidths[6] = 300;
    updateCHeaders();
    EXPECT_EQ(widths(2)[0], 1500);
    EXPECT_EQ(widths(2)[6], 300);
}

TEST_F(TabScreens, ThereIsNoRoomForATenthColumn) {
    open();
    for (const char* heading : {"8", "9"}) Form3.ListView1[2].addColumn(heading, 600);
    storeCHeaders();
    updateCHeaders();
    EXPECT_EQ(colWidths[8], 600);
    Form3.ListView1[2].addColumn("10", 600);
    for (void (*routine)() : {storeCHeaders, updateCHeaders}) {
        try {
            routine();
            ADD_FAILURE() << "a tenth column";
        } catch (const Failure& failed) {
            EXPECT_EQ(failed.number, failure::subscript);
        }
    }
}

// The flip box -------------------------------------------------------------------------

TEST_F(TabScreens, TheFlipBoxShowsAndHidesTheSidePanel) {
    open();
    EXPECT_EQ(driver::pictureOf(Form3.indexFlipBox.hWnd()), "C:\\Magpie\\uBank\\b1u.bnk");
    driver::click(Form3.indexFlipBox.hWnd(), driver::middleOf(Form3.indexFlipBox.hWnd()));
    driver::pump();
    EXPECT_FALSE(Form3.filterAdvanced);
    EXPECT_FALSE(Form3.indexBox.Visible());
    EXPECT_FALSE(Form3.Picture1.Visible());
    EXPECT_EQ(Form3.ListView1[2].Width(), Form3.filtPicBox.Width());
    EXPECT_EQ(driver::pictureOf(Form3.indexFlipBox.hWnd()), "C:\\Magpie\\uBank\\b1d.bnk");
    EXPECT_EQ(win::GetFocus(), Form3.ListView1[2].hWnd());
    driver::click(Form3.indexFlipBox.hWnd(), driver::middleOf(Form3.indexFlipBox.hWnd()));
    driver::pump();
    EXPECT_TRUE(Form3.indexBox.Visible());
    EXPECT_TRUE(Form3.Picture1.Visible());
}

TEST_F(TabScreens, AMissingFlipPictureKeepsTheOldOne) {
    open();
    driver::removeFile("C:\\Magpie\\uBank\\b1d.bnk");
    driver::click(Form3.indexFlipBox.hWnd(), driver::middleOf(Form3.indexFlipBox.hWnd()));
    driver::pump();
    EXPECT_FALSE(Form3.indexBox.Visible());
    EXPECT_EQ(driver::pictureOf(Form3.indexFlipBox.hWnd()), "C:\\Magpie\\uBank\\b1u.bnk");
}

}  // namespace
}  // namespace magpie
