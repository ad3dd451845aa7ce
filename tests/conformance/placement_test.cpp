// Rectangles, frames and SetWindowPos.
#include <gmock/gmock.h>
#include <string>

#include "tests/conformance/log_window.h"

using namespace win;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr UINT keepLevel = SWP_NOZORDER | SWP_NOACTIVATE;
constexpr UINT keepPlace = SWP_NOMOVE | SWP_NOSIZE;

struct Margins {
    int left, top, right, bottom;
    bool operator==(const Margins&) const = default;
};

// What the frame takes from the window on each side.
Margins frame(const LogWindow& window) {
    RECT outer = window.rect();
    RECT inner = window.client();
    POINT origin{0, 0};
    ClientToScreen(window, &origin);
    return {origin.x - outer.left, origin.y - outer.top, outer.right - origin.x - inner.right,
            outer.bottom - origin.y - inner.bottom};
}

TEST(Placement, AFrameHasTheSameEdgeAroundAndACaptionAbove) {
    LogWindow a("a");
    Margins margins = frame(a);
    EXPECT_EQ(margins.left, margins.right);
    EXPECT_EQ(margins.left, margins.bottom);
    EXPECT_EQ(margins.top - margins.left, GetSystemMetrics(SM_CYCAPTION));
}

TEST(Placement, TheFrameStaysTheSameWhenTheSizeChanges) {
    LogWindow a("a");
    Margins before = frame(a);
    SetWindowPos(a, nullptr, 15, 16, 500, 300, keepLevel);
    EXPECT_EQ(a.rect(), (RECT{15, 16, 515, 316}));
    EXPECT_EQ(frame(a), before);
}

TEST(Placement, TheStyleMakesTheFrame) {
    LogWindow none("none", {.style = WS_POPUP});
    EXPECT_EQ(frame(none), (Margins{0, 0, 0, 0}));
    LogWindow border("border", {.style = WS_POPUP | WS_BORDER});
    EXPECT_EQ(frame(border), (Margins{1, 1, 1, 1}));
    LogWindow dialog("dialog", {.style = WS_POPUP | WS_CAPTION, .exStyle = WS_EX_DLGMODALFRAME});
    EXPECT_EQ(frame(dialog).left, 3);
    LogWindow parent("parent");
    LogWindow edge("edge", {.style = WS_CHILD, .exStyle = WS_EX_CLIENTEDGE, .parent = parent});
    EXPECT_EQ(frame(edge), (Margins{2, 2, 2, 2}));
}

TEST(Placement, AToolWindowHasALowerCaption) {
    LogWindow plain("plain", {.style = WS_POPUP | WS_CAPTION});
    LogWindow tool("tool", {.style = WS_POPUP | WS_CAPTION, .exStyle = WS_EX_TOOLWINDOW});
    EXPECT_LT(frame(tool).top, frame(plain).top);
    EXPECT_EQ(frame(tool).left, frame(plain).left);
}

TEST(Placement, AWindowSmallerThanItsFrameHasNoClientArea) {
    LogWindow a("a", {.style = WS_POPUP | WS_BORDER, .place = {40, 40, 41, 41}});
    EXPECT_EQ(a.client(), (RECT{0, 0, 0, 0}));
}

TEST(Placement, AChildIsPlacedInItsParentsClientArea) {
    LogWindow a("a");
    LogWindow b("b", {.style = WS_CHILD | WS_BORDER, .place = {10, 20, 110, 70}, .parent = a});
    POINT origin{0, 0};
    ClientToScreen(a, &origin);
    EXPECT_EQ(b.rect(), (RECT{origin.x + 10, origin.y + 20, origin.x + 110, origin.y + 70}));
    SetWindowPos(a, nullptr, 100, 100, 0, 0, SWP_NOSIZE | keepLevel);
    POINT moved{0, 0};
    ClientToScreen(a, &moved);
    EXPECT_EQ(b.rect().left, moved.x + 10);
    POINT back = moved;
    ScreenToClient(a, &back);
    EXPECT_EQ(back, (POINT{0, 0}));
    POINT inner{5, 6};
    ClientToScreen(b, &inner);
    EXPECT_EQ(inner, (POINT{moved.x + 10 + 1 + 5, moved.y + 20 + 1 + 6}));
}

