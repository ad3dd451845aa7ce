// Menus: tables to popups.
#include "platform/controls/menu.h"

#include "platform/api/user32.h"
#include "tests/unit/controls/controls_test.h"

namespace magpie {
namespace {

using testing::ElementsAre;

Form owner({.className = "Owner", .caption = "Owner", .clientWidth = 6000, .clientHeight = 4500});

MenuItem plain, line, sub, inner, deep, deepest, last;

const MenuRow table[] = {
    {0, &plain, "&Plain"}, {0, &line, "-"},
    {0, &sub, "Sub"},      {1, &inner, "Inner", "Ctrl+A"},
    {1, &deep, "Deep"},    {2, &deepest, "Deepest"},
    {0, &last, "Last"},
};

class MenuTest : public ControlsTest {
public:
    static std::vector<std::string> captions(const std::vector<driver::MenuLine>& lines) {
        std::vector<std::string> all;
        for (const driver::MenuLine& each : lines)
            all.push_back(each.separator ? "-" : each.caption);
        return all;
    }

    // What the popup of the table shows; nothing is chosen.
    static driver::Popup shown() {
        driver::Popup seen;
        driver::onPopup([&seen](const driver::Popup& popup) {
            seen = popup;
            return 0u;
        });
        PopupMenu(owner, table);
        return seen;
    }

    static driver::Popup shownAt(win::POINT at) {
        driver::Popup seen;
        driver::onPopup([&seen](const driver::Popup& popup) {
            seen = popup;
            return 0u;
        });
        PopupMenu(owner, table, at);
        return seen;
    }

