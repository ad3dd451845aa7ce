// What windows do by themselves.
#include <gmock/gmock.h>

#include "platform/api/gdi32.h"
#include "platform/api/kernel32.h"
#include "tests/conformance/hand.h"
#include "tests/conformance/log_window.h"

using namespace win;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Defaults : public testing::Test {
protected:
    LogWindow a{"a", {.style = WS_OVERLAPPEDWINDOW | WS_VISIBLE, .place = {40, 50, 340, 250}}};
    LogWindow c{"c", {.style = WS_CHILD | WS_VISIBLE, .place = {10, 10, 60, 60}, .parent = a}};

    LRESULT send(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
        return SendMessageA(window, message, wParam, lParam);
    }
};

TEST_F(Defaults, ManyMessagesComeToNothing) {
    for (UINT message :
         {WM_NULL,           WM_MOVE,         WM_SIZE,          WM_SETFOCUS,      WM_KILLFOCUS,
          WM_ENABLE,         WM_ENDSESSION,   WM_SETTINGCHANGE, WM_ACTIVATEAPP,   WM_COMMAND,
          WM_TIMER,          WM_GETDLGCODE,   WM_CHAR,          WM_KEYUP,         WM_SYSKEYUP,
          WM_MOUSEMOVE,      WM_LBUTTONDOWN,  WM_LBUTTONUP,     WM_LBUTTONDBLCLK, WM_RBUTTONDOWN,
          WM_RBUTTONDBLCLK,  WM_MBUTTONDOWN,  WM_MBUTTONUP,     WM_MBUTTONDBLCLK, WM_MOUSELEAVE,
          WM_CAPTURECHANGED, WM_EXITSIZEMOVE, DM_GETDEFID,      DM_SETDEFID}) {
        EXPECT_EQ(DefWindowProcA(c, message, 0, 0), 0) << message;
    }
    EXPECT_TRUE(IsWindowVisible(c));
}

TEST_F(Defaults, TheSessionMayEnd) {
    EXPECT_EQ(send(a, WM_QUERYENDSESSION), 1);
}

TEST_F(Defaults, ClosingDestroys) {
    send(a, WM_CLOSE);
    EXPECT_FALSE(IsWindow(a));
    EXPECT_FALSE(IsWindow(c));
}

TEST_F(Defaults, FontsAreKeptByControlsOnly) {
    LOGFONTA look{};
    look.lfHeight = -11;
    look.lfFaceName[0] = 'A';
    HFONT font = CreateFontIndirectA(&look);
    HWND control =
        CreateWindowExA(0, "STATIC", "", WS_CHILD, 0, 0, 9, 9, a, nullptr, nullptr, nullptr);
    send(a, WM_SETFONT, reinterpret_cast<WPARAM>(font));
    send(control, WM_SETFONT, reinterpret_cast<WPARAM>(font));
    EXPECT_EQ(send(a, WM_GETFONT), 0);
    EXPECT_EQ(send(control, WM_GETFONT), reinterpret_cast<LRESULT>(font));
    DestroyWindow(control);
    EXPECT_TRUE(DeleteObject(font));
}

TEST_F(Defaults, IconsAreExchanged) {
    auto icon = LoadImageA(nullptr, resourceName(32512), IMAGE_ICON, 0, 0, LR_SHARED);
    ASSERT_NE(icon, nullptr);
    for (int which : {ICON_SMALL, ICON_BIG}) {
        auto kind = static_cast<WPARAM>(which);
        EXPECT_EQ(send(a, WM_GETICON, kind), 0);
        EXPECT_EQ(send(a, WM_SETICON, kind, reinterpret_cast<LPARAM>(icon)), 0);
        EXPECT_EQ(send(a, WM_GETICON, kind), reinterpret_cast<LRESULT>(icon));
        EXPECT_EQ(send(a, WM_SETICON, kind, 0), reinterpret_cast<LRESULT>(icon));
    }
}

TEST_F(Defaults, WithoutRedrawAWindowCountsAsHidden) {
    send(a, WM_SETREDRAW, 0);
    EXPECT_FALSE(IsWindowVisible(a));
    send(a, WM_SETREDRAW, 1);
    EXPECT_TRUE(IsWindowVisible(a));
}

