// "Remove" in the menu of the record lists.
#include "entries/bulk_list.h"
#include "platform/memory/driver_system.h"
#include "store/record_key.h"
#include "tests/behaviour/bulk_fixture.h"
#include "tests/unit/runtime/failure_of.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;
using BulkRemove = BulkFixture;
using testing::ElementsAre;
using testing::IsEmpty;

int failureOfRemoving() {
    return failureOf([] {
        RemoveSelected();
        return 0;
    });
}

TEST_F(BulkRemove, TheFirstTwoAndTheLastOfFiveGoInOneWalk) {
    open({"1", "2", "3", "4", "5"});
    select({0, 1, 4});
    chooseAndAnswer("Remove", win::IDYES);
    EXPECT_THAT(titlesInView(), ElementsAre("3", "4"));
    EXPECT_THAT(keysLeft(), ElementsAre("00003", "00004"));
    EXPECT_EQ(urlsDirty, 1);
    EXPECT_EQ(Form3.StatusBar1.Pane(1), "Viewed: 2");
    EXPECT_EQ(Form3.StatusBar1.Pane(2), "Total: 2");
}

TEST_F(BulkRemove, ASelectedRowGoesWithoutAQuestion) {
    open({"1", "2"});
    select({1});
    choose("Remove");
    EXPECT_THAT(titlesInView(), ElementsAre("1"));
    EXPECT_EQ(modalOpen, 0);
    EXPECT_THAT(driver::messageBoxes(), IsEmpty());
}

TEST_F(BulkRemove, TheQuestionCountsTheRowsAndStandsUnderItsTitle) {
    open({"1", "2", "3"});
    select({0, 2});
    mainOnTop = true;
    driver::onMessageBox([](const driver::Box& box) {
        EXPECT_EQ(box.owner, Form3.hWnd());
        EXPECT_EQ(box.text, "Remove 2 items, are you sure?");
        EXPECT_EQ(box.caption, "Confirm Delete");
        EXPECT_EQ(box.type, win::MB_YESNO | win::MB_ICONWARNING);
        EXPECT_EQ(modalOpen, 1);
        EXPECT_FALSE(isTopMost(Form3));
        return win::IDYES;
    });
    choose("Remove");
    EXPECT_THAT(titlesInView(), ElementsAre("2"));
    EXPECT_EQ(modalOpen, 0);
    EXPECT_TRUE(isTopMost(Form3));
}

TEST_F(BulkRemove, ANoRemovesNothingAndLeavesTheInterfaceHeld) {
    open({"1", "2"});
    select({0, 1});
    mainOnTop = true;
    chooseAndAnswer("Remove", win::IDNO);
    EXPECT_THAT(titlesInView(), ElementsAre("1", "2"));
    EXPECT_EQ(uBlock.URLDatas().Count(), 2);
    EXPECT_EQ(urlsDirty, 0);
    EXPECT_EQ(modalOpen, 1);
    EXPECT_FALSE(isTopMost(Form3));
    EXPECT_THAT(selected(), ElementsAre(0, 1));
}

TEST_F(BulkRemove, AfterANoEditAndNewEntryWaitForTheNextCommandThatGivesTheInterfaceBack) {
    open({"1", "2"});
    select({0, 1});
    mainOnTop = true;
    chooseAndAnswer("Remove", win::IDNO);
    const int windows = driver::live().windows;
    choose("Edit");
    choose("New Entry");
    EXPECT_EQ(driver::live().windows, windows);
    EXPECT_EQ(modalOpen, 1);
    move([] {});
    EXPECT_EQ(modalOpen, 0);
    EXPECT_TRUE(isTopMost(Form3));
}

TEST_F(BulkRemove, TheAboutBoxGivesTheInterfaceBackAsWell) {
    open({"1", "2"});
    select({0, 1});
    mainOnTop = true;
    chooseAndAnswer("Remove", win::IDNO);
    chooseFrom(clickMenuButton, "About");
    EXPECT_EQ(modalOpen, 0);
    EXPECT_TRUE(isTopMost(Form3));
}

