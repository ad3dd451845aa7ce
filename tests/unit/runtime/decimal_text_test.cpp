#include "platform/runtime/decimal_text.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdio>
#include <gtest/gtest.h>
#include <limits>
#include <random>

#include "platform/runtime/number_text.h"
#include "tests/unit/runtime/failure_of.h"

namespace magpie {
namespace {

TEST(DecimalText, PrintsUpToFifteenDigitsAndNoneForNothing) {
    struct Row {
        double number;
        std::string_view text;
    };
    const Row table[] = {
        {0, "0"},
        {-0.0, "0"},
        {36435.0 + 14.5 / 24, "36435.6041666667"},
        {36404.0 + 9.25 / 24, "36404.3854166667"},
        {36404.0 + 1.0 / 24, "36404.0416666667"},
        {36404.0 + 0.5 / 24, "36404.0208333333"},
        {36404.75, "36404.75"},
        {36404, "36404"},
        {36404.385, "36404.385"},
        {0.5, "0.5"},
        {-0.5, "-0.5"},
        {-36404.25, "-36404.25"},
        {0.1 + 0.2, "0.3"},
        {1.0 / 3, "0.333333333333333"},
        {2.0 / 3, "0.666666666666667"},
        {0.9999999999999999, "1"},
        {-0.9999999999999999, "-1"},
        {999999999999999, "999999999999999"},
        {-999999999999999, "-999999999999999"},
        {999999999999999.5, "1E+15"},
        {1e15, "1E+15"},
        {-1.5e15, "-1.5E+15"},
        {1e100, "1E+100"},
        {0.0001, "0.0001"},
        {0.00012345, "0.00012345"},
        {0.00001, "1E-05"},
        {-2.5e-300, "-2.5E-300"},
        {std::numeric_limits<double>::denorm_min(), "4.94065645841247E-324"},
        {-std::numeric_limits<double>::max(), "-1.79769313486232E+308"},
    };
    for (const Row& row : table) EXPECT_EQ(decimalText(row.number), row.text);
}

TEST(DecimalText, RaisesSixForWhatIsNotFinite) {
    constexpr double inf = std::numeric_limits<double>::infinity();
    EXPECT_EQ(failureOf([] { return decimalText(inf); }), failure::overflow);
    EXPECT_EQ(failureOf([] { return decimalText(-inf); }), failure::overflow);
    EXPECT_EQ(failureOf([] { return decimalText(std::nan("")); }), failure::overflow);
}

std::string printedByTheLibrary(double number) {
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "%.15g", number);
    std::string printed = text.data();
    std::replace(printed.begin(), printed.end(), 'e', 'E');
    return printed;
}

TEST(DecimalText, PrintsWhatTheLibraryPrintsWithFifteenDigits) {
    std::mt19937_64 random(4);
    std::uniform_real_distribution<double> dates(-100'000, 100'000);
    std::uniform_int_distribution<int> seconds(0, 86'399);
    NumberBuffer buffer;
    for (int i = 0; i < 100'000; ++i) {
        const double anyBits = std::bit_cast<double>(random());
        const double moment = std::floor(dates(random)) + seconds(random) / 86400.0;
        for (const double number : {anyBits, dates(random), moment, moment / 1e9}) {
            if (!std::isfinite(number) || number == 0) continue;
            ASSERT_EQ(decimalText(number, buffer), printedByTheLibrary(number));
        }
    }
}

TEST(DecimalText, ReadsBackAsTheSameNumberOfFiveFractionDigits) {
    for (int hundredThousandths = 0; hundredThousandths < 100'000; ++hundredThousandths) {
        const double number = (3'640'400'000.0 + hundredThousandths) / 100'000;
        ASSERT_EQ(numberOf(decimalText(number)), number);
    }
}

TEST(IntegerText, PrintsPlainDecimal) {
    EXPECT_EQ(integerText(0), "0");
    EXPECT_EQ(integerText(-1), "-1");
    EXPECT_EQ(integerText(2147483647), "2147483647");
    EXPECT_EQ(integerText(std::numeric_limits<std::int32_t>::min()), "-2147483648");
    NumberBuffer buffer;
    EXPECT_EQ(integerText(-407, buffer), "-407");
}

TEST(HexText, PrintsCapitalsWithoutLeadingZeros) {
    EXPECT_EQ(hexText(0), "0");
    EXPECT_EQ(hexText(36435), "8E53");
    EXPECT_EQ(hexText(std::uint32_t{60416}), "EC00");
    EXPECT_EQ(hexText(-1), "FFFFFFFF");
    EXPECT_EQ(hexText(std::uint32_t{0xABCDEF09}), "ABCDEF09");
    NumberBuffer buffer;
    EXPECT_EQ(hexText(std::uint32_t{0x1F}, buffer), "1F");
}

TEST(HexText, ReadsBack) {
    std::mt19937 random(5);
    for (int i = 0; i < 10'000; ++i) {
        const auto number = static_cast<std::uint32_t>(random() >> (i % 32));
        ASSERT_EQ(hexOf(hexText(number)), number);
    }
}

}  // namespace
}  // namespace magpie
