// The masks: which records a refresh leaves out.
#include "mainwindow/status_panel.h"
#include "tests/behaviour/view_fixture.h"
#include "tests/unit/runtime/failure_of.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;
using testing::ElementsAre;
using testing::IsEmpty;

using FilterMasks = ViewFixture;

// Ratings and visits -------------------------------------------------------------------

TEST_F(FilterMasks, EachRatingHasItsMask) {
    openWith({"A"});
    listAll();
    const char* const names[] = {"zero", "one", "two", "three", "four"};
    for (std::uint8_t rating = 0; rating <= 4; ++rating) add(names[rating]).Rated = rating;
    EXPECT_THAT(refreshed(), ElementsAre("zero", "one", "two", "three", "four"));
    ratedMask = {true, false, true, false, true, false};
    EXPECT_THAT(refreshed(), ElementsAre("zero", "two", "four"));
}

TEST_F(FilterMasks, WithoutAnyRatingTheListIsEmptyAndThePanelSaysSo) {
    openWith({"A"});
    add("a");
    EXPECT_THAT(refreshed(), ElementsAre("a"));
    ratedMask.fill(false);
    EXPECT_THAT(refreshed(), IsEmpty());
    EXPECT_EQ(Form3.StatusBar1.Pane(1), "Viewed: 0");
    EXPECT_EQ(Form3.StatusBar1.Pane(2), "Total: 1");
}

TEST_F(FilterMasks, TheRatingBehindTheLastIsNeverShown) {
    openWith({"A"});
    add("five").Rated = 5;
    EXPECT_THAT(refreshed(), IsEmpty());
    expectHourglassAndHidingOver();
}

TEST_F(FilterMasks, TheVisitsAreCountedAgainstTheMask) {
    openWith({"A"});
    for (int visits : {-1, 2, 3, 4, 40000}) add(std::to_string(visits)).Visited = visits;
    visitedCount = 3;
    EXPECT_THAT(refreshed(), ElementsAre("-1", "2", "3", "4", "40000"));
    visitedMode = 1;
    EXPECT_THAT(refreshed(), ElementsAre("4", "40000"));
    visitedMode = 2;
    EXPECT_THAT(refreshed(), ElementsAre("-1", "2"));
    visitedMode = 3;
    EXPECT_THAT(refreshed(), ElementsAre("3"));
}

// Dates --------------------------------------------------------------------------------

TEST_F(FilterMasks, MoreThanPassesEveryVisitInThePastAndNoneThatNeverWas) {
    openWith({"A"});
    add("never");
    add("past").LastAccesed = dateFromCivil(1980, 1, 1);
    add("today").LastAccesed = dateFromCivil(2001, 3, 14, 8);
    add("later today").LastAccesed = dateFromCivil(2001, 3, 14, 23);
    add("tomorrow").LastAccesed = dateFromCivil(2001, 3, 15);
    accessedMode = 1;
    for (int count : {0, 1, 7, 32767, -1}) {
        SCOPED_TRACE(count);
        accessedValue = static_cast<std::int16_t>(count);
        EXPECT_THAT(refreshed(), ElementsAre("past", "today", "later today"));
    }
}

TEST_F(FilterMasks, EqualToSevenDaysPassesTheSeventhDayBackAtAnyHour) {
    openWith({"A"});
    add("sixth").LastAccesed = dateFromCivil(2001, 3, 8);
    add("early").LastAccesed = dateFromCivil(2001, 3, 7);
    add("late").LastAccesed = dateFromCivil(2001, 3, 7, 23, 59, 59);
    add("eighth").LastAccesed = dateFromCivil(2001, 3, 6, 23, 59, 59);
    accessedMode = 3;
    accessedValue = 7;
    EXPECT_THAT(refreshed(), ElementsAre("early", "late"));
    driver::setLocalTime(2001, 3, 14, 23, 59, 59);
    EXPECT_THAT(refreshed(), ElementsAre("early", "late"));
    driver::setLocalTime(2001, 3, 15);
    EXPECT_THAT(refreshed(), ElementsAre("sixth"));
}

