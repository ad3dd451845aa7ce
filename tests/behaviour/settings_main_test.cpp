// The main window's settings: reading the records "CF" and "CH".
#include "platform/services/screen.h"
#include "store/group_lookup.h"
#include "store/groups.h"
#include "tests/behaviour/settings_fixture.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;
using testing::ElementsAre;

class MainSettings : public SettingsFixture {
public:
    // Starts with this "CF" and opens the main window.
    static void openWith(std::string_view cf) {
        putRecord("CF", cf);
        startAndOpen();
    }
};

// The first start ----------------------------------------------------------------------

TEST_F(MainSettings, TheFirstStartHasTheDesignsMainWindow) {
    driver::setLocalTime(2001, 3, 14, 23, 59, 59);
    startAndOpen();
    EXPECT_EQ(savedAdvMode, 1);
    EXPECT_EQ(Form3.advMode, 1);
    EXPECT_EQ(browserType, 0);
    EXPECT_EQ(shortcutMode, 0);
    EXPECT_EQ(firstDate, 36964);
    EXPECT_EQ(currentTab, 1);
    EXPECT_EQ(Form3.tbStrip.Placement(), 0);
    EXPECT_FALSE(useKeystrokes);
    EXPECT_FALSE(mainOnTop);
    EXPECT_FALSE(startFullWindow);
    EXPECT_TRUE(Form3.filterAdvanced);
    EXPECT_EQ(Form3.lastIDX2, 0);
    EXPECT_NEAR(Form3.Left(), Screen.Width() - Form3.Width(), 15);
    EXPECT_NEAR(Form3.Top(), Screen.Height() - Form3.Height() - 28 * 15, 15);
    EXPECT_THAT(widths(2), ElementsAre(2400, 2400, 900, 1200, 1680, 1680, 720));
}

TEST_F(MainSettings, WithThemAndWithoutTheKeyboardBeginsAtTheSameControl) {
    startAndOpen();
    const Control* const first = controlOf(win::GetFocus());
    EXPECT_EQ(first, &Form3.ListView1[2]);
    Form3.unload();
    openWith(mainRecord(0, "8"));
    EXPECT_EQ(controlOf(win::GetFocus()), first);
}

// The flags ----------------------------------------------------------------------------

TEST_F(MainSettings, EachLowerFlagTurnsItsSettingOn) {
    startAndOpen();
    for (int flags = 0; flags < 16; ++flags) {
        SCOPED_TRACE(flags);
        readMain(mainRecord(0, std::to_string(flags)));
        EXPECT_EQ(useKeystrokes, (flags & 1) != 0);
        EXPECT_EQ(mainOnTop, (flags & 2) != 0);
        EXPECT_EQ(isTopMost(Form3), (flags & 2) != 0);
        EXPECT_EQ(startFullWindow, (flags & 4) != 0);
        EXPECT_EQ(Form3.filterAdvanced, (flags & 8) != 0);
        EXPECT_EQ(Form3.indexBox.Visible(), (flags & 8) != 0);
        EXPECT_EQ(driver::pictureOf(Form3.indexFlipBox.hWnd()),
                  (flags & 8) != 0 ? "C:\\Magpie\\uBank\\b1u.bnk" : "C:\\Magpie\\uBank\\b1d.bnk");
    }
}

TEST_F(MainSettings, ReadingTheFlagsHereLeavesThoseOfTheStartAlone) {
    startAndOpen();
    readMain(mainRecord(0, "240"));
    EXPECT_TRUE(autoLoadSettings && autoSaveSettings && autoLoadURLs && autoSaveURLs);
}

TEST_F(MainSettings, FlagsThatAreNoNumberKeepWhatWasKnown) {
    startAndOpen();
    for (const char* word : {"", "x", "2147483648", "1e400", "True"}) {
        SCOPED_TRACE(word);
        readMain(mainRecord(0, "15"));
        readMain(mainRecord(0, word));
        EXPECT_TRUE(useKeystrokes && mainOnTop && startFullWindow && Form3.filterAdvanced);
        EXPECT_TRUE(isTopMost(Form3));
        readMain(mainRecord(0, "0"));
        readMain(mainRecord(0, word));
        EXPECT_FALSE(useKeystrokes || mainOnTop || startFullWindow || Form3.filterAdvanced);
    }
}

TEST_F(MainSettings, TheFullWindowFlagOpensTheMainWindowWithoutItsTabs) {
    openWith(mainRecord(0, "4"));
    EXPECT_TRUE(Form3.mnuFullwindow.Checked);
    EXPECT_FALSE(Form3.tbStrip.Visible());
    EXPECT_FALSE(Form3.StatusBar1.Visible());
}

