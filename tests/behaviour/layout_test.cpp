// Where everything stands: the layout of both screens, the edges of the tab strip, and
// the full-window mode.
#include "mainwindow/layout.h"

#include "mainwindow/full_window.h"
#include "mainwindow/tab_screens.h"
#include "tests/behaviour/view_fixture.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;

class Layout : public ViewFixture {
public:
    static void open() { openWith({"A"}); }

    // A size of the window that leaves room for everything.
    static void size(double width, double height) {
        Form3.Width(width);
        Form3.Height(height);
        driver::pump();
    }

    static void press(int key) {
        driver::key(key);
        driver::pump();
    }
};

struct Edge {
    int placement;
    double left;
    double top;
    double marginW;
    double marginH;
};

// The design ---------------------------------------------------------------------------

TEST_F(Layout, TheDesignsClientAreaIs6240By5004) {
    Form3.load();
    EXPECT_NEAR(Form3.ScaleWidth(), 6240, 15);
    EXPECT_NEAR(Form3.ScaleHeight(), 5004, 15);
}

TEST_F(Layout, EveryControlBeginsWhereTheDesignHasIt) {
    start();
    Form3.onLoad = [] {};
    Form3.onResize = [] {};
    Form3.load();
    const struct {
        const char* name;
        Control& control;
        Place place;
    } design[] = {
        {"tbStrip", Form3.tbStrip, {72, 96, 6108, 4608}},
        {"filtPicBox", Form3.filtPicBox, {120, 408, 6036, 4236}},
        {"ListView1(2)", Form3.ListView1[2], {0, 48, 3876, 828}},
        {"Picture1", Form3.Picture1, {3912, 72, 2052, 324}},
        {"Command3(0)", Form3.Command3[0], {0, 0, 468, 276}},
        {"Command3(1)", Form3.Command3[1], {480, 0, 1044, 276}},
        {"Command3(2)", Form3.Command3[2], {1536, 0, 468, 276}},
        {"indexBox", Form3.indexBox, {3888, 432, 2100, 3516}},
        {"indexPanelBox", Form3.indexPanelBox, {24, 1104, 2028, 300}},
        {"cmdIndex(0)", Form3.cmdIndex[0], {0, 0, 660, 252}},
        {"cmdIndex(1)", Form3.cmdIndex[1], {672, 0, 636, 252}},
        {"cmdIndex(2)", Form3.cmdIndex[2], {1320, 0, 660, 252}},
        {"cmdIndex(3)", Form3.cmdIndex[3], {0, 0, 1980, 252}},
        {"ListView1(3)", Form3.ListView1[3], {0, 0, 2028, 708}},
        {"picTab(0)", Form3.picTab[0], {-20000, 480, 6012, 4140}},
        {"Frame1(1)", Form3.Frame1[1], {48, -96, 5940, 588}},
        {"Combo1(1)", Form3.Combo1[1], {384, 192, 4812, 315}},
        {"Picture2(0)", Form3.Picture2[0], {60, 192, 300, 276}},
        {"Command5(0)", Form3.Command5[0], {0, 0, 252, 228}},
        {"Command1(1)", Form3.Command1[1], {5256, 216, 588, 252}},
        {"ListView1(1)", Form3.ListView1[1], {48, 552, 5940, 3588}},
        {"indexFlipBox", Form3.indexFlipBox, {2952, 4752, 300, 228}},
    };
    for (const auto& each : design) {
        SCOPED_TRACE(each.name);
        EXPECT_EQ(each.control.Left(), each.place.left);
        EXPECT_EQ(each.control.Top(), each.place.top);
        EXPECT_EQ(each.control.Width(), each.place.width);
        EXPECT_EQ(each.control.Height(), each.place.height);
    }
}

TEST_F(Layout, TheMarginsAroundTheStripAreThoseOfTheDesign) {
    open();
    EXPECT_EQ(Form3.marginTabW, Form3.Width() - 6108);
    EXPECT_EQ(Form3.marginTabH, Form3.Height() - 4608);
    EXPECT_NEAR(Form3.tbStrip.Width(), 6108, 1);
    EXPECT_NEAR(Form3.tbStrip.Height(), 4608, 1);
}

