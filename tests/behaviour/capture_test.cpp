// "From Browser": the page on show as a new entry, by automation and by dynamic data exchange.
#include "browser/capture.h"

#include "browser/dde_roads.h"
#include "core/misc.h"
#include "entries/frm_move.h"
#include "platform/api/kernel32.h"
#include "platform/memory/driver_system.h"
#include "platform/runtime/word.h"
#include "platform/services/clock.h"
#include "store/group_lookup.h"
#include "tests/behaviour/browser_fixture.h"
#include "tests/unit/runtime/failure_of.h"
#include "tray/form1.h"
#include "views/find.h"
#include "views/find_form.h"
#include "views/mask_filters.h"
#include "views/rated.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;
using testing::ElementsAre;
using testing::IsEmpty;

class Capture : public BrowserFixture {
public:
    static std::string shownName() { return Form2.Text1[0].Text(); }
    static std::string shownUrl() { return Form2.Text1[1].Text(); }
    static win::memory::ShellWindow& openPage(const std::string& title, const std::string& url) {
        return driver::addShellWindow({.window = driver::openOtherWindow("IEFrame", ieTitle),
                                       .locationName = title,
                                       .locationUrl = url});
    }
};

// By automation ----------------------------------------------------------------------------

TEST_F(Capture, InternetExplorersPageFillsTheDialogAndIsStoredByAccept) {
    open(0);
    openPage("Page - one \xE9", "http://a/b?c");
    capture([] {
        EXPECT_EQ(modalOpen, D_NEW);
        EXPECT_EQ(shownName(), "Page - one \xE9");
        EXPECT_EQ(shownUrl(), "http://a/b?c");
        accept();
    });
    EXPECT_EQ(newest().Name(), "Page - one \xE9");
    EXPECT_EQ(newest().URL(), "http://a/b?c");
    EXPECT_EQ(modalOpen, 0);
    // Once for the entry and once for the capture.
    EXPECT_EQ(urlsDirty, 2);
    EXPECT_EQ(driver::liveInSystem().automationObjects, 0);
}

TEST_F(Capture, ThisRoadAloneCountsAsAChangeAlsoWhenTheUserCancels) {
    open(0);
    openPage("page", "http://a/");
    capture([] { cancel(); });
    EXPECT_EQ(urlsDirty, 1);
    EXPECT_EQ(uBlock.URLDatas().Count(), 4);
    urlsDirty = 0;
    browserType = 1;
    answering("Netscape", "\"u\",\"t\"");
    capture([] { cancel(); });
    EXPECT_EQ(urlsDirty, 0);
}

TEST_F(Capture, WithoutInternetExplorerNothingOpens) {
    open(0);
    captureNothing();
    driver::openOtherWindow("IEFrame", ieTitle);
    captureNothing();
    EXPECT_THAT(driver::messageBoxes(), IsEmpty());
}

TEST_F(Capture, ABrowserThatGoesWhileItIsReadWasNotThere) {
    open(0);
    auto& page = openPage("page", "http://a/");
    for (const char* member : {"LocationName", "LocationURL", "Name"}) {
        page.fails = member;
        captureNothing();
    }
    page.away = true;
    captureNothing();
    driver::endShellWindows();
    captureNothing();
    EXPECT_EQ(driver::liveInSystem().automationObjects, 0);
}

TEST_F(Capture, TheInterfaceIsHeldWhileTheBrowserIsRead) {
    open(0);
    auto& page = openPage("page", "http://a/");
    std::vector<std::string> held;
    page.underRead = [&](const std::string& member) {
        if (modalOpen == D_NEW) held.push_back(member);
        if (member == "LocationName") {
            Form3.mnuAddEntry[0].onClick.raise(0);
            Form3.mnuAddEntry[1].onClick.raise(1);
        }
        EXPECT_FALSE(Form2.loaded());
    };
    capture([] { cancel(); });
    EXPECT_THAT(held, ElementsAre("LocationName", "LocationURL"));
    urlsDirty = 0;
    page.fails = "LocationURL";
    captureNothing();
}

