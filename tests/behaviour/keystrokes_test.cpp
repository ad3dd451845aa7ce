// Internet Explorer driven by keystrokes: a page captured, an address pasted.
#include "browser/keystrokes.h"

#include "browser/ie_keystrokes.h"
#include "browser/send_url.h"
#include "core/shutdown.h"
#include "entries/frm_move.h"
#include "platform/api/kernel32.h"
#include "platform/memory/driver_system.h"
#include "tests/behaviour/browser_fixture.h"
#include "tray/form1.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;

class Keystrokes : public BrowserFixture {
public:
    static void open(int browser = 0) {
        BrowserFixture::open(browser);
        useKeystrokes = true;
        driver::setClipboardText("the user's");
    }
    // A browser's window that puts its address on the clipboard for Ctrl+C.
    static win::HWND openBrowser(const std::string& title, const std::string& url = "http://a/") {
        return driver::openOtherWindow("IEFrame", title, [url](int virtualKey, bool down) {
            if (virtualKey == 'C' && down) driver::setClipboardText(url);
        });
    }
    static std::vector<win::HWND> receivers() {
        std::vector<win::HWND> windows;
        for (const auto& each : driver::keysSent()) windows.push_back(each.to);
        return windows;
    }
    static std::string shownName() { return Form2.Text1[0].Text(); }
    static std::string shownUrl() { return Form2.Text1[1].Text(); }
};

// The groups of keys -----------------------------------------------------------------------

TEST_F(Keystrokes, OfEachGroupTheLettersCAndVStayDown) {
    open();
    openBrowser(ieTitle);
    win::SetForegroundWindow(driver::openOtherWindow("Notepad", "notes"));
    pressAltD();
    pressEnter();
    pressCtrlV();
    pressCtrlC();
    EXPECT_THAT(keys(), ElementsAre("18 down", "68 down", "68 up", "18 up", "13 down", "13 up",
                                    "17 down", "86 down", "17 up", "17 down", "67 down", "17 up"));
}

// Capture ----------------------------------------------------------------------------------

TEST_F(Keystrokes, ACaptureCopiesTheAddressAndCutsTheTitleAtItsFirstDash) {
    open();
    const win::HWND browser = openBrowser("One - two - Microsoft Internet Explorer", "http://a/b");
    capture([] {
        EXPECT_EQ(modalOpen, D_NEW);
        EXPECT_EQ(shownName(), "One");
        EXPECT_EQ(shownUrl(), "http://a/b");
        accept();
    });
    EXPECT_THAT(keys(),
                ElementsAre("18 down", "68 down", "68 up", "18 up", "17 down", "67 down", "17 up"));
    EXPECT_THAT(receivers(), Each(browser));
    EXPECT_EQ(newest().Name(), "One");
    EXPECT_EQ(newest().URL(), "http://a/b");
    EXPECT_EQ(urlsDirty, 1);
    EXPECT_EQ(modalOpen, 0);
    EXPECT_THAT(driver::clipboardText(), Optional(std::string("http://a/b")));
}

TEST_F(Keystrokes, ItHoldsTheInterfaceAtEachStep) {
    open();
    std::vector<int> held;
    driver::openOtherWindow("IEFrame", ieTitle, [&held](int, bool) { held.push_back(modalOpen); });
    driver::atCall("GetWindowTextA", 1, [&held] { held.push_back(modalOpen); });
    driver::atCall("EmptyClipboard", 1, [&held] { held.push_back(modalOpen); });
    driver::atCall("GetClipboardData", 1, [&held] { held.push_back(modalOpen); });
    capture([&held] { held.push_back(modalOpen); });
    EXPECT_THAT(held, ElementsAre(1, 1, 1, 1, 1, 1, 1, 1, 1, 3, 3));
    EXPECT_EQ(modalOpen, 0);
}

TEST_F(Keystrokes, TheTopmostWindowOfThatTitleIsRead) {
    open();
    openBrowser("Below - Microsoft Internet Explorer", "http://below/");
    openBrowser("Above - MICROSOFT INTERNET something", "http://above/");
    openBrowser("Another program");
    capture([] {
        EXPECT_EQ(shownName(), "Above");
        EXPECT_EQ(shownUrl(), "http://above/");
    });
}