TEST_F(Defaults, TheCursorIsTheParentsAffairFirst) {
    HCURSOR wait = LoadCursorA(nullptr, resourceName(IDC_WAIT_NUMBER));
    HCURSOR arrow = LoadCursorA(nullptr, resourceName(IDC_ARROW_NUMBER));
    EXPECT_NE(wait, arrow);
    SetCursor(wait);
    WPARAM over = reinterpret_cast<WPARAM>(HWND(c));
    LPARAM where = makeLParam(HTCLIENT, static_cast<int>(WM_MOUSEMOVE));
    EXPECT_EQ(send(c, WM_SETCURSOR, over, where), 0);
    EXPECT_EQ(SetCursor(wait), arrow);
    a.answer = [](UINT message, WPARAM, LPARAM) {
        return message == WM_SETCURSOR ? std::optional<LRESULT>(1) : std::nullopt;
    };
    EXPECT_EQ(send(c, WM_SETCURSOR, over, where), 1);
    EXPECT_EQ(SetCursor(arrow), wait);
}

TEST_F(Defaults, AClassWithoutACursorSetsNone) {
    WNDCLASSEXA definition{};
    definition.cbSize = sizeof definition;
    definition.lpfnWndProc = DefWindowProcA;
    definition.hInstance = GetModuleHandleA(nullptr);
    definition.lpszClassName = "WithoutCursor";
    RegisterClassExA(&definition);
    HWND plain = CreateWindowExA(0, "WithoutCursor", "", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr,
                                 nullptr, nullptr);
    HCURSOR wait = LoadCursorA(nullptr, resourceName(IDC_WAIT_NUMBER));
    SetCursor(wait);
    EXPECT_EQ(send(plain, WM_SETCURSOR, reinterpret_cast<WPARAM>(plain),
                   makeLParam(HTCLIENT, static_cast<int>(WM_MOUSEMOVE))),
              0);
    EXPECT_EQ(SetCursor(nullptr), wait);
    DestroyWindow(plain);
}

TEST_F(Defaults, StaticTextStandsOnTheDialogColour) {
    HDC context = GetDC(a);
    EXPECT_EQ(send(a, WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(context),
                   reinterpret_cast<LPARAM>(HWND(c))),
              reinterpret_cast<LRESULT>(GetSysColorBrush(COLOR_BTNFACE)));
    ReleaseDC(a, context);
}

TEST_F(Defaults, TheRightButtonAsksForAMenuAndTheParentHears) {
    listenFor({WM_CONTEXTMENU});
    send(c, WM_RBUTTONUP, 0, makeLParam(3, 4));
    POINT point{3, 4};
    ClientToScreen(c, &point);
    std::string words = "menu " + std::to_string(point.x) + "," + std::to_string(point.y);
    EXPECT_THAT(heard(), ElementsAre("c " + words, "a " + words));
}

TEST_F(Defaults, TheWheelGoesUpToTheParent) {
    listenFor({WM_MOUSEWHEEL});
    send(c, WM_MOUSEWHEEL, makeWParam(0, -120), makeLParam(60, 70));
    EXPECT_THAT(heard(), ElementsAre("c wheel -120", "a wheel -120"));
}

TEST_F(Defaults, SystemCommandsMinimiseRestoreAndClose) {
    send(a, WM_SYSCOMMAND, SC_MINIMIZE);
    EXPECT_TRUE(IsIconic(a));
    send(a, WM_SYSCOMMAND, SC_RESTORE);
    EXPECT_FALSE(IsIconic(a));
    listenFor({WM_CLOSE});
    a.answer = [](UINT message, WPARAM, LPARAM) {
        return message == WM_CLOSE ? std::optional<LRESULT>(0) : std::nullopt;
    };
    send(a, WM_SYSCOMMAND, SC_CLOSE);
    EXPECT_THAT(heard(), ElementsAre("a close"));
    EXPECT_TRUE(IsWindow(a));
}

TEST_F(Defaults, AWindowShowsAndHidesWithItsOwner) {
    constexpr LPARAM ownerCloses = 1;
    LogWindow owned("owned",
                    {.style = WS_POPUP | WS_VISIBLE, .place = {60, 60, 90, 90}, .parent = a});
    send(owned, WM_SHOWWINDOW, 0);
    EXPECT_TRUE(IsWindowVisible(owned));
    send(owned, WM_SHOWWINDOW, 0, ownerCloses);
    EXPECT_FALSE(IsWindowVisible(owned));
    send(c, WM_SHOWWINDOW, 0, ownerCloses);
    EXPECT_TRUE(IsWindowVisible(c));
}

