// Windows of other programs: found, read, brought forward, and typed into.
#include <gmock/gmock.h>
#include <string>
#include <vector>

#include "platform/api/user32.h"
#include "tests/conformance/hand.h"
#include "tests/conformance/log_window.h"
#include "tests/conformance/peers.h"

using namespace win;

namespace {

using peers::Browser;
using testing::ElementsAre;
using testing::IsEmpty;

std::string titleOf(HWND window) {
    char title[300] = "";
    GetWindowTextA(window, title);
    return title;
}

struct Search {
    std::vector<HWND> wanted;
    std::vector<HWND> met{};
    BOOL goOn = -1;
};

BOOL meet(HWND window, LPARAM parameter) {
    auto& search = *reinterpret_cast<Search*>(parameter);
    for (HWND each : search.wanted) {
        if (each != window) continue;
        search.met.push_back(window);
        return search.goOn;
    }
    return -1;
}

BOOL enumerate(Search& search) {
    return EnumWindows(meet, reinterpret_cast<LPARAM>(&search));
}

void bringForward(HWND window) {
    SetForegroundWindow(window);
    hand::settle();
}

TEST(OtherWindows, AreMetFromTheTopDownUntilAnAnswerOfZero) {
    const LogWindow own("own");
    const Browser first("IEFrame", "one - Microsoft Internet Explorer");
    const Browser second("CabinetWClass", "folder");
    Search search{{first.window(), second.window()}};
    EXPECT_NE(enumerate(search), 0);
    EXPECT_THAT(search.met, ElementsAre(second.window(), first.window()));
    search.met.clear();
    search.goOn = 0;
    EXPECT_EQ(enumerate(search), 0);
    EXPECT_THAT(search.met, ElementsAre(second.window()));
    // Coming forward puts a window on top of the others; under Wine its owner is left to do that.
    bringForward(first.window());
    search.met.clear();
    enumerate(search);
    EXPECT_THAT(search.met, ElementsAre(hand::underWine() ? second.window() : first.window()));
    // The program's own are among them, hidden ones as well.
    Search ofOwn{{own}};
    EXPECT_NE(enumerate(ofOwn), 0);
    EXPECT_THAT(ofOwn.met, ElementsAre(HWND(own)));
}

TEST(OtherWindows, AreFoundByTheirClass) {
    EXPECT_EQ(FindWindowA("IEFrame", nullptr), nullptr);
    const LogWindow own("own");
    const Browser browser("IEFrame", "page - Microsoft Internet Explorer");
    EXPECT_EQ(FindWindowA("ieframe", nullptr), browser.window());
    char className[40] = "";
    GetClassNameA(own, className);
    EXPECT_NE(FindWindowA(className, nullptr), nullptr);
}

TEST(OtherWindows, TellTheirTitlesAsLongAsThereIsRoom) {
    const Browser browser("IEFrame", "page - Microsoft \xC9");
    EXPECT_EQ(titleOf(browser.window()), "page - Microsoft \xC9");
    char part[5] = "";
    EXPECT_EQ(GetWindowTextA(browser.window(), part), 4);
    EXPECT_EQ(std::string(part), "page");
    EXPECT_TRUE(IsWindow(browser.window()));
}

TEST(OtherWindows, ComeToTheForegroundAndTheOwnOnesLeaveIt) {
    const LogWindow own("own");
    ShowWindow(own, SW_SHOWNORMAL);
    hand::settle();
    const Browser browser("IEFrame", "page");
    bringForward(own);
    ASSERT_EQ(GetActiveWindow(), HWND(own));
    EXPECT_EQ(GetForegroundWindow(), HWND(own));
    listenFor({WM_ACTIVATEAPP});
    EXPECT_TRUE(SetForegroundWindow(browser.window()));
    hand::settle();
    EXPECT_EQ(GetForegroundWindow(), browser.window());
    EXPECT_EQ(GetActiveWindow(), nullptr);
    EXPECT_THAT(heard(), ElementsAre("own application off"));
    bringForward(own);
    EXPECT_EQ(GetForegroundWindow(), HWND(own));
}

TEST(OtherWindows, CannotBeMadeActiveFromHere) {
    const LogWindow own("own");
    ShowWindow(own, SW_SHOWNORMAL);
    hand::settle();
    const Browser browser("IEFrame", "page");
    bringForward(own);
    EXPECT_EQ(SetActiveWindow(browser.window()), nullptr);
    hand::settle();
    EXPECT_EQ(GetActiveWindow(), HWND(own));
    EXPECT_EQ(GetForegroundWindow(), HWND(own));
}

TEST(OtherWindows, ThatHaveGoneAreNothing) {
    const LogWindow own("own");
    ShowWindow(own, SW_SHOWNORMAL);
    Browser browser("IEFrame", "page");
    const HWND gone = browser.window();
    bringForward(gone);
    browser.end();
    EXPECT_FALSE(IsWindow(gone));
    EXPECT_EQ(titleOf(gone), "");
    EXPECT_FALSE(SetForegroundWindow(gone));
    EXPECT_EQ(SetActiveWindow(gone), nullptr);
    EXPECT_EQ(FindWindowA("IEFrame", nullptr), nullptr);
}

TEST(OtherWindows, InTheForegroundGetTheKeysThatAreSent) {
    const Browser browser("IEFrame", "page");
    bringForward(browser.window());
    for (const int key : {VK_MENU, int{'D'}}) keybd_event(static_cast<BYTE>(key), 0, 0, 0);
    for (const int key : {int{'D'}, VK_MENU})
        keybd_event(static_cast<BYTE>(key), 0, KEYEVENTF_KEYUP, 0);
    EXPECT_THAT(browser.done(), ElementsAre("down 18", "down 68", "up 68", "up 18"));
}

TEST(SentKeys, ReachTheOwnWindowInTheForegroundAndStayDownUntilTheyAreLetGo) {
    const LogWindow own("own");
    ShowWindow(own, SW_SHOWNORMAL);
    hand::settle();
    bringForward(own);
    listenFor({WM_KEYDOWN, WM_KEYUP});
    keybd_event(VK_CONTROL, 0, 0, 0);
    keybd_event('V', 0, 0, 0);
    keybd_event(VK_CONTROL, 0, KEYEVENTF_KEYUP, 0);
    hand::settle();
    EXPECT_THAT(heard(), ElementsAre("own key down 17", "own key down 86", "own key up 17"));
    EXPECT_GE(GetKeyState(VK_CONTROL), 0);
    EXPECT_LT(GetKeyState('V'), 0);
    keybd_event('V', 0, KEYEVENTF_KEYUP, 0);
    hand::settle();
    EXPECT_GE(GetKeyState('V'), 0);
}

}  // namespace
