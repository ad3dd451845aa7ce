// The class "msctls_statusbar32".
#include <gmock/gmock.h>
#include <string>
#include <vector>

#include "tests/conformance/parent.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct StatusBar : testing::Test {
    Parent parent;
    win::HWND bar = parent.add(win::STATUSCLASSNAMEA, win::SBARS_SIZEGRIP | win::SBARS_TOOLTIPS,
                               {0, 0, 0, 0}, "first");

    win::LRESULT send(win::UINT message, win::WPARAM wParam = 0, win::LPARAM lParam = 0) {
        return win::SendMessageA(bar, message, wParam, lParam);
    }
    win::LRESULT divide(std::vector<win::INT> edges) {
        return send(win::SB_SETPARTS, edges.size(), reinterpret_cast<win::LPARAM>(edges.data()));
    }
    win::LRESULT set(win::WPARAM part, const char* text) {
        return send(win::SB_SETTEXTA, part, reinterpret_cast<win::LPARAM>(text));
    }
    // An empty text may leave the buffer as it was.
    std::string text(win::WPARAM part) {
        char buffer[100] = "untouched";
        const win::LRESULT length =
            send(win::SB_GETTEXTA, part, reinterpret_cast<win::LPARAM>(buffer));
        EXPECT_EQ(send(win::SB_GETTEXTLENGTHA, part), length);
        return length == 0 ? "" : buffer;
    }
    std::string tip(win::WPARAM part) {
        char buffer[100] = "untouched";
        send(win::SB_GETTIPTEXTA, win::makeWParam(static_cast<int>(part), 100),
             reinterpret_cast<win::LPARAM>(buffer));
        return buffer;
    }
    void expectDocked() {
        win::RECT place{};
        win::RECT area{};
        win::GetWindowRect(bar, &place);
        win::GetClientRect(parent.window(), &area);
        win::POINT corner{0, area.bottom};
        win::ClientToScreen(parent.window(), &corner);
        EXPECT_EQ(place.left, corner.x);
        EXPECT_EQ(place.bottom, corner.y);
        EXPECT_EQ(place.right - place.left, area.right);
        EXPECT_GT(place.bottom - place.top, 10);
        EXPECT_LT(place.bottom - place.top, 40);
    }
};

TEST_F(StatusBar, BeginsWithOnePartAndTheWindowsText) {
    EXPECT_EQ(send(win::SB_GETPARTS), 1);
    EXPECT_EQ(text(0), "first");
}

TEST_F(StatusBar, DocksItselfAtTheBottom) {
    expectDocked();
    win::SetWindowPos(parent.window(), nullptr, 0, 0, 500, 300,
                      win::SWP_NOMOVE | win::SWP_NOZORDER);
    send(win::WM_SIZE);
    expectDocked();
    win::SetWindowPos(bar, nullptr, 5, 5, 50, 90, win::SWP_NOZORDER);
    expectDocked();
}

TEST_F(StatusBar, IsDividedAtTheEdges) {
    EXPECT_TRUE(divide({100, 200, -1}));
    std::vector<win::INT> edges(5, 9);
    EXPECT_EQ(send(win::SB_GETPARTS, 5, reinterpret_cast<win::LPARAM>(edges.data())), 3);
    EXPECT_THAT(edges, ElementsAre(100, 200, -1, 9, 9));
    EXPECT_FALSE(divide({}));
    EXPECT_EQ(send(win::SB_GETPARTS), 3);
}

TEST_F(StatusBar, KeepsATextForEachPart) {
    divide({100, 200, -1});
    EXPECT_TRUE(set(1, "second"));
    EXPECT_TRUE(set(2, ""));
    EXPECT_FALSE(set(3, "nowhere"));
    EXPECT_EQ(text(0), "first");
    EXPECT_EQ(text(1), "second");
    EXPECT_EQ(text(2), "");
    EXPECT_EQ(text(3), "");
    EXPECT_TRUE(set(1, nullptr));
    EXPECT_EQ(text(1), "");
}

TEST_F(StatusBar, ForgetsTheTextsOfPartsThatGo) {
    divide({100, 200, -1});
    set(1, "stays");
    set(2, "goes");
    divide({100, -1});
    divide({100, 200, -1});
    EXPECT_EQ(text(1), "stays");
    EXPECT_EQ(text(2), "");
}

TEST_F(StatusBar, TheWindowsTextIsThatOfTheFirstPart) {
    divide({100, -1});
    EXPECT_TRUE(win::SetWindowTextA(bar, "by window"));
    EXPECT_EQ(text(0), "by window");
    set(0, "by part");
    char buffer[100] = "";
    EXPECT_EQ(win::GetWindowTextA(bar, buffer), 7);
    EXPECT_STREQ(buffer, "by part");
}

TEST_F(StatusBar, KeepsATipForEachPart) {
    divide({100, -1});
    send(win::SB_SETTIPTEXTA, 1, reinterpret_cast<win::LPARAM>("what it means"));
    send(win::SB_SETTIPTEXTA, 9, reinterpret_cast<win::LPARAM>("nowhere"));
    EXPECT_EQ(tip(1), "what it means");
    EXPECT_EQ(tip(9), "");
}

TEST_F(StatusBar, TellsWhichPartIsClicked) {
    divide({100, 200, -1});
    parent.takeNotices();
    click(bar, 110, 8);
    EXPECT_THAT(parent.takeNotices(), ElementsAre(Notice{.code = win::NM_CLICK, .item = 1}));
    EXPECT_EQ(parent.lastPoint.x, 110);
    EXPECT_EQ(parent.lastPoint.y, 8);
    secondClick(bar, 250, 8);
    EXPECT_THAT(parent.takeNotices(), ElementsAre(Notice{.code = win::NM_DBLCLK, .item = 2},
                                                  Notice{.code = win::NM_CLICK, .item = 2}));
    click(bar, 10, 8, MouseButton::right);
    EXPECT_THAT(parent.takeNotices(), ElementsAre(Notice{.code = win::NM_RCLICK}));
    EXPECT_EQ(parent.contextMenus, 1);
    secondClick(bar, 10, 8, MouseButton::right);
    EXPECT_THAT(parent.takeNotices(),
                ElementsAre(Notice{.code = win::NM_RDBLCLK}, Notice{.code = win::NM_RCLICK}));
}

}  // namespace