// The box goes with the main window, and nothing holds the interface of the next one.
TEST_F(BulkRemove, AFlushUnderTheQuestionEndsItAndTheNextWindowIsFree) {
    open({"1", "2"});
    select({0, 1});
    driver::onMessageBox([](const driver::Box&) {
        Form1.mFlush.onClick.raise(0);
        return win::IDYES;
    });
    choose("Remove");
    EXPECT_FALSE(Form3.loaded());
    EXPECT_EQ(modalOpen, 0);
    clickPad();
    EXPECT_TRUE(Form3.Visible());
}

TEST_F(BulkRemove, AWindowThatIsLoadedAnewUnderTheQuestionIsFreeAndLosesNothing) {
    startAndOpen();
    const int rows = records().Count();
    for (int row = 0; row < rows; ++row) select({row});
    driver::onMessageBox([](const driver::Box&) {
        Form1.mFlush.onClick.raise(0);
        clickPad();
        for (int row = 0; row < records().Count(); ++row) select({row});
        return win::IDYES;
    });
    choose("Remove");
    EXPECT_TRUE(Form3.Visible());
    EXPECT_EQ(modalOpen, 0);
    EXPECT_EQ(uBlock.URLDatas().Count(), 3);
    EXPECT_EQ(records().Count(), rows);
}

TEST_F(BulkRemove, AWalkThatFailsUnderTheCommandLeavesTheInterfaceHeld) {
    open({"1", "2"});
    select({0, 1});
    uBlock.URLDatas().Item(2).Rated = 6;
    mainOnTop = true;
    chooseAndAnswer("Remove", win::IDYES);
    EXPECT_THAT(keysLeft(), ElementsAre("00002"));
    EXPECT_EQ(modalOpen, 1);
    EXPECT_FALSE(isTopMost(Form3));
    EXPECT_EQ(urlsDirty, 0);
    EXPECT_EQ(Form3.StatusBar1.Pane(2), "Total: 2");
}

TEST_F(BulkRemove, OfRecordsThatLookAlikeTheFirstGoes) {
    open({"same", "same", "other"});
    select({1});
    choose("Remove");
    EXPECT_THAT(keysLeft(), ElementsAre("00002", "00003"));
    EXPECT_THAT(titlesInView(), ElementsAre("same", "other"));
    // The row that is left carries the tag of the record that has gone.
    const std::string tag = records().Row(1).Tag();
    EXPECT_EQ(failureOf([&] { return uBlock.URLDatas().Item(recordKey(tag)).Name().size(); }),
              failure::invalidCall);
    EXPECT_THAT(refreshed(), ElementsAre("same", "other"));
    EXPECT_EQ(records().Row(1).Tag(), "00002");
}

TEST_F(BulkRemove, AllThatLookAlikeGoWhenAllAreSelected) {
    open({"same", "same", "same"});
    select({2, 0, 1});
    chooseAndAnswer("Remove", win::IDYES);
    EXPECT_THAT(keysLeft(), IsEmpty());
    EXPECT_THAT(titlesInView(), IsEmpty());
    EXPECT_EQ(focused(), -1);
    EXPECT_FALSE(Form3.mnuRemove.Enabled);
}

TEST_F(BulkRemove, OtherRowsKeepTheirTags) {
    open({"1", "2", "3"});
    select({0});
    choose("Remove");
    EXPECT_EQ(records().Row(1).Tag(), "00002");
    EXPECT_EQ(records().Row(2).Tag(), "00003");
}

TEST_F(BulkRemove, TheFocusStaysAtItsPlaceAndGoesUpAtTheEnd) {
    open({"1", "2", "3", "4"});
    select({1});
    choose("Remove");
    EXPECT_EQ(focused(), 1);
    EXPECT_EQ(records().SelectedItem().Text(), "3");
    EXPECT_THAT(selected(), IsEmpty());
    select({2});
    choose("Remove");
    EXPECT_EQ(focused(), 1);
    EXPECT_EQ(records().SelectedItem().Text(), "3");
    EXPECT_EQ(win::GetFocus(), records().hWnd());
}

TEST_F(BulkRemove, OfSeveralRemovedRowsTheFocusedOneGivesItsPlace) {
    open({"1", "2", "3", "4", "5"});
    select({0, 3, 1});
    chooseAndAnswer("Remove", win::IDYES);
    EXPECT_EQ(records().SelectedItem().Text(), "3");
    EXPECT_EQ(focused(), 0);
}