TEST_F(Layout, TheMarginsAreMeasuredOnceForEachLoad) {
    putRecord("CF", "8 0 0 0 1 1 0 1500 3000 9000 7500 31 0 36000");
    open();
    const double marginW = Form3.marginTabW;
    EXPECT_EQ(Form3.tbStrip.Width(), 9000 - marginW);
    EXPECT_LT(marginW, 1000);
    driver::choose("Flush to Tray");
    driver::click(Form3.Command3[1].hWnd(), {8, 8});
    driver::pump();
    clickPad();
    EXPECT_EQ(Form3.marginTabW, marginW);
    EXPECT_EQ(Form3.Width(), 9000);
}

// The edges of the strip ---------------------------------------------------------------

TEST_F(Layout, TheAdvancedScreenStandsByTheEdgeOfTheStripOnSmallFonts) {
    open();
    const Edge edges[] = {{0, 120, 408, 322, 350},
                          {1, 120, 120, 322, 390},
                          {2, 428, 120, 660, 70},
                          {3, 122, 120, 640, 70}};
    for (const Edge& edge : edges) {
        SCOPED_TRACE(edge.placement);
        setTabPlacement(edge.placement);
        EXPECT_EQ(Form3.tbStrip.Placement(), edge.placement);
        EXPECT_EQ(Form3.filtPicBox.Left(), edge.left);
        EXPECT_EQ(Form3.filtPicBox.Top(), edge.top);
        EXPECT_EQ(Form3.marginAdvW, edge.marginW);
        EXPECT_EQ(Form3.marginAdvH, edge.marginH);
        EXPECT_EQ(Form3.tbStrip.SelectedTab(), 1);
        EXPECT_EQ(currentTab, 1);
    }
}

TEST_F(Layout, TheAdvancedScreenStandsByTheEdgeOfTheStripOnOtherFonts) {
    driver::setDpi(120);
    open();
    const Edge edges[] = {{0, 120, 408, 300, 350},
                          {1, 120, 120, 300, 390},
                          {2, 380, 120, 600, 70},
                          {3, 122, 120, 600, 70}};
    for (const Edge& edge : edges) {
        SCOPED_TRACE(edge.placement);
        setTabPlacement(edge.placement);
        EXPECT_EQ(Form3.filtPicBox.Left(), edge.left);
        EXPECT_EQ(Form3.filtPicBox.Top(), edge.top);
        EXPECT_EQ(Form3.marginAdvW, edge.marginW);
        EXPECT_EQ(Form3.marginAdvH, edge.marginH);
    }
}

TEST_F(Layout, TheStandardScreenStandsByTheEdgeOfTheStripOnSmallFonts) {
    open();
    clickTab(2);
    const Edge edges[] = {{0, 120, 480, 350, 450},
                          {1, 120, 150, 350, 400},
                          {2, 400, 180, 600, 140},
                          {3, 120, 180, 654, 140}};
    for (const Edge& edge : edges) {
        SCOPED_TRACE(edge.placement);
        setTabPlacement(edge.placement);
        EXPECT_EQ(Form3.picTab[0].Left(), edge.left);
        EXPECT_EQ(Form3.picTab[0].Top(), edge.top);
        EXPECT_EQ(Form3.marginStdW, edge.marginW);
        EXPECT_EQ(Form3.marginStdH, edge.marginH);
        EXPECT_EQ(Form3.tbStrip.SelectedTab(), 2);
        EXPECT_EQ(currentTab, 2);
    }
}

TEST_F(Layout, TheStandardScreenStandsByTheEdgeOfTheStripOnOtherFonts) {
    driver::setDpi(144);
    open();
    clickTab(2);
    const Edge edges[] = {{0, 120, 480, 350, 450},
                          {1, 120, 150, 350, 400},
                          {2, 380, 180, 600, 140},
                          {3, 120, 180, 600, 140}};
    for (const Edge& edge : edges) {
        SCOPED_TRACE(edge.placement);
        setTabPlacement(edge.placement);
        EXPECT_EQ(Form3.picTab[0].Left(), edge.left);
        EXPECT_EQ(Form3.picTab[0].Top(), edge.top);
        EXPECT_EQ(Form3.marginStdW, edge.marginW);
        EXPECT_EQ(Form3.marginStdH, edge.marginH);
    }
}

