// ShowWindow, minimising, maximising and the placement record.
#include <gmock/gmock.h>
#include <string>

#include "tests/conformance/hand.h"
#include "tests/conformance/log_window.h"

using namespace win;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

namespace {

WINDOWPLACEMENT placementOf(HWND window) {
    WINDOWPLACEMENT placement{};
    placement.length = sizeof placement;
    EXPECT_TRUE(GetWindowPlacement(window, &placement));
    return placement;
}

RECT workArea() {
    RECT area{};
    EXPECT_TRUE(SystemParametersInfoA(SPI_GETWORKAREA, 0, &area, 0));
    return area;
}

std::string clientWords(const LogWindow& window) {
    RECT client = window.client();
    return std::to_string(client.right) + "x" + std::to_string(client.bottom);
}

class Show : public testing::Test {
protected:
    LogWindow a{"a"};
    RECT place = a.rect();
};

TEST_F(Show, AnswersWhetherTheWindowWasVisible) {
    EXPECT_FALSE(ShowWindow(a, SW_SHOWNORMAL));
    EXPECT_TRUE(ShowWindow(a, SW_SHOW));
    EXPECT_TRUE(ShowWindow(a, SW_HIDE));
    EXPECT_FALSE(ShowWindow(a, SW_HIDE));
    EXPECT_FALSE(IsWindowVisible(a));
}

TEST_F(Show, ShowingActivatesUnlessAskedNotTo) {
    LogWindow b("b", {.style = WS_POPUP, .place = {50, 60, 90, 90}});
    ShowWindow(a, SW_SHOWNORMAL);
    EXPECT_EQ(GetActiveWindow(), a);
    ShowWindow(b, SW_SHOWNA);
    EXPECT_EQ(GetActiveWindow(), a);
    ShowWindow(b, SW_HIDE);
    EXPECT_EQ(GetActiveWindow(), a);
    ShowWindow(b, SW_SHOWNOACTIVATE);
    EXPECT_EQ(GetActiveWindow(), a);
    EXPECT_TRUE(IsWindowVisible(b));
    ShowWindow(b, SW_HIDE);
    ShowWindow(b, SW_SHOW);
    EXPECT_EQ(GetActiveWindow(), b);
    ShowWindow(b, SW_HIDE);
    EXPECT_EQ(GetActiveWindow(), a);
}

TEST_F(Show, AVisibleWindowIsLeftAlone) {
    ShowWindow(a, SW_SHOWNORMAL);
    LogWindow b("b", {.style = WS_POPUP | WS_VISIBLE, .place = {50, 60, 90, 90}});
    ShowWindow(a, SW_SHOWNORMAL);
    EXPECT_EQ(GetActiveWindow(), b);
    ShowWindow(a, SW_SHOW);
    EXPECT_EQ(GetActiveWindow(), b);
}

TEST_F(Show, AChildIsShownWithoutActivation) {
    ShowWindow(a, SW_SHOWNORMAL);
    LogWindow c("c", {.style = WS_CHILD, .place = {0, 0, 30, 30}, .parent = a});
    LogWindow other("other", {.style = WS_POPUP | WS_VISIBLE, .place = {50, 60, 90, 90}});
    listenFor({WM_SHOWWINDOW, WM_WINDOWPOSCHANGED});
    ShowWindow(c, SW_SHOW);
    ShowWindow(c, SW_HIDE);
    EXPECT_EQ(GetActiveWindow(), other);
    EXPECT_THAT(heard(), ElementsAre("c show 0", "c placed", "c hide 0", "c placed"));
}

TEST_F(Show, MinimisingKeepsThePlaceToComeBackTo) {
    ShowWindow(a, SW_SHOWNORMAL);
    listenFor({WM_SIZE});
    ShowWindow(a, SW_MINIMIZE);
    EXPECT_TRUE(IsIconic(a));
    EXPECT_TRUE(IsWindowVisible(a));
    EXPECT_THAT(heard(), ElementsAre("a size 1 0x0"));
    EXPECT_EQ(a.client(), (RECT{0, 0, 0, 0}));
    WINDOWPLACEMENT placement = placementOf(a);
    EXPECT_EQ(placement.showCmd, static_cast<UINT>(SW_SHOWMINIMIZED));
    EXPECT_EQ(placement.rcNormalPosition, place);
    ShowWindow(a, SW_RESTORE);
    EXPECT_FALSE(IsIconic(a));
    EXPECT_EQ(a.rect(), place);
    EXPECT_THAT(heard(), ElementsAre("a size 0 " + clientWords(a)));
    EXPECT_EQ(placementOf(a).showCmd, static_cast<UINT>(SW_SHOWNORMAL));
}

TEST_F(Show, ThePlacementIsKeptWhileHidden) {
    WINDOWPLACEMENT placement = placementOf(a);
    EXPECT_EQ(placement.showCmd, static_cast<UINT>(SW_SHOWNORMAL));
    EXPECT_EQ(placement.rcNormalPosition, place);
    ShowWindow(a, SW_SHOWNORMAL);
    ShowWindow(a, SW_MINIMIZE);
    ShowWindow(a, SW_HIDE);
    EXPECT_TRUE(IsIconic(a));
    EXPECT_EQ(placementOf(a).rcNormalPosition, place);
    ShowWindow(a, SW_SHOWNORMAL);
    EXPECT_FALSE(IsIconic(a));
    EXPECT_EQ(a.rect(), place);
}

TEST_F(Show, MinimisingHandsTheActivityOn) {
    LogWindow b("b", {.style = WS_POPUP | WS_VISIBLE, .place = {50, 60, 90, 90}});
    ShowWindow(a, SW_SHOWNORMAL);
    EXPECT_EQ(GetActiveWindow(), a);
    ShowWindow(a, SW_MINIMIZE);
    // Wine leaves the minimised window active.
    EXPECT_EQ(GetActiveWindow() == b, !hand::underWine());
    ShowWindow(a, SW_RESTORE);
    EXPECT_EQ(GetActiveWindow(), a);
    ShowWindow(a, SW_SHOWMINIMIZED);
    ShowWindow(a, SW_SHOWMINIMIZED);
    EXPECT_EQ(GetActiveWindow(), a);
    ShowWindow(a, SW_SHOWNOACTIVATE);
    EXPECT_FALSE(IsIconic(a));
}

TEST_F(Show, AHiddenWindowCanComeUpMinimised) {
    LogWindow b("b", {.style = WS_POPUP | WS_VISIBLE, .place = {50, 60, 90, 90}});
    listenFor({WM_SHOWWINDOW, WM_SIZE});
    ShowWindow(a, SW_SHOWMINNOACTIVE);
    EXPECT_TRUE(IsIconic(a));
    EXPECT_TRUE(IsWindowVisible(a));
    EXPECT_EQ(GetActiveWindow(), b);
    EXPECT_THAT(heard(), ElementsAre("a size 1 0x0", "a size 1 0x0"));
    ShowWindow(a, SW_HIDE);
    ShowWindow(a, SW_SHOWMINNOACTIVE);
    EXPECT_THAT(heard(), ElementsAre("a hide 0", "a show 0"));
    ShowWindow(a, SW_SHOW);
    EXPECT_TRUE(IsIconic(a));
    EXPECT_EQ(placementOf(a).rcNormalPosition, place);
}

TEST_F(Show, AMaximisedWindowCoversTheWorkArea) {
    ShowWindow(a, SW_SHOWNORMAL);
    listenFor({WM_SIZE});
    ShowWindow(a, SW_SHOWMAXIMIZED);
    EXPECT_TRUE(IsZoomed(a));
    EXPECT_THAT(heard(), ElementsAre("a size 2 " + clientWords(a)));
    RECT area = workArea();
    EXPECT_LE(a.rect().left, area.left);
    EXPECT_GE(a.rect().right, area.right);
    EXPECT_EQ(a.client().right, area.right - area.left);
    WINDOWPLACEMENT placement = placementOf(a);
    EXPECT_EQ(placement.showCmd, static_cast<UINT>(SW_SHOWMAXIMIZED));
    EXPECT_EQ(placement.rcNormalPosition, place);
    ShowWindow(a, SW_SHOWMAXIMIZED);
    EXPECT_THAT(heard(), IsEmpty());
    ShowWindow(a, SW_RESTORE);
    EXPECT_FALSE(IsZoomed(a));
    EXPECT_EQ(a.rect(), place);
}

TEST_F(Show, AWindowThatWasMaximisedComesBackMaximised) {
    ShowWindow(a, SW_SHOWMAXIMIZED);
    RECT large = a.rect();
    ShowWindow(a, SW_MINIMIZE);
    EXPECT_FALSE(IsZoomed(a));
    EXPECT_TRUE(IsIconic(a));
    ShowWindow(a, SW_RESTORE);
    EXPECT_TRUE(IsZoomed(a));
    EXPECT_EQ(a.rect(), large);
    ShowWindow(a, SW_SHOWNORMAL);
    EXPECT_EQ(a.rect(), place);
}

TEST_F(Show, APlacementTellsThatAWindowComesBackMaximised) {
    ShowWindow(a, SW_SHOWMAXIMIZED);
    EXPECT_EQ(placementOf(a).flags, 0u);
    ShowWindow(a, SW_MINIMIZE);
    WINDOWPLACEMENT placement = placementOf(a);
    EXPECT_NE(placement.flags, 0u);
    SetWindowPlacement(a, &placement);
    ShowWindow(a, SW_RESTORE);
    EXPECT_TRUE(IsZoomed(a));
}

TEST_F(Show, APlacementCanBeSet) {
    WINDOWPLACEMENT placement = placementOf(a);
    placement.rcNormalPosition = {60, 70, 260, 220};
    placement.showCmd = static_cast<UINT>(SW_SHOWNORMAL);
    EXPECT_TRUE(SetWindowPlacement(a, &placement));
    EXPECT_TRUE(IsWindowVisible(a));
    EXPECT_EQ(placementOf(a).rcNormalPosition, (RECT{60, 70, 260, 220}));
    ShowWindow(a, SW_MINIMIZE);
    placement.rcNormalPosition = {80, 90, 280, 240};
    placement.showCmd = static_cast<UINT>(SW_SHOWMINNOACTIVE);
    EXPECT_TRUE(SetWindowPlacement(a, &placement));
    EXPECT_TRUE(IsIconic(a));
    EXPECT_EQ(placementOf(a).rcNormalPosition, (RECT{80, 90, 280, 240}));
    ShowWindow(a, SW_RESTORE);
    EXPECT_EQ(placementOf(a).rcNormalPosition, (RECT{80, 90, 280, 240}));
}

TEST_F(Show, APlacementCanHide) {
    ShowWindow(a, SW_SHOWNORMAL);
    ShowWindow(a, SW_MINIMIZE);
    ShowWindow(a, SW_HIDE);
    WINDOWPLACEMENT placement = placementOf(a);
    placement.rcNormalPosition = {60, 70, 260, 220};
    placement.showCmd = static_cast<UINT>(SW_HIDE);
    EXPECT_TRUE(SetWindowPlacement(a, &placement));
    EXPECT_FALSE(IsWindowVisible(a));
    EXPECT_EQ(placementOf(a).rcNormalPosition, (RECT{60, 70, 260, 220}));
}

TEST_F(Show, AToolWindowsPlacementIsInPixelsOfTheScreen) {
    LogWindow tool("tool", {.style = WS_POPUP, .exStyle = WS_EX_TOOLWINDOW});
    WINDOWPLACEMENT placement = placementOf(tool);
    EXPECT_EQ(placement.rcNormalPosition, tool.rect());
    placement.rcNormalPosition = {60, 70, 260, 220};
    placement.showCmd = static_cast<UINT>(SW_SHOWNA);
    SetWindowPlacement(tool, &placement);
    EXPECT_EQ(tool.rect(), (RECT{60, 70, 260, 220}));
}

TEST_F(Show, OwnedWindowsVanishWithTheirMinimisedOwner) {
    ShowWindow(a, SW_SHOWNORMAL);
    LogWindow owned("owned",
                    {.style = WS_POPUP | WS_VISIBLE, .place = {60, 60, 90, 90}, .parent = a});
    LogWindow hidden("hidden", {.style = WS_POPUP, .place = {60, 60, 90, 90}, .parent = a});
    listenFor({WM_SHOWWINDOW});
    SendMessageA(a, WM_SYSCOMMAND, SC_MINIMIZE, 0);
    EXPECT_FALSE(IsWindowVisible(owned));
    SendMessageA(a, WM_SYSCOMMAND, SC_RESTORE, 0);
    EXPECT_TRUE(IsWindowVisible(owned));
    EXPECT_FALSE(IsWindowVisible(hidden));
    EXPECT_THAT(heard(),
                ElementsAre("owned hide 1", "owned hide 0", "owned show 3", "owned show 0"));
    ShowWindow(a, SW_MINIMIZE);
    EXPECT_EQ(IsWindowVisible(owned), hand::underWine());
}

}  // namespace
