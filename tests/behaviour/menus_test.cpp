// The four popup menus: what stands in them, what opens them and where, and what happens
// under an open one.
#include <initializer_list>

#include "entries/form2.h"
#include "mainwindow/full_window.h"
#include "platform/api/user32.h"
#include "tests/behaviour/menu_fixture.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;
using driver::Button;
using testing::Contains;
using testing::ElementsAre;
using testing::Not;

class Menus : public MenuFixture {
public:
    static void expectAt(const driver::Popup& popup, win::POINT place) {
        EXPECT_EQ(popup.owner, Form3.hWnd());
        EXPECT_EQ(popup.at.x, place.x);
        EXPECT_EQ(popup.at.y, place.y);
    }

    static std::string firstLine(const driver::Popup& popup) {
        return popup.menu.lines.empty() ? "" : popup.menu.lines.front().caption;
    }

    static void pressMenuKey(Control& control) {
        control.SetFocus();
        driver::key(win::VK_APPS);
    }

    static void pressShiftF10(Control& control) {
        control.SetFocus();
        driver::key(win::VK_F10, {.ctrl = false, .shift = true, .alt = false});
    }

    static win::RECT placeOf(ListView& list, int row) {
        win::RECT place{};
        place.left = win::LVIR_BOUNDS;
        win::SendMessageA(list.hWnd(), win::LVM_GETITEMRECT, static_cast<win::WPARAM>(row - 1),
                          reinterpret_cast<win::LPARAM>(&place));
        return place;
    }
};

// What stands in them ------------------------------------------------------------------

TEST_F(Menus, TheMainMenuHoldsWhatBelongsToTheProgram) {
    open();
    EXPECT_THAT(linesOf(shownBy(clickMenuButton)),
                ElementsAre("&New Group", "&Rename Group", "Remove Group", "-",  //
                            "Settings >",                                        //
                            "  Preferences", "  -",                              //
                            "  Load Settings", "  Save Settings", "  -",         //
                            "  Full Window (ESQ)", "  -",                        //
                            "  Eject Bookmarks", "  -",                          //
                            "  &Open URLs >", "    &Open Default", "    Open &As", "  Merge From >",
                            "    Magpie .PNS", "    IE Favorites", "    Netscape .HTM",
                            "  &Save URLs >", "    Save Default",
                            "    Save As",                             //
                            "List All", "-",                           //
                            "Flush to Tray", "-",                      //
                            "&Hide", "&About", "Help", "Unload", "-",  //
                            "Load All", "Save All"));
}

TEST_F(Menus, TheMenuOfTheRecordListsHoldsWhatCanBeDoneWithEntries) {
    open();
    findText = "a";
    EXPECT_THAT(
        linesOf(shownBy(rightClickRecords)),
        ElementsAre("Add >", "  From Browser\tCtrl+B", "  &New Entry\tCtrl+A",              //
                    "Send >", "  Last Active", "  New Window", "  -",                       //
                    "  Bookmarks Folder", "-",                                              //
                    "Rate >", "  Not Rated", "  Low", "  Medium", "  High", "  Very High",  //
                    "&Edit", "Move", "-",                                                   //
                    "Find >", "  Find\tCtrl+F", "  Find Next\tCtrl+N", "  Find Previous\tCtrl+P",
                    "-", "Remove"));
}

TEST_F(Menus, TheMenuOfTheSortButtonHoldsTheColumnsAndListAll) {
    open();
    clickTab(2);
    EXPECT_THAT(linesOf(shownBy(rightClickSort)),
                ElementsAre("Title", "Rated", "Times Visited", "Last Visited Date", "-", "URL",
                            "Creation Date", "Catagory", "-", "List All"));
}

TEST_F(Menus, TheMenuOfTheGroupListHoldsWhatCanBeDoneWithGroups) {
    open();
    EXPECT_THAT(linesOf(shownBy(rightClickGroups)), ElementsAre("New", "Rename", "-", "Remove"));
}

