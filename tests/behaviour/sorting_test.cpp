// Sorting of the record list: headings, the menu of "F", what a refresh and a tab switch
// leave of it.
#include "views/sorting.h"

#include "tests/behaviour/view_fixture.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr int title = 1;
constexpr int url = 2;
constexpr int rated = 3;
constexpr int group = 4;
constexpr int lastVisited = 5;
constexpr int created = 6;
constexpr int visited = 7;

// What the list's window is asked while the mouse pointer is which.
std::vector<std::string> seen;
win::WNDPROC listProcedure = nullptr;

win::LRESULT watchList(win::HWND window, win::UINT message, win::WPARAM wParam,
                       win::LPARAM lParam) {
    const std::string waiting = driver::cursor() == win::IDC_WAIT_NUMBER ? "waiting" : "ready";
    if (message == win::LVM_SORTITEMS) seen.push_back("sort " + waiting);
    if (message == win::WM_PAINT) seen.push_back("paint " + waiting);
    return win::CallWindowProcA(listProcedure, window, message, wParam, lParam);
}

class Sorting : public ViewFixture {
public:
    static ListView& list() { return Form3.ListView1[lvIndex]; }

    static void open() {
        openWith({"beta", "Alpha", "gamma"});
        listAll();
    }

    // Narrow columns, so that every heading is in sight.
    static void clickHeadingOf(ListView& clicked, int heading) {
        for (int column = 1; column <= clicked.ColumnCount(); ++column)
            clicked.ColumnWidth(column, 450);
        auto* header = reinterpret_cast<win::HWND>(
            win::SendMessageA(clicked.hWnd(), win::LVM_GETHEADER, 0, 0));
        win::RECT area{};
        win::SendMessageA(header, win::HDM_GETITEMRECT, static_cast<win::WPARAM>(heading - 1),
                          reinterpret_cast<win::LPARAM>(&area));
        driver::click(header, {(area.left + area.right) / 2, (area.top + area.bottom) / 2});
        driver::pump();
    }
    static void clickHeading(int heading) { clickHeadingOf(list(), heading); }

    // The titles after a click on the heading.
    static std::vector<std::string> sortedBy(int heading) {
        clickHeading(heading);
        return titlesInView();
    }

    static void pressEnterInTextMask() {
        Form3.advMode = 2;
        Form3.filter3Box.Visible(true);
        Form3.txtFilter.SetFocus();
        driver::key(win::VK_RETURN);
        driver::pump();
    }

    static void watch() {
        seen.clear();
        listProcedure = reinterpret_cast<win::WNDPROC>(win::SetWindowLongPtrA(
            list().hWnd(), win::GWLP_WNDPROC, reinterpret_cast<win::LONG_PTR>(&watchList)));
    }
};

// The two ways of the headings ---------------------------------------------------------

TEST_F(Sorting, EachHeadingSetsItsColumnAndItsWay) {
    open();
    const struct {
        int heading;
        bool stays;
    } cases[] = {{title, true},        {url, true},      {rated, false},  {group, true},
                 {lastVisited, false}, {created, false}, {visited, false}};
    for (const auto& each : cases) {
        for (const bool before : {false, true}) {
            SCOPED_TRACE(each.heading);
            list().Sorted(before);
            list().SortOrder(1);
            clickHeading(each.heading);
            EXPECT_EQ(list().SortKey(), each.heading - 1);
            EXPECT_EQ(list().Sorted(), each.stays);
            EXPECT_EQ(list().SortOrder(), each.stays ? 0 : 1);
        }
    }
}

TEST_F(Sorting, OnAnEmptyListEveryHeadingRunsAndChangesNothing) {
    open();
    RefreshURLPage();
    for (int heading = title; heading <= visited; ++heading) {
        EXPECT_THAT(sortedBy(heading), IsEmpty());
        EXPECT_EQ(list().SortKey(), heading - 1);
        expectHourglassAndHidingOver();
    }
}

TEST_F(Sorting, TitlesAreSortedWithoutRegardToCase) {
    open();
    for (const char* name : {"pear", "Fig", "apple", "fig", "Date"}) add(name);
    RefreshURLPage();
    EXPECT_THAT(sortedBy(title), ElementsAre("apple", "Date", "Fig", "fig", "pear"));
}

TEST_F(Sorting, ASecondClickOnTheSameHeadingGivesTheSameOrder) {
    open();
    std::uint8_t rating = 0;
    for (const char* name : {"b", "a", "c"}) add(name).Rated = ++rating;
    RefreshURLPage();
    EXPECT_EQ(sortedBy(title), sortedBy(title));
    EXPECT_EQ(sortedBy(rated), sortedBy(rated));
}