TEST_F(Layout, TheStripItselfStaysInItsCorner) {
    open();
    for (int placement = 0; placement <= 3; ++placement) {
        setTabPlacement(placement);
        EXPECT_EQ(Form3.tbStrip.Left(), 72);
        EXPECT_EQ(Form3.tbStrip.Top(), 96);
    }
}

TEST_F(Layout, TheTabsWorkOnEveryEdge) {
    open();
    for (int placement = 0; placement <= 3; ++placement) {
        SCOPED_TRACE(placement);
        setTabPlacement(placement);
        clickTab(2);
        EXPECT_EQ(currentTab, 2);
        clickTab(1);
        EXPECT_EQ(currentTab, 1);
    }
}

TEST_F(Layout, TheStripsEdgeComesBackWithItsScreensPlace) {
    const Edge advanced[] = {
        {1, 120, 120, 322, 390}, {2, 428, 120, 660, 70}, {3, 72 + 50, 120, 640, 70}};
    const Edge standard[] = {
        {1, 120, 150, 350, 400}, {2, 400, 180, 600, 140}, {3, 120, 180, 654, 140}};
    for (int tab : {1, 2})
        for (const Edge& each : tab == 1 ? advanced : standard) {
            SCOPED_TRACE(tab * 10 + each.placement);
            putRecord("CF", std::string("8 0 0 ")
                                .append(std::to_string(each.placement))
                                .append(" ")
                                .append(std::to_string(tab))
                                .append(" 1 0 1500 3000 9000 7500 31 0 36000"));
            if (Form1.loaded()) {
                keepResident = false;
                autoSaveSettings = false;
                Form3.unload();
                clickPad();
            } else {
                open();
            }
            PictureBox& screen = tab == 1 ? Form3.filtPicBox : Form3.picTab[0];
            EXPECT_EQ(screen.Left(), each.left);
            EXPECT_EQ(screen.Top(), each.top);
            EXPECT_EQ(screen.Width(), 9000 - each.marginW);
            EXPECT_EQ(screen.Height(), Form3.tbStrip.Height() - each.marginH);
        }
}

TEST_F(Layout, TheFullWindowComesAndGoesAtEveryEdge) {
    open();
    size(9000, 7500);
    const Edge advanced[] = {
        {1, 120, 120, 322, 390}, {2, 428, 120, 660, 70}, {3, 72 + 50, 120, 640, 70}};
    for (const Edge& each : advanced) {
        SCOPED_TRACE(each.placement);
        setTabPlacement(each.placement);
        toggleFullWindow();
        EXPECT_EQ(Form3.filtPicBox.Left(), 50);
        EXPECT_EQ(Form3.filtPicBox.Width(), 9000 - 145);
        toggleFullWindow();
        EXPECT_EQ(Form3.filtPicBox.Left(), each.left);
        EXPECT_EQ(Form3.filtPicBox.Top(), each.top);
        EXPECT_EQ(Form3.filtPicBox.Width(), 9000 - each.marginW);
        EXPECT_EQ(Form3.filtPicBox.Height(), Form3.tbStrip.Height() - each.marginH);
    }
}

TEST_F(Layout, TheFullWindowComesAndGoesAtEveryEdgeOfTheStandardScreen) {
    open();
    size(9000, 7500);
    clickTab(2);
    const Edge standard[] = {
        {1, 120, 150, 350, 400}, {2, 400, 180, 600, 140}, {3, 120, 180, 654, 140}};
    for (const Edge& each : standard) {
        SCOPED_TRACE(each.placement);
        setTabPlacement(each.placement);
        toggleFullWindow();
        EXPECT_FALSE(Form3.tbStrip.Visible());
        EXPECT_GT(Form3.picTab[0].Width(), 9000 - each.marginW);
        toggleFullWindow();
        EXPECT_TRUE(Form3.tbStrip.Visible());
        EXPECT_EQ(Form3.picTab[0].Left(), each.left);
        EXPECT_EQ(Form3.picTab[0].Top(), each.top);
        EXPECT_EQ(Form3.picTab[0].Width(), 9000 - each.marginW);
        EXPECT_EQ(Form3.picTab[0].Height(), Form3.tbStrip.Height() - each.marginH);
    }
}