TEST_F(Defaults, TheHitTestTellsCaptionFromClientArea) {
    RECT rect = a.rect();
    POINT inside{5, 5};
    ClientToScreen(a, &inside);
    EXPECT_EQ(send(a, WM_NCHITTEST, 0, makeLParam(inside.x, inside.y)), HTCLIENT);
    EXPECT_EQ(send(a, WM_NCHITTEST, 0, makeLParam(rect.left + 100, inside.y - 10)), HTCAPTION);
}

TEST_F(Defaults, AltF4Closes) {
    a.answer = [](UINT message, WPARAM, LPARAM) {
        return message == WM_CLOSE ? std::optional<LRESULT>(0) : std::nullopt;
    };
    SetFocus(c);
    listenFor({WM_SYSCOMMAND, WM_CLOSE});
    hand::keyDown(VK_MENU);
    hand::keyDown(VK_F4);
    hand::keyUp(VK_F4);
    hand::settle();
    hand::keyUp(VK_MENU);
    hand::settle();
    EXPECT_THAT(heard(), testing::IsSupersetOf({"a system command " + std::to_string(SC_CLOSE),
                                                std::string("a close")}));
}

TEST_F(Defaults, ShiftF10AsksForAMenu) {
    SetFocus(c);
    listenFor({WM_CONTEXTMENU});
    hand::keyDown(VK_SHIFT);
    hand::keyDown(VK_F10);
    hand::settle();
    hand::keyUp(VK_SHIFT);
    hand::settle();
    EXPECT_THAT(heard(), ElementsAre("c menu -1,-1", "a menu -1,-1"));
}

TEST_F(Defaults, TheMenuKeyAsksForAMenuWhenItIsLetGo) {
    SetFocus(c);
    listenFor({WM_KEYDOWN, WM_CONTEXTMENU});
    hand::keyDown(VK_APPS);
    hand::settle();
    EXPECT_THAT(heard(), ElementsAre("c key down 93"));
    hand::keyUp(VK_APPS);
    hand::settle();
    EXPECT_THAT(heard(), ElementsAre("c menu -1,-1", "a menu -1,-1"));
}

// F10 is not let go here: under Wine that would open the system menu, and wait in it.
TEST_F(Defaults, AButtonLeavesTheMenuToItsParent) {
    HWND button = CreateWindowExA(0, "BUTTON", "", WS_CHILD | WS_VISIBLE, 70, 10, 90, 60, a,
                                  nullptr, nullptr, nullptr);
    SetFocus(button);
    listenFor({WM_CONTEXTMENU});
    hand::keyDown(VK_APPS);
    hand::keyUp(VK_APPS);
    hand::settle();
    EXPECT_THAT(heard(), ElementsAre("a menu -1,-1"));
    hand::keyDown(VK_SHIFT);
    hand::keyDown(VK_F10);
    hand::settle();
    hand::keyUp(VK_SHIFT);
    hand::settle();
    EXPECT_THAT(heard(), ElementsAre("a menu -1,-1"));
}

TEST_F(Defaults, ACaptionIsDragged) {
    // A window without a frame, so that no window manager has a hand in it.
    LogWindow pad("pad", {.style = WS_POPUP | WS_VISIBLE, .place = {400, 60, 500, 160}});
    pad.answer = [](UINT message, WPARAM, LPARAM) {
        return message == WM_NCHITTEST ? std::optional<LRESULT>(HTCAPTION) : std::nullopt;
    };
    listenFor({WM_NCLBUTTONDOWN, WM_EXITSIZEMOVE});
    hand::dragByCaption(pad, {430, 100});
    for (int tries = 0; pad.rect().left != 430 && tries < 50; ++tries) hand::settle();
    hand::settle();
    EXPECT_EQ(pad.rect(), (RECT{430, 100, 530, 200}));
    EXPECT_THAT(heard(), ElementsAre("pad caption down 2", "pad drag over"));
}

}  // namespace