TEST_F(Sorting, AddressesAndGroupsAreSortedAsText) {
    open();
    add("first", 0).URL("http://c/");
    add("second", 1).URL("HTTP://B/");
    add("third", 2).URL("http://a/");
    RefreshURLPage();
    EXPECT_THAT(sortedBy(url), ElementsAre("third", "second", "first"));
    EXPECT_THAT(sortedBy(group), ElementsAre("second", "first", "third"));
}

TEST_F(Sorting, RatingsComeFromVeryHighDownToNotRated) {
    open();
    for (const int rating : {1, 4, 0, 3, 2}) add("x").Rated = static_cast<std::uint8_t>(rating);
    RefreshURLPage();
    clickHeading(rated);
    std::vector<std::string> texts;
    for (int row = 1; row <= 5; ++row) texts.push_back(rowTexts(row)[2]);
    EXPECT_THAT(texts, ElementsAre("V.High", "High", "Medium", "Low", "Not Rated"));
}

TEST_F(Sorting, TheLastVisitedComeFirstAndNeverComesLast) {
    open();
    add("never");
    add("old").LastAccesed = dateFromCivil(1999, 12, 31, 23, 59, 59);
    add("new").LastAccesed = dateFromCivil(2000, 1, 1, 0, 0, 1);
    add("newer").LastAccesed = dateFromCivil(2000, 1, 1, 0, 0, 2);
    RefreshURLPage();
    EXPECT_THAT(sortedBy(lastVisited), ElementsAre("newer", "new", "old", "never"));
}

TEST_F(Sorting, TheLastCreatedComeFirst) {
    open();
    add("b").Created = dateFromCivil(2000, 2, 29);
    add("none").Created = {};
    add("a").Created = dateFromCivil(2000, 10, 1);
    add("c").Created = dateFromCivil(1998, 12, 31);
    RefreshURLPage();
    EXPECT_THAT(sortedBy(created), ElementsAre("a", "b", "c", "none"));
}

TEST_F(Sorting, TheMostVisitedComeFirstByNumberAndNotByText) {
    open();
    add("nine").Visited = 9;
    add("ten").Visited = 10;
    add("less than nothing").Visited = -1;
    add("many").Visited = 2147483647;
    add("none");
    RefreshURLPage();
    EXPECT_THAT(sortedBy(visited), ElementsAre("many", "ten", "nine", "none", "less than nothing"));
}

TEST_F(Sorting, EqualRowsAreTurnedRoundByEverySortThatIsMadeOnce) {
    open();
    for (const char* name : {"a", "b", "c", "d"}) add(name).Visited = name[0] == 'c' ? 2 : 1;
    RefreshURLPage();
    EXPECT_THAT(sortedBy(visited), ElementsAre("c", "d", "b", "a"));
    EXPECT_THAT(sortedBy(visited), ElementsAre("c", "a", "b", "d"));
    EXPECT_THAT(sortedBy(lastVisited), ElementsAre("d", "b", "a", "c"));
}

TEST_F(Sorting, OutOfASortThatStaysTheColumnIsSortedAsTextFirst) {
    open();
    for (const char* name : {"c", "a", "b"}) add(name).Rated = 1;
    RefreshURLPage();
    EXPECT_THAT(sortedBy(title), ElementsAre("a", "b", "c"));
    // As text all are alike, so that they stand as they were added, and then are turned round.
    EXPECT_THAT(sortedBy(rated), ElementsAre("b", "a", "c"));
}

TEST_F(Sorting, RecordsSelectionAndFocusGoWithTheirRows) {
    open();
    for (const char* name : {"a", "b", "c"}) add(name).Visited = int{name[0]};
    RefreshURLPage();
    const std::string id = list().Row(1).Tag();
    list().Row(1).Selected(true);
    clickHeading(visited);
    EXPECT_THAT(titlesInView(), ElementsAre("c", "b", "a"));
    EXPECT_TRUE(list().Row(3).Selected());
    EXPECT_EQ(list().SelectedItem().Text(), "a");
    EXPECT_EQ(list().SelectedItem().Tag(), id);
    clickHeading(title);
    EXPECT_EQ(list().SelectedItem().position(), 1);
    EXPECT_EQ(list().Row(1).Tag(), id);
}

TEST_F(Sorting, TheListWaitsUnderTheHourglassAndIsPaintedAnew) {
    open();
    for (const char* name : {"b", "a"}) add(name).Visited = int{name[0]};
    RefreshURLPage();
    for (const int heading : {title, visited, created}) {
        clickHeading(visited);
        watch();
        clickHeading(heading);
        EXPECT_THAT(seen, ElementsAre("sort waiting", "paint waiting")) << heading;
        expectHourglassAndHidingOver();
        EXPECT_EQ(list().MousePointer(), Pointer::standard);
        win::SetWindowLongPtrA(list().hWnd(), win::GWLP_WNDPROC,
                               reinterpret_cast<win::LONG_PTR>(listProcedure));
    }
}

