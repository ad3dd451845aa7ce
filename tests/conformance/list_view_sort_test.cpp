// The class "SysListView32": rows put in order by a routine of the program.
#include <algorithm>
#include <gmock/gmock.h>
#include <string>
#include <utility>
#include <vector>

#include "tests/conformance/list_view_user.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// What the routine was asked, in its order.
std::vector<std::pair<win::LPARAM, win::LPARAM>> asked;
win::LPARAM lastSort = 0;

void note(win::LPARAM first, win::LPARAM second, win::LPARAM sort) {
    asked.emplace_back(first, second);
    lastSort = sort;
}

// Below 0, 0 or above 0, as most routines answer.
win::INT byNumber(win::LPARAM first, win::LPARAM second, win::LPARAM sort) {
    note(first, second, sort);
    return static_cast<win::INT>(first - second);
}

// By the tens alone, greatest first: 0 leaves a pair alone, anything above turns it round,
// also between equal rows.
win::INT byTensAsAskedFor(win::LPARAM first, win::LPARAM second, win::LPARAM) {
    return first / 10 > second / 10 ? 0 : first / 10 == second / 10 ? 1 : 2;
}

win::INT allAlike(win::LPARAM, win::LPARAM, win::LPARAM) {
    return 0;
}

win::INT allTheOtherWay(win::LPARAM, win::LPARAM, win::LPARAM) {
    return 1;
}

struct ListViewSort : ListViewUser {
    win::LRESULT sort(win::PFNLVCOMPARE routine, int parameter = 0) {
        asked.clear();
        return send(win::LVM_SORTITEMS, parameter, reinterpret_cast<win::LPARAM>(routine));
    }
    void put(const std::vector<win::LPARAM>& params) {
        send(win::LVM_DELETEALLITEMS);
        for (const win::LPARAM param : params)
            insert(0x7FFFFFFF, std::to_string(param).c_str(), param);
        parent.takeNotices();
    }
    std::vector<win::LPARAM> params() {
        std::vector<win::LPARAM> found;
        for (int row = 0; row < count(); ++row) found.push_back(param(row));
        return found;
    }
    int find(int after, win::LPARAM param) {
        win::LVFINDINFOA wanted{};
        wanted.flags = win::LVFI_PARAM;
        wanted.lParam = param;
        return static_cast<int>(send(win::LVM_FINDITEMA, after, &wanted));
    }
};

TEST_F(ListViewSort, PutsRowsInTheOrderOfTheRoutine) {
    put({30, 10, 20, 50, 40});
    setText(0, 1, "thirty");
    EXPECT_TRUE(sort(byNumber, 77));
    EXPECT_THAT(params(), ElementsAre(10, 20, 30, 40, 50));
    EXPECT_THAT(titles(), ElementsAre("10", "20", "30", "40", "50"));
    EXPECT_EQ(text(2, 1), "thirty");
    EXPECT_EQ(lastSort, 77);
}

TEST_F(ListViewSort, TheRoutineGetsTheUpperRowFirst) {
    put({2, 1});
    sort(byNumber);
    EXPECT_THAT(asked, ElementsAre(std::pair<win::LPARAM, win::LPARAM>{2, 1}));
    put({1, 2});
    sort(byNumber);
    EXPECT_THAT(asked, ElementsAre(std::pair<win::LPARAM, win::LPARAM>{1, 2}));
}

TEST_F(ListViewSort, ARoutineThatNeverAnswersAbove0LeavesAllAsItIs) {
    put({3, 1, 2, 5, 4});
    EXPECT_TRUE(sort(allAlike));
    EXPECT_THAT(params(), ElementsAre(3, 1, 2, 5, 4));
}

TEST_F(ListViewSort, ARoutineThatAlwaysAnswersAbove0TurnsAllRound) {
    for (int rows = 2; rows <= 40; ++rows) {
        std::vector<win::LPARAM> wanted;
        for (int row = 0; row < rows; ++row) wanted.push_back(row);
        put(wanted);
        EXPECT_TRUE(sort(allTheOtherWay));
        std::reverse(wanted.begin(), wanted.end());
        EXPECT_EQ(params(), wanted) << rows;
    }
}

TEST_F(ListViewSort, EqualRowsOfWhichTheRoutineAnswersAbove0AreTurnedRound) {
    for (int rows = 2; rows <= 40; ++rows) {
        std::vector<win::LPARAM> wanted;
        for (int row = 0; row < rows; ++row) wanted.push_back((row * 7 % 5) * 10 + row % 10);
        put(wanted);
        EXPECT_TRUE(sort(byTensAsAskedFor));
        std::reverse(wanted.begin(), wanted.end());
        std::stable_sort(wanted.begin(), wanted.end(),
                         [](win::LPARAM a, win::LPARAM b) { return a / 10 > b / 10; });
        EXPECT_EQ(params(), wanted) << rows;
    }
}

TEST_F(ListViewSort, FewerThanTwoRowsAreNotCompared) {
    EXPECT_TRUE(sort(byNumber));
    put({1});
    EXPECT_TRUE(sort(byNumber));
    EXPECT_THAT(asked, IsEmpty());
    EXPECT_THAT(params(), ElementsAre(1));
}

TEST_F(ListViewSort, FocusSelectionAndCheckBoxesStayOnTheirRowsWithoutAWord) {
    addCheckBoxes();
    put({4, 3, 2, 1});
    setState(0, both, both);
    setState(2, selected, selected);
    setState(3, ticked, win::LVIS_STATEIMAGEMASK);
    parent.takeNotices();
    sort(byNumber);
    EXPECT_THAT(states(), ElementsAre(ticked, unticked | selected, unticked, unticked | both));
    EXPECT_EQ(focusedRow(), 3);
    EXPECT_EQ(send(win::LVM_GETSELECTEDCOUNT), 2);
    EXPECT_EQ(send(win::LVM_GETNEXTITEM, -1, win::LPARAM{win::LVNI_SELECTED}), 1);
    EXPECT_THAT(parent.takeNotices(), IsEmpty());
}

TEST_F(ListViewSort, AListStaysScrolledWhereItWas) {
    fill(60);
    send(win::LVM_ENSUREVISIBLE, 59);
    const win::RECT before = place(59);
    sort(allTheOtherWay);
    EXPECT_EQ(text(0), "r59");
    EXPECT_EQ(place(59).top, before.top);
    EXPECT_LT(place(0).top, 0);
}

TEST_F(ListViewSort, ARowIsFoundByItsParameterBehindAnother) {
    put({5, 7, 5, 9});
    EXPECT_EQ(find(-1, 5), 0);
    EXPECT_EQ(find(0, 5), 2);
    EXPECT_EQ(find(2, 5), -1);
    EXPECT_EQ(find(-1, 9), 3);
    EXPECT_EQ(find(-1, 8), -1);
}

}  // namespace
