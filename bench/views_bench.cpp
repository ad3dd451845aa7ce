// What the record list takes on a real desktop to be filled, narrowed, sorted and searched, each
// beside a baseline in the same run. Prints the ratios with their limits; with --check the
// program fails when one is over its limit.
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "bench/bare_list.h"
#include "bench/sample_store.h"
#include "bench/stopwatch.h"
#include "core/state.h"
#include "mainwindow/first_build.h"
#include "mainwindow/form3.h"
#include "platform/api/comctl32.h"
#include "platform/api/user32.h"
#include "platform/controls/common_controls.h"
#include "platform/controls/message_loop.h"
#include "platform/runtime/letter_case.h"
#include "platform/services/clock.h"
#include "store/records.h"
#include "views/filter_decision.h"
#include "views/find.h"
#include "views/group_list.h"
#include "views/refresh.h"
#include "views/sorting.h"

namespace magpie::bench {
namespace {

constexpr double refreshLimit = 1.5;  // over a bare loop that inserts the same
constexpr double groupLimit = 1;      // over 5 % of all plus what its rows take bare
constexpr double growthLimit = 6;     // of a sort, for four times as many rows
constexpr double movesLimit = 2;      // of a sort over the moves of its rows alone
constexpr double dateLimit = 2;       // of a sort by date over the refresh
constexpr double maskLimit = 4;       // over a plain search that folds case
constexpr double findLimit = 2;       // over reading the titles from a bare list

constexpr StoreSize small{8192, 16};
constexpr StoreSize large{32767, 64};  // 512 rows in a group, like the small one

struct Heading {
    int number;
    const char* name;
};
constexpr Heading headings[] = {
    {1, "title"}, {3, "rating"}, {5, "last visit"}, {6, "date"}, {7, "visits"}};
constexpr int dateHeading = 6;

bool allWithin = true;

void report(const std::string& what, double measured, const char* beside, double baseline,
            double limit) {
    const double ratio = measured / baseline;
    const bool within = ratio <= limit;
    allWithin = allWithin && within;
    std::printf("%5.2f of %.1f  %s (%.1f ms) / %s (%.1f ms)%s\n", ratio, limit, what.c_str(),
                measured, beside, baseline, within ? "" : "  OVER");
}

ListView& list() {
    return Form3.ListView1[lvIndex];
}

void showAll() {
    Form3.advMode = 0;
}

void showOneGroup() {
    Form3.advMode = 1;
    Form3.mnuListAll.Checked = false;
}

std::vector<RowTexts> rowsOnShow() {
    std::vector<RowTexts> rows;
    for (int row = 1; row <= list().Count(); ++row) {
        RowTexts& texts = rows.emplace_back();
        for (int column = 0; column < list().ColumnCount(); ++column)
            texts[static_cast<std::size_t>(column)] = list().Row(row).SubItem(column);
    }
    return rows;
}

// Refreshes -----------------------------------------------------------------------------

void showGroupThenNothing() {
    showOneGroup();
    RefreshURLPage();
    showAll();
}

// Answers what the refresh of a list takes that was full before.
double measureRefresh() {
    showAll();
    RefreshURLPage();
    const std::vector<RowTexts> rows = rowsOnShow();
    const std::string what = "refresh to " + std::to_string(rows.size()) + " rows";
    BareList bare(list().hWnd());
    const auto clear = [&] { bare.clear(); };
    const auto insert = [&] { bare.insert(rows); };
    report(what + " from a group", leastOf(RefreshURLPage, showGroupThenNothing), "bare inserting",
           leastOf(insert, clear), refreshLimit);
    const double again = leastOf(RefreshURLPage);
    const double bareAgain = leastOf([&] { clear(), insert(); });
    report(what + " from as many", again, "bare clearing and inserting", bareAgain, refreshLimit);
    return again;
}

void measureSortedRefresh(double unsorted) {
    columnHeading_Click(1);
    report("refresh under a sort by title", leastOf(RefreshURLPage), "without", unsorted,
           refreshLimit);
    list().Sorted(false);
}

void measureGroup(double all) {
    showOneGroup();
    RefreshURLPage();
    const std::vector<RowTexts> rows = rowsOnShow();
    BareList bare(list().hWnd());
    const double group = leastOf(RefreshURLPage);
    const double bareRows = leastOf([&] { bare.insert(rows); }, [&] { bare.clear(); });
    report("refresh to a group of " + std::to_string(rows.size()), group,
           "5 % of all and its rows bare", 0.05 * all + bareRows, groupLimit);
    showAll();
}

// Sorts ---------------------------------------------------------------------------------

struct SortTimes {
    double sort;
    double bare;
};

void unsort() {
    list().Sorted(false);
    RefreshURLPage();
    DoEvents();
}

std::vector<win::LPARAM> rowParams() {
    std::vector<win::LPARAM> params;
    for (int row = 0; row < list().Count(); ++row) {
        win::LVITEMA item{};
        item.mask = win::LVIF_PARAM;
        item.iItem = row;
        win::SendMessageA(list().hWnd(), win::LVM_GETITEMA, 0,
                          reinterpret_cast<win::LPARAM>(&item));
        params.push_back(item.lParam);
    }
    return params;
}

// Where each row of the list goes by a sort, from 0.
std::vector<int> placesBySort(int heading) {
    unsort();
    const std::vector<win::LPARAM> before = rowParams();
    columnHeading_Click(heading);
    std::unordered_map<win::LPARAM, int> placeOf;
    for (const win::LPARAM param : rowParams())
        placeOf.emplace(param, static_cast<int>(placeOf.size()));
    std::vector<int> places;
    for (const win::LPARAM param : before) places.push_back(placeOf.at(param));
    return places;
}

// Beside what the list itself takes to move the same rows to the same places, when it knows them
// already. Wine's list shifts all rows between the two places for each that it moves, so what it
// takes grows with the square of the rows, and that part of a sort's growth is not ours.
SortTimes measureSort(int heading) {
    const double sort = leastOf([heading] { columnHeading_Click(heading); }, unsort);
    const std::vector<int> places = placesBySort(heading);
    unsort();
    const std::vector<RowTexts> rows = rowsOnShow();
    BareList bare(list().hWnd());
    const double moves = leastOf([&] { bare.rearrange(places); },
                                 [&] {
                                     bare.clear();
                                     bare.insert(rows);
                                 });
    return {sort, moves};
}

void reportSort(const Heading& heading, const SortTimes& few, const SortTimes& many) {
    const std::string what = std::string("sort by ") + heading.name;
    report(what + " of 32767 rows", many.sort, "of 8192", few.sort, growthLimit);
    std::printf("%5.2f  the same moves in a bare list (%.1f ms) / of 8192 (%.1f ms)\n",
                many.bare / few.bare, many.bare, few.bare);
    report(what + " of 32767 rows", many.sort, "the same moves in a bare list", many.bare,
           movesLimit);
}

// The mask ------------------------------------------------------------------------------

// A title in capitals, and the word in it.
std::size_t countPlainly(std::string_view word) {
    const std::string wanted = upperCase(word);
    std::string title;
    std::size_t found = 0;
    for (const URLData& record : uBlock.URLDatas()) {
        upperCaseInto(title, record.Name());
        if (title.find(wanted) != std::string::npos) ++found;
    }
    return found;
}

std::size_t countMasked(std::string_view mask) {
    Masks masks;
    masks.text = mask;
    Filter filter({true, 0, IDXList}, masks, now());
    std::size_t found = 0;
    for (const URLData& record : uBlock.URLDatas())
        if (filter.passes(record)) ++found;
    return found;
}

void measureMask() {
    volatile std::size_t found = 0;
    const double plain = leastOf([&] { found = countPlainly("weekly tools"); });
    // A word of few titles, and pattern characters that take a look at every byte.
    for (const char* const mask : {"weekly tools", "w?ekly*t[a-o]ols", "#", "*[!a-z ]*"})
        report(std::string("text mask ") + mask, leastOf([&] { found = countMasked(mask); }),
               "plain search", plain, maskLimit);
}

// Find ----------------------------------------------------------------------------------

// From the first row to the last, the only one with that title.
void measureFind() {
    showAll();
    RefreshURLPage();
    const int last = list().Count();
    list().Row(last).Text("the very last");
    BareList bare(list().hWnd());
    bare.insert(rowsOnShow());
    volatile std::size_t bytes = 0;
    const double read = leastOf([&] { bytes = bare.readTitles(); });
    const double find = leastOf([] { findRow("very last", 0); },
                                [last] {
                                    list().Row(last).Selected(false);
                                    list().Row(1).Selected(true);
                                });
    if (list().SelectedItem().position() != last) std::abort();
    report("find through " + std::to_string(last) + " rows", find, "reading their titles", read,
           findLimit);
}

// All -----------------------------------------------------------------------------------

void fill(StoreSize size) {
    emptyStore();
    fillStore(size);
    rebuildGroupList(true);
    DoEvents();
}

void measureAll() {
    std::vector<SortTimes> few;
    fill(small);
    measureRefresh();
    for (const Heading& heading : headings) few.push_back(measureSort(heading.number));

    fill(large);
    const double all = measureRefresh();
    measureSortedRefresh(all);
    measureGroup(all);
    for (std::size_t i = 0; i < few.size(); ++i) {
        const SortTimes many = measureSort(headings[i].number);
        reportSort(headings[i], few[i], many);
        if (headings[i].number == dateHeading)
            report("the same", many.sort, "their refresh", all, dateLimit);
    }
    measureMask();
    measureFind();
}

int run(int count, char** arguments) {
    const bool check = count > 1 && std::strcmp(arguments[1], "--check") == 0;
    startCommonControls();
    wireForm3();
    // The window as it comes up, without settings, stack file and tray controller.
    Form3.onLoad = firstBuild;
    Form3.Show();
    DoEvents();
    measureAll();
    Form3.discard();
    return check && !allWithin ? EXIT_FAILURE : EXIT_SUCCESS;
}

}  // namespace
}  // namespace magpie::bench

int main(int count, char** arguments) {
    return magpie::bench::run(count, arguments);
}
