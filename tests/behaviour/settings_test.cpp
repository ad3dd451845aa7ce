// The tray controller's settings: the record "ID", and the flags of "CF" that are read
// at the start.
#include "platform/services/screen.h"
#include "tests/behaviour/settings_fixture.h"
#include "tray/tray_icon.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;
using testing::IsEmpty;
using testing::SizeIs;

class TraySettings : public SettingsFixture {
public:
    static void expectDefaultPlace(double padWidth) {
        EXPECT_NEAR(Form1.Top(), Screen.Height() / 2, Screen.TwipsPerPixelY());
        EXPECT_NEAR(Form1.Left(), Screen.Width() - padWidth - 200, Screen.TwipsPerPixelX());
    }
};

// The first start ----------------------------------------------------------------------

TEST_F(TraySettings, TheFirstStartHasThePadOnAtItsDefaultPlaceAndNoTrayIcon) {
    start();
    EXPECT_EQ(lineCheck, 0);
    EXPECT_TRUE(activeIcon);
    EXPECT_TRUE(Form1.Visible());
    expectDefaultPlace(480);
    EXPECT_TRUE(iconOnTop);
    EXPECT_TRUE(noTrayIcon);
    EXPECT_THAT(driver::shownTrayIcons(), IsEmpty());
    EXPECT_EQ(onlineAction, 0);
    EXPECT_FALSE(onlineOnly);
    EXPECT_EQ(iconTop, 0);
    EXPECT_EQ(iconLeft, 0);
    EXPECT_TRUE(autoLoadSettings && autoSaveSettings && autoLoadURLs && autoSaveURLs);
}

TEST_F(TraySettings, TheFirstStartWritesNothing) {
    start();
    EXPECT_FALSE(driver::registryKeyExists(win::HKEY_CURRENT_USER, settingsKeyPath));
}

TEST_F(TraySettings, ARecordOfOneTokenMeansAPadOnTopAndATrayIcon) {
    putRecord("ID", "2");
    start();
    EXPECT_EQ(lineCheck, 2);
    EXPECT_FALSE(noTrayIcon);
    EXPECT_THAT(driver::shownTrayIcons(), SizeIs(1));
    EXPECT_TRUE(iconOnTop);
    EXPECT_TRUE(Form1.Visible());
    expectDefaultPlace(480);
}

TEST_F(TraySettings, TheWholeRecordComesBack) {
    putRecord("ID", "3 3000 4500 0 0 1 False True");
    start();
    EXPECT_EQ(lineCheck, 3);
    EXPECT_EQ(iconTop, 3000);
    EXPECT_EQ(iconLeft, 4500);
    EXPECT_FALSE(iconOnTop);
    EXPECT_EQ(onlineAction, 1);
    EXPECT_FALSE(noTrayIcon);
    EXPECT_TRUE(onlineOnly);
    EXPECT_TRUE(activeIcon);
    EXPECT_TRUE(Form1.Timer1.Enabled());
}

// How the line is checked --------------------------------------------------------------

TEST_F(TraySettings, ALineCheckOutsideZeroToThreeCountsAsZero) {
    start();
    const struct {
        const char* token;
        int read;
    } cases[] = {{"0", 0},    {"1", 1},   {"2", 2},    {"3", 3},       {"-1", 0},
                 {"4", 0},    {"255", 0}, {"256", 0},  {"1e400", 0},   {"99999999999", 0},
                 {"x", 0},    {"1x", 0},  {"True", 0}, {"2.4", 2},     {"2.5", 2},
                 {"-0.4", 0}, {"&H3", 3}, {"+1", 1},   {"\xFF\xFE", 0}};
    for (const auto& each : cases) {
        SCOPED_TRACE(each.token);
        lineCheck = 77;
        readTray(trayRecord(0, each.token));
        EXPECT_EQ(lineCheck, each.read);
    }
}

TEST_F(TraySettings, AnEmptyFirstTokenTakesTheTrayIconAwayUntilALaterTokenSaysOtherwise) {
    start();
    noTrayIcon = false;
    readTray(" 3000 4500 0 1 0 garbage False");
    EXPECT_TRUE(noTrayIcon);
    EXPECT_EQ(lineCheck, 0);
    readTray(" 3000 4500 0 1 0 False False");
    EXPECT_FALSE(noTrayIcon);
}

