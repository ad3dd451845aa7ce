// The filter panel under its viewport: dragged, turned by the wheel, and brought into
// sight by the Tab key.
#include <cmath>
#include <tuple>

#include "tests/behaviour/panel_fixture.h"
#include "views/filter_panel.h"
#include "views/filter_strips.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;
using testing::ElementsAre;

class FilterScroll : public PanelFixture {
public:
    // Twips that the Top of an overflowing panel stays above.
    static double lowestTop() {
        return Form3.indexBox.Height() - Form3.indexPanelBox.Height() - Form3.filter3Box.Height();
    }

    static double top() { return Form3.filter3Box.Top(); }

    // Presses on a control, moves by whole pixels and lets go.
    static void drag(Control& control, win::POINT from, int down,
                     driver::Button button = driver::Button::left) {
        driver::moveMouse(control.hWnd(), from);
        driver::press(control.hWnd(), from, button);
        driver::moveMouse(control.hWnd(), {from.x, from.y + down});
        driver::release(control.hWnd(), from, button);
    }

    // On the panel itself, left of the frames.
    static constexpr win::POINT besideFrames{1, 300};
    static void dragPanel(int down) { drag(Form3.filter3Box, pointInSight(), down); }
    static win::POINT pointInSight() { return {1, 60 - static_cast<int>(std::lround(top() / 15))}; }

    static void shutAll() {
        for (int i = 0; i <= 4; ++i) slideBump(i, 0);
    }

    static void turn(Control& over, int notches) {
        driver::wheel(over.hWnd(), driver::middleOf(over.hWnd()), notches);
        driver::pump();
    }

    static bool inSight(Control& control) {
        const double edge = top() + topInPanel(control);
        return edge >= 0 &&
               edge + control.Height() <= Form3.indexBox.Height() - Form3.indexPanelBox.Height();
    }
};

// Where a drag begins ------------------------------------------------------------------

TEST_F(FilterScroll, ADragBeginsAnywhereOnThePanel) {
    openFilter();
    std::vector<std::pair<Control*, win::POINT>> places;
    for (int i = 0; i <= 4; ++i) {
        // Above its button; on the button; right of the frame's controls.
        places.push_back({&Form3.slideSwitch[i], {50, 4}});
        places.push_back({&Form3.slideButton[i], {50, 6}});
        places.push_back({frames()[static_cast<std::size_t>(i)], {126, 40}});
    }
    places.push_back({&Form3.timesLabel, {10, 5}});
    for (const auto& [control, at] : places) {
        for (const int down : {-7, 7}) {
            SCOPED_TRACE(control->Caption());
            // Held back at the panel's beginning, a press on a button is a click.
            openStrips(31);
            Form3.filter3Box.Top(std::min(150 - topInPanel(*control), 0.0));
            const double before = top();
            drag(*control, at, down);
            const double wanted = std::min(before + 15 * down, 0.0);
            EXPECT_EQ(top(), wanted > lowestTop() || down > 0 ? wanted : before);
        }
    }
    Form3.filter3Box.Top(-1500);
    dragPanel(-10);
    EXPECT_EQ(top(), -1650);
}

TEST_F(FilterScroll, ADragGoesOnBeyondTheEdgesOfItsControl) {
    openFilter();
    Form3.filter3Box.Top(-150);
    drag(Form3.slideSwitch[1], {50, 4}, -90);
    EXPECT_EQ(top(), -150 - 90 * 15);
    EXPECT_EQ(win::GetCapture(), nullptr);
    bringIntoSight(Form3.visitedFrame);
    const double before = top();
    drag(Form3.visitedFrame, {126, 20}, -100);
    EXPECT_EQ(top(), before - 1500);
}

// The control under the mouse moves along, so the next move counts from there.
TEST_F(FilterScroll, TheWholeDragCountsFromItsBeginning) {
    openFilter();
    Form3.filter3Box.Top(-1500);
    const win::POINT from = pointInSight();
    driver::moveMouse(Form3.filter3Box.hWnd(), from);
    driver::press(Form3.filter3Box.hWnd(), from);
    EXPECT_EQ(Form3.removeMeY, from.y * 15);
    for (int move = 1; move <= 5; ++move) {
        driver::moveMouse(Form3.filter3Box.hWnd(), {from.x, from.y - 3});
        EXPECT_EQ(top(), -1500 - 45 * move);
        EXPECT_EQ(Form3.removeMeY, from.y * 15);
    }
    driver::release(Form3.filter3Box.hWnd(), from);
    driver::moveMouse(Form3.filter3Box.hWnd(), {from.x, from.y + 4});
    EXPECT_EQ(top(), -1725);
    EXPECT_EQ(Form3.removeMeY, (from.y + 4) * 15);
}

