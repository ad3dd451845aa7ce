// Sending an address by dynamic data exchange: what travels, who is asked, how it ends.
#include "browser/dde_roads.h"
#include "platform/api/kernel32.h"
#include "platform/memory/driver_system.h"
#include "platform/memory/threads.h"
#include "tests/behaviour/browser_fixture.h"
#include "tray/form1.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;
using DdeDelivery = BrowserFixture;
using testing::ElementsAre;
using testing::IsEmpty;

// What travels -----------------------------------------------------------------------------

TEST_F(DdeDelivery, NetscapeAndOperaAreHandedTheAddressForEitherWindow) {
    open(1);
    const auto& netscape = answering("Netscape");
    const auto& opera = answering("Opera");
    send("Last Active");
    send("New Window");
    EXPECT_THAT(netscape.asked, ElementsAre("WWW_OpenURL \"http://server/\",,-1,7",
                                            "WWW_OpenURL \"http://server/\",,0,7"));
    browserType = 2;
    send("Last Active");
    send("New Window");
    EXPECT_THAT(opera.asked, ElementsAre("WWW_OpenURL \"http://server/\",,-1",
                                         "WWW_OpenURL \"http://server/\",,0"));
    EXPECT_THAT(started(), IsEmpty());
}

TEST_F(DdeDelivery, InternetExplorerIsAskedUnderItsNameAndWithoutATail) {
    open(2);
    const auto& explorer = answering("IEXPLORE");
    visit("http://a/");
    EXPECT_THAT(explorer.asked, ElementsAre("WWW_OpenURL \"http://a/\",,-1"));
    EXPECT_THAT(started(), IsEmpty());
}

TEST_F(DdeDelivery, AnAddressGoesOutAsItStands) {
    open(2);
    const auto& opera = answering("Opera");
    for (const char* address : {"http://a/\"b\"", "http://a/b c,d", "http://a/\xE9\x80", ""})
        visit(address);
    EXPECT_THAT(
        opera.asked,
        ElementsAre("WWW_OpenURL \"http://a/\"b\"\",,-1", "WWW_OpenURL \"http://a/b c,d\",,-1",
                    "WWW_OpenURL \"http://a/\xE9\x80\",,-1", "WWW_OpenURL \"\",,-1"));
}

TEST_F(DdeDelivery, AnItemOfMoreThan255BytesCannotTravelAndTheBrowserIsStarted) {
    open(2);
    const auto& opera = answering("Opera");
    const std::string fits(255 - 6, 'x');
    EXPECT_EQ(deliverByDde(fits, false), Delivery::done);
    EXPECT_EQ(opera.asked.size(), 1u);
    send("Last Active");
    const win::DWORD begin = win::GetTickCount();
    visit(std::string(250, 'x'));
    EXPECT_THAT(started(), ElementsAre("Opera.EXE " + std::string(250, 'x')));
    EXPECT_EQ(opera.asked.size(), 2u);
    EXPECT_EQ(win::GetTickCount(), begin);
    EXPECT_EQ(deliverByDde(std::string(2000, 'x'), false), Delivery::failed);
}

// Who is asked -----------------------------------------------------------------------------

TEST_F(DdeDelivery, TheOthersAreTriedInTurnAndThenTheBrowserOfTheSettingsIsStarted) {
    open(1);
    std::vector<std::string> order;
    for (const char* service : {"IEXPLORE", "Netscape", "Opera"}) {
        auto& peer = refusing(service);
        peer.answer = [&order, service](const std::string&, const std::string& item) {
            order.push_back(std::string(service) + " " + item);
            return std::optional<std::string>();
        };
    }
    visit("u");
    EXPECT_THAT(order,
                ElementsAre("Netscape \"u\",,-1,7", "Opera \"u\",,-1", "IEXPLORE \"u\",,-1"));
    EXPECT_THAT(started(), ElementsAre("Netscape.exe u"));
    order.clear();
    browserType = 2;
    visit("u");
    EXPECT_THAT(order,
                ElementsAre("Opera \"u\",,-1", "IEXPLORE \"u\",,-1", "Netscape \"u\",,-1,7"));
    EXPECT_THAT(started(), ElementsAre("Netscape.exe u", "Opera.EXE u"));
}

TEST_F(DdeDelivery, TheFirstThatTakesItEndsTheRow) {
    open(1);
    activeIcon = true;
    refusing("Netscape");
    const auto& opera = answering("Opera");
    const auto& explorer = answering("IEXPLORE");
    visit("u");
    EXPECT_EQ(opera.asked.size(), 1u);
    EXPECT_THAT(explorer.asked, IsEmpty());
    EXPECT_THAT(started(), IsEmpty());
    EXPECT_FALSE(Form3.Visible());
}

