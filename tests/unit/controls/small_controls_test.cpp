// The plain controls, the status bar, tool tips, and what all controls have in common.
#include "platform/api/comctl32.h"
#include "platform/api/user32.h"
#include "platform/controls/basic_controls.h"
#include "platform/controls/control_array.h"
#include "platform/controls/status_bar.h"
#include "platform/controls/text_box.h"
#include "tests/unit/controls/controls_test.h"

namespace magpie {
namespace {

using testing::ElementsAre;

struct Panel : Form {
    Panel()
        : Form({.className = "Panel",
                .caption = "Panel",
                .clientWidth = 6000,
                .clientHeight = 4500}) {}
    Label label;
    Frame frame;
    CheckBox check;
    ControlArray<Button, 1, 3> buttons;
    TextBox text;
    StatusBar status;
};

Panel panel;

class SmallControls : public ControlsTest {
public:
    SmallControls() {
        panel.makeControls = [] {
            panel.label.create(panel, {0, 0, 1500, 300}, "Label");
            panel.frame.create(panel, {0, 300, 3000, 1500}, "Frame");
            panel.check.create(panel.frame, {150, 300, 1500, 300}, "Check");
            for (Button& button : panel.buttons)
                button.create(panel, {0, 1500.0 + button.Index * 450, 1500, 375}, "Button");
            panel.text.create(panel, {3000, 0, 1500, 300}, "text");
            panel.status.create(panel, {1500, 2400}, "Status");
        };
    }
};

// Place, visibility --------------------------------------------------------------------

TEST_F(SmallControls, AControlKeepsTheTwipsThatWereAssigned) {
    panel.label.Left(100.5);
    panel.label.Top(7);
    panel.label.Width(1234.75);
    panel.label.Height(308);
    EXPECT_EQ(panel.label.Left(), 100.5);
    EXPECT_EQ(panel.label.Top(), 7);
    EXPECT_EQ(panel.label.Width(), 1234.75);
    EXPECT_EQ(panel.label.Height(), 308);
    win::RECT rect{};
    win::GetWindowRect(panel.label.hWnd(), &rect);
    EXPECT_EQ(rect.right - rect.left, 82);
    EXPECT_EQ(rect.bottom - rect.top, 21);
    EXPECT_EQ(panel.label.ScaleWidth(), 82 * 15);
}

TEST_F(SmallControls, AtAHighDensityAControlHasMorePixels) {
    driver::setDpi(144);
    win::RECT rect{};
    win::GetWindowRect(panel.label.hWnd(), &rect);
    EXPECT_EQ(rect.right - rect.left, 150);
    EXPECT_EQ(panel.label.Width(), 1500);
    EXPECT_EQ(panel.label.ScaleWidth(), 1500);
}

TEST_F(SmallControls, ASizeBelowZeroRaises380AndChangesNothing) {
    EXPECT_EQ(failureOf([] { panel.label.Width(-1); }), 380);
    EXPECT_EQ(failureOf([] { panel.label.Height(-1); }), 380);
    EXPECT_EQ(failureOf([] { panel.label.Move({0, 0, 10, -10}); }), 380);
    EXPECT_EQ(panel.label.Width(), 1500);
    EXPECT_EQ(panel.label.Height(), 300);
    EXPECT_EQ(failureOf([] { panel.label.Left(-20000); }), 0);
    EXPECT_EQ(panel.label.Left(), -20000);
}

TEST_F(SmallControls, AControlIsVisibleAsItWasToldWhateverItsFormDoes) {
    EXPECT_TRUE(panel.label.Visible());
    EXPECT_FALSE(panel.Visible());
    panel.label.Visible(false);
    panel.Show();
    EXPECT_FALSE(panel.label.Visible());
    EXPECT_FALSE(win::IsWindowVisible(panel.label.hWnd()));
    panel.label.Visible(true);
    EXPECT_TRUE(win::IsWindowVisible(panel.label.hWnd()));
}

TEST_F(SmallControls, ADisabledButtonDoesNotClick) {
    panel.buttons[1].onClick = [] { note("click"); };
    panel.buttons[1].Enabled(false);
    EXPECT_FALSE(panel.buttons[1].Enabled());
    panel.Show();
    driver::click(panel.buttons[1].hWnd(), {5, 5});
    EXPECT_THAT(noted, ElementsAre());
    panel.buttons[1].Enabled(true);
    driver::click(panel.buttons[1].hWnd(), {5, 5});
    EXPECT_THAT(noted, ElementsAre("click"));
}

TEST_F(SmallControls, CaptionsOfAnyLengthComeBack) {
    for (const std::size_t length : {0u, 1u, 255u, 256u, 4000u}) {
        panel.buttons[1].Caption(std::string(length, 'c'));
        EXPECT_EQ(panel.buttons[1].Caption(), std::string(length, 'c'));
    }
}

// Control arrays -----------------------------------------------------------------------

TEST_F(SmallControls, TheElementsOfAnArrayTellTheirNumber) {
    for (Button& button : panel.buttons)
        button.onClick = [](int index) { note("click " + std::to_string(index)); };
    panel.Show();
    driver::click(panel.buttons[3].hWnd(), {5, 5});
    driver::click(panel.buttons[1].hWnd(), {5, 5});
    EXPECT_THAT(noted, ElementsAre("click 3", "click 1"));
    EXPECT_EQ(panel.buttons.Count(), 3);
}

TEST_F(SmallControls, AnElementThatIsNotThereRaises340) {
    EXPECT_EQ(failureOf([] { panel.buttons[0].Caption(); }), 340);
    EXPECT_EQ(failureOf([] { panel.buttons[4].Caption(); }), 340);
}

// Check box, text box, label -----------------------------------------------------------

TEST_F(SmallControls, ACheckBoxIsTickedByAClickAndSilentlyInCode) {
    panel.check.onClick = [] { note("click " + std::to_string(panel.check.Value())); };
    panel.Show();
    EXPECT_EQ(panel.check.Value(), 0);
    panel.check.Value(1);
    EXPECT_EQ(panel.check.Value(), 1);
    EXPECT_THAT(noted, ElementsAre());
    driver::click(panel.check.hWnd(), {5, 5});
    driver::click(panel.check.hWnd(), {5, 5});
    EXPECT_THAT(noted, ElementsAre("click 0", "click 1"));
    panel.check.SetFocus();
    driver::key(win::VK_SPACE);
    EXPECT_EQ(panel.check.Value(), 0);
}

TEST_F(SmallControls, ATextBoxTakesWhatIsTypedAndTellsOfChanges) {
    panel.text.onChange = [] { note(panel.text.Text()); };
    panel.Show();
    panel.text.SetFocus();
    panel.text.selectAll();
    driver::type("xY");
    EXPECT_THAT(noted, ElementsAre("x", "xY"));
    EXPECT_EQ(panel.text.Text(), "xY");
    panel.text.Text("set");
    EXPECT_EQ(noted.back(), "set");
}

// The class beeps at them.
TEST_F(SmallControls, ATextBoxTellsOfKeysThatAreNoTextAndItsClassHearsNothing) {
    panel.text.onKeyPress = [](int character) { note(std::to_string(character)); };
    panel.Show();
    for (const int character : {2, 6, 13, 14, 27, 31})
        EXPECT_EQ(win::SendMessageA(panel.text.hWnd(), win::WM_CHAR,
                                    static_cast<win::WPARAM>(character), 0),
                  0);
    EXPECT_THAT(noted, ElementsAre("2", "6", "13", "14", "27", "31"));
    EXPECT_EQ(panel.text.Text(), "text");
    panel.text.SetFocus();
    panel.text.selectAll();
    win::SendMessageA(panel.text.hWnd(), win::WM_CHAR, win::VK_BACK, 0);
    EXPECT_EQ(panel.text.Text(), "");
}

TEST_F(SmallControls, ATextBoxHoldsLongTexts) {
    panel.text.Text(std::string(60000, 't'));
    EXPECT_EQ(panel.text.Text().size(), 60000u);
}

// Status bar ---------------------------------------------------------------------------

TEST_F(SmallControls, AStatusBarShowsTextsInItsPanes) {
    panel.status.Pane(1, "Viewed: 2");
    panel.status.Pane(2, std::string(300, 'p'));
    EXPECT_EQ(panel.status.Pane(1), "Viewed: 2");
    EXPECT_EQ(panel.status.Pane(2), std::string(300, 'p'));
    panel.status.Pane(1, "");
    EXPECT_EQ(panel.status.Pane(1), "");
}

TEST_F(SmallControls, APaneThatIsNotThereRaises9) {
    EXPECT_EQ(failureOf([] { panel.status.Pane(0); }), 9);
    EXPECT_EQ(failureOf([] { panel.status.Pane(3, "x"); }), 9);
    EXPECT_EQ(failureOf([] { panel.status.PaneToolTip(3, "x"); }), 9);
}

TEST_F(SmallControls, AStatusBarLiesAlongTheBottomOfItsForm) {
    panel.Show();
    const auto bottomGap = [] {
        win::RECT bar{}, inner{};
        win::GetWindowRect(panel.status.hWnd(), &bar);
        win::GetClientRect(panel.hWnd(), &inner);
        win::POINT corner{inner.right, inner.bottom};
        win::ClientToScreen(panel.hWnd(), &corner);
        EXPECT_EQ(bar.right, corner.x);
        return corner.y - bar.bottom;
    };
    EXPECT_EQ(bottomGap(), 0);
    panel.Width(9000);
    panel.Height(9000);
    EXPECT_EQ(bottomGap(), 0);
}

// Tool tips ----------------------------------------------------------------------------

TEST_F(SmallControls, ATipIsShownChangedAndTakenAway) {
    panel.text.ToolTipText("One");
    EXPECT_EQ(driver::toolTip(panel.text.hWnd()), "One");
    panel.text.ToolTipText("Two");
    EXPECT_EQ(driver::toolTip(panel.text.hWnd()), "Two");
    EXPECT_EQ(panel.text.ToolTipText(), "Two");
    panel.check.ToolTipText("Other");
    panel.text.ToolTipText("");
    EXPECT_EQ(driver::toolTip(panel.text.hWnd()), "");
    EXPECT_EQ(driver::toolTip(panel.check.hWnd()), "Other");
}

TEST_F(SmallControls, TipsOfAFormTakeOneWindowThatGoesWithTheForm) {
    panel.load();
    const int before = driver::live().windows;
    panel.text.ToolTipText("One");
    panel.check.ToolTipText("Two");
    EXPECT_EQ(driver::live().windows, before + 1);
    panel.unload();
    EXPECT_EQ(driver::live(), driver::Counts{});
}

}  // namespace
}  // namespace magpie