TEST_F(Menus, BothTabsOpenTheSameMenus) {
    open();
    const std::vector<std::string> main = linesOf(shownBy(clickMenuButton));
    const std::vector<std::string> entries = linesOf(shownBy(rightClickRecords));
    clickTab(2);
    EXPECT_EQ(linesOf(shownBy(clickMenuButton)), main);
    EXPECT_EQ(linesOf(shownBy(rightClickRecords)), entries);
}

template <class Items>
void expectRoutines(Items& items) {
    int index = items.lowest;
    for (MenuItem& item : items) {
        EXPECT_TRUE(item.onClick) << index;
        EXPECT_EQ(item.Index, index++);
    }
}

TEST_F(Menus, EveryLineThatCanBeChosenHasItsRoutine) {
    open();
    for (const MenuItem* item :
         {&Form3.mnuNewCombo,   &Form3.mnuRenameCombo, &Form3.mnuRemoveCombo, &Form3.mnuSettingsDLL,
          &Form3.mnuFullwindow, &Form3.mnuEject,       &Form3.mnuListAll,     &Form3.mnuFree,
          &Form3.mnuAbout,      &Form3.mnuHelp,        &Form3.mnuUnload,      &Form3.mnuLoadAll,
          &Form3.mnuSaveAll,    &Form3.mnuSendFolder,  &Form3.mnuEdit,        &Form3.mnuMove,
          &Form3.mnuRemove,     &Form3.mnuListAll2,    &Form3.mnuNewGroup,    &Form3.mnuRenameGroup,
          &Form3.mnuRemoveGroup})
        EXPECT_TRUE(item->onClick);
    expectRoutines(Form3.mnuSettings);
    expectRoutines(Form3.mnuOpen);
    expectRoutines(Form3.mnuMerge);
    expectRoutines(Form3.mnuSave);
    expectRoutines(Form3.mnuClose);
    expectRoutines(Form3.mnuAddEntry);
    expectRoutines(Form3.mnuSend);
    expectRoutines(Form3.mnuRate);
    expectRoutines(Form3.mnuFind);
    expectRoutines(Form3.mnuSortz);
}

// The group commands of the main menu are for the drop-down and the two lists of groups.
TEST_F(Menus, TheFilterFaceHidesTheGroupCommandsOfTheMainMenu) {
    open();
    Form3.advMode = 2;
    EXPECT_EQ(firstLine(shownBy(clickMenuButton)), "Settings");
    for (const std::uint8_t face : std::initializer_list<std::uint8_t>{0, 1}) {
        Form3.advMode = face;
        EXPECT_EQ(firstLine(shownBy(clickMenuButton)), "&New Group");
    }
    Form3.advMode = 2;
    clickTab(2);
    EXPECT_EQ(firstLine(shownBy(clickMenuButton)), "&New Group");
}

// "List All" and "Full Window" ---------------------------------------------------------

TEST_F(Menus, ListAllIsTickedInBothMenusWhicheverWasChosen) {
    open();
    clickTab(2);
    chooseFrom(clickMenuButton, "List All");
    EXPECT_THAT(titlesInView(), ElementsAre("a1", "a2", "a3", "b"));
    EXPECT_TRUE(shownBy(clickMenuButton).menu.at("List All").checked);
    EXPECT_TRUE(shownBy(rightClickSort).menu.at("List All").checked);
    chooseFrom(rightClickSort, "List All");
    EXPECT_THAT(titlesInView(), ElementsAre("a1", "a2", "a3"));
    EXPECT_FALSE(shownBy(clickMenuButton).menu.at("List All").checked);
    EXPECT_FALSE(shownBy(rightClickSort).menu.at("List All").checked);
    chooseFrom(rightClickSort, "List All");
    EXPECT_THAT(titlesInView(), ElementsAre("a1", "a2", "a3", "b"));
    EXPECT_TRUE(shownBy(clickMenuButton).menu.at("List All").checked);
}