    static void choose(char letter) { chooseRow(table, *rowWithShortcut(table, letter)); }
};

TEST_F(MenuTest, ATableBecomesAPopupWithItsSubMenus) {
    const driver::Popup popup = shown();
    EXPECT_EQ(popup.owner, owner.hWnd());
    EXPECT_THAT(captions(popup.menu.lines), ElementsAre("&Plain", "-", "Sub", "Last"));
    EXPECT_THAT(captions(popup.menu.at("Sub").lines), ElementsAre("Inner\tCtrl+A", "Deep"));
    EXPECT_THAT(captions(popup.menu.at("Deep").lines), ElementsAre("Deepest"));
}

TEST_F(MenuTest, APopupStandsAtThePointer) {
    owner.Show();
    driver::moveMouse(owner.hWnd(), {50, 60});
    win::POINT at{50, 60};
    win::ClientToScreen(owner.hWnd(), &at);
    const driver::Popup popup = shown();
    EXPECT_EQ(popup.at.x, at.x);
    EXPECT_EQ(popup.at.y, at.y);
}

TEST_F(MenuTest, OrAtAPlaceOfTheScreen) {
    const driver::Popup popup = shownAt({300, 200});
    EXPECT_EQ(popup.at.x, 300);
    EXPECT_EQ(popup.at.y, 200);
}

TEST_F(MenuTest, TheChosenItemRunsOnceTheMenuHasGone) {
    deepest.Index = 4;
    deepest.onClick = [](int index) {
        note("deepest " + std::to_string(index) + " with " + std::to_string(driver::live().menus) +
             " menus");
    };
    driver::choose("Deepest");
    PopupMenu(owner, table);
    EXPECT_THAT(noted, ElementsAre("deepest 4 with 0 menus"));
}

TEST_F(MenuTest, NothingRunsWhenNothingIsChosen) {
    for (MenuItem* item : {&plain, &inner, &last}) item->onClick = [] { note("ran"); };
    shown();
    EXPECT_THAT(noted, ElementsAre());
    EXPECT_EQ(driver::live().menus, 0);
}

TEST_F(MenuTest, AnItemWithoutARoutineMayBeChosen) {
    driver::choose("Last");
    PopupMenu(owner, table);
    EXPECT_THAT(noted, ElementsAre());
}

TEST_F(MenuTest, MarksAndGreyItemsAreShown) {
    inner.Checked = true;
    last.Enabled = false;
    const driver::Popup popup = shown();
    EXPECT_TRUE(popup.menu.at("Inner").checked);
    EXPECT_FALSE(popup.menu.at("Plain").checked);
    EXPECT_FALSE(popup.menu.at("Last").enabled);
    EXPECT_TRUE(popup.menu.at("Inner").enabled);
}

TEST_F(MenuTest, AGreySubMenuCannotBeOpened) {
    sub.Enabled = false;
    EXPECT_FALSE(shown().menu.at("Sub").enabled);
}

TEST_F(MenuTest, InvisibleItemsAreNotThere) {
    plain.Visible = line.Visible = deep.Visible = false;
    const driver::Popup popup = shown();
    EXPECT_THAT(captions(popup.menu.lines), ElementsAre("Sub", "Last"));
    EXPECT_THAT(captions(popup.menu.at("Sub").lines), ElementsAre("Inner\tCtrl+A"));
    sub.Visible = false;
    EXPECT_THAT(captions(shown().menu.lines), ElementsAre("Last"));
    EXPECT_EQ(driver::live().menus, 0);
}

TEST_F(MenuTest, InvisibleItemsDoNotShiftTheOthers) {
    plain.Visible = false;
    inner.onClick = [] { note("inner"); };
    driver::choose("Inner");
    PopupMenu(owner, table);
    EXPECT_THAT(noted, ElementsAre("inner"));
}

TEST_F(MenuTest, AnItemMayUnloadTheOwner) {
    last.onClick = [] { owner.unload(); };
    driver::choose("Last");
    PopupMenu(owner, table);
    EXPECT_FALSE(owner.loaded());
    EXPECT_EQ(driver::live(), driver::Counts{});
}

TEST_F(MenuTest, AnOwnerThatGoesClosesItsMenu) {
    last.onClick = [] { note("ran"); };
    driver::onPopup([](const driver::Popup& popup) {
        const win::UINT id = popup.menu.at("Last").id;
        owner.unload();
        return id;
    });
    PopupMenu(owner, table);
    EXPECT_FALSE(owner.loaded());
    EXPECT_THAT(noted, ElementsAre());
    EXPECT_EQ(driver::live(), driver::Counts{});
}

TEST_F(MenuTest, AnotherFormThatGoesLeavesTheMenuUp) {
    static Form other({.className = "Other", .clientWidth = 900, .clientHeight = 900});
    other.load();
    last.onClick = [] { note("ran"); };
    driver::onPopup([](const driver::Popup& popup) {
        other.unload();
        return popup.menu.at("Last").id;
    });
    PopupMenu(owner, table);
    EXPECT_THAT(noted, ElementsAre("ran"));
}

TEST_F(MenuTest, AMenuThatHasClosedIsNotClosedAgain) {
    shown();
    owner.unload();
    EXPECT_FALSE(owner.loaded());
}

TEST_F(MenuTest, AMenuThatCanNotBeMadeIsNotShown) {
    owner.load();
    const driver::Counts before = driver::live();
    driver::failCall("CreatePopupMenu", 1, win::ERROR_ACCESS_DENIED);
    PopupMenu(owner, table);
    EXPECT_EQ(driver::live(), before);
}

TEST_F(MenuTest, ALineThatCanNotBeMadeIsLeftOut) {
    owner.load();
    const driver::Counts before = driver::live();
    // The fifth line that is made is the sub-menu: what is in it comes first.
    for (int nth = 1; nth <= 7; ++nth) {
        SCOPED_TRACE(nth);
        driver::failCall("InsertMenuItemA", nth, win::ERROR_ACCESS_DENIED);
        shown();
        EXPECT_EQ(driver::faultsLeft(), 0);
        EXPECT_EQ(driver::live(), before);
    }
}

TEST_F(MenuTest, AMenuThatIsRefusedRunsNothing) {
    last.onClick = [] { note("ran"); };
    driver::failCall("TrackPopupMenu", 1, win::ERROR_ACCESS_DENIED);
    PopupMenu(owner, table);
    EXPECT_THAT(noted, ElementsAre());
    EXPECT_EQ(driver::live().menus, 0);
}

// First letters ------------------------------------------------------------------------

// The line that the letter stands for while the menu is up, "none" for none.
std::string lineByLetter(char letter) {
    std::string caption = "none";
    driver::onPopup([&](const driver::Popup& popup) {
        const win::LRESULT answer = win::SendMessageA(
            popup.owner, win::WM_MENUCHAR, win::makeWParam(letter, static_cast<int>(win::MF_POPUP)),
            reinterpret_cast<win::LPARAM>(popup.handle));
        const auto at = static_cast<std::size_t>(win::xOf(answer));
        if (win::yOf(answer) == win::MNC_EXECUTE) caption = popup.menu.lines[at].caption;
        return 0u;
    });
    PopupMenu(owner, table);
    return caption;
}

TEST_F(MenuTest, AFirstLetterStandsForTheOnlyLineThatItCanMean) {
    EXPECT_EQ(lineByLetter('L'), "Last");
    EXPECT_EQ(lineByLetter('l'), "Last");
    EXPECT_EQ(lineByLetter('s'), "Sub");
    EXPECT_EQ(lineByLetter('x'), "none");
    EXPECT_EQ(lineByLetter('-'), "none");
    // "&Plain" has an access key, which the desktop sees to.
    EXPECT_EQ(lineByLetter('p'), "none");
}

TEST_F(MenuTest, AFirstLetterStandsForNoGreyLine) {
    last.Enabled = false;
    EXPECT_EQ(lineByLetter('l'), "none");
}

TEST_F(MenuTest, AFirstLetterOfTwoLinesStandsForNone) {
    MenuItem one, two, three;
    const MenuRow rows[] = {{0, &one, "Same"}, {0, &two, "Other"}, {0, &three, "same"}};
    std::string caption = "not asked";
    driver::onPopup([&](const driver::Popup& popup) {
        caption = lineOfLetter(popup.handle, 's') == 0 ? "none" : "one";
        return 0u;
    });
    PopupMenu(owner, rows);
    EXPECT_EQ(caption, "none");
}

// Shortcuts ----------------------------------------------------------------------------

TEST_F(MenuTest, AShortcutFindsItsRow) {
    ASSERT_NE(rowWithShortcut(table, 'A'), nullptr);
    EXPECT_EQ(rowWithShortcut(table, 'A')->item, &inner);
    EXPECT_EQ(rowWithShortcut(table, 'B'), nullptr);
    EXPECT_EQ(rowWithShortcut(table, 'P'), nullptr);
}

TEST_F(MenuTest, AShortcutRunsItsItem) {
    inner.Index = 2;
    inner.onClick = [](int index) { note("inner " + std::to_string(index)); };
    choose('A');
    EXPECT_THAT(noted, ElementsAre("inner 2"));
}

TEST_F(MenuTest, AShortcutRunsNothingThatTheMenuWouldNotGive) {
    inner.onClick = [] { note("ran"); };
    for (MenuItem* item : {&inner, &sub}) {
        item->Enabled = false;
        choose('A');
        item->Enabled = true;
        item->Visible = false;
        choose('A');
        item->Visible = true;
    }
    EXPECT_THAT(noted, ElementsAre());
    plain.Enabled = line.Enabled = deep.Enabled = last.Enabled = false;
    choose('A');
    EXPECT_THAT(noted, ElementsAre("ran"));
}

TEST_F(MenuTest, AShortcutInADeepSubMenuNeedsAllOfThem) {
    MenuItem one, two, three, four, five;
    const MenuRow rows[] = {
        {0, &one, "One"},
        {1, &two, "Two"},
        {2, &three, "Three", "Ctrl+A"},
        {2, &four, "Four"},
        {1, &five, "Five", "Ctrl+B"},
    };
    five.onClick = [] { note("five"); };
    three.onClick = [] { note("three"); };
    two.Enabled = false;
    for (char letter : {'A', 'B'}) chooseRow(rows, *rowWithShortcut(rows, letter));
    EXPECT_THAT(noted, ElementsAre("five"));
    one.Enabled = false;
    two.Enabled = true;
    for (char letter : {'A', 'B'}) chooseRow(rows, *rowWithShortcut(rows, letter));
    EXPECT_THAT(noted, ElementsAre("five"));
    one.Enabled = true;
    for (char letter : {'A', 'B'}) chooseRow(rows, *rowWithShortcut(rows, letter));
    EXPECT_THAT(noted, ElementsAre("five", "three", "five"));
}

TEST_F(MenuTest, AnItemThatFailsIsAbandoned) {
    last.onClick = [] { throw Failure{13}; };
    driver::choose("Last");
    EXPECT_NO_THROW(PopupMenu(owner, table));
}

TEST_F(MenuTest, ItemsComeBackToTheirDesign) {
    const MenuRow design[] = {{0, &plain, "Plain"}, {0, &last, "Last", "", false}};
    plain.Enabled = plain.Visible = false;
    plain.Checked = last.Checked = true;
    designMenu(design);
    EXPECT_TRUE(plain.Enabled);
    EXPECT_TRUE(plain.Visible);
    EXPECT_FALSE(plain.Checked);
    EXPECT_FALSE(last.Enabled);
    EXPECT_FALSE(last.Checked);
}

}  // namespace
}  // namespace magpie
