// Creating and destroying windows, their relations and their words.
#include <array>
#include <gmock/gmock.h>
#include <string>

#include "platform/api/kernel32.h"
#include "tests/conformance/log_window.h"

using namespace win;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr DWORD childStyle = WS_CHILD | WS_VISIBLE;

std::string textOf(HWND window) {
    std::array<char, 64> text{};
    GetWindowTextA(window, text);
    return text.data();
}

TEST(Windows, AnOverlappedWindowIsToldItsSizeWhenItIsFirstShown) {
    listenFor({WM_CREATE, WM_SIZE, WM_SHOWWINDOW});
    LogWindow a("a");
    EXPECT_THAT(heard(), ElementsAre("a create"));
    RECT client = a.client();
    std::string size = std::to_string(client.right) + "x" + std::to_string(client.bottom);
    ShowWindow(a, SW_SHOWNORMAL);
    EXPECT_THAT(heard(), ElementsAre("a show 0", "a size 0 " + size));
    ShowWindow(a, SW_HIDE);
    ShowWindow(a, SW_SHOW);
    EXPECT_THAT(heard(), ElementsAre("a hide 0", "a show 0"));
}

TEST(Windows, AChildAndAPopupAreToldTheirSizeAtOnce) {
    LogWindow a("a");
    listenFor({WM_CREATE, WM_SIZE, WM_MOVE, WM_SHOWWINDOW});
    LogWindow b("b", {.style = WS_CHILD, .place = {10, 20, 110, 70}, .parent = a, .id = 5});
    EXPECT_THAT(heard(), ElementsAre("b create", "b size 0 100x50", "b move 10,20"));
    LogWindow c("c", {.style = WS_POPUP, .place = {30, 40, 80, 60}});
    EXPECT_THAT(heard(), ElementsAre("c create", "c size 0 50x20", "c move 30,40"));
}

TEST(Windows, CreationBringsItsParameters) {
    LogWindow a("a");
    struct Seen {
        void* param = nullptr;
        HWND parent = nullptr;
        HMENU id = nullptr;
        int x = 0, y = 0, cx = 0, cy = 0;
        LONG style = 0;
        DWORD exStyle = 0;
        std::string name, className, text;
        bool visible = true;
    };
    static Seen seen;
    WNDCLASSEXA definition{};
    definition.cbSize = sizeof definition;
    definition.lpszClassName = "CreationProbe";
    definition.hInstance = GetModuleHandleA(nullptr);
    definition.lpfnWndProc = [](HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message == WM_CREATE) {
            const auto& create = *reinterpret_cast<const CREATESTRUCTA*>(lParam);
            seen = {create.lpCreateParams,
                    create.hwndParent,
                    create.hMenu,
                    create.x,
                    create.y,
                    create.cx,
                    create.cy,
                    create.style,
                    create.dwExStyle,
                    create.lpszName,
                    create.lpszClass,
                    textOf(window),
                    (GetWindowLongPtrA(window, GWL_STYLE) & WS_VISIBLE) != 0};
        }
        return DefWindowProcA(window, message, wParam, lParam);
    };
    RegisterClassExA(&definition);
    int mark = 0;
    HWND made = CreateWindowExA(WS_EX_CLIENTEDGE, "creationprobe", "name", childStyle, 1, 2, 30, 40,
                                a, reinterpret_cast<HMENU>(std::intptr_t{77}), nullptr, &mark);
    EXPECT_EQ(seen.param, &mark);
    EXPECT_EQ(seen.parent, a);
    EXPECT_EQ(seen.id, reinterpret_cast<HMENU>(std::intptr_t{77}));
    EXPECT_EQ(seen.x, 1);
    EXPECT_EQ(seen.y, 2);
    EXPECT_EQ(seen.cx, 30);
    EXPECT_EQ(seen.cy, 40);
    EXPECT_EQ(static_cast<DWORD>(seen.style), childStyle);
    EXPECT_EQ(seen.exStyle & WS_EX_CLIENTEDGE, WS_EX_CLIENTEDGE);
    EXPECT_EQ(seen.name, "name");
    EXPECT_EQ(seen.className, "creationprobe");
    EXPECT_EQ(seen.text, "name");
    EXPECT_FALSE(seen.visible);
    EXPECT_TRUE((GetWindowLongPtrA(made, GWL_STYLE) & WS_VISIBLE) != 0);
    std::array<char, 32> name{};
    EXPECT_EQ(GetClassNameA(made, name), 13);
    EXPECT_STREQ(name.data(), "CreationProbe");
}