TEST(Placement, MovingAndSizingAreToldApart) {
    LogWindow a("a", {.style = WS_POPUP, .place = {10, 10, 60, 60}});
    listenFor({WM_SIZE, WM_MOVE, WM_WINDOWPOSCHANGED});
    SetWindowPos(a, nullptr, 20, 30, 0, 0, SWP_NOSIZE | keepLevel);
    EXPECT_THAT(heard(), ElementsAre("a placed", "a move 20,30"));
    SetWindowPos(a, nullptr, 0, 0, 70, 80, SWP_NOMOVE | keepLevel);
    EXPECT_THAT(heard(), ElementsAre("a placed", "a size 0 70x80"));
    SetWindowPos(a, nullptr, 21, 31, 71, 81, keepLevel);
    EXPECT_THAT(heard(), ElementsAre("a placed", "a move 21,31", "a size 0 71x81"));
    SetWindowPos(a, nullptr, 21, 31, 71, 81, keepLevel);
    EXPECT_THAT(heard(), IsEmpty());
    SetWindowPos(a, nullptr, 0, 0, -5, -6, SWP_NOMOVE | keepLevel);
    EXPECT_THAT(heard(), ElementsAre("a placed", "a size 0 0x0"));
}

TEST(Placement, WhoeverTakesThePlaceMessageHearsNoSize) {
    LogWindow a("a", {.style = WS_POPUP, .place = {10, 10, 60, 60}});
    a.answer = [](UINT message, WPARAM, LPARAM) {
        return message == WM_WINDOWPOSCHANGED ? std::optional<LRESULT>(0) : std::nullopt;
    };
    listenFor({WM_SIZE, WM_MOVE, WM_WINDOWPOSCHANGED});
    SetWindowPos(a, nullptr, 20, 30, 70, 80, keepLevel);
    EXPECT_THAT(heard(), ElementsAre("a placed"));
}

TEST(Placement, SetWindowPosShowsAndHides) {
    LogWindow a("a", {.style = WS_POPUP, .place = {10, 10, 60, 60}});
    listenFor({WM_SIZE, WM_WINDOWPOSCHANGED, WM_SHOWWINDOW});
    SetWindowPos(a, nullptr, 0, 0, 0, 0, keepPlace | keepLevel | SWP_SHOWWINDOW);
    EXPECT_TRUE(IsWindowVisible(a));
    SetWindowPos(a, nullptr, 0, 0, 0, 0, keepPlace | keepLevel | SWP_SHOWWINDOW);
    SetWindowPos(a, nullptr, 0, 0, 0, 0, keepPlace | keepLevel | SWP_HIDEWINDOW);
    EXPECT_FALSE(IsWindowVisible(a));
    SetWindowPos(a, nullptr, 0, 0, 0, 0, keepPlace | keepLevel | SWP_HIDEWINDOW);
    EXPECT_THAT(heard(), ElementsAre("a placed", "a placed"));
}

TEST(Placement, AFrameChangeIsToldWithoutANewSize) {
    LogWindow a("a", {.style = WS_POPUP, .place = {10, 10, 60, 60}});
    listenFor({WM_SIZE, WM_MOVE, WM_WINDOWPOSCHANGED});
    SetWindowPos(a, nullptr, 0, 0, 0, 0, keepPlace | keepLevel | SWP_FRAMECHANGED);
    EXPECT_THAT(heard(), ElementsAre("a placed"));
    listenFor({WM_SIZE, WM_MOVE, WM_WINDOWPOSCHANGED});
    SetWindowLongPtrA(a, GWL_STYLE, static_cast<LONG_PTR>(WS_POPUP | WS_BORDER));
    SetWindowPos(a, nullptr, 0, 0, 0, 0, keepPlace | keepLevel | SWP_FRAMECHANGED);
    EXPECT_THAT(heard(), ElementsAre("a placed", "a move 11,11", "a size 0 48x48"));
}

TEST(Placement, ANewWindowStandsAboveTheOthersAndATopmostOneAboveAll) {
    LogWindow a("a", {.style = WS_POPUP});
    LogWindow top("top", {.style = WS_POPUP, .exStyle = WS_EX_TOPMOST});
    LogWindow b("b", {.style = WS_POPUP});
    EXPECT_THAT(desk::order({a, top, b}), ElementsAre(1, 2, 0));
}

TEST(Placement, LevelsChangeOnRequest) {
    LogWindow a("a", {.style = WS_POPUP});
    LogWindow b("b", {.style = WS_POPUP});
    LogWindow c("c", {.style = WS_POPUP});
    auto place = [](HWND window, HWND after) {
        SetWindowPos(window, after, 0, 0, 0, 0, keepPlace | SWP_NOACTIVATE);
    };
    EXPECT_THAT(desk::order({a, b, c}), ElementsAre(2, 1, 0));
    place(a, HWND_TOP);
    EXPECT_THAT(desk::order({a, b, c}), ElementsAre(0, 2, 1));
    place(a, HWND_BOTTOM);
    EXPECT_THAT(desk::order({a, b, c}), ElementsAre(2, 1, 0));
    place(c, b);
    EXPECT_THAT(desk::order({a, b, c}), ElementsAre(1, 2, 0));
    place(a, HWND_TOPMOST);
    EXPECT_TRUE(a.topmost());
    place(b, HWND_TOP);
    EXPECT_THAT(desk::order({a, b, c}), ElementsAre(0, 1, 2));
    place(a, HWND_TOP);
    EXPECT_TRUE(a.topmost());
    place(b, HWND_NOTOPMOST);
    EXPECT_THAT(desk::order({a, b, c}), ElementsAre(0, 1, 2));
    place(c, HWND_TOP);
    place(a, HWND_NOTOPMOST);
    EXPECT_FALSE(a.topmost());
    EXPECT_THAT(desk::order({a, b, c}), ElementsAre(0, 2, 1));
}

