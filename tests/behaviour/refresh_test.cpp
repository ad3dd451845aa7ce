// The list refresh: which records become rows, and what the rows say.
#include "views/refresh.h"

#include "entries/list_events.h"
#include "tests/behaviour/message_log.h"
#include "tests/behaviour/view_fixture.h"
#include "tests/unit/runtime/failure_of.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;
using testing::ElementsAre;
using testing::IsEmpty;

class Refresh : public ViewFixture {
public:
    // A refresh that leaves the list, the pointer and the panel as it finds them.
    static void expectNothingHappens() {
        const std::vector<std::string> rows = titlesInView();
        ASSERT_FALSE(rows.empty());
        uBlock.URLDatas().Clear();
        Form3.StatusBar1.Pane(1, "before");
        Screen.MousePointer(Pointer::hourglass);
        const int pumps = driver::pumps();
        EXPECT_EQ(refreshed(), rows);
        EXPECT_EQ(driver::pumps(), pumps);
        EXPECT_EQ(Screen.MousePointer(), Pointer::hourglass);
        EXPECT_EQ(Form3.StatusBar1.Pane(1), "before");
    }

    // As a user ticks "List All" in the menu.
    static void chooseListAll() {
        driver::choose("List All");
        driver::click(Form3.Command3[1].hWnd(), driver::middleOf(Form3.Command3[1].hWnd()));
        driver::pump();
    }
};

// Where nothing happens ----------------------------------------------------------------

TEST_F(Refresh, WithoutGroupsTheListKeepsItsRows) {
    openWith({"A"});
    add("Old");
    EXPECT_THAT(refreshed(), ElementsAre("Old"));
    IDXList.reset();
    expectNothingHappens();
}

TEST_F(Refresh, WithAnEmptyGroupListTheAdvancedListKeepsItsRows) {
    openWith({"A"});
    add("Old");
    EXPECT_THAT(refreshed(), ElementsAre("Old"));
    Form3.ListView1[3].Clear();
    expectNothingHappens();
}

TEST_F(Refresh, WithoutASelectedGroupTheStandardListKeepsItsRows) {
    openWith({"A"});
    add("Old");
    clickTab(2);
    EXPECT_THAT(refreshed(), ElementsAre("Old"));
    Form3.Combo1[1].Clear();
    expectNothingHappens();
}

// The scope ----------------------------------------------------------------------------

TEST_F(Refresh, TheAdvancedTabListsEveryGroupButUnderTheGroupList) {
    openWith({"A", "B"});
    add("a", 0);
    add("b", 1);
    const struct {
        int face;
        bool listAll;
        bool all;
    } cases[] = {{0, false, true}, {0, true, true},  {1, false, false},
                 {1, true, true},  {2, false, true}, {2, true, true}};
    for (const auto& each : cases) {
        SCOPED_TRACE(each.face);
        Form3.advMode = static_cast<std::uint8_t>(each.face);
        Form3.mnuListAll.Checked = each.listAll;
        if (each.all)
            EXPECT_THAT(refreshed(), ElementsAre("a", "b"));
        else
            EXPECT_THAT(refreshed(), ElementsAre("a"));
    }
}

TEST_F(Refresh, TheStandardTabListsEveryGroupByTheTickAlone) {
    openWith({"A", "B"});
    add("a", 0);
    add("b", 1);
    clickTab(2);
    for (int face = 0; face <= 2; ++face) {
        SCOPED_TRACE(face);
        Form3.advMode = static_cast<std::uint8_t>(face);
        Form3.mnuListAll.Checked = false;
        EXPECT_THAT(refreshed(), ElementsAre("a"));
        Form3.mnuListAll.Checked = true;
        EXPECT_THAT(refreshed(), ElementsAre("a", "b"));
    }
}

TEST_F(Refresh, AnUntickedGroupIsLeftOutOfAllGroupsEvenWhenItIsSelected) {
    openWith({"A", "B"});
    add("a", 0);
    add("b", 1);
    IDXList[0].Checked = false;
    listAll();
    EXPECT_THAT(refreshed(), ElementsAre("b"));
    Form3.advMode = 1;
    EXPECT_THAT(refreshed(), ElementsAre("a"));
}

TEST_F(Refresh, ARecordsGroupIsRoundedOnlyWhereItIsLookedUp) {
    openWith({"A", "B"});
    add("near", 0.4);
    add("half", 1.5);
    listAll();
    IDXList.resize(3);
    IDXList[2].Checked = true;
    EXPECT_THAT(refreshed(), ElementsAre("near", "half"));
    EXPECT_EQ(rowTexts(1)[3], "A");
    Form3.advMode = 1;
    EXPECT_THAT(refreshed(), IsEmpty());
}

// The rows -----------------------------------------------------------------------------

