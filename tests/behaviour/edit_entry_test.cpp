// Editing an entry by the dialog: what it shows, and what Accept makes of it.
#include "entries/edit_entry.h"

#include "tests/behaviour/entry_fixture.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;
using driver::Button;
using testing::ElementsAre;
using testing::IsEmpty;

class EditEntry : public EntryFixture {
public:
    // The three records of "A" in view, the second one selected.
    static void openOnSecond() {
        open();
        clickRow(records(), 2, Button::left);
    }
    // Every record in view, whatever the screen.
    static void listEverything() {
        chooseFrom(clickMenuButton, "List All");
        ASSERT_THAT(titlesInView(), ElementsAre("a1", "a2", "a3", "b"));
    }
};

// Opening ----------------------------------------------------------------------------------

TEST_F(EditEntry, TheMenuOpensTheDialogOnTheClickedRow) {
    open();
    asking([] { chooseFrom([] { clickRow(records(), 3, Button::right); }, "Edit"); },
           [] {
               EXPECT_EQ(modalOpen, D_EDIT);
               EXPECT_EQ(Form2.Text1[0].Text(), "a3");
               EXPECT_EQ(Form2.toEdit, "00003");
           });
    EXPECT_EQ(urlsDirty, 0);
}

TEST_F(EditEntry, AnEmptyListOpensNothing) {
    open();
    records().Clear();
    mnuEdit_Click();
    EXPECT_FALSE(Form2.loaded());
    EXPECT_EQ(modalOpen, 0);
}

TEST_F(EditEntry, WhileSomethingHoldsTheInterfaceItDoesNothing) {
    open();
    for (const std::uint8_t held : std::initializer_list<std::uint8_t>{1, D_EDIT, D_NEW, 4}) {
        modalOpen = held;
        mnuEdit_Click();
        EXPECT_FALSE(Form2.loaded());
        EXPECT_EQ(modalOpen, held);
    }
}

TEST_F(EditEntry, ItShowsTheRecordAndItsCounts) {
    openOnSecond();
    URLData& shown = record(2);
    shown.URL("ftp://second/");
    shown.Rated = 3;
    shown.Visited = 17;
    shown.LastAccesed = dateFromCivil(2001, 2, 3, 4, 5, 6);
    RefreshURLPage();
    clickRow(records(), 2, Button::left);
    editing([] {
        EXPECT_EQ(Form2.Text1[0].Text(), "a2");
        EXPECT_EQ(Form2.Text1[1].Text(), "ftp://second/");
        EXPECT_EQ(chosen(Form2.Combo1[0]), "High");
        EXPECT_EQ(chosen(Form2.Combo1[1]), "A");
        EXPECT_EQ(Form2.Label3[0].Caption(), "1999-12-31 12:00:00");
        EXPECT_EQ(Form2.Label3[1].Caption(), "2001-02-03 04:05:06");
        EXPECT_EQ(Form2.Label3[2].Caption(), "17");
    });
}

// The list says "Never" for both.
TEST_F(EditEntry, OnlyTheDateZeroIsNever) {
    openOnSecond();
    record(1).LastAccesed = {-1.5};
    RefreshURLPage();
    EXPECT_EQ(rowTexts(1)[4], "Never");
    EXPECT_EQ(rowTexts(2)[4], "Never");
    clickRow(records(), 2, Button::left);
    editing([] { EXPECT_EQ(Form2.Label3[1].Caption(), "Never"); });
    clickRow(records(), 1, Button::left);
    editing([] { EXPECT_EQ(Form2.Label3[1].Caption(), dateText({-1.5})); });
}

TEST_F(EditEntry, OfSeveralSelectedRowsOnlyTheItemsStays) {
    open();
    for (const int row : {1, 3, 2}) records().Row(row).Selected(true);
    editing([] {
        EXPECT_THAT(selectedRows(), ElementsAre(2));
        EXPECT_EQ(Form2.Text1[0].Text(), "a2");
    });
    EXPECT_THAT(selectedRows(), ElementsAre(2));
}

// Accept -----------------------------------------------------------------------------------

TEST_F(EditEntry, AcceptStoresTheFieldsAndShowsThemInTheRow) {
    openOnSecond();
    editing([] {
        driver::type("renamed");
        writeUrl("ftp://changed/");
        chooseRating("V.High!");
        accept();
        EXPECT_FALSE(Form2.loaded());
    });
    EXPECT_EQ(modalOpen, 0);
    EXPECT_EQ(record(2).Name(), "renamed");
    EXPECT_EQ(record(2).URL(), "ftp://changed/");
    EXPECT_EQ(record(2).Rated, 4);
    EXPECT_EQ(record(2).Owner, 0);
    EXPECT_THAT(rowTexts(2), ElementsAre("renamed", "ftp://changed/", "V.High", "A", "Never",
                                         "1999-12-31 12:00:00", "0"));
    EXPECT_THAT(titlesInView(), ElementsAre("a1", "renamed", "a3"));
    EXPECT_EQ(uBlock.URLDatas().Count(), 4);
    EXPECT_TRUE(Form3.mnuEdit.Enabled);
}

