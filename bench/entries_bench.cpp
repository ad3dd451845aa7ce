// What it takes to rate, move and remove all rows of a full list, and to add and edit an entry in
// a full store. On a real desktop each operation on rows stands beside a bare loop of the same
// messages; on the memory desktop, where the messages cost next to nothing, beside itself on a
// quarter of the rows. Prints the ratios with their limits; with --check the program fails when
// one is over its limit.
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <string>
#include <vector>

#include "bench/bare_list.h"
#include "bench/sample_store.h"
#include "bench/stopwatch.h"
#include "core/state.h"
#include "entries/add_entry.h"
#include "entries/bulk_list.h"
#include "entries/form2.h"
#include "entries/row_match.h"
#include "entries/url_information.h"
#include "mainwindow/first_build.h"
#include "mainwindow/form3.h"
#include "platform/controls/common_controls.h"
#include "platform/controls/message_loop.h"
#include "store/groups.h"
#include "store/records.h"
#include "views/group_list.h"
#include "views/refresh.h"

namespace magpie::bench {
namespace {

#ifdef _WIN32
constexpr bool realLists = true;
#else
constexpr bool realLists = false;
#endif

constexpr double growthLimit = 6;    // for four times as many rows
constexpr double bareLimit = 2;      // over a bare loop of the same messages
constexpr double singleLimit = 1.5;  // of one entry in a full store over one in a quarter of it

constexpr std::int32_t groups = 16;
constexpr StoreSize small{8192, groups};
constexpr StoreSize large{32767, groups};

constexpr int ratingColumn = 2;
constexpr int groupColumn = 3;

bool allWithin = true;

void report(const std::string& what, double measured, const char* beside, double baseline,
            double limit) {
    const double ratio = measured / baseline;
    const bool within = ratio <= limit;
    allWithin = allWithin && within;
    std::printf("%5.2f of %.1f  %s (%.3f ms) / %s (%.3f ms)%s\n", ratio, limit, what.c_str(),
                measured, beside, baseline, within ? "" : "  OVER");
}

ListView& list() {
    return Form3.ListView1[lvIndex];
}

// Ends the program when an operation did not do what was measured.
void require(bool done) {
    if (!done) std::abort();
}

void fillAlike(StoreSize size) {
    for (std::int32_t group = 0; group < size.groups; ++group)
        NewCatagory("Group " + std::to_string(group));
    for (std::int32_t i = 0; i < size.entries; ++i)
        uBlock.URLDatas().Add("title", "http://server/", 0).Created = {36000.5};
}

void fill(StoreSize size, bool alike = false) {
    emptyStore();
    alike ? fillAlike(size) : fillStore(size);
    rebuildGroupList(true);
    Form3.advMode = 0;
    RefreshURLPage();
    DoEvents();
}

void selectAll() {
    win::LVITEMA item{};
    item.state = item.stateMask = win::LVIS_SELECTED;
    win::SendMessageA(list().hWnd(), win::LVM_SETITEMSTATE, static_cast<win::WPARAM>(-1),
                      reinterpret_cast<win::LPARAM>(&item));
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

// Operations on rows --------------------------------------------------------------------

// Each rating and each group is another than the one before, so that every row is written.
std::int16_t nextOf(std::int16_t& last, std::int16_t count) {
    last = static_cast<std::int16_t>((last + 1) % count);
    return last;
}

void rateAll() {
    static std::int16_t rating = 0;
    RateSelected(nextOf(rating, 5), false);
}

void moveAll() {
    static std::int16_t group = 0;
    MoveSelected(nextOf(group, groups), false);
}

void moveAway() {
    MoveSelected(groups - 1, false);
}

struct Operation {
    const char* name;
    void (*run)();
    std::uint8_t savedFace;  // 1 lets moved rows go
    bool deletes;
    int column;  // that is written where the rows stay
    bool alike = false;
};
const Operation operations[] = {
    {"rate", rateAll, 0, false, ratingColumn},
    {"move", moveAll, 0, false, groupColumn},
    {"move and lose", moveAway, 1, true, 0},
    {"remove", RemoveSelected, 0, true, 0},
    {"rate of rows that look alike,", rateAll, 0, false, ratingColumn, true},
    {"remove of rows that look alike,", RemoveSelected, 0, true, 0, true},
};

double measure(const Operation& operation, StoreSize size) {
    savedAdvMode = operation.savedFace;
    fill(size, operation.alike);
    const double time = leastOf(operation.run, [&] {
        if (operation.deletes) fill(size, operation.alike);
        selectAll();
        require(selectedCount() == size.entries);
    });
    require(selectedCount() == 0 && list().Count() == (operation.deletes ? 0 : size.entries));
    return time;
}

// With the same rows.
double measureBare(const Operation& operation, StoreSize size) {
    fill(size, operation.alike);
    const std::vector<RowTexts> rows = rowsOnShow();
    BareList bare(list().hWnd());
    bare.insert(rows);
    volatile std::size_t bytes = 0;
    const auto change = [&] {
        bytes = operation.deletes ? bare.deleteSelected()
                                  : bare.writeSelected(operation.column, "Medium");
    };
    return leastOf(change, [&] {
        if (operation.deletes) {
            bare.clear();
            bare.insert(rows);
        }
        bare.selectAll();
    });
}

void measureRows() {
    for (const Operation& operation : operations) {
        const std::string what = operation.name;
        const double few = measure(operation, small);
        const double many = measure(operation, large);
        if (!realLists) {
            report(what + " 32767 rows", many, "8192 rows", few, growthLimit);
            continue;
        }
        report(what + " 8192 rows", few, "bare loop", measureBare(operation, small), bareLimit);
        report(what + " 32767 rows", many, "bare loop", measureBare(operation, large), bareLimit);
    }
}

// Single entries ------------------------------------------------------------------------

void newEntry() {
    modalOpen = D_NEW;
    Form2.load();
    acceptEntry_Click();
}

void editEntry() {
    modalOpen = D_EDIT;
    Form2.load();
    acceptEntry_Click();
}

void selectRow(int row) {
    list().Row(row).Selected(true);
}

void quickAdd() {
    QuickAdd("http://server/");
}

int firstRow() {
    return 1;
}

int lastRow() {
    return list().Count();
}

struct Single {
    const char* name;
    void (*run)();
    int (*row)();  // that is selected
    int changes;   // that it counts
};
const Single singles[] = {
    {"new entry", newEntry, firstRow, 1},
    {"quick add", quickAdd, firstRow, 1},
    {"edit of the first row", editEntry, firstRow, 2},
    {"edit of the last row", editEntry, lastRow, 2},
};

// Many in a row, the first of them left out: it may have to make ready what the others use.
double measure(const Single& single, StoreSize size) {
    constexpr int times = 50;
    fill(size);
    savedAdvMode = 0;
    selectRow(single.row());
    single.run();
    urlsDirty = 0;
    const auto manyTimes = [&] {
        for (int time = 0; time < times; ++time) {
            selectRow(single.row());
            single.run();
        }
    };
    const double time = leastOf(manyTimes);
    require(urlsDirty == times * runs * single.changes);
    return time / times;
}

void measureSingles() {
    // The keys reach to 32,767, and there has to be room for new ones.
    constexpr StoreSize almostFull{32000, groups};
    constexpr StoreSize quarter{8000, groups};
    for (const Single& single : singles)
        report(std::string(single.name) + " among 32000", measure(single, almostFull), "among 8000",
               measure(single, quarter), singleLimit);
}

// All -----------------------------------------------------------------------------------

int run(int count, char** arguments) {
    const bool check = count > 1 && std::strcmp(arguments[1], "--check") == 0;
    startCommonControls();
    wireForm3();
    wireForm2();
    // The window as it comes up, without settings, stack file and tray controller.
    Form3.onLoad = firstBuild;
    Form3.Show();
    DoEvents();
    measureRows();
    measureSingles();
    Form3.discard();
    return check && !allWithin ? EXIT_FAILURE : EXIT_SUCCESS;
}

}  // namespace
}  // namespace magpie::bench

int main(int count, char** arguments) {
    return magpie::bench::run(count, arguments);
}