TEST(Windows, AClassIsRegisteredOnce) {
    WNDCLASSEXA definition{};
    definition.cbSize = sizeof definition;
    definition.lpszClassName = "RegisteredOnce";
    definition.lpfnWndProc = DefWindowProcA;
    definition.hInstance = GetModuleHandleA(nullptr);
    EXPECT_NE(RegisterClassExA(&definition), 0);
    definition.lpszClassName = "REGISTEREDONCE";
    EXPECT_EQ(RegisterClassExA(&definition), 0);
}

TEST(Windows, SystemClassesHaveTheirNames) {
    LogWindow a("a");
    for (const char* wanted : {"Button", "Static", "Edit", "ComboBox"}) {
        HWND made = CreateWindowExA(0, wanted, "", WS_CHILD | (wanted[0] == 'C' ? 3u : 0u), 0, 0, 9,
                                    9, a, nullptr, nullptr, nullptr);
        ASSERT_NE(made, nullptr) << wanted;
        std::array<char, 32> name{};
        GetClassNameA(made, name);
        EXPECT_STREQ(name.data(), wanted);
    }
}

TEST(Windows, ThePlatformCompletesTheStyle) {
    LogWindow a("a", {.style = 0});
    EXPECT_EQ(GetWindowLongPtrA(a, GWL_STYLE), LONG_PTR{WS_CAPTION | WS_CLIPSIBLINGS});
    LogWindow b("b", {.style = WS_POPUP});
    EXPECT_EQ(GetWindowLongPtrA(b, GWL_STYLE), LONG_PTR{WS_POPUP | WS_CLIPSIBLINGS});
    LogWindow c("c", {.style = WS_CHILD, .parent = a});
    EXPECT_EQ(GetWindowLongPtrA(c, GWL_STYLE), LONG_PTR{WS_CHILD});
}

TEST(Windows, ADefaultPlaceIsNothingForAPopup) {
    HWND made = CreateWindowExA(0, "STATIC", "", WS_POPUP, CW_USEDEFAULT, CW_USEDEFAULT,
                                CW_USEDEFAULT, CW_USEDEFAULT, nullptr, nullptr, nullptr, nullptr);
    RECT rect{};
    GetWindowRect(made, &rect);
    EXPECT_EQ(rect, (RECT{0, 0, 0, 0}));
    DestroyWindow(made);
}

TEST(Windows, ADefaultPlaceIsLargeForAnOverlappedWindow) {
    LogWindow a("a", {.defaultPlace = true});
    RECT rect = a.rect();
    EXPECT_GT(rect.right - rect.left, 200);
    EXPECT_GT(rect.bottom - rect.top, 200);
}

TEST(Windows, DestroyingTellsTheParentFirstAndReleasesChildrenFirst) {
    LogWindow a("a");
    LogWindow b("b", {.style = childStyle, .place = {0, 0, 50, 50}, .parent = a});
    LogWindow c("c", {.style = childStyle, .place = {0, 0, 20, 20}, .parent = b});
    LogWindow d("d", {.style = childStyle, .place = {0, 0, 20, 20}, .parent = a});
    ShowWindow(a, SW_SHOWNORMAL);
    listenFor({WM_DESTROY, WM_NCDESTROY});
    EXPECT_TRUE(DestroyWindow(a));
    EXPECT_THAT(heard(), ElementsAre("a destroy", "b destroy", "c destroy", "d destroy",
                                     "c ncdestroy", "b ncdestroy", "d ncdestroy", "a ncdestroy"));
    for (HWND each : {HWND(a), HWND(b), HWND(c), HWND(d)}) EXPECT_FALSE(IsWindow(each));
}

TEST(Windows, OwnedWindowsGoBeforeTheirOwner) {
    LogWindow a("a");
    LogWindow b("b", {.style = WS_POPUP | WS_VISIBLE, .parent = a});
    listenFor({WM_DESTROY, WM_NCDESTROY, WM_SHOWWINDOW});
    DestroyWindow(a);
    EXPECT_THAT(heard(), ElementsAre("b destroy", "b ncdestroy", "a destroy", "a ncdestroy"));
}