// The pad's place ----------------------------------------------------------------------

TEST_F(TraySettings, ThePadComesBackToItsPlace) {
    putRecord("ID", trayRecord(1, "3000"));
    start();
    EXPECT_EQ(Form1.Top(), 3000);
    EXPECT_EQ(Form1.Left(), 4500);
}

TEST_F(TraySettings, APlaceAtZeroOrOffTheScreenIsReadButNotRestored) {
    start();
    const struct {
        const char* top;
        const char* left;
        bool restored;
    } cases[] = {{"0", "4500", false},          {"3000", "0", false},
                 {"-15", "4500", false},        {"3000", "-15", false},
                 {"11520", "4500", false},      {"3000", "15360", false},
                 {"11519", "15359", true},      {"1", "1", true},
                 {"2147483647", "4500", false}, {"3000", "-2147483648", false}};
    for (const auto& each : cases) {
        SCOPED_TRACE(std::string(each.top) + " " + each.left);
        Form1.Top(150);
        readTray(std::string("0 ") + each.top + " " + each.left + " 0 1 0 True False");
        EXPECT_EQ(std::to_string(iconTop.value()), each.top);
        EXPECT_EQ(std::to_string(iconLeft.value()), each.left);
        if (each.restored) {
            EXPECT_EQ(Form1.Top(), iconTop.value());
            EXPECT_EQ(Form1.Left(), iconLeft.value());
        } else {
            expectDefaultPlace(480);
        }
    }
}

TEST_F(TraySettings, APlaceThatIsNoNumberKeepsWhatWasKnown) {
    start();
    for (const char* token : {"", "x", "1e400", "2147483648", "-2147483649", "True", "--5", "."}) {
        SCOPED_TRACE(token);
        iconTop = 600;
        iconLeft = 750;
        readTray(std::string("0 ") + token + " 4500 0 1 0 True False");
        EXPECT_EQ(iconTop, 600);
        EXPECT_EQ(iconLeft, 4500);
        readTray(std::string("0 3000 ") + token + " 0 1 0 True False");
        EXPECT_EQ(iconTop, 3000);
        EXPECT_EQ(iconLeft, 4500);
        EXPECT_EQ(Form1.Left(), 4500);
    }
}

// The pad on or off --------------------------------------------------------------------

TEST_F(TraySettings, APadThatIsNotKnownToBeOffShows) {
    for (const char* token : {"0", "0.0", "-0", "", "x", "1e400"}) {
        SCOPED_TRACE(token);
        start();
        activeIcon = false;
        Form1.Hide();
        readTray(trayRecord(3, token));
        EXPECT_TRUE(activeIcon);
        EXPECT_TRUE(Form1.Visible());
        Form1.discard();
    }
}

TEST_F(TraySettings, APadThatWasOffStaysHiddenAndItsSettingComesBackOn) {
    for (const char* token : {"1", "-1", "2", "0.5", "2147483648", "&HFF"}) {
        SCOPED_TRACE(token);
        putRecord("ID", trayRecord(3, token));
        activeIcon = false;
        start();
        EXPECT_TRUE(activeIcon);
        EXPECT_FALSE(Form1.Visible());
        Form1.discard();
    }
}

TEST_F(TraySettings, APadForTheLineOnlyStaysHiddenAtTheStart) {
    for (const char* token : {"0", "1", ""}) {
        SCOPED_TRACE(token);
        putRecord("ID", std::string("0 3000 4500 ") + token + " 1 0 True True");
        activeIcon = false;
        start();
        EXPECT_TRUE(activeIcon);
        EXPECT_TRUE(onlineOnly);
        EXPECT_FALSE(Form1.Visible());
        Form1.discard();
    }
}

TEST_F(TraySettings, ReadingARecordOfAPadThatIsOnTurnsAPadThatIsOnOff) {
    putRecord("ID", trayRecord(3, "0"));
    start();
    earlyConfig();
    EXPECT_FALSE(activeIcon);
    EXPECT_FALSE(Form1.Visible());
    earlyConfig();
    EXPECT_TRUE(activeIcon);
    EXPECT_TRUE(Form1.Visible());
}