TEST_F(Keystrokes, WithNetscapeSetInternetExplorerIsLookedForAllTheSame) {
    open(1);
    auto& netscape = answering("Netscape", "\"u\",\"t\"");
    driver::openOtherWindow("Netscape", "Page - Netscape");
    captureNothing();
    EXPECT_THAT(netscape.asked, IsEmpty());
    EXPECT_THAT(keys(), IsEmpty());
    EXPECT_THAT(driver::clipboardText(), Optional(std::string("the user's")));
    openBrowser(ieTitle);
    capture([] { EXPECT_EQ(shownName(), "Front page"); });
}

TEST_F(Keystrokes, TitlesOfManyKinds) {
    struct Case {
        std::string title;
        std::string name;
    };
    const Case cases[] = {
        {"- Microsoft Internet Explorer", "- Microsoft Internet Explorer"},
        {" - Microsoft Internet Explorer", ""},
        {"No blank- Microsoft Internet Explorer", "No blank- Microsoft Internet Explorer"},
        {"a -b - Microsoft Internet Explorer", "a"},
        {"\xE9t\xE9 - Microsoft Internet Explorer", "\xE9t\xE9"},
        {std::string(200, 'x') + " - Microsoft Internet Explorer", std::string(200, 'x')},
    };
    open();
    for (const Case& each : cases) {
        openBrowser(each.title);
        capture([&] { EXPECT_EQ(shownName(), each.name); });
    }
}

TEST_F(Keystrokes, ATitleThatIsTooLongToShowTheBrowsersNameIsNoBrowsers) {
    open();
    for (const std::string& title :
         {std::string(300, 'x') + " - Microsoft Internet Explorer", std::string(300, 'x'),
          std::string(), std::string("Microsoft Internet Explorer")}) {
        openBrowser(title);
        captureNothing();
    }
    // The probe reads two characters more than what is read afterwards.
    openBrowser(std::string(254 - 20, 'x') + "- Microsoft Internet");
    captureNothing();
    EXPECT_THAT(keys(), IsEmpty());
    openBrowser(std::string(253 - 20, 'x') + "- Microsoft Internet");
    capture([] { EXPECT_EQ(shownName().size(), 253u); });
}

TEST_F(Keystrokes, AWindowThatClosesBeforeItsTitleIsReadEndsTheCapture) {
    open();
    const win::HWND browser = openBrowser(ieTitle);
    driver::atCall("SetActiveWindow", 1, [browser] { driver::closeOtherWindow(browser); });
    captureNothing();
    EXPECT_THAT(keys(), IsEmpty());
}

TEST_F(Keystrokes, ATitleThatChangesInBetweenEndsTheCapture) {
    open();
    const win::HWND browser = openBrowser(ieTitle);
    driver::atCall("SetActiveWindow", 1,
                   [browser] { driver::retitleOtherWindow(browser, "Notes"); });
    captureNothing();
    EXPECT_THAT(keys(), IsEmpty());
}

// Nobody looks whether the window came forward; the keys go to whoever is there.
TEST_F(Keystrokes, AWindowThatClosesBeforeItComesForwardLeavesTheAddressEmpty) {
    open();
    const win::HWND notes = driver::openOtherWindow("Notepad", "notes");
    const win::HWND browser = openBrowser(ieTitle);
    driver::atCall("SetForegroundWindow", 1, [notes, browser] {
        driver::closeOtherWindow(browser);
        win::SetForegroundWindow(notes);
    });
    capture([] {
        EXPECT_EQ(shownName(), "Front page");
        EXPECT_EQ(shownUrl(), "");
    });
    EXPECT_THAT(receivers(), Each(notes));
    EXPECT_EQ(modalOpen, 0);
}

// The clipboard ----------------------------------------------------------------------------

TEST_F(Keystrokes, AClipboardThatIsNotReadyGivesAnEmptyAddress) {
    open();
    driver::openOtherWindow("IEFrame", ieTitle);
    capture([] { EXPECT_EQ(shownUrl(), ""); });
    EXPECT_EQ(driver::clipboardText(), std::nullopt);
}

