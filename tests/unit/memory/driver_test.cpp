// The tests' hand on the memory desktop.
#include "platform/memory/driver.h"

#include <gmock/gmock.h>
#include <string>
#include <vector>

#include "platform/api/comctl32.h"
#include "platform/api/gdi32.h"
#include "platform/api/kernel32.h"
#include "platform/api/user32.h"

using namespace win;
namespace driver = win::memory::driver;
using testing::ElementsAre;

namespace {

std::vector<std::string> heard;
LRESULT sessionAnswer = 1;

LRESULT listen(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_ACTIVATEAPP: heard.push_back(wParam ? "back" : "away"); break;
        case WM_TIMER: heard.push_back("timer " + std::to_string(wParam)); break;
        case WM_QUERYENDSESSION: heard.push_back("may it end"); return sessionAnswer;
        case WM_ENDSESSION: heard.push_back(wParam ? "it ends" : "it goes on"); break;
        case WM_SETTINGCHANGE: heard.push_back("setting"); break;
        case WM_CHAR: heard.push_back(std::string(1, static_cast<char>(wParam))); break;
        case WM_LBUTTONDOWN: heard.push_back("down"); break;
        case WM_LBUTTONDBLCLK: heard.push_back("double"); break;
        case WM_DPICHANGED: heard.push_back("dpi " + std::to_string(LOWORD(wParam))); break;
    }
    return DefWindowProcA(window, message, wParam, lParam);
}

class Driver : public testing::Test {
protected:
    Driver() {
        heard.clear();
        window = make();
        heard.clear();
    }
    ~Driver() override { DestroyWindow(window); }

    static HWND make() {
        WNDCLASSEXA definition{};
        definition.cbSize = sizeof definition;
        definition.style = CS_DBLCLKS;
        definition.lpfnWndProc = listen;
        definition.lpszClassName = "Listener";
        RegisterClassExA(&definition);
        return CreateWindowExA(0, "Listener", "listener", WS_POPUP | WS_VISIBLE, 10, 10, 200, 100,
                               nullptr, nullptr, nullptr, nullptr);
    }

    HWND window = nullptr;
};

TEST_F(Driver, TheClockLetsTimersFireInTheirOrder) {
    SetTimer(window, 1, 100, nullptr);
    SetTimer(window, 2, 70, nullptr);
    driver::advance(200);
    EXPECT_THAT(heard, ElementsAre("timer 2", "timer 1", "timer 2", "timer 1"));
}

TEST_F(Driver, AnActionRunsInThePumpThatWasNamed) {
    auto pumpOnce = [] {
        MSG message{};
        while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageA(&message);
    };
    int ran = 0;
    int before = driver::pumps();
    driver::atPump(2, [&] { ran = driver::pumps(); });
    pumpOnce();
    driver::pump();
    EXPECT_EQ(ran, 0);
    pumpOnce();
    EXPECT_EQ(ran, before + 2);
    EXPECT_EQ(driver::pumps(), before + 2);
}

TEST_F(Driver, IdleActionsEndModalLoops) {
    std::string order;
    driver::whenIdle([&] { order += "one "; });
    driver::whenIdle([&] {
        order += "two";
        PostQuitMessage(0);
    });
    MSG message{};
    while (GetMessageA(&message, nullptr, 0, 0)) DispatchMessageA(&message);
    EXPECT_EQ(order, "one two");
}

TEST_F(Driver, TheMouseClicksAndDoubleClicks) {
    driver::click(window, {5, 5});
    driver::doubleClick(window, driver::middleOf(window));
    EXPECT_THAT(heard, ElementsAre("down", "down", "double"));
}

TEST_F(Driver, TextIsTypedByteByByte) {
    driver::type("aB 7!\xE4");
    EXPECT_THAT(heard, ElementsAre("a", "B", " ", "7", "!", "\xE4"));
}

