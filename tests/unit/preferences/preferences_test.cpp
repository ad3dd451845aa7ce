// The dialog "Preferences", used by mouse and keys.
#include "companion/preferences/preferences.h"

#include <string>
#include <vector>

#include "platform/api/comctl32.h"
#include "platform/api/user32.h"
#include "platform/controls/control_failure.h"
#include "tests/unit/controls/controls_test.h"

namespace magpie::companion {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct OtherWindow : Form {
    explicit OtherWindow(const char* name)
        : Form({.className = name, .caption = name, .clientWidth = 9000, .clientHeight = 6000}) {}
};
OtherWindow ground("Ground");
OtherWindow owner("Owner");
OtherWindow pad("Pad");

class PreferencesTest : public ControlsTest {
public:
    PreferenceSettings settings;
    std::vector<PreferenceSettings> applied;
    std::vector<std::string> asked;
    std::vector<PreferencesPage> helped;
    PreferencesHost host;

    PreferencesTest() {
        wirePreferences();
        ground.Show();
        owner.Show();
        host.findCurrentVersion = [this](const std::string& exeName) {
            asked.push_back(exeName);
            return exeName == "Opera.EXE" ? "C:\\Opera\\opera.exe" : "";
        };
        host.apply = [this](const PreferenceSettings& wanted) { applied.push_back(wanted); };
        host.help = [this](PreferencesPage page) { helped.push_back(page); };
    }

    // Opens the dialog, acts in it, and closes it if it is still up.
    template <class Action>
    PreferenceSettings edit(Action action) {
        driver::whenIdle([action] {
            action();
            if (Preferences.loaded()) driver::key(win::VK_ESCAPE);
            wakeLoop();
        });
        const PreferenceSettings after = editPreferences(settings, host, owner.hWnd());
        EXPECT_FALSE(Preferences.loaded());
        return after;
    }

    // The dialog's loop looks whether it is still wanted at the next message.
    static void wakeLoop() { win::PostMessageA(ground.hWnd(), win::WM_NULL, 0, 0); }