TEST_F(Refresh, ARowShowsItsRecord) {
    openWith({"A", "Second"});
    URLData& record = add("Title", 1);
    record.URL("http://server/page.html");
    record.Rated = 3;
    record.LastAccesed = dateFromCivil(2000, 2, 29, 13, 5, 9);
    record.Created = dateFromCivil(1999, 12, 31);
    record.Visited = 12;
    listAll();
    RefreshURLPage();
    EXPECT_THAT(rowTexts(1), ElementsAre("Title", "http://server/page.html", "High", "Second",
                                         "2000-02-29 13:05:09", "1999-12-31 00:00:00", "12"));
    EXPECT_EQ(Form3.ListView1[2].Row(1).Tag(), record.ID());
}

TEST_F(Refresh, ADateOfZeroReadsNeverForAVisitAndItsTextForTheCreation) {
    openWith({"A"});
    add("a").Created = {};
    RefreshURLPage();
    EXPECT_EQ(rowTexts(1)[4], "Never");
    EXPECT_EQ(rowTexts(1)[5], "1899-12-30 00:00:00");
    EXPECT_EQ(rowTexts(1)[2], "Not Rated");
    EXPECT_EQ(rowTexts(1)[6], "0");
}

TEST_F(Refresh, EveryRatingHasItsText) {
    openWith({"A"});
    for (std::uint8_t rating = 0; rating <= 4; ++rating) add("x").Rated = rating;
    RefreshURLPage();
    std::vector<std::string> texts;
    for (int row = 1; row <= 5; ++row) texts.push_back(rowTexts(row)[2]);
    EXPECT_THAT(texts, ElementsAre("Not Rated", "Low", "Medium", "High", "V.High"));
}

TEST_F(Refresh, ARowFilledByHandIsTheRowOfTheRefresh) {
    openWith({"A"});
    URLData& record = add("Title");
    record.LastAccesed = Date{-1};
    RefreshURLPage();
    const std::vector<std::string> wanted = rowTexts(1);
    fillListRow(Form3.ListView1[2].Add(""), record);
    EXPECT_EQ(rowTexts(2), wanted);
    EXPECT_EQ(Form3.ListView1[2].Row(2).Tag(), record.ID());
}

TEST_F(Refresh, TheRowsComeInTheOrderOfTheStoreAndNoneIsSelected) {
    openWith({"A"});
    for (const char* name : {"c", "a", "b"}) add(name);
    RefreshURLPage();
    Form3.ListView1[2].Row(2).Selected(true);
    EXPECT_THAT(refreshed(), ElementsAre("c", "a", "b"));
    for (int row = 1; row <= 3; ++row) EXPECT_FALSE(Form3.ListView1[2].Row(row).Selected());
    EXPECT_EQ(Form3.ListView1[2].SelectedItem().Text(), "c");
}

TEST_F(Refresh, OnlyTheListInViewIsRebuilt) {
    openWith({"A"});
    add("a");
    RefreshURLPage();
    clickTab(2);
    add("b");
    RefreshURLPage();
    EXPECT_EQ(Form3.ListView1[1].Count(), 2);
    EXPECT_EQ(Form3.ListView1[2].Count(), 1);
}

// Broken records -----------------------------------------------------------------------

TEST_F(Refresh, ARecordWithoutAGroupAbandonsTheRefreshAndLeavesNoHourglass) {
    openWith({"A"});
    listAll();
    add("first");
    add("broken", 7);
    add("last");
    EXPECT_EQ(failureOf(RefreshURLPage), failure::subscript);
    EXPECT_THAT(titlesInView(), ElementsAre("first"));
    expectHourglassAndHidingOver();
}

TEST_F(Refresh, ARecordAheadOfTheFirstGroupAbandonsOnlyTheRefreshOfAllGroups) {
    openWith({"A"});
    add("first");
    add("ahead", -1);
    add("last");
    Form3.advMode = 1;
    EXPECT_THAT(refreshed(), ElementsAre("first", "last"));
    listAll();
    EXPECT_EQ(failureOf(RefreshURLPage), failure::subscript);
    EXPECT_THAT(titlesInView(), ElementsAre("first"));
    expectHourglassAndHidingOver();
}

TEST_F(Refresh, ARatingThatDoesNotExistAbandonsTheRefreshAndLeavesNoHourglass) {
    openWith({"A"});
    add("first");
    add("broken").Rated = 6;
    EXPECT_EQ(failureOf(RefreshURLPage), failure::subscript);
    EXPECT_THAT(titlesInView(), ElementsAre("first"));
    expectHourglassAndHidingOver();
}

TEST_F(Refresh, ABrokenRecordOutOfScopeIsNotLookedAt) {
    openWith({"A", "B"});
    add("first");
    add("broken", 7).Rated = 9;
    EXPECT_THAT(refreshed(), ElementsAre("first"));
}

TEST_F(Refresh, AnUntickedGroupsBrokenRatingIsNotLookedAt) {
    openWith({"A", "B"});
    add("first");
    add("broken", 1).Rated = 6;
    IDXList[1].Checked = false;
    listAll();
    EXPECT_THAT(refreshed(), ElementsAre("first"));
}

