// Pages: bare frames under a tab strip, turned by Ctrl+Tab, of which one can be used at a time.
#include "platform/api/user32.h"
#include "platform/controls/basic_controls.h"
#include "platform/controls/control_array.h"
#include "platform/controls/tab_order.h"
#include "platform/controls/tab_strip.h"
#include "platform/controls/text_box.h"
#include "tests/unit/controls/controls_test.h"

namespace magpie {
namespace {

using testing::ElementsAre;

struct Sheet : Form {
    Sheet()
        : Form({.className = "Sheet",
                .caption = "Sheet",
                .clientWidth = 6000,
                .clientHeight = 4500}) {}
    ControlArray<Frame, 0, 2> page;
    ControlArray<TextBox, 0, 2> text;
    Button accept;
    TabStrip strip;
};

Sheet sheet;

void showPage() {
    for (Frame& page : sheet.page) {
        const bool shown = page.Index == sheet.strip.SelectedTab() - 1;
        if (!shown && page.holdsFocus()) sheet.strip.SetFocus();
        page.Left(shown ? 150 : -20000);
        page.Enabled(shown);
    }
}

void makeSheet() {
    for (Frame& page : sheet.page) {
        page.createBare(sheet, {150, 450, 5000, 2000});
        sheet.text[page.Index].create(page, {0, 0, 1500, 300}, "text");
    }
    sheet.accept.create(sheet, {0, 4000, 1500, 300}, "OK");
    sheet.strip.create(sheet, {0, 0, 6000, 3000}, "Pages");
    for (const char* caption : {"One", "Two", "Three"}) sheet.strip.addTab(caption, "", "");
    sheet.pages(&sheet.strip);
    showPage();
}

class Pages : public ControlsTest {
public:
    Pages() {
        sheet.makeControls = makeSheet;
        sheet.strip.onClick = showPage;
        sheet.Show();
        sheet.text[0].SetFocus();
    }
    ~Pages() override { sheet.discard(); }

