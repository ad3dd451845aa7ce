#include "platform/runtime/date.h"

#include <chrono>
#include <cmath>

#include "platform/runtime/failure.h"

namespace magpie {

namespace {

constexpr int secondsPerDay = 24 * 60 * 60;

// Whole days since 30 December 1899.
constexpr int dayNumber(const std::chrono::year_month_day& day) {
    using std::chrono::local_days;
    constexpr local_days origin{std::chrono::year{1899} / 12 / 30};
    return static_cast<int>((local_days{day} - origin).count());
}

constexpr int firstDay = dayNumber(std::chrono::year{100} / 1 / 1);
constexpr int lastDay = dayNumber(std::chrono::year{9999} / 12 / 31);

struct Moment {
    int day = 0;     // dayNumber
    int second = 0;  // of the day, 0 to 86,399
};

// The one place where a date is rounded to the second.
Moment momentOf(Date date) {
    // Written so that a NaN fails it too. The first day's times are below its number.
    if (!(date.days > firstDay - 1 && date.days < lastDay + 1)) {
        throw Failure{failure::invalidCall};
    }
    const double whole = std::trunc(date.days);
    const double time = std::abs(date.days - whole);
    Moment moment{static_cast<int>(whole),
                  static_cast<int>(std::floor(time * secondsPerDay + 0.5))};
    if (moment.second == secondsPerDay) {
        moment.second = 0;
        if (++moment.day > lastDay) throw Failure{failure::invalidCall};
    }
    return moment;
}

Date dateOf(std::int64_t day, int second) {
    if (day < firstDay || day > lastDay) throw Failure{failure::invalidCall};
    const double time = static_cast<double>(second) / secondsPerDay;
    const auto whole = static_cast<double>(day);
    return Date{day < 0 ? whole - time : whole + time};
}

std::chrono::year_month_day calendarDayOf(int day) {
    constexpr std::chrono::local_days origin{std::chrono::year{1899} / 12 / 30};
    return std::chrono::year_month_day{origin + std::chrono::days{day}};
}

// Months since the beginning of the year 0.
int monthNumber(const std::chrono::year_month_day& day) {
    return static_cast<int>(day.year()) * 12 +
           static_cast<int>(static_cast<unsigned>(day.month())) - 1;
}

// Weeks since the Sunday of 31 December 1899, which was day 1.
int weekNumber(int day) {
    const int sinceSunday = day - 1;
    return sinceSunday >= 0 ? sinceSunday / 7 : -((6 - sinceSunday) / 7);
}

Date addMonths(std::int32_t count, Moment from) {
    using namespace std::chrono;
    const year_month_day day = calendarDayOf(from.day);
    const std::int64_t target = std::int64_t{monthNumber(day)} + count;
    const std::int64_t targetYear = target / 12;
    if (target < 0 || targetYear < 100 || targetYear > 9999) throw Failure{failure::invalidCall};
    const year_month month = year{static_cast<int>(targetYear)} /
                             std::chrono::month{static_cast<unsigned>(target % 12) + 1};
    year_month_day arrived = month / day.day();
    if (!arrived.ok()) arrived = month / last;
    return dateOf(dayNumber(arrived), from.second);
}

}  // namespace

CivilTime civilOf(Date date) {
    const Moment moment = momentOf(date);
    const auto day = calendarDayOf(moment.day);
    return {static_cast<int>(day.year()),
            static_cast<int>(static_cast<unsigned>(day.month())),
            static_cast<int>(static_cast<unsigned>(day.day())),
            moment.second / 3600,
            moment.second / 60 % 60,
            moment.second % 60};
}

Date dateFromCivil(const CivilTime& civil) {
    const auto within = [](int number, int low, int high) {
        return number >= low && number <= high;
    };
    // The calendar's own numbers wrap around, so what goes into them is bounded before.
    if (!within(civil.year, 100, 9999) || !within(civil.month, 1, 12) ||
        !within(civil.day, 1, 31) || !within(civil.hour, 0, 23) || !within(civil.minute, 0, 59) ||
        !within(civil.second, 0, 59)) {
        throw Failure{failure::invalidCall};
    }
    const auto day = std::chrono::year{civil.year} /
                     std::chrono::month{static_cast<unsigned>(civil.month)} /
                     std::chrono::day{static_cast<unsigned>(civil.day)};
    if (!day.ok()) throw Failure{failure::invalidCall};
    return dateOf(dayNumber(day), (civil.hour * 60 + civil.minute) * 60 + civil.second);
}

Date dateFromCivil(int year, int month, int day, int hour, int minute, int second) {
    return dateFromCivil(CivilTime{year, month, day, hour, minute, second});
}

Date DateAdd(std::string_view unit, std::int32_t count, Date date) {
    const Moment moment = momentOf(date);
    if (unit == "d") return dateOf(std::int64_t{moment.day} + count, moment.second);
    if (unit == "ww") return dateOf(moment.day + std::int64_t{count} * 7, moment.second);
    if (unit == "m") return addMonths(count, moment);
    throw Failure{failure::invalidCall};
}

std::int32_t DateDiff(std::string_view unit, Date a, Date b) {
    const int from = momentOf(a).day;
    const int to = momentOf(b).day;
    if (unit == "d") return to - from;
    if (unit == "ww") return weekNumber(to) - weekNumber(from);
    if (unit == "m") return monthNumber(calendarDayOf(to)) - monthNumber(calendarDayOf(from));
    throw Failure{failure::invalidCall};
}

}  // namespace magpie