TEST_F(FilterScroll, OnlyTheLeftButtonAloneDrags) {
    openFilter();
    Form3.filter3Box.Top(-1500);
    drag(Form3.filter3Box, pointInSight(), -10, driver::Button::right);
    drag(Form3.filter3Box, pointInSight(), -10, driver::Button::middle);
    EXPECT_EQ(top(), -1500);
    for (const int buttons : {0, 2, 3, 4, 5}) {
        scrollFilterPanel(buttons, 30.0 * buttons);
        EXPECT_EQ(top(), -1500);
        EXPECT_EQ(Form3.removeMeY, 30.0 * buttons);
    }
}

TEST_F(FilterScroll, FieldsAndBoxesKeepTheirMouse) {
    openFilter();
    std::vector<Control*> all = {&Form3.ratedBox[0], &Form3.Text2[0], &Form3.cmdIndex[4],
                                 &Form3.txtFilter};
    for (Control* each : all) {
        bringIntoSight(*each);
        Form3.filter3Box.Top(std::min(top(), -150.0));
        const double before = top();
        drag(*each, {5, 5}, 9);
        EXPECT_EQ(top(), before);
    }
}

// The bounds ---------------------------------------------------------------------------

TEST_F(FilterScroll, BeyondItsBeginningThePanelSnapsBackToIt) {
    openFilter();
    Form3.filter3Box.Top(-90);
    dragPanel(20);
    EXPECT_EQ(top(), 0);
    dragPanel(20);
    EXPECT_EQ(top(), 0);
}

TEST_F(FilterScroll, UpToItsBeginningThePanelFollows) {
    openFilter();
    Form3.filter3Box.Top(-90);
    dragPanel(6);
    EXPECT_EQ(top(), 0);
    Form3.filter3Box.Top(-90);
    dragPanel(5);
    EXPECT_EQ(top(), -15);
}

TEST_F(FilterScroll, ThePanelsEndStaysBelowTheButtons) {
    openFilter();
    ASSERT_GT(Form3.filter3Box.Height(), Form3.indexBox.Height());
    const double bound = lowestTop();
    // Exactly at the bound is too far, a pixel less is not.
    Form3.filter3Box.Top(bound + 150);
    dragPanel(-10);
    EXPECT_EQ(top(), bound + 150);
    dragPanel(-9);
    EXPECT_EQ(top(), bound + 15);
    dragPanel(-1);
    EXPECT_EQ(top(), bound + 15);
}

TEST_F(FilterScroll, FromBeyondTheBoundThePanelOnlyComesBack) {
    openFilter();
    Form3.filter3Box.Top(lowestTop() - 300);
    const double before = top();
    dragPanel(-1);
    EXPECT_EQ(top(), before);
    dragPanel(4);
    EXPECT_EQ(top(), before + 60);
}

TEST_F(FilterScroll, APanelThatFitsStaysWhereItIs) {
    openFilter();
    shutAll();
    ASSERT_LE(Form3.filter3Box.Height(), Form3.indexBox.Height());
    dragPanel(10);
    EXPECT_EQ(top(), 0);
    dragPanel(-10);
    EXPECT_EQ(top(), 0);
}

TEST_F(FilterScroll, APanelThatFitsComesDownFromAboveAndEvenTooFar) {
    openFilter();
    shutAll();
    Form3.filter3Box.Top(-600);
    dragPanel(-5);
    EXPECT_EQ(top(), -600);
    dragPanel(10);
    EXPECT_EQ(top(), -450);
    dragPanel(40);
    EXPECT_EQ(top(), 150);
    dragPanel(10);
    EXPECT_EQ(top(), 150);
}

TEST_F(FilterScroll, APanelAsHighAsItsViewportFits) {
    openFilter();
    Form3.filter3Box.Height(Form3.indexBox.Height());
    dragPanel(-10);
    EXPECT_EQ(top(), 0);
    Form3.filter3Box.Height(Form3.indexBox.Height() + 15);
    dragPanel(-10);
    EXPECT_EQ(top(), -150);
}