TEST_F(EditEntry, BlanksAtTheEndsDoNotReachTheRecordAndBlanksInsideDo) {
    openOnSecond();
    editing([] {
        writeName("  two  words ");
        writeUrl(" http://a b/  ");
        accept();
    });
    EXPECT_EQ(record(2).Name(), "two  words");
    EXPECT_EQ(record(2).URL(), "http://a b/");
}

TEST_F(EditEntry, EvenEmptyTextsAreStored) {
    openOnSecond();
    editing([] {
        writeName("");
        writeUrl("  ");
        accept();
    });
    EXPECT_EQ(record(2).Name(), "");
    EXPECT_EQ(record(2).URL(), "");
    EXPECT_THAT(titlesInView(), ElementsAre("a1", "", "a3"));
}

// The row of a list that may show several groups.
TEST_F(EditEntry, AcceptedUnchangedItCountsTwoChangesAndClearsTheSelection) {
    openOnSecond();
    savedAdvMode = 0;
    editing([] { accept(); });
    EXPECT_EQ(urlsDirty, 2);
    EXPECT_THAT(selectedRows(), IsEmpty());
    EXPECT_EQ(records().SelectedItem().position(), 2);
    EXPECT_EQ(record(2).Name(), "a2");
}

TEST_F(EditEntry, InTheListOfASingleGroupTheRowStaysSelected) {
    openOnSecond();
    savedAdvMode = 1;
    editing([] { accept(); });
    EXPECT_EQ(urlsDirty, 2);
    EXPECT_THAT(selectedRows(), ElementsAre(2));
    EXPECT_THAT(titlesInView(), ElementsAre("a1", "a2", "a3"));
}

TEST_F(EditEntry, ItKeepsTheDatesTheCountAndTheCatagory) {
    openOnSecond();
    URLData& kept = record(2);
    kept.LastAccesed = dateFromCivil(2001, 2, 3, 4, 5, 6);
    kept.Visited = 17;
    kept.Catagory = 9;
    RefreshURLPage();
    clickRow(records(), 2, Button::left);
    driver::setLocalTime(2005, 1, 1);
    editing([] {
        writeName("renamed");
        chooseGroup("B");
        accept();
    });
    EXPECT_EQ(dateText(kept.LastAccesed), "2001-02-03 04:05:06");
    EXPECT_EQ(dateText(kept.Created), "1999-12-31 12:00:00");
    EXPECT_EQ(kept.Visited, 17);
    EXPECT_EQ(kept.Catagory, 9);
    EXPECT_EQ(kept.ID(), "00002");
}

TEST_F(EditEntry, AnotherGroupTakesTheRowOutOfTheListOfASingleGroup) {
    openOnSecond();
    savedAdvMode = 1;
    editing([] {
        chooseGroup("B");
        accept();
    });
    EXPECT_EQ(record(2).Owner, 1);
    EXPECT_THAT(titlesInView(), ElementsAre("a1", "a3"));
    EXPECT_THAT(tags(), ElementsAre("00001", "00003"));
    EXPECT_EQ(urlsDirty, 2);
    groups().Row(2).Selected(true);
    EXPECT_THAT(refreshed(), ElementsAre("a2", "b"));
}

TEST_F(EditEntry, InAListOfSeveralGroupsTheRowStaysAndShowsTheOther) {
    openOnSecond();
    savedAdvMode = 0;
    editing([] {
        chooseGroup("B");
        accept();
    });
    EXPECT_EQ(record(2).Owner, 1);
    EXPECT_THAT(titlesInView(), ElementsAre("a1", "a2", "a3"));
    EXPECT_EQ(rowTexts(2)[3], "B");
    EXPECT_EQ(urlsDirty, 2);
}

// The only row of the group in view goes, and an empty list is no failure.
TEST_F(EditEntry, TheLastRowOfTheListMayGo) {
    open();
    savedAdvMode = 1;
    groups().Row(2).Selected(true);
    RefreshURLPage();
    clickRow(records(), 1, Button::left);
    editing([] {
        EXPECT_EQ(chosen(Form2.Combo1[1]), "B");
        chooseGroup("A");
        accept();
    });
    EXPECT_EQ(record(4).Owner, 0);
    EXPECT_THAT(titlesInView(), IsEmpty());
    EXPECT_EQ(urlsDirty, 2);
}

