// New entries by the dialog: its defaults, and what Accept makes of it.
#include "entries/add_entry.h"
#include "tests/behaviour/entry_fixture.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;
using driver::Button;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;

using NewEntry = EntryFixture;

// Roads to it ------------------------------------------------------------------------------

TEST_F(NewEntry, EveryRoadLeadsToTheDialog) {
    open();
    const std::function<void()> roads[] = {
        [] { chooseFrom(rightClickRecords, "New Entry"); },
        [] {
            records().SetFocus();
            driver::key('A', {.ctrl = true, .shift = false, .alt = false});
        },
        [] { driver::type("\x01"); },
        [] { mnuAddEntry_Click(1); },
    };
    for (const auto& road : roads)
        asking(road, [] {
            EXPECT_EQ(modalOpen, D_NEW);
            accept();
        });
    EXPECT_EQ(uBlock.URLDatas().Count(), 8);
    EXPECT_EQ(urlsDirty, 4);
}

TEST_F(NewEntry, WhileAnyDialogHoldsTheInterfaceControlADoesNothing) {
    open();
    records().SetFocus();
    for (const std::uint8_t held : std::initializer_list<std::uint8_t>{1, D_EDIT, D_NEW, 4}) {
        modalOpen = held;
        driver::key('A', {.ctrl = true, .shift = false, .alt = false});
        driver::type("\x01");
        for (const int item : {0, 1}) mnuAddEntry_Click(item);
        EXPECT_FALSE(Form2.loaded());
        EXPECT_EQ(modalOpen, held);
    }
    modalOpen = 0;
}

// The window is free, but a question for a removal was answered with No.
TEST_F(NewEntry, BehindARefusedRemovalControlADoesNothing) {
    open();
    for (const int row : {1, 2}) records().Row(row).Selected(true);
    driver::answerMessageBox(win::IDNO);
    records().SetFocus();
    chooseFrom([] { key(win::VK_APPS); }, "Remove");
    ASSERT_EQ(modalOpen, 1);
    key('A', {.ctrl = true, .shift = false, .alt = false});
    EXPECT_FALSE(Form2.loaded());
    chooseFrom(clickMenuButton, "About");
    asking([] { key('A', {.ctrl = true, .shift = false, .alt = false}); },
           [] { EXPECT_EQ(modalOpen, D_NEW); });
}

TEST_F(NewEntry, AnyOtherItemDoesNothing) {
    open();
    for (const int item : {-1, 2, 100}) mnuAddEntry_Click(item);
    EXPECT_FALSE(Form2.loaded());
    EXPECT_EQ(modalOpen, 0);
}

TEST_F(NewEntry, WithoutABrowserNothingComesFromIt) {
    open();
    chooseFrom(rightClickRecords, "From Browser");
    EXPECT_FALSE(Form2.loaded());
    EXPECT_EQ(modalOpen, 0);
    EXPECT_EQ(urlsDirty, 0);
}

// What a captured page writes before the dialog is shown lands over the defaults.
TEST_F(NewEntry, WritingIntoTheBoxesLoadsTheDialogWithItsDefaultsFirst) {
    open();
    modalOpen = D_NEW;
    Form2.Text1[0].Text("Captured");
    EXPECT_TRUE(Form2.loaded());
    EXPECT_FALSE(Form2.Visible());
    Form2.Text1[1].Text("http://captured/");
    asking([] { Form2.showModal(); },
           [] {
               EXPECT_EQ(Form2.Text1[0].Text(), "Captured");
               EXPECT_EQ(Form2.Combo1[0].ListIndex(), 0);
               EXPECT_EQ(chosen(Form2.Combo1[1]), "A");
               accept();
           });
    EXPECT_EQ(newest().Name(), "Captured");
    EXPECT_EQ(newest().URL(), "http://captured/");
}

TEST_F(NewEntry, BesideTheMainWindowItIsNotModal) {
    open();
    mnuNew_Click();
    EXPECT_TRUE(Form2.Visible());
    EXPECT_EQ(modalOpen, D_NEW);
    EXPECT_TRUE(win::IsWindowEnabled(Form3.hWnd()));
    const win::HWND dialog = Form2.hWnd();
    mnuNew_Click();
    EXPECT_EQ(Form2.hWnd(), dialog);
    writeName("beside");
    accept();
    EXPECT_FALSE(Form2.loaded());
    EXPECT_EQ(modalOpen, 0);
    EXPECT_EQ(newest().Name(), "beside");
    modalOpen = 1;
    mnuNew_Click();
    EXPECT_FALSE(Form2.loaded());
}

// Defaults ---------------------------------------------------------------------------------

TEST_F(NewEntry, ItStartsWithTheUsualSchemeUnratedInTheGroupInView) {
    open();
    groups().Row(2).Selected(true);
    adding([] {
        EXPECT_EQ(Form2.Text1[0].Text(), "");
        EXPECT_EQ(Form2.Text1[1].Text(), "http://");
        EXPECT_EQ(chosen(Form2.Combo1[0]), "Not Rated");
        EXPECT_EQ(chosen(Form2.Combo1[1]), "B");
    });
}

