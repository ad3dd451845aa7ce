// Which menu items can be used: every rule, and what has none.
#include <algorithm>
#include <initializer_list>

#include "mainwindow/status_panel.h"
#include "tests/behaviour/menu_fixture.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;

// What the store and the list in view hold.
enum class Stock { noGroup, groupWithoutRows, groupWithRows };

constexpr std::uint8_t find = 4;
constexpr std::uint8_t everyDialog[] = {0, 1, D_EDIT, D_NEW, find};

class UpdatingMenus : public MenuFixture {
public:
    static void stock(Stock wanted) {
        IDXList.reset();
        IDXCount = 0;
        uBlock.URLDatas().Clear();
        records().Clear();
        if (wanted == Stock::noGroup) return;
        NewCatagory("A");
        if (wanted == Stock::groupWithRows) fillListRow(records().Add(""), add("a", 0));
    }

    static bool holdsEntries() {
        return modalOpen == D_EDIT || modalOpen == D_NEW || modalOpen == find;
    }

    // Runs `check` after UpdateMenus for every stock, dialog, tab and face, from items
    // that are all enabled and from items that are all disabled.
    template <class Check>
    static void inEveryState(Check check) {
        if (!Form3.loaded()) openWith({});
        for (const int tab : {1, 2}) {
            clickTab(tab);
            for (const std::uint8_t face : std::initializer_list<std::uint8_t>{0, 1, 2})
                for (const Stock each :
                     {Stock::noGroup, Stock::groupWithoutRows, Stock::groupWithRows})
                    for (const std::uint8_t dialog : everyDialog)
                        for (const bool before : {false, true}) {
                            Form3.advMode = face;
                            stock(each);
                            modalOpen = dialog;
                            setAll(before);
                            UpdateMenus();
                            SCOPED_TRACE(testing::Message()
                                         << "tab " << tab << ", face " << int{face} << ", stock "
                                         << static_cast<int>(each) << ", modalOpen " << int{dialog}
                                         << ", before " << before);
                            check(each, before);
                        }
        }
        modalOpen = 0;
    }

    static void setAll(bool enabled) {
        for (MenuItem* item : itemsWithARule()) item->Enabled = enabled;
    }

    static std::initializer_list<MenuItem*> itemsWithARule() {
        static const std::initializer_list<MenuItem*> items = {
            &Form3.mnuSavez,       &Form3.mnuRenameCombo, &Form3.mnuRenameGroup,
            &Form3.mnuRemoveGroup, &Form3.mnuRemoveCombo, &Form3.mnuAddz,
            &Form3.mnuRatez,       &Form3.mnuSendz,       &Form3.mnuRemove,
            &Form3.mnuEdit,        &Form3.mnuMove,        &Form3.mnuFindHd,
            &Form3.mnuOpenz,       &Form3.mnuMergez,      &Form3.mnuFind[1],
            &Form3.mnuFind[2],
        };
        return items;
    }
};

// The rows of the rule table -------------------------------------------------------------

TEST_F(UpdatingMenus, SavingNeedsARecord) {
    inEveryState(
        [](Stock, bool) { EXPECT_EQ(Form3.mnuSavez.Enabled, uBlock.URLDatas().Count() >= 1); });
}

TEST_F(UpdatingMenus, SavingNeedsARecordButNoRow) {
    open();
    records().Clear();
    UpdateMenus();
    EXPECT_TRUE(Form3.mnuSavez.Enabled);
    uBlock.URLDatas().Clear();
    UpdateMenus();
    EXPECT_FALSE(Form3.mnuSavez.Enabled);
}

TEST_F(UpdatingMenus, RenamingAGroupNeedsOne) {
    inEveryState([](Stock stock, bool) {
        EXPECT_EQ(Form3.mnuRenameCombo.Enabled, stock != Stock::noGroup);
        EXPECT_EQ(Form3.mnuRenameGroup.Enabled, stock != Stock::noGroup);
    });
}

bool groupIsFree(Stock stock) {
    if (stock == Stock::groupWithRows) return !UpdatingMenus::holdsEntries();
    return stock != Stock::noGroup;
}

TEST_F(UpdatingMenus, RemovingAGroupNeedsOneAndNoDialogOverItsRows) {
    inEveryState(
        [](Stock stock, bool) { EXPECT_EQ(Form3.mnuRemoveGroup.Enabled, groupIsFree(stock)); });
}

TEST_F(UpdatingMenus, TheMainMenuRemovesAGroupOnlyWhereOneIsShownAtATime) {
    inEveryState([](Stock stock, bool) {
        const bool oneAtATime = currentTab == 2 || Form3.advMode == 1;
        EXPECT_EQ(Form3.mnuRemoveCombo.Enabled, groupIsFree(stock) && oneAtATime);
    });
}