TEST_F(MainSettings, WithoutTheFullWindowFlagTheTabsAreThere) {
    openWith(mainRecord(0, "0"));
    EXPECT_FALSE(Form3.mnuFullwindow.Checked);
    EXPECT_TRUE(Form3.tbStrip.Visible());
}

// The tokens ---------------------------------------------------------------------------

TEST_F(MainSettings, TheCopyOfTheLineCheckIsNeverRead) {
    start();
    for (const char* token : {"3", "x", "", "1e400"}) {
        SCOPED_TRACE(token);
        lineCheck = 1;
        readMain(mainRecord(1, token));
        EXPECT_EQ(lineCheck, 1);
    }
}

TEST_F(MainSettings, TheBrowserIsAByte) {
    start();
    const struct {
        const char* token;
        int read;
    } cases[] = {{"0", 0}, {"1", 1}, {"2", 2},  {"255", 255}, {"256", 7},
                 {"", 7},  {"x", 7}, {"-1", 7}, {"1e400", 7}};
    for (const auto& each : cases) {
        SCOPED_TRACE(each.token);
        browserType = 7;
        readMain(mainRecord(2, each.token));
        EXPECT_EQ(browserType, each.read);
    }
}

TEST_F(MainSettings, TheTabsGoToTheEdgeOfTheRecord) {
    start();
    for (int edge = 0; edge <= 3; ++edge) {
        SCOPED_TRACE(edge);
        readMain(mainRecord(3, std::to_string(edge)));
        EXPECT_EQ(Form3.tbStrip.Placement(), edge);
        EXPECT_EQ(tabStyle, edge);
    }
}

TEST_F(MainSettings, TheTabsStayWhereTheTokenNamesNoEdge) {
    start();
    readMain(mainRecord(3, "2"));
    for (const char* token : {"", "4", "255", "256", "-1", "x", "1e400"}) {
        SCOPED_TRACE(token);
        readMain(mainRecord(3, token));
        EXPECT_EQ(Form3.tbStrip.Placement(), 2);
        EXPECT_EQ(tabStyle, 2);
    }
}

TEST_F(MainSettings, TheRememberedTabIsOnShow) {
    openWith(mainRecord(4, "2"));
    EXPECT_EQ(Form3.tbStrip.SelectedTab(), 2);
    EXPECT_EQ(currentTab, 2);
    EXPECT_EQ(lvIndex, 1);
    EXPECT_TRUE(Form3.picTab[0].Visible());
    EXPECT_THAT(titlesInView(), ElementsAre("Front page", "Tools"));
}

TEST_F(MainSettings, ATabThatIsNotThereLeavesTheFirstOnShow) {
    for (const char* token : {"", "0", "3", "-1", "x", "1e400", "2147483647"}) {
        SCOPED_TRACE(token);
        activeIcon = false;
        openWith(mainRecord(4, token));
        EXPECT_EQ(currentTab, 1);
        EXPECT_EQ(Form3.tbStrip.SelectedTab(), 1);
        EXPECT_TRUE(reallyLoaded);
        Form3.discard();
        Form1.discard();
    }
}

TEST_F(MainSettings, TheSidePanelComesBackWithItsFace) {
    start();
    const struct {
        const char* token;
        int read;
    } cases[] = {{"0", 0}, {"1", 1}, {"2", 2}, {"", 1}, {"255", 255}};
    for (const auto& each : cases) {
        SCOPED_TRACE(each.token);
        savedAdvMode = 7;
        readMain(mainRecord(5, each.token));
        EXPECT_EQ(savedAdvMode, each.read);
        EXPECT_EQ(Form3.advMode, each.read);
    }
}

TEST_F(MainSettings, AFaceThatIsNoByteKeepsTheFaceThatWasKnown) {
    start();
    for (const char* token : {"x", "256", "-1", "1e400"}) {
        SCOPED_TRACE(token);
        savedAdvMode = 2;
        Form3.advMode = 0;
        readMain(mainRecord(5, token));
        EXPECT_EQ(savedAdvMode, 2);
        EXPECT_EQ(Form3.advMode, 2);
    }
}

TEST_F(MainSettings, ARecordThatEndsBeforeTheFaceShowsTheGroupList) {
    start();
    savedAdvMode = 2;
    readMain("0 0 0 0 1");
    EXPECT_EQ(savedAdvMode, 1);
    EXPECT_EQ(Form3.advMode, 1);
}

