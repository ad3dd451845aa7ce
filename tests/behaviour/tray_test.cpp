// The icon in the notification area and its menu.
#include <vector>

#include "core/shutdown.h"
#include "core/state.h"
#include "mainwindow/form3.h"
#include "platform/controls/message_loop.h"
#include "platform/memory/driver.h"
#include "platform/memory/driver_system.h"
#include "platform/services/screen.h"
#include "store/records.h"
#include "tests/behaviour/program_fixture.h"
#include "tray/form1.h"
#include "tray/pad.h"
#include "tray/tray_icon.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class Tray : public ProgramFixture {
public:
    // A tray icon, the pad on or off, the line always up.
    static void startWithIcon(bool pad = true) {
        putSampleFile();
        putRecord("ID", pad ? "2 3000 4500 0 1 0 False False" : "2 3000 4500 1 1 0 False False");
        start();
    }

    static void tell(win::UINT mouseMessage) {
        driver::postTrayMessage(mouseMessage);
        driver::pump();
    }

    static void choose(const std::string& caption) {
        driver::choose(caption);
        tell(win::WM_RBUTTONUP);
    }

    static void clickCloseBox(Form& form) {
        win::PostMessageA(form.hWnd(), win::WM_SYSCOMMAND, win::SC_CLOSE, 0);
        driver::pump();
    }

    // The menu as a right release shows it; nothing is chosen.
    static driver::Popup menu() {
        driver::Popup shown;
        driver::onPopup([&shown](const driver::Popup& popup) {
            shown = popup;
            return win::UINT{0};
        });
        tell(win::WM_RBUTTONUP);
        return shown;
    }

    static bool flushIsEnabled() { return menu().menu.at("Flush").enabled; }
};

// The icon -----------------------------------------------------------------------------

TEST_F(Tray, TheIconCarriesThePadsWindowItsOwnIconAndItsTip) {
    startWithIcon();
    ASSERT_THAT(driver::shownTrayIcons(), SizeIs(1));
    const auto icon = driver::shownTrayIcons()[0];
    EXPECT_EQ(icon.window, Form1.hWnd());
    EXPECT_EQ(icon.id, 1u);
    EXPECT_EQ(icon.flags, 7u);
    EXPECT_EQ(icon.callbackMessage, 512u);
    EXPECT_EQ(icon.tip, "Magpie Tray Control");
    EXPECT_NE(icon.icon, nullptr);
    EXPECT_EQ(icon.icon, driver::iconOf(Form1.hWnd(), win::ICON_SMALL));
}

TEST_F(Tray, TheIconGoesAndComesWithItsSetting) {
    startWithIcon();
    setTrayIcon(true);
    EXPECT_THAT(driver::shownTrayIcons(), IsEmpty());
    setTrayIcon(true);
    EXPECT_THAT(driver::shownTrayIcons(), IsEmpty());
    setTrayIcon(false);
    setTrayIcon(false);
    EXPECT_THAT(driver::shownTrayIcons(), SizeIs(1));
}

TEST_F(Tray, AnIconThatWasNeverThereIsRemovedWithoutHarm) {
    start();
    EXPECT_THAT(driver::shownTrayIcons(), IsEmpty());
    setTrayIcon(true);
    EXPECT_THAT(driver::shownTrayIcons(), IsEmpty());
}

TEST_F(Tray, TheEndOfTheProgramTakesTheIconAway) {
    startWithIcon();
    Form1.unload();
    EXPECT_THAT(driver::shownTrayIcons(), IsEmpty());
}

TEST_F(Tray, WithoutIconAndPadNothingIsVisibleOnceTheMainWindowIsHidden) {
    putRecord("ID", "2 3000 4500 1 1 0 True False");
    start();
    Form3.Show();
    clickCloseBox(Form3);
    EXPECT_FALSE(Form1.Visible());
    EXPECT_FALSE(Form3.Visible());
    EXPECT_THAT(driver::shownTrayIcons(), IsEmpty());
}

// A left release -----------------------------------------------------------------------

TEST_F(Tray, ALeftReleaseLoadsAndShowsTheMainWindow) {
    startWithIcon();
    EXPECT_FALSE(Form3.loaded());
    tell(win::WM_LBUTTONUP);
    ASSERT_TRUE(Form3.loaded());
    EXPECT_TRUE(Form3.Visible());
    EXPECT_EQ(Form3.WindowState(), stateNormal);
    EXPECT_EQ(uBlock.URLDatas().Count(), 3);
}

TEST_F(Tray, ALeftReleaseOverAnOpenMainWindowRaisesItAndNothingElse) {
    startWithIcon();
    tell(win::WM_LBUTTONUP);
    urlsDirty = 5;
    driver::deactivateApplication();
    Form3.Show();
    tell(win::WM_LBUTTONUP);
    EXPECT_TRUE(Form3.Visible());
    EXPECT_EQ(win::GetForegroundWindow(), Form3.hWnd());
    EXPECT_EQ(urlsDirty, 5);
}

