#include <cmath>
#include <gtest/gtest.h>
#include <random>
#include <string>

#include "platform/runtime/date.h"
#include "tests/unit/runtime/failure_of.h"
#include "tests/unit/runtime/naive_calendar.h"

namespace magpie {
namespace {

using namespace std::string_view_literals;

TEST(DateText, HasOneFormForEveryDate) {
    struct Row {
        double days;
        std::string_view text;
    };
    const Row table[] = {
        {0, "1899-12-30 00:00:00"},
        {-0.0, "1899-12-30 00:00:00"},
        {0.5, "1899-12-30 12:00:00"},
        {-1.25, "1899-12-29 06:00:00"},
        {36435 + 14.5 / 24, "1999-10-02 14:30:00"},
        {36404.38541, "1999-09-01 09:14:59"},
        {36404.99999999, "1999-09-02 00:00:00"},
        {-657'434, "0100-01-01 00:00:00"},
        {2'958'465 + 86399 / 86400.0, "9999-12-31 23:59:59"},
    };
    NumberBuffer buffer;
    for (const Row& row : table) {
        EXPECT_EQ(dateText(Date{row.days}), row.text);
        EXPECT_EQ(dateText(Date{row.days}, buffer), row.text);
    }
}

TEST(DateText, RaisesFiveOutsideTheCalendar) {
    for (const double days : {-657'435.0, 2'958'466.0, std::nan("")}) {
        EXPECT_EQ(failureOf([&] { return dateText(Date{days}); }), failure::invalidCall);
    }
}

TEST(ReadDateText, ReadsWhatDateTextWritesBetweenSpaces) {
    EXPECT_EQ(readDateText("1899-12-30 00:00:00"), Date{0});
    EXPECT_EQ(readDateText("  1999-09-01 18:00:00 "), Date{36404.75});
    EXPECT_EQ(readDateText("1899-12-29 06:00:00"), Date{-1.25});
}

TEST(ReadDateText, RaisesThirteenForAnythingElse) {
    for (const std::string_view text : {
             ""sv,
             " "sv,
             "Never"sv,
             "0"sv,
             "36404.75"sv,
             "1999-09-01"sv,
             "1999-09-01 18:00"sv,
             "1999-9-1 18:00:00"sv,
             "1999-09-01  18:00:00"sv,
             "1999-09-01T18:00:00"sv,
             "1999/09/01 18:00:00"sv,
             "1999-09-01 18.00.00"sv,
             "1999-09-01 18:00:00x"sv,
             "1999-09-01 18:00:00\n"sv,
             "1999-09-01 18:00:00\0"sv,
             "-999-09-01 18:00:00"sv,
             "1999-+9-01 18:00:00"sv,
             "1999-09-01 1a:00:00"sv,
             "1999-13-01 00:00:00"sv,
             "1999-00-01 00:00:00"sv,
             "1999-02-29 00:00:00"sv,
             "1999-09-00 00:00:00"sv,
             "1999-09-01 24:00:00"sv,
             "1999-09-01 00:60:00"sv,
             "1999-09-01 00:00:60"sv,
             "0099-12-31 00:00:00"sv,
         }) {
        EXPECT_EQ(failureOf([&] { return readDateText(text); }), failure::typeMismatch) << text;
        EXPECT_EQ(dateIfText(text), std::nullopt) << text;
    }
}

TEST(ReadDateText, RefusesEveryTextWithOneByteReplacedByNoDigit) {
    const std::string good = "2000-11-12 13:14:15";
    ASSERT_EQ(failureOf([&] { return readDateText(good); }), 0);
    for (std::size_t at = 0; at < good.size(); ++at) {
        for (int byte = 0; byte < 256; ++byte) {
            std::string text = good;
            text[at] = static_cast<char>(byte);
            if (text == good || (byte >= '0' && byte <= '9')) continue;
            ASSERT_EQ(failureOf([&] { return readDateText(text); }), failure::typeMismatch) << text;
        }
    }
}

TEST(ReadDateText, ReadsBackTheDateRoundedToTheSecond) {
    std::mt19937 random(11);
    std::uniform_real_distribution<double> timeOfDay(0, 1);
    for (const NaiveDay& day : naiveDays()) {
        if (day.year < 1899 || day.year > 2100) continue;
        for (int i = 0; i < 3; ++i) {
            const double time = timeOfDay(random);
            const Date date{day.number < 0 ? day.number - time : day.number + time};
            const Date back = readDateText(dateText(date));
            ASSERT_EQ(back, dateFromCivil(civilOf(date)));
            ASSERT_EQ(readDateText(dateText(back)), back);

            // Measured on a line where time runs forward on both sides of the origin.
            const double wholeBack = std::trunc(back.days);
            const double forwardBack = wholeBack + std::abs(back.days - wholeBack);
            ASSERT_NEAR(forwardBack, day.number + time, 0.5001 / 86400) << date.days;
        }
    }
}

}  // namespace
}  // namespace magpie