TEST_F(Capture, AStoreThatIsReadAnewUnderTheDialogHasNothingToSave) {
    open(0);
    openPage("page", "http://a/");
    capture([] {
        Form3.mnuFree.onClick.raise(0);
        Form3.Show();
        Form2.unload();
    });
    EXPECT_TRUE(Form3.loaded());
    EXPECT_EQ(urlsDirty, 0);
}

TEST_F(Capture, TheMenusAreUpToDateBehindIt) {
    open(0);
    openPage("page", "http://a/");
    records().Row(1).Selected(true);
    capture([] { accept(); });
    EXPECT_TRUE(Form3.mnuEdit.Enabled);
    EXPECT_TRUE(Form3.mnuAddz.Enabled);
}

TEST_F(Capture, AStoreThatIsFlushedUnderTheDialogHasNothingToSave) {
    open(0);
    openPage("page", "http://a/");
    capture([] { Form3.mnuFree.onClick.raise(0); });
    EXPECT_FALSE(Form3.loaded());
    EXPECT_EQ(urlsDirty, 0);
}

TEST_F(Capture, TheMainWindowIsBackOnTopHoweverItEnds) {
    open(0);
    mainOnTop = true;
    setTopMost(Form3, wordTrue);
    const auto isOnTop = [] {
        return (win::GetWindowLongPtrA(Form3.hWnd(), win::GWL_EXSTYLE) & win::WS_EX_TOPMOST) != 0;
    };
    openPage("page", "http://a/").underRead = [&](const std::string&) { EXPECT_TRUE(isOnTop()); };
    capture([&] {
        EXPECT_FALSE(isOnTop());
        cancel();
    });
    EXPECT_TRUE(isOnTop());
    urlsDirty = 0;
    driver::endShellWindows();
    captureNothing();
    EXPECT_TRUE(isOnTop());
}

TEST_F(Capture, TheEntryHasTheFieldsOfANewOne) {
    open(0);
    openPage(" page ", " http://a/ ");
    const Date before = now();
    capture([] {
        EXPECT_EQ(shownName(), " page ");
        accept();
    });
    EXPECT_EQ(newest().Name(), "page");
    EXPECT_EQ(newest().URL(), "http://a/");
    EXPECT_EQ(newest().Owner, GetSelectedIndex());
    EXPECT_EQ(newest().Rated, 0);
    EXPECT_EQ(newest().Visited, 0);
    EXPECT_EQ(newest().LastAccesed, Date{});
    EXPECT_EQ(newest().Created, before);
    EXPECT_EQ(records().Row(records().Count()).Text(), "page");
}

// By dynamic data exchange -----------------------------------------------------------------

TEST_F(Capture, NetscapesPageFillsTheDialogAndIsStoredByAccept) {
    open(1);
    auto& netscape = answering("Netscape", "\"http://a/\",\"A page\",\"frame\"");
    capture([] {
        EXPECT_EQ(modalOpen, D_NEW);
        EXPECT_EQ(shownName(), "A page");
        EXPECT_EQ(shownUrl(), "http://a/");
        accept();
    });
    EXPECT_THAT(netscape.asked, ElementsAre("WWW_GetWindowInfo -1"));
    EXPECT_EQ(newest().Name(), "A page");
    EXPECT_EQ(newest().URL(), "http://a/");
    EXPECT_EQ(urlsDirty, 1);
    EXPECT_EQ(modalOpen, 0);
}

TEST_F(Capture, ATitleIsCutAtItsCommaAndLosesItsLastCharacter) {
    open(2);
    answering("Opera", "\"http://a/\",\"One, two\"");
    capture([] { EXPECT_EQ(shownName(), "On"); });
}