// A strip's button ---------------------------------------------------------------------

TEST_F(FilterScroll, ADragByAStripsButtonIsNoClick) {
    openFilter();
    Form3.filter3Box.Top(-150);
    drag(Form3.slideButton[1], {50, 6}, -20);
    EXPECT_EQ(top(), -450);
    EXPECT_EQ(Form3.slideButton[1].Tag, "True");
    clickButton(Form3.slideButton[1]);
    EXPECT_EQ(Form3.slideButton[1].Tag, "False");
}

TEST_F(FilterScroll, AHandThatShakesStillClicks) {
    openFilter();
    Form3.filter3Box.Top(-150);
    drag(Form3.slideButton[1], {50, 6}, -2);
    EXPECT_EQ(Form3.slideButton[1].Tag, "False");
}

TEST_F(FilterScroll, AfterADragTheSpaceBarTogglesAsEver) {
    openFilter();
    Form3.filter3Box.Top(-150);
    drag(Form3.slideButton[1], {50, 6}, -20);
    pressKey(win::VK_SPACE);
    EXPECT_EQ(Form3.slideButton[1].Tag, "False");
}

TEST_F(FilterScroll, WhereverThePanelWasScrolledToEnterTogglesAStrip) {
    openFilter();
    clickButton(Form3.slideButton[1]);
    Form3.filter3Box.Top(-1500);
    Form3.slideButton[3].SetFocus();
    pressKey(win::VK_RETURN);
    EXPECT_EQ(Form3.slideButton[3].Tag, "False");
    pressKey(win::VK_SPACE);
    EXPECT_EQ(Form3.slideButton[3].Tag, "True");
}

// The press ends beside the button, so no click ends it.
TEST_F(FilterScroll, AfterADragThatLeftItsButtonEnterTogglesAsEver) {
    openFilter();
    drag(Form3.slideButton[1], {50, 6}, -90);
    EXPECT_LT(top(), -60);
    EXPECT_EQ(Form3.slideButton[1].Tag, "True");
    pressKey(win::VK_RETURN);
    EXPECT_EQ(Form3.slideButton[1].Tag, "False");
}

// The wheel ----------------------------------------------------------------------------

TEST_F(FilterScroll, TheWheelTurnsThePanelWhateverHasTheFocus) {
    openFilter();
    Form3.ListView1[2].SetFocus();
    turn(Form3.slideSwitch[0], -1);
    EXPECT_EQ(top(), -400);
    turn(Form3.ratedBox[4], -1);
    EXPECT_EQ(top(), -800);
    Form3.filter3Box.Top(150 - topInPanel(Form3.visitedFrame));
    const double before = top();
    Form3.Combo3[0].SetFocus();
    turn(Form3.Combo3[0], 1);
    EXPECT_EQ(top(), before + 400);
    EXPECT_EQ(Form3.Combo3[0].ListIndex(), 0);
}

TEST_F(FilterScroll, TheWheelStopsAtBothEnds) {
    openFilter();
    const double bound = lowestTop();
    turn(Form3.slideSwitch[0], 1);
    EXPECT_EQ(top(), 0);
    turn(Form3.slideSwitch[0], -3);
    turn(Form3.Frame2, -100);
    EXPECT_GT(top(), bound);
    EXPECT_LE(top(), bound + 15);
    const double end = top();
    turn(Form3.Frame4, -1);
    EXPECT_EQ(top(), end);
    turn(Form3.Frame4, 1);
    EXPECT_EQ(top(), end + 400);
    turn(Form3.addedFrame, 100);
    EXPECT_EQ(top(), 0);
}

TEST_F(FilterScroll, FromBeyondTheBoundTheWheelOnlyComesBack) {
    openFilter();
    Form3.filter3Box.Top(lowestTop() - 300);
    const double before = top();
    turn(Form3.Frame4, -1);
    EXPECT_EQ(top(), before);
    turn(Form3.Frame4, 1);
    EXPECT_EQ(top(), before + 400);
}