TEST_F(Sorting, ACountThatIsNoNumberAbandonsTheSortAndLeavesNoHourglass) {
    open();
    for (const char* name : {"a", "b", "c"}) add(name).Visited = int{name[0]};
    RefreshURLPage();
    list().Row(2).SubItem(6, "many");
    EXPECT_THAT(sortedBy(visited), ElementsAre("a", "b", "c"));
    expectHourglassAndHidingOver();
    EXPECT_EQ(list().MousePointer(), Pointer::standard);
    EXPECT_FALSE(list().Sorted());
}

// Which list -----------------------------------------------------------------------------

TEST_F(Sorting, TheGroupListsHeadingSortsTheRecordListByTitle) {
    open();
    for (const char* name : {"b", "a"}) add(name);
    RefreshURLPage();
    ListView& groups = Form3.ListView1[3];
    clickHeadingOf(groups, 1);
    EXPECT_THAT(titlesInView(), ElementsAre("a", "b"));
    EXPECT_TRUE(list().Sorted());
    EXPECT_FALSE(groups.Sorted());
    EXPECT_EQ(groups.Row(1).Text(), "beta");
}

TEST_F(Sorting, EachTabsListHasASortOfItsOwn) {
    open();
    for (const char* name : {"b", "a", "c"}) add(name).Visited = int{name[0]};
    RefreshURLPage();
    clickHeading(title);
    clickTab(2);
    EXPECT_THAT(titlesInView(), ElementsAre("b", "a", "c"));
    EXPECT_FALSE(list().Sorted());
    EXPECT_EQ(list().SortKey(), 0);
    clickHeading(visited);
    EXPECT_THAT(titlesInView(), ElementsAre("c", "b", "a"));
    clickTab(1);
    EXPECT_THAT(titlesInView(), ElementsAre("a", "b", "c"));
    EXPECT_TRUE(list().Sorted());
}

// What lasts -----------------------------------------------------------------------------

TEST_F(Sorting, ARefreshBringsBackTheOrderOfTheStoreAfterASortThatIsMadeOnce) {
    open();
    for (const char* name : {"b", "c", "a"}) add(name).Visited = int{name[0]};
    RefreshURLPage();
    for (const int heading : {rated, lastVisited, created, visited}) {
        clickHeading(heading);
        EXPECT_NE(titlesInView(), (std::vector<std::string>{"b", "c", "a"})) << heading;
        pressEnterInTextMask();
        EXPECT_THAT(titlesInView(), ElementsAre("b", "c", "a")) << heading;
        EXPECT_EQ(list().SortKey(), heading - 1);
    }
}

TEST_F(Sorting, ARefreshKeepsASortThatStays) {
    open();
    const char* const urls[] = {"http://2/", "http://3/", "http://1/"};
    int i = 0;
    for (const char* name : {"b", "c", "a"}) {
        URLData& record = add(name, 2 - i);
        record.URL(urls[i++]);
    }
    RefreshURLPage();
    for (const int heading : {title, url, group}) {
        const std::vector<std::string> order = sortedBy(heading);
        EXPECT_NE(order, (std::vector<std::string>{"b", "c", "a"})) << heading;
        pressEnterInTextMask();
        EXPECT_EQ(titlesInView(), order) << heading;
        EXPECT_TRUE(list().Sorted());
        EXPECT_EQ(list().SortKey(), heading - 1);
    }
}

TEST_F(Sorting, ARefreshKeepsTheDirectionToo) {
    open();
    for (const char* name : {"b", "c", "a"}) add(name);
    RefreshURLPage();
    clickHeading(title);
    list().SortOrder(1);
    pressEnterInTextMask();
    EXPECT_THAT(titlesInView(), ElementsAre("c", "b", "a"));
    EXPECT_EQ(list().SortOrder(), 1);
}

TEST_F(Sorting, ARefreshThatEndsEarlyLeavesTheRowsSorted) {
    open();
    add("b");
    add("a");
    add("broken", 7);
    clickHeading(title);
    EXPECT_THROW(RefreshURLPage(), Failure);
    EXPECT_THAT(titlesInView(), ElementsAre("a", "b"));
}

TEST_F(Sorting, ARowAddedUnderASortThatStaysFallsIntoOrder) {
    open();
    add("a", 0);
    add("z", 2);
    RefreshURLPage();
    URLData& record = add("m", 1);
    clickHeading(title);
    fillListRow(list().Add(""), record);
    EXPECT_THAT(titlesInView(), ElementsAre("a", "m", "z"));
    EXPECT_EQ(list().Row(2).Tag(), record.ID());
    clickHeading(group);
    fillListRow(list().Add(""), add("n", 0));
    EXPECT_THAT(titlesInView(), ElementsAre("m", "a", "n", "z"));
    clickHeading(visited);
    fillListRow(list().Add(""), add("0", 0));
    EXPECT_EQ(titlesInView().back(), "0");
}

