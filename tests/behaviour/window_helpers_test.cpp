// The window helpers and the hook on the main window's messages.
#include "core/misc.h"
#include "core/shutdown.h"
#include "core/state.h"
#include "core/winproc.h"
#include "mainwindow/form3.h"
#include "platform/memory/driver.h"
#include "platform/memory/driver_system.h"
#include "platform/runtime/word.h"
#include "tests/behaviour/program_fixture.h"
#include "tray/form1.h"
#include "tray/pad.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;
using testing::ElementsAre;

// A message that reached the main window's own procedure.
struct Told {
    win::UINT message;
    win::WPARAM wParam;
    bool operator==(const Told&) const = default;
};

std::vector<Told> told;
win::WNDPROC listenedTo = nullptr;

win::LRESULT listen(win::HWND window, win::UINT message, win::WPARAM wParam, win::LPARAM lParam) {
    told.push_back({message, wParam});
    return win::CallWindowProcA(listenedTo, window, message, wParam, lParam);
}

// The main window with an ear behind the hook: what the hook lets through is noted.
void makeWithEar() {
    makeForm3();
    listenedTo = reinterpret_cast<win::WNDPROC>(win::SetWindowLongPtrA(
        Form3.hWnd(), win::GWLP_WNDPROC, reinterpret_cast<win::LONG_PTR>(&listen)));
    told.clear();
}

class WindowHelpers : public ProgramFixture {
public:
    static bool onTop(Form& form) {
        return (static_cast<win::DWORD>(win::GetWindowLongPtrA(form.hWnd(), win::GWL_EXSTYLE)) &
                win::WS_EX_TOPMOST) != 0;
    }

    static win::LONG_PTR procedureOf(Form& form) {
        return win::GetWindowLongPtrA(form.hWnd(), win::GWLP_WNDPROC);
    }
};

Form dialog({.className = "Dialog",
             .caption = "Dialog",
             .border = BorderStyle::fixedDialog,
             .clientWidth = 3000,
             .clientHeight = 1500});

// setTopMost ---------------------------------------------------------------------------

TEST_F(WindowHelpers, OnlyMinusOneRaisesAForm) {
    startAndOpen();
    setTopMost(Form3, -1);
    EXPECT_TRUE(onTop(Form3));
    setTopMost(Form3, 1);
    EXPECT_FALSE(onTop(Form3));
    setTopMost(Form3, -1);
    setTopMost(Form3, 0);
    EXPECT_FALSE(onTop(Form3));
    setTopMost(Form3, -2);
    EXPECT_FALSE(onTop(Form3));
}

TEST_F(WindowHelpers, AChangeOfLevelMovesAndSizesNothing) {
    startAndOpen();
    const double left = Form3.Left(), top = Form3.Top(), width = Form3.Width();
    setTopMost(Form3, -1);
    EXPECT_EQ(Form3.Left(), left);
    EXPECT_EQ(Form3.Top(), top);
    EXPECT_EQ(Form3.Width(), width);
}

TEST_F(WindowHelpers, AChangeOfLevelLeavesTheKeyboardWhereItIs) {
    startAndOpen();
    Form3.Show();
    Form3.ListView1[lvIndex].SetFocus();
    for (const std::int16_t level : {std::int16_t{-1}, std::int16_t{0}}) {
        setTopMost(Form3, level);
        EXPECT_EQ(win::GetFocus(), Form3.ListView1[lvIndex].hWnd());
        setTopMost(Form1, level);
        EXPECT_EQ(win::GetFocus(), Form3.ListView1[lvIndex].hWnd());
    }
}

TEST_F(WindowHelpers, EveryChangeOfALevelPutsThePadOnItsOwn) {
    startAndOpen();
    for (const std::int16_t online : {std::int16_t{0}, std::int16_t{1}, std::int16_t{-1}})
        for (const bool setting : {false, true})
            for (const std::int16_t level : {std::int16_t{0}, std::int16_t{-1}}) {
                isOnline = online;
                iconOnTop = setting;
                setTopMost(Form3, level);
                EXPECT_EQ(onTop(Form1), online != 0 && setting);
                EXPECT_EQ(onTop(Form3), level == -1);
            }
}

TEST_F(WindowHelpers, OfflineThePadItselfCannotBeRaised) {
    startAndOpen();
    iconOnTop = true;
    isOnline = 0;
    setTopMost(Form1, -1);
    EXPECT_FALSE(onTop(Form1));
    isOnline = -1;
    setTopMost(Form1, 0);
    EXPECT_TRUE(onTop(Form1));
}

TEST_F(WindowHelpers, APlatformThatRefusesALevelIsNotLookedAt) {
    startAndOpen();
    driver::failCall("SetWindowPos", 1, win::ERROR_ACCESS_DENIED);
    driver::failCall("SetWindowPos", 2, win::ERROR_ACCESS_DENIED);
    EXPECT_NO_THROW(setTopMost(Form3, -1));
    EXPECT_EQ(driver::faultsLeft(), 0);
}