TEST_F(FilterScroll, TheWheelBringsAPanelThatFitsBackAndNoFurther) {
    openFilter();
    shutAll();
    turn(Form3.slideSwitch[1], -1);
    EXPECT_EQ(top(), 0);
    Form3.filter3Box.Top(-600);
    turn(Form3.slideBox, -1);
    EXPECT_EQ(top(), -600);
    turn(Form3.slideBox, 1);
    EXPECT_EQ(top(), -200);
    turn(Form3.slideBox, 1);
    EXPECT_EQ(top(), 0);
    Form3.filter3Box.Top(150);
    turn(Form3.slideBox, 1);
    EXPECT_EQ(top(), 150);
}

TEST_F(FilterScroll, OnAnotherFaceTheWheelLeavesThePanelAlone) {
    openFilter();
    Form3.filter3Box.Top(-600);
    clickButton(Form3.Command3[2]);
    filterPanel_MouseWheel(1);
    turn(Form3.Command3[0], 1);
    EXPECT_EQ(top(), -600);
}

// The Tab key --------------------------------------------------------------------------

TEST_F(FilterScroll, TabGoesThroughThePanelInItsOrder) {
    openFilter();
    Form3.Command3[2].SetFocus();
    std::vector<Control*> expected;
    const auto strip = [&expected](int i) { expected.push_back(&Form3.slideButton[i]); };
    strip(0);
    for (CheckBox& box : Form3.ratedBox) expected.push_back(&box);
    expected.insert(expected.end(), {&Form3.cmdIndex[4], &Form3.cmdIndex[5]});
    strip(1);
    expected.insert(expected.end(), {&Form3.Combo3[0], &Form3.Text2[0]});
    strip(2);
    expected.insert(expected.end(), {&Form3.Combo3[1], &Form3.Text2[1], &Form3.Combo3[2]});
    strip(3);
    expected.insert(expected.end(), {&Form3.Combo3[3], &Form3.Text2[2], &Form3.Combo3[4]});
    strip(4);
    expected.insert(expected.end(), {&Form3.txtFilter, &Form3.cmdIndex[3]});
    for (std::size_t i = 0; i < expected.size(); ++i) {
        pressKey(win::VK_TAB);
        ASSERT_EQ(win::GetFocus(), expected[i]->hWnd()) << i;
        if (expected[i] != &Form3.cmdIndex[3]) {
            EXPECT_TRUE(inSight(*expected[i])) << i;
        }
    }
    while (win::GetFocus() != expected.front()->hWnd()) {
        pressKey(win::VK_TAB, {.ctrl = false, .shift = true, .alt = false});
        Control* focused = controlOf(win::GetFocus());
        EXPECT_TRUE(inSight(*focused)) << focused->Caption();
    }
    // The first strip's edge stands above its button.
    EXPECT_LE(top(), 0);
    EXPECT_GE(top(), -144);
}

TEST_F(FilterScroll, TabLeavesWhatIsInSightWhereItIs) {
    openFilter();
    Form3.filter3Box.Top(-300);
    Form3.ratedBox[1].SetFocus();
    pressKey(win::VK_TAB);
    EXPECT_EQ(win::GetFocus(), Form3.ratedBox[2].hWnd());
    EXPECT_EQ(top(), -300);
}

TEST_F(FilterScroll, TabOutsideOfThePanelScrollsNothing) {
    openFilter();
    Form3.filter3Box.Top(-300);
    Form3.Command3[0].SetFocus();
    pressKey(win::VK_TAB);
    EXPECT_EQ(win::GetFocus(), Form3.Command3[1].hWnd());
    EXPECT_EQ(top(), -300);
}

TEST_F(FilterScroll, AFocusByTheMouseScrollsNothing) {
    openFilter();
    // Half of the box is above the viewport.
    Form3.filter3Box.Top(-topInPanel(Form3.ratedBox[2]) - 120);
    const double before = top();
    driver::click(Form3.ratedBox[2].hWnd(), {20, 12});
    driver::pump();
    EXPECT_EQ(win::GetFocus(), Form3.ratedBox[2].hWnd());
    EXPECT_EQ(Form3.ratedBox[2].Value(), 0);
    EXPECT_EQ(top(), before);
}

TEST_F(FilterScroll, InAViewportLowerThanAControlItsUpperEdgeShows) {
    openFilter();
    Form3.indexBox.Height(Form3.indexPanelBox.Height() + 300);
    showInFilterPanel(Form3.Text2[2]);
    EXPECT_EQ(top() + topInPanel(Form3.Text2[2]), 60);
}

}  // namespace
}  // namespace magpie