TEST_F(Driver, AMenuIsSeenAndAnswered) {
    HMENU below = CreatePopupMenu();
    HMENU menu = CreatePopupMenu();
    auto add = [](HMENU to, const char* text, UINT id, UINT state, HMENU sub) {
        MENUITEMINFOA info{};
        info.cbSize = sizeof info;
        info.fMask = MIIM_STRING | MIIM_ID | MIIM_STATE | MIIM_SUBMENU;
        std::string copy = text;
        info.dwTypeData = copy.data();
        info.wID = id;
        info.fState = state;
        info.hSubMenu = sub;
        InsertMenuItemA(to, 99, true, &info);
    };
    add(menu, "&Open\tCtrl+O", 1, MFS_CHECKED, nullptr);
    add(menu, "Closed", 2, MFS_GRAYED, nullptr);
    add(menu, "More", 3, MFS_ENABLED, below);
    add(below, "&Inner", 4, MFS_ENABLED, nullptr);
    driver::onPopup([&](const driver::Popup& popup) {
        EXPECT_EQ(popup.owner, window);
        EXPECT_EQ(popup.at.x, 30);
        EXPECT_TRUE(popup.menu.at("Open").checked);
        EXPECT_FALSE(popup.menu.at("Closed").enabled);
        return popup.menu.at("Inner").id;
    });
    EXPECT_EQ(TrackPopupMenu(menu, TPM_RETURNCMD, 30, 40, 0, window, nullptr), 4);
    driver::choose("Open");
    EXPECT_EQ(TrackPopupMenu(menu, TPM_RETURNCMD, 30, 40, 0, window, nullptr), 1);
    DestroyMenu(menu);
}

TEST_F(Driver, ABoxIsSeenAndAnswered) {
    driver::answerMessageBox(IDNO);
    EXPECT_EQ(MessageBoxA(window, "text", "caption", MB_YESNO), IDNO);
    ASSERT_EQ(driver::messageBoxes().size(), 1u);
    EXPECT_EQ(driver::messageBoxes()[0].text, "text");
    EXPECT_EQ(driver::messageBoxes()[0].caption, "caption");
    EXPECT_EQ(driver::messageBoxes()[0].owner, window);
}

TEST_F(Driver, ACallFailsWhenItIsToldTo) {
    UINT flags = SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOSIZE;
    driver::failCall("SetWindowPos", 2, ERROR_ACCESS_DENIED);
    EXPECT_TRUE(SetWindowPos(window, nullptr, 1, 1, 0, 0, flags));
    EXPECT_EQ(driver::faultsLeft(), 1);
    EXPECT_FALSE(SetWindowPos(window, nullptr, 2, 2, 0, 0, flags));
    EXPECT_EQ(GetLastError(), ERROR_ACCESS_DENIED);
    EXPECT_EQ(driver::faultsLeft(), 0);
    EXPECT_TRUE(SetWindowPos(window, nullptr, 3, 3, 0, 0, flags));
}

TEST_F(Driver, AnotherApplicationComesAndGoes) {
    driver::deactivateApplication();
    EXPECT_EQ(GetActiveWindow(), nullptr);
    driver::activateApplication();
    EXPECT_EQ(GetActiveWindow(), window);
    EXPECT_THAT(heard, ElementsAre("away", "back"));
}

TEST_F(Driver, TheSessionEndsWhenEveryoneAgrees) {
    sessionAnswer = 0;
    EXPECT_FALSE(driver::endSession());
    sessionAnswer = 1;
    EXPECT_TRUE(driver::endSession());
    EXPECT_THAT(heard, ElementsAre("may it end", "it goes on", "may it end", "it ends"));
}