TEST_F(NewEntry, OnTheStandardTabTheGroupIsThatOfTheDropDown) {
    open();
    clickTab(2);
    Form3.Combo1[1].ListIndex(1);
    adding([] { EXPECT_EQ(chosen(Form2.Combo1[1]), "B"); });
}

TEST_F(NewEntry, ItsExtendedPageIsEmpty) {
    open();
    adding([] {
        clickPage(2);
        for (Label& value : Form2.Label3) EXPECT_EQ(value.Caption(), "");
    });
}

// Accept -----------------------------------------------------------------------------------

TEST_F(NewEntry, AcceptedWithoutAnyTypingItIsNamelessAndUnratedInTheGroupInView) {
    open();
    adding([] { accept(); });
    ASSERT_EQ(uBlock.URLDatas().Count(), 5);
    EXPECT_EQ(newest().Name(), "");
    EXPECT_EQ(newest().URL(), "http://");
    EXPECT_EQ(newest().Rated, 0);
    EXPECT_EQ(newest().Owner, 0);
    EXPECT_THAT(titlesInView(), ElementsAre("a1", "a2", "a3", ""));
}

TEST_F(NewEntry, EveryFieldIsStored) {
    open();
    driver::setLocalTime(2004, 5, 6, 7, 8, 9);
    adding([] {
        driver::type("Typed name");
        key(win::VK_TAB);
        driver::type("ftp://typed/");
        chooseRating("V.High!");
        accept();
    });
    EXPECT_EQ(newest().ID(), "00005");
    EXPECT_EQ(newest().Name(), "Typed name");
    EXPECT_EQ(newest().URL(), "ftp://typed/");
    EXPECT_EQ(newest().Rated, 4);
    EXPECT_EQ(newest().Owner, 0);
    EXPECT_EQ(dateText(newest().Created), "2004-05-06 07:08:09");
    EXPECT_EQ(newest().LastAccesed.days, 0);
    EXPECT_EQ(newest().Visited, 0);
    EXPECT_EQ(urlsDirty, 1);
}

TEST_F(NewEntry, ItsRowShowsWhatWasStoredAndTheCountsRise) {
    open();
    driver::setLocalTime(2004, 5, 6, 7, 8, 9);
    adding([] {
        writeName("new");
        writeUrl("http://new/");
        chooseRating("V.High!");
        accept();
    });
    EXPECT_THAT(rowTexts(4), ElementsAre("new", "http://new/", "V.High", "A", "Never",
                                         "2004-05-06 07:08:09", "0"));
    EXPECT_THAT(tags(), ElementsAre("00001", "00002", "00003", "00005"));
    EXPECT_EQ(Form3.StatusBar1.Pane(1), "Viewed: 4");
    EXPECT_EQ(Form3.StatusBar1.Pane(2), "Total: 5");
}

TEST_F(NewEntry, BlanksAtTheEndsDoNotReachTheRecordAndBlanksInsideDo) {
    open();
    adding([] {
        writeName("  two  words ");
        writeUrl(" http://a b/  ");
        accept();
    });
    EXPECT_EQ(newest().Name(), "two  words");
    EXPECT_EQ(newest().URL(), "http://a b/");
}

// Only blanks are trimmed.
TEST_F(NewEntry, NothingElseIsCheckedOrChanged) {
    open();
    adding([] {
        writeName("\ttab\t");
        writeUrl("");
        accept();
    });
    EXPECT_EQ(newest().Name(), "\ttab\t");
    EXPECT_EQ(newest().URL(), "");
    adding([] {
        writeName("a1");
        writeUrl("no address");
        accept();
    });
    EXPECT_EQ(newest().Name(), "a1");
    EXPECT_EQ(uBlock.URLDatas().Count(), 6);
    EXPECT_THAT(driver::messageBoxes(), IsEmpty());
}

TEST_F(NewEntry, InAnotherGroupThanTheOneInViewTheTotalRisesAndNoRowAppears) {
    open();
    adding([] {
        writeName("elsewhere");
        chooseGroup("B");
        accept();
    });
    EXPECT_EQ(newest().Owner, 1);
    EXPECT_THAT(titlesInView(), ElementsAre("a1", "a2", "a3"));
    EXPECT_EQ(Form3.StatusBar1.Pane(1), "Viewed: 3");
    EXPECT_EQ(Form3.StatusBar1.Pane(2), "Total: 5");
    EXPECT_EQ(urlsDirty, 1);
    groups().Row(2).Selected(true);
    EXPECT_THAT(refreshed(), ElementsAre("b", "elsewhere"));
}

TEST_F(NewEntry, AFilterThatWouldHideItDoesNotKeepItsRowAway) {
    open();
    ratedMask.fill(false);
    RefreshURLPage();
    adding([] {
        writeName("shown");
        accept();
    });
    EXPECT_THAT(titlesInView(), ElementsAre("shown"));
}