TEST_F(Layout, MovingTheStripPumpsOnce) {
    open();
    clickTab(1);
    for (int placement : {2, 0}) {
        const int pumps = driver::pumps();
        setTabPlacement(placement);
        EXPECT_EQ(driver::pumps(), pumps + 1);
    }
}

TEST_F(Layout, MovingTheStripLeavesTheFullWindowMode) {
    open();
    toggleFullWindow();
    EXPECT_FALSE(Form3.tbStrip.Visible());
    setTabPlacement(2);
    EXPECT_TRUE(Form3.tbStrip.Visible());
    EXPECT_FALSE(Form3.mnuFullwindow.Checked);
    EXPECT_EQ(Form3.tbStrip.Placement(), 2);
}

// The Advanced screen ------------------------------------------------------------------

TEST_F(Layout, TheAdvancedScreenFillsTheWindow) {
    open();
    size(9000, 7500);
    EXPECT_EQ(Form3.tbStrip.Width(), 9000 - Form3.marginTabW);
    EXPECT_EQ(Form3.tbStrip.Height(), 7500 - Form3.marginTabH);
    EXPECT_EQ(Form3.filtPicBox.Width(), 9000 - 322);
    EXPECT_EQ(Form3.filtPicBox.Height(), Form3.tbStrip.Height() - 350);
    EXPECT_EQ(Form3.ListView1[2].Height(), Form3.filtPicBox.Height() - 100);
    EXPECT_EQ(Form3.ListView1[2].Width(), Form3.filtPicBox.Width() - 2100 - 70);
    EXPECT_TRUE(Form3.indexBox.Visible());
    EXPECT_EQ(Form3.indexBox.Left(), Form3.filtPicBox.Width() - 2100 - 50);
    EXPECT_EQ(Form3.Picture1.Left(), Form3.indexBox.Left() + 24);
    EXPECT_EQ(Form3.indexBox.Height(), Form3.filtPicBox.Height() - (432 + 70));
    EXPECT_EQ(Form3.indexPanelBox.Top(), Form3.indexBox.Height() - (300 + 20));
    EXPECT_EQ(Form3.indexFlipBox.Top(),
              Form3.ScaleHeight() - (Form3.indexFlipBox.ScaleHeight() + 15));
}

TEST_F(Layout, TheGroupListEndsAboveTheButtonsOrFillsThePanel) {
    open();
    size(9000, 7500);
    EXPECT_FALSE(Form3.indexPanelBox.Visible());
    EXPECT_EQ(Form3.ListView1[3].Height(), Form3.indexBox.Height() - 50);
    Form3.indexPanelBox.Visible(true);
    UpdateFilterTab();
    EXPECT_EQ(Form3.ListView1[3].Height(), Form3.indexPanelBox.Top());
}

TEST_F(Layout, WithoutTheSidePanelTheListTakesTheWholeScreen) {
    open();
    Form3.filterAdvanced = false;
    size(9000, 7500);
    EXPECT_FALSE(Form3.indexBox.Visible());
    EXPECT_EQ(Form3.ListView1[2].Width(), Form3.filtPicBox.Width());
}

// The Standard screen ------------------------------------------------------------------

TEST_F(Layout, TheStandardScreenFillsTheWindow) {
    open();
    clickTab(2);
    size(9000, 7500);
    EXPECT_EQ(Form3.tbStrip.Width(), 9000 - Form3.marginTabW);
    EXPECT_EQ(Form3.picTab[0].Width(), 9000 - 350);
    EXPECT_EQ(Form3.picTab[0].Height(), Form3.tbStrip.Height() - 450);
    EXPECT_EQ(Form3.Frame1[1].Width(), Form3.picTab[0].Width() - 150);
    EXPECT_EQ(Form3.Combo1[1].Width(), Form3.Frame1[1].Width() - 1200);
    EXPECT_EQ(Form3.Command1[1].Left(), Form3.Frame1[1].Width() - 700);
    EXPECT_EQ(Form3.ListView1[1].Width(), Form3.picTab[0].Width() - 100);
    EXPECT_EQ(Form3.ListView1[1].Height(), Form3.picTab[0].Height() - 600);
}

