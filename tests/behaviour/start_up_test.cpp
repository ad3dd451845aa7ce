// The road from the process's start to a working main window.
#include "core/start_up.h"

#include "core/state.h"
#include "mainwindow/form3.h"
#include "platform/controls/message_loop.h"
#include "platform/memory/driver.h"
#include "platform/memory/driver_system.h"
#include "store/records.h"
#include "tests/behaviour/program_fixture.h"
#include "tray/form1.h"
#include "tray/pad.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;
using testing::ElementsAre;
using testing::IsEmpty;

class StartUp : public ProgramFixture {
public:
    // A tray icon, the pad on, the line always up.
    static void putTrayRecord() { putRecord("ID", "2 3000 4000 0 1 0 False False"); }

    static std::vector<std::string> groupNames() {
        std::vector<std::string> names;
        for (std::int32_t i = 0; i < IDXList.uBound(); ++i) names.push_back(IDXList[i].Name);
        return names;
    }

    static void clickMenuButton(const std::string& caption) {
        driver::choose(caption);
        driver::click(Form3.Command3[1].hWnd(), {8, 8});
        driver::pump();
    }

    static void clickTrayIcon() {
        driver::postTrayMessage(win::WM_LBUTTONUP);
        driver::pump();
    }

    static void chooseFromTray(const std::string& caption) {
        driver::choose(caption);
        driver::postTrayMessage(win::WM_RBUTTONUP);
        driver::pump();
    }
};

// A second instance --------------------------------------------------------------------

TEST_F(StartUp, ASecondInstanceEndsWithoutAWordAndTouchesNothing) {
    putSampleFile();
    const auto stack = stackFile();
    const auto first = driver::otherProgramHolds("Local\\Magpie.Fennelworks.Instance");
    beginMagpie();
    EXPECT_EQ(runUntilNoForm(), 0);
    EXPECT_THAT(loadedForms(), IsEmpty());
    EXPECT_EQ(driver::live(), driver::Counts{});
    EXPECT_FALSE(driver::registryKeyExists(win::HKEY_CURRENT_USER, settingsKeyPath));
    EXPECT_THAT(driver::shownTrayIcons(), IsEmpty());
    EXPECT_THAT(driver::messageBoxes(), IsEmpty());
    EXPECT_EQ(stackFile(), stack);
    EXPECT_EQ(appPath, "");
}

TEST_F(StartUp, ASecondInstanceLeavesTheRecordsOfTheFirstAlone) {
    putTrayRecord();
    putRecord("CF", "0 0 1 0 2 1 0 100 100 6000 5000 31 0 36000");
    const auto first = driver::otherProgramHolds("Local\\Magpie.Fennelworks.Instance");
    beginMagpie();
    runUntilNoForm();
    EXPECT_EQ(record("ID"), "2 3000 4000 0 1 0 False False");
    EXPECT_EQ(record("CF"), "0 0 1 0 2 1 0 100 100 6000 5000 31 0 36000");
}

TEST_F(StartUp, AloneItGoesOn) {
    EXPECT_FALSE(AnotherInstance());
    start();
    EXPECT_TRUE(Form1.loaded());
}

// Form1's load -------------------------------------------------------------------------

TEST_F(StartUp, ThePathsStandBesideTheProgram) {
    start();
    EXPECT_EQ(appPath, "C:\\Magpie");
    EXPECT_EQ(stackPath, "C:\\Magpie\\Pienest");
    EXPECT_EQ(helpFile, "C:\\Magpie\\PNSHelp.chm");
}

TEST_F(StartUp, TheFirstStartShowsThePadAndNoMainWindow) {
    putSampleFile();
    start();
    EXPECT_TRUE(Form1.Visible());
    EXPECT_TRUE(Form1.Timer1.Enabled());
    EXPECT_EQ(Form1.Timer1.Interval(), 4000u);
    EXPECT_FALSE(Form3.loaded());
    EXPECT_EQ(uBlock.URLDatas().Count(), 0);
    EXPECT_FALSE(keepResident);
    EXPECT_FALSE(reallyLoaded);
    EXPECT_EQ(osPlatform, 2);
    EXPECT_TRUE(autoLoadSettings && autoSaveSettings && autoLoadURLs && autoSaveURLs);
}

TEST_F(StartUp, ASettingForTheLineHidesThePadBeforeItShows) {
    putRecord("ID", "0 3000 4000 0 1 0 False True");
    start();
    EXPECT_FALSE(Form1.Visible());
    EXPECT_TRUE(activeIcon);
}

TEST_F(StartUp, APadThatWasOffStaysHiddenWithItsFlagOn) {
    putRecord("ID", "0 3000 4000 1 1 0 False False");
    start();
    EXPECT_FALSE(Form1.Visible());
    EXPECT_TRUE(activeIcon);
}

TEST_F(StartUp, TheFlagsOfTheRecordSetTheFourSettings) {
    putRecord("CF", "80");
    start();
    EXPECT_FALSE(autoLoadSettings);
    EXPECT_TRUE(autoSaveSettings);
    EXPECT_FALSE(autoLoadURLs);
    EXPECT_TRUE(autoSaveURLs);
}

TEST_F(StartUp, GarbageInTheRegistryNeverStopsTheStart) {
    putSampleFile();
    putRecord("ID", std::string(1 << 20, 'x') + " - 1e400 maybe 99999999999  huh -");
    putRecord("CF", "zwei  -5 256 9 9 9 99999 - - - - - - -");
    putRecord("CH", "x y 40000 -1");
    start();
    clickPad();
    EXPECT_TRUE(Form3.Visible());
    EXPECT_TRUE(reallyLoaded);
    EXPECT_THAT(groupNames(), ElementsAre("Reference", "Work"));
    EXPECT_THAT(driver::messageBoxes(), IsEmpty());
}

