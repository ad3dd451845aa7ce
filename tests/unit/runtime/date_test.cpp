#include "platform/runtime/date.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <gtest/gtest.h>
#include <limits>
#include <random>

#include "tests/unit/runtime/failure_of.h"
#include "tests/unit/runtime/naive_calendar.h"

namespace magpie {
namespace {

constexpr int firstNumber = -657'434;  // 1 January 100
constexpr int lastNumber = 2'958'465;  // 31 December 9999
constexpr double inf = std::numeric_limits<double>::infinity();

TEST(Date, IsDaysWithTheTimeCountingForwardAlsoBeforeItsOrigin) {
    struct Row {
        double days;
        CivilTime civil;
    };
    const Row table[] = {
        {0, {1899, 12, 30, 0, 0, 0}},
        {0.25, {1899, 12, 30, 6, 0, 0}},
        {1.25, {1899, 12, 31, 6, 0, 0}},
        {-1, {1899, 12, 29, 0, 0, 0}},
        {-1.25, {1899, 12, 29, 6, 0, 0}},
        {-1.75, {1899, 12, 29, 18, 0, 0}},
        {2, {1900, 1, 1, 0, 0, 0}},
        {36435 + 14.5 / 24, {1999, 10, 2, 14, 30, 0}},
        {36404.75, {1999, 9, 1, 18, 0, 0}},
        {firstNumber, {100, 1, 1, 0, 0, 0}},
        {firstNumber - 86399 / 86400.0, {100, 1, 1, 23, 59, 59}},
        {lastNumber + 86399 / 86400.0, {9999, 12, 31, 23, 59, 59}},
    };
    for (const Row& row : table) {
        EXPECT_EQ(civilOf(Date{row.days}), row.civil) << row.days;
        EXPECT_EQ(dateFromCivil(row.civil).days, row.days);
    }
    EXPECT_EQ(civilOf(Date{-0.25}), civilOf(Date{0.25}));
}

TEST(Date, IsRoundedToTheSecondAndCarriesIntoTheNextDay) {
    constexpr double second = 1.0 / 86400;
    struct Row {
        double days;
        CivilTime civil;
    };
    const Row table[] = {
        {36404 + 0.4 * second, {1999, 9, 1, 0, 0, 0}},
        {36404 + 0.6 * second, {1999, 9, 1, 0, 0, 1}},
        {36405 - 0.4 * second, {1999, 9, 2, 0, 0, 0}},
        {36405 - 0.6 * second, {1999, 9, 1, 23, 59, 59}},
        {1 - 0.4 * second, {1899, 12, 31, 0, 0, 0}},
        {-(1 - 0.4 * second), {1899, 12, 31, 0, 0, 0}},
        {-(2 - 0.4 * second), {1899, 12, 30, 0, 0, 0}},
        {-(3 - 0.4 * second), {1899, 12, 29, 0, 0, 0}},
        {-(3 - 0.6 * second), {1899, 12, 28, 23, 59, 59}},
    };
    for (const Row& row : table) EXPECT_EQ(civilOf(Date{row.days}), row.civil) << row.days;

    // What is counted is what is shown.
    const Date almostMidnight{36405 - 0.4 * second};
    EXPECT_EQ(DateDiff("d", almostMidnight, Date{36405}), 0);
    EXPECT_EQ(DateAdd("d", 1, almostMidnight), Date{36406});
    EXPECT_EQ(DateAdd("m", 1, almostMidnight), Date{36435});
}

TEST(Date, RaisesFiveOutsideTheCalendar) {
    for (const double days : {firstNumber - 1.0, -1e6, lastNumber + 1.0, 1e18, inf, -inf,
                              std::nan(""), lastNumber + 86399.6 / 86400}) {
        EXPECT_EQ(failureOf([&] { return civilOf(Date{days}); }), failure::invalidCall) << days;
        EXPECT_EQ(failureOf([&] { return DateAdd("d", 0, Date{days}); }), failure::invalidCall);
        EXPECT_EQ(failureOf([&] { return DateDiff("d", Date{}, Date{days}); }),
                  failure::invalidCall);
        EXPECT_EQ(failureOf([&] { return DateDiff("d", Date{days}, Date{}); }),
                  failure::invalidCall);
    }
    for (const CivilTime& civil : {
             CivilTime{99, 12, 31, 0, 0, 0},       CivilTime{10000, 1, 1, 0, 0, 0},
             CivilTime{-32768, 1, 1, 0, 0, 0},     CivilTime{2000 + 65536, 1, 1, 0, 0, 0},
             CivilTime{2000, 0, 1, 0, 0, 0},       CivilTime{2000, 13, 1, 0, 0, 0},
             CivilTime{2000, 1 + 256, 1, 0, 0, 0}, CivilTime{2000, 1, 0, 0, 0, 0},
             CivilTime{2000, 1, 32, 0, 0, 0},      CivilTime{2000, 1, 1 + 256, 0, 0, 0},
             CivilTime{2000, 2, 30, 0, 0, 0},      CivilTime{1900, 2, 29, 0, 0, 0},
             CivilTime{2001, 4, 31, 0, 0, 0},      CivilTime{2000, 1, 1, 24, 0, 0},
             CivilTime{2000, 1, 1, -1, 0, 0},      CivilTime{2000, 1, 1, 0, 60, 0},
             CivilTime{2000, 1, 1, 0, -1, 0},      CivilTime{2000, 1, 1, 0, 0, 60},
             CivilTime{2000, 1, 1, 0, 0, -1},
         }) {
        EXPECT_EQ(failureOf([&] { return dateFromCivil(civil); }), failure::invalidCall)
            << civil.year << '-' << civil.month << '-' << civil.day;
    }
}

TEST(Date, KnowsEveryDayOfItsCalendar) {
    ASSERT_EQ(naiveDays().front().number, firstNumber);
    ASSERT_EQ(naiveDays().back().number, lastNumber);
    for (const NaiveDay& day : naiveDays()) {
        const Date date{static_cast<double>(day.number)};
        ASSERT_EQ(civilOf(date), (CivilTime{day.year, day.month, day.day, 0, 0, 0}));
        ASSERT_EQ(dateFromCivil(day.year, day.month, day.day), date);
    }
}

TEST(Date, KeepsEverySecondOfADayOnBothSidesOfItsOrigin) {
    for (const int number : {-36404, -1, 0, 1, 36404}) {
        const NaiveDay& day = naiveDay(number);
        for (int second = 0; second < 86'400; ++second) {
            const CivilTime civil{day.year,      day.month,        day.day,
                                  second / 3600, second / 60 % 60, second % 60};
            ASSERT_EQ(civilOf(dateFromCivil(civil)), civil) << number << ' ' << second;
        }
    }
}

TEST(DateAdd, AddsDaysWeeksAndMonths) {
    struct Row {
        const char* unit;
        int count;
        CivilTime from, to;
    };
    const Row table[] = {
        {"d", 1, {1999, 12, 31, 14, 30, 0}, {2000, 1, 1, 14, 30, 0}},
        {"d", -1, {1900, 1, 1, 6, 0, 0}, {1899, 12, 31, 6, 0, 0}},
        {"d", -3, {1899, 12, 31, 6, 0, 0}, {1899, 12, 28, 6, 0, 0}},
        {"d", 3, {1899, 12, 28, 6, 0, 0}, {1899, 12, 31, 6, 0, 0}},
        {"d", 0, {1999, 9, 1, 9, 15, 0}, {1999, 9, 1, 9, 15, 0}},
        {"ww", 2, {2000, 2, 20, 0, 0, 1}, {2000, 3, 5, 0, 0, 1}},
        {"ww", -1, {1900, 1, 3, 18, 0, 0}, {1899, 12, 27, 18, 0, 0}},
        {"m", 1, {1999, 1, 31, 23, 59, 59}, {1999, 2, 28, 23, 59, 59}},
        {"m", 1, {2000, 1, 31, 0, 0, 0}, {2000, 2, 29, 0, 0, 0}},
        {"m", 1, {1900, 1, 31, 0, 0, 0}, {1900, 2, 28, 0, 0, 0}},
        {"m", -1, {1999, 3, 31, 12, 0, 0}, {1999, 2, 28, 12, 0, 0}},
        {"m", 12, {2000, 2, 29, 0, 0, 0}, {2001, 2, 28, 0, 0, 0}},
        {"m", 48, {2000, 2, 29, 0, 0, 0}, {2004, 2, 29, 0, 0, 0}},
        {"m", -12, {1900, 6, 15, 18, 0, 0}, {1899, 6, 15, 18, 0, 0}},
        {"m", 1, {1999, 12, 15, 0, 0, 0}, {2000, 1, 15, 0, 0, 0}},
        {"m", -1, {2000, 1, 15, 0, 0, 0}, {1999, 12, 15, 0, 0, 0}},
        {"m", -1, {100, 2, 1, 0, 0, 0}, {100, 1, 1, 0, 0, 0}},
    };
    for (const Row& row : table) {
        EXPECT_EQ(civilOf(DateAdd(row.unit, row.count, dateFromCivil(row.from))), row.to)
            << row.unit << ' ' << row.count << ' ' << dateText(dateFromCivil(row.from));
    }
}

TEST(DateAdd, RaisesFiveForAnotherUnitAndPastTheEndsOfTheCalendar) {
    constexpr int most = std::numeric_limits<int>::max();
    constexpr int least = std::numeric_limits<int>::min();
    for (const char* unit : {"", "D", "w", "yyyy", "d ", "mm"}) {
        EXPECT_EQ(failureOf([&] { return DateAdd(unit, 1, Date{1}); }), failure::invalidCall);
        EXPECT_EQ(failureOf([&] { return DateDiff(unit, Date{1}, Date{1}); }),
                  failure::invalidCall);
    }
    for (const char* unit : {"d", "ww", "m"}) {
        EXPECT_EQ(failureOf([&] { return DateAdd(unit, 1, Date{lastNumber}); }),
                  failure::invalidCall);
        EXPECT_EQ(failureOf([&] { return DateAdd(unit, -1, Date{firstNumber}); }),
                  failure::invalidCall);
        EXPECT_EQ(failureOf([&] { return DateAdd(unit, most, Date{}); }), failure::invalidCall);
        EXPECT_EQ(failureOf([&] { return DateAdd(unit, least, Date{}); }), failure::invalidCall);
    }
}

TEST(DateDiff, CountsBoundariesNotTime) {
    struct Row {
        const char* unit;
        CivilTime a, b;
        int count;
    };
    const Row table[] = {
        {"d", {1999, 9, 1, 23, 59, 59}, {1999, 9, 2, 0, 0, 0}, 1},
        {"d", {1999, 9, 1, 0, 0, 0}, {1999, 9, 1, 23, 59, 59}, 0},
        {"d", {1899, 12, 29, 18, 0, 0}, {1899, 12, 30, 6, 0, 0}, 1},
        {"d", {1899, 12, 29, 6, 0, 0}, {1899, 12, 29, 18, 0, 0}, 0},
        {"d", {1999, 9, 2, 0, 0, 0}, {1999, 9, 1, 23, 59, 59}, -1},
        // 4 September 1999 was a Saturday.
        {"ww", {1999, 9, 4, 23, 59, 59}, {1999, 9, 5, 0, 0, 0}, 1},
        {"ww", {1999, 9, 5, 0, 0, 0}, {1999, 9, 11, 23, 59, 59}, 0},
        {"ww", {1999, 9, 5, 0, 0, 0}, {1999, 9, 12, 0, 0, 0}, 1},
        {"ww", {1999, 9, 5, 0, 0, 0}, {1999, 9, 4, 23, 0, 0}, -1},
        {"ww", {1899, 12, 30, 0, 0, 0}, {1899, 12, 31, 0, 0, 0}, 1},
        {"ww", {1899, 12, 23, 0, 0, 0}, {1899, 12, 24, 0, 0, 0}, 1},
        {"ww", {1899, 12, 24, 0, 0, 0}, {1899, 12, 30, 0, 0, 0}, 0},
        {"m", {1999, 9, 30, 23, 59, 59}, {1999, 10, 1, 0, 0, 0}, 1},
        {"m", {1999, 9, 1, 0, 0, 0}, {1999, 9, 30, 23, 59, 59}, 0},
        {"m", {1999, 12, 31, 0, 0, 0}, {2000, 1, 1, 0, 0, 0}, 1},
        {"m", {2000, 1, 1, 0, 0, 0}, {1998, 12, 31, 0, 0, 0}, -13},
    };
    for (const Row& row : table) {
        EXPECT_EQ(DateDiff(row.unit, dateFromCivil(row.a), dateFromCivil(row.b)), row.count)
            << row.unit << ' ' << dateText(dateFromCivil(row.a)) << ' '
            << dateText(dateFromCivil(row.b));
    }
}

// Moments within some centuries around the origin, any second of the day.
struct AnyMoment {
    std::uniform_int_distribution<int> days{-150'000, 150'000};
    std::uniform_int_distribution<int> seconds{0, 86'399};

    Date operator()(std::mt19937& random) {
        const int day = days(random);
        const double time = seconds(random) / 86400.0;
        return Date{day < 0 ? day - time : day + time};
    }
};

int dayOf(Date date) {
    return static_cast<int>(std::trunc(date.days));
}

TEST(DateDiff, CountsWhatAWalkThroughTheDaysCounts) {
    std::mt19937 random(8);
    AnyMoment anyMoment;
    std::uniform_int_distribution<int> near(-500, 500);
    for (int i = 0; i < 3'000; ++i) {
        const Date a = anyMoment(random);
        const Date b = DateAdd("d", near(random), a);
        int days = 0, weeks = 0, months = 0;
        const bool forward = dayOf(a) <= dayOf(b);
        const int from = forward ? dayOf(a) : dayOf(b);
        const int to = forward ? dayOf(b) : dayOf(a);
        for (int number = from + 1; number <= to; ++number) {
            ++days;
            weeks += naiveDay(number).weekday == 0 ? 1 : 0;
            months += naiveDay(number).day == 1 ? 1 : 0;
        }
        const int sign = forward ? 1 : -1;
        ASSERT_EQ(DateDiff("d", a, b), sign * days) << a.days << ' ' << b.days;
        ASSERT_EQ(DateDiff("ww", a, b), sign * weeks) << a.days << ' ' << b.days;
        ASSERT_EQ(DateDiff("m", a, b), sign * months) << a.days << ' ' << b.days;
    }
}

TEST(DateAdd, ArrivesWhereAWalkThroughTheMonthsArrives) {
    std::mt19937 random(9);
    AnyMoment anyMoment;
    std::uniform_int_distribution<int> near(-200, 200);
    for (int i = 0; i < 20'000; ++i) {
        const Date from = anyMoment(random);
        const int count = near(random);
        CivilTime expected = civilOf(from);
        for (int left = std::abs(count); left > 0; --left) {
            expected.month += count > 0 ? 1 : -1;
            if (expected.month == 13) expected.month = 1, ++expected.year;
            if (expected.month == 0) expected.month = 12, --expected.year;
        }
        expected.day = std::min(expected.day, naiveMonthLength(expected.year, expected.month));
        ASSERT_EQ(civilOf(DateAdd("m", count, from)), expected) << from.days << ' ' << count;
    }
}

TEST(DateAdd, IsTakenBackByDateDiff) {
    std::mt19937 random(10);
    AnyMoment anyMoment;
    std::uniform_int_distribution<int> near(-2'000, 2'000);
    for (int i = 0; i < 20'000; ++i) {
        const Date from = anyMoment(random);
        const int count = near(random);
        for (const char* unit : {"d", "ww", "m"}) {
            const Date to = DateAdd(unit, count, from);
            ASSERT_EQ(DateDiff(unit, from, to), count) << unit << ' ' << from.days;
            ASSERT_EQ(DateDiff(unit, to, from), -count) << unit << ' ' << from.days;
        }
        ASSERT_EQ(DateAdd("ww", count, from), DateAdd("d", 7 * count, from));
    }
}

}  // namespace
}  // namespace magpie
