#include <chrono>
#include <gtest/gtest.h>

#include "platform/api/kernel32.h"

using namespace win;

namespace {

SYSTEMTIME localTime() {
    SYSTEMTIME time{};
    GetLocalTime(&time);
    return time;
}

std::chrono::year_month_day dateOf(const SYSTEMTIME& time) {
    return {std::chrono::year(time.wYear), std::chrono::month(time.wMonth),
            std::chrono::day(time.wDay)};
}

std::chrono::milliseconds momentOf(const SYSTEMTIME& time) {
    using namespace std::chrono;
    return local_days(dateOf(time)).time_since_epoch() + hours(time.wHour) + minutes(time.wMinute) +
           seconds(time.wSecond) + milliseconds(time.wMilliseconds);
}

TEST(Clock, TellsATimeOfTheCalendar) {
    const SYSTEMTIME time = localTime();
    EXPECT_TRUE(dateOf(time).ok());
    EXPECT_GT(time.wYear, 2000);
    EXPECT_LT(time.wHour, 24);
    EXPECT_LT(time.wMinute, 60);
    EXPECT_LT(time.wSecond, 60);
    EXPECT_LT(time.wMilliseconds, 1000);
}

TEST(Clock, CountsTheDaysOfTheWeekFromSunday) {
    const SYSTEMTIME time = localTime();
    const std::chrono::weekday day{std::chrono::local_days(dateOf(time))};
    EXPECT_EQ(time.wDayOfWeek, day.c_encoding());
}

TEST(Clock, SleepLetsTheTimePass) {
    using namespace std::chrono_literals;
    const auto before = momentOf(localTime());
    Sleep(60);
    const auto passed = momentOf(localTime()) - before;
    EXPECT_GE(passed, 50ms);
    EXPECT_LT(passed, 20s);
}

}  // namespace
