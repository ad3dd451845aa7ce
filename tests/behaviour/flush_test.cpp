// The ways on and off the screen: hiding, flushing, ejecting, and the way back.
#include "core/shutdown.h"
#include "store/groups.h"
#include "store/stack_commands.h"
#include "tests/behaviour/shutdown_fixture.h"

namespace magpie {
namespace {

using Flush = ShutdownFixture;
using testing::IsEmpty;

// Hiding -------------------------------------------------------------------------------

TEST_F(Flush, ClosingTheWindowTenTimesSavesNothingAndLosesNothing) {
    open();
    changeFirstTitle("Changed");
    const auto file = stackFile();
    for (int time = 0; time < 10; ++time) {
        clickCloseBox(Form3);
        expectHidden();
        clickTrayIcon();
        expectOpen();
    }
    EXPECT_EQ(uBlock.URLDatas().Item(1).Name(), "Changed");
    EXPECT_EQ(urlsDirty, 1);
    EXPECT_EQ(Form3.ListView1[2].Count(), 2);
    EXPECT_EQ(Form3.ListView1[3].Count(), 2);
    EXPECT_EQ(stackFile(), file);
    EXPECT_EQ(backup(), std::nullopt);
    EXPECT_EQ(record("CF"), std::nullopt);
}

TEST_F(Flush, HideInTheMenuHides) {
    open();
    chooseFromMenu("Hide");
    expectHidden();
}

TEST_F(Flush, AltF4Hides) {
    open();
    driver::key(win::VK_F4, {.ctrl = false, .shift = false, .alt = true});
    expectHidden();
}

TEST_F(Flush, TheMinimiseBoxHides) {
    open();
    win::PostMessageA(Form3.hWnd(), win::WM_SYSCOMMAND, win::SC_MINIMIZE, 0);
    driver::pump();
    expectHidden();
}

TEST_F(Flush, AHiddenWindowComesBackWithNothingReloaded) {
    open();
    clickCloseBox(Form3);
    putStackFile("+Other\r\n");
    clickTrayIcon();
    expectOpen();
    EXPECT_EQ(IDXList.uBound(), 2);
    clickCloseBox(Form3);
    clickPad();
    expectOpen();
    EXPECT_EQ(IDXList.uBound(), 2);
    EXPECT_EQ(Form3.WindowState(), stateNormal);
}

TEST_F(Flush, TheTrayMenusHeadingShowsAHiddenWindowStillSmall) {
    open();
    clickCloseBox(Form3);
    chooseFromTray("Magpie");
    EXPECT_TRUE(Form3.Visible());
    EXPECT_EQ(Form3.WindowState(), stateMinimised);
    chooseFromTray("Restore");
    EXPECT_EQ(Form3.WindowState(), stateNormal);
    EXPECT_TRUE(Form3.Visible());
}

// Flushing -----------------------------------------------------------------------------

TEST_F(Flush, FlushToTraySavesAndEmptiesAndUnloads) {
    open();
    changeFirstTitle("Changed");
    chooseFromMenu("Flush to Tray");
    expectResident();
    EXPECT_EQ(stackFile(), sampleWith("Changed"));
    EXPECT_EQ(backup(), sampleWith("Front page"));
    EXPECT_NE(record("CF"), std::nullopt);
    EXPECT_NE(record("CH"), std::nullopt);
    EXPECT_EQ(record("ID"), "2 3000 4005 0 1 0 False False");
    EXPECT_FALSE(Form1.mFlush.Enabled);
}

TEST_F(Flush, TheTraysFlushDoesTheSameToAHiddenWindow) {
    open();
    changeFirstTitle("Changed");
    clickCloseBox(Form3);
    chooseFromTray("Flush");
    expectResident();
    EXPECT_EQ(stackFile(), sampleWith("Changed"));
    EXPECT_EQ(driver::shownTrayIcons().size(), 1u);
}

TEST_F(Flush, TheTraysFlushDoesTheSameToAnOpenWindow) {
    open();
    changeFirstTitle("Changed");
    chooseFromTray("Flush");
    expectResident();
    EXPECT_EQ(stackFile(), sampleWith("Changed"));
}

TEST_F(Flush, TheLineFallingFlushesAHiddenWindow) {
    open();
    driver::advance(4000);
    changeFirstTitle("Changed");
    clickCloseBox(Form3);
    lineCheck = 0;
    driver::advance(4000);
    expectResident();
    EXPECT_EQ(stackFile(), sampleWith("Changed"));
}

TEST_F(Flush, TheLineFallingFlushesAnOpenWindow) {
    open();
    driver::advance(4000);
    lineCheck = 0;
    driver::advance(4000);
    expectResident();
}

TEST_F(Flush, ADialogKeepsTheFallingLineFromFlushingUntilItCloses) {
    open();
    driver::advance(4000);
    lineCheck = 0;
    for (std::uint8_t holder = 1; holder <= 4; ++holder) {
        modalOpen = holder;
        driver::advance(8000);
        expectOpen();
    }
    modalOpen = 0;
    driver::advance(4000);
    expectResident();
}

TEST_F(Flush, AFlushForgetsEverything) {
    open();
    clickTab(2);
    chooseFromMenu("Flush to Tray");
    EXPECT_EQ(IDXList.uBound(), 0);
    EXPECT_EQ(uBlock.URLDatas().Count(), 0);
    EXPECT_EQ(urlsDirty, 0);
    EXPECT_EQ(IDXCount, 0);
    EXPECT_EQ(Form3.lastIDX2, 0);
    EXPECT_EQ(lastLine, 0);
    EXPECT_EQ(previousTab, -1);
    EXPECT_FALSE(reallyLoaded);
}

TEST_F(Flush, TheListsAreEmptyBeforeTheWindowGoes) {
    open();
    clickTab(2);
    flushEverything();
    EXPECT_EQ(Form3.Combo1[1].ListCount(), 0);
    for (ListView& list : Form3.ListView1) EXPECT_EQ(list.Count(), 0);
}

TEST_F(Flush, TheSettingsAreSavedBeforeTheStoreIsEmptied) {
    open();
    clickTab(2);
    Form3.Combo1[1].ListIndex(1);
    chooseFromMenu("Flush to Tray");
    const std::string cf = record("CF").value();
    // Flags, line, browser, tab strip, tab, face, and the group in view.
    EXPECT_THAT(cf, testing::StartsWith("8 2 0 0 2 1 1 "));
}

TEST_F(Flush, ACleanFlushWritesNoStackFileAndStillEmptiesEverything) {
    putTrayRecord();
    putStackFile("+A\r\nu|n|8E53EC00|8E34968D|0|1|0\r\n\r\n");  // a save would drop the last line
    startAndOpen();
    ASSERT_EQ(urlsDirty, 0);
    ASSERT_EQ(uBlock.URLDatas().Count(), 1);
    const auto file = stackFile();
    chooseFromMenu("Flush to Tray");
    expectResident();
    EXPECT_EQ(stackFile(), file);
    EXPECT_EQ(backup(), std::nullopt);
}

TEST_F(Flush, WithoutTheSettingAFlushDropsTheChangesWithoutAWord) {
    putRecord("CF", "136");
    open();
    changeFirstTitle("Changed");
    chooseFromMenu("Flush to Tray");
    expectResident();
    EXPECT_EQ(stackFile(), sampleWith("Front page"));
    EXPECT_EQ(backup(), std::nullopt);
    EXPECT_THAT(driver::messageBoxes(), IsEmpty());
    clickPad();
    EXPECT_EQ(uBlock.URLDatas().Item(1).Name(), "Front page");
}

TEST_F(Flush, WithoutTheSettingAFlushWritesNoSettings) {
    putRecord("CF", "40");
    open();
    chooseFromMenu("Flush to Tray");
    expectResident();
    EXPECT_EQ(record("CF"), "40");
    EXPECT_EQ(record("CH"), std::nullopt);
}

TEST_F(Flush, AFullDiskLeavesTheBackupAndTheStoreIsEmptiedAllTheSame) {
    open();
    changeFirstTitle("Changed");
    driver::setDiskRoom(20);
    chooseFromMenu("Flush to Tray");
    expectResident();
    EXPECT_EQ(urlsDirty, 0);
    EXPECT_EQ(backup(), sampleWith("Front page"));
    EXPECT_NE(stackFile(), sampleWith("Changed"));
    EXPECT_NE(record("CF"), std::nullopt);
    EXPECT_THAT(driver::messageBoxes(), IsEmpty());
}

TEST_F(Flush, SettingsThatCannotBeToldDoNotStopTheFlush) {
    open();
    changeFirstTitle("Changed");
    Form3.ListView1[2].ColumnWidth(1, 40000);  // twips, too wide for its record
    chooseFromMenu("Flush to Tray");
    expectResident();
    EXPECT_EQ(stackFile(), sampleWith("Changed"));
    EXPECT_FALSE(reallyLoaded);
    EXPECT_EQ(lastLine, 0);
}

TEST_F(Flush, AStoreWhoseRecordsAreAllGoneLeavesTheFileAndTheyComeBack) {
    open();
    const auto file = stackFile();
    while (uBlock.URLDatas().Count() > 0) {
        uBlock.URLDatas().Delete(1);
        ++urlsDirty;
    }
    chooseFromMenu("Flush to Tray");
    expectResident();
    EXPECT_EQ(stackFile(), file);
    EXPECT_EQ(backup(), std::nullopt);
    clickPad();
    EXPECT_EQ(uBlock.URLDatas().Count(), 3);
}

// The way back -------------------------------------------------------------------------

TEST_F(Flush, AfterAFlushTheNextOpeningLoadsEverythingAgain) {
    open();
    chooseFromMenu("Flush to Tray");
    putStackFile("+Other\r\nu|n|8E53EC00|8E34968D|0|1|0\r\n");
    putRecord("CF", "0 2 0 0 2 1 0 1500 1800 9000 7500 31 0 36000");
    clickPad();
    expectOpen();
    EXPECT_TRUE(reallyLoaded);
    EXPECT_EQ(IDXList.uBound(), 1);
    EXPECT_EQ(IDXList[0].Name, "Other");
    EXPECT_EQ(currentTab, 2);
    EXPECT_EQ(Form3.Left(), 1800);
    EXPECT_EQ(Form3.Combo1[1].List(0), "Other");
    EXPECT_TRUE(Form1.mFlush.Enabled);
    EXPECT_EQ(driver::iconOf(Form3.hWnd(), win::ICON_BIG), Form1.Icon().big);
}

TEST_F(Flush, EveryRoadLeadsBackFromAFlush) {
    open();
    chooseFromMenu("Flush to Tray");
    clickTrayIcon();
    expectOpen();
    chooseFromMenu("Flush to Tray");
    chooseFromTray("Restore");
    expectOpen();
    chooseFromMenu("Flush to Tray");
    chooseFromTray("Magpie");
    expectOpen();
    EXPECT_EQ(uBlock.URLDatas().Count(), 3);
}

TEST_F(Flush, TheLineComingUpLeadsBackFromAFlush) {
    putRecord("ID", "2 3000 4005 0 1 1 False False");
    startAndOpen();
    driver::advance(4000);
    lineCheck = 0;
    driver::advance(4000);
    expectResident();
    lineCheck = 2;
    driver::advance(4000);
    EXPECT_TRUE(reallyLoaded);
    EXPECT_FALSE(Form3.Visible());
    EXPECT_EQ(uBlock.URLDatas().Count(), 3);
}

TEST_F(Flush, AHundredReloadsLeaveNothingBehind) {
    open();
    chooseFromMenu("Flush to Tray");
    const driver::Counts counts = driver::live();
    const driver::SystemCounts system = driver::liveInSystem();
    for (int time = 0; time < 100; ++time) {
        clickPad();
        ASSERT_TRUE(Form3.Visible());
        if (time % 2 == 0) clickTab(3 - currentTab);
        ASSERT_EQ(uBlock.URLDatas().Count(), 3);
        chooseFromTray("Flush");
        ASSERT_FALSE(Form3.loaded());
    }
    EXPECT_EQ(driver::live(), counts);
    EXPECT_EQ(driver::liveInSystem(), system);
}

// Ejecting -----------------------------------------------------------------------------

TEST_F(Flush, EjectSavesAndEmptiesTheStoreUnderAWindowThatStays) {
    open();
    changeFirstTitle("Changed");
    chooseFromMenu("Eject Bookmarks");
    expectOpen();
    EXPECT_FALSE(reallyLoaded);
    EXPECT_EQ(uBlock.URLDatas().Count(), 0);
    EXPECT_EQ(IDXList.uBound(), 0);
    for (ListView& list : Form3.ListView1) EXPECT_EQ(list.Count(), 0);
    EXPECT_EQ(stackFile(), sampleWith("Changed"));
    EXPECT_NE(record("CF"), std::nullopt);
    EXPECT_EQ(Form3.StatusBar1.Pane(2), "Total: 0");
}

TEST_F(Flush, SavingBehindEjectWritesNothing) {
    open();
    chooseFromMenu("Eject Bookmarks");
    const auto file = stackFile();
    chooseFromMenu("Save All");
    EXPECT_EQ(stackFile(), file);
    EXPECT_EQ(backup(), std::nullopt);
    EXPECT_FALSE(Form3.mnuSavez.Enabled);
    mnuSave_Click(0);
    EXPECT_EQ(stackFile(), file);
    EXPECT_EQ(backup(), std::nullopt);
}

TEST_F(Flush, BehindEjectANewGroupCanBeMadeAndSavedByName) {
    open();
    chooseFromMenu("Eject Bookmarks");
    NewCatagory("Fresh");
    ++urlsDirty;
    driver::answerFileDialog("C:\\Magpie\\Fresh.pns");
    mnuSave_Click(1);
    EXPECT_EQ(driver::file("C:\\Magpie\\Fresh.pns"), "+Fresh\r\n");
    EXPECT_EQ(urlsDirty, 0);

    URLData& added = uBlock.URLDatas().Add("n", "u", 0);
    added.Created = Date{36000.25};
    driver::answerFileDialog("C:\\Magpie\\Filled.pns");
    chooseFromMenu("Save As");
    EXPECT_THAT(driver::file("C:\\Magpie\\Filled.pns").value(), testing::StartsWith("+Fresh\r\nu"));
}

TEST_F(Flush, OpenDefaultRefillsAnEjectedStore) {
    open();
    chooseFromMenu("Eject Bookmarks");
    chooseFromMenu("Open Default");
    EXPECT_EQ(uBlock.URLDatas().Count(), 3);
    EXPECT_EQ(Form3.ListView1[3].Count(), 2);
}

TEST_F(Flush, ATrayClickBehindEjectOnlyRestoresTheWindow) {
    open();
    chooseFromMenu("Eject Bookmarks");
    clickTrayIcon();
    expectOpen();
    EXPECT_EQ(uBlock.URLDatas().Count(), 0);
}

}  // namespace
}  // namespace magpie
