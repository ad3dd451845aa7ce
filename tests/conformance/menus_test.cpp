// Popup menus.
#include <array>
#include <gmock/gmock.h>
#include <string>

#include "tests/conformance/hand.h"
#include "tests/conformance/log_window.h"

using namespace win;
using testing::ElementsAre;

namespace {

MENUITEMINFOA item(UINT mask) {
    MENUITEMINFOA info{};
    info.cbSize = sizeof info;
    info.fMask = mask;
    return info;
}

class Menus : public testing::Test {
protected:
    ~Menus() override { DestroyMenu(menu); }

    void add(HMENU to, const char* text, UINT id, UINT state = MFS_ENABLED, HMENU below = nullptr) {
        MENUITEMINFOA info = item(MIIM_STRING | MIIM_ID | MIIM_STATE);
        if (below) info.fMask |= MIIM_SUBMENU;
        std::string copy = text;
        info.dwTypeData = copy.data();
        info.wID = id;
        info.fState = state;
        info.hSubMenu = below;
        EXPECT_TRUE(InsertMenuItemA(to, static_cast<UINT>(GetMenuItemCount(to)), true, &info));
    }

    static std::string textAt(HMENU from, UINT which, bool byPosition) {
        std::array<char, 40> text{};
        MENUITEMINFOA info = item(MIIM_STRING);
        info.dwTypeData = text.data();
        info.cch = text.size();
        return GetMenuItemInfoA(from, which, byPosition, &info) ? text.data() : "no item";
    }

    HMENU menu = CreatePopupMenu();
};

TEST_F(Menus, ItemsStandWhereTheyWerePut) {
    add(menu, "one", 101);
    add(menu, "three", 103);
    MENUITEMINFOA info = item(MIIM_STRING | MIIM_ID);
    std::string two = "two";
    info.dwTypeData = two.data();
    info.wID = 102;
    InsertMenuItemA(menu, 1, true, &info);
    std::string zero = "zero";
    info.dwTypeData = zero.data();
    info.wID = 100;
    InsertMenuItemA(menu, 101, false, &info);
    EXPECT_EQ(GetMenuItemCount(menu), 4);
    for (UINT at = 0; at < 4; ++at) {
        MENUITEMINFOA read = item(MIIM_ID);
        GetMenuItemInfoA(menu, at, true, &read);
        EXPECT_EQ(read.wID, 100 + at);
    }
    EXPECT_EQ(textAt(menu, 102, false), "two");
    EXPECT_EQ(textAt(menu, 7, true), "no item");
    EXPECT_EQ(textAt(menu, 777, false), "no item");
}

TEST_F(Menus, AnItemIsRead) {
    HMENU below = CreatePopupMenu();
    add(below, "inner", 200);
    add(menu, "checked", 101, MFS_CHECKED | MFS_GRAYED);
    add(menu, "more", 102, MFS_ENABLED, below);
    MENUITEMINFOA line = item(MIIM_FTYPE);
    line.fType = MFT_SEPARATOR;
    InsertMenuItemA(menu, 2, true, &line);

    MENUITEMINFOA read = item(MIIM_STATE | MIIM_SUBMENU);
    EXPECT_TRUE(GetMenuItemInfoA(menu, 0, true, &read));
    EXPECT_EQ(read.fState, MFS_CHECKED | MFS_GRAYED);
    EXPECT_EQ(read.hSubMenu, nullptr);
    EXPECT_TRUE(GetMenuItemInfoA(menu, 1, true, &read));
    EXPECT_EQ(read.hSubMenu, below);
    read = item(MIIM_FTYPE);
    EXPECT_TRUE(GetMenuItemInfoA(menu, 2, true, &read));
    EXPECT_EQ(read.fType, MFT_SEPARATOR);
    EXPECT_EQ(textAt(menu, 200, false), "inner");

    read = item(MIIM_STRING);
    EXPECT_TRUE(GetMenuItemInfoA(menu, 0, true, &read));
    EXPECT_EQ(read.cch, 7u);
}

TEST_F(Menus, AnItemIsChanged) {
    add(menu, "before", 101);
    MENUITEMINFOA info = item(MIIM_STRING | MIIM_STATE);
    std::string after = "after";
    info.dwTypeData = after.data();
    info.fState = MFS_CHECKED;
    EXPECT_TRUE(SetMenuItemInfoA(menu, 101, false, &info));
    EXPECT_FALSE(SetMenuItemInfoA(menu, 9, true, &info));
    EXPECT_EQ(textAt(menu, 0, true), "after");
    MENUITEMINFOA read = item(MIIM_STATE | MIIM_ID);
    GetMenuItemInfoA(menu, 0, true, &read);
    EXPECT_EQ(read.fState, MFS_CHECKED);
    EXPECT_EQ(read.wID, 101u);
}

TEST_F(Menus, ARemovedSubMenuStaysAlive) {
    HMENU below = CreatePopupMenu();
    add(menu, "one", 101);
    add(menu, "more", 102, MFS_ENABLED, below);
    EXPECT_TRUE(RemoveMenu(menu, 1, MF_BYPOSITION));
    EXPECT_TRUE(RemoveMenu(menu, 101, MF_BYCOMMAND));
    EXPECT_FALSE(RemoveMenu(menu, 101, MF_BYCOMMAND));
    EXPECT_EQ(GetMenuItemCount(menu), 0);
    EXPECT_EQ(GetMenuItemCount(below), 0);
    EXPECT_TRUE(DestroyMenu(below));
}

TEST_F(Menus, AMenuGoesWithItsSubMenus) {
    HMENU outer = CreatePopupMenu();
    HMENU below = CreatePopupMenu();
    add(outer, "more", 1, MFS_ENABLED, below);
    EXPECT_TRUE(DestroyMenu(outer));
}

class ShownMenus : public Menus {
protected:
    ShownMenus() {
        add(menu, "one", 101);
        MENUITEMINFOA line = item(MIIM_FTYPE);
        line.fType = MFT_SEPARATOR;
        InsertMenuItemA(menu, 1, true, &line);
        HMENU below = CreatePopupMenu();
        add(below, "inner", 103);
        add(menu, "two", 102);
        add(menu, "more", 0, MFS_ENABLED, below);
        desk::pump();
    }