TEST_F(Capture, EachTextLosesItsEndsWhateverTheyAre) {
    EXPECT_EQ(pageOf("url,title").url, "r");
    EXPECT_EQ(pageOf("url,title").title, "itl");
    EXPECT_EQ(pageOf("\"\",\"\"").url, "");
    EXPECT_EQ(pageOf("\"\",\"\"").title, "");
    EXPECT_EQ(pageOf("ab,cd,").title, "");
    EXPECT_EQ(pageOf("'a\xE9','b\"b'").title, "b\"b");
    const std::string page(100000, 'x');
    EXPECT_EQ(pageOf("\"u\",\"" + page + "\"").title, page);
}

TEST_F(Capture, AReplyWithoutTwoTextsOfTwoCharactersFails) {
    for (const char* reply : {"", "\"url\"", "url"})
        EXPECT_EQ(failureOf([&] { return pageOf(reply).url.size(); }), failure::subscript) << reply;
    for (const char* reply : {",", "a,\"b\"", "\"a\",b", "\"a\",", ",\"b\""})
        EXPECT_EQ(failureOf([&] { return pageOf(reply).url.size(); }), failure::invalidCall)
            << reply;
}

TEST_F(Capture, AReplyThatCannotBeReadIsAskedOfTheNextBrowser) {
    open(1);
    auto& netscape = answering("Netscape");
    auto& opera = answering("Opera", "\"http://o/\",\"Opera's\"");
    for (const char* reply : {"", "\"one token\"", "not quoted", "a,b"}) {
        netscape.answer = [reply](const std::string&, const std::string&) {
            return std::optional<std::string>(reply);
        };
        capture([&] { EXPECT_EQ(shownName(), "Opera's") << reply; });
    }
    EXPECT_EQ(netscape.asked.size(), 4u);
    EXPECT_EQ(opera.asked.size(), 4u);
}

TEST_F(Capture, AReplyOfAHundredKilobytesIsTaken) {
    open(1);
    const std::string title(100000, 't');
    answering("Netscape", "\"http://a/\",\"" + title + "\"");
    capture([&] {
        EXPECT_EQ(shownName(), title);
        EXPECT_EQ(shownUrl(), "http://a/");
    });
}

TEST_F(Capture, ThreeFailuresEndInNothing) {
    open(1);
    std::vector<std::string> order;
    for (const char* service : {"IEXPLORE", "Netscape", "Opera"})
        refusing(service).answer = [&order, service](const std::string&, const std::string&) {
            order.push_back(service);
            return std::optional<std::string>();
        };
    captureNothing();
    EXPECT_THAT(order, ElementsAre("Netscape", "Opera", "IEXPLORE"));
    EXPECT_THAT(started(), IsEmpty());
    driver::removeDdePeers();
    captureNothing();
    EXPECT_THAT(driver::messageBoxes(), IsEmpty());
}

TEST_F(Capture, ASilentNetscapeIsAFailureHere) {
    open(1);
    silent("Netscape");
    answering("Opera", "\"http://o/\",\"Opera's\"");
    const win::DWORD begin = win::GetTickCount();
    capture([&] {
        EXPECT_GE(win::GetTickCount() - begin, 5000u);
        EXPECT_EQ(shownName(), "Opera's");
    });
}

TEST_F(Capture, ABrowserThatDiesInMidConversationIsAFailure) {
    open(2);
    answering("Opera").dies = true;
    answering("IEXPLORE", "\"http://i/\",\"Explorer's\"");
    capture([] { EXPECT_EQ(shownUrl(), "http://i/"); });
}

// One at a time ----------------------------------------------------------------------------

TEST_F(Capture, WhileAnythingHoldsTheInterfaceItDoesNothing) {
    open(1);
    auto& netscape = answering("Netscape", "\"u\",\"t\"");
    for (const std::uint8_t held : {std::uint8_t{1}, D_EDIT, D_NEW, std::uint8_t{4}}) {
        modalOpen = held;
        getURL();
        EXPECT_EQ(modalOpen, held);
        EXPECT_FALSE(Form2.loaded());
    }
    EXPECT_THAT(netscape.asked, IsEmpty());
}

