// TabStrip: tabs, selection, placement.
#include "platform/controls/tab_strip.h"

#include "platform/api/comctl32.h"
#include "platform/api/user32.h"
#include "platform/controls/text_box.h"
#include "tests/unit/controls/controls_test.h"

namespace magpie {
namespace {

using testing::ElementsAre;

struct Binder : Form {
    Binder()
        : Form({.className = "Binder",
                .caption = "Binder",
                .clientWidth = 6000,
                .clientHeight = 4500}) {}
    TextBox over;
    TabStrip strip;
    TextBox under;
};

Binder binder;

class TabStripTest : public ControlsTest {
public:
    TabStripTest() {
        binder.makeControls = [] {
            binder.over.create(binder, {300, 900, 1500, 300}, "");
            binder.strip.create(binder, {0, 0, 6000, 3000}, "Views");
            binder.strip.addTab("Advanced", "k1", "First");
            binder.strip.addTab("Standard", "k2", "Second");
            binder.under.create(binder, {300, 3300, 1500, 300}, "");
        };
        binder.strip.onClick = [] { note("click " + std::to_string(binder.strip.SelectedTab())); };
    }

    static void clickTab(int tab) {
        win::RECT area{};
        win::SendMessageA(binder.strip.hWnd(), win::TCM_GETITEMRECT,
                          static_cast<win::WPARAM>(tab - 1), reinterpret_cast<win::LPARAM>(&area));
        driver::click(binder.strip.hWnd(),
                      {(area.left + area.right) / 2, (area.top + area.bottom) / 2});
    }