TEST(Windows, DestroyingAVisibleChildHidesItFirst) {
    LogWindow a("a");
    LogWindow b("b", {.style = childStyle, .place = {0, 0, 50, 50}, .parent = a});
    ShowWindow(a, SW_SHOWNORMAL);
    listenFor({WM_DESTROY, WM_SHOWWINDOW});
    DestroyWindow(b);
    EXPECT_THAT(heard(), ElementsAre("b hide 0", "b destroy"));
}

TEST(Windows, ParentsAndOwnersAreToldApart) {
    LogWindow a("a");
    LogWindow child("child", {.style = WS_CHILD, .parent = a});
    LogWindow inner("inner", {.style = WS_CHILD, .parent = child});
    LogWindow popup("popup", {.style = WS_POPUP, .parent = inner});
    LogWindow overlapped("overlapped", {.parent = a});
    EXPECT_EQ(GetParent(child), a);
    EXPECT_EQ(GetParent(a), nullptr);
    EXPECT_EQ(GetParent(popup), a);
    EXPECT_EQ(GetParent(overlapped), nullptr);
    EXPECT_EQ(GetWindow(overlapped, GW_OWNER), a);
    EXPECT_EQ(GetWindow(popup, GW_OWNER), a);
    EXPECT_EQ(GetWindow(child, GW_OWNER), nullptr);
    EXPECT_EQ(GetAncestor(inner, GA_ROOT), a);
    EXPECT_EQ(GetAncestor(popup, GA_ROOT), popup);
}

TEST(Windows, ChildrenStandInTheOrderOfTheirCreation) {
    LogWindow a("a");
    EXPECT_EQ(GetWindow(a, GW_CHILD), nullptr);
    LogWindow b("b", {.style = WS_CHILD, .parent = a});
    LogWindow c("c", {.style = WS_CHILD, .parent = a});
    EXPECT_EQ(GetWindow(a, GW_CHILD), b);
    EXPECT_EQ(GetWindow(b, GW_HWNDNEXT), c);
    EXPECT_EQ(GetWindow(c, GW_HWNDNEXT), nullptr);
    EXPECT_EQ(GetWindow(c, GW_HWNDPREV), b);
    EXPECT_EQ(GetWindow(b, GW_HWNDPREV), nullptr);
}

TEST(Windows, WordsAreKept) {
    LogWindow a("a");
    LogWindow b("b", {.style = WS_CHILD, .parent = a, .id = 12});
    EXPECT_EQ(GetWindowLongPtrA(b, GWLP_ID), 12);
    EXPECT_EQ(SetWindowLongPtrA(b, GWLP_ID, 13), 12);
    EXPECT_EQ(GetWindowLongPtrA(b, GWLP_ID), 13);
    LONG_PTR mine = GetWindowLongPtrA(b, GWLP_USERDATA);
    EXPECT_EQ(SetWindowLongPtrA(b, GWLP_USERDATA, mine), mine);
    LONG_PTR style = GetWindowLongPtrA(b, GWL_STYLE);
    EXPECT_EQ(SetWindowLongPtrA(b, GWL_STYLE, style | WS_TABSTOP), style);
    EXPECT_EQ(GetWindowLongPtrA(b, GWL_STYLE), style | WS_TABSTOP);
}

TEST(Windows, TheLevelIsNotAWord) {
    LogWindow a("a", {.style = WS_POPUP});
    SetWindowLongPtrA(a, GWL_EXSTYLE, WS_EX_TOPMOST | WS_EX_CONTROLPARENT);
    EXPECT_FALSE(a.topmost());
    EXPECT_TRUE((GetWindowLongPtrA(a, GWL_EXSTYLE) & WS_EX_CONTROLPARENT) != 0);
    LogWindow b("b", {.style = WS_POPUP, .exStyle = WS_EX_TOPMOST});
    SetWindowLongPtrA(b, GWL_EXSTYLE, 0);
    EXPECT_TRUE(b.topmost());
}

WNDPROC previousProcedure = nullptr;
int textsSet = 0;

LRESULT countTexts(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_SETTEXT) ++textsSet;
    return CallWindowProcA(previousProcedure, window, message, wParam, lParam);
}

TEST(Windows, AProcedureCanBeReplaced) {
    LogWindow a("a");
    HWND made =
        CreateWindowExA(0, "STATIC", "before", WS_CHILD, 0, 0, 9, 9, a, nullptr, nullptr, nullptr);
    previousProcedure = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrA(made, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(countTexts)));
    EXPECT_EQ(GetWindowLongPtrA(made, GWLP_WNDPROC), reinterpret_cast<LONG_PTR>(countTexts));
    EXPECT_TRUE(SetWindowTextA(made, "after"));
    EXPECT_EQ(textsSet, 1);
    EXPECT_EQ(textOf(made), "after");
}