    static constexpr UINT flags = TPM_LEFTALIGN | TPM_RIGHTBUTTON;
    LogWindow a{"a", {.style = WS_POPUP | WS_VISIBLE, .place = {20, 20, 120, 120}}};
};

TEST_F(ShownMenus, TheChoiceIsTheResult) {
    hand::answerPopup(2);
    EXPECT_EQ(TrackPopupMenu(menu, flags | TPM_RETURNCMD | TPM_NONOTIFY, 150, 30, 0, a, nullptr),
              102);
    hand::settle();
    hand::answerPopup(1);
    EXPECT_EQ(TrackPopupMenu(menu, flags | TPM_RETURNCMD | TPM_NONOTIFY, 150, 30, 0, a, nullptr),
              101);
    hand::settle();
    hand::answerPopup(0);
    EXPECT_EQ(TrackPopupMenu(menu, flags | TPM_RETURNCMD | TPM_NONOTIFY, 150, 30, 0, a, nullptr),
              0);
    hand::settle();
}

TEST_F(ShownMenus, OrACommandOfTheOwner) {
    listenFor({WM_COMMAND});
    hand::answerPopup(2);
    EXPECT_TRUE(TrackPopupMenu(menu, flags, 150, 30, 0, a, nullptr));
    hand::settle();
    EXPECT_THAT(heard(), ElementsAre("a command 102 0"));
    hand::answerPopup(0);
    TrackPopupMenu(menu, flags, 150, 30, 0, a, nullptr);
    hand::settle();
    EXPECT_THAT(heard(), ElementsAre());
}

TEST_F(ShownMenus, AskTheirOwnerWhatALetterMeans) {
    static HMENU asked = nullptr;
    static int meaning = MNC_IGNORE;
    a.answer = [](UINT message, WPARAM wParam, LPARAM lParam) -> std::optional<LRESULT> {
        if (message != WM_MENUCHAR) return std::nullopt;
        EXPECT_TRUE(LOWORD(wParam) == 'Z' || LOWORD(wParam) == 'z');
        asked = reinterpret_cast<HMENU>(lParam);
        return makeLParam(2, meaning);
    };
    constexpr UINT choice = TPM_RETURNCMD | TPM_NONOTIFY;
    hand::answerPopupByLetter('Z');
    EXPECT_EQ(TrackPopupMenu(menu, flags | choice, 150, 30, 0, a, nullptr), 0);
    EXPECT_EQ(asked, menu);
    hand::settle();
    meaning = MNC_EXECUTE;
    hand::answerPopupByLetter('Z');
    EXPECT_EQ(TrackPopupMenu(menu, flags | choice, 150, 30, 0, a, nullptr), 102);
    hand::settle();
}

TEST_F(ShownMenus, EndWithoutAChoiceWhenTold) {
    hand::actInPopup([] { EXPECT_TRUE(EndMenu()); });
    EXPECT_EQ(TrackPopupMenu(menu, flags | TPM_RETURNCMD, 150, 30, 0, a, nullptr), 0);
    hand::settle();
}

TEST_F(ShownMenus, EndBeforeTheirOwnerGoes) {
    static HWND owner = nullptr;
    owner = a;
    hand::actInPopup([] {
        EXPECT_TRUE(EndMenu());
        DestroyWindow(owner);
    });
    EXPECT_EQ(TrackPopupMenu(menu, flags | TPM_RETURNCMD | TPM_NONOTIFY, 150, 30, 0, a, nullptr),
              0);
    hand::settle();
}

TEST_F(ShownMenus, TakeTheCapture) {
    SetCapture(a);
    hand::answerPopup(0);
    TrackPopupMenu(menu, flags | TPM_RETURNCMD, 150, 30, 0, a, nullptr);
    EXPECT_EQ(GetCapture(), nullptr);
    hand::settle();
}

}  // namespace
