// The side panel: its three faces, the buttons that change them, and the Group List.
#include "views/side_panel.h"

#include "tests/behaviour/panel_fixture.h"
#include "views/group_list.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;
using testing::ElementsAre;
using testing::IsEmpty;

class SidePanel : public PanelFixture {
public:
    // Goes to a face by the buttons, as far as there is a way.
    static void goTo(int face) {
        while (Form3.advMode != face) clickButton(Form3.Command3[2]);
    }

    static std::string heading() {
        char text[40] = "";
        win::LVCOLUMNA column{};
        column.mask = win::LVCF_TEXT;
        column.pszText = text;
        column.cchTextMax = sizeof text;
        win::SendMessageA(Form3.ListView1[3].hWnd(), win::LVM_GETCOLUMNA, 0,
                          reinterpret_cast<win::LPARAM>(&column));
        return text;
    }

    static bool hasTicks() {
        const auto style = static_cast<win::DWORD>(
            win::SendMessageA(Form3.ListView1[3].hWnd(), win::LVM_GETEXTENDEDLISTVIEWSTYLE, 0, 0));
        return (style & win::LVS_EX_CHECKBOXES) != 0;
    }

    // What there is to see: g Group List, t its ticks, f filter panel, r button row, and the
    // number of each button of the row that is shown or would be with it.
    static std::string shown() {
        std::string all;
        if (Form3.ListView1[3].Visible()) all += 'g';
        if (hasTicks()) all += 't';
        if (Form3.filter3Box.Visible()) all += 'f';
        if (Form3.indexPanelBox.Visible()) all += 'r';
        for (int i = 0; i <= 3; ++i)
            if (Form3.cmdIndex[i].Visible()) all += static_cast<char>('0' + i);
        return all;
    }

    static std::vector<std::string> rows(ComboBox& combo) {
        std::vector<std::string> texts;
        for (int row = 0; row < combo.ListCount(); ++row) texts.push_back(combo.List(row));
        return texts;
    }

    static int boxesTicked() {
        int ticked = 0;
        for (CheckBox& box : Form3.ratedBox) ticked += box.Value();
        return ticked;
    }
};

// What is there ------------------------------------------------------------------------

TEST_F(SidePanel, TheControlsHaveTheirTextsAndRows) {
    openFilter();
    std::vector<std::string> ratings;
    for (CheckBox& box : Form3.ratedBox) ratings.push_back(box.Caption());
    EXPECT_THAT(ratings, ElementsAre("Not Rated", "Low", "Medium", "High", "Very High"));
    for (const int mode : {0, 1, 3}) {
        EXPECT_THAT(rows(Form3.Combo3[mode]),
                    ElementsAre("OFF", "More Than", "Less Than", "Equal To"));
    }
    for (const int unit : {2, 4})
        EXPECT_THAT(rows(Form3.Combo3[unit]), ElementsAre("Days", "Weeks", "Months"));
    EXPECT_EQ(Form3.cmdIndex[4].Caption(), "Clear");
    EXPECT_EQ(Form3.cmdIndex[5].Caption(), "Set");
    EXPECT_EQ(Form3.timesLabel.Caption(), "Times");
    EXPECT_EQ(Form3.Picture3.containingControl(), &Form3.Frame2);
    EXPECT_EQ(Form3.txtFilter.containingControl(), &Form3.Frame4);
}

// The faces ----------------------------------------------------------------------------

TEST_F(SidePanel, EachFaceShowsWhatIsItsOwn) {
    open();
    goTo(0);
    EXPECT_EQ(shown(), "gtr012");
    EXPECT_EQ(heading(), "Index Mask");
    goTo(1);
    EXPECT_EQ(heading(), "Group List");
    goTo(2);
    EXPECT_EQ(shown(), "fr3");
    EXPECT_EQ(boxesTicked(), 5);
}

TEST_F(SidePanel, TheGroupListLeavesTheButtonsInItsHiddenRowAsTheyWere) {
    open();
    goTo(0);
    goTo(1);
    EXPECT_EQ(shown(), "g012");
    goTo(2);
    // Back over the Group List by the other button.
    clickButton(Form3.Command3[0]);
    EXPECT_EQ(Form3.advMode, 1);
    EXPECT_EQ(shown(), "g3");
    EXPECT_FALSE(win::IsWindowVisible(Form3.cmdIndex[3].hWnd()));
}

