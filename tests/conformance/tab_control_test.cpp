// The class "SysTabControl32".
#include <cstring>
#include <gmock/gmock.h>
#include <string>
#include <vector>

#include "platform/api/uxtheme.h"
#include "tests/conformance/parent.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct TabControl : testing::Test {
    Parent parent;
    win::HWND tabs = make(0);

    win::HWND make(win::DWORD style) {
        return parent.add(win::WC_TABCONTROLA, style, {0, 0, 300, 200});
    }
    win::LRESULT send(win::UINT message, int wParam = 0, win::LPARAM lParam = 0) {
        return win::SendMessageA(tabs, message, static_cast<win::WPARAM>(wParam), lParam);
    }
    int insert(int at, const char* caption) {
        win::TCITEMA item{};
        item.mask = win::TCIF_TEXT;
        item.pszText = const_cast<char*>(caption);
        return static_cast<int>(
            send(win::TCM_INSERTITEMA, at, reinterpret_cast<win::LPARAM>(&item)));
    }
    void fill() {
        insert(0, "One");
        insert(1, "Two");
        insert(2, "Three");
        parent.takeNotices();
    }
    std::string caption(int tab, int room = 50) {
        char text[50] = "";
        win::TCITEMA item{};
        item.mask = win::TCIF_TEXT;
        item.pszText = text;
        item.cchTextMax = room;
        if (!send(win::TCM_GETITEMA, tab, reinterpret_cast<win::LPARAM>(&item))) return "none";
        return item.pszText;
    }
    win::RECT place(int tab) {
        win::RECT found{-1, -1, -1, -1};
        send(win::TCM_GETITEMRECT, tab, reinterpret_cast<win::LPARAM>(&found));
        return found;
    }
    void clickOn(int tab) {
        const win::RECT at = place(tab);
        click(tabs, (at.left + at.right) / 2, (at.top + at.bottom) / 2);
    }
    int selected() { return static_cast<int>(send(win::TCM_GETCURSEL)); }
    std::vector<win::UINT> told() {
        std::vector<win::UINT> codes;
        for (const Notice& notice : parent.takeNotices()) codes.push_back(notice.code);
        return codes;
    }
    void restyle(win::DWORD style) {
        win::SetWindowLongPtrA(tabs, win::GWL_STYLE,
                               static_cast<win::LONG_PTR>(win::WS_CHILD | win::WS_VISIBLE | style));
    }
    // All tabs lie inside the control, and none on another.
    void expectApart() {
        const int count = static_cast<int>(send(win::TCM_GETITEMCOUNT));
        for (int left = 0; left < count; ++left) {
            const win::RECT a = place(left);
            EXPECT_GE(a.left, 0);
            EXPECT_GE(a.top, 0);
            EXPECT_LE(a.right, 300);
            EXPECT_LE(a.bottom, 200);
            EXPECT_LT(a.left, a.right);
            EXPECT_LT(a.top, a.bottom);
            for (int right = left + 1; right < count; ++right) {
                const win::RECT b = place(right);
                EXPECT_TRUE(a.right <= b.left || b.right <= a.left || a.bottom <= b.top ||
                            b.bottom <= a.top)
                    << left << " and " << right;
            }
        }
    }
};

TEST_F(TabControl, BeginsWithoutATab) {
    EXPECT_EQ(send(win::TCM_GETITEMCOUNT), 0);
    EXPECT_EQ(selected(), -1);
    EXPECT_EQ(send(win::TCM_SETCURSEL, 0), -1);
    EXPECT_EQ(send(win::WM_GETDLGCODE), win::DLGC_WANTARROWS | win::DLGC_WANTCHARS);
}

TEST_F(TabControl, TheFirstTabIsSelectedAndStaysSo) {
    EXPECT_EQ(insert(0, "One"), 0);
    EXPECT_EQ(selected(), 0);
    EXPECT_EQ(insert(9, "Last"), 1);
    EXPECT_EQ(insert(0, "Front"), 0);
    EXPECT_EQ(selected(), 1);
    EXPECT_EQ(insert(-1, "Nowhere"), -1);
    EXPECT_EQ(send(win::TCM_GETITEMCOUNT), 3);
    EXPECT_THAT(parent.takeNotices(), IsEmpty());
}

TEST_F(TabControl, TellsCaptionsAsFarAsThereIsRoom) {
    fill();
    EXPECT_EQ(caption(2), "Three");
    EXPECT_EQ(caption(2, 3), "Th");
    EXPECT_EQ(caption(3), "none");
}

TEST_F(TabControl, SelectingByMessageAnswersTheTabBefore) {
    fill();
    EXPECT_EQ(send(win::TCM_SETCURSEL, 2), 0);
    EXPECT_EQ(send(win::TCM_SETCURSEL, 2), 2);
    EXPECT_EQ(send(win::TCM_SETCURSEL, 3), -1);
    EXPECT_EQ(selected(), 2);
    EXPECT_EQ(send(win::TCM_SETCURSEL, -1), 2);
    EXPECT_EQ(selected(), -1);
    EXPECT_EQ(send(win::TCM_SETCURSEL, 1), -1);
    EXPECT_THAT(parent.takeNotices(), IsEmpty());
}