    static void ctrlTab(driver::Keys also = {}) {
        also.ctrl = true;
        driver::key(win::VK_TAB, also);
    }
    static int onShow() { return sheet.strip.SelectedTab(); }
    static bool has(Control& control) { return win::GetFocus() == control.hWnd(); }
};

TEST_F(Pages, ControlTabGoesOnAndRoundTheEnd) {
    std::vector<int> shown;
    for (int press = 0; press < 4; ++press) {
        ctrlTab();
        shown.push_back(onShow());
    }
    EXPECT_THAT(shown, ElementsAre(2, 3, 1, 2));
}

TEST_F(Pages, WithShiftItGoesBack) {
    std::vector<int> shown;
    for (int press = 0; press < 4; ++press) {
        ctrlTab({.ctrl = true, .shift = true, .alt = false});
        shown.push_back(onShow());
    }
    EXPECT_THAT(shown, ElementsAre(3, 2, 1, 3));
}

TEST_F(Pages, ItWorksFromWhereverTheFocusIs) {
    sheet.accept.SetFocus();
    ctrlTab();
    EXPECT_EQ(onShow(), 2);
    EXPECT_TRUE(has(sheet.accept));
    sheet.strip.SetFocus();
    ctrlTab();
    EXPECT_EQ(onShow(), 3);
    EXPECT_TRUE(has(sheet.strip));
}

TEST_F(Pages, ATextThatLosesItsPageGetsTheFocusBackWithIt) {
    ctrlTab();
    EXPECT_TRUE(has(sheet.strip));
    ctrlTab();
    EXPECT_TRUE(has(sheet.strip));
    ctrlTab();
    EXPECT_TRUE(has(sheet.text[0]));
    win::DWORD first = 9;
    win::DWORD last = 9;
    win::SendMessageA(sheet.text[0].hWnd(), win::EM_GETSEL, reinterpret_cast<win::WPARAM>(&first),
                      reinterpret_cast<win::LPARAM>(&last));
    EXPECT_EQ(first, 0u);
    EXPECT_EQ(last, 4u);
}

TEST_F(Pages, TabAloneStaysOnThePage) {
    driver::key(win::VK_TAB);
    EXPECT_EQ(onShow(), 1);
    EXPECT_TRUE(has(sheet.accept));
}

TEST_F(Pages, WithoutPagesTheKeyIsTheTabKey) {
    sheet.pages(nullptr);
    ctrlTab();
    EXPECT_EQ(onShow(), 1);
    EXPECT_TRUE(has(sheet.accept));
    EXPECT_FALSE(sheet.turnPage(1));
}

TEST_F(Pages, AReloadedFormTurnsItsNewPages) {
    ctrlTab();
    sheet.unload();
    sheet.Show();
    EXPECT_EQ(onShow(), 1);
    ctrlTab();
    EXPECT_EQ(onShow(), 2);
}

TEST_F(Pages, TheFormMayGoWhenAPageIsTurned) {
    sheet.strip.onClick = [] { sheet.unload(); };
    ctrlTab();
    EXPECT_FALSE(sheet.loaded());
}

TEST_F(Pages, AStripWithoutTabsTurnsNothing) {
    sheet.strip.onClick = [] { note("click"); };
    sheet.makeControls = [] {
        sheet.strip.create(sheet, {0, 0, 6000, 3000}, "Pages");
        sheet.pages(&sheet.strip);
    };
    sheet.unload();
    sheet.Show();
    EXPECT_TRUE(sheet.turnPage(1));
    EXPECT_EQ(onShow(), 0);
    EXPECT_THAT(noted, ElementsAre());
}

// What stands in a page that is disabled -----------------------------------------------------

TEST_F(Pages, OnlyThePageOnShowTakesTheFocus) {
    EXPECT_TRUE(takesFocus(sheet.text[0].hWnd()));
    EXPECT_FALSE(takesFocus(sheet.text[1].hWnd()));
    EXPECT_EQ(firstStop(sheet.hWnd()), sheet.text[0].hWnd());
    sheet.strip.SelectTab(2);
    EXPECT_FALSE(takesFocus(sheet.text[0].hWnd()));
    EXPECT_TRUE(takesFocus(sheet.text[1].hWnd()));
    EXPECT_EQ(firstStop(sheet.hWnd()), sheet.text[1].hWnd());
    sheet.page[1].Visible(false);
    EXPECT_FALSE(takesFocus(sheet.text[1].hWnd()));
}

TEST_F(Pages, TheFirstStopOfAHiddenFormIsThatOfItsPageOnShow) {
    sheet.Hide();
    EXPECT_EQ(firstStop(sheet.hWnd()), sheet.text[0].hWnd());
    sheet.strip.SelectTab(2);
    EXPECT_EQ(firstStop(sheet.hWnd()), sheet.text[1].hWnd());
}

TEST_F(Pages, AWindowThatHasGoneTakesNoFocus) {
    const win::HWND text = sheet.text[0].hWnd();
    sheet.unload();
    EXPECT_FALSE(takesFocus(text));
}

TEST_F(Pages, ComingBackToTheFormTheFocusGoesToWhereItCanBeUsed) {
    driver::deactivateApplication();
    sheet.strip.SelectTab(2);
    driver::activateApplication();
    EXPECT_TRUE(has(sheet.text[1]));
}

TEST_F(Pages, AControlKnowsWhetherItHoldsTheFocus) {
    EXPECT_TRUE(sheet.page[0].holdsFocus());
    EXPECT_TRUE(sheet.text[0].holdsFocus());
    EXPECT_FALSE(sheet.page[1].holdsFocus());
    EXPECT_FALSE(sheet.accept.holdsFocus());
    driver::deactivateApplication();
    EXPECT_FALSE(sheet.page[0].holdsFocus());
}

TEST_F(Pages, ABareFrameHoldsControlsAndHearsOfThem) {
    EXPECT_EQ(sheet.text[0].containingControl(), &sheet.page[0]);
    sheet.text[0].onChange = [] { note("changed"); };
    driver::type("x");
    EXPECT_THAT(noted, ElementsAre("changed"));
}

}  // namespace
}  // namespace magpie
