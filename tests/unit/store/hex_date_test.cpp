#include "store/hex_date.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <gmock/gmock.h>
#include <limits>
#include <random>
#include <string>

#include "platform/runtime/number_text.h"
#include "platform/runtime/rounding.h"
#include "tests/unit/runtime/failure_of.h"

namespace magpie {
namespace {

struct Row {
    double date;
    const char* inFile;
    double readBack;
};

class CodecTable : public testing::TestWithParam<Row> {};

TEST_P(CodecTable, IsWrittenAndReadBack) {
    EXPECT_EQ(GetHexDate({GetParam().date}), GetParam().inFile);
    EXPECT_EQ(ConvertHexDate(GetParam().inFile).days, GetParam().readBack);
}

INSTANTIATE_TEST_SUITE_P(
    HexDate, CodecTable,
    testing::Values(Row{0, "0", 0}, Row{36404.3854166667, "8E34968D", 36404.38541},
                    Row{36435.6041666667, "8E53EC00", 36435.60416},
                    // The leading zero of the fraction is gone: one o'clock comes back as 09:59.
                    Row{36404.0416666667, "8E341046", 36404.4166},
                    // Seven characters: half past midnight is lost.
                    Row{36404.0208333333, "8E34823", 0},
                    // A short fraction makes a short field: six in the evening is lost.
                    Row{36404.75, "8E344B", 0}, Row{36404.385, "8E34181", 0},
                    // The last fraction that is lost for its zeros, and the first that is not.
                    Row{36404.04095999, "8E34FFF", 0}, Row{36404.04096001, "8E341000", 36404.4096},
                    // A fraction below the fifth digit spells a zero.
                    Row{36404.000001, "8E340", 0}, Row{36404.99999999, "8E341869F", 36404.99999}));

TEST(HexDate, MidnightExactlyHasNoSpelling) {
    for (const double day : {36404.0, 10000.0, 99999.0, 36404.00000000001, 36403.999999999996}) {
        EXPECT_EQ(failureOf([&] { (void)GetHexDate({day}); }), failure::typeMismatch) << day;
    }
}

// Dates whose text is not five digits, a point and a fraction are cut at the same characters.
TEST(HexDate, OtherTextsAreCutAtTheSameCharacters) {
    EXPECT_EQ(GetHexDate({1234.56789}), "4D21A85");      // 1234. and 6789
    EXPECT_EQ(GetHexDate({123456.78}), "30391");         // 12345 and .78, rounded
    EXPECT_EQ(GetHexDate({0.123456789}), "0DDD5");       // 0.123 and 56789
    EXPECT_EQ(GetHexDate({-5.1234}), "FFFFFFFB4");       // -5.12 and 4
    EXPECT_EQ(GetHexDate({-36404.75}), "FFFFF1C81");     // -3640 and .75 rounded: 1
    EXPECT_EQ(GetHexDate({100000.123456789}), "27100");  // 10000 and .1234 rounded: 0
}

TEST(HexDate, ATextWithoutASeventhCharacterFails) {
    for (const double date : {1.5, 123.25, 2.0, 1e-5, -1.5}) {
        EXPECT_EQ(failureOf([&] { (void)GetHexDate({date}); }), failure::typeMismatch) << date;
    }
}

TEST(HexDate, AnExponentInPlaceOfDigitsFails) {
    EXPECT_EQ(failureOf([] { (void)GetHexDate({1.5e15}); }), failure::typeMismatch);
    EXPECT_EQ(failureOf([] { (void)GetHexDate({1.25e-7}); }), failure::typeMismatch);
}

TEST(HexDate, ANumberThatIsNotFiniteOverflows) {
    const double infinite = std::numeric_limits<double>::infinity();
    EXPECT_EQ(failureOf([&] { (void)GetHexDate({infinite}); }), failure::overflow);
    EXPECT_EQ(failureOf([] { (void)GetHexDate({std::nan("")}); }), failure::overflow);
}

TEST(HexDate, AShortTextReadsAsNever) {
    for (const char* text : {"", "0", "Never", "8E34823", "zzzzzzz", "-------"}) {
        EXPECT_EQ(ConvertHexDate(text).days, 0) << text;
    }
}

TEST(HexDate, EightCharactersThatAreNotHexadecimalFail) {
    for (const char* text : {"Never ever", "8E34 968D", "8E34968G", "G E34968D", "-E34968D",
                             "+E34968D", "0x34968D", "8E34-68D", "&H34968D", "8E34.68D"}) {
        EXPECT_EQ(failureOf([&] { (void)ConvertHexDate(text); }), failure::typeMismatch) << text;
    }
}

TEST(HexDate, LowerCaseReadsAsUpperCase) {
    EXPECT_EQ(ConvertHexDate("8e53ec00").days, 36435.60416);
}

TEST(HexDate, WhatStandsBehindTheNinthCharacterIsNotRead) {
    EXPECT_EQ(ConvertHexDate("8E341869F!").days, 36404.99999);
    EXPECT_EQ(ConvertHexDate("8E341869F0123456789").days, 36404.99999);
}

TEST(HexDate, ALargeFractionReadsAsItsDecimalDigits) {
    EXPECT_EQ(ConvertHexDate("FFFFFFFFF").days, 65535.1048575);
    EXPECT_EQ(ConvertHexDate("00000000").days, 0);
    EXPECT_EQ(ConvertHexDate("8E340000A").days, 36404.10);
}

// The rules by their text steps, for comparison.
std::string byTheSteps(double date) {
    const std::string text = decimalText(date);
    const auto part = [&](std::size_t at) {
        return hexText(toInt32(numberOf(at < text.size() ? text.substr(at, 5) : std::string())));
    };
    return part(0) + part(6);
}

double readByTheSteps(const std::string& text) {
    if (text.size() < 8) return 0;
    return numberOf(std::to_string(hexOf(text.substr(0, 4))) + "." +
                    std::to_string(hexOf(text.substr(4, 5))));
}

void expectTheSteps(double date) {
    std::string steps;
    const int stepsFailure = failureOf([&] { steps = byTheSteps(date); });
    std::string spelled;
    EXPECT_EQ(failureOf([&] { spelled = GetHexDate({date}); }), stepsFailure) << date;
    EXPECT_EQ(spelled, steps) << date;
    EXPECT_EQ(ConvertHexDate(spelled).days, readByTheSteps(spelled)) << date;
}

TEST(HexDate, EverySecondOfADayIsSpelledByTheSteps) {
    for (int second = 1; second < 86400; second += 1) expectTheSteps(36404 + second / 86400.0);
}

TEST(HexDate, AnyDateIsSpelledByTheSteps) {
    std::mt19937_64 random(2);
    std::uniform_real_distribution<double> ordinary(9999, 100001);
    std::uniform_real_distribution<double> any(-700000, 3000000);
    for (int i = 0; i < 40000; ++i) {
        const double date = ordinary(random);
        expectTheSteps(date);
        expectTheSteps(any(random));
        // Short fractions, and numbers a hair beside them.
        const double tenPower = std::pow(10, 1 + i % 11);
        const double cut = std::round(date * tenPower) / tenPower;
        expectTheSteps(cut);
        expectTheSteps(std::nextafter(cut, 0));
        expectTheSteps(std::nextafter(cut, 200000));
    }
}

// Ties in the fifteenth digit exist: the fraction's last binary digit times a power of five.
TEST(HexDate, TiesInTheLastDigitAreSpelledByTheSteps) {
    for (int i = 1; i < 1 << 11; ++i) {
        expectTheSteps(36404 + i / 2048.0);
        expectTheSteps(12000 + i / 2048.0 + std::ldexp(1, -39));
    }
}

TEST(HexDate, ADateThatCameBackOnceComesBackTheSameWhenItsFractionIsLong) {
    std::mt19937_64 random(3);
    for (int i = 0; i < 20000; ++i) {
        const auto fraction = 10000 + random() % 90000;
        if (fraction % 10 == 0) continue;
        const double date = 36404 + static_cast<double>(fraction) / 100000;
        EXPECT_EQ(ConvertHexDate(GetHexDate({date})).days, date);
    }
}

TEST(HexDate, AnyBytesReadAsADateOrFail) {
    std::mt19937 random(4);
    for (int i = 0; i < 100000; ++i) {
        std::string text(random() % 14, '\0');
        for (char& byte : text) {
            byte = random() % 4 == 0 ? static_cast<char>(random() % 256)
                                     : "0123456789ABCDEF"[random() % 16];
        }
        double steps = 0;
        const int stepsFailure = failureOf([&] { steps = readByTheSteps(text); });
        double read = 0;
        EXPECT_EQ(failureOf([&] { read = ConvertHexDate(text).days; }), stepsFailure) << text;
        EXPECT_EQ(read, steps) << text;
    }
}

}  // namespace
}  // namespace magpie