TEST_F(SidePanel, TheFilterFaceLeavesHeadingAndTicksAsTheyWere) {
    open();
    goTo(0);
    clickButton(Form3.Command3[0]);
    EXPECT_EQ(Form3.advMode, 2);
    EXPECT_EQ(heading(), "Index Mask");
    EXPECT_EQ(shown(), "tfr3");
    goTo(1);
    goTo(2);
    EXPECT_EQ(heading(), "Group List");
    EXPECT_EQ(shown(), "fr3");
}

TEST_F(SidePanel, TheListFacesUntickTheRatingBoxesAndNoMask) {
    open();
    // The face before the Filter one, and the one behind it.
    const struct {
        int button;
        int face;
    } ways[] = {{0, 1}, {2, 0}};
    for (const auto& way : ways) {
        SCOPED_TRACE(way.face);
        goTo(2);
        EXPECT_EQ(boxesTicked(), 5);
        clickButton(Form3.Command3[way.button]);
        ASSERT_EQ(Form3.advMode, way.face);
        EXPECT_EQ(boxesTicked(), 0);
        EXPECT_EQ(ratedMask, (std::array<bool, 6>{true, true, true, true, true, false}));
    }
}

TEST_F(SidePanel, TheStepButtonsGoRoundBothWays) {
    open();
    Form3.advMode = 0;
    const int down[] = {2, 1, 0, 2};
    for (const int face : down) {
        clickButton(Form3.Command3[0]);
        EXPECT_EQ(Form3.advMode, face);
    }
    const int up[] = {0, 1, 2, 0};
    for (const int face : up) {
        clickButton(Form3.Command3[2]);
        EXPECT_EQ(Form3.advMode, face);
    }
}

TEST_F(SidePanel, AStepClearsTheTextMaskAndRefreshesNothing) {
    open();
    for (const int button : {0, 2}) {
        Form3.txtFilter.Text("x");
        clickButton(Form3.Command3[button]);
        EXPECT_EQ(Form3.txtFilter.Text(), "");
        EXPECT_THAT(titlesInView(), ElementsAre("a"));
    }
    EXPECT_EQ(savedAdvMode, 1);
}

TEST_F(SidePanel, AStepLaysTheGroupListOut) {
    open();
    const double whole = Form3.indexBox.Height() - 50;
    EXPECT_EQ(Form3.ListView1[3].Height(), whole);
    clickButton(Form3.Command3[0]);
    EXPECT_EQ(Form3.ListView1[3].Height(), Form3.indexPanelBox.Top());
    clickButton(Form3.Command3[2]);
    EXPECT_EQ(Form3.ListView1[3].Height(), whole);
}

TEST_F(SidePanel, TheMenuButtonBringsTheMenusUpToDateAndOpensTheMainMenu) {
    openFilter();
    Form3.mnuRenameCombo.Visible = true;
    std::vector<std::string> captions;
    driver::onPopup([&captions](const driver::Popup& popup) {
        for (const driver::MenuLine& line : popup.menu.lines) captions.push_back(line.caption);
        return 0u;
    });
    clickButton(Form3.Command3[1]);
    ASSERT_FALSE(captions.empty());
    // The group commands are not there on the Filter face.
    EXPECT_FALSE(Form3.mnuRenameCombo.Visible);
    EXPECT_EQ(Form3.advMode, 2);
}

TEST_F(SidePanel, BuildingAFacePumpsOnce) {
    open();
    for (const int face : {0, 1, 2}) {
        Form3.advMode = static_cast<std::uint8_t>(face);
        const int before = driver::pumps();
        buildFilterScrn();
        EXPECT_EQ(driver::pumps(), before + 1);
    }
}

TEST_F(SidePanel, AFaceThatDoesNotExistChangesNothing) {
    open();
    goTo(0);
    Form3.advMode = 3;
    buildFilterScrn();
    EXPECT_EQ(shown(), "gtr012");
    EXPECT_TRUE(Form3.Picture1.Visible());
}