TEST(Placement, AWindowPutBehindAnotherTakesOverItsLevel) {
    LogWindow plain("plain", {.style = WS_POPUP});
    LogWindow one("one", {.style = WS_POPUP, .exStyle = WS_EX_TOPMOST});
    LogWindow two("two", {.style = WS_POPUP, .exStyle = WS_EX_TOPMOST});
    SetWindowPos(plain, two, 0, 0, 0, 0, keepPlace | SWP_NOACTIVATE);
    EXPECT_TRUE(plain.topmost());
    EXPECT_THAT(desk::order({plain, one, two}), ElementsAre(2, 0, 1));
    LogWindow other("other", {.style = WS_POPUP});
    SetWindowPos(plain, other, 0, 0, 0, 0, keepPlace | SWP_NOACTIVATE);
    EXPECT_FALSE(plain.topmost());
}

TEST(Placement, AnOwnedWindowStaysAboveItsOwner) {
    LogWindow a("a", {.style = WS_POPUP | WS_VISIBLE, .place = {10, 10, 90, 90}});
    LogWindow owned("owned",
                    {.style = WS_POPUP | WS_VISIBLE, .place = {20, 20, 60, 60}, .parent = a});
    LogWindow b("b", {.style = WS_POPUP | WS_VISIBLE, .place = {15, 15, 70, 70}});
    EXPECT_THAT(desk::order({a, owned, b}), ElementsAre(2, 1, 0));
    SetWindowPos(a, HWND_TOP, 0, 0, 0, 0, keepPlace | SWP_NOACTIVATE);
    EXPECT_THAT(desk::order({a, owned, b}), ElementsAre(1, 0, 2));
    SetWindowPos(a, HWND_TOPMOST, 0, 0, 0, 0, keepPlace | SWP_NOACTIVATE);
    EXPECT_TRUE(owned.topmost());
    EXPECT_THAT(desk::order({a, owned, b}), ElementsAre(1, 0, 2));
}

TEST(Placement, AWindowIsCreatedAboveItsTopmostOwner) {
    LogWindow a(
        "a", {.style = WS_POPUP | WS_VISIBLE, .exStyle = WS_EX_TOPMOST, .place = {10, 10, 90, 90}});
    LogWindow owned("owned",
                    {.style = WS_POPUP | WS_VISIBLE, .place = {20, 20, 60, 60}, .parent = a});
    EXPECT_THAT(desk::order({a, owned}), ElementsAre(1, 0));
}

TEST(Placement, ChildrenChangePlacesAmongThemselves) {
    LogWindow a("a");
    LogWindow b("b", {.style = WS_CHILD, .parent = a});
    LogWindow c("c", {.style = WS_CHILD, .parent = a});
    LogWindow d("d", {.style = WS_CHILD, .parent = a});
    SetWindowPos(d, b, 0, 0, 0, 0, keepPlace | SWP_NOACTIVATE);
    EXPECT_THAT(desk::order({b, c, d}), ElementsAre(0, 2, 1));
    SetWindowPos(c, HWND_TOP, 0, 0, 0, 0, keepPlace | SWP_NOACTIVATE);
    EXPECT_THAT(desk::order({b, c, d}), ElementsAre(1, 0, 2));
    SetWindowPos(c, HWND_BOTTOM, 0, 0, 0, 0, keepPlace);
    EXPECT_THAT(desk::order({b, c, d}), ElementsAre(0, 2, 1));
}

TEST(Placement, AnActivatedWindowComesToTheTop) {
    LogWindow a("a", {.style = WS_POPUP | WS_VISIBLE, .place = {10, 10, 60, 60}});
    LogWindow b("b", {.style = WS_POPUP | WS_VISIBLE, .place = {30, 10, 80, 60}});
    EXPECT_EQ(GetActiveWindow(), b);
    SetWindowPos(a, nullptr, 12, 12, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    EXPECT_EQ(GetActiveWindow(), a);
    EXPECT_THAT(desk::order({a, b}), ElementsAre(0, 1));
}

}  // namespace