TEST_F(EditEntry, ItWritesNoShortcutFile) {
    openOnSecond();
    shortcutMode = 2;
    editing([] {
        writeName("renamed");
        accept();
    });
    EXPECT_THAT(driver::filesIn("C:\\Favorites"), IsEmpty());
}

TEST_F(EditEntry, WithTheExtendedPageOnShowTheFieldsOfTheFirstAreStored) {
    openOnSecond();
    editing([] {
        writeName("renamed");
        clickPage(2);
        EXPECT_EQ(Form2.Label3[1].Caption(), "Never");
        accept();
    });
    EXPECT_EQ(record(2).Name(), "renamed");
}

TEST_F(EditEntry, ARenamedRowStaysInItsPlaceOfASortedList) {
    open();
    records().SortKey(0);
    records().Sorted(true);
    clickRow(records(), 1, Button::left);
    editing([] {
        writeName("zebra");
        accept();
    });
    EXPECT_THAT(titlesInView(), ElementsAre("zebra", "a2", "a3"));
}

// The group in view, not the record's ---------------------------------------------------------

TEST_F(EditEntry, OnTheAdvancedTabAClickHasMovedTheGroupInViewToTheRecords) {
    open();
    listEverything();
    clickRow(records(), 4, Button::left);
    editing([] { EXPECT_EQ(chosen(Form2.Combo1[1]), "B"); });
}

TEST_F(EditEntry, OnTheStandardTabWithEverythingListedItOpensWithTheGroupOfTheDropDown) {
    open();
    clickTab(2);
    listEverything();
    clickRow(records(), 4, Button::left);
    EXPECT_EQ(chosen(Form3.Combo1[1]), "A");
    editing([] {
        EXPECT_EQ(Form2.Text1[0].Text(), "b");
        EXPECT_EQ(chosen(Form2.Combo1[1]), "A");
    });
    EXPECT_EQ(record(4).Owner, 1);
}

TEST_F(EditEntry, AcceptedSoItMovesTheRecordToThatGroup) {
    open();
    clickTab(2);
    savedAdvMode = 0;
    listEverything();
    clickRow(records(), 4, Button::left);
    editing([] { accept(); });
    EXPECT_EQ(record(4).Owner, 0);
    EXPECT_EQ(rowTexts(4)[3], "A");
}

// What fails ---------------------------------------------------------------------------------

// Rows that look the same stay selected; the one left over bears the tag of a deleted record.
TEST_F(EditEntry, OfARowWhoseRecordHasGoneNothingIsShownAndNothingStored) {
    openOnSecond();
    uBlock.URLDatas().Delete("00002");
    editing([] {
        EXPECT_EQ(Form2.Text1[0].Text(), "");
        accept();
        EXPECT_TRUE(Form2.Visible());
        cancel();
    });
    EXPECT_EQ(modalOpen, 0);
    EXPECT_THAT(selectedRows(), ElementsAre(2));
    EXPECT_EQ(urlsDirty, 0);
}

TEST_F(EditEntry, ARecordThatGoesUnderTheDialogFailsAtAccept) {
    openOnSecond();
    editing([] {
        uBlock.URLDatas().Delete("00002");
        writeName("too late");
        accept();
        EXPECT_TRUE(Form2.Visible());
        EXPECT_EQ(modalOpen, D_EDIT);
    });
    EXPECT_EQ(modalOpen, 0);
    EXPECT_EQ(uBlock.URLDatas().Count(), 3);
    EXPECT_EQ(urlsDirty, 0);
}

TEST_F(EditEntry, TheNextEditKnowsNothingOfTheOneBefore) {
    openOnSecond();
    editing([] { cancel(); });
    uBlock.URLDatas().Delete("00003");
    clickRow(records(), 3, Button::left);
    editing([] {
        EXPECT_EQ(Form2.toEdit, "");
        writeName("of nobody");
        accept();
        EXPECT_TRUE(Form2.Visible());
    });
    EXPECT_EQ(record(2).Name(), "a2");
}

// Five ratings are offered; a file may hold more.
TEST_F(EditEntry, ARatingThatIsNotOfferedEndsTheLoadThere) {
    openOnSecond();
    record(2).Rated = 5;
    ratedMask[5] = true;
    RefreshURLPage();
    clickRow(records(), 2, Button::left);
    editing([] {
        EXPECT_EQ(Form2.Text1[0].Text(), "a2");
        EXPECT_EQ(Form2.Combo1[0].ListIndex(), -1);
        EXPECT_EQ(Form2.Label3[0].Caption(), "");
        accept();
        EXPECT_TRUE(Form2.Visible());
    });
    EXPECT_EQ(record(2).Rated, 5);
    EXPECT_EQ(urlsDirty, 0);
}

}  // namespace
}  // namespace magpie
