// The ends of the program: by its menus, from outside, with the session, and in awkward
// moments.
#include "core/misc.h"
#include "tests/behaviour/shutdown_fixture.h"

namespace magpie {
namespace {

using Shutdown = ShutdownFixture;

// Ending -------------------------------------------------------------------------------

TEST_F(Shutdown, UnloadInTheMenuEndsTheProgram) {
    open();
    changeFirstTitle("Changed");
    chooseFromMenu("Unload");
    expectGone();
    EXPECT_EQ(stackFile(), sampleWith("Changed"));
    EXPECT_NE(record("CF"), std::nullopt);
    EXPECT_EQ(record("ID"), "2 3000 4005 0 1 0 False False");
}

TEST_F(Shutdown, UnloadInTheTrayMenuEndsTheProgram) {
    open();
    changeFirstTitle("Changed");
    chooseFromTray("Unload");
    expectGone();
    EXPECT_EQ(stackFile(), sampleWith("Changed"));
    EXPECT_NE(record("CF"), std::nullopt);
    EXPECT_EQ(record("ID"), "2 3000 4005 0 1 0 False False");
}

TEST_F(Shutdown, EndingWithoutAMainWindowSavesNoStackFileAndStillKeepsTheTraysRecord) {
    putSampleFile();
    putRecord("ID", "2 3000 4005 0 1 0 False");
    start();
    const auto file = stackFile();
    chooseFromTray("Unload");
    expectGone();
    EXPECT_EQ(record("ID"), "2 3000 4005 0 1 0 False False");
    EXPECT_EQ(record("CF"), std::nullopt);
    EXPECT_EQ(stackFile(), file);
    EXPECT_EQ(backup(), std::nullopt);
}

TEST_F(Shutdown, EndingWithAHiddenWindowSavesItsChanges) {
    open();
    changeFirstTitle("Changed");
    clickCloseBox(Form3);
    chooseFromTray("Unload");
    expectGone();
    EXPECT_EQ(stackFile(), sampleWith("Changed"));
}

TEST_F(Shutdown, EndingWithAHiddenWindowDropsItsChangesWithoutTheSetting) {
    putRecord("CF", "136");
    open();
    changeFirstTitle("Changed");
    clickCloseBox(Form3);
    chooseFromTray("Unload");
    expectGone();
    EXPECT_EQ(stackFile(), sampleWith("Front page"));
}

TEST_F(Shutdown, EndingBehindAFlushSavesTheTraysRecordAlone) {
    open();
    chooseFromMenu("Flush to Tray");
    putRecord("CF", "as flushed");
    chooseFromTray("Unload");
    expectGone();
    EXPECT_EQ(record("CF"), "as flushed");
    EXPECT_EQ(stackFile(), sampleWith("Front page"));
}

// The first record that an ending writes is the one that a full registry loses.
TEST_F(Shutdown, TheTraysUnloadWritesTheTraysRecordFirst) {
    putTrayRecord();
    startAndOpen();
    Form1.Left(4500);
    driver::failCall("RegSetValueExA", 1, win::ERROR_ACCESS_DENIED);
    chooseFromTray("Unload");
    expectGone();
    EXPECT_EQ(record("ID"), "2 3000 4005 0 1 0 False False");
    EXPECT_NE(record("CF"), std::nullopt);
    EXPECT_NE(record("CH"), std::nullopt);
}

TEST_F(Shutdown, TheMenusUnloadWritesTheMainWindowsRecordsFirst) {
    putTrayRecord();
    startAndOpen();
    Form1.Left(4500);
    driver::failCall("RegSetValueExA", 1, win::ERROR_ACCESS_DENIED);
    driver::failCall("RegSetValueExA", 2, win::ERROR_ACCESS_DENIED);
    chooseFromMenu("Unload");
    expectGone();
    EXPECT_EQ(record("CF"), std::nullopt);
    EXPECT_EQ(record("CH"), std::nullopt);
    EXPECT_EQ(record("ID"), "2 3000 4500 0 1 0 False False");
}

TEST_F(Shutdown, ARegistryThatTakesNothingDoesNotStopTheEnd) {
    open();
    changeFirstTitle("Changed");
    for (int call = 1; call <= 3; ++call)
        driver::failCall("RegSetValueExA", call, win::ERROR_ACCESS_DENIED);
    chooseFromTray("Unload");
    expectGone();
    EXPECT_EQ(stackFile(), sampleWith("Changed"));
}

// The system's ends --------------------------------------------------------------------

TEST_F(Shutdown, ACloseFromOutsideEndsTheProgramAsTheTraysUnloadDoes) {
    open();
    changeFirstTitle("Changed");
    win::PostMessageA(Form1.hWnd(), win::WM_CLOSE, 0, 0);
    driver::pump();
    expectGone();
    EXPECT_EQ(stackFile(), sampleWith("Changed"));
    EXPECT_NE(record("CF"), std::nullopt);
    EXPECT_EQ(record("ID"), "2 3000 4005 0 1 0 False False");
}

TEST_F(Shutdown, ACloseFromOutsideSavesTheMainWindowFirst) {
    putTrayRecord();
    startAndOpen();
    Form1.Left(4500);
    driver::failCall("RegSetValueExA", 1, win::ERROR_ACCESS_DENIED);
    win::PostMessageA(Form1.hWnd(), win::WM_CLOSE, 0, 0);
    driver::pump();
    EXPECT_EQ(record("CF"), std::nullopt);
    EXPECT_EQ(record("ID"), "2 3000 4500 0 1 0 False False");
}

TEST_F(Shutdown, TheEndOfTheSessionSavesAsTheTraysUnloadDoes) {
    open();
    changeFirstTitle("Changed");
    EXPECT_TRUE(driver::endSession());
    expectGone();
    EXPECT_EQ(stackFile(), sampleWith("Changed"));
    EXPECT_EQ(backup(), sampleWith("Front page"));
    EXPECT_NE(record("CF"), std::nullopt);
    EXPECT_EQ(record("ID"), "2 3000 4005 0 1 0 False False");
}

TEST_F(Shutdown, TheEndOfTheSessionSavesAHiddenWindow) {
    open();
    changeFirstTitle("Changed");
    clickCloseBox(Form3);
    EXPECT_TRUE(driver::endSession());
    expectGone();
    EXPECT_EQ(stackFile(), sampleWith("Changed"));
}

TEST_F(Shutdown, TheEndOfTheSessionWithoutAMainWindowKeepsTheTraysRecord) {
    putRecord("ID", "2 3000 4005 0 1 0 False");
    putSampleFile();
    start();
    EXPECT_TRUE(driver::endSession());
    expectGone();
    EXPECT_EQ(record("ID"), "2 3000 4005 0 1 0 False False");
    EXPECT_EQ(record("CF"), std::nullopt);
}

TEST_F(Shutdown, AnEndOfTheSessionThatIsCalledOffLeavesTheProgramResident) {
    open();
    changeFirstTitle("Changed");
    EXPECT_EQ(win::SendMessageA(Form3.hWnd(), win::WM_QUERYENDSESSION, 0, 0), 1);
    expectOpen();
    EXPECT_EQ(win::SendMessageA(Form1.hWnd(), win::WM_QUERYENDSESSION, 0, 0), 1);
    expectResident();
    EXPECT_EQ(stackFile(), sampleWith("Changed"));
    win::SendMessageA(Form1.hWnd(), win::WM_ENDSESSION, 0, 0);
    expectResident();
    EXPECT_EQ(driver::shownTrayIcons().size(), 1u);
    clickTrayIcon();
    expectOpen();
    EXPECT_EQ(uBlock.URLDatas().Item(1).Name(), "Changed");
}

// Ends in awkward moments --------------------------------------------------------------

// The pumps of a load, and those of the refreshes behind changes of the tab.
class ShutdownInAPump : public Shutdown, public testing::WithParamInterface<int> {};

TEST_P(ShutdownInAPump, AnEndInTheMiddleOfALoadIsAnEnd) {
    putTrayRecord();
    putSampleFile();
    start();
    driver::choose("Unload");
    driver::atPump(GetParam(), [] { driver::postTrayMessage(win::WM_RBUTTONUP); });
    clickPad();
    for (int time = 0; time < 20 && Form3.loaded(); ++time) clickTab(3 - currentTab);
    expectGone();
    EXPECT_EQ(stackFile(), sampleWith("Front page"));
    EXPECT_EQ(backup(), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(EachPump, ShutdownInAPump, testing::Range(1, 25));

TEST_F(Shutdown, AnEndInATickOfTheLineWatchIsAnEnd) {
    putRecord("ID", "2 3000 4005 0 1 1 False False");
    putSampleFile();
    start();
    driver::choose("Unload");
    driver::atPump(4, [] { driver::postTrayMessage(win::WM_RBUTTONUP); });
    driver::advance(4000);
    expectGone();
}

TEST_F(Shutdown, AnEndUnderADialogBringsNothingBack) {
    static Form dialog({.className = "Dialog",
                        .caption = "Dialog",
                        .border = BorderStyle::fixedDialog,
                        .clientWidth = 3000,
                        .clientHeight = 1500});
    open();
    driver::choose("Unload");
    driver::whenIdle([] { driver::postTrayMessage(win::WM_RBUTTONUP); });
    driver::whenIdle([] {
        EXPECT_FALSE(Form1.loaded());
        EXPECT_FALSE(Form3.loaded());
        win::PostMessageA(dialog.hWnd(), win::WM_CLOSE, 0, 0);
    });
    showDialogModal(dialog);
    expectGone();
}

}  // namespace
}  // namespace magpie
