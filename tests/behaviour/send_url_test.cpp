// Sending an address: which road it takes, who starts, and whether the main window makes room.
#include "browser/send_url.h"

#include "browser/launch_browser.h"
#include "platform/memory/driver_system.h"
#include "tests/behaviour/browser_fixture.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;
using SendUrl = BrowserFixture;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* appPaths = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\App Paths\\";

win::memory::ShellWindow& openInternetExplorer(const char* title = SendUrl::ieTitle) {
    return driver::addShellWindow({.window = driver::openOtherWindow("IEFrame", title)});
}

// Starting a browser -----------------------------------------------------------------------

TEST_F(SendUrl, EachBrowserIsStartedByItsOwnFile) {
    open(0);
    const char* files[] = {"IEXPLORE.EXE", "Netscape.exe", "Opera.EXE"};
    for (int browser = 0; browser < 3; ++browser) {
        browserType = browser;
        launchBrowser("http://server/");
        ASSERT_EQ(started().size(), static_cast<std::size_t>(browser + 1));
        EXPECT_EQ(started().back(), std::string(files[browser]) + " http://server/");
    }
}

TEST_F(SendUrl, TheAddressIsTheCommandLineUnquotedAndAsItStands) {
    open(0);
    for (const std::string& address : {std::string("http://a b/\"c\""), std::string(2000, 'x'),
                                       std::string("\xE9\x80"), std::string()}) {
        launchBrowser(address);
        EXPECT_EQ(driver::launched().back().parameters, address);
    }
}

TEST_F(SendUrl, ABrowserThatIsNotInstalledStartsNothingAndSaysNothing) {
    EntryFixture::open();
    for (const int browser : {0, 1, 2, 3, 255}) {
        browserType = browser;
        visit("http://server/");
        EXPECT_THAT(driver::launched(), IsEmpty()) << browser;
        EXPECT_EQ(urlsDirty, 1) << browser;
    }
    EXPECT_THAT(driver::messageBoxes(), IsEmpty());
}

TEST_F(SendUrl, ABrowserOutsideTheThreeHasNoFile) {
    open(3);
    launchBrowser("http://server/");
    EXPECT_THAT(started(), IsEmpty());
}

TEST_F(SendUrl, TheFileIsLookedUpInTheMachinesAppPaths) {
    open(0);
    EXPECT_EQ(appPathOf("Opera.EXE", ""), "C:\\Browsers\\Opera.EXE");
    EXPECT_EQ(appPathOf("opera.exe", ""), "C:\\Browsers\\Opera.EXE");
    EXPECT_EQ(appPathOf("Opera.EXE", "Path"), "");
    EXPECT_EQ(appPathOf("Nothing.exe", ""), "");
    const std::string key = std::string(appPaths) + "Opera.EXE";
    driver::setRegistryText(win::HKEY_LOCAL_MACHINE, key, "Path", "C:\\Browsers");
    EXPECT_EQ(appPathOf("Opera.EXE", "Path"), "C:\\Browsers");
    driver::setRegistryValue(win::HKEY_LOCAL_MACHINE, key, "Number", win::REG_DWORD,
                             std::string("\x07\0\0\0", 4));
    EXPECT_EQ(appPathOf("Opera.EXE", "Number"), "7");
    driver::setRegistryValue(win::HKEY_LOCAL_MACHINE, key, "Bytes", win::REG_BINARY, "x");
    EXPECT_EQ(appPathOf("Opera.EXE", "Bytes"), "");
    EXPECT_EQ(driver::liveInSystem().registryKeys, 0);
}

// Internet Explorer ------------------------------------------------------------------------

TEST_F(SendUrl, ARunningInternetExplorerIsShownAndThenSentThere) {
    open(0);
    const auto& browser = openInternetExplorer();
    visit("http://a/\"b c\"\xE9");
    EXPECT_THAT(browser.done, ElementsAre("visible", "navigate http://a/\"b c\"\xE9"));
    EXPECT_THAT(started(), IsEmpty());
    EXPECT_EQ(driver::liveInSystem().automationObjects, 0);
}

TEST_F(SendUrl, ItIsSentToWhateverStandsInTheRecord) {
    open(0);
    auto& browser = openInternetExplorer();
    const std::string addresses[] = {"", "not an address", std::string(2000, 'x')};
    for (const std::string& address : addresses) {
        browser.done.clear();
        visit(address);
        EXPECT_THAT(browser.done, ElementsAre("visible", "navigate " + address));
    }
}

TEST_F(SendUrl, WithoutOneItIsStarted) {
    open(0);
    visit("http://a/");
    send("Last Active");
    EXPECT_THAT(started(), ElementsAre("IEXPLORE.EXE http://a/", "IEXPLORE.EXE http://a/"));
}