TEST_F(FilterMasks, LessThanPassesTheDaysBeforeTheLast) {
    openWith({"A"});
    add("never");
    add("today").LastAccesed = dateFromCivil(2001, 3, 14);
    add("yesterday").LastAccesed = dateFromCivil(2001, 3, 13);
    add("third").LastAccesed = dateFromCivil(2001, 3, 11);
    accessedMode = 2;
    accessedValue = 3;
    EXPECT_THAT(refreshed(), ElementsAre("today", "yesterday"));
    accessedValue = 0;
    EXPECT_THAT(refreshed(), IsEmpty());
    accessedValue = -1;
    EXPECT_THAT(refreshed(), IsEmpty());
}

TEST_F(FilterMasks, WeeksAreCountedBySundaysAndMonthsByTheirFirstDay) {
    openWith({"A"});
    // 2001-03-14 is a Wednesday, its week began on the 11th.
    add("Saturday").LastAccesed = dateFromCivil(2001, 3, 10, 23);
    add("Sunday").LastAccesed = dateFromCivil(2001, 3, 4);
    add("January").LastAccesed = dateFromCivil(2001, 1, 31);
    accessedMode = 3;
    accessedValue = 1;
    accessedUnit = 1;
    EXPECT_THAT(refreshed(), ElementsAre("Saturday", "Sunday"));
    accessedUnit = 2;
    EXPECT_THAT(refreshed(), IsEmpty());
    accessedValue = 2;
    EXPECT_THAT(refreshed(), ElementsAre("January"));
}

TEST_F(FilterMasks, AUnitThatDoesNotExistCountsDays) {
    openWith({"A"});
    add("yesterday").LastAccesed = dateFromCivil(2001, 3, 13);
    accessedMode = 3;
    accessedValue = 1;
    accessedUnit = 3;
    EXPECT_THAT(refreshed(), ElementsAre("yesterday"));
    accessedUnit = 0;
    EXPECT_THAT(refreshed(), ElementsAre("yesterday"));
}

TEST_F(FilterMasks, AModeThatDoesNotExistPassesVisitsAndNoDate) {
    openWith({"A"});
    add("visited").LastAccesed = dateFromCivil(2001, 3, 13);
    visitedMode = 4;
    EXPECT_THAT(refreshed(), ElementsAre("visited"));
    accessedMode = 4;
    EXPECT_THAT(refreshed(), IsEmpty());
    accessedMode = 0;
    addedMode = 4;
    EXPECT_THAT(refreshed(), IsEmpty());
}

TEST_F(FilterMasks, TheDayOfAdditionHasAMaskOfItsOwn) {
    openWith({"A"});
    add("yesterday").Created = dateFromCivil(2001, 3, 13);
    add("never").Created = {};
    add("tomorrow").Created = dateFromCivil(2001, 3, 15);
    addedMode = 3;
    addedValue = 1;
    EXPECT_THAT(refreshed(), ElementsAre("yesterday"));
    addedMode = 1;
    EXPECT_THAT(refreshed(), ElementsAre("yesterday"));
    addedMode = 2;
    addedValue = 2;
    EXPECT_THAT(refreshed(), ElementsAre("yesterday"));
    // Neither weeks nor months; and the unit of the other mask plays no part.
    addedMode = 3;
    addedValue = 1;
    addedUnit = 9;
    accessedUnit = 1;
    EXPECT_THAT(refreshed(), ElementsAre("yesterday"));
}