TEST_F(WindowHelpers, ALevelDoesNotBringAnUnloadedMainWindowBack) {
    start();
    setTopMost(Form3, -1);
    EXPECT_FALSE(Form3.loaded());
}

// showDialogModal ----------------------------------------------------------------------

TEST_F(WindowHelpers, AMainWindowOnTopStepsDownUnderItsDialogAndUpAgain) {
    startAndOpen();
    mainOnTop = true;
    setTopMost(Form3, -1);
    driver::whenIdle([] {
        EXPECT_TRUE(dialog.Visible());
        EXPECT_FALSE(onTop(Form3));
        EXPECT_FALSE(win::IsWindowEnabled(Form3.hWnd()));
        dialog.Hide();
    });
    showDialogModal(dialog);
    EXPECT_TRUE(onTop(Form3));
    EXPECT_TRUE(win::IsWindowEnabled(Form3.hWnd()));
    dialog.unload();
}

TEST_F(WindowHelpers, ALevelMainWindowStaysLevelBehindItsDialog) {
    startAndOpen();
    mainOnTop = false;
    driver::whenIdle([] { dialog.unload(); });
    showDialogModal(dialog);
    EXPECT_FALSE(onTop(Form3));
}

TEST_F(WindowHelpers, ADialogHasNoOwner) {
    startAndOpen();
    driver::whenIdle([] {
        EXPECT_EQ(win::GetWindow(dialog.hWnd(), win::GW_OWNER), nullptr);
        dialog.unload();
    });
    showDialogModal(dialog);
}

// centerOnMain, stepAside --------------------------------------------------------------

TEST_F(WindowHelpers, ADialogCanBeCentredOnTheMainWindow) {
    startAndOpen();
    Form3.Left(1500);
    Form3.Top(2250);
    Form3.Width(9000);
    Form3.Height(7500);
    centerOnMain(dialog);
    EXPECT_EQ(dialog.Left(), 1500 + (9000 - dialog.Width()) / 2);
    EXPECT_EQ(dialog.Top(), 2250 + (7500 - dialog.Height()) / 2);
    dialog.discard();
}

TEST_F(WindowHelpers, ADialogLargerThanTheMainWindowIsCentredAllTheSame) {
    startAndOpen();
    Form3.Left(3000);
    Form3.Width(6000);
    dialog.Width(7515);
    centerOnMain(dialog);
    EXPECT_EQ(dialog.Left(), 3000 - 757.5);
    dialog.discard();
}

TEST_F(WindowHelpers, AFormThatStepsAsideIsHiddenAndMinimised) {
    startAndOpen();
    stepAside(Form3);
    EXPECT_FALSE(Form3.Visible());
    EXPECT_EQ(Form3.WindowState(), stateMinimised);
    stepAside(Form3);
    EXPECT_FALSE(Form3.Visible());
    Form3.Show();
    EXPECT_EQ(Form3.WindowState(), stateMinimised);
    Form3.WindowState(stateNormal);
    EXPECT_TRUE(Form3.Visible());
    EXPECT_EQ(Form3.WindowState(), stateNormal);
}

// osPlatformId -------------------------------------------------------------------------

TEST_F(WindowHelpers, ThePlatformsNumberIsTold) {
    EXPECT_EQ(osPlatformId(), 2);
    driver::setVersion(4, 10, 1);
    EXPECT_EQ(osPlatformId(), 1);
}

TEST_F(WindowHelpers, APlatformThatDoesNotTellCountsAsNone) {
    driver::failCall("GetVersionExA", 1, win::ERROR_ACCESS_DENIED);
    EXPECT_EQ(osPlatformId(), 0);
}

// The hook -----------------------------------------------------------------------------

TEST_F(WindowHelpers, WithThePadOnTheMainWindowStepsAsideForAnotherApplication) {
    startAndOpen();
    ASSERT_TRUE(activeIcon);
    driver::deactivateApplication();
    EXPECT_FALSE(Form3.Visible());
    EXPECT_EQ(Form3.WindowState(), stateMinimised);
    EXPECT_TRUE(keepResident);
    EXPECT_EQ(Form3.ListView1[2].Count(), 2);
}

TEST_F(WindowHelpers, WithThePadOffTheMainWindowStays) {
    startAndOpen();
    toggleActiveIcon();
    win::SetForegroundWindow(Form3.hWnd());
    driver::deactivateApplication();
    EXPECT_TRUE(Form3.Visible());
    EXPECT_EQ(Form3.WindowState(), stateNormal);
}

