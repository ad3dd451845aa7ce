// Edits of an entry whose row is not among the selected ones, and edits that fail.
#include "tests/behaviour/bulk_fixture.h"
#include "tests/behaviour/entry_fixture.h"
#include "views/find_form.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;
using testing::ElementsAre;
using testing::IsEmpty;

class EditRoads : public EntryFixture {
public:
    ~EditRoads() override { Find.discard(); }

    // As EntryFixture, with rows that stay wherever their entries go.
    static void open() {
        EntryFixture::open();
        savedAdvMode = 0;
    }

    static void select(int row) { clickRow(records(), row, driver::Button::left); }

    // Gives the entry of a row to group "B" by the dialog, and looks whether it went there.
    static void expectItMoves(int row) {
        URLData& moved = record(row);
        ASSERT_EQ(moved.Owner, 0);
        editing([] {
            chooseGroup("B");
            accept();
        });
        EXPECT_EQ(moved.Owner, 1);
        EXPECT_EQ(rowTexts(row)[3], "B");
    }
};

// Without a mark --------------------------------------------------------------------------

TEST_F(EditRoads, ASecondEditOfARowMovesItAsTheFirstWould) {
    open();
    select(2);
    editing([] { accept(); });
    EXPECT_THAT(selectedRows(), IsEmpty());
    expectItMoves(2);
    EXPECT_EQ(urlsDirty, 4);
}

TEST_F(EditRoads, BehindAClickBesideTheRowsAnEditMovesTheFocusedOne) {
    open();
    select(2);
    clickRow(records(), 9, driver::Button::left);
    EXPECT_THAT(selectedRows(), IsEmpty());
    expectItMoves(2);
}

TEST_F(EditRoads, AFocusedRowThatWasTakenOutOfTheSelectionIsMovedAlone) {
    open();
    for (const int row : {1, 2, 3}) records().Row(row).Selected(true);
    records().Row(3).Selected(false);
    expectItMoves(3);
    EXPECT_EQ(record(1).Owner, 0);
    EXPECT_EQ(record(2).Owner, 0);
}

TEST_F(EditRoads, ARowThatShowsOnlyPartOfItsTextIsMoved) {
    open();
    record(2).URL(std::string(300, 'u'));
    RefreshURLPage();
    select(2);
    expectItMoves(2);
    EXPECT_EQ(record(2).URL().size(), 300u);
}

// What fails ------------------------------------------------------------------------------

TEST_F(EditRoads, WithoutAGroupInViewNothingIsStored) {
    open();
    clickTab(2);
    Form3.Combo1[1].ListIndex(-1);
    editing([] {
        writeName("changed");
        chooseRating("High");
        chooseGroup("B");
        for (int press = 0; press < 2; ++press) accept();
        EXPECT_TRUE(Form2.Visible());
    });
    EXPECT_EQ(record(1).Name(), "a1");
    EXPECT_EQ(record(1).Rated, 0);
    EXPECT_EQ(record(1).Owner, 0);
    EXPECT_EQ(rowTexts(1)[0], "a1");
    EXPECT_EQ(urlsDirty, 0);
    EXPECT_EQ(modalOpen, 0);
}

TEST_F(EditRoads, WithoutARatingNothingIsStored) {
    open();
    record(1).Rated = 5;
    editing([] {
        writeName("changed");
        chooseGroup("B");
        accept();
        EXPECT_TRUE(Form2.Visible());
        EXPECT_EQ(modalOpen, D_EDIT);
    });
    EXPECT_EQ(record(1).Name(), "a1");
    EXPECT_EQ(record(1).Rated, 5);
    EXPECT_EQ(record(1).Owner, 0);
    EXPECT_EQ(urlsDirty, 0);
}

// Of two entries alike the second row is removed, and with it the first record: the row that is
// left has none. It takes the focus when the edited row leaves the list.
TEST_F(EditRoads, AStoredEditClosesTheDialogThoughTheNextRowHasNoRecord) {
    openWith({"A", "B"});
    for (const char* name : {"same", "same", "other"}) add(name);
    RefreshURLPage();
    savedAdvMode = 1;
    select(2);
    BulkFixture::choose("Remove");
    urlsDirty = 0;
    select(2);
    ASSERT_EQ(records().SelectedItem().Text(), "other");
    editing([] {
        chooseGroup("B");
        accept();
        EXPECT_FALSE(Form2.loaded());
    });
    EXPECT_EQ(modalOpen, 0);
    EXPECT_EQ(newest().Owner, 1);
    EXPECT_EQ(urlsDirty, 1);
    EXPECT_TRUE(win::IsWindowEnabled(Form3.hWnd()));
}

TEST_F(EditRoads, ARowWithoutARecordIsNeitherShownNorVisited) {
    openWith({"A"});
    for (const char* name : {"same", "same"}) add(name);
    RefreshURLPage();
    select(2);
    BulkFixture::choose("Remove");
    urlsDirty = 0;
    select(1);
    driver::doubleClick(records().hWnd(), {30, 17 + 7});
    driver::pump();
    EXPECT_EQ(newest().Visited, 0);
    editing([] {
        EXPECT_EQ(Form2.Text1[0].Text(), "");
        accept();
        EXPECT_TRUE(Form2.Visible());
    });
    EXPECT_EQ(newest().Name(), "same");
    EXPECT_EQ(urlsDirty, 0);
}

// Behind a new entry ------------------------------------------------------------------------

TEST_F(EditRoads, AfterANewEntryTheCommandsOnEntriesAreThereAtOnce) {
    open();
    adding([] { accept(); });
    for (const MenuItem* item :
         {&Form3.mnuEdit, &Form3.mnuAddz, &Form3.mnuRemove, &Form3.mnuFindHd})
        EXPECT_TRUE(item->Enabled);
    Form3.Command3[1].SetFocus();
    bool found = false;
    driver::whenIdle([&] {
        found = Find.loaded();
        key(win::VK_ESCAPE);
        win::PostMessageA(win::GetActiveWindow(), win::WM_NULL, 0, 0);
    });
    key('F', {.ctrl = true, .shift = false, .alt = false});
    EXPECT_TRUE(found);
}

TEST_F(EditRoads, ANewRowComesIntoSightAndTakesNoMark) {
    openWith({"A"});
    for (int i = 0; i < 60; ++i) add(std::to_string(i));
    RefreshURLPage();
    select(1);
    EXPECT_FALSE(isInSight(records(), 60));
    adding([] { accept(); });
    EXPECT_TRUE(isInSight(records(), 61));
    EXPECT_THAT(selectedRows(), ElementsAre(1));
    EXPECT_EQ(records().SelectedItem().position(), 1);
}

}  // namespace
}  // namespace magpie
