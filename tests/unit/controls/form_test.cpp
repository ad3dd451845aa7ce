// Forms: loading and unloading, place and size, visibility and window state.
#include "platform/controls/form.h"

#include "platform/controls/basic_controls.h"
#include "platform/controls/control_failure.h"
#include "platform/controls/picture_box.h"
#include "platform/controls/timer.h"
#include "tests/unit/controls/controls_test.h"

namespace magpie {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct Desk : Form {
    Desk()
        : Form({.className = "Desk",
                .caption = "Desk",
                .border = BorderStyle::sizable,
                .clientWidth = 6000,
                .clientHeight = 4500}) {}
    Button button;
    PictureBox box;
    Button inner;
    Timer timer;
};

Desk desk;

void makeDesk() {
    note("make");
    desk.button.create(desk, {300, 300, 1500, 375}, "Press");
    desk.button.ToolTipText("A tip");
    desk.box.create(desk, {300, 900, 3000, 1500});
    desk.inner.create(desk.box, {150, 150, 1200, 375}, "Inner");
    desk.timer.create(1000, true);
}

class FormTest : public ControlsTest {
public:
    FormTest() { desk.makeControls = makeDesk; }

    static int resizes() {
        return static_cast<int>(std::count(noted.begin(), noted.end(), "resize"));
    }
};

// Loading ------------------------------------------------------------------------------

TEST_F(FormTest, LoadsAtTheFirstAccess) {
    EXPECT_FALSE(desk.loaded());
    EXPECT_EQ(desk.Caption(), "Desk");
    EXPECT_TRUE(desk.loaded());
    EXPECT_FALSE(desk.Visible());
}

TEST_F(FormTest, LoadsAtTheFirstAccessToAControl) {
    EXPECT_EQ(desk.inner.Caption(), "Inner");
    EXPECT_TRUE(desk.loaded());
    desk.unload();
    EXPECT_EQ(desk.button.Left(), 300);
    EXPECT_TRUE(desk.loaded());
}

TEST_F(FormTest, MakesItsControlsBeforeItTellsOfTheLoadAndTellsOnce) {
    desk.onLoad = [] { note("load"); };
    desk.load();
    desk.load();
    desk.Show();
    EXPECT_THAT(noted, ElementsAre("make", "load"));
    EXPECT_THAT(loadedForms(), ElementsAre(&desk));
}

TEST_F(FormTest, AHundredLoadsLeaveNothingBehind) {
    const driver::Counts before = driver::live();
    for (int time = 0; time < 100; ++time) {
        desk.Show();
        driver::pump();
        ASSERT_TRUE(desk.unload());
        ASSERT_FALSE(desk.loaded());
    }
    EXPECT_EQ(driver::live(), before);
    EXPECT_THAT(loadedForms(), IsEmpty());
}

TEST_F(FormTest, ALoadStartsFromTheDesignAgain) {
    desk.button.Caption("Other");
    desk.button.Left(900);
    desk.button.Visible(false);
    desk.button.Enabled(false);
    desk.button.MousePointer(Pointer::sizeAll);
    desk.button.ToolTipText("Another");
    desk.Width(9000);
    desk.unload();
    EXPECT_EQ(desk.button.Caption(), "Press");
    EXPECT_EQ(desk.button.Left(), 300);
    EXPECT_TRUE(desk.button.Visible());
    EXPECT_TRUE(desk.button.Enabled());
    EXPECT_EQ(desk.button.MousePointer(), Pointer::standard);
    EXPECT_EQ(driver::toolTip(desk.button.hWnd()), "A tip");
    EXPECT_EQ(desk.ScaleWidth(), 6000);
}

TEST_F(FormTest, TellsWhyItIsAskedToUnload) {
    desk.onQueryUnload = [](bool&, int mode) { note("query " + std::to_string(mode)); };
    desk.onUnload = [] { note("unload"); };
    desk.load();
    noted.clear();
    EXPECT_TRUE(desk.unload());
    EXPECT_THAT(noted, ElementsAre("query 1", "unload"));
    desk.Show();
    noted.clear();
    win::PostMessageA(desk.hWnd(), win::WM_SYSCOMMAND, win::SC_CLOSE, 0);
    driver::pump();
    EXPECT_FALSE(desk.loaded());
    EXPECT_THAT(noted, ElementsAre("query 0", "unload"));
}

TEST_F(FormTest, ARefusedUnloadLeavesItAsItWas) {
    desk.onQueryUnload = [](bool& cancel, int) { cancel = true; };
    desk.onUnload = [] { note("unload"); };
    desk.Show();
    noted.clear();
    EXPECT_FALSE(desk.unload());
    EXPECT_TRUE(desk.loaded());
    EXPECT_TRUE(desk.Visible());
    EXPECT_THAT(noted, IsEmpty());
}

TEST_F(FormTest, UnloadingAFormThatIsNotLoadedAsksNobody) {
    desk.onQueryUnload = [](bool&, int) { note("query"); };
    EXPECT_TRUE(desk.unload());
    EXPECT_FALSE(desk.loaded());
    EXPECT_THAT(noted, IsEmpty());
}

TEST_F(FormTest, AnUnloadInsideTheUnloadIsNotASecondOne) {
    desk.onQueryUnload = [](bool&, int) {
        note("query");
        EXPECT_FALSE(desk.unload());
    };
    desk.load();
    noted.clear();
    EXPECT_TRUE(desk.unload());
    EXPECT_THAT(noted, ElementsAre("query"));
}

TEST_F(FormTest, AFailingHandlerIsAbandonedAndTheProgramGoesOn) {
    desk.onLoad = [] {
        note("load");
        throw Failure{5};
    };
    desk.onQueryUnload = [](bool& cancel, int) {
        cancel = true;
        throw Failure{5};
    };
    desk.load();
    EXPECT_TRUE(desk.loaded());
    EXPECT_FALSE(desk.unload());
    desk.button.onClick = [] { throw Failure{13}; };
    desk.Show();
    driver::click(desk.button.hWnd(), {5, 5});
    driver::click(desk.button.hWnd(), {5, 5});
    EXPECT_TRUE(desk.Visible());
}

TEST_F(FormTest, AFormThatGoesInItsOwnLoadIsNoForm) {
    desk.onLoad = [] { desk.discard(); };
    desk.load();
    EXPECT_FALSE(desk.loaded());
    EXPECT_EQ(failureOf([] { desk.Show(); }), 91);
    EXPECT_EQ(failureOf([] { desk.button.Caption("x"); }), 91);
    EXPECT_EQ(driver::live(), driver::Counts{});
}

TEST_F(FormTest, OnceTheStartUpFormHasGoneNoFormLoads) {
    Form first({.className = "First", .caption = "First"});
    startWith(first);
    desk.load();
    first.unload();
    EXPECT_TRUE(desk.loaded());
    desk.unload();
    EXPECT_EQ(failureOf([] { desk.Show(); }), 91);
    EXPECT_EQ(failureOf([] { desk.inner.Visible(true); }), 91);
    EXPECT_FALSE(desk.loaded());
    EXPECT_EQ(runUntilNoForm(), 0);
    startWith(first);
    EXPECT_EQ(failureOf([] { desk.load(); }), 0);
    first.discard();
    desk.discard();
}

// Place and size -----------------------------------------------------------------------

TEST_F(FormTest, HasTheInnerSizeOfItsDesign) {
    EXPECT_EQ(desk.ScaleWidth(), 6000);
    EXPECT_EQ(desk.ScaleHeight(), 4500);
    EXPECT_GT(desk.Width(), 6000);
    EXPECT_GT(desk.Height(), 4500);
}

TEST_F(FormTest, HasTheInnerSizeOfItsDesignAtAHighDensity) {
    driver::setDpi(144);
    EXPECT_EQ(desk.ScaleWidth(), 6000);
    EXPECT_EQ(desk.ScaleHeight(), 4500);
    win::RECT inner{};
    win::GetClientRect(desk.hWnd(), &inner);
    EXPECT_EQ(inner.right, 600);
    EXPECT_EQ(inner.bottom, 450);
}

TEST_F(FormTest, KeepsTheTwipsThatWereAssigned) {
    desk.Left(1001.5);
    desk.Top(2002.25);
    desk.Width(7003);
    desk.Height(5004);
    EXPECT_EQ(desk.Left(), 1001.5);
    EXPECT_EQ(desk.Top(), 2002.25);
    EXPECT_EQ(desk.Width(), 7003);
    EXPECT_EQ(desk.Height(), 5004);
    win::RECT rect{};
    win::GetWindowRect(desk.hWnd(), &rect);
    EXPECT_EQ(rect.left, 67);
    EXPECT_EQ(rect.right - rect.left, 467);
}

TEST_F(FormTest, TellsItsTruePlaceOnceTheUserHasMovedIt) {
    desk.Left(1001.5);
    desk.Width(7003);
    win::SetWindowPos(desk.hWnd(), nullptr, 100, 50, 0, 0, win::SWP_NOSIZE | win::SWP_NOZORDER);
    EXPECT_EQ(desk.Left(), 1500);
    EXPECT_EQ(desk.Top(), 750);
    EXPECT_EQ(desk.Width(), 7003);
}

TEST_F(FormTest, MayStandOutsideOfTheScreen) {
    desk.Left(-3000);
    desk.Top(-1500);
    EXPECT_EQ(desk.Left(), -3000);
    EXPECT_EQ(desk.Top(), -1500);
}

TEST_F(FormTest, ASizeBelowZeroRaises380AndChangesNothing) {
    desk.Width(7500);
    EXPECT_EQ(failureOf([] { desk.Width(-15); }), 380);
    EXPECT_EQ(failureOf([] { desk.Height(-0.5); }), 380);
    EXPECT_EQ(desk.Width(), 7500);
}

TEST_F(FormTest, OfAMinimisedFormThePlaceIsThatToComeBackTo) {
    driver::setWorkArea({60, 40, 1024, 768});
    desk.Left(1500);
    desk.Top(1800);
    desk.Width(7500);
    desk.Show();
    desk.WindowState(stateMinimised);
    EXPECT_EQ(desk.Left(), 1500);
    EXPECT_EQ(desk.Top(), 1800);
    EXPECT_EQ(desk.Width(), 7500);
    desk.Left(3000);
    desk.Width(8000);
    EXPECT_EQ(desk.WindowState(), stateMinimised);
    EXPECT_EQ(desk.Left(), 3000);
    EXPECT_EQ(desk.Width(), 8000);
    desk.WindowState(stateNormal);
    EXPECT_EQ(desk.Left(), 3000);
    EXPECT_EQ(desk.Top(), 1800);
    EXPECT_EQ(desk.Width(), 8000);
}

TEST_F(FormTest, AMinimisedFormThatIsHiddenStaysHiddenWhenItIsPlaced) {
    desk.Show();
    desk.WindowState(stateMinimised);
    desk.Hide();
    desk.Left(3000);
    EXPECT_FALSE(desk.Visible());
    desk.WindowState(stateNormal);
    desk.Show();
    EXPECT_EQ(desk.Left(), 3000);
}

// Visibility and window state ----------------------------------------------------------

TEST_F(FormTest, KeepsItsWindowStateWhileHidden) {
    desk.WindowState(stateMinimised);
    EXPECT_EQ(desk.WindowState(), stateMinimised);
    EXPECT_FALSE(desk.Visible());
    desk.Show();
    EXPECT_EQ(desk.WindowState(), stateMinimised);
    EXPECT_TRUE(win::IsIconic(desk.hWnd()));
    desk.Hide();
    EXPECT_EQ(desk.WindowState(), stateMinimised);
    desk.WindowState(stateMaximised);
    EXPECT_FALSE(desk.Visible());
    desk.Show();
    EXPECT_TRUE(win::IsZoomed(desk.hWnd()));
    desk.Hide();
    EXPECT_EQ(desk.WindowState(), stateMaximised);
    desk.WindowState(stateNormal);
    desk.Show();
    EXPECT_FALSE(win::IsZoomed(desk.hWnd()));
    EXPECT_FALSE(win::IsIconic(desk.hWnd()));
}

TEST_F(FormTest, ANewLoadStartsInTheNormalState) {
    desk.Show();
    desk.WindowState(stateMinimised);
    desk.unload();
    EXPECT_EQ(desk.WindowState(), stateNormal);
}

TEST_F(FormTest, ShowingAFormThatIsShownBringsItToTheFront) {
    Form other({.className = "Other", .caption = "Other"});
    desk.Show();
    other.Show();
    EXPECT_EQ(win::GetForegroundWindow(), other.hWnd());
    desk.Show();
    EXPECT_EQ(win::GetForegroundWindow(), desk.hWnd());
    other.discard();
}

TEST_F(FormTest, MakingAFormVisibleTwiceIsOneShowing) {
    desk.Visible(true);
    EXPECT_TRUE(desk.Visible());
    desk.Visible(true);
    desk.Visible(false);
    EXPECT_FALSE(desk.Visible());
    desk.Hide();
    EXPECT_FALSE(desk.Visible());
}

TEST_F(FormTest, TellsOfANewSizeOnlyWhenItIsNews) {
    desk.onResize = [] { note("resize"); };
    desk.Show();
    noted.clear();
    desk.Width(7500);
    EXPECT_EQ(resizes(), 1);
    desk.Left(1500);
    EXPECT_EQ(resizes(), 1);
    desk.WindowState(stateMinimised);
    EXPECT_EQ(resizes(), 2);
    desk.Hide();
    desk.Show();  // as small as before
    EXPECT_EQ(resizes(), 2);
    desk.WindowState(stateNormal);
    EXPECT_EQ(resizes(), 3);
    desk.WindowState(stateMinimised);
    EXPECT_EQ(resizes(), 4);
}

TEST_F(FormTest, AFormThatHidesWhenItIsMinimisedCanBeShownSmall) {
    desk.onResize = [] {
        if (desk.WindowState() == stateMinimised) desk.Hide();
    };
    desk.Show();
    desk.WindowState(stateMinimised);
    EXPECT_FALSE(desk.Visible());
    desk.Show();
    EXPECT_TRUE(desk.Visible());
    EXPECT_EQ(desk.WindowState(), stateMinimised);
    desk.WindowState(stateNormal);
    EXPECT_TRUE(desk.Visible());
    win::SendMessageA(desk.hWnd(), win::WM_SYSCOMMAND, win::SC_MINIMIZE, 0);
    EXPECT_FALSE(desk.Visible());
}

// Timers -------------------------------------------------------------------------------

TEST_F(FormTest, ATimerRunsWhileItIsEnabled) {
    desk.timer.onTimer = [] { note("tick"); };
    desk.load();
    noted.clear();
    driver::advance(2500);
    EXPECT_EQ(noted.size(), 2u);
    desk.timer.Enabled(false);
    driver::advance(5000);
    EXPECT_EQ(noted.size(), 2u);
    desk.timer.Enabled(true);
    desk.timer.Enabled(true);
    EXPECT_EQ(driver::live().timers, 1);
    driver::advance(1000);
    EXPECT_EQ(noted.size(), 3u);
}

TEST_F(FormTest, ATimerStopsWhenTheFormUnloads) {
    desk.timer.onTimer = [] { note("tick"); };
    desk.load();
    desk.unload();
    noted.clear();
    driver::advance(5000);
    EXPECT_THAT(noted, IsEmpty());
    EXPECT_EQ(driver::live().timers, 0);
    EXPECT_FALSE(desk.timer.Enabled());
}

TEST_F(FormTest, AFormMayUnloadInItsOwnTick) {
    desk.timer.onTimer = [] { desk.unload(); };
    desk.load();
    driver::advance(1000);
    EXPECT_FALSE(desk.loaded());
    EXPECT_EQ(driver::live(), driver::Counts{});
}

// Icon ---------------------------------------------------------------------------------

TEST_F(FormTest, ShowsTheIconOfItsDesign) {
    driver::provideIcon(7);
    Form with({.className = "With", .caption = "With", .iconResource = 7});
    EXPECT_NE(with.Icon().big, nullptr);
    EXPECT_EQ(driver::iconOf(with.hWnd(), win::ICON_BIG), with.Icon().big);
    EXPECT_EQ(driver::iconOf(with.hWnd(), win::ICON_SMALL), with.Icon().small);
    desk.Icon(with.Icon());
    EXPECT_EQ(driver::iconOf(desk.hWnd(), win::ICON_BIG), with.Icon().big);
    with.discard();
}

}  // namespace
}  // namespace magpie
