// "Rate" in the menu of the record lists.
#include "entries/bulk_list.h"
#include "tests/behaviour/bulk_fixture.h"
#include "tests/unit/runtime/failure_of.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;
using BulkRate = BulkFixture;
using testing::ElementsAre;
using testing::IsEmpty;

int failureOfRating(int rating) {
    return failureOf([rating] {
        RateSelected(static_cast<std::int16_t>(rating), false);
        return 0;
    });
}

TEST_F(BulkRate, ThreeRowsAreRatedAndNoneStaysSelected) {
    open({"1", "2", "3", "4"});
    select({0, 1, 3});
    choose("Medium");
    EXPECT_THAT(ratings(), ElementsAre(2, 2, 0, 2));
    EXPECT_THAT(column(2), ElementsAre("Medium", "Medium", "Not Rated", "Medium"));
    EXPECT_THAT(selected(), IsEmpty());
    EXPECT_EQ(urlsDirty, 1);
}

TEST_F(BulkRate, EveryLineWritesTheSpellingOfTheTable) {
    open({"1"});
    std::vector<std::string> written;
    for (const char* line : {"Low", "Medium", "High", "Very High", "Not Rated"}) {
        select({0});
        choose(line);
        written.push_back(rowText(0, 2));
    }
    EXPECT_THAT(written, ElementsAre("Low", "Medium", "High", "V.High", "Not Rated"));
    EXPECT_EQ(urlsDirty, 5);
}

TEST_F(BulkRate, TheFocusStaysOnItsRow) {
    open({"1", "2", "3"});
    select({0, 2, 1});
    choose("Low");
    EXPECT_EQ(focused(), 1);
    EXPECT_EQ(records().SelectedItem().Text(), "2");
}

TEST_F(BulkRate, ARowOutsideOfTheFilterStaysUntilTheNextRefresh) {
    open({"1", "2"});
    ratedMask[3] = false;
    select({1});
    choose("High");
    EXPECT_THAT(titlesInView(), ElementsAre("1", "2"));
    EXPECT_THAT(refreshed(), ElementsAre("1"));
}

TEST_F(BulkRate, ARowSortedByItsRatingStaysInItsPlace) {
    open({"1", "2"});
    records().SortKey(2);
    records().Sorted(true);
    select({0});
    choose("High");
    select({1});
    choose("Low");
    EXPECT_THAT(column(2), ElementsAre("High", "Low"));
    EXPECT_THAT(titlesInView(), ElementsAre("1", "2"));
}

TEST_F(BulkRate, ThePanelIsLeftAlone) {
    open({"1"});
    Form3.StatusBar1.Pane(1, "as it was");
    select({0});
    choose("Low");
    EXPECT_EQ(Form3.StatusBar1.Pane(1), "as it was");
}

TEST_F(BulkRate, WithNothingSelectedTheStoreCountsAsChanged) {
    open({"1"});
    choose("Low");
    EXPECT_THAT(ratings(), ElementsAre(0));
    EXPECT_EQ(urlsDirty, 1);
}

TEST_F(BulkRate, OfRecordsThatLookAlikeTheFirstIsRatedForEachRow) {
    open({"same", "same"});
    select({1});
    choose("Low");
    EXPECT_THAT(ratings(), ElementsAre(1, 0));
    EXPECT_THAT(column(2), ElementsAre("Not Rated", "Low"));
    select({0});
    choose("Low");
    EXPECT_THAT(ratings(), ElementsAre(1, 1));
}

TEST_F(BulkRate, AllThatLookAlikeAreRatedWhenAllAreSelected) {
    open({"same", "same", "same"});
    select({0, 1, 2});
    choose("High");
    EXPECT_THAT(ratings(), ElementsAre(3, 3, 3));
    EXPECT_THAT(column(2), ElementsAre("High", "High", "High"));
}

TEST_F(BulkRate, TheRecordIsFoundWhateverItsVisitsAre) {
    open({"1"});
    uBlock.URLDatas().Item(1).Visited = 99;
    uBlock.URLDatas().Item(1).Catagory = 7;
    select({0});
    choose("Low");
    EXPECT_THAT(ratings(), ElementsAre(1));
}

TEST_F(BulkRate, ADateIsFoundByItsText) {
    open({});
    URLData& record = add("1");
    record.LastAccesed = dateFromCivil(2001, 2, 3, 4, 5, 6);
    record.LastAccesed.days += 0.000003;
    refresh();
    select({0});
    choose("Low");
    EXPECT_THAT(ratings(), ElementsAre(1));
}

TEST_F(BulkRate, ACutRowIsNotRated) {
    open({"1", "2"});
    cut(0);
    select({1});
    choose("Low");
    EXPECT_THAT(ratings(), ElementsAre(0, 1));
}

TEST_F(BulkRate, ATextOfAsManyCharactersAsTheListShowsIsFound) {
    open({});
    add(std::string(254, 't')).URL(std::string(254, 'u'));
    refresh();
    select({0});
    choose("Low");
    EXPECT_THAT(ratings(), ElementsAre(1));
}

TEST_F(BulkRate, ARatingWithoutANameFailsWhenTheFirstRecordHasIt) {
    open({"1", "2"});
    select({0, 1});
    EXPECT_EQ(failureOfRating(6), failure::subscript);
    EXPECT_THAT(ratings(), ElementsAre(6, 0));
    EXPECT_THAT(column(2), ElementsAre("Not Rated", "Not Rated"));
    EXPECT_THAT(selected(), ElementsAre(1));
    EXPECT_EQ(urlsDirty, 0);
}

TEST_F(BulkRate, ARatingThatIsNoByteFailsBeforeAnythingIsDone) {
    open({"1"});
    select({0});
    for (const int rating : {-1, 256}) {
        EXPECT_EQ(failureOfRating(rating), failure::overflow) << rating;
        EXPECT_THAT(ratings(), ElementsAre(0));
        EXPECT_THAT(selected(), ElementsAre(0));
    }
}

TEST_F(BulkRate, ARecordThatFailsStopsTheWalkWithTheRowsBeforeItDone) {
    open({"1", "2", "3"});
    select({0, 1, 2});
    uBlock.URLDatas().Item(2).Owner = 7;
    EXPECT_EQ(failureOfRating(1), failure::subscript);
    EXPECT_THAT(ratings(), ElementsAre(1, 0, 0));
    EXPECT_THAT(selected(), ElementsAre(1, 2));
    EXPECT_EQ(urlsDirty, 0);
}

// No command leads here.
TEST_F(BulkRate, ByTheMarkOnlyTheFirstSelectedRowFromThereIsRated) {
    open({"1", "2", "3", "4"});
    clickRow(records(), 2, driver::Button::left);
    select({0, 2, 3});
    RateSelected(1, true);
    EXPECT_THAT(ratings(), ElementsAre(0, 1, 0, 0));
    RateSelected(2, true);
    EXPECT_THAT(ratings(), ElementsAre(0, 1, 2, 0));
    EXPECT_THAT(selected(), ElementsAre(0, 3));
    EXPECT_EQ(urlsDirty, 2);
}

}  // namespace
}  // namespace magpie