// Whatever the user does to bring it about.
TEST_F(Refresh, ABrokenRecordCostsTheUserOneRefreshAndNothingElse) {
    openWith({"A"});
    Form3.advMode = 1;
    add("first");
    URLData& broken = add("broken", 7);
    add("last");
    EXPECT_THAT(refreshed(), ElementsAre("first", "last"));
    chooseListAll();
    EXPECT_THAT(titlesInView(), ElementsAre("first"));
    expectHourglassAndHidingOver();
    broken.Owner = 0;
    chooseListAll();
    EXPECT_THAT(titlesInView(), ElementsAre("first", "broken", "last"));
    EXPECT_EQ(Form3.StatusBar1.Pane(1), "Viewed: 3");

    broken.Rated = 6;
    driver::click(Form3.Command3[2].hWnd(), driver::middleOf(Form3.Command3[2].hWnd()));
    driver::pump();
    Form3.txtFilter.SetFocus();
    driver::key(win::VK_RETURN);
    driver::pump();
    EXPECT_THAT(titlesInView(), ElementsAre("first"));
    broken.Rated = 4;
    driver::key(win::VK_RETURN);
    driver::pump();
    EXPECT_THAT(titlesInView(), ElementsAre("first", "broken", "last"));
}

// Events inside ------------------------------------------------------------------------

TEST_F(Refresh, UnderItsPumpTheListIsEmptyAndInSightAndThePointerWaits) {
    openWith({"A"});
    add("a");
    RefreshURLPage();
    int rows = -1;
    bool visible = false;
    win::WORD cursor = 0;
    driver::atPump(1, [&] {
        rows = Form3.ListView1[2].Count();
        visible = Form3.ListView1[2].Visible();
        cursor = driver::cursor();
    });
    RefreshURLPage();
    EXPECT_EQ(rows, 0);
    EXPECT_TRUE(visible);
    EXPECT_EQ(cursor, win::IDC_WAIT_NUMBER);
    expectHourglassAndHidingOver();
}

TEST_F(Refresh, TheListIsOutOfSightFromItsFirstRowToItsLast) {
    openWith({"A"});
    add("a");
    add("b");
    RefreshURLPage();
    ListView& list = Form3.ListView1[2];
    const MessageLog log(list.hWnd(), [&list](win::UINT message, win::WPARAM wParam) {
        if (message != win::WM_SHOWWINDOW) return std::string();
        return std::string(wParam != 0 ? "shown with " : "hidden with ") +
               std::to_string(list.Count());
    });
    RefreshURLPage();
    EXPECT_THAT(log.entries, ElementsAre("hidden with 0", "hidden with 2", "shown with 2"));
}

TEST_F(Refresh, ItPumpsOnce) {
    openWith({"A"});
    add("a");
    const int before = driver::pumps();
    RefreshURLPage();
    EXPECT_EQ(driver::pumps(), before + 1);
}

// Nothing locks the refresh: the inner one is whole by itself, and the outer one goes on behind it
// with the group that it had begun with.
TEST_F(Refresh, AnotherGroupChosenUnderItsPumpIsListedAheadOfItsOwnRows) {
    openWith({"A", "B"});
    Form3.advMode = 1;
    add("a", 0);
    add("b", 1);
    RefreshURLPage();
    std::vector<std::string> inner;
    driver::atPump(1, [&inner] {
        Form3.ListView1[3].Row(2).Selected(true);
        ListView1_KeyUp(3, win::VK_DOWN, 0);
        inner = titlesInView();
    });
    EXPECT_THAT(refreshed(), ElementsAre("b", "a"));
    EXPECT_THAT(inner, ElementsAre("b"));
    expectHourglassAndHidingOver();
    EXPECT_THAT(refreshed(), ElementsAre("b"));
}

TEST_F(Refresh, EnterUnderItsPumpRefreshesInsideOfIt) {
    openWith({"A"});
    add("a");
    driver::click(Form3.Command3[2].hWnd(), driver::middleOf(Form3.Command3[2].hWnd()));
    driver::pump();
    Form3.txtFilter.SetFocus();
    driver::atPump(1, [] { driver::key(win::VK_RETURN); });
    const int pumps = driver::pumps();
    RefreshURLPage();
    EXPECT_EQ(driver::pumps(), pumps + 2);
    expectHourglassAndHidingOver();
    EXPECT_THAT(refreshed(), ElementsAre("a"));
}

TEST_F(Refresh, TheOtherTabChosenUnderItsPumpTakesItsRows) {
    openWith({"A"});
    add("a");
    driver::atPump(1, [] { Form3.tbStrip.SelectTab(2); });
    RefreshURLPage();
    EXPECT_EQ(lvIndex, 1);
    expectHourglassAndHidingOver();
    EXPECT_EQ(Form3.ListView1[2].Count(), 0);
    EXPECT_THAT(refreshed(), ElementsAre("a"));
}

}  // namespace
}  // namespace magpie