TEST_F(Layout, AWindowTooNarrowForTheGroupsKeepsTheirOldWidth) {
    open();
    clickTab(2);
    size(1800, 7500);
    EXPECT_EQ(Form3.Combo1[1].Width(), 1800 - 350 - 150 - 1200);
    size(1650, 7500);
    EXPECT_EQ(Form3.Frame1[1].Width(), 1650 - 350 - 150);
    EXPECT_EQ(Form3.Combo1[1].Width(), 1800 - 350 - 150 - 1200);
    // What comes after it is laid out all the same.
    EXPECT_EQ(Form3.Command1[1].Left(), 1650 - 350 - 150 - 700);
    EXPECT_EQ(Form3.ListView1[1].Width(), 1650 - 350 - 100);
}

TEST_F(Layout, AnAdvancedScreenTooNarrowForItsListStillMovesTheSidePanel) {
    open();
    size(9000, 7500);
    size(2400, 7500);
    EXPECT_EQ(Form3.filtPicBox.Width(), 2400 - 322);
    EXPECT_EQ(Form3.ListView1[2].Width(), 9000 - 322 - 2100 - 70);
    EXPECT_EQ(Form3.indexBox.Left(), 2400 - 322 - 2100 - 50);
    EXPECT_EQ(Form3.Picture1.Left(), Form3.indexBox.Left() + 24);
}

TEST_F(Layout, AWindowTooSmallForTheStripLaysOutWhatItCan) {
    open();
    for (int tab : {1, 2}) {
        SCOPED_TRACE(tab);
        size(9000, 7500);
        clickTab(tab);
        const double strip = Form3.tbStrip.Width();
        size(60, 7200);
        EXPECT_EQ(Form3.tbStrip.Width(), strip);
        EXPECT_EQ(Form3.tbStrip.Height(), 7200 - Form3.marginTabH);
        PictureBox& screen = tab == 1 ? Form3.filtPicBox : Form3.picTab[0];
        EXPECT_EQ(screen.Height(), Form3.tbStrip.Height() - (tab == 1 ? 350 : 450));
    }
}

TEST_F(Layout, AMinimisedWindowIsHiddenAndNotLaidOut) {
    open();
    const double top = Form3.indexFlipBox.Top();
    ASSERT_GT(top, 0);
    Form3.WindowState(stateMinimised);
    EXPECT_FALSE(Form3.Visible());
    EXPECT_EQ(Form3.indexFlipBox.Top(), top);
}

// The full window ----------------------------------------------------------------------

TEST_F(Layout, EscapeFillsTheWindowWithTheAdvancedListAndBringsTheTabsBack) {
    open();
    size(9000, 7500);
    Form3.ListView1[2].SetFocus();
    press(win::VK_ESCAPE);
    EXPECT_FALSE(Form3.tbStrip.Visible());
    EXPECT_FALSE(Form3.StatusBar1.Visible());
    EXPECT_FALSE(Form3.indexFlipBox.Visible());
    EXPECT_TRUE(Form3.mnuFullwindow.Checked);
    EXPECT_EQ(Form3.filtPicBox.Left(), 50);
    EXPECT_EQ(Form3.filtPicBox.Top(), 0);
    EXPECT_EQ(Form3.filtPicBox.Width(), 9000 - 145);
    EXPECT_EQ(Form3.filtPicBox.Height(), Form3.tbStrip.Height() + 400);
    EXPECT_EQ(win::GetFocus(), Form3.ListView1[2].hWnd());
    press(win::VK_ESCAPE);
    EXPECT_TRUE(Form3.tbStrip.Visible());
    EXPECT_TRUE(Form3.StatusBar1.Visible());
    EXPECT_TRUE(Form3.indexFlipBox.Visible());
    EXPECT_FALSE(Form3.mnuFullwindow.Checked);
    EXPECT_EQ(Form3.filtPicBox.Left(), 120);
    EXPECT_EQ(Form3.filtPicBox.Top(), 408);
    EXPECT_EQ(Form3.filtPicBox.Width(), 9000 - 322);
    EXPECT_EQ(Form3.marginAdvH, 350);
}