TEST_F(Tray, ALeftReleaseBringsAHiddenMainWindowBackAsItWas) {
    startWithIcon();
    tell(win::WM_LBUTTONUP);
    urlsDirty = 5;
    clickCloseBox(Form3);
    EXPECT_EQ(Form3.WindowState(), stateMinimised);
    tell(win::WM_LBUTTONUP);
    EXPECT_TRUE(Form3.Visible());
    EXPECT_EQ(Form3.WindowState(), stateNormal);
    EXPECT_EQ(urlsDirty, 5);
}

TEST_F(Tray, ALeftReleaseDoesNotShowAMainWindowThatWasEjected) {
    startWithIcon();
    tell(win::WM_LBUTTONUP);
    mnuEject_Click();
    clickCloseBox(Form3);
    tell(win::WM_LBUTTONUP);
    EXPECT_FALSE(Form3.Visible());
    EXPECT_EQ(Form3.WindowState(), stateNormal);
}

TEST_F(Tray, ALeftReleaseUnderTheLoadDoesNotShowTheMainWindowYet) {
    startWithIcon();
    bool shownEarly = true;
    driver::atPump(1, [&shownEarly] {
        trayNotification(1, 0, win::WM_LBUTTONUP * Screen.TwipsPerPixelX(), 0);
        shownEarly = Form3.Visible();
    });
    tell(win::WM_LBUTTONUP);
    EXPECT_FALSE(shownEarly);
    EXPECT_TRUE(Form3.Visible());
}

TEST_F(Tray, TheNotificationIsUnderstoodAtEveryDensity) {
    for (int dpi : {96, 120, 144, 110, 192}) {
        SCOPED_TRACE(dpi);
        driver::setDpi(dpi);
        Screen = {};
        startWithIcon();
        tell(win::WM_LBUTTONUP);
        EXPECT_TRUE(Form3.loaded() && Form3.Visible());
        menu();
        Form3.discard();
        Form1.discard();
    }
}

TEST_F(Tray, TheNotificationIsUnderstoodInPixelsAsWell) {
    startWithIcon();
    Form1.ScaleMode = scalePixels;
    tell(win::WM_LBUTTONUP);
    EXPECT_TRUE(Form3.loaded() && Form3.Visible());
    EXPECT_THAT(menu().menu.lines, SizeIs(12));
}

TEST_F(Tray, OtherNotificationsAreIgnored) {
    startWithIcon();
    for (win::UINT message = win::WM_MOUSEMOVE; message <= win::WM_MBUTTONDBLCLK; ++message) {
        if (message == win::WM_LBUTTONUP || message == win::WM_RBUTTONUP) continue;
        SCOPED_TRACE(message);
        tell(message);
        EXPECT_FALSE(Form3.loaded());
    }
}

TEST_F(Tray, TheRealMouseOverTheFormIsNoNotification) {
    startWithIcon();
    for (int x : {0, 5, 31}) trayNotification(0, 0, x * Screen.TwipsPerPixelX(), 0);
    EXPECT_FALSE(Form3.loaded());
}

TEST_F(Tray, AMainWindowThatCanNotBeMadeEndsTheNotificationAndNothingElse) {
    startWithIcon();
    driver::failCall("CreateWindowExA", 1, win::ERROR_ACCESS_DENIED);
    tell(win::WM_LBUTTONUP);
    EXPECT_EQ(driver::faultsLeft(), 0);
    EXPECT_TRUE(Form1.loaded());
    EXPECT_THAT(driver::messageBoxes(), IsEmpty());
    tell(win::WM_LBUTTONUP);
    EXPECT_TRUE(Form3.Visible());
}

// The menu -----------------------------------------------------------------------------

TEST_F(Tray, ARightReleaseShowsTheMenu) {
    startWithIcon();
    const driver::Popup shown = menu();
    EXPECT_EQ(shown.owner, Form1.hWnd());
    std::vector<std::string> captions;
    for (const auto& line : shown.menu.lines) {
        captions.push_back(line.separator ? "-" : line.caption);
        EXPECT_EQ(line.enabled, line.caption != "Flush") << line.caption;
        EXPECT_FALSE(line.checked) << line.caption;
        EXPECT_THAT(line.lines, IsEmpty()) << line.caption;
    }
    EXPECT_THAT(captions,
                ElementsAre("Magpie", "Restore", "-", "Magpie Help", "Contacting Fennelworks", "-",
                            "Magpie Web Site", "-", "Flush", "-", "About", "Unload"));
    EXPECT_FALSE(Form3.loaded());
}

TEST_F(Tray, TheMenuComesUpOverAForegroundOfThePad) {
    startWithIcon();
    tell(win::WM_LBUTTONUP);
    win::HWND foreground = nullptr;
    driver::onPopup([&foreground](const driver::Popup&) {
        foreground = win::GetForegroundWindow();
        return win::UINT{0};
    });
    tell(win::WM_RBUTTONUP);
    EXPECT_EQ(foreground, Form1.hWnd());
}