TEST_F(FilterMasks, TheDayOfAdditionIsCountedInAUnitOfItsOwn) {
    openWith({"A"});
    add("today").Created = dateFromCivil(2001, 3, 14);
    add("Saturday").Created = dateFromCivil(2001, 3, 10, 23, 59, 59);
    add("Sunday").Created = dateFromCivil(2001, 3, 4);
    add("February").Created = dateFromCivil(2001, 2, 1);
    addedMode = 3;
    addedValue = 1;
    addedUnit = 1;
    EXPECT_THAT(refreshed(), ElementsAre("Saturday", "Sunday"));
    addedUnit = 2;
    EXPECT_THAT(refreshed(), ElementsAre("February"));
    addedMode = 2;
    EXPECT_THAT(refreshed(), ElementsAre("today", "Saturday", "Sunday"));
    addedUnit = 1;
    EXPECT_THAT(refreshed(), ElementsAre("today"));
}

TEST_F(FilterMasks, MoreThanLeavesOutOnlyWhatLiesAWholeUnitAhead) {
    openWith({"A"});
    add("past").LastAccesed = dateFromCivil(1980, 1, 1);
    add("this week").LastAccesed = dateFromCivil(2001, 3, 17, 23, 59, 59);
    add("this month").LastAccesed = dateFromCivil(2001, 3, 31, 23, 59, 59);
    add("next month").LastAccesed = dateFromCivil(2001, 4, 1);
    accessedMode = 1;
    accessedValue = 3;
    accessedUnit = 1;
    EXPECT_THAT(refreshed(), ElementsAre("past", "this week"));
    accessedUnit = 2;
    EXPECT_THAT(refreshed(), ElementsAre("past", "this week", "this month"));
}

TEST_F(FilterMasks, AtMidnightBeforeSundayTheWeekTurns) {
    openWith({"A"});
    add("Saturday").LastAccesed = dateFromCivil(2001, 3, 10, 12);
    add("Sunday").LastAccesed = dateFromCivil(2001, 3, 11);
    accessedMode = 3;
    accessedValue = 1;
    accessedUnit = 1;
    driver::setLocalTime(2001, 3, 17, 23, 59, 0);
    EXPECT_THAT(refreshed(), ElementsAre("Saturday"));
    driver::setLocalTime(2001, 3, 18);
    EXPECT_THAT(refreshed(), ElementsAre("Sunday"));
}

TEST_F(FilterMasks, ASpanBelowZeroFindsWhatIsStillToCome) {
    openWith({"A"});
    add("today").Created = dateFromCivil(2001, 3, 14);
    add("tomorrow").Created = dateFromCivil(2001, 3, 15, 23);
    add("next week").Created = dateFromCivil(2001, 3, 18);
    add("next month").Created = dateFromCivil(2001, 4, 30);
    addedMode = 3;
    addedValue = -1;
    EXPECT_THAT(refreshed(), ElementsAre("tomorrow"));
    addedUnit = 1;
    EXPECT_THAT(refreshed(), ElementsAre("next week"));
    addedUnit = 2;
    EXPECT_THAT(refreshed(), ElementsAre("next month"));
}

TEST_F(FilterMasks, ASpanThatLeavesTheCalendarAbandonsTheRefresh) {
    openWith({"A"});
    add("never");
    add("visited").LastAccesed = dateFromCivil(2001, 3, 13);
    accessedMode = 1;
    accessedValue = -32768;
    accessedUnit = 2;
    EXPECT_EQ(failureOf(RefreshURLPage), failure::invalidCall);
    EXPECT_THAT(titlesInView(), IsEmpty());
    expectHourglassAndHidingOver();
    accessedMode = 0;
    EXPECT_THAT(refreshed(), ElementsAre("never", "visited"));
}

TEST_F(FilterMasks, AVisitBeforeDateZeroShowsNeverAndIsNotLeftOutForThat) {
    openWith({"A"});
    add("before").LastAccesed = Date{-5};
    add("never");
    accessedMode = 1;
    accessedValue = 7;
    EXPECT_THAT(refreshed(), ElementsAre("before"));
    EXPECT_EQ(rowTexts(1)[4], "Never");
}

// The text mask ------------------------------------------------------------------------

