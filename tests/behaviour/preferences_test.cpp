// The Preferences dialog, a library's: what it is given, in which order, and what its Apply does.
#include <gmock/gmock.h>

#include "config/companion.h"
#include "config/pienest.h"
#include "core/misc.h"
#include "mainwindow/full_window.h"
#include "tests/behaviour/companion_fixture.h"
#include "tests/unit/runtime/failure_of.h"
#include "tray/tray_icon.h"

namespace magpie {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Preferences : public CompanionFixture {
public:
    static void choosePreferences() { chooseFromMenu("Preferences"); }

    // The user gives a setting this value and presses Apply; then closes the dialog.
    void apply(const std::string& setting, const win::VARIANT& value) {
        during("Show", [&](Library& gcfg) {
            gcfg.properties[setting] = value;
            gcfg.raise(pienest::applyCurrent);
        });
        choosePreferences();
    }

    // Apply once more, with the same values.
    void applyTwice(const std::string& setting, const win::VARIANT& value,
                    const std::function<void()>& between) {
        during("Show", [&](Library& gcfg) {
            gcfg.properties[setting] = value;
            gcfg.raise(pienest::applyCurrent);
            between();
            gcfg.raise(pienest::applyCurrent);
        });
        choosePreferences();
    }

    static std::int64_t n(std::int64_t value) { return value; }
};

// Going in ---------------------------------------------------------------------------------

TEST_F(Preferences, ItGetsItsHostAndTheSettingsInTheirOrderAndIsShown) {
    open();
    choosePreferences();
    EXPECT_THAT(done, ElementsAre("Host", "Application", "appPath", "fullWindow", "browserType",
                                  "autoLoadSettings", "autoSaveSettings", "autoLoadURLs",
                                  "autoSaveURLs", "useKeystrokes", "Placement", "mainOnTop",
                                  "iconOnTop", "lineCheck", "activeIcon", "onlineAction",
                                  "noTrayIcon", "onlineOnly", "shortcutMode", "Show()"));
    EXPECT_THAT(arguments, IsEmpty());
}

TEST_F(Preferences, ItGetsTheSettingsAsTheyAre) {
    open();
    lineCheck = 3;
    onlineAction = 1;
    noTrayIcon = true;
    shortcutMode = 2;
    browserType = 1;
    useKeystrokes = true;
    autoLoadURLs = false;
    autoSaveSettings = false;
    mainOnTop = true;
    Form3.tbStrip.Placement(tabsBottom);
    toggleFullWindow();
    during("Show", [](Library& gcfg) {
        auto& given = gcfg.properties;
        EXPECT_EQ(given["lineCheck"], win::VARIANT(n(3)));
        EXPECT_EQ(given["onlineAction"], win::VARIANT(n(1)));
        EXPECT_EQ(given["noTrayIcon"], win::VARIANT(true));
        EXPECT_EQ(given["onlineOnly"], win::VARIANT(false));
        EXPECT_EQ(given["activeIcon"], win::VARIANT(true));
        EXPECT_EQ(given["shortcutMode"], win::VARIANT(n(2)));
        EXPECT_EQ(given["fullWindow"], win::VARIANT(true));
        EXPECT_EQ(given["browserType"], win::VARIANT(n(1)));
        EXPECT_EQ(given["useKeystrokes"], win::VARIANT(true));
        EXPECT_EQ(given["autoLoadURLs"], win::VARIANT(false));
        EXPECT_EQ(given["autoSaveURLs"], win::VARIANT(true));
        EXPECT_EQ(given["autoLoadSettings"], win::VARIANT(true));
        EXPECT_EQ(given["autoSaveSettings"], win::VARIANT(false));
        EXPECT_EQ(given["Placement"], win::VARIANT(n(tabsBottom)));
        EXPECT_EQ(given["iconOnTop"], win::VARIANT(true));
        EXPECT_EQ(given["mainOnTop"], win::VARIANT(true));
        EXPECT_EQ(given["appPath"], win::VARIANT(std::string("C:\\Magpie")));
    });
    showPreferences();
    EXPECT_THAT(done, testing::Contains("Show()"));
}

TEST_F(Preferences, TheInterfaceIsHeldAndTheMainWindowLoweredWhileItIsUp) {
    open();
    mainOnTop = true;
    setTopMost(Form3, -1);
    bool shown = false;
    during("Show", [&](Library&) {
        shown = true;
        EXPECT_EQ(modalOpen, 1);
        EXPECT_FALSE(onTop(Form3));
        EXPECT_NE(Form3.gcfg, nullptr);
    });
    choosePreferences();
    EXPECT_TRUE(shown);
    EXPECT_EQ(modalOpen, 0);
    EXPECT_TRUE(onTop(Form3));
    EXPECT_EQ(Form3.gcfg, nullptr);
    EXPECT_EQ(driver::objects(), 0);
}

TEST_F(Preferences, TheLineWatchSleepsUnderIt) {
    open();
    driver::advance(4000);
    during("Show", [](Library&) {
        lineCheck = 0;
        driver::advance(9000);
        EXPECT_NE(isOnline, 0);
        EXPECT_TRUE(Form3.loaded());
    });
    choosePreferences();
    driver::advance(4000);
    EXPECT_EQ(isOnline, 0);
    EXPECT_FALSE(Form3.loaded());
}

TEST_F(Preferences, TheLibraryFindsTheHostsMethodsAndItsWindow) {
    open();
    bool asked = false;
    during("Show", [&](Library& gcfg) {
        asked = true;
        win::VARIANT answer;
        win::IDispatch* host = objectIn(gcfg.properties["Host"]);
        EXPECT_EQ(ask(host, "hWnd", win::DISPATCH_PROPERTYGET, {}, &answer), 0);
        EXPECT_EQ(answer, win::VARIANT(number(reinterpret_cast<std::intptr_t>(Form3.hWnd()))));
        driver::setRegistryText(
            win::HKEY_LOCAL_MACHINE,
            "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\App Paths\\Opera.EXE", "",
            "C:\\Browsers\\Opera.EXE");
        EXPECT_EQ(ask(host, "gcfg_findCurrentVersion", win::DISPATCH_METHOD,
                      {std::string("Opera.EXE"), std::string()}, &answer),
                  0);
        EXPECT_EQ(answer, win::VARIANT(std::string("C:\\Browsers\\Opera.EXE")));
        EXPECT_LT(ask(host, "gcfg_findCurrentVersion", win::DISPATCH_METHOD, {n(1), n(2)}, &answer),
                  0);
        EXPECT_LT(ask(host, "gcfg_findCurrentVersion", win::DISPATCH_METHOD, {}, &answer), 0);
        EXPECT_EQ(ask(host, "findCurrentVersion", win::DISPATCH_METHOD, {}, &answer),
                  win::DISP_E_UNKNOWNNAME);
    });
    choosePreferences();
    EXPECT_TRUE(asked);
}

TEST_F(Preferences, TheLibraryGetsToKnowTheApplication) {
    open();
    bool asked = false;
    during("Show", [&](Library& gcfg) {
        asked = true;
        win::IDispatch* application = objectIn(gcfg.properties["Application"]);
        const auto tells = [&](const char* property) {
            win::VARIANT answer;
            EXPECT_EQ(ask(application, property, win::DISPATCH_PROPERTYGET, {}, &answer), 0);
            return answer;
        };
        EXPECT_EQ(tells("Title"), win::VARIANT(std::string("Magpie")));
        EXPECT_EQ(tells("Path"), win::VARIANT(std::string("C:\\Magpie")));
        EXPECT_EQ(tells("HelpFile"), win::VARIANT(std::string("C:\\Magpie\\PNSHelp.chm")));
        EXPECT_EQ(tells("Major"), win::VARIANT(n(1)));
        EXPECT_EQ(tells("Minor"), win::VARIANT(n(0)));
        EXPECT_EQ(tells("Revision"), win::VARIANT(n(0)));
    });
    choosePreferences();
    EXPECT_TRUE(asked);
}

// Apply -------------------------------------------------------------------------------------

TEST_F(Preferences, CancelWithoutAnApplyChangesNothing) {
    open();
    const auto id = record("ID");
    during("Show", [](Library& gcfg) {
        gcfg.properties["lineCheck"] = n(0);
        gcfg.properties["noTrayIcon"] = true;
        gcfg.properties["activeIcon"] = false;
        gcfg.properties["mainOnTop"] = true;
    });
    choosePreferences();
    EXPECT_EQ(lineCheck, 2);
    EXPECT_FALSE(noTrayIcon);
    EXPECT_TRUE(activeIcon);
    EXPECT_FALSE(mainOnTop);
    EXPECT_EQ(driver::shownTrayIcons().size(), 1u);
    EXPECT_EQ(record("ID"), id);
}

TEST_F(Preferences, ApplyTakesEverySettingOver) {
    open();
    during("Show", [](Library& gcfg) {
        gcfg.properties["lineCheck"] = n(1);
        gcfg.properties["onlineAction"] = n(1);
        gcfg.properties["noTrayIcon"] = true;
        gcfg.properties["onlineOnly"] = true;
        gcfg.properties["shortcutMode"] = n(2);
        gcfg.properties["browserType"] = n(2);
        gcfg.properties["useKeystrokes"] = true;
        gcfg.properties["autoLoadURLs"] = false;
        gcfg.properties["autoSaveURLs"] = false;
        gcfg.properties["autoLoadSettings"] = false;
        gcfg.properties["autoSaveSettings"] = false;
        gcfg.properties["Placement"] = n(tabsBottom);
        gcfg.properties["iconOnTop"] = false;
        gcfg.properties["mainOnTop"] = true;
        gcfg.raise(pienest::applyCurrent);
        EXPECT_TRUE(onTop(Form3));
    });
    choosePreferences();
    EXPECT_EQ(lineCheck, 1);
    EXPECT_EQ(onlineAction, 1);
    EXPECT_TRUE(noTrayIcon);
    EXPECT_TRUE(onlineOnly);
    EXPECT_EQ(shortcutMode, 2);
    EXPECT_EQ(browserType, 2);
    EXPECT_TRUE(useKeystrokes);
    EXPECT_FALSE(autoLoadURLs);
    EXPECT_FALSE(autoSaveURLs);
    EXPECT_FALSE(autoLoadSettings);
    EXPECT_FALSE(autoSaveSettings);
    EXPECT_EQ(Form3.tbStrip.Placement(), tabsBottom);
    EXPECT_FALSE(iconOnTop);
    EXPECT_TRUE(mainOnTop);
    EXPECT_TRUE(onTop(Form3));
}

TEST_F(Preferences, ApplyWritesNothingToTheRegistry) {
    open();
    const auto id = record("ID");
    const auto cf = record("CF");
    apply("lineCheck", n(1));
    EXPECT_EQ(record("ID"), id);
    EXPECT_EQ(record("CF"), cf);
}

TEST_F(Preferences, TheFullWindowIsNotReadBack) {
    open();
    apply("fullWindow", true);
    EXPECT_FALSE(Form3.mnuFullwindow.Checked);
    EXPECT_TRUE(Form3.tbStrip.Visible());
}

TEST_F(Preferences, AnotherPlacementMovesTheTabsAndLeavesTheFullWindow) {
    open();
    toggleFullWindow();
    during("Show", [](Library& gcfg) {
        gcfg.raise(pienest::applyCurrent);
        EXPECT_FALSE(Form3.tbStrip.Visible());
        gcfg.properties["Placement"] = n(tabsLeft);
        gcfg.raise(pienest::applyCurrent);
        EXPECT_TRUE(Form3.tbStrip.Visible());
    });
    showPreferences();
    EXPECT_EQ(Form3.tbStrip.Placement(), tabsLeft);
}

TEST_F(Preferences, OfflineAPadForTheLineOnlyGoesAtOnceAndComesBack) {
    open();
    isOnline = 0;
    apply("onlineOnly", true);
    EXPECT_TRUE(onlineOnly);
    EXPECT_FALSE(Form1.Visible());
    apply("onlineOnly", false);
    EXPECT_FALSE(onlineOnly);
    EXPECT_TRUE(Form1.Visible());
}

TEST_F(Preferences, OnlineAPadForTheLineOnlyStaysAsItIs) {
    open();
    driver::advance(4000);
    ASSERT_NE(isOnline, 0);
    apply("onlineOnly", true);
    EXPECT_TRUE(onlineOnly);
    EXPECT_TRUE(Form1.Visible());
    Form1.Hide();
    apply("onlineOnly", false);
    EXPECT_FALSE(Form1.Visible());
}

TEST_F(Preferences, ThePadGoesOffAndOn) {
    open();
    apply("activeIcon", false);
    EXPECT_FALSE(activeIcon);
    EXPECT_FALSE(Form1.Visible());
    apply("activeIcon", true);
    EXPECT_TRUE(activeIcon);
    EXPECT_TRUE(Form1.Visible());
}

TEST_F(Preferences, APadForTheLineOnlyIsNotTurnedOff) {
    open();
    onlineOnly = true;
    apply("activeIcon", false);
    EXPECT_TRUE(activeIcon);
    EXPECT_TRUE(Form1.Visible());
}

// The new value of the one counts for the other.
TEST_F(Preferences, APadThatBecomesOneForTheLineOnlyIsNotTurnedOffBesides) {
    open();
    driver::advance(4000);
    during("Show", [](Library& gcfg) {
        gcfg.properties["onlineOnly"] = true;
        gcfg.properties["activeIcon"] = false;
        gcfg.raise(pienest::applyCurrent);
    });
    choosePreferences();
    EXPECT_TRUE(onlineOnly);
    EXPECT_TRUE(activeIcon);
    EXPECT_TRUE(Form1.Visible());
}

TEST_F(Preferences, TheTrayIconGoesAndComesBack) {
    open();
    apply("noTrayIcon", true);
    EXPECT_THAT(driver::shownTrayIcons(), IsEmpty());
    apply("noTrayIcon", false);
    EXPECT_EQ(driver::shownTrayIcons().size(), 1u);
}

TEST_F(Preferences, AppliedTwiceThePadIsToggledOnce) {
    open();
    applyTwice("activeIcon", false, [] { Form1.Show(); });
    EXPECT_FALSE(activeIcon);
    EXPECT_TRUE(Form1.Visible());
}

TEST_F(Preferences, AppliedTwiceTheOthersChangeOnce) {
    open();
    isOnline = 0;
    applyTwice("onlineOnly", true, [] { Form1.Show(); });
    EXPECT_TRUE(Form1.Visible());
    applyTwice("noTrayIcon", true, [] { setTrayIcon(false); });
    EXPECT_EQ(driver::shownTrayIcons().size(), 1u);
}

TEST_F(Preferences, WithoutADialogThereIsNothingToApply) {
    open();
    gcfg_ApplyCurrent();
    EXPECT_EQ(lineCheck, 2);
    EXPECT_THAT(done, IsEmpty());
}

TEST_F(Preferences, AnApplyThatFailsKeepsWhatCameBefore) {
    open();
    during("Show", [](Library& gcfg) {
        gcfg.properties["useKeystrokes"] = true;
        gcfg.properties["browserType"] = std::string("Opera");
        gcfg.properties["mainOnTop"] = true;
        gcfg.raise(pienest::applyCurrent);
    });
    choosePreferences();
    EXPECT_TRUE(useKeystrokes);
    EXPECT_EQ(browserType, 0);
    EXPECT_FALSE(mainOnTop);
}

TEST_F(Preferences, ABrowserThatIsNoByteIsAnOverflow) {
    open();
    apply("browserType", n(256));
    EXPECT_EQ(browserType, 0);
    EXPECT_EQ(modalOpen, 0);
}

// What goes wrong ----------------------------------------------------------------------------

TEST_F(Preferences, WithoutTheLibraryItCannotBeMadeAndTheProgramGoesOn) {
    open();
    mainOnTop = true;
    setTopMost(Form3, -1);
    driver::failCall("CoCreateInstanceFrom", 1, win::ERROR_MOD_NOT_FOUND);
    EXPECT_EQ(failureOf([] { showPreferences(); }), failure::cannotCreateObject);
    EXPECT_EQ(modalOpen, 0);
    EXPECT_TRUE(onTop(Form3));
    EXPECT_EQ(Form3.gcfg, nullptr);
    choosePreferences();
    EXPECT_THAT(done, testing::Contains("Show()"));
}

TEST_F(Preferences, ALibraryInAnotherFolderDoesNotCount) {
    open();
    appPath = "C:\\Elsewhere";
    EXPECT_EQ(failureOf([] { showPreferences(); }), failure::cannotCreateObject);
}

TEST_F(Preferences, ADialogThatFailsGivesTheInterfaceBack) {
    open();
    mainOnTop = true;
    setTopMost(Form3, -1);
    failing("Show");
    EXPECT_NE(failureOf([] { showPreferences(); }), 0);
    EXPECT_EQ(modalOpen, 0);
    EXPECT_TRUE(onTop(Form3));
    EXPECT_EQ(Form3.gcfg, nullptr);
    EXPECT_EQ(driver::objects(), 0);
}

TEST_F(Preferences, AFlushUnderItTakesTheMainWindowAndNothingElse) {
    open();
    during("Show", [](Library&) { chooseFromTray("Flush"); });
    choosePreferences();
    EXPECT_FALSE(Form3.loaded());
    EXPECT_TRUE(Form1.loaded());
    EXPECT_EQ(modalOpen, 0);
    EXPECT_EQ(driver::objects(), 0);
}

}  // namespace
}  // namespace magpie