TEST_F(SendUrl, ForANewWindowItIsAlwaysStarted) {
    open(0);
    const auto& browser = openInternetExplorer();
    for (const bool keystrokes : {false, true}) {
        useKeystrokes = keystrokes;
        send("New Window");
    }
    EXPECT_THAT(started(),
                ElementsAre("IEXPLORE.EXE http://server/", "IEXPLORE.EXE http://server/"));
    EXPECT_THAT(browser.done, IsEmpty());
    EXPECT_THAT(keys(), IsEmpty());
}

TEST_F(SendUrl, WithKeystrokesAndNoneRunningItIsStarted) {
    open(0);
    useKeystrokes = true;
    activeIcon = true;
    driver::openOtherWindow("Notepad", "notes");
    visit("http://a/");
    EXPECT_THAT(started(), ElementsAre("IEXPLORE.EXE http://a/"));
    EXPECT_THAT(keys(), IsEmpty());
    EXPECT_TRUE(Form3.Visible());
}

TEST_F(SendUrl, EveryAutomationCallThatFailsMeansThatNoneIsRunning) {
    open(0);
    auto& browser = openInternetExplorer();
    int starts = 0;
    for (const char* member : {"Name", "HWND", "Visible", "Navigate"}) {
        browser.fails = member;
        visit("http://a/");
        EXPECT_EQ(started().size(), static_cast<std::size_t>(++starts)) << member;
    }
    browser.fails.clear();
    browser.away = true;
    visit("http://a/");
    EXPECT_EQ(started().size(), 5u);
    driver::endShellWindows();
    visit("http://a/");
    EXPECT_EQ(started().size(), 6u);
    EXPECT_EQ(driver::liveInSystem().automationObjects, 0);
}

// Which window -----------------------------------------------------------------------------

TEST_F(SendUrl, OnlyAVisibleMemberOfThatNameAndWindowIsInternetExplorer) {
    open(0);
    const win::HWND window = driver::openOtherWindow("IEFrame", ieTitle);
    auto& other = driver::addShellWindow({.name = "Windows Explorer", .window = window});
    auto& elsewhere = driver::addShellWindow({.window = win::HWND{}});
    auto& hidden = driver::addShellWindow({.window = window, .visible = false});
    visit("http://a/");
    EXPECT_THAT(started(), ElementsAre("IEXPLORE.EXE http://a/"));
    auto& right = driver::addShellWindow({.window = window});
    auto& second = driver::addShellWindow({.window = window});
    visit("http://b/");
    EXPECT_THAT(right.done, ElementsAre("visible", "navigate http://b/"));
    for (const auto* each : {&other, &elsewhere, &hidden, &second})
        EXPECT_THAT(each->done, IsEmpty());
}

TEST_F(SendUrl, AFolderAboveInternetExplorerEndsTheSearch) {
    open(0);
    auto& browser = openInternetExplorer();
    driver::addShellWindow(
        {.name = "Windows Explorer", .window = driver::openOtherWindow("CabinetWClass", "folder")});
    visit("http://a/");
    EXPECT_THAT(started(), ElementsAre("IEXPLORE.EXE http://a/"));
    EXPECT_THAT(browser.done, IsEmpty());
    win::SetForegroundWindow(browser.window);
    visit("http://b/");
    EXPECT_THAT(browser.done, ElementsAre("visible", "navigate http://b/"));
}

TEST_F(SendUrl, BeforeTheNTLineTheTitleTellsInternetExplorer) {
    open(0);
    osPlatform = 1;
    const win::HWND titled = driver::openOtherWindow("Whatever", "A - MICROSOFT internet Explorer");
    driver::openOtherWindow("IEFrame", "another title");
    const auto& browser = driver::addShellWindow({.window = titled});
    visit("http://a/");
    EXPECT_THAT(browser.done, ElementsAre("visible", "navigate http://a/"));
    EXPECT_THAT(started(), IsEmpty());
}

// Making room ------------------------------------------------------------------------------

TEST_F(SendUrl, TheMainWindowStaysForABrowserThatComesUpByItself) {
    open(0);
    activeIcon = true;
    openInternetExplorer();
    visit("http://a/");
    EXPECT_TRUE(Form3.Visible());
    send("New Window");
    EXPECT_TRUE(Form3.Visible());
    driver::endShellWindows();
    visit("http://a/");
    EXPECT_TRUE(Form3.Visible());
    EXPECT_EQ(started().size(), 2u);
}

TEST_F(SendUrl, WithThePadOnItStepsAsideAfterADelivery) {
    open(2);
    answering("Opera");
    visit("http://a/");
    EXPECT_TRUE(Form3.Visible());
    activeIcon = true;
    visit("http://a/");
    EXPECT_FALSE(Form3.Visible());
    EXPECT_EQ(Form3.WindowState(), stateMinimised);
    EXPECT_EQ(urlsDirty, 1);
}

}  // namespace
}  // namespace magpie