TEST_F(Driver, TheScreenChanges) {
    driver::setScreen(800, 600);
    EXPECT_EQ(GetSystemMetrics(SM_CXSCREEN), 800);
    driver::setWorkArea({0, 30, 800, 600});
    driver::changeDpi(window, 144, {0, 0, 300, 150});
    EXPECT_THAT(heard, ElementsAre("setting", "dpi 144"));
    // A placement counts from the work area.
    WINDOWPLACEMENT placement{};
    placement.length = sizeof placement;
    GetWindowPlacement(window, &placement);
    EXPECT_EQ(placement.rcNormalPosition.top, 10 - 30);
    HDC context = GetDC(nullptr);
    EXPECT_EQ(GetDeviceCaps(context, LOGPIXELSX), 144);
    ReleaseDC(nullptr, context);
}

TEST_F(Driver, WhatIsAliveIsCounted) {
    driver::Counts before = driver::live();
    HMENU menu = CreatePopupMenu();
    SetTimer(window, 1, 50, nullptr);
    HDC context = GetDC(window);
    HICON icon = static_cast<HICON>(
        LoadImageA(nullptr, resourceName(32512), IMAGE_ICON, 16, 16, LR_DEFAULTCOLOR));
    HWND other = make();
    LOGFONTA look{};
    look.lfFaceName[0] = 'A';
    HFONT font = CreateFontIndirectA(&look);
    driver::Counts now = driver::live();
    EXPECT_EQ(now.windows, before.windows + 1);
    EXPECT_EQ(now.menus, before.menus + 1);
    EXPECT_EQ(now.timers, before.timers + 1);
    EXPECT_EQ(now.deviceContexts, before.deviceContexts + 1);
    EXPECT_EQ(now.icons, before.icons + 1);
    EXPECT_EQ(now.gdiObjects, before.gdiObjects + 1);
    DestroyMenu(menu);
    KillTimer(window, 1);
    ReleaseDC(window, context);
    DestroyIcon(icon);
    DestroyWindow(other);
    DeleteObject(font);
    EXPECT_EQ(driver::live(), before);
}

TEST_F(Driver, WindowsAreFound) {
    HWND child = CreateWindowExA(0, "STATIC", "inside", WS_CHILD, 0, 0, 9, 9, window, nullptr,
                                 nullptr, nullptr);
    EXPECT_EQ(driver::findWindow("listener", ""), window);
    EXPECT_EQ(driver::findWindow("", "inside"), child);
    EXPECT_EQ(driver::findChild(window, "Static", "inside"), child);
    EXPECT_EQ(driver::findWindow("Static", "elsewhere"), nullptr);
}

TEST_F(Driver, TheCursorIsShown) {
    EXPECT_EQ(driver::cursor(), 0);
    SetCursor(LoadCursorA(nullptr, resourceName(IDC_WAIT_NUMBER)));
    EXPECT_EQ(driver::cursor(), IDC_WAIT_NUMBER);
}

TEST_F(Driver, ADragEndsWhereItIsTold) {
    driver::dragTo(300, 200);
    SendMessageA(window, WM_NCLBUTTONDOWN, static_cast<WPARAM>(HTCAPTION), 0);
    RECT rect{};
    GetWindowRect(window, &rect);
    EXPECT_EQ(rect.left, 300);
    EXPECT_EQ(rect.top, 200);
}

TEST_F(Driver, AToolTipIsReadHoweverLong) {
    INITCOMMONCONTROLSEX classes{sizeof classes, ICC_BAR_CLASSES};
    InitCommonControlsEx(&classes);
    HWND tips = CreateWindowExA(0, TOOLTIPS_CLASSA, "", WS_POPUP | TTS_ALWAYSTIP, CW_USEDEFAULT,
                                CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, window, nullptr,
                                nullptr, nullptr);
    std::string text(200, 't');
    TTTOOLINFOA tool{};
    tool.cbSize = sizeof tool;
    tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    tool.hwnd = window;
    tool.uId = reinterpret_cast<UINT_PTR>(window);
    tool.lpszText = text.data();
    EXPECT_EQ(driver::toolTip(window), "");
    SendMessageA(tips, TTM_ADDTOOLA, 0, reinterpret_cast<LPARAM>(&tool));
    EXPECT_EQ(driver::toolTip(window), text);
}

}  // namespace