    static std::vector<win::HWND> children() {
        std::vector<win::HWND> all;
        for (win::HWND child = win::GetWindow(binder.hWnd(), win::GW_CHILD); child != nullptr;
             child = win::GetWindow(child, win::GW_HWNDNEXT))
            all.push_back(child);
        return all;
    }
};

TEST_F(TabStripTest, TheFirstTabIsSelectedAtFirst) {
    EXPECT_EQ(binder.strip.SelectedTab(), 1);
    EXPECT_THAT(noted, ElementsAre());
}

TEST_F(TabStripTest, AClickOnAnotherTabIsTold) {
    binder.Show();
    clickTab(2);
    clickTab(2);
    clickTab(1);
    EXPECT_THAT(noted, ElementsAre("click 2", "click 1"));
}

TEST_F(TabStripTest, SelectingATabClicksEvenTheOneThatIsSelected) {
    binder.strip.SelectTab(1);
    binder.strip.SelectTab(2);
    binder.strip.SelectTab(2);
    EXPECT_THAT(noted, ElementsAre("click 1", "click 2", "click 2"));
}

TEST_F(TabStripTest, ATabThatIsNotThereRaises9) {
    EXPECT_EQ(failureOf([] { binder.strip.SelectTab(0); }), 9);
    EXPECT_EQ(failureOf([] { binder.strip.SelectTab(3); }), 9);
    EXPECT_EQ(binder.strip.SelectedTab(), 1);
}

TEST_F(TabStripTest, APlacementThatIsNoneRaises380) {
    EXPECT_EQ(failureOf([] { binder.strip.Placement(-1); }), 380);
    EXPECT_EQ(failureOf([] { binder.strip.Placement(4); }), 380);
    EXPECT_EQ(binder.strip.Placement(), tabsTop);
}

TEST_F(TabStripTest, AnotherPlacementKeepsTabsSelectionPlaceAndOrder) {
    const std::vector<win::HWND> before = children();
    binder.strip.SelectTab(2);
    binder.strip.Move({150, 300, 5000, 2500});
    noted.clear();
    for (const int placement : {tabsBottom, tabsLeft, tabsRight, tabsTop}) {
        binder.strip.Placement(placement);
        EXPECT_EQ(binder.strip.Placement(), placement);
        EXPECT_EQ(binder.strip.SelectedTab(), 2);
        EXPECT_EQ(win::SendMessageA(binder.strip.hWnd(), win::TCM_GETITEMCOUNT, 0, 0), 2);
        EXPECT_EQ(binder.strip.Left(), 150);
        EXPECT_EQ(binder.strip.Width(), 5000);
        EXPECT_EQ(binder.strip.Caption(), "Views");
        EXPECT_THAT(children(), ElementsAre(before[0], binder.strip.hWnd(), before[2]));
    }
    EXPECT_THAT(noted, ElementsAre());
}

TEST_F(TabStripTest, APlacementIsAStyleOfTheWindow) {
    binder.strip.Placement(tabsBottom);
    const auto style = [] {
        return static_cast<win::DWORD>(win::GetWindowLongPtrA(binder.strip.hWnd(), win::GWL_STYLE));
    };
    EXPECT_NE(style() & win::TCS_BOTTOM, 0u);
    EXPECT_EQ(style() & win::TCS_VERTICAL, 0u);
    binder.strip.Placement(tabsRight);
    EXPECT_NE(style() & win::TCS_RIGHT, 0u);
    EXPECT_NE(style() & win::TCS_VERTICAL, 0u);
}

TEST_F(TabStripTest, OnlyAtTheTopTheVisualStyleDrawsTheTabs) {
    EXPECT_TRUE(driver::isThemed(binder.strip.hWnd()));
    for (const int placement : {1, 2, 3}) {
        binder.strip.Placement(placement);
        EXPECT_FALSE(driver::isThemed(binder.strip.hWnd())) << placement;
    }
    binder.strip.Placement(0);
    EXPECT_TRUE(driver::isThemed(binder.strip.hWnd()));
}

TEST_F(TabStripTest, TheSamePlacementMakesNoNewWindow) {
    win::HWND window = binder.strip.hWnd();
    binder.strip.Placement(tabsTop);
    EXPECT_EQ(binder.strip.hWnd(), window);
}

TEST_F(TabStripTest, AHiddenStripStaysHiddenInAnotherPlacement) {
    binder.Show();
    binder.strip.Visible(false);
    binder.strip.Placement(tabsLeft);
    EXPECT_FALSE(binder.strip.Visible());
    EXPECT_FALSE(win::IsWindowVisible(binder.strip.hWnd()));
    binder.strip.Visible(true);
    clickTab(2);
    EXPECT_EQ(binder.strip.SelectedTab(), 2);
}

TEST_F(TabStripTest, TabsStopsStayInTheirOrderInAnotherPlacement) {
    binder.Show();
    binder.strip.Placement(tabsBottom);
    binder.over.SetFocus();
    driver::key(win::VK_TAB);
    EXPECT_EQ(win::GetFocus(), binder.strip.hWnd());
    driver::key(win::VK_TAB);
    EXPECT_EQ(win::GetFocus(), binder.under.hWnd());
}

TEST_F(TabStripTest, AToolTipOfTheWholeStripSurvivesAnotherPlacement) {
    binder.strip.ToolTipText("Views of the bookmarks");
    binder.strip.Placement(tabsBottom);
    EXPECT_EQ(binder.strip.ToolTipText(), "Views of the bookmarks");
    EXPECT_EQ(driver::toolTip(binder.strip.hWnd()), "Views of the bookmarks");
}

TEST_F(TabStripTest, ChangesOfPlacementLeaveNothingBehind) {
    binder.load();
    const driver::Counts before = driver::live();
    for (int time = 0; time < 20; ++time) binder.strip.Placement(time % 4);
    binder.strip.Placement(tabsTop);
    EXPECT_EQ(driver::live(), before);
}

TEST_F(TabStripTest, AReloadedFormHasItsTabsAtTheTopAgain) {
    binder.strip.Placement(tabsRight);
    binder.strip.SelectTab(2);
    binder.unload();
    EXPECT_EQ(binder.strip.SelectedTab(), 1);
    EXPECT_EQ(binder.strip.Placement(), tabsTop);
    EXPECT_EQ(win::SendMessageA(binder.strip.hWnd(), win::TCM_GETITEMCOUNT, 0, 0), 2);
}

}  // namespace
}  // namespace magpie