TEST_F(WindowHelpers, AnythingThatHoldsTheInterfaceKeepsTheMainWindow) {
    startAndOpen();
    for (std::uint8_t holder = 1; holder <= 4; ++holder) {
        modalOpen = holder;
        driver::deactivateApplication();
        EXPECT_TRUE(Form3.Visible()) << int{holder};
        driver::activateApplication();
    }
    modalOpen = 0;
    driver::deactivateApplication();
    EXPECT_FALSE(Form3.Visible());
}

TEST_F(WindowHelpers, ComingBackToTheApplicationHidesNothing) {
    startAndOpen();
    win::SendMessageA(Form3.hWnd(), win::WM_ACTIVATEAPP, 1, 0);
    EXPECT_TRUE(Form3.Visible());
}

TEST_F(WindowHelpers, OnlyTheLowWordTellsOfTheLoss) {
    startAndOpen();
    win::SendMessageA(Form3.hWnd(), win::WM_ACTIVATEAPP, 0x10001, 0);
    EXPECT_TRUE(Form3.Visible());
    win::SendMessageA(Form3.hWnd(), win::WM_ACTIVATEAPP, 0x10000, 0);
    EXPECT_FALSE(Form3.Visible());
}

TEST_F(WindowHelpers, TheLossOfActivationReachesTheWindowAllTheSame) {
    start();
    Form3.makeControls = makeWithEar;
    clickPad();
    told.clear();
    driver::deactivateApplication();
    EXPECT_THAT(told, testing::Contains(Told{win::WM_ACTIVATEAPP, 0}));
}

TEST_F(WindowHelpers, AHiddenMainWindowKeepsItsState) {
    startAndOpen();
    Form3.Visible(false);
    ASSERT_EQ(Form3.WindowState(), stateNormal);
    win::SendMessageA(Form3.hWnd(), win::WM_ACTIVATEAPP, 0, 0);
    EXPECT_EQ(Form3.WindowState(), stateNormal);
}

TEST_F(WindowHelpers, TheLossOfActivationIsNoConcernOfThePad) {
    startAndOpen();
    win::SendMessageA(Form1.hWnd(), win::WM_ACTIVATEAPP, 0, 0);
    EXPECT_TRUE(Form3.Visible());
    EXPECT_TRUE(Form1.Visible());
}

TEST_F(WindowHelpers, TheHookComesAndGoesWithTheMainWindow) {
    startAndOpen();
    const win::LONG_PTR own = procedureOf(Form1);
    const win::LONG_PTR hook = procedureOf(Form3);
    EXPECT_NE(hook, own);
    win::HWND window = Form3.hWnd();
    unhookMainWindow(window);
    EXPECT_EQ(procedureOf(Form3), own);
    unhookMainWindow(window);
    EXPECT_EQ(procedureOf(Form3), own);
    hookMainWindow(window);
    EXPECT_EQ(procedureOf(Form3), hook);
    mnuFree_Click();
    clickPad();
    EXPECT_EQ(procedureOf(Form3), hook);
    driver::deactivateApplication();
    EXPECT_FALSE(Form3.Visible());
}

// The one message of a run that goes no further is the question for the large icon, and
// the main window gets its icon all the same.
TEST_F(WindowHelpers, TheFirstMessageOfTheRunIsSwallowedAndDoesNoHarm) {
    start();
    Form3.makeControls = makeWithEar;
    Form3.load();
    const std::vector<Told> firstLoad(told.begin(), told.begin() + 3);
    EXPECT_THAT(firstLoad, ElementsAre(Told{win::WM_SETICON, win::ICON_BIG},
                                       Told{win::WM_GETICON, win::ICON_SMALL},
                                       Told{win::WM_SETICON, win::ICON_SMALL}));
    ASSERT_NE(Form1.Icon().big, nullptr);
    ASSERT_NE(Form1.Icon().small, nullptr);
    EXPECT_EQ(driver::iconOf(Form3.hWnd(), win::ICON_BIG), Form1.Icon().big);
    EXPECT_EQ(driver::iconOf(Form3.hWnd(), win::ICON_SMALL), Form1.Icon().small);

    mnuFree_Click();
    Form3.load();
    const std::vector<Told> secondLoad(told.begin(), told.begin() + 4);
    EXPECT_THAT(secondLoad, ElementsAre(Told{win::WM_GETICON, win::ICON_BIG},
                                        Told{win::WM_SETICON, win::ICON_BIG},
                                        Told{win::WM_GETICON, win::ICON_SMALL},
                                        Told{win::WM_SETICON, win::ICON_SMALL}));
    EXPECT_EQ(driver::iconOf(Form3.hWnd(), win::ICON_BIG), Form1.Icon().big);
    EXPECT_EQ(driver::iconOf(Form3.hWnd(), win::ICON_SMALL), Form1.Icon().small);
}

}  // namespace
}  // namespace magpie