TEST_F(Menus, PickingAGroupTakesTheTickOfListAllOutOfBothMenus) {
    open();
    clickTab(2);
    chooseFrom(rightClickSort, "List All");
    Form3.Combo1[1].SetFocus();
    driver::key(win::VK_DOWN);
    EXPECT_THAT(titlesInView(), ElementsAre("b"));
    EXPECT_FALSE(shownBy(clickMenuButton).menu.at("List All").checked);
    EXPECT_FALSE(shownBy(rightClickSort).menu.at("List All").checked);
}

TEST_F(Menus, FullWindowIsTickedWhileItIsOn) {
    open();
    chooseFrom(clickMenuButton, "Full Window (ESQ)");
    EXPECT_FALSE(Form3.tbStrip.Visible());
    EXPECT_TRUE(shownBy(clickMenuButton).menu.at("Full Window (ESQ)").checked);
    chooseFrom(clickMenuButton, "Full Window (ESQ)");
    EXPECT_FALSE(shownBy(clickMenuButton).menu.at("Full Window (ESQ)").checked);
}

TEST_F(Menus, AReloadBringsTheMenusToTheirDesign) {
    open();
    chooseFrom(clickMenuButton, "List All");
    chooseFrom(clickMenuButton, "Full Window (ESQ)");
    // The settings would keep full-window mode.
    autoSaveSettings = false;
    chooseFrom(clickMenuButton, "Flush to Tray");
    EXPECT_FALSE(Form3.loaded());
    clickPad();
    EXPECT_THAT(linesOf(shownBy(clickMenuButton)), Not(Contains(testing::HasSubstr("[x]"))));
    EXPECT_FALSE(Form3.mnuListAll2.Checked);
}

// By the mouse -------------------------------------------------------------------------

TEST_F(Menus, TheMouseOpensAMenuWhereItIs) {
    open();
    clickTab(2);
    for (const auto& action : {clickMenuButton, rightClickRecords, rightClickSort}) {
        const driver::Popup popup = shownBy(action);
        expectAt(popup, mouse());
    }
    clickTab(1);
    for (const auto& action : {clickMenuButton, rightClickRecords, rightClickGroups}) {
        const driver::Popup popup = shownBy(action);
        expectAt(popup, mouse());
    }
}

TEST_F(Menus, EveryRecordListAndTheGroupListHaveTheirOwn) {
    open();
    EXPECT_EQ(firstLine(shownBy(rightClickRecords)), "Add");
    EXPECT_EQ(firstLine(shownBy(rightClickGroups)), "New");
    clickTab(2);
    EXPECT_EQ(firstLine(shownBy(rightClickRecords)), "Add");
}

TEST_F(Menus, ARightClickBelowTheRowsOffersWhatIsDoneToEntriesAsWell) {
    open();
    records().Row(1).Selected(true);
    const driver::Popup popup = shownBy([] { clickRow(records(), 9, Button::right); });
    expectAt(popup, mouse());
    for (const char* caption : {"Edit", "Remove", "New Entry"})
        EXPECT_TRUE(popup.menu.at(caption).enabled) << caption;
    EXPECT_FALSE(records().Row(1).Selected());
}

TEST_F(Menus, ARightClickBesideTheRowsOpensTheMenuAllTheSame) {
    openWith({"A"});
    EXPECT_EQ(records().Count(), 0);
    const driver::Popup popup = shownBy(rightClickRecords);
    expectAt(popup, mouse());
    EXPECT_THAT(
        linesOf(popup),
        ElementsAre("Add >", "  From Browser\tCtrl+B", "  &New Entry\tCtrl+A", "Send (grey) >",
                    "  Last Active", "  New Window", "  -", "  Bookmarks Folder", "-",
                    "Rate (grey) >", "  Not Rated", "  Low", "  Medium", "  High", "  Very High",
                    "&Edit (grey)", "Move (grey)", "-", "Find (grey) >", "  Find\tCtrl+F",
                    "  Find Next\tCtrl+N", "  Find Previous\tCtrl+P", "-", "Remove (grey)"));
    EXPECT_EQ(firstLine(shownBy([] { clickRow(groups(), 2, Button::right); })), "New");
}