TEST_F(MainSettings, TheRememberedGroupIsInViewAfterTheLoad) {
    openWith(mainRecord(6, "1"));
    EXPECT_EQ(Form3.lastIDX2, 1);
    EXPECT_EQ(Form3.ListView1[3].SelectedItem().Text(), "Work");
}

TEST_F(MainSettings, TheRememberedGroupIsInViewOnTheStandardTab) {
    putRecord("CF", "0 0 0 0 2 1 1 1500 3000 6000 4500 31 0 36000");
    startAndOpen();
    EXPECT_EQ(Form3.Combo1[1].ListIndex(), 1);
    EXPECT_THAT(titlesInView(), ElementsAre("Plan"));
}

TEST_F(MainSettings, ReadingSelectsTheGroupOfTheRecord) {
    startAndOpen();
    readMain(mainRecord(6, "1"));
    EXPECT_EQ(Form3.lastIDX2, 1);
    EXPECT_THAT(titlesInView(), ElementsAre("Plan"));
}

TEST_F(MainSettings, AGroupThatIsNoSixteenBitNumberKeepsTheGroupThatWasKnown) {
    startAndOpen();
    for (const char* token : {"", "x", "32768", "-32769", "1e400"}) {
        SCOPED_TRACE(token);
        Form3.lastIDX2 = 1;
        readMain(mainRecord(6, token));
        EXPECT_EQ(Form3.lastIDX2, 1);
    }
    readMain(mainRecord(6, "32767"));
    EXPECT_EQ(Form3.lastIDX2, 32767);
    readMain(mainRecord(6, "-1"));
    EXPECT_EQ(Form3.lastIDX2, -1);
}

TEST_F(MainSettings, TheStripsOpenAndShutAreKeptAsTheyAreRead) {
    start();
    const struct {
        const char* token;
        int read;
    } cases[] = {{"0", 0}, {"31", 31}, {"-1", -1}, {"", 5}, {"x", 5}, {"2147483648", 5}};
    for (const auto& each : cases) {
        SCOPED_TRACE(each.token);
        slideState = 5;
        readMain(mainRecord(11, each.token));
        EXPECT_EQ(slideState, each.read);
    }
}

TEST_F(MainSettings, TheWayOfSendingToFavoritesIsAByte) {
    start();
    const struct {
        const char* token;
        int read;
    } cases[] = {{"0", 0}, {"2", 2}, {"255", 255}, {"256", 7}, {"", 7}, {"x", 7}, {"-1", 7}};
    for (const auto& each : cases) {
        SCOPED_TRACE(each.token);
        shortcutMode = 7;
        readMain(mainRecord(12, each.token));
        EXPECT_EQ(shortcutMode, each.read);
    }
}

TEST_F(MainSettings, TheDateOfTheFirstStartIsKeptAndTakenFromTheClockWhereItIsMissing) {
    driver::setLocalTime(2001, 3, 14, 23, 59, 59);
    start();
    const struct {
        const char* token;
        int read;
    } cases[] = {{"36000", 36000}, {"0", 0}, {"-5", -5}, {"", 36964}, {"x", 7}, {"1e400", 7}};
    for (const auto& each : cases) {
        SCOPED_TRACE(each.token);
        firstDate = 7;
        readMain(mainRecord(13, each.token));
        EXPECT_EQ(firstDate, each.read);
    }
    firstDate = 7;
    readMain("0 0 0 0 1 1 0 1500 3000 6000 4500 31 0");
    EXPECT_EQ(firstDate, 36964);
}

TEST_F(MainSettings, AShortRecordSetsWhatItHasAndKeepsTheRest) {
    start();
    readMain(mainRecord(2, "2"));
    slideState = 9;
    readMain("1 0 1");
    EXPECT_TRUE(useKeystrokes);
    EXPECT_EQ(browserType, 1);
    EXPECT_EQ(slideState, 9);
    EXPECT_EQ(Form3.Top(), 1500);
    EXPECT_EQ(Form3.Width(), 6000);
}

// Where nothing is read ----------------------------------------------------------------