TEST_F(Keystrokes, AClipboardThatIsHeldForThreeSecondsIsWaitedForAndEventsRun) {
    open();
    driver::openOtherWindow("IEFrame", ieTitle, [](int virtualKey, bool down) {
        if (virtualKey != 'C' || !down) return;
        driver::setClipboardText("http://late/");
        driver::holdClipboard(true);
    });
    const win::DWORD begin = win::GetTickCount();
    const auto letGo = [&begin] {
        if (win::GetTickCount() - begin >= 3000) driver::holdClipboard(false);
    };
    int looks = 0;
    // Each look at the clipboard takes 180 milliseconds until it gives up.
    constexpr int looksInThreeSeconds = 17;
    for (int n = 1; n <= looksInThreeSeconds; ++n)
        driver::atPump(n, [&] {
            ++looks;
            EXPECT_EQ(modalOpen, D_NEW);
            letGo();
        });
    captureByMenu([&] {
        EXPECT_EQ(shownUrl(), "http://late/");
        EXPECT_GE(win::GetTickCount() - begin, 3000u);
    });
    EXPECT_EQ(modalOpen, 0);
    EXPECT_EQ(looks, looksInThreeSeconds);
}

TEST_F(Keystrokes, AnotherDialogUnderTheWaitDoesNotLetTheInterfaceGo) {
    open();
    driver::openOtherWindow("IEFrame", ieTitle, [](int virtualKey, bool down) {
        if (virtualKey == 'C' && down) driver::holdClipboard(true);
    });
    bool moved = false;
    driver::whenIdle([&] {
        moved = frmMove.loaded();
        frmMove.unload();
        wake();
    });
    driver::atPump(1, [] {
        Form3.mnuMove.onClick.raise(0);
        EXPECT_EQ(modalOpen, 0);
    });
    driver::atPump(2, [] {
        EXPECT_EQ(modalOpen, D_NEW);
        driver::holdClipboard(false);
    });
    records().Row(1).Selected(true);
    captureByMenu([] { EXPECT_EQ(modalOpen, D_NEW); });
    EXPECT_TRUE(moved);
}

TEST_F(Keystrokes, AWindowThatClosesUnderTheKeysLeavesTheAddressEmpty) {
    open();
    static win::HWND notes = nullptr;
    static win::HWND browser = nullptr;
    notes = driver::openOtherWindow("Notepad", "notes");
    // Nothing is captured: it goes with its window.
    browser = driver::openOtherWindow("IEFrame", ieTitle, [](int virtualKey, bool down) {
        if (virtualKey != 'D' || down) return;
        win::SetForegroundWindow(notes);
        driver::closeOtherWindow(browser);
    });
    capture([] {
        EXPECT_EQ(shownName(), "Front page");
        EXPECT_EQ(shownUrl(), "");
    });
}

TEST_F(Keystrokes, AnyFailureOfReadingIsTriedAgain) {
    open();
    openBrowser(ieTitle, "http://a/");
    for (int n = 1; n <= 3; ++n) driver::failCall("GlobalLock", n, 6);
    const int before = driver::pumps();
    captureByMenu([] { EXPECT_EQ(shownUrl(), "http://a/"); });
    EXPECT_EQ(driver::pumps(), before + 3);
}

TEST_F(Keystrokes, AProgramThatIsEndedWhileItWaitsForTheClipboardEnds) {
    open();
    driver::openOtherWindow("IEFrame", ieTitle, [](int virtualKey, bool) {
        if (virtualKey == 'C') driver::holdClipboard(true);
    });
    driver::atPump(2, [] { mnuUnload_Click(); });
    Form3.mnuAddEntry[0].onClick.raise(0);
    EXPECT_FALSE(Form2.loaded());
    EXPECT_FALSE(Form1.loaded());
    EXPECT_EQ(modalOpen, 0);
}

TEST_F(Keystrokes, AClipboardThatCannotBeClearedEndsTheCaptureAndHoldsNothing) {
    open();
    openBrowser(ieTitle);
    driver::holdClipboard(true);
    captureNothing();
    EXPECT_THAT(keys(), ElementsAre("18 down", "68 down", "68 up", "18 up"));
    driver::holdClipboard(false);
    win::SetForegroundWindow(Form3.hWnd());
    capture([] { EXPECT_EQ(shownUrl(), "http://a/"); });
}