TEST_F(UpdatingMenus, AddingNeedsAGroupAndNoDialogOverItsRows) {
    inEveryState([](Stock stock, bool) { EXPECT_EQ(Form3.mnuAddz.Enabled, groupIsFree(stock)); });
}

TEST_F(UpdatingMenus, TheCommandsOnRowsNeedRowsAndNoDialog) {
    inEveryState([](Stock stock, bool) {
        const bool usable = stock == Stock::groupWithRows && !holdsEntries();
        for (const MenuItem* item : {&Form3.mnuRatez, &Form3.mnuSendz, &Form3.mnuRemove,
                                     &Form3.mnuEdit, &Form3.mnuMove, &Form3.mnuFindHd})
            EXPECT_EQ(item->Enabled, usable);
    });
}

TEST_F(UpdatingMenus, OpenAndMergeKeepTheirStateWhileNoRowsAreShown) {
    inEveryState([](Stock stock, bool before) {
        const bool wanted = stock == Stock::groupWithRows ? !holdsEntries() : before;
        EXPECT_EQ(Form3.mnuOpenz.Enabled, wanted);
        EXPECT_EQ(Form3.mnuMergez.Enabled, wanted);
    });
}

TEST_F(UpdatingMenus, FindNextAndPreviousNeedATextAndKeepTheirStateWhileNoRowsAreShown) {
    for (const char* text : {"", "a"}) {
        SCOPED_TRACE(text);
        findText = text;
        inEveryState([](Stock stock, bool before) {
            const bool wanted = stock == Stock::groupWithRows ? !findText.empty() : before;
            EXPECT_EQ(Form3.mnuFind[1].Enabled, wanted);
            EXPECT_EQ(Form3.mnuFind[2].Enabled, wanted);
        });
    }
}

TEST_F(UpdatingMenus, AllOtherItemsStayEnabled) {
    inEveryState([](Stock, bool) {
        for (const MenuItem* item :
             {&Form3.mnuNewCombo, &Form3.mnuSettingz, &Form3.mnuSettingsDLL, &Form3.mnuFullwindow,
              &Form3.mnuEject, &Form3.mnuListAll, &Form3.mnuFree, &Form3.mnuClose[1],
              &Form3.mnuAbout, &Form3.mnuHelp, &Form3.mnuUnload, &Form3.mnuLoadAll,
              &Form3.mnuSaveAll, &Form3.mnuSendFolder, &Form3.mnuFind[0], &Form3.mnuListAll2,
              &Form3.mnuNewGroup})
            EXPECT_TRUE(item->Enabled);
        const auto enabled = [](const MenuItem& item) { return item.Enabled; };
        EXPECT_TRUE(std::ranges::all_of(Form3.mnuSettings, enabled));
        EXPECT_TRUE(std::ranges::all_of(Form3.mnuOpen, enabled));
        EXPECT_TRUE(std::ranges::all_of(Form3.mnuMerge, enabled));
        EXPECT_TRUE(std::ranges::all_of(Form3.mnuSave, enabled));
        EXPECT_TRUE(std::ranges::all_of(Form3.mnuAddEntry, enabled));
        EXPECT_TRUE(std::ranges::all_of(Form3.mnuSend, enabled));
        EXPECT_TRUE(std::ranges::all_of(Form3.mnuRate, enabled));
        EXPECT_TRUE(std::ranges::all_of(Form3.mnuSortz, enabled));
    });
}

TEST_F(UpdatingMenus, TheGroupCommandsAreThereButOnTheFilterFace) {
    inEveryState([](Stock, bool) {
        const bool shown = currentTab == 2 || Form3.advMode != 2;
        for (const MenuItem* item :
             {&Form3.mnuNewCombo, &Form3.mnuRenameCombo, &Form3.mnuRemoveCombo, &Form3.bk1})
            EXPECT_EQ(item->Visible, shown);
        for (const MenuItem* item :
             {&Form3.mnuNewGroup, &Form3.mnuRenameGroup, &Form3.mnuRemoveGroup, &Form3.mnuSettingz})
            EXPECT_TRUE(item->Visible);
    });
}

// As the menus show it -------------------------------------------------------------------