// Nothing that is loaded brings it up then.
TEST_F(SidePanel, AWindowThatOpensEmptyShowsItsFace) {
    putRecord("CF", "80 0 0 0 1 2 0 1500 3000 6000 4500 31 0 36000");
    startAndOpen();
    ASSERT_FALSE(autoLoadURLs || autoLoadSettings);
    EXPECT_EQ(Form3.advMode, 0);
    EXPECT_EQ(shown(), "gtr012");
    EXPECT_EQ(heading(), "Index Mask");
    EXPECT_EQ(Form3.ListView1[3].Height(), Form3.indexPanelBox.Top());
    for (const int face : {1, 2}) {
        goTo(face);
        keepResident = false;
        Form3.unload();
        clickPad();
        EXPECT_EQ(Form3.advMode, face);
        EXPECT_EQ(Form3.filter3Box.Visible(), face == 2);
        EXPECT_EQ(Form3.indexPanelBox.Visible(), face == 2);
    }
    clickButton(Form3.indexFlipBox);
    keepResident = false;
    Form3.unload();
    clickPad();
    EXPECT_FALSE(Form3.filterAdvanced);
    EXPECT_FALSE(Form3.Picture1.Visible());
}

// Hidden and shown ---------------------------------------------------------------------

TEST_F(SidePanel, AHiddenPanelKeepsItsFaceAndPumpsNothing) {
    openFilter();
    Form3.filterAdvanced = false;
    Form3.advMode = 0;
    const int before = driver::pumps();
    buildFilterScrn();
    EXPECT_EQ(driver::pumps(), before);
    EXPECT_FALSE(Form3.Picture1.Visible());
    EXPECT_EQ(shown(), "fr3");
    EXPECT_EQ(boxesTicked(), 5);
}

TEST_F(SidePanel, TheFlipBoxHidesThePanelAndBringsItsFaceBack) {
    openFilter();
    Form3.Text2[0].SetFocus();
    const double narrow = Form3.ListView1[2].Width();
    clickButton(Form3.indexFlipBox);
    EXPECT_FALSE(Form3.filterAdvanced);
    EXPECT_FALSE(win::IsWindowVisible(Form3.filter3Box.hWnd()));
    EXPECT_FALSE(win::IsWindowVisible(Form3.Command3[0].hWnd()));
    EXPECT_EQ(win::GetFocus(), Form3.ListView1[2].hWnd());
    EXPECT_GT(Form3.ListView1[2].Width(), narrow);
    clickButton(Form3.indexFlipBox);
    EXPECT_TRUE(Form3.filterAdvanced);
    EXPECT_TRUE(win::IsWindowVisible(Form3.Text2[0].hWnd()));
    EXPECT_TRUE(win::IsWindowVisible(Form3.Command3[0].hWnd()));
    EXPECT_EQ(Form3.ListView1[2].Width(), narrow);
    EXPECT_EQ(Form3.advMode, 2);
    EXPECT_THAT(titlesInView(), ElementsAre("a"));
}

TEST_F(SidePanel, TheStripsEndAboveTheButtons) {
    openFilter();
    EXPECT_EQ(Form3.slideBox.Height(), Form3.indexPanelBox.Top());
    Form3.Height(9000);
    driver::pump();
    EXPECT_EQ(Form3.slideBox.Height(), Form3.indexPanelBox.Top());
}

// Ticks --------------------------------------------------------------------------------

TEST_F(SidePanel, ATickReachesItsGroupOnlyByFilter) {
    open();
    goTo(0);
    Form3.ListView1[3].Row(1).Checked(false);
    EXPECT_TRUE(IDXList[0].Checked);
    EXPECT_THAT(refreshed(), ElementsAre("a", "b"));
    clickButton(Form3.cmdIndex[2]);
    EXPECT_FALSE(IDXList[0].Checked);
    EXPECT_TRUE(IDXList[1].Checked);
    EXPECT_THAT(titlesInView(), ElementsAre("b"));
    EXPECT_EQ(savedAdvMode, 1);
}

TEST_F(SidePanel, SetAllWithoutFilterWaitsForTheNextRefresh) {
    open();
    goTo(0);
    clickButton(Form3.cmdIndex[1]);
    clickButton(Form3.cmdIndex[2]);
    EXPECT_THAT(titlesInView(), IsEmpty());
    clickButton(Form3.cmdIndex[0]);
    EXPECT_TRUE(IDXList[0].Checked && IDXList[1].Checked);
    EXPECT_TRUE(Form3.ListView1[3].Row(1).Checked() && Form3.ListView1[3].Row(2).Checked());
    EXPECT_THAT(titlesInView(), IsEmpty());
    EXPECT_THAT(refreshed(), ElementsAre("a", "b"));
}