// A dialog that closed meanwhile, a group that is new: nobody tells the menus of it.
TEST_F(Menus, AMenuOpensUpToDate) {
    open();
    const auto editIsEnabled = [] { return shownBy(rightClickRecords).menu.at("Edit").enabled; };
    EXPECT_TRUE(editIsEnabled());
    modalOpen = D_EDIT;
    EXPECT_FALSE(editIsEnabled());
    EXPECT_FALSE(shownBy(rightClickGroups).menu.at("Remove").enabled);
    EXPECT_FALSE(shownBy(clickMenuButton).menu.at("Open URLs").enabled);
    modalOpen = 0;
    EXPECT_TRUE(shownBy(rightClickGroups).menu.at("Remove").enabled);
    modalOpen = D_EDIT;
    EXPECT_FALSE(editIsEnabled());
    modalOpen = 0;
    EXPECT_TRUE(shownBy(clickMenuButton).menu.at("Open URLs").enabled);
}

TEST_F(Menus, OtherButtonsOpenNothing) {
    open();
    for (ListView* list : {&records(), &groups()}) {
        clickRow(*list, 1, Button::left);
        clickRow(*list, 1, Button::middle);
    }
    clickTab(2);
    const win::HWND sort = Form3.Command5[0].hWnd();
    driver::click(sort, driver::middleOf(sort), Button::middle);
}

// By the keys --------------------------------------------------------------------------

TEST_F(Menus, TheKeysOpenTheMenuOfAListBelowItsFocusedRow) {
    open();
    driver::moveMouse(Form3.hWnd(), {3, 3});
    for (const auto& press : {pressMenuKey, pressShiftF10}) {
        records().Row(2).Selected(true);
        driver::Popup popup = shownBy([&] { press(records()); });
        EXPECT_EQ(firstLine(popup), "Add");
        expectAt(popup, onScreen(records(), {0, placeOf(records(), 2).bottom}));
        groups().Row(1).Selected(true);
        popup = shownBy([&] { press(groups()); });
        EXPECT_EQ(firstLine(popup), "New");
        expectAt(popup, onScreen(groups(), {0, placeOf(groups(), 1).bottom}));
    }
    clickTab(2);
    records().Row(3).Selected(true);
    const driver::Popup popup = shownBy([] { pressMenuKey(records()); });
    EXPECT_EQ(firstLine(popup), "Add");
    expectAt(popup, onScreen(records(), {0, placeOf(records(), 3).bottom}));
}

TEST_F(Menus, WithoutAFocusedRowTheKeysOpenItInTheListsCorner) {
    open();
    for (const auto& press : {pressMenuKey, pressShiftF10}) {
        // A refresh leaves no focus mark.
        RefreshURLPage();
        expectAt(shownBy([&] { press(records()); }), onScreen(records(), {0, 0}));
    }
    groups().Clear();
    expectAt(shownBy([] { pressMenuKey(groups()); }), onScreen(groups(), {0, 0}));
}

TEST_F(Menus, TheKeysOpenAMenuUpToDateToo) {
    open();
    modalOpen = D_NEW;
    EXPECT_FALSE(shownBy([] { pressMenuKey(records()); }).menu.at("Edit").enabled);
    modalOpen = 0;
    EXPECT_TRUE(shownBy([] { pressShiftF10(records()); }).menu.at("Edit").enabled);
}