TEST_F(Layout, TheFullWindowFitsTheStandardScreenAsWell) {
    open();
    clickTab(2);
    size(9000, 7500);
    toggleFullWindow();
    EXPECT_EQ(Form3.picTab[0].Left(), 0);
    EXPECT_EQ(Form3.picTab[0].Top(), 0);
    EXPECT_EQ(Form3.picTab[0].Width(), 9000 - 80);
    EXPECT_EQ(Form3.picTab[0].Height(), Form3.tbStrip.Height() + 390);
    EXPECT_EQ(Form3.filtPicBox.Top(), 50);
    toggleFullWindow();
    EXPECT_FALSE(Form3.indexFlipBox.Visible());
    EXPECT_EQ(Form3.picTab[0].Left(), 120);
    EXPECT_EQ(Form3.picTab[0].Top(), 480);
    EXPECT_EQ(Form3.marginStdH, 450);
}

TEST_F(Layout, TheFullWindowFollowsTheWindowsSize) {
    open();
    toggleFullWindow();
    size(9000, 7500);
    EXPECT_EQ(Form3.filtPicBox.Width(), 9000 - 145);
    EXPECT_EQ(Form3.filtPicBox.Height(), 7500 - Form3.marginTabH + 400);
    toggleFullWindow();
    clickTab(2);
    toggleFullWindow();
    size(7500, 6000);
    EXPECT_EQ(Form3.picTab[0].Width(), 7500 - 80);
    EXPECT_EQ(Form3.picTab[0].Height(), 6000 - Form3.marginTabH + 390);
}

TEST_F(Layout, EscapeWorksWhateverHasTheFocus) {
    open();
    bool full = false;
    for (Control* control :
         std::initializer_list<Control*>{&Form3.Command3[0], &Form3.ListView1[3], &Form3.tbStrip}) {
        control->SetFocus();
        press(win::VK_ESCAPE);
        full = !full;
        EXPECT_EQ(Form3.mnuFullwindow.Checked, full);
        press(win::VK_ESCAPE);
        full = !full;
    }
    Form3.advMode = 1;
    driver::click(Form3.Command3[2].hWnd(), driver::middleOf(Form3.Command3[2].hWnd()));
    Form3.txtFilter.Text("mask");
    Form3.txtFilter.SetFocus();
    press(win::VK_ESCAPE);
    EXPECT_TRUE(Form3.mnuFullwindow.Checked);
    EXPECT_EQ(Form3.txtFilter.Text(), "mask");
}

TEST_F(Layout, AWindowThatBeginsFullHasItsPlaces) {
    putRecord("CF", "12 0 0 0 1 1 0 1500 3000 9000 7500 31 0 36000");
    open();
    EXPECT_TRUE(Form3.mnuFullwindow.Checked);
    EXPECT_EQ(Form3.filtPicBox.Left(), 50);
    EXPECT_EQ(Form3.filtPicBox.Width(), 9000 - 145);
    EXPECT_EQ(Form3.filtPicBox.Height(), 7500 - Form3.marginTabH + 400);
}

TEST_F(Layout, AHiddenMainWindowGoesToFullWindowWhateverItWas) {
    open();
    toggleFullWindow();
    Form3.Hide();
    toggleFullWindow();
    EXPECT_TRUE(Form3.mnuFullwindow.Checked);
    EXPECT_FALSE(Form3.tbStrip.Visible());
}

TEST_F(Layout, UnderADialogTheFullWindowTakesNoFocus) {
    open();
    Form3.Command3[0].SetFocus();
    modalOpen = 1;
    toggleFullWindow();
    EXPECT_EQ(win::GetFocus(), Form3.Command3[0].hWnd());
    EXPECT_TRUE(Form3.mnuFullwindow.Checked);
}

TEST_F(Layout, TheFullWindowDoesNotSurviveAReload) {
    putRecord("CF", "40 0 0 0 1 1 0 1500 3000 9000 7500 31 0 36000");
    open();
    toggleFullWindow();
    keepResident = false;
    Form3.unload();
    clickPad();
    EXPECT_FALSE(Form3.mnuFullwindow.Checked);
    EXPECT_TRUE(Form3.tbStrip.Visible());
    EXPECT_EQ(Form3.marginAdvH, 350);
}

}  // namespace
}  // namespace magpie