// The other tokens ---------------------------------------------------------------------

TEST_F(TraySettings, ThePadsLevelKeepsWhatItWasWhereTheTokenIsNoTruthValue) {
    start();
    const struct {
        const char* token;
        bool before;
        bool after;
    } cases[] = {{"1", false, true},     {"0", true, false},   {"True", false, true},
                 {"FALSE", true, false}, {"-1", false, true},  {"0.5", false, true},
                 {"", true, true},       {"", false, false},   {"x", true, true},
                 {"x", false, false},    {"1e400", true, true}};
    for (const auto& each : cases) {
        SCOPED_TRACE(each.token);
        iconOnTop = each.before;
        readTray(trayRecord(4, each.token));
        EXPECT_EQ(iconOnTop, each.after);
    }
}

TEST_F(TraySettings, ThePadIsOnTopWhereTheRecordHasNoSecondToken) {
    start();
    for (const char* whole : {"", "0", "7", "garbage"}) {
        SCOPED_TRACE(whole);
        iconOnTop = false;
        readTray(whole);
        EXPECT_TRUE(iconOnTop);
    }
    for (const char* whole : {"0 ", "0 3000", "0 3000 4500 0", " "}) {
        SCOPED_TRACE(whole);
        iconOnTop = false;
        readTray(whole);
        EXPECT_FALSE(iconOnTop);
    }
}

TEST_F(TraySettings, WhatToDoOnlineIsAByte) {
    start();
    const struct {
        const char* token;
        int read;
    } cases[] = {{"0", 0},  {"1", 1}, {"255", 255}, {"256", 7},
                 {"-1", 7}, {"", 7},  {"x", 7},     {"99999999999999999999", 7}};
    for (const auto& each : cases) {
        SCOPED_TRACE(each.token);
        onlineAction = 7;
        readTray(trayRecord(5, each.token));
        EXPECT_EQ(onlineAction, each.read);
    }
}

TEST_F(TraySettings, TheTrayIconFollowsItsToken) {
    const struct {
        const char* token;
        bool hidden;
    } cases[] = {{"True", true}, {"False", false}, {"true", true}, {"1", true},     {"0", false},
                 {"-1", true},   {"", false},      {"x", false},   {"Truer", false}};
    for (const auto& each : cases) {
        SCOPED_TRACE(each.token);
        putRecord("ID", trayRecord(6, each.token));
        noTrayIcon = false;
        start();
        EXPECT_EQ(noTrayIcon, each.hidden);
        EXPECT_THAT(driver::shownTrayIcons(), SizeIs(each.hidden ? 0 : 1));
        setTrayIcon(true);
        Form1.discard();
    }
}

TEST_F(TraySettings, ThePadForTheLineOnlyKeepsWhatItWasWhereTheTokenIsNoTruthValue) {
    start();
    const struct {
        const char* token;
        bool before;
        bool after;
    } cases[] = {{"True", false, true}, {"False", true, false}, {"1", false, true},
                 {"0", true, false},    {"x", true, true},      {"", false, false}};
    for (const auto& each : cases) {
        SCOPED_TRACE(each.token);
        onlineOnly = each.before;
        readTray(trayRecord(7, each.token));
        EXPECT_EQ(onlineOnly, each.after);
    }
    onlineOnly = true;
    readTray("0 3000 4500 0 1 0 True");
    EXPECT_TRUE(onlineOnly);
}

TEST_F(TraySettings, TokensBeyondTheEighthAreIgnored) {
    putRecord("ID", "2 3000 4500 0 0 1 False False more of it True 99");
    start();
    EXPECT_EQ(lineCheck, 2);
    EXPECT_FALSE(iconOnTop);
    EXPECT_FALSE(onlineOnly);
}

TEST_F(TraySettings, TwoBlanksHoldAnEmptyTokenBetweenThem) {
    putRecord("ID", "2  4500 0 0 1 False False");
    start();
    EXPECT_EQ(iconTop, 0);
    EXPECT_EQ(iconLeft, 4500);
    EXPECT_FALSE(iconOnTop);
}

}  // namespace
}  // namespace magpie
