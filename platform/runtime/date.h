// Date: a moment of the calendar, to the second, as one number of days.
#pragma once

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/runtime/decimal_text.h"

namespace magpie {

// Days since midnight of 30 December 1899. The part before the point is the day and the part
// behind it the time of day, also in a negative number, where the time still counts forward: 1.25
// and -1.25 are both six in the morning, of 31 and of 29 December 1899. 0.25 and -0.25 are the
// same moment.
//
// The calendar reaches from the year 100 to the year 9999; each function below raises Failure 5
// for a date outside it, given or resulting. Each one rounds the date it is given to the whole
// second first, in the same way, so that what is counted is always what is shown; a rounded
// 24:00:00 is midnight of the next day.
struct Date {
    double days = 0;

    // The order of the numbers, which for dates before 1900 is not quite that of the moments.
    friend auto operator<=>(const Date&, const Date&) = default;
};

struct CivilTime {
    int year = 1899;
    int month = 12;  // 1 to 12
    int day = 30;    // 1 to 31
    int hour = 0;
    int minute = 0;
    int second = 0;

    friend bool operator==(const CivilTime&, const CivilTime&) = default;
};

[[nodiscard]] CivilTime civilOf(Date date);

// Raises Failure 5 for a day that the calendar does not have or a time outside 00:00:00 to
// 23:59:59. A time on 30 December 1899 comes out positive.
[[nodiscard]] Date dateFromCivil(const CivilTime& civil);
[[nodiscard]] Date dateFromCivil(int year, int month, int day, int hour = 0, int minute = 0,
                                 int second = 0);

// The units of the next two: "d" days, "ww" weeks, "m" months. Any other raises Failure 5.

// The date `count` units later, earlier if negative; the time of day is kept. A day that the
// month arrived at does not have becomes the last day of that month.
[[nodiscard]] Date DateAdd(std::string_view unit, std::int32_t count, Date date);

// How many boundaries lie between a and b, negative where b is before a: midnights for "d",
// beginnings of a Sunday for "ww", beginnings of a month for "m". It is not a length of time: from
// 23:59 to 00:01 is a day.
[[nodiscard]] std::int32_t DateDiff(std::string_view unit, Date a, Date b);

// The one text form of a date, "yyyy-mm-dd hh:mm:ss", for every date: "1999-10-02 14:30:00", and
// "1899-12-30 00:00:00" for zero.
[[nodiscard]] std::string dateText(Date date);

// The same without allocating. The answer is a view into the buffer.
std::string_view dateText(Date date, NumberBuffer& buffer);

// Reads what dateText writes, spaces around it allowed, and raises Failure 13 for anything else.
// The date read back from a text is the date written, rounded to the second.
[[nodiscard]] Date readDateText(std::string_view text);

// The same, but answers nothing for a text that is no date.
[[nodiscard]] std::optional<Date> dateIfText(std::string_view text);

}  // namespace magpie