// The command line ---------------------------------------------------------------------

TEST_F(StartUp, ABaseNameOnTheCommandLineNamesTheFilesForTheWholeRun) {
    driver::setCommandLine("\"C:\\Magpie\\Magpie.exe\" MyBooks");
    putSampleFile();
    const auto pienest = stackFile();
    driver::putFile("C:\\Magpie\\MyBooks.pns", lines("+Mine\r\nu|n|8E53EC00|8E34968D|0|1|0\r\n"));
    start();
    EXPECT_EQ(stackPath, "C:\\Magpie\\MyBooks");
    clickPad();
    EXPECT_THAT(groupNames(), ElementsAre("Mine"));
    uBlock.URLDatas().Item(1).Name("changed");
    ++urlsDirty;
    clickMenuButton("Flush to Tray");
    EXPECT_EQ(driver::file("C:\\Magpie\\MyBooks.pns"),
              lines("+Mine\r\nu|changed|8E53EC00|8E34968D|0|1|0\r\n"));
    EXPECT_EQ(driver::file("C:\\Magpie\\MyBooks.bak"),
              lines("+Mine\r\nu|n|8E53EC00|8E34968D|0|1|0\r\n"));
    clickPad();
    EXPECT_EQ(uBlock.URLDatas().Item(1).Name(), "changed");
    EXPECT_EQ(stackFile(), pienest);
    EXPECT_EQ(backup(), std::nullopt);
}

TEST_F(StartUp, QuotesOnTheCommandLineStayInTheName) {
    driver::setCommandLine("C:\\Magpie\\Magpie.exe \"My Books\"");
    start();
    EXPECT_EQ(stackPath, "C:\\Magpie\\\"My Books\"");
    clickPad();
    EXPECT_TRUE(reallyLoaded);
    EXPECT_THAT(groupNames(), IsEmpty());
}

TEST_F(StartUp, TheCommandLineIsTakenWholeWithItsBlanksAndSwitches) {
    driver::setCommandLine("Magpie.exe my other /books");
    start();
    EXPECT_EQ(stackPath, "C:\\Magpie\\my other /books");
}

TEST_F(StartUp, AnAbsolutePathOnTheCommandLineIsNoAbsolutePath) {
    driver::setCommandLine("Magpie.exe D:\\x");
    start();
    EXPECT_EQ(stackPath, "C:\\Magpie\\D:\\x");
}

// The first access to the main window --------------------------------------------------

TEST_F(StartUp, ATrayClickLoadsAndShowsTheMainWindow) {
    putTrayRecord();
    putSampleFile();
    start();
    clickTrayIcon();
    EXPECT_TRUE(reallyLoaded);
    EXPECT_TRUE(Form3.Visible());
    EXPECT_EQ(Form3.WindowState(), stateNormal);
}

TEST_F(StartUp, TheTrayMenusHeadingLoadsAndShowsTheMainWindow) {
    putTrayRecord();
    start();
    chooseFromTray("Magpie");
    EXPECT_TRUE(reallyLoaded);
    EXPECT_TRUE(Form3.Visible());
}

TEST_F(StartUp, RestoreLoadsAndShowsTheMainWindow) {
    putTrayRecord();
    start();
    chooseFromTray("Restore");
    EXPECT_TRUE(reallyLoaded);
    EXPECT_TRUE(Form3.Visible());
}

TEST_F(StartUp, TheLineComingUpLoadsTheMainWindowButLeavesItHiddenBehindThePad) {
    putRecord("ID", "2 3000 4000 0 1 1 False False");
    putSampleFile();
    start();
    EXPECT_FALSE(Form3.loaded());
    driver::advance(4000);
    EXPECT_TRUE(reallyLoaded);
    EXPECT_FALSE(Form3.Visible());
    EXPECT_THAT(groupNames(), ElementsAre("Reference", "Work"));
}

TEST_F(StartUp, TheLineComingUpShowsTheMainWindowWhenThePadIsOff) {
    putRecord("ID", "2 3000 4000 0 1 1 False False");
    start();
    toggleActiveIcon();
    driver::advance(4000);
    EXPECT_TRUE(reallyLoaded);
    EXPECT_TRUE(Form3.Visible());
}

TEST_F(StartUp, TheLineComingUpLoadsNothingWithoutTheSetting) {
    putTrayRecord();
    start();
    driver::advance(8000);
    EXPECT_FALSE(Form3.loaded());
}

// Form1's events -----------------------------------------------------------------------

TEST_F(StartUp, AMinimisedPadHides) {
    start();
    win::ShowWindow(Form1.hWnd(), win::SW_MINIMIZE);
    driver::pump();
    EXPECT_FALSE(Form1.Visible());
}

TEST_F(StartUp, ALeftPressOnTheFormItselfDragsItWithoutKeepingThePlace) {
    putTrayRecord();
    start();
    driver::dragTo(300, 200);
    win::SendMessageA(Form1.hWnd(), win::WM_LBUTTONDOWN, static_cast<win::WPARAM>(win::MK_LBUTTON),
                      0);
    EXPECT_EQ(Form1.Left(), 4500);
    EXPECT_EQ(Form1.Top(), 3000);
    EXPECT_EQ(iconLeft, 4000);
    EXPECT_EQ(iconTop, 3000);
}

TEST_F(StartUp, AnotherButtonOnTheFormItselfDoesNotDragIt) {
    putTrayRecord();
    start();
    const double left = Form1.Left();
    win::SendMessageA(Form1.hWnd(), win::WM_MBUTTONDOWN, 0, 0);
    EXPECT_EQ(Form1.Left(), left);
}

}  // namespace
}  // namespace magpie