TEST_F(NewEntry, ASortedListTakesItToItsPlace) {
    open();
    records().SortKey(0);
    records().SortOrder(1);
    records().Sorted(true);
    adding([] {
        writeName("a22");
        accept();
    });
    EXPECT_THAT(titlesInView(), ElementsAre("a3", "a22", "a2", "a1"));
    EXPECT_THAT(tags(), ElementsAre("00003", "00005", "00002", "00001"));
    EXPECT_EQ(rowTexts(2)[3], "A");
}

TEST_F(NewEntry, WithTheExtendedPageOnShowTheFieldsOfTheFirstAreStored) {
    open();
    adding([] {
        writeName("written first");
        clickPage(2);
        accept();
    });
    EXPECT_EQ(newest().Name(), "written first");
}

TEST_F(NewEntry, ItKeepsTheRowOfItsGroupAmongTheSortedOnes) {
    openWith({"pears", "Apples", "oranges"});
    RefreshURLPage();
    adding([] { accept(); });
    EXPECT_EQ(newest().Owner, 0);
    EXPECT_EQ(newest().Catagory, 2);
}

// The number of that row has one byte, and nobody asks for it.
TEST_F(NewEntry, MoreGroupsThanAByteCountsAreNoHindrance) {
    openWith({});
    for (int number = 0; number < 300; ++number) NewCatagory(std::to_string(1000 + number));
    rebuildGroupList(true);
    groups().Row(280).Selected(true);
    adding([] { accept(); });
    EXPECT_EQ(uBlock.URLDatas().Count(), 1);
    EXPECT_EQ(newest().Owner, 279);
    EXPECT_EQ(newest().Catagory, 279 - 256);
    EXPECT_FALSE(Form2.loaded());
    EXPECT_EQ(urlsDirty, 1);
}

// Groups below 0 come of renumbering the spare element.
TEST_F(NewEntry, AGroupBelowZeroStoresNothingAndClosesAllTheSame) {
    open();
    IDXList[1].GroupID = -5;
    adding([] {
        chooseGroup("B");
        accept();
        EXPECT_FALSE(Form2.loaded());
    });
    EXPECT_EQ(uBlock.URLDatas().Count(), 4);
    EXPECT_EQ(urlsDirty, 0);
    EXPECT_EQ(modalOpen, 0);
}

TEST_F(NewEntry, AFullStoreTakesNoneAndTheDialogStaysUp) {
    open();
    while (uBlock.URLDatas().Count() < 32767) uBlock.URLDatas().Add("", "", 0);
    adding([] {
        accept();
        EXPECT_TRUE(Form2.Visible());
    });
    EXPECT_EQ(uBlock.URLDatas().Count(), 32767);
    EXPECT_EQ(urlsDirty, 0);
}

// Shortcut files -----------------------------------------------------------------------------

TEST_F(NewEntry, AShortcutFileIsWrittenWhereTheSettingSays) {
    open();
    const auto addNamed = [](const char* name) {
        adding([name] {
            writeName(std::string(" ").append(name));
            writeUrl("http://new/ ");
            chooseGroup("B");
            accept();
        });
    };
    constexpr const char* text = "[InternetShortcut]\r\nURL=http://new/\r\n";
    shortcutMode = 0;
    addNamed("none");
    EXPECT_THAT(driver::filesIn("C:\\Favorites"), IsEmpty());
    shortcutMode = 1;
    addNamed("in its group");
    EXPECT_THAT(driver::file("C:\\Favorites\\B\\in its group.url"), Optional(std::string(text)));
    shortcutMode = 2;
    addNamed("beside");
    EXPECT_THAT(driver::file("C:\\Favorites\\beside.url"), Optional(std::string(text)));
}

TEST_F(NewEntry, AShortcutFileThatCannotBeWrittenCostsNothing) {
    open();
    shortcutMode = 1;
    adding([] {
        writeName("a/b: no file?");
        accept();
    });
    EXPECT_EQ(newest().Name(), "a/b: no file?");
    EXPECT_THAT(driver::filesIn("C:\\Favorites\\A"), IsEmpty());
    EXPECT_EQ(urlsDirty, 1);
}

TEST_F(NewEntry, CancelledItWritesNoShortcutFile) {
    open();
    shortcutMode = 2;
    adding([] {
        writeName("none");
        cancel();
    });
    EXPECT_THAT(driver::filesIn("C:\\Favorites"), IsEmpty());
}

// Keys ---------------------------------------------------------------------------------------

TEST_F(NewEntry, AfterEveryRecordHasGoneTheNextTagIsTheFirstAgain) {
    open();
    listAll();
    RefreshURLPage();
    const int rows = records().Count();
    EXPECT_EQ(rows, 4);
    for (int row = 1; row <= rows; ++row) records().Row(row).Selected(true);
    driver::answerMessageBox(win::IDYES);
    chooseFrom([] { key(win::VK_APPS); }, "Remove");
    EXPECT_THAT(tags(), testing::IsEmpty());
    adding([] { accept(); });
    EXPECT_THAT(tags(), ElementsAre("00001"));
}

}  // namespace
}  // namespace magpie