    static void click(Control& control) {
        driver::click(control.hWnd(), driver::middleOf(control.hWnd()));
    }
    static void turnTo(PreferencesPage page) { Preferences.strip.SelectTab(page + 1); }
};

void changeEverything() {
    PreferencesForm& form = Preferences;
    for (CheckBox* box : {&form.useKeystrokes, &form.onlineAction, &form.trayIcon, &form.activeIcon,
                          &form.onlineOnly, &form.iconOnTop, &form.mainOnTop, &form.autoLoadURLs,
                          &form.autoSaveURLs, &form.autoLoadSettings, &form.autoSaveSettings}) {
        PreferencesTest::turnTo(static_cast<PreferencesPage>(box->containingControl()->Index));
        PreferencesTest::click(*box);
    }
    form.browserType.ListIndex(2);
    form.lineCheck.ListIndex(1);
    form.placement.ListIndex(3);
    form.shortcutMode.ListIndex(2);
}

PreferenceSettings everythingChanged() {
    PreferenceSettings all;
    all.lineCheck = 1;
    all.onlineAction = 1;
    all.noTrayIcon = true;
    all.onlineOnly = all.activeIcon = true;
    all.shortcutMode = 2;
    all.browserType = 2;
    all.useKeystrokes = true;
    all.autoLoadURLs = all.autoSaveURLs = all.autoLoadSettings = all.autoSaveSettings = true;
    all.Placement = 3;
    all.iconOnTop = all.mainOnTop = true;
    return all;
}

// What it shows ------------------------------------------------------------------------

TEST_F(PreferencesTest, ItShowsTheSettings) {
    settings = everythingChanged();
    settings.fullWindow = true;
    edit([] {
        PreferencesForm& form = Preferences;
        EXPECT_EQ(form.browserType.List(form.browserType.ListIndex()), "Opera");
        EXPECT_EQ(form.lineCheck.ListIndex(), 1);
        EXPECT_EQ(form.placement.ListIndex(), 3);
        EXPECT_EQ(form.shortcutMode.ListIndex(), 2);
        EXPECT_EQ(form.trayIcon.Value(), 0);
        for (CheckBox* box :
             {&form.useKeystrokes, &form.onlineAction, &form.activeIcon, &form.onlineOnly,
              &form.iconOnTop, &form.mainOnTop, &form.fullWindow, &form.autoLoadURLs,
              &form.autoSaveURLs, &form.autoLoadSettings, &form.autoSaveSettings})
            EXPECT_EQ(box->Value(), 1) << box->Caption();
        EXPECT_FALSE(form.fullWindow.Enabled());
        EXPECT_FALSE(form.applyButton.Enabled());
    });
    EXPECT_THAT(applied, IsEmpty());
}

TEST_F(PreferencesTest, ItAsksTheHostForTheBrowsersOnTheComputer) {
    edit([] {
        EXPECT_EQ(Preferences.browserPaths[0].Caption(), "not found");
        EXPECT_EQ(Preferences.browserPaths[1].Caption(), "not found");
        EXPECT_EQ(Preferences.browserPaths[2].Caption(), "C:\\Opera\\opera.exe");
        EXPECT_EQ(Preferences.browserPaths[2].ToolTipText(), "C:\\Opera\\opera.exe");
    });
    EXPECT_THAT(asked, ElementsAre("IEXPLORE.EXE", "Netscape.exe", "Opera.EXE"));
}

TEST_F(PreferencesTest, ItLiesOverItsOwnerAndHoldsIt) {
    edit([] {
        EXPECT_EQ(win::GetWindow(Preferences.hWnd(), win::GW_OWNER), owner.hWnd());
        EXPECT_FALSE(win::IsWindowEnabled(owner.hWnd()));
        EXPECT_NEAR(Preferences.Left() + Preferences.Width() / 2, owner.Left() + owner.Width() / 2,
                    15);
    });
    EXPECT_TRUE(win::IsWindowEnabled(owner.hWnd()));
    EXPECT_EQ(win::GetActiveWindow(), owner.hWnd());
}

TEST_F(PreferencesTest, ItStaysOnTheScreen) {
    owner.Left(-6000);
    owner.Top(-6000);
    edit([] {
        EXPECT_EQ(Preferences.Left(), 0);
        EXPECT_EQ(Preferences.Top(), 0);
    });
}

TEST_F(PreferencesTest, ASecondOneIsNotOpened) {
    edit([this] { editPreferences(settings, host, owner.hWnd()); });
}

TEST_F(PreferencesTest, ItGoesWithItsOwner) {
    driver::whenIdle([] {
        owner.unload();
        wakeLoop();
    });
    editPreferences(settings, host, owner.hWnd());
    EXPECT_FALSE(Preferences.loaded());
    owner.Show();
    edit([] { EXPECT_TRUE(Preferences.Visible()); });
}

// What it hands over -------------------------------------------------------------------

TEST_F(PreferencesTest, OkHandsOverWhatWasChanged) {
    settings.activeIcon = true;
    PreferenceSettings wanted = everythingChanged();
    wanted.activeIcon = true;
    EXPECT_EQ(edit([] {
                  changeEverything();
                  turnTo(linePage);
                  click(Preferences.activeIcon);
                  click(Preferences.okButton);
              }),
              wanted);
    EXPECT_THAT(applied, ElementsAre(wanted));
}

// A host takes no news of a pad that shows with the line only.
TEST_F(PreferencesTest, APadForTheLineOnlyIsFirstSwitchedAsOneThatAlwaysShows) {
    for (const bool before : {false, true}) {
        SCOPED_TRACE(before);
        applied.clear();
        settings = {};
        settings.onlineOnly = before;
        const PreferenceSettings after = edit([before] {
            turnTo(linePage);
            click(Preferences.activeIcon);
            if (!before) click(Preferences.onlineOnly);
            click(Preferences.applyButton);
            EXPECT_FALSE(Preferences.applyButton.Enabled());
            click(Preferences.okButton);
        });
        PreferenceSettings wanted;
        wanted.activeIcon = true;
        const PreferenceSettings first = wanted;
        wanted.onlineOnly = true;
        EXPECT_THAT(applied, ElementsAre(first, wanted));
        EXPECT_EQ(after, wanted);
    }
}

TEST_F(PreferencesTest, APadThatIsNoMoreForTheLineOnlyIsSwitchedInOneStep) {
    settings.onlineOnly = true;
    edit([] {
        turnTo(linePage);
        click(Preferences.activeIcon);
        click(Preferences.onlineOnly);
        click(Preferences.okButton);
    });
    PreferenceSettings wanted;
    wanted.activeIcon = true;
    EXPECT_THAT(applied, ElementsAre(wanted));
}

TEST_F(PreferencesTest, OkWithoutAChangeHandsOverNothing) {
    edit([] { click(Preferences.okButton); });
    EXPECT_THAT(applied, IsEmpty());
}

TEST_F(PreferencesTest, CancelHandsOverNothing) {
    EXPECT_EQ(edit([] {
                  changeEverything();
                  click(Preferences.cancelButton);
              }),
              PreferenceSettings{});
    EXPECT_THAT(applied, IsEmpty());
}

TEST_F(PreferencesTest, TheCloseBoxIsCancel) {
    edit([] {
        changeEverything();
        win::PostMessageA(Preferences.hWnd(), win::WM_CLOSE, 0, 0);
        driver::pump();
    });
    EXPECT_THAT(applied, IsEmpty());
}

TEST_F(PreferencesTest, ApplyHandsOverAtOnceAndAgainOnlyAfterAnotherChange) {
    edit([] {
        turnTo(linePage);
        click(Preferences.activeIcon);
        EXPECT_TRUE(Preferences.applyButton.Enabled());
        click(Preferences.applyButton);
        EXPECT_FALSE(Preferences.applyButton.Enabled());
        click(Preferences.iconOnTop);
        click(Preferences.okButton);
    });
    ASSERT_EQ(applied.size(), 2U);
    EXPECT_TRUE(applied[0].activeIcon);
    EXPECT_FALSE(applied[0].iconOnTop);
    EXPECT_TRUE(applied[1].iconOnTop);
}

TEST_F(PreferencesTest, AfterApplyCancelTakesNothingBack) {
    const PreferenceSettings after = edit([] {
        turnTo(linePage);
        click(Preferences.activeIcon);
        click(Preferences.applyButton);
        click(Preferences.iconOnTop);
        click(Preferences.cancelButton);
    });
    EXPECT_EQ(applied.size(), 1U);
    EXPECT_TRUE(after.activeIcon);
    EXPECT_FALSE(after.iconOnTop);
}

TEST_F(PreferencesTest, AChangeThatIsTakenBackIsNone) {
    edit([] {
        turnTo(linePage);
        click(Preferences.activeIcon);
        click(Preferences.activeIcon);
        EXPECT_FALSE(Preferences.applyButton.Enabled());
        click(Preferences.okButton);
    });
    EXPECT_THAT(applied, IsEmpty());
}

TEST_F(PreferencesTest, NumbersWithoutALineOfTheirOwnAreKept) {
    settings.lineCheck = 3;
    settings.onlineAction = 7;
    settings.browserType = 9;
    settings.Placement = 4;
    settings.shortcutMode = 5;
    PreferenceSettings wanted = settings;
    wanted.mainOnTop = true;
    edit([] {
        EXPECT_EQ(Preferences.lineCheck.List(Preferences.lineCheck.ListIndex()), "always");
        EXPECT_EQ(Preferences.browserType.ListIndex(), -1);
        turnTo(windowPage);
        click(Preferences.mainOnTop);
        click(Preferences.okButton);
    });
    EXPECT_THAT(applied, ElementsAre(wanted));
}

// They count for pages that are taken from Internet Explorer whatever browser is set.
TEST_F(PreferencesTest, KeystrokesCanBeSetWithEveryBrowser) {
    settings.useKeystrokes = true;
    edit([] {
        Preferences.browserType.ListIndex(1);
        click(Preferences.useKeystrokes);
        click(Preferences.okButton);
    });
    ASSERT_EQ(applied.size(), 1U);
    EXPECT_FALSE(applied[0].useKeystrokes);
    EXPECT_EQ(applied[0].browserType, 1);
}

TEST_F(PreferencesTest, AfterApplyItIsInFrontOfWhatTheHostHasShown) {
    host.apply = [](const PreferenceSettings&) { pad.Show(); };
    edit([] {
        turnTo(linePage);
        click(Preferences.activeIcon);
        click(Preferences.applyButton);
        EXPECT_EQ(win::GetActiveWindow(), Preferences.hWnd());
    });
}

TEST_F(PreferencesTest, AHostThatTakesItsOwnerAwayBetweenTwoStepsTakesItAlong) {
    host.apply = [this](const PreferenceSettings& wanted) {
        applied.push_back(wanted);
        owner.unload();
    };
    settings.onlineOnly = true;
    edit([] {
        turnTo(linePage);
        click(Preferences.activeIcon);
        click(Preferences.applyButton);
    });
    EXPECT_EQ(applied.size(), 2U);
}

TEST_F(PreferencesTest, AHostThatTakesItsOwnerAwayAtApplyTakesItAlong) {
    host.apply = [](const PreferenceSettings&) { owner.unload(); };
    edit([] {
        turnTo(linePage);
        click(Preferences.activeIcon);
        click(Preferences.applyButton);
    });
}

// Without windows ------------------------------------------------------------------------

TEST_F(PreferencesTest, WithoutAWindowForItOrForAControlThereIsNoneAndTheNextOneComesUpWhole) {
    for (const int call : {1, 2, 30}) {
        SCOPED_TRACE(call);
        driver::failCall("CreateWindowExA", call, 8);
        EXPECT_EQ(failureOf([this] { editPreferences(settings, host, owner.hWnd()); }),
                  failure::outOfMemory);
        EXPECT_FALSE(Preferences.loaded());
        EXPECT_TRUE(win::IsWindowEnabled(owner.hWnd()));
        edit([] { EXPECT_TRUE(win::IsWindow(Preferences.helpButton.hWnd())); });
    }
    EXPECT_THAT(applied, IsEmpty());
}

// Keys ---------------------------------------------------------------------------------

TEST_F(PreferencesTest, EnterIsOkAndEscapeIsCancel) {
    edit([] {
        turnTo(linePage);
        click(Preferences.activeIcon);
        driver::key(win::VK_RETURN);
        EXPECT_FALSE(Preferences.loaded());
    });
    EXPECT_EQ(applied.size(), 1U);
    edit([] {
        turnTo(linePage);
        click(Preferences.iconOnTop);
        driver::key(win::VK_ESCAPE);
        EXPECT_FALSE(Preferences.loaded());
    });
    EXPECT_EQ(applied.size(), 1U);
}

TEST_F(PreferencesTest, CtrlTabTurnsThePages) {
    edit([] {
        for (int page : {1, 2, 3, 0}) {
            driver::key(win::VK_TAB, {.ctrl = true, .shift = false, .alt = false});
            for (Frame& each : Preferences.page) EXPECT_EQ(each.Visible(), each.Index == page);
        }
    });
}

TEST_F(PreferencesTest, TabGoesDownThePageAndOverTheButtons) {
    edit([] {
        Preferences.browserType.SetFocus();
        for (Control* next : std::initializer_list<Control*>{
                 &Preferences.useKeystrokes, &Preferences.okButton, &Preferences.cancelButton,
                 &Preferences.helpButton, &Preferences.strip, &Preferences.browserType}) {
            driver::key(win::VK_TAB);
            EXPECT_TRUE(next->holdsFocus());
        }
    });
}

TEST_F(PreferencesTest, AccessKeysReachWhatIsOnShowAlone) {
    edit([] {
        driver::key('P', {.ctrl = false, .shift = false, .alt = true});
        EXPECT_EQ(Preferences.activeIcon.Value(), 0);
        turnTo(linePage);
        driver::key('P', {.ctrl = false, .shift = false, .alt = true});
        EXPECT_EQ(Preferences.activeIcon.Value(), 1);
        driver::key('O', {.ctrl = false, .shift = false, .alt = true});
        EXPECT_TRUE(Preferences.lineCheck.holdsFocus());
        driver::key('A', {.ctrl = false, .shift = false, .alt = true});
        EXPECT_FALSE(Preferences.applyButton.Enabled());
    });
    EXPECT_EQ(applied.size(), 1U);
}

TEST_F(PreferencesTest, EveryAccessKeyIsTheOnlyOne) {
    edit([] {
        std::string keys;
        for (Control* control : std::initializer_list<Control*>{
                 &Preferences.browserLabel, &Preferences.useKeystrokes, &Preferences.lineLabel,
                 &Preferences.onlineAction, &Preferences.trayIcon, &Preferences.activeIcon,
                 &Preferences.onlineOnly, &Preferences.iconOnTop, &Preferences.placementLabel,
                 &Preferences.mainOnTop, &Preferences.fullWindow, &Preferences.autoLoadURLs,
                 &Preferences.autoSaveURLs, &Preferences.autoLoadSettings,
                 &Preferences.autoSaveSettings, &Preferences.shortcutLabel,
                 &Preferences.applyButton, &Preferences.helpButton}) {
            const std::string caption = control->Caption();
            const std::size_t mark = caption.find('&');
            ASSERT_NE(mark, std::string::npos) << caption;
            const char key = static_cast<char>(caption.at(mark + 1) | 0x20);
            EXPECT_EQ(keys.find(key), std::string::npos) << caption;
            keys += key;
        }
    });
}

TEST_F(PreferencesTest, HelpTellsThePageOnShow) {
    edit([] {
        click(Preferences.helpButton);
        turnTo(filesPage);
        click(Preferences.helpButton);
    });
    EXPECT_THAT(helped, ElementsAre(browserPage, filesPage));
}

TEST_F(PreferencesTest, EveryControlHasATip) {
    edit([] {
        for (Control* control : std::initializer_list<Control*>{
                 &Preferences.browserType, &Preferences.useKeystrokes, &Preferences.lineCheck,
                 &Preferences.onlineAction, &Preferences.trayIcon, &Preferences.activeIcon,
                 &Preferences.onlineOnly, &Preferences.iconOnTop, &Preferences.placement,
                 &Preferences.mainOnTop, &Preferences.autoLoadURLs, &Preferences.autoSaveURLs,
                 &Preferences.autoLoadSettings, &Preferences.autoSaveSettings,
                 &Preferences.shortcutMode})
            EXPECT_NE(control->ToolTipText(), "") << control->Caption();
    });
}

// The mouse is never over a disabled control, but over what lies below it.
TEST_F(PreferencesTest, TheTipOfTheDisabledOneBelongsToItsPage) {
    edit([] {
        char text[256] = "";
        win::TTTOOLINFOA tool{};
        tool.cbSize = sizeof tool;
        tool.hwnd = Preferences.page[windowPage].hWnd();
        tool.lpszText = text;
        win::SendMessageA(driver::findWindow(win::TOOLTIPS_CLASSA, ""), win::TTM_GETTEXTA, 0,
                          reinterpret_cast<win::LPARAM>(&tool));
        EXPECT_EQ(std::string(text),
                  "Shown here only: the Escape key in the main window changes it");
    });
}

}  // namespace
}  // namespace magpie::companion