TEST_F(Tray, TheMenuComesUpWithAHiddenPadAsWell) {
    startWithIcon(false);
    EXPECT_FALSE(Form1.Visible());
    EXPECT_THAT(menu().menu.lines, SizeIs(12));
    choose("Magpie");
    EXPECT_TRUE(Form3.Visible());
}

TEST_F(Tray, AMenuLeftWithoutAChoiceChangesNothing) {
    startWithIcon();
    menu();
    EXPECT_FALSE(Form3.loaded());
    EXPECT_TRUE(Form1.loaded());
    EXPECT_EQ(driver::live().menus, 0);
}

TEST_F(Tray, MagpieAndRestoreOpenTheMainWindowFromNothing) {
    startWithIcon();
    choose("Magpie");
    EXPECT_TRUE(Form3.Visible());
    EXPECT_EQ(Form3.WindowState(), stateNormal);
    choose("Flush");
    choose("Restore");
    EXPECT_TRUE(Form3.Visible());
    EXPECT_EQ(Form3.WindowState(), stateNormal);
}

TEST_F(Tray, OnlyRestoreBringsAMinimisedMainWindowBackToItsSize) {
    startWithIcon();
    choose("Magpie");
    clickCloseBox(Form3);
    choose("Magpie");
    EXPECT_TRUE(Form3.Visible());
    EXPECT_EQ(Form3.WindowState(), stateMinimised);
    choose("Restore");
    EXPECT_TRUE(Form3.Visible());
    EXPECT_EQ(Form3.WindowState(), stateNormal);
}

TEST_F(Tray, RestoreBringsAMaximisedMainWindowToItsNormalSizeAndMagpieDoesNot) {
    startWithIcon();
    choose("Magpie");
    Form3.WindowState(stateMaximised);
    choose("Magpie");
    EXPECT_EQ(Form3.WindowState(), stateMaximised);
    choose("Restore");
    EXPECT_EQ(Form3.WindowState(), stateNormal);
}

TEST_F(Tray, FlushIsGreyUntilTheMainWindowHasLoadedAndAfterItsUnload) {
    startWithIcon();
    EXPECT_FALSE(flushIsEnabled());
    bool greyUnderTheLoad = false;
    driver::atPump(1, [&greyUnderTheLoad] { greyUnderTheLoad = !Form1.mFlush.Enabled; });
    tell(win::WM_LBUTTONUP);
    EXPECT_TRUE(greyUnderTheLoad);
    EXPECT_TRUE(flushIsEnabled());
    clickCloseBox(Form3);
    EXPECT_TRUE(flushIsEnabled());
    choose("Flush");
    EXPECT_FALSE(flushIsEnabled());
    tell(win::WM_LBUTTONUP);
    EXPECT_TRUE(flushIsEnabled());
}

TEST_F(Tray, FlushUnloadsTheMainWindowSavesAndEmptiesTheStore) {
    startWithIcon();
    tell(win::WM_LBUTTONUP);
    uBlock.URLDatas().Item(1).Name("Changed");
    urlsDirty = 1;
    choose("Flush");
    EXPECT_FALSE(Form3.loaded());
    EXPECT_FALSE(keepResident);
    EXPECT_EQ(uBlock.URLDatas().Count(), 0);
    EXPECT_TRUE(Form1.loaded());
    EXPECT_NE(stackFile()->find("Changed"), std::string::npos);
    EXPECT_NE(record("CF"), std::nullopt);
    EXPECT_EQ(record("ID"), "2 3000 4500 0 1 0 False False");
}

TEST_F(Tray, HelpContactWebSiteAndAboutEndSilentlyWithoutTheLibrary) {
    startWithIcon();
    const driver::Counts before = driver::live();
    for (const char* caption :
         {"Magpie Help", "Contacting Fennelworks", "Magpie Web Site", "About"}) {
        SCOPED_TRACE(caption);
        choose(caption);
        EXPECT_FALSE(Form3.loaded());
        EXPECT_EQ(driver::live(), before);
        EXPECT_EQ(modalOpen, 0);
    }
    EXPECT_THAT(driver::messageBoxes(), IsEmpty());
}

TEST_F(Tray, UnloadEndsTheProgram) {
    startWithIcon();
    tell(win::WM_LBUTTONUP);
    choose("Unload");
    EXPECT_THAT(loadedForms(), IsEmpty());
    EXPECT_THAT(driver::shownTrayIcons(), IsEmpty());
    EXPECT_EQ(runUntilNoForm(), 0);
    EXPECT_NE(record("CF"), std::nullopt);
}

TEST_F(Tray, AMinimisedControllerHides) {
    startWithIcon();
    Form1.WindowState(stateMinimised);
    EXPECT_FALSE(Form1.Visible());
}

}  // namespace
}  // namespace magpie