TEST_F(UpdatingMenus, WithoutAGroupOneCanStillBeMade) {
    putStackFile("");
    startAndOpen();
    const driver::Popup main = shownBy(clickMenuButton);
    EXPECT_TRUE(main.menu.at("New Group").enabled);
    EXPECT_FALSE(main.menu.at("Rename Group").enabled);
    EXPECT_FALSE(main.menu.at("Remove Group").enabled);
    EXPECT_TRUE(main.menu.at("Open URLs").enabled);
    EXPECT_TRUE(main.menu.at("Merge From").enabled);
    EXPECT_FALSE(main.menu.at("Save URLs").enabled);
    const driver::Popup group = shownBy(rightClickGroups);
    EXPECT_TRUE(group.menu.at("New").enabled);
    EXPECT_FALSE(group.menu.at("Rename").enabled);
    EXPECT_FALSE(group.menu.at("Remove").enabled);
    const driver::Popup entry = shownBy(rightClickRecords);
    for (const char* caption : {"Add", "Send", "Rate", "Edit", "Move", "Find", "Remove"})
        EXPECT_FALSE(entry.menu.at(caption).enabled) << caption;
}

TEST_F(UpdatingMenus, UnderADialogOnEntriesMostCommandsAreGreyButRenamingIsNot) {
    open();
    for (const std::uint8_t dialog : std::initializer_list<std::uint8_t>{D_EDIT, D_NEW, find}) {
        modalOpen = dialog;
        const driver::Popup main = shownBy(clickMenuButton);
        EXPECT_TRUE(main.menu.at("Rename Group").enabled);
        for (const char* caption : {"Remove Group", "Open URLs", "Merge From"})
            EXPECT_FALSE(main.menu.at(caption).enabled) << caption;
        const driver::Popup entry = shownBy(rightClickRecords);
        for (const char* caption : {"Add", "Send", "Rate", "Edit", "Move", "Find", "Remove"})
            EXPECT_FALSE(entry.menu.at(caption).enabled) << caption;
    }
    modalOpen = 1;
    EXPECT_TRUE(shownBy(rightClickRecords).menu.at("Edit").enabled);
    modalOpen = 0;
}

TEST_F(UpdatingMenus, AFirstSearchLeavesFindNextGreyUntilTheMenusAreUpdated) {
    open();
    EXPECT_FALSE(Form3.mnuFind[1].Enabled);
    findText = "a";
    EXPECT_FALSE(Form3.mnuFind[1].Enabled);
    EXPECT_FALSE(Form3.mnuFind[2].Enabled);
    const driver::Popup entry = shownBy(rightClickRecords);
    EXPECT_TRUE(entry.menu.at("Find Next").enabled);
    EXPECT_TRUE(entry.menu.at("Find Previous").enabled);
}

TEST_F(UpdatingMenus, TheIndexMaskShowsBothGroupCommandsAndGreysRemoveAndTheFilterHasNeither) {
    open();
    Form3.advMode = 0;
    driver::Popup main = shownBy(clickMenuButton);
    EXPECT_TRUE(main.menu.at("Rename Group").enabled);
    EXPECT_FALSE(main.menu.at("Remove Group").enabled);
    Form3.advMode = 2;
    main = shownBy(clickMenuButton);
    for (const driver::MenuLine& line : main.menu.lines) {
        EXPECT_NE(line.caption, "&Rename Group");
        EXPECT_NE(line.caption, "Remove Group");
    }
    Form3.advMode = 1;
    EXPECT_TRUE(shownBy(clickMenuButton).menu.at("Remove Group").enabled);
}

// The panel ------------------------------------------------------------------------------

TEST_F(UpdatingMenus, ThePanelCountsRowsAndRecordsAndUpdatesTheMenus) {
    open();
    EXPECT_EQ(Form3.StatusBar1.Pane(1), "Viewed: 3");
    EXPECT_EQ(Form3.StatusBar1.Pane(2), "Total: 4");
    uBlock.URLDatas().Clear();
    records().Clear();
    UpdatePanel();
    EXPECT_EQ(Form3.StatusBar1.Pane(1), "Viewed: 0");
    EXPECT_EQ(Form3.StatusBar1.Pane(2), "Total: 0");
    EXPECT_FALSE(Form3.mnuSavez.Enabled);
    EXPECT_FALSE(Form3.mnuEdit.Enabled);
}

TEST_F(UpdatingMenus, TheyAreUpToDateWhenTheWindowHasBeenSetUp) {
    putRecord("CF", "80 0 0 0 1 1 0 1500 1500 9000 6000 31 0 36500");
    startAndOpen();
    EXPECT_FALSE(Form3.mnuSavez.Enabled);
    EXPECT_FALSE(Form3.mnuAddz.Enabled);
}

TEST_F(UpdatingMenus, ThePanelCountsTheListOfTheTabInView) {
    open();
    clickTab(2);
    EXPECT_EQ(Form3.StatusBar1.Pane(1), "Viewed: 3");
    records().Add("one more");
    UpdatePanel();
    EXPECT_EQ(Form3.StatusBar1.Pane(1), "Viewed: 4");
    EXPECT_EQ(Form3.StatusBar1.Pane(2), "Total: 4");
}

}  // namespace
}  // namespace magpie