TEST_F(DdeDelivery, WithNobodyThereTheBrowserIsStartedAndTheMainWindowStays) {
    open(2);
    activeIcon = true;
    visit("u");
    EXPECT_THAT(started(), ElementsAre("Opera.EXE u"));
    EXPECT_TRUE(Form3.Visible());
    EXPECT_EQ(urlsDirty, 1);
    EXPECT_THAT(driver::messageBoxes(), IsEmpty());
}

TEST_F(DdeDelivery, AFourthBrowserHasNoNameAndAFifthIsNone) {
    open(0);
    for (const int browser : {3, 4, 255}) {
        browserType = browser;
        const auto& opera = answering("Opera");
        const auto& nameless = answering("");
        const auto& explorer = refusing("IEXPLORE");
        const auto& netscape = answering("Netscape");
        visit("u");
        EXPECT_EQ(explorer.asked.size(), 1u) << browser;
        EXPECT_EQ(netscape.asked.size(), 1u) << browser;
        EXPECT_THAT(opera.asked, IsEmpty());
        EXPECT_THAT(nameless.asked, IsEmpty());
        driver::removeDdePeers();
    }
}

// What others send --------------------------------------------------------------------------

TEST_F(DdeDelivery, WhatOthersSendIsAnsweredAtOnceAndNothingElseBeforeTheReply) {
    open(2);
    static std::vector<std::string> order;
    Form1.onMouseUp = [](int, int, double, double) { order.push_back("click"); };
    answering("Opera").answer = [](const std::string&, const std::string&) {
        win::PostMessageA(Form1.hWnd(), win::WM_LBUTTONUP, 0, 0);
        EXPECT_NE(win::SendMessageA(Form1.hWnd(), win::WM_QUERYENDSESSION, 0, 0), 0);
        order.push_back("reply");
        return std::optional<std::string>("1");
    };
    visit("u");
    EXPECT_THAT(order, ElementsAre("reply", "click"));
}

// The shell sends what the user does to the icon.
TEST_F(DdeDelivery, AClickOnTheTrayIconWaitsForTheReply) {
    open(2);
    std::vector<std::string> order;
    answering("Opera").answer = [&](const std::string&, const std::string&) {
        win::SendMessageA(Form1.hWnd(), win::WM_MOUSEMOVE, 1, win::WM_RBUTTONUP);
        order.push_back("reply");
        return std::optional<std::string>("1");
    };
    driver::onPopup([&](const driver::Popup& popup) {
        EXPECT_EQ(popup.owner, Form1.hWnd());
        order.push_back("menu");
        return win::UINT{0};
    });
    visit("u");
    EXPECT_THAT(order, ElementsAre("reply", "menu"));
}

// Time -------------------------------------------------------------------------------------

TEST_F(DdeDelivery, ASilentNetscapeCountsAsServedAndTheMainWindowStays) {
    open(1);
    activeIcon = true;
    const auto& netscape = silent("Netscape");
    const auto& opera = answering("Opera");
    const win::DWORD begin = win::GetTickCount();
    visit("u");
    EXPECT_EQ(win::GetTickCount() - begin, 5000u);
    EXPECT_EQ(netscape.asked.size(), 1u);
    EXPECT_THAT(opera.asked, IsEmpty());
    EXPECT_THAT(started(), IsEmpty());
    EXPECT_TRUE(Form3.Visible());
    EXPECT_EQ(urlsDirty, 1);
}

TEST_F(DdeDelivery, ASilentOperaIsAFailureAndTheNextIsAsked) {
    open(2);
    silent("Opera");
    const auto& explorer = answering("IEXPLORE");
    visit("u");
    EXPECT_EQ(explorer.asked.size(), 1u);
    EXPECT_THAT(started(), IsEmpty());
}

TEST_F(DdeDelivery, ASilentNetscapeEndsTheRowAlsoAsTheLast) {
    open(2);
    silent("Netscape");
    visit("u");
    EXPECT_THAT(started(), IsEmpty());
}

TEST_F(DdeDelivery, ConnectingAndAskingHaveFiveSecondsTogether) {
    open(2);
    auto& opera = answering("Opera");
    opera.hangs = 3000;
    opera.silence = 1900;
    visit("u");
    EXPECT_THAT(started(), IsEmpty());
    opera.silence = 2100;
    const auto& explorer = answering("IEXPLORE");
    const win::DWORD begin = win::GetTickCount();
    visit("u");
    EXPECT_EQ(win::GetTickCount() - begin, 8000u);
    EXPECT_EQ(explorer.asked.size(), 1u);
}

TEST_F(DdeDelivery, AProgramThatHangsForEverCostsFiveSecondsAnAttemptAndHoldsNothingUp) {
    open(2);
    driver::addDdePeer({.service = "Hanging", .hangs = win::memory::never});
    const auto& opera = answering("Opera");
    const win::DWORD begin = win::GetTickCount();
    visit("u");
    // The third attempt is Netscape's, and that one's silence counts as success.
    EXPECT_EQ(win::GetTickCount() - begin, 15000u);
    EXPECT_THAT(opera.asked, IsEmpty());
    EXPECT_THAT(started(), IsEmpty());
    EXPECT_TRUE(Form3.Visible());
}