TEST_F(Menus, TheKeysOpenTheSortMenuBelowItsButton) {
    open();
    clickTab(2);
    magpie::Button& sort = Form3.Command5[0];
    win::RECT inner{};
    win::GetClientRect(sort.hWnd(), &inner);
    for (const auto& press : {pressMenuKey, pressShiftF10}) {
        const driver::Popup popup = shownBy([&] { press(sort); });
        EXPECT_EQ(firstLine(popup), "Title");
        expectAt(popup, onScreen(sort, {0, inner.bottom}));
    }
}

TEST_F(Menus, SpaceOnItsButtonOpensTheMainMenu) {
    open();
    for (const int tab : {2, 1}) {
        clickTab(tab);
        (tab == 2 ? Form3.Command1[1] : Form3.Command3[1]).SetFocus();
        const driver::Popup popup = shownBy([] { driver::key(win::VK_SPACE); });
        EXPECT_EQ(firstLine(popup), "&New Group");
        expectAt(popup, mouse());
    }
}

// What happens under an open menu --------------------------------------------------------

TEST_F(Menus, AMenuStaysOpenWhileTheLineIsLookedAt) {
    open();
    chooseFrom(clickMenuButton, "List All", [] { driver::advance(20000); });
    EXPECT_TRUE(Form3.mnuListAll.Checked);
}

TEST_F(Menus, AMenuStaysOpenWhileTheListIsRefreshed) {
    open();
    driver::whenIdle([] {
        Form2.unload();
        win::PostMessageA(Form3.hWnd(), win::WM_NULL, 0, 0);
    });
    chooseFrom(rightClickRecords, "Edit", RefreshURLPage);
    driver::answerMessageBox(win::IDNO);
    chooseFrom(rightClickGroups, "Remove", [] { rebuildGroupList(true); });
    EXPECT_EQ(driver::live().menus, 0);
}

// As by a line that falls, or from the tray.
void leave() {
    keepResident = false;
    Form3.unload();
}

TEST_F(Menus, AMenuOpenedByTheMouseClosesWithTheMainWindow) {
    open();
    const driver::Counts withoutMainWindow = [] {
        leave();
        return driver::live();
    }();
    struct {
        void (*action)();
        const char* caption;
    } const menus[] = {
        {clickMenuButton, "Settings"}, {rightClickRecords, "Add"}, {rightClickGroups, "New"}};
    for (const auto& each : menus) {
        SCOPED_TRACE(each.caption);
        clickPad();
        ASSERT_TRUE(Form3.loaded());
        chooseFrom(each.action, each.caption, leave);
        EXPECT_FALSE(Form3.loaded());
        EXPECT_EQ(driver::live(), withoutMainWindow);
    }
}

TEST_F(Menus, AMenuOpenedByTheKeysClosesWithTheMainWindow) {
    open();
    chooseFrom([] { pressShiftF10(records()); }, "Add", leave);
    EXPECT_FALSE(Form3.loaded());
    clickPad();
    clickTab(2);
    chooseFrom([] { pressMenuKey(Form3.Command5[0]); }, "Title", leave);
    EXPECT_FALSE(Form3.loaded());
    EXPECT_EQ(driver::live().menus, 0);
}

TEST_F(Menus, AMenuClosesWithTheProgram) {
    open();
    chooseFrom(rightClickRecords, "Edit", [] { Form1.unload(); });
    EXPECT_FALSE(Form1.loaded());
    EXPECT_FALSE(Form3.loaded());
    EXPECT_EQ(driver::live(), driver::Counts{});
}

TEST_F(Menus, AMenuThatCanNotBeMadeLeavesTheProgramAsItWas) {
    open();
    driver::failCall("CreatePopupMenu", 1, win::ERROR_ACCESS_DENIED);
    rightClickRecords();
    driver::failCall("TrackPopupMenu", 1, win::ERROR_ACCESS_DENIED);
    rightClickRecords();
    EXPECT_EQ(driver::live().menus, 0);
    EXPECT_EQ(firstLine(shownBy(rightClickRecords)), "Add");
}

}  // namespace
}  // namespace magpie
