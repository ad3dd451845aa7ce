// The date test of a mask: what "More Than", "Less Than" and "Equal To" let through, to the second.
#include <gtest/gtest.h>
#include <string>

#include "tests/unit/runtime/failure_of.h"
#include "views/filter_decision.h"

namespace magpie {
namespace {

constexpr int days = 0;
constexpr int weeks = 1;
constexpr int months = 2;

// Of all three modes, whether a date passes.
struct Row {
    int unit;
    int count;
    const char* date;
    const char* now;
    // "M", "L", "E" of the modes that pass.
    const char* passing;
};

std::string passing(const Row& row) {
    std::string letters;
    const auto passes = [&](int mode) {
        return passesDate({mode, static_cast<std::int16_t>(row.count), row.unit},
                          readDateText(row.date), readDateText(row.now));
    };
    if (passes(maskMoreThan)) letters += 'M';
    if (passes(maskLessThan)) letters += 'L';
    if (passes(maskEqualTo)) letters += 'E';
    return letters;
}

template <std::size_t n>
void expectAll(const Row (&table)[n]) {
    for (const Row& row : table)
        EXPECT_EQ(passing(row), row.passing) << row.count << " of unit " << row.unit << " behind "
                                             << row.date << ", now " << row.now;
}

TEST(DateMask, DaysAreCountedByMidnights) {
    const Row table[] = {
        // The day itself, at any hour of both.
        {days, 0, "2001-03-14 23:59:59", "2001-03-14 00:00:00", "ME"},
        {days, 0, "2001-03-14 00:00:00", "2001-03-14 23:59:59", "ME"},
        // A second on the other side of midnight.
        {days, 0, "2001-03-13 23:59:59", "2001-03-14 00:00:00", "M"},
        {days, 0, "2001-03-15 00:00:00", "2001-03-14 23:59:59", ""},
        {days, 1, "2001-03-13 23:59:59", "2001-03-14 00:00:00", "ME"},
        {days, 1, "2001-03-13 00:00:00", "2001-03-14 23:59:59", "ME"},
        {days, 1, "2001-03-14 00:00:00", "2001-03-14 00:00:00", "ML"},
        {days, 1, "2001-03-15 00:00:00", "2001-03-14 23:59:59", ""},
        // The seventh day back, its neighbours, and both ends of what "Less Than" takes.
        {days, 7, "2001-03-07 00:00:00", "2001-03-14 09:00:00", "ME"},
        {days, 7, "2001-03-07 23:59:59", "2001-03-14 09:00:00", "ME"},
        {days, 7, "2001-03-06 23:59:59", "2001-03-14 09:00:00", "M"},
        {days, 7, "2001-03-08 00:00:00", "2001-03-14 09:00:00", "ML"},
        {days, 7, "2001-03-14 23:59:59", "2001-03-14 09:00:00", "ML"},
        {days, 7, "2001-03-15 00:00:00", "2001-03-14 09:00:00", ""},
        // February: 29 days in 2000, 28 in 2001 and in 1900.
        {days, 1, "2000-02-28 12:00:00", "2000-02-29 12:00:00", "ME"},
        {days, 1, "2000-02-28 12:00:00", "2000-03-01 12:00:00", "M"},
        {days, 2, "2000-02-28 12:00:00", "2000-03-01 12:00:00", "ME"},
        {days, 1, "2001-02-28 12:00:00", "2001-03-01 12:00:00", "ME"},
        {days, 1, "1900-02-28 12:00:00", "1900-03-01 12:00:00", "ME"},
        {days, 1, "2000-12-31 23:00:00", "2001-01-01 01:00:00", "ME"},
    };
    expectAll(table);
}

TEST(DateMask, WeeksAreCountedBySundays) {
    // 11 and 18 March 2001 were Sundays.
    const Row table[] = {
        {weeks, 0, "2001-03-11 00:00:00", "2001-03-17 23:59:59", "ME"},
        {weeks, 0, "2001-03-17 23:59:59", "2001-03-11 00:00:00", "ME"},
        {weeks, 0, "2001-03-17 23:59:59", "2001-03-18 00:00:00", "M"},
        {weeks, 0, "2001-03-18 00:00:00", "2001-03-17 23:59:59", ""},
        {weeks, 1, "2001-03-10 23:59:59", "2001-03-17 23:59:59", "ME"},
        {weeks, 1, "2001-03-10 23:59:59", "2001-03-18 00:00:00", "M"},
        {weeks, 1, "2001-03-11 00:00:00", "2001-03-17 23:59:59", "ML"},
        {weeks, 1, "2001-03-11 00:00:00", "2001-03-18 00:00:00", "ME"},
        {weeks, 1, "2001-03-17 23:59:59", "2001-03-11 00:00:00", "ML"},
        {weeks, 1, "2001-03-18 00:00:00", "2001-03-17 23:59:59", ""},
        // Six days apart in one week, one day apart in two.
        {weeks, 2, "2001-02-25 00:00:00", "2001-03-17 23:59:59", "ME"},
        {weeks, 2, "2001-02-24 23:59:59", "2001-03-11 00:00:00", "M"},
        // The week with the leap day in it.
        {weeks, 1, "2000-02-26 23:59:59", "2000-03-04 00:00:00", "ME"},
        {weeks, 1, "2000-02-26 23:59:59", "2000-03-05 00:00:00", "M"},
        {weeks, 1, "2000-02-27 00:00:00", "2000-03-05 00:00:00", "ME"},
    };
    expectAll(table);
}

TEST(DateMask, MonthsAreCountedByTheirFirstDays) {
    const Row table[] = {
        {months, 0, "2001-03-31 23:59:59", "2001-03-01 00:00:00", "ME"},
        {months, 0, "2001-03-01 00:00:00", "2001-03-31 23:59:59", "ME"},
        {months, 0, "2001-02-28 23:59:59", "2001-03-01 00:00:00", "M"},
        {months, 0, "2001-04-01 00:00:00", "2001-03-31 23:59:59", ""},
        {months, 0, "2000-12-31 23:59:59", "2001-01-01 00:00:00", "M"},
        {months, 1, "2000-12-31 23:59:59", "2001-01-01 00:00:00", "ME"},
        {months, 1, "2001-03-31 12:00:00", "2001-03-01 00:00:00", "ML"},
        {months, 1, "2001-04-01 00:00:00", "2001-03-31 23:59:59", ""},
        {months, 13, "2000-02-29 12:00:00", "2001-03-31 12:00:00", "ME"},
        // A day that the month lacks is its last day, and not the next month's beginning.
        {months, 1, "2001-01-31 12:00:00", "2001-02-28 12:00:00", "ME"},
        {months, 1, "2001-01-31 12:00:00", "2001-03-01 12:00:00", "M"},
        {months, 1, "2000-01-31 12:00:00", "2000-02-29 12:00:00", "ME"},
        {months, 1, "2000-01-30 12:00:00", "2000-03-01 12:00:00", "M"},
        {months, 12, "2000-02-29 12:00:00", "2001-02-28 12:00:00", "ME"},
        {months, 1, "2001-03-31 23:59:59", "2001-05-01 00:00:00", "M"},
        {months, 1, "2001-03-31 23:59:59", "2001-04-30 00:00:00", "ME"},
    };
    expectAll(table);
}

TEST(DateMask, ASpanBelowZeroLooksAheadOfNow) {
    const Row table[] = {
        {days, -1, "2001-03-15 00:00:00", "2001-03-14 23:59:59", "E"},
        {days, -1, "2001-03-14 23:59:59", "2001-03-14 00:00:00", "M"},
        {days, -1, "2001-03-16 00:00:00", "2001-03-14 23:59:59", ""},
        {days, -7, "2001-03-21 23:59:59", "2001-03-14 09:00:00", "E"},
        {days, -7, "2001-03-14 00:00:00", "2001-03-14 09:00:00", "M"},
        {days, -7, "2001-03-15 00:00:00", "2001-03-14 09:00:00", ""},
        {days, -32768, "2001-03-14 00:00:00", "2001-03-14 09:00:00", "M"},
        {weeks, -1, "2001-03-18 00:00:00", "2001-03-17 23:59:59", "E"},
        {weeks, -1, "2001-03-17 23:59:59", "2001-03-11 00:00:00", "M"},
        {weeks, -1, "2001-03-25 00:00:00", "2001-03-17 23:59:59", ""},
        {weeks, -2, "2001-03-18 00:00:00", "2001-03-17 23:59:59", ""},
        {months, -1, "2001-04-01 00:00:00", "2001-03-31 23:59:59", "E"},
        {months, -1, "2001-03-31 23:59:59", "2001-03-01 00:00:00", "M"},
        {months, -1, "2001-05-01 00:00:00", "2001-03-31 23:59:59", ""},
        // From the last of a month back to the last of a shorter one.
        {months, -1, "2001-03-31 12:00:00", "2001-02-28 12:00:00", "E"},
        {months, -1, "2000-03-31 12:00:00", "2000-02-01 12:00:00", "E"},
        {months, -12, "2000-02-29 12:00:00", "1999-02-28 12:00:00", "E"},
    };
    expectAll(table);
}

TEST(DateMask, MoreThanIsNoComparisonOfAges) {
    const Row table[] = {
        // Whatever the number, a date of long ago passes, and so does one of this minute.
        {days, 32767, "2001-03-14 08:59:59", "2001-03-14 09:00:00", "ML"},
        {days, 32767, "1980-01-01 00:00:00", "2001-03-14 09:00:00", "ML"},
        {days, 32767, "1899-12-30 00:00:01", "2001-03-14 09:00:00", "M"},
        {days, 2, "1980-01-01 00:00:00", "2001-03-14 09:00:00", "M"},
        {weeks, 32767, "2001-03-14 09:00:00", "2001-03-14 09:00:00", "ML"},
        {months, 32767, "2001-03-14 09:00:00", "2001-03-14 09:00:00", "ML"},
        // Only a date ahead of now by a whole unit fails.
        {days, 32767, "2001-03-15 00:00:00", "2001-03-14 09:00:00", ""},
        {weeks, 32767, "2001-03-18 00:00:00", "2001-03-14 09:00:00", ""},
        {weeks, 32767, "2001-03-17 23:59:59", "2001-03-14 09:00:00", "ML"},
        {months, 32767, "2001-04-01 00:00:00", "2001-03-14 09:00:00", ""},
        {months, 32767, "2001-03-31 23:59:59", "2001-03-14 09:00:00", "ML"},
    };
    expectAll(table);
}

TEST(DateMask, AUnitThatDoesNotExistCountsDays) {
    for (const int unit : {3, 9, 255, -1, 32767}) {
        EXPECT_EQ(passing({unit, 1, "2001-03-13 23:59:59", "2001-03-14 00:00:00", ""}), "ME");
        EXPECT_EQ(passing({unit, 1, "2001-03-12 23:59:59", "2001-03-14 00:00:00", ""}), "M");
    }
}

TEST(DateMask, AModeThatDoesNotExistPassesNothing) {
    const Date now = readDateText("2001-03-14 09:00:00");
    for (const int mode : {maskOff, 4, 255, -1})
        for (const int unit : {days, weeks, months})
            for (const int count : {-1, 0, 1})
                EXPECT_FALSE(passesDate({mode, static_cast<std::int16_t>(count), unit}, now, now))
                    << mode;
}

TEST(DateMask, ASpanThatLeavesTheCalendarFails) {
    const Date now = readDateText("2001-03-14 09:00:00");
    const struct {
        int unit;
        int count;
        const char* date;
        bool leaves;
    } table[] = {
        {months, -32768, "2001-03-14 09:00:00", true},
        {months, -22802, "2001-03-14 09:00:00", false},  // January of the year 101
        {months, -22814, "2001-03-14 09:00:00", false},  // January of the year 100
        {months, -22815, "2001-03-14 09:00:00", true},
        {months, 32767, "2001-03-14 09:00:00", false},
        {weeks, -32768, "2001-03-14 09:00:00", false},
        {weeks, -32768, "0700-01-01 00:00:00", true},
        {days, -1, "0100-01-01 00:00:00", true},
        {days, 1, "9999-12-31 00:00:00", true},
        {weeks, 1, "9999-12-25 00:00:00", true},
        {weeks, 1, "9999-12-24 23:59:59", false},
        {months, 1, "9999-12-01 00:00:00", true},
        {months, 1, "9999-11-30 00:00:00", false},
    };
    for (const auto& row : table)
        for (const int mode : {maskMoreThan, maskLessThan, maskEqualTo, 4}) {
            const DateMask mask{mode, static_cast<std::int16_t>(row.count), row.unit};
            EXPECT_EQ(failureOf([&] { return passesDate(mask, readDateText(row.date), now); }),
                      row.leaves ? failure::invalidCall : 0)
                << row.count << " of unit " << row.unit << " behind " << row.date;
        }
    EXPECT_EQ(failureOf([&] {
                  return passesDate({maskEqualTo, 0, days}, Date{1e7}, now);
              }),
              failure::invalidCall);
}

}  // namespace
}  // namespace magpie
