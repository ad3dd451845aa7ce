// NaiveCalendar: the days of the years 100 to 9999, found by walking through them one by one.
// The date functions are held against it.
#pragma once

#include <array>
#include <cstddef>
#include <vector>

namespace magpie {

struct NaiveDay {
    int number = 0;  // days since 30 December 1899
    int year = 100;
    int month = 1;
    int day = 1;
    int weekday = 0;  // 0 is Sunday
};

inline int naiveMonthLength(int year, int month) {
    constexpr std::array<int, 12> lengths{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const bool leap = year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
    return lengths[static_cast<std::size_t>(month - 1)] + (month == 2 && leap ? 1 : 0);
}

inline NaiveDay naiveDayAfter(NaiveDay day) {
    ++day.number;
    day.weekday = (day.weekday + 1) % 7;
    if (++day.day > naiveMonthLength(day.year, day.month)) {
        day.day = 1;
        if (++day.month > 12) {
            day.month = 1;
            ++day.year;
        }
    }
    return day;
}

// All days in order. Number and weekday are counted from 1 January of the year 100 and then
// moved so that 30 December 1899 is day 0 and the Saturday it was.
inline const std::vector<NaiveDay>& naiveDays() {
    static const std::vector<NaiveDay> days = [] {
        std::vector<NaiveDay> walked;
        walked.reserve(3'620'000);
        NaiveDay origin;
        for (NaiveDay day; day.year <= 9999; day = naiveDayAfter(day)) {
            if (day.year == 1899 && day.month == 12 && day.day == 30) origin = day;
            walked.push_back(day);
        }
        for (NaiveDay& day : walked) {
            day.number -= origin.number;
            day.weekday = (day.weekday - origin.weekday + 6 + 7) % 7;
        }
        return walked;
    }();
    return days;
}

inline const NaiveDay& naiveDay(int number) {
    return naiveDays()[static_cast<std::size_t>(number - naiveDays().front().number)];
}

}  // namespace magpie