TEST_F(TabControl, AClickOnAnotherTabIsAskedForAndTold) {
    fill();
    clickOn(2);
    EXPECT_EQ(selected(), 2);
    EXPECT_EQ(win::GetFocus(), tabs);
    EXPECT_THAT(told(), ElementsAre(win::TCN_SELCHANGING, win::TCN_SELCHANGE, win::NM_CLICK));
    clickOn(2);
    EXPECT_THAT(told(), ElementsAre(win::NM_CLICK));
}

TEST_F(TabControl, TheParentMayForbidTheChange) {
    fill();
    parent.noticeAnswer = 1;
    clickOn(1);
    EXPECT_EQ(selected(), 0);
    EXPECT_THAT(told(), ElementsAre(win::TCN_SELCHANGING, win::NM_CLICK));
}

TEST_F(TabControl, AClickBesideTheTabsSelectsNothing) {
    fill();
    click(tabs, 150, 100);
    EXPECT_EQ(selected(), 0);
    EXPECT_THAT(told(), ElementsAre(win::NM_CLICK));
}

TEST_F(TabControl, ARightClickSelectsNothingAndOffersAMenu) {
    fill();
    const win::RECT at = place(1);
    click(tabs, (at.left + at.right) / 2, (at.top + at.bottom) / 2, MouseButton::right);
    EXPECT_EQ(selected(), 0);
    EXPECT_THAT(told(), ElementsAre(win::NM_RCLICK));
    EXPECT_EQ(parent.contextMenus, 1);
}

TEST_F(TabControl, TheArrowsGoFromTabToTab) {
    fill();
    pressKey(tabs, win::VK_LEFT);
    EXPECT_EQ(selected(), 0);
    EXPECT_THAT(told(), IsEmpty());
    pressKey(tabs, win::VK_RIGHT);
    EXPECT_EQ(selected(), 1);
    EXPECT_THAT(told(), ElementsAre(win::TCN_SELCHANGING, win::TCN_SELCHANGE));
    pressKey(tabs, win::VK_LEFT);
    EXPECT_EQ(selected(), 0);
    for (int key : {win::VK_HOME, win::VK_END, win::VK_DOWN, win::VK_UP, win::VK_SPACE})
        pressKey(tabs, key);
    EXPECT_EQ(selected(), 0);
}

TEST_F(TabControl, NeverTakesTheFocusWhenToldSo) {
    tabs = make(win::TCS_FOCUSNEVER);
    fill();
    win::SetFocus(parent.window());
    clickOn(1);
    EXPECT_EQ(selected(), 1);
    EXPECT_EQ(win::GetFocus(), parent.window());
}

TEST_F(TabControl, HasToolTipsOnlyWhenToldSo) {
    EXPECT_EQ(send(win::TCM_GETTOOLTIPS), 0);
    tabs = make(win::TCS_TOOLTIPS);
    auto tips = reinterpret_cast<win::HWND>(send(win::TCM_GETTOOLTIPS));
    ASSERT_NE(tips, nullptr);
    char name[40] = "";
    win::GetClassNameA(tips, name);
    EXPECT_STREQ(name, win::TOOLTIPS_CLASSA);
    EXPECT_EQ(win::GetWindow(tips, win::GW_OWNER), parent.window());
}

TEST_F(TabControl, TabsStandOnTheEdgeOfTheStyle) {
    fill();
    EXPECT_EQ(place(3).right, 0);
    EXPECT_LT(place(0).bottom, 40);
    EXPECT_LE(place(0).right, place(1).left);
    expectApart();
    restyle(win::TCS_BOTTOM);
    EXPECT_GT(place(0).top, 160);
    EXPECT_LE(place(0).right, place(1).left);
    expectApart();
    restyle(win::TCS_VERTICAL | win::TCS_MULTILINE);
    EXPECT_LT(place(0).right, 40);
    EXPECT_LE(place(0).bottom, place(1).top);
    expectApart();
    restyle(win::TCS_VERTICAL | win::TCS_RIGHT | win::TCS_MULTILINE);
    EXPECT_GT(place(0).left, 260);
    EXPECT_LE(place(0).bottom, place(1).top);
    expectApart();
    clickOn(1);
    EXPECT_EQ(selected(), 1);
}

TEST_F(TabControl, CanGoWithoutTheVisualStyle) {
    EXPECT_EQ(win::SetWindowTheme(tabs, L" ", L" "), 0);
    EXPECT_EQ(win::SetWindowTheme(nullptr, L" ", L" "), static_cast<win::HRESULT>(0x80070006));
}

TEST_F(TabControl, SeveralLinesOfTabsStandBesideEachOther) {
    for (win::DWORD edge : {win::DWORD{0}, win::TCS_BOTTOM, win::TCS_VERTICAL}) {
        tabs = make(win::TCS_MULTILINE | edge);
        for (int tab = 0; tab < 7; ++tab) insert(tab, "A long caption");
        expectApart();
        clickOn(6);
        EXPECT_EQ(selected(), 6);
    }
}

}  // namespace