TEST_F(SidePanel, FilterTakesTheGroupThatARowsTagNumbers) {
    open();
    goTo(0);
    Form3.ListView1[3].Row(1).Tag("1");
    Form3.ListView1[3].Row(2).Tag("0");
    Form3.ListView1[3].Row(1).Checked(false);
    clickButton(Form3.cmdIndex[2]);
    EXPECT_TRUE(IDXList[0].Checked);
    EXPECT_FALSE(IDXList[1].Checked);
}

TEST_F(SidePanel, FilterStopsAtARowOfNoGroup) {
    open();
    goTo(0);
    Form3.ListView1[3].Row(1).Checked(false);
    Form3.ListView1[3].Row(2).Checked(false);
    Form3.ListView1[3].Row(2).Tag("9");
    clickButton(Form3.cmdIndex[2]);
    EXPECT_FALSE(IDXList[0].Checked);
    EXPECT_TRUE(IDXList[1].Checked);
    EXPECT_THAT(titlesInView(), ElementsAre("a"));
}

TEST_F(SidePanel, TicksStopAtAGroupThatHasNoRowYet) {
    open();
    goTo(0);
    NewCatagory("C");
    clickButton(Form3.cmdIndex[1]);
    EXPECT_FALSE(IDXList[0].Checked || IDXList[1].Checked);
    EXPECT_TRUE(IDXList[2].Checked);
}

TEST_F(SidePanel, WithoutGroupsTheTickButtonsDoNothing) {
    open();
    goTo(0);
    IDXList.reset();
    rebuildGroupList(true);
    for (int i = 0; i <= 2; ++i) clickButton(Form3.cmdIndex[i]);
    EXPECT_EQ(Form3.ListView1[3].Count(), 0);
    EXPECT_FALSE(IDXList[0].Checked);
    EXPECT_THAT(titlesInView(), ElementsAre("a"));
}

// The Group List -----------------------------------------------------------------------

TEST_F(SidePanel, RebuildingTheGroupListPumpsOnceAndOnlyIfItGoesOn) {
    open();
    int before = driver::pumps();
    rebuildGroupList(false);
    EXPECT_EQ(driver::pumps(), before + 1);
    Form3.advMode = 2;
    before = driver::pumps();
    rebuildGroupList(false);
    EXPECT_EQ(driver::pumps(), before);
    rebuildGroupList(true);
    EXPECT_EQ(driver::pumps(), before + 1);
    IDXList.reset();
    rebuildGroupList(true);
    EXPECT_EQ(driver::pumps(), before + 2);
}

TEST_F(SidePanel, TheRememberedGroupIsScrolledIntoView) {
    open();
    for (int i = 2; i < 60; ++i) NewCatagory("Group " + std::to_string(i));
    Form3.lastIDX2 = 50;
    rebuildGroupList(true);
    EXPECT_EQ(Form3.ListView1[3].SelectedItem().Text(), "Group 50");
    win::RECT place{};
    place.left = win::LVIR_BOUNDS;
    win::SendMessageA(Form3.ListView1[3].hWnd(), win::LVM_GETITEMRECT, 50,
                      reinterpret_cast<win::LPARAM>(&place));
    EXPECT_GE(place.top, 0);
    EXPECT_LE(place.bottom * 15, Form3.ListView1[3].Height());
}

TEST_F(SidePanel, ARememberedGroupThatIsGoneLeavesTheFirstRow) {
    open();
    Form3.lastIDX2 = 77;
    rebuildGroupList(true);
    EXPECT_EQ(Form3.ListView1[3].SelectedItem().Text(), "A");
}

TEST_F(SidePanel, AHiddenGroupListIsRebuiltOutOfSight) {
    openFilter();
    NewCatagory("C");
    rebuildGroupList(true);
    EXPECT_EQ(Form3.ListView1[3].Count(), 3);
    EXPECT_FALSE(win::IsWindowVisible(Form3.ListView1[3].hWnd()));
    goTo(1);
    EXPECT_TRUE(win::IsWindowVisible(Form3.ListView1[3].hWnd()));
}

}  // namespace
}  // namespace magpie