TEST_F(FilterMasks, TheTextMaskFindsItsLettersAnywhereInATitleOfAnyCase) {
    openWith({"A"});
    add("Xabx").URL("http://server/zz");
    add("ABBA");
    add("a-b");
    add("acb");
    add("[ab]");
    add("zz");
    add("page 4 of #");
    const struct {
        const char* mask;
        std::vector<std::string> titles;
    } cases[] = {
        {"", {"Xabx", "ABBA", "a-b", "acb", "[ab]", "zz", "page 4 of #"}},
        {"ab", {"Xabx", "ABBA", "[ab]"}},
        {"AB", {"Xabx", "ABBA", "[ab]"}},
        {"a?b", {"ABBA", "a-b", "acb"}},
        {"a*b", {"Xabx", "ABBA", "a-b", "acb", "[ab]"}},
        {"[x-z]", {"Xabx", "zz"}},
        {"a[!a-z]b", {"a-b"}},
        {"e #", {"page 4 of #"}},
        {"f #", {}},
        {"##", {}},
        {"server", {}},
        {"  ", {}},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.mask);
        Form3.txtFilter.Text(each.mask);
        EXPECT_EQ(refreshed(), each.titles);
    }
}

TEST_F(FilterMasks, AMaskWithAnOpenListIsAnInvalidPatternAndSaysSo) {
    openWith({"A"});
    add("a");
    Form3.txtFilter.Text("ab[");
    EXPECT_THAT(refreshed(), IsEmpty());
    EXPECT_EQ(Form3.StatusBar1.Pane(1), "Invalid filter pattern");
    EXPECT_EQ(Form3.StatusBar1.Pane(2), "Total: 1");
    expectHourglassAndHidingOver();
    Form3.txtFilter.Text("a");
    EXPECT_THAT(refreshed(), ElementsAre("a"));
    EXPECT_EQ(Form3.StatusBar1.Pane(1), "Viewed: 1");
}

TEST_F(FilterMasks, AnInvalidPatternIsToldUntilTheNextRefresh) {
    openWith({"A"});
    add("a");
    Form3.txtFilter.Text("ab[");
    fullScrnRefresh(true);
    EXPECT_EQ(Form3.StatusBar1.Pane(1), "Invalid filter pattern");
    UpdatePanel();
    EXPECT_EQ(Form3.StatusBar1.Pane(1), "Invalid filter pattern");
    Form3.txtFilter.Text("");
    fullScrnRefresh(true);
    EXPECT_EQ(Form3.StatusBar1.Pane(1), "Viewed: 1");
}

TEST_F(FilterMasks, AReloadForgetsAnInvalidPattern) {
    openWith({"A"});
    Form3.txtFilter.Text("[");
    add("a");
    RefreshURLPage();
    EXPECT_EQ(Form3.StatusBar1.Pane(1), "Invalid filter pattern");
    keepResident = false;
    Form3.unload();
    ASSERT_FALSE(Form3.loaded());
    Form3.load();
    UpdatePanel();
    EXPECT_EQ(Form3.StatusBar1.Pane(1), "Viewed: 0");
}

TEST_F(FilterMasks, AnInvalidPatternIsNotReadWithoutARecordToHoldAgainstIt) {
    openWith({"A"});
    add("a").Rated = 1;
    ratedMask[1] = false;
    Form3.txtFilter.Text("ab[");
    EXPECT_THAT(refreshed(), IsEmpty());
    EXPECT_EQ(Form3.StatusBar1.Pane(1), "Viewed: 0");
}

TEST_F(FilterMasks, TheMasksHoldOnBothTabs) {
    openWith({"A"});
    add("low").Rated = 1;
    add("none");
    ratedMask[0] = false;
    EXPECT_THAT(refreshed(), ElementsAre("low"));
    clickTab(2);
    EXPECT_THAT(titlesInView(), ElementsAre("low"));
}

}  // namespace
}  // namespace magpie
