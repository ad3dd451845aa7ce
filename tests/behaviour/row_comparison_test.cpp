// The comparison routines by themselves: two rows in, 0, 1 or 2 out.
#include "views/row_comparison.h"

#include "tests/behaviour/view_fixture.h"

namespace magpie {
namespace {

using testing::ElementsAre;

using Routine = win::INT (*)(win::LPARAM, win::LPARAM, win::LPARAM);

class RowComparison : public ViewFixture {
public:
    static ListView& list() { return Form3.ListView1[2]; }

    RowComparison() { openWith({"A"}); }

    // Puts these texts into a column, each into a row of its own; a row's parameter is its
    // place among them, from 0.
    static void put(int column, std::initializer_list<std::string> texts) {
        list().Clear();
        for (const std::string& text : texts) list().Add("row").SubItem(column, text);
    }
    static win::INT compared(Routine routine, win::LPARAM first, win::LPARAM second) {
        return routine(first, second, reinterpret_cast<win::LPARAM>(list().hWnd()));
    }
    // Two texts in a column, compared.
    static win::INT result(Routine routine, int column, const std::string& a,
                           const std::string& b) {
        put(column, {a, b});
        return compared(routine, 0, 1);
    }
};

TEST_F(RowComparison, AGreaterKeyGives0AnEqualOne1ALesserOne2) {
    const struct {
        Routine routine;
        int column;
        const char* greater;
        const char* lesser;
    } cases[] = {{compareLastVisited, 4, "2000-01-01 00:00:01", "2000-01-01 00:00:00"},
                 {compareCreated, 5, "2000-01-01 00:00:00", "1999-12-31 23:59:59"},
                 {compareVisited, 6, "10", "9"},
                 {compareRated, 2, "V.High", "High"}};
    for (const auto& each : cases) {
        EXPECT_EQ(result(each.routine, each.column, each.greater, each.lesser), 0);
        EXPECT_EQ(result(each.routine, each.column, each.greater, each.greater), 1);
        EXPECT_EQ(result(each.routine, each.column, each.lesser, each.greater), 2);
    }
}

TEST_F(RowComparison, ReversedALesserKeyGives0AnEqualOne1AGreaterOne2) {
    sortReversed = true;
    EXPECT_EQ(result(compareVisited, 6, "9", "10"), 0);
    EXPECT_EQ(result(compareVisited, 6, "9", "9"), 1);
    EXPECT_EQ(result(compareVisited, 6, "10", "9"), 2);
    EXPECT_EQ(result(compareRated, 2, "Low", "High"), 0);
    EXPECT_EQ(result(compareCreated, 5, "2000-01-02 00:00:00", "2000-01-01 00:00:00"), 2);
    EXPECT_EQ(result(compareLastVisited, 4, "Never", "2000-01-01 00:00:00"), 0);
}

TEST_F(RowComparison, TwoRowsThatWereNeverVisitedAreEqual) {
    EXPECT_EQ(result(compareLastVisited, 4, "Never", "Never"), 1);
    EXPECT_EQ(result(compareLastVisited, 4, "Never", "1899-12-30 00:00:00"), 1);
    EXPECT_EQ(result(compareLastVisited, 4, "Never", "1899-12-29 00:00:00"), 0);
}

TEST_F(RowComparison, WhatIsNoDateCountsAsDateZero) {
    for (const char* text : {"", "soon", "2000-02-30 00:00:00", "2000-01-01", "36526"}) {
        EXPECT_EQ(result(compareCreated, 5, text, "1899-12-30 00:00:00"), 1) << text;
        EXPECT_EQ(result(compareLastVisited, 4, text, "1899-12-30 00:00:01"), 2) << text;
    }
}

TEST_F(RowComparison, ThirtyTwoBytesOfATextAreRead) {
    const std::string date = "2000-01-01 00:00:00";
    EXPECT_EQ(result(compareCreated, 5, std::string(13, ' ') + date, date), 1);
    EXPECT_EQ(result(compareCreated, 5, std::string(14, ' ') + date, date), 2);
    EXPECT_EQ(result(compareCreated, 5, date + std::string(13, ' ') + "x", date), 1);
    EXPECT_EQ(result(compareCreated, 5, date + std::string(12, ' ') + "x", date), 2);
    EXPECT_EQ(result(compareVisited, 6, std::string(31, '0') + "77", "7"), 1);
}

TEST_F(RowComparison, CountsAreWholeNumbersOf32Bits) {
    EXPECT_EQ(result(compareVisited, 6, "-2147483648", "2147483647"), 2);
    EXPECT_EQ(result(compareVisited, 6, "2147483647", "2147483646"), 0);
    EXPECT_EQ(result(compareVisited, 6, "", "0"), 1);
    EXPECT_EQ(result(compareVisited, 6, "-1", ""), 2);
}

TEST_F(RowComparison, ACountThatCannotBeReadLeavesThePairAlone) {
    for (const char* text : {"many", " ", "2147483648"}) {
        EXPECT_EQ(result(compareVisited, 6, text, "1"), 0) << text;
        EXPECT_EQ(result(compareVisited, 6, "1", text), 0) << text;
    }
}

TEST_F(RowComparison, ARatingIsKnownByItsFirstLetterExactly) {
    put(2, {"V", "High as well", "M", "Low", "Not Rated", "v.high", "", " V"});
    const int worth[] = {4, 3, 2, 1, 0, 0, 0, 0};
    for (int first = 0; first < 8; ++first) {
        for (int second = 0; second < 8; ++second) {
            const int wanted = worth[first] > worth[second]    ? 0
                               : worth[first] == worth[second] ? 1
                                                               : 2;
            EXPECT_EQ(compared(compareRated, first, second), wanted) << first << ' ' << second;
        }
    }
}

TEST_F(RowComparison, RowsAreKnownByTheirParameterWhereverTheyStand) {
    put(6, {"1", "2", "3"});
    list().SortBy([](win::LPARAM, win::LPARAM, win::LPARAM) { return 1; });
    EXPECT_EQ(list().Row(1).SubItem(6), "3");
    EXPECT_EQ(compared(compareVisited, 0, 2), 2);
    EXPECT_EQ(compared(compareVisited, 2, 1), 0);
}

TEST_F(RowComparison, ARowThatIsNotThereCountsAsAnEmptyOne) {
    put(6, {"1"});
    EXPECT_EQ(compared(compareVisited, 5, 0), 2);
    EXPECT_EQ(compared(compareVisited, 5, 6), 1);
}

TEST_F(RowComparison, EachSortPutsTheGreatestFirst) {
    put(4, {"2000-01-01 00:00:00", "Never", "2001-01-01 00:00:00"});
    const auto order = [](void (*sort)(ListView&), int column) {
        sort(list());
        std::vector<std::string> texts;
        for (int row = 1; row <= list().Count(); ++row)
            texts.push_back(list().Row(row).SubItem(column));
        return texts;
    };
    EXPECT_THAT(order(sortByLastVisited, 4),
                ElementsAre("2001-01-01 00:00:00", "2000-01-01 00:00:00", "Never"));
    put(5, {"2000-01-01 00:00:00", "2001-01-01 00:00:00"});
    EXPECT_THAT(order(sortByCreated, 5), ElementsAre("2001-01-01 00:00:00", "2000-01-01 00:00:00"));
    put(6, {"9", "10", "-1", ""});
    EXPECT_THAT(order(sortByVisited, 6), ElementsAre("10", "9", "", "-1"));
    put(2, {"Low", "V.High", "Not Rated"});
    EXPECT_THAT(order(sortByRated, 2), ElementsAre("V.High", "Low", "Not Rated"));
}

TEST_F(RowComparison, ReversedASortPutsTheLeastFirst) {
    sortReversed = true;
    put(6, {"9", "10", "-1"});
    sortByVisited(list());
    EXPECT_EQ(list().Row(1).SubItem(6), "-1");
    EXPECT_EQ(list().Row(3).SubItem(6), "10");
}

TEST_F(RowComparison, ACountThatCannotBeReadLeavesAllRowsAsTheyWere) {
    put(6, {"1", "many", "2"});
    EXPECT_THROW(sortByVisited(list()), Failure);
    EXPECT_EQ(list().Row(1).SubItem(6), "1");
    put(6, {"1", "2"});
    sortByVisited(list());
    EXPECT_EQ(list().Row(1).SubItem(6), "2");
}

}  // namespace
}  // namespace magpie