TEST(Windows, TextIsCutToTheBuffer) {
    LogWindow a("window");
    EXPECT_EQ(GetWindowTextLengthA(a), 6);
    std::array<char, 4> small{'x', 'x', 'x', 'x'};
    EXPECT_EQ(GetWindowTextA(a, small), 3);
    EXPECT_STREQ(small.data(), "win");
    EXPECT_EQ(GetWindowTextA(a, std::span<char>()), 0);
    std::array<char, 4> name{'x', 'x', 'x', 'x'};
    EXPECT_EQ(GetClassNameA(a, name), 3);
    EXPECT_STREQ(name.data(), "Log");
    SetWindowTextA(a, "other");
    EXPECT_EQ(textOf(a), "other");
    SendMessageA(a, WM_SETTEXT, 0, 0);
    EXPECT_EQ(textOf(a), "");
}

TEST(Windows, EnablingTellsTheWindowOnlyAtAChange) {
    LogWindow a("a");
    listenFor({WM_ENABLE});
    EXPECT_FALSE(EnableWindow(a, true));
    EXPECT_FALSE(EnableWindow(a, false));
    EXPECT_FALSE(IsWindowEnabled(a));
    EXPECT_TRUE(EnableWindow(a, false));
    EXPECT_TRUE(EnableWindow(a, true));
    EXPECT_TRUE(IsWindowEnabled(a));
    EXPECT_THAT(heard(), ElementsAre("a disable", "a enable"));
}

TEST(Windows, AWindowIsVisibleWhenAllItsParentsAre) {
    LogWindow a("a");
    LogWindow b("b", {.style = childStyle, .parent = a});
    EXPECT_FALSE(IsWindowVisible(b));
    ShowWindow(a, SW_SHOWNORMAL);
    EXPECT_TRUE(IsWindowVisible(b));
    ShowWindow(b, SW_HIDE);
    EXPECT_FALSE(IsWindowVisible(b));
}

TEST(Windows, AnInvalidWindowIsPaintedAtOnceOnRequest) {
    LogWindow a("a", {.style = WS_POPUP | WS_VISIBLE, .place = {20, 20, 90, 90}});
    desk::pump();
    UpdateWindow(a);
    listenFor({WM_PAINT});
    EXPECT_TRUE(UpdateWindow(a));
    EXPECT_TRUE(InvalidateRect(a, nullptr, true));
    EXPECT_TRUE(UpdateWindow(a));
    EXPECT_TRUE(UpdateWindow(a));
    EXPECT_THAT(heardSoFar(), ElementsAre("a paint"));
}

TEST(Windows, RedrawingPaintsAWindowAndAllThatShowsInItAtOnce) {
    constexpr UINT all = RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW;
    LogWindow a("a", {.style = WS_POPUP | WS_VISIBLE, .place = {20, 20, 220, 220}});
    LogWindow b("b", {.style = childStyle, .place = {0, 0, 90, 90}, .parent = a});
    LogWindow c("c", {.style = childStyle, .place = {10, 10, 50, 50}, .parent = b});
    LogWindow d("d", {.style = WS_CHILD, .place = {100, 0, 150, 50}, .parent = a});
    desk::pump();
    listenFor({WM_PAINT});
    EXPECT_TRUE(RedrawWindow(a, nullptr, nullptr, all));
    EXPECT_THAT(heardSoFar(), ElementsAre("a paint", "b paint", "c paint"));
    EXPECT_TRUE(RedrawWindow(b, nullptr, nullptr, all));
    EXPECT_THAT(heardSoFar(), ElementsAre("b paint", "c paint"));
    ShowWindow(b, SW_HIDE);
    desk::pump();
    heardSoFar();
    EXPECT_TRUE(RedrawWindow(b, nullptr, nullptr, all));
    EXPECT_THAT(heardSoFar(), IsEmpty());
}

TEST(Windows, HandlesThatAreNumbersAreTheirOwn) {
    // Null, bottom, topmost, not topmost: no window has such a handle.
    LogWindow a("a");
    for (HWND special : {HWND_TOP, HWND_BOTTOM, HWND_TOPMOST, HWND_NOTOPMOST}) {
        EXPECT_NE(HWND(a), special);
        EXPECT_FALSE(IsWindow(special));
    }
}

}  // namespace