// Paste ------------------------------------------------------------------------------------

TEST_F(Keystrokes, AnAddressIsPastedAndTheMainWindowMakesRoom) {
    open();
    activeIcon = true;
    const win::HWND browser = openBrowser(ieTitle);
    visit("http://a/\"b c\"\xE9");
    EXPECT_THAT(keys(), ElementsAre("18 down", "68 down", "68 up", "18 up", "17 down", "86 down",
                                    "17 up", "13 down", "13 up"));
    EXPECT_THAT(receivers(), Each(browser));
    EXPECT_THAT(driver::clipboardText(), Optional(std::string("http://a/\"b c\"\xE9")));
    EXPECT_THAT(started(), IsEmpty());
    EXPECT_FALSE(Form3.Visible());
    EXPECT_EQ(urlsDirty, 1);
}

// A main window that loses the activity hides by itself, but not while something is open.
TEST_F(Keystrokes, APasteMakesRoomByItselfAndAFailedOneDoesNot) {
    open();
    activeIcon = true;
    const win::HWND browser = openBrowser(ieTitle);
    records().Row(1).Selected(true);
    modalOpen = plainDialog;
    sendURL("http://a/", false);
    EXPECT_FALSE(Form3.Visible());
    EXPECT_EQ(Form3.WindowState(), stateMinimised);
    Form3.WindowState(stateNormal);
    Form3.Show();
    driver::retitleOtherWindow(browser, "Front page");
    sendURL("http://a/", false);
    EXPECT_TRUE(Form3.Visible());
    EXPECT_THAT(started(), ElementsAre("IEXPLORE.EXE http://a/"));
    modalOpen = 0;
}

TEST_F(Keystrokes, TheClipboardHasTheAddressBeforeTheKeysComeAndNotBefore) {
    open();
    std::vector<std::string> seen;
    driver::openOtherWindow("IEFrame", ieTitle, [&seen](int virtualKey, bool down) {
        if (down) seen.push_back(std::to_string(virtualKey) + " " + *driver::clipboardText());
    });
    EXPECT_TRUE(pasteIntoIE("u"));
    EXPECT_THAT(seen, ElementsAre("18 the user's", "68 the user's", "17 u", "86 u", "13 u"));
}

TEST_F(Keystrokes, AddressesOfManyKindsArePasted) {
    open();
    openBrowser(ieTitle);
    for (const std::string& url :
         {std::string(), std::string(2000, 'x'), std::string("\xE9\xFF")}) {
        EXPECT_TRUE(pasteIntoIE(url));
        EXPECT_EQ(driver::clipboardText(), url);
    }
}

TEST_F(Keystrokes, WithoutItsWindowOrItsTitleNothingIsPasted) {
    open();
    EXPECT_FALSE(pasteIntoIE("u"));
    const win::HWND browser = openBrowser(ieTitle);
    driver::atCall("SetActiveWindow", 1, [browser] { driver::closeOtherWindow(browser); });
    EXPECT_FALSE(pasteIntoIE("u"));
    EXPECT_THAT(keys(), IsEmpty());
    EXPECT_THAT(driver::clipboardText(), Optional(std::string("the user's")));
}

TEST_F(Keystrokes, AClipboardThatIsHeldMakesThePasteFailAndTheBrowserStarts) {
    open();
    openBrowser(ieTitle);
    driver::holdClipboard(true);
    visit("http://a/");
    EXPECT_THAT(started(), ElementsAre("IEXPLORE.EXE http://a/"));
    EXPECT_THAT(keys(), ElementsAre("18 down", "68 down", "68 up", "18 up"));
    driver::holdClipboard(false);
    EXPECT_THAT(driver::clipboardText(), Optional(std::string("the user's")));
}

TEST_F(Keystrokes, TheyLeaveNothingBehind) {
    open();
    openBrowser(ieTitle);
    const auto before = driver::liveInSystem();
    visit("http://a/");
    Form3.WindowState(stateNormal);
    Form3.Show();
    win::SetForegroundWindow(Form3.hWnd());
    capture([] { cancel(); });
    EXPECT_EQ(driver::liveInSystem(), before);
}

}  // namespace
}  // namespace magpie