TEST_F(Capture, UnderADialogItDoesNothing) {
    open(1);
    auto& netscape = answering("Netscape", "\"u\",\"t\"");
    records().Row(1).Selected(true);
    struct Dialog {
        std::function<void()> open;
        Form& form;
    };
    const Dialog dialogs[] = {{[] { Form3.mnuAddEntry[1].onClick.raise(1); }, Form2},
                              {[] { Form3.mnuEdit.onClick.raise(0); }, Form2},
                              {[] { Form3.mnuMove.onClick.raise(0); }, frmMove},
                              {[] { mnuFind_Click(0); }, Find},
                              {[] { Command5_Click(0); }, Rated}};
    for (const Dialog& dialog : dialogs) {
        bool up = false;
        driver::whenIdle([&] {
            up = dialog.form.loaded();
            const std::uint8_t held = modalOpen;
            EXPECT_GT(held, 0);
            Form3.mnuAddEntry[0].onClick.raise(0);
            EXPECT_EQ(modalOpen, held);
            dialog.form.unload();
            wake();
        });
        dialog.open();
        EXPECT_TRUE(up);
    }
    EXPECT_THAT(netscape.asked, IsEmpty());
}

TEST_F(Capture, AnEventDuringACaptureCannotStartAnother) {
    open(1);
    auto& netscape = answering("Netscape", "\"u\",\"t\"");
    Form3.Left(0);
    Form3.Top(0);
    driver::atPump(1, [] {
        EXPECT_EQ(modalOpen, 0);
        clickPad();
        Form3.mnuAddEntry[0].onClick.raise(0);
        EXPECT_FALSE(Form2.loaded());
    });
    captureByMenu([] { cancel(); });
    EXPECT_EQ(netscape.asked.size(), 1u);
    // The next one is not held up.
    captureByMenu([] { cancel(); });
    EXPECT_EQ(netscape.asked.size(), 2u);
}

// The user has seconds for it while a browser is slow.
TEST_F(Capture, TheDialogThatIsUsedMeanwhileComesAgainWithThePage) {
    open(1);
    answering("Netscape", "\"http://page/\",\"A page\"");
    records().Row(1).Selected(true);
    const std::function<void()> useIt[] = {[] { Form3.mnuAddEntry[1].onClick.raise(1); },
                                           [] { Form3.mnuEdit.onClick.raise(0); }};
    for (const auto& command : useIt) {
        std::vector<std::string> shown;
        driver::atPump(1, command);
        driver::whenIdle([&] {
            shown.push_back(shownUrl());
            Form2.unload();
            wake();
        });
        captureByMenu([&] {
            EXPECT_EQ(modalOpen, D_NEW);
            shown.push_back(shownUrl());
        });
        EXPECT_THAT(shown, ElementsAre(testing::Ne("http://page/"), "http://page/"));
        EXPECT_EQ(modalOpen, 0);
    }
}

TEST_F(Capture, ADialogThatCannotBeMadeLeavesNothingHeld) {
    open(0);
    openPage("page", "http://a/");
    answering("Netscape", "\"u\",\"t\"");
    for (const int browser : {0, 1}) {
        browserType = browser;
        driver::failCall("CreateWindowExA", 1, win::ERROR_ACCESS_DENIED);
        Form3.mnuAddEntry[0].onClick.raise(0);
        EXPECT_EQ(driver::faultsLeft(), 0);
        EXPECT_FALSE(Form2.loaded());
        EXPECT_EQ(modalOpen, 0);
        EXPECT_EQ(urlsDirty, 0);
    }
}

TEST_F(Capture, AMainWindowThatIsFlushedMeanwhileLeavesNothingHeld) {
    open(1);
    answering("Netscape", "\"u\",\"t\"");
    driver::atPump(1, [] { Form3.mnuFree.onClick.raise(0); });
    bool asked = false;
    driver::whenIdle([&asked] {
        asked = true;
        Form2.unload();
        win::PostMessageA(Form1.hWnd(), win::WM_NULL, 0, 0);
    });
    Form3.mnuAddEntry[0].onClick.raise(0);
    EXPECT_TRUE(asked);
    EXPECT_EQ(modalOpen, 0);
}

}  // namespace
}  // namespace magpie
