// The Preferences dialog, a library's: what it is given, in which order, and what its Apply does.
#include <gmock/gmock.h>
#include <map>
#include <ostream>

#include "config/companion.h"
#include "config/pienest.h"
#include "core/misc.h"
#include "mainwindow/full_window.h"
#include "platform/runtime/word.h"
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

    // The settings as the program has them, by the library's names.
    static std::map<std::string, win::VARIANT> settings() {
        return {{"lineCheck", n(lineCheck.value())},
                {"onlineAction", n(onlineAction.value())},
                {"noTrayIcon", noTrayIcon},
                {"onlineOnly", onlineOnly},
                {"activeIcon", activeIcon},
                {"shortcutMode", n(shortcutMode.value())},
                {"fullWindow", Form3.mnuFullwindow.Checked},
                {"browserType", n(browserType.value())},
                {"useKeystrokes", useKeystrokes},
                {"autoLoadURLs", autoLoadURLs},
                {"autoSaveURLs", autoSaveURLs},
                {"autoLoadSettings", autoLoadSettings},
                {"autoSaveSettings", autoSaveSettings},
                {"Placement", n(Form3.tbStrip.Placement())},
                {"iconOnTop", iconOnTop},
                {"mainOnTop", mainOnTop}};
    }
};

// A setting, a value that it does not have at first, and how the program comes to it.
struct OtherValue {
    const char* setting;
    win::VARIANT value;
    void (*take)();
};

void PrintTo(const OtherValue& other, std::ostream* out) {
    *out << other.setting;
}

const OtherValue otherValues[] = {
    {"lineCheck", std::int64_t{3}, [] { lineCheck = 3; }},
    {"onlineAction", std::int64_t{1}, [] { onlineAction = 1; }},
    {"noTrayIcon", true, [] { noTrayIcon = true; }},
    {"onlineOnly", true, [] { onlineOnly = true; }},
    {"activeIcon", false, [] { activeIcon = false; }},
    {"shortcutMode", std::int64_t{2}, [] { shortcutMode = 2; }},
    {"fullWindow", true, toggleFullWindow},
    {"browserType", std::int64_t{1}, [] { browserType = 1; }},
    {"useKeystrokes", true, [] { useKeystrokes = true; }},
    {"autoLoadURLs", false, [] { autoLoadURLs = false; }},
    {"autoSaveURLs", false, [] { autoSaveURLs = false; }},
    {"autoLoadSettings", false, [] { autoLoadSettings = false; }},
    {"autoSaveSettings", false, [] { autoSaveSettings = false; }},
    {"Placement", std::int64_t{tabsBottom}, [] { Form3.tbStrip.Placement(tabsBottom); }},
    {"iconOnTop", false, [] { iconOnTop = false; }},
    {"mainOnTop", true, [] { mainOnTop = true; }},
};

class EverySetting : public Preferences, public testing::WithParamInterface<OtherValue> {};

INSTANTIATE_TEST_SUITE_P(Preferences, EverySetting, testing::ValuesIn(otherValues),
                         [](const auto& each) { return std::string(each.param.setting); });

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

TEST_F(Preferences, ItGetsTheProgramsFolder) {
    open();
    win::VARIANT folder;
    during("Show", [&](Library& gcfg) { folder = gcfg.properties["appPath"]; });
    choosePreferences();
    EXPECT_EQ(folder, win::VARIANT(std::string("C:\\Magpie")));
}

TEST_P(EverySetting, IsHandedOverAsItIsAndNoOtherInItsPlace) {
    open();
    auto wanted = settings();
    ASSERT_NE(wanted[GetParam().setting], GetParam().value);
    wanted[GetParam().setting] = GetParam().value;
    GetParam().take();
    std::map<std::string, win::VARIANT> given;
    during("Show", [&](Library& gcfg) {
        for (const auto& [name, value] : wanted) given[name] = gcfg.properties[name];
    });
    showPreferences();
    EXPECT_EQ(given, wanted);
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
        EXPECT_EQ(tells("Major"), win::VARIANT(n(11)));
        EXPECT_EQ(tells("Minor"), win::VARIANT(n(12)));
        EXPECT_EQ(tells("Revision"), win::VARIANT(n(13)));
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

TEST_P(EverySetting, IsTakenOverAtApplyAndLeavesTheOthers) {
    open();
    const std::string setting = GetParam().setting;
    auto wanted = settings();
    // The full window is the main window's own affair.
    if (setting != "fullWindow") wanted[setting] = GetParam().value;
    apply(setting, GetParam().value);
    EXPECT_EQ(settings(), wanted);
}

TEST_F(Preferences, ApplyAsksForTheSettingsInTheirOrder) {
    open();
    during("Show", [](Library& gcfg) { gcfg.raise(pienest::applyCurrent); });
    choosePreferences();
    EXPECT_THAT(read, ElementsAre("Placement", "autoLoadSettings", "autoSaveSettings",
                                  "autoLoadURLs", "autoSaveURLs", "useKeystrokes", "browserType",
                                  "iconOnTop", "onlineOnly", "activeIcon", "lineCheck",
                                  "onlineAction", "mainOnTop", "noTrayIcon", "shortcutMode"));
}

TEST_F(Preferences, ApplyTakesAllSettingsOverAtOnce) {
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

// In two steps, as the library raises them: each way, whatever the line.
TEST_F(Preferences, APadForTheLineOnlyGoesOffAndOnInTwoSteps) {
    open();
    onlineOnly = true;
    for (const bool online : {true, false}) {
        SCOPED_TRACE(online);
        isOnline = online ? wordTrue : wordFalse;
        for (const bool wanted : {false, true}) {
            during("Show", [wanted](Library& gcfg) {
                gcfg.properties["activeIcon"] = wanted;
                for (const bool forTheLine : {false, true}) {
                    gcfg.properties["onlineOnly"] = forTheLine;
                    gcfg.raise(pienest::applyCurrent);
                }
            });
            choosePreferences();
            EXPECT_TRUE(onlineOnly);
            EXPECT_EQ(activeIcon, wanted);
            EXPECT_EQ(Form1.Visible(), wanted && online);
        }
    }
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

TEST_F(Preferences, TheProgramsEndUnderItTakesEverythingAlong) {
    open();
    during("Show", [](Library& gcfg) {
        chooseFromTray("Unload");
        gcfg.properties["lineCheck"] = n(0);
        gcfg.raise(pienest::applyCurrent);
    });
    choosePreferences();
    EXPECT_EQ(lineCheck, 2);
    EXPECT_EQ(driver::objects(), 0);
    expectGone();
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