TEST_F(DdeDelivery, AProgramThatComesBackTooLateIsNotAskedAnyMore) {
    open(2);
    auto& opera = answering("Opera");
    opera.hangs = 7000;
    visit("u");
    opera.hangs = 0;
    visit("v");
    driver::advance(3000);
    visit("w");
    EXPECT_THAT(opera.asked, ElementsAre("WWW_OpenURL \"v\",,-1", "WWW_OpenURL \"w\",,-1"));
    EXPECT_EQ(driver::liveInSystem().ddeInstances, 0);
}

// Events -----------------------------------------------------------------------------------

TEST_F(DdeDelivery, NoEventEntersBeforeTheBrowserHasAnswered) {
    open(2);
    bool visibleThen = false;
    answering("Opera").answer = [&](const std::string&, const std::string&) {
        visibleThen = Form3.Visible();
        return std::optional<std::string>("1");
    };
    constexpr auto close = static_cast<win::WPARAM>(win::SC_CLOSE);
    win::PostMessageA(Form3.hWnd(), win::WM_SYSCOMMAND, close, 0);
    EXPECT_EQ(deliverByDde("u", false), Delivery::done);
    EXPECT_TRUE(visibleThen);
    EXPECT_FALSE(Form3.Visible());
}

TEST_F(DdeDelivery, EventsRunOnceForAnAnswerAndNotForAFailure) {
    open(2);
    answering("Opera");
    const int before = driver::pumps();
    EXPECT_EQ(deliverByDde("u", false), Delivery::done);
    EXPECT_EQ(driver::pumps(), before + 1);
    driver::removeDdePeers();
    EXPECT_EQ(deliverByDde("u", false), Delivery::failed);
    EXPECT_EQ(driver::pumps(), before + 1);
}

// Flushes the main window and opens it again while Opera is asked.
void openAnewUnderOpera() {
    BrowserFixture::answering("Opera").answer = [](const std::string&, const std::string&) {
        driver::atPump(1, [] {
            Form3.mnuFree.onClick.raise(0);
            Form3.Show();
        });
        return std::optional<std::string>("1");
    };
}

TEST_F(DdeDelivery, AMainWindowThatIsOpenedAnewMeanwhileStaysAndIsNotUnsaved) {
    open(2);
    activeIcon = true;
    openAnewUnderOpera();
    visit("u");
    EXPECT_TRUE(Form3.Visible());
    EXPECT_EQ(urlsDirty, 0);
}

TEST_F(DdeDelivery, OneThatIsOpenedAnewUnderSendStaysAsWell) {
    open(2);
    activeIcon = true;
    openAnewUnderOpera();
    send("New Window");
    EXPECT_TRUE(Form3.Visible());
    EXPECT_EQ(urlsDirty, 0);
}

TEST_F(DdeDelivery, AMainWindowThatIsFlushedMeanwhileStaysGoneAndNothingIsUnsaved) {
    open(2);
    activeIcon = true;
    answering("Opera").answer = [](const std::string&, const std::string&) {
        driver::atPump(1, [] { Form3.mnuFree.onClick.raise(0); });
        return std::optional<std::string>("1");
    };
    visit("u");
    EXPECT_FALSE(Form3.loaded());
    EXPECT_EQ(urlsDirty, 0);
}

// Failures of the other program and of the system --------------------------------------------

TEST_F(DdeDelivery, ABrowserThatDiesInMidConversationIsAFailure) {
    open(1);
    auto& netscape = answering("Netscape");
    netscape.dies = true;
    const auto& opera = answering("Opera");
    visit("u");
    EXPECT_EQ(netscape.asked.size(), 1u);
    EXPECT_EQ(opera.asked.size(), 1u);
}

TEST_F(DdeDelivery, ASystemWithoutThreadsEventsOrConversationsIsAFailureAsWell) {
    open(2);
    for (const char* call : {"CreateEventA", "CreateThread", "DdeInitializeA"}) {
        for (int attempt = 1; attempt <= 3; ++attempt) driver::failCall(call, attempt, 8);
        answering("Opera");
        visit("u");
        EXPECT_EQ(driver::faultsLeft(), 0) << call;
        driver::removeDdePeers();
    }
    EXPECT_THAT(started(), ElementsAre("Opera.EXE u", "Opera.EXE u", "Opera.EXE u"));
}

TEST_F(DdeDelivery, AConversationLeavesNothingBehind) {
    open(2);
    const auto before = driver::liveInSystem();
    const auto windows = driver::live();
    answering("Opera");
    visit("u");
    driver::removeDdePeers();
    visit("u");
    EXPECT_EQ(driver::liveInSystem(), before);
    EXPECT_EQ(driver::live(), windows);
}

}  // namespace
}  // namespace magpie