TEST_F(BulkRemove, WithNothingSelectedTheStoreCountsAsChanged) {
    open({"1", "2"});
    choose("Remove");
    EXPECT_THAT(titlesInView(), ElementsAre("1", "2"));
    EXPECT_EQ(urlsDirty, 1);
    EXPECT_EQ(modalOpen, 0);
}

TEST_F(BulkRemove, TheRowsOfTheOtherTabAreRemovedLikewise) {
    open({"1", "2", "3"});
    clickTab(2);
    ASSERT_THAT(refreshed(), ElementsAre("1", "2", "3"));
    select({0, 2});
    chooseAndAnswer("Remove", win::IDYES);
    EXPECT_THAT(titlesInView(), ElementsAre("2"));
    EXPECT_THAT(keysLeft(), ElementsAre("00002"));
}

TEST_F(BulkRemove, ASortedListLosesTheRecordsOfItsRows) {
    open({"b", "a", "c"});
    records().Sorted(true);
    ASSERT_THAT(titlesInView(), ElementsAre("a", "b", "c"));
    select({0, 2});
    chooseAndAnswer("Remove", win::IDYES);
    EXPECT_THAT(titlesInView(), ElementsAre("b"));
    EXPECT_THAT(keysLeft(), ElementsAre("00001"));
}

TEST_F(BulkRemove, TheShortcutFileStays) {
    open({"1"});
    shortcutMode = 2;
    select({0});
    choose("Bookmarks Folder");
    ASSERT_TRUE(driver::file("C:\\Favorites\\1.url"));
    select({0});
    choose("Remove");
    EXPECT_THAT(keysLeft(), IsEmpty());
    EXPECT_TRUE(driver::file("C:\\Favorites\\1.url"));
}

// As many rows go as are selected; a row that was cut is met like those.
TEST_F(BulkRemove, ACutRowCountsAsSelected) {
    open({"1", "2", "3"});
    cut(1);
    select({2});
    choose("Remove");
    EXPECT_THAT(titlesInView(), ElementsAre("1", "3"));
    EXPECT_THAT(keysLeft(), ElementsAre("00001", "00003"));
}

TEST_F(BulkRemove, ARecordThatFailsStopsTheWalkWithTheRowsBeforeItDone) {
    open({"1", "2", "3"});
    select({0, 1, 2});
    uBlock.URLDatas().Item(2).Rated = 6;
    EXPECT_EQ(failureOfRemoving(), failure::subscript);
    EXPECT_THAT(keysLeft(), ElementsAre("00002", "00003"));
    EXPECT_THAT(titlesInView(), ElementsAre("2", "3"));
    EXPECT_EQ(urlsDirty, 0);
}

TEST_F(BulkRemove, ARecordWithoutAGroupBehindTheRowsOwnIsNotAsked) {
    open({"1", "2"});
    uBlock.URLDatas().Add("2", "http://server/", -1);
    select({0, 1});
    RemoveSelected();
    EXPECT_THAT(keysLeft(), ElementsAre("00003"));
}

TEST_F(BulkRemove, ARecordWithoutAGroupAheadOfTheRowsOwnFails) {
    open({});
    uBlock.URLDatas().Add("3", "http://server/", -1);
    add("3");
    add("4");
    refresh();
    select({1});
    EXPECT_EQ(failureOfRemoving(), 0);
    select({0});
    EXPECT_EQ(failureOfRemoving(), failure::subscript);
    EXPECT_THAT(keysLeft(), ElementsAre("00001", "00002"));
}

TEST_F(BulkRemove, MoreRowsThanTheirNumberCanHoldAreRefused) {
    open({"1"});
    for (int row = 1; row <= 32767; ++row) records().Add("row");
    setRowState(-1, win::LVIS_SELECTED, win::LVIS_SELECTED);
    EXPECT_EQ(failureOfRemoving(), failure::overflow);
    EXPECT_EQ(records().Count(), 32768);
    EXPECT_EQ(uBlock.URLDatas().Count(), 1);
    EXPECT_EQ(urlsDirty, 0);
}

}  // namespace
}  // namespace magpie