TEST_F(MainSettings, WithoutAutomaticLoadingNothingReachesTheMainWindow) {
    putRecord("CF", "31 0 2 3 2 2 1 1500 3000 6000 4500 7 2 36000");
    putRecord("CH", "1500 1515 1530 1545 1560 1575 1590 ");
    startAndOpen();
    EXPECT_FALSE(autoLoadSettings);
    EXPECT_EQ(browserType, 0);
    EXPECT_EQ(Form3.tbStrip.Placement(), 0);
    EXPECT_EQ(currentTab, 1);
    EXPECT_EQ(savedAdvMode, 0);
    EXPECT_FALSE(useKeystrokes || mainOnTop || startFullWindow);
    EXPECT_EQ(shortcutMode, 0);
    EXPECT_THAT(widths(2), ElementsAre(2400, 2400, 900, 1200, 1680, 1680, 720));
    EXPECT_NEAR(Form3.Left(), Screen.Width() - Form3.Width(), 15);
    EXPECT_NEAR(Form3.Top(), Screen.Height() - Form3.Height() - 28 * 15, 15);
    // The group alone is read with the stack file.
    EXPECT_EQ(Form3.lastIDX2, 1);
}

TEST_F(MainSettings, LoadSettingsReadsBothRecords) {
    startAndOpen();
    putRecord("ID", "2 3000 4500 1 1 1 False False");
    putRecord("CF", mainRecord(2, "2"));
    chooseFromMenu("Load Settings");
    EXPECT_EQ(lineCheck, 2);
    EXPECT_EQ(onlineAction, 1);
    EXPECT_EQ(browserType, 2);
    EXPECT_EQ(Form3.Width(), 6000);
}

TEST_F(MainSettings, LoadAllReadsTheSettingsAsWell) {
    startAndOpen();
    putRecord("CF", mainRecord(2, "2"));
    chooseFromMenu("Load All");
    EXPECT_EQ(browserType, 2);
}

// The remembered group -----------------------------------------------------------------

TEST_F(MainSettings, TheRememberedGroupIsReadAlone) {
    start();
    const struct {
        const char* whole;
        int read;
    } cases[] = {{"0 0 0 0 1 1 3", 3}, {"0 0 0 0 1 1  1500", 0}, {"0 0 0", 0},          {"", 0},
                 {"0 0 0 0 1 1 x", 7}, {"0 0 0 0 1 1 40000", 7}, {"0 0 0 0 1 1 -1", -1}};
    for (const auto& each : cases) {
        SCOPED_TRACE(each.whole);
        putRecord("CF", each.whole);
        Form3.lastIDX2 = 7;
        reloadLastGroup();
        EXPECT_EQ(Form3.lastIDX2, each.read);
    }
}

TEST_F(MainSettings, ARegistryThatCanNotBeReadRemembersNoGroup) {
    start();
    putRecord("CF", mainRecord(6, "1"));
    Form3.lastIDX2 = 7;
    driver::failCall("RegOpenKeyExA", 1, win::ERROR_ACCESS_DENIED);
    reloadLastGroup();
    EXPECT_EQ(Form3.lastIDX2, 0);
}

// The screens --------------------------------------------------------------------------

TEST_F(MainSettings, ReadingRebuildsTheGroupsBeforeItSelectsOne) {
    startAndOpen();
    for (const char* tab : {"1", "2"}) {
        SCOPED_TRACE(tab);
        NewCatagory("Later");
        readMain(std::string("8 0 0 0 ") + tab + " 1 2 1500 3000 6000 4500 31 0 36000");
        EXPECT_EQ(GetSelectedIndex(), 2);
        EXPECT_EQ(Form3.StatusBar1.Pane(1), "Viewed: 0");
    }
}

// Failures -----------------------------------------------------------------------------

TEST_F(MainSettings, GarbageInEveryTokenLeavesTheDesign) {
    putRecord("CF", "a b c d e f g h i j k l m n");
    putRecord("CH", "a b c d e f g h i j k l m n");
    startAndOpen();
    EXPECT_TRUE(reallyLoaded);
    EXPECT_TRUE(Form3.Visible());
    EXPECT_EQ(currentTab, 1);
    EXPECT_EQ(browserType, 0);
    EXPECT_EQ(firstDate, 0);
    EXPECT_NEAR(Form3.Left(), Screen.Width() - Form3.Width(), 15);
    EXPECT_THAT(widths(2), ElementsAre(2400, 2400, 900, 1200, 1680, 1680, 720));
    EXPECT_TRUE(driver::messageBoxes().empty());
}

TEST_F(MainSettings, AMissingFlipPictureDoesNotStopTheReading) {
    driver::removeFile("C:\\Magpie\\uBank\\b1u.bnk");
    openWith("8 0 2 0 1 1 1 1500 3000 6000 4500 31 0 36000");
    EXPECT_EQ(browserType, 2);
    EXPECT_TRUE(reallyLoaded);
    EXPECT_EQ(Form3.ListView1[2].Count(), 1);
}

}  // namespace
}  // namespace magpie