TEST_F(Sorting, AFlushForgetsTheSort) {
    open();
    add("b");
    add("a");
    RefreshURLPage();
    clickHeading(title);
    keepResident = false;
    Form3.unload();
    clickPad();
    EXPECT_FALSE(list().Sorted());
    EXPECT_EQ(list().SortKey(), 0);
    EXPECT_EQ(list().SortOrder(), 0);
}

// The menu of "F" ------------------------------------------------------------------------

TEST_F(Sorting, EachMenuEntrySetsItsColumnAndDirectionAndNothingElse) {
    open();
    constexpr int kept = 3;
    const struct {
        int index;
        int key;
        int order;
    } cases[] = {{0, 0, 0}, {1, 2, 0}, {2, 6, 1},    {3, 4, 0},   {4, kept, 0},
                 {5, 1, 0}, {6, 5, 0}, {7, kept, 0}, {8, kept, 0}};
    for (const auto& each : cases) {
        for (const bool sorted : {false, true}) {
            SCOPED_TRACE(each.index);
            list().Sorted(sorted);
            list().SortKey(kept);
            list().SortOrder(1);
            mnuSortz_Click(each.index);
            EXPECT_EQ(list().SortKey(), each.key);
            EXPECT_EQ(list().SortOrder(), each.order);
            EXPECT_EQ(list().Sorted(), sorted);
        }
    }
}

TEST_F(Sorting, UnderASortThatStaysTheMenuSortsCountsAsText) {
    open();
    for (const int count : {10, 9, 100, 8}) add(std::to_string(count)).Visited = count;
    RefreshURLPage();
    clickHeading(title);
    mnuSortz_Click(2);
    EXPECT_THAT(titlesInView(), ElementsAre("9", "8", "100", "10"));
    EXPECT_THAT(refreshed(), ElementsAre("9", "8", "100", "10"));
}

TEST_F(Sorting, UnderASortThatStaysTheMenuSortsDatesAndRatingsAsText) {
    open();
    URLData& never = add("never");
    never.Rated = 1;
    URLData& once = add("once");
    once.LastAccesed = dateFromCivil(2000, 1, 1);
    once.Created = dateFromCivil(1998, 1, 1);
    once.Rated = 4;
    URLData& later = add("later");
    later.LastAccesed = dateFromCivil(2001, 1, 1);
    later.Created = dateFromCivil(1997, 1, 1);
    RefreshURLPage();
    clickHeading(title);
    mnuSortz_Click(3);
    EXPECT_THAT(titlesInView(), ElementsAre("once", "later", "never"));
    mnuSortz_Click(6);
    EXPECT_THAT(titlesInView(), ElementsAre("later", "once", "never"));
    mnuSortz_Click(1);
    EXPECT_THAT(titlesInView(), ElementsAre("never", "later", "once"));
}

TEST_F(Sorting, CatagorySetsTheDirectionOnly) {
    open();
    for (const char* name : {"b", "c", "a"}) add(name);
    RefreshURLPage();
    clickHeading(title);
    list().SortOrder(1);
    EXPECT_THAT(titlesInView(), ElementsAre("c", "b", "a"));
    mnuSortz_Click(7);
    EXPECT_EQ(list().SortKey(), 0);
    EXPECT_THAT(titlesInView(), ElementsAre("a", "b", "c"));
}

TEST_F(Sorting, WithoutASortThatStaysTheMenuChangesNothingToBeSeen) {
    open();
    for (const char* name : {"b", "c", "a"}) add(name).Visited = int{name[0]};
    RefreshURLPage();
    clickHeading(visited);
    const std::vector<std::string> order = titlesInView();
    for (int index = 0; index <= 8; ++index) {
        mnuSortz_Click(index);
        EXPECT_EQ(titlesInView(), order) << index;
    }
    EXPECT_THAT(refreshed(), ElementsAre("b", "c", "a"));
    EXPECT_THAT(sortedBy(title), ElementsAre("a", "b", "c"));
}

TEST_F(Sorting, TheMenuActsOnTheListInView) {
    open();
    clickTab(2);
    mnuSortz_Click(2);
    EXPECT_EQ(Form3.ListView1[1].SortKey(), 6);
    EXPECT_EQ(Form3.ListView1[2].SortKey(), 0);
    EXPECT_EQ(Form3.ListView1[3].SortKey(), 0);
}

}  // namespace
}  // namespace magpie
