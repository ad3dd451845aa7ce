#include "platform/runtime/number_text.h"

#include <array>
#include <bit>
#include <cmath>
#include <cstdio>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <string>

#include "tests/unit/runtime/failure_of.h"

namespace magpie {
namespace {

using namespace std::string_view_literals;

TEST(NumberOf, ReadsWhatSpellsANumber) {
    struct Row {
        std::string_view text;
        double number;
    };
    const Row table[] = {
        {"0", 0},
        {"36435", 36435},
        {"36404.38541", 36404.38541},
        {" \t\r\n12\n\r\t ", 12},
        {"+7", 7},
        {"-7.25", -7.25},
        {".5", 0.5},
        {"5.", 5},
        {"-.5", -0.5},
        {"007", 7},
        {"1e3", 1000},
        {"1E+3", 1000},
        {"25e-1", 2.5},
        {"1.7976931348623157E308", std::numeric_limits<double>::max()},
        {"&H0", 0},
        {"&H1F", 31},
        {"&h1f", 31},
        {" &H1F ", 31},
        {"&H7FFF", 32767},
        {"&H8000", -32768},
        {"&HFFFF", -1},
        {"&H0000FFFF", -1},
        {"&H10000", 65536},
        {"&H8000000F", -2147483633.0},
        {"&HFFFFFFFF", -1},
        {"1e-400", 0},
        {"-0.00000001e-400", 0},
        {"1e-99999999999999999999", 0},
        {"0e99999999999999999999", 0},
        {"0e999", 0},
    };
    for (const Row& row : table) EXPECT_EQ(numberOf(row.text), row.number) << row.text;
}

TEST(NumberOf, RaisesThirteenForWhatSpellsNone) {
    const std::string_view table[] = {
        "",     " ",   "abc",   "1a",   "a1",    "1 2",  "- 1",   "--1",   "+-1",
        "1-",   ".",   "-",     "+",    "-.",    "1..2", "1.2.3", "1,5",   "1,000",
        "e5",   ".e5", "1e",    "1e+",  "1e1.5", "1e 5", "inf",   "nan",   "-inf",
        "0x1F", "&H",  "&HG",   "&H-1", "-&H1",  "&1",   "1&H",   "& H1",  "infinity",
        "1d5",  "\v1", "1\0"sv, "\0"sv, "1\x05", "True", "\xB2",  "&H1 F", "1e5e5",
    };
    for (const std::string_view text : table) {
        EXPECT_EQ(failureOf([&] { return numberOf(text); }), failure::typeMismatch) << text;
    }
}

TEST(NumberOf, RaisesSixForWhatNoDoubleHolds) {
    const std::string table[] = {
        "1e309",
        "-1e309",
        "0.0001e400",
        "1.8e308",
        "1e99999999999999999999",
        "&H100000000",
        std::string(400, '9'),
        std::string(400, '9') + "e-10",
        "0." + std::string(400, '0') + "1e900",
    };
    for (const std::string& text : table) {
        EXPECT_EQ(failureOf([&] { return numberOf(text); }), failure::overflow) << text;
    }
    EXPECT_EQ(numberOf(std::string(400, '0')), 0);
    EXPECT_EQ(numberOf("0." + std::string(400, '0') + "1"), 0);
    EXPECT_EQ(numberOf(std::string(400, '0') + "1e-400"), 0);
}

TEST(NumberOf, ReadsBackEveryDoublePrintedInFull) {
    std::mt19937_64 random(3);
    for (int i = 0; i < 20'000; ++i) {
        const double number = std::bit_cast<double>(random());
        if (!std::isfinite(number)) continue;
        std::array<char, 64> text{};
        std::snprintf(text.data(), text.size(), "%.17g", number);
        ASSERT_EQ(numberOf(text.data()), number) << text.data();
    }
}

TEST(IntegersOfText, RoundHalvesToEvenAndRaiseSixOutsideTheWidth) {
    EXPECT_EQ(byteOf("255"), 255);
    EXPECT_EQ(byteOf("0.5"), 0);
    EXPECT_EQ(byteOf("1.5"), 2);
    EXPECT_EQ(int16Of("-32768"), -32768);
    EXPECT_EQ(int16Of("&HFFFF"), -1);
    EXPECT_EQ(int32Of("2147483647"), 2147483647);
    EXPECT_EQ(int32Of("-2.5"), -2);
    EXPECT_EQ(failureOf([] { return byteOf("-1"); }), failure::overflow);
    EXPECT_EQ(failureOf([] { return byteOf("256"); }), failure::overflow);
    EXPECT_EQ(failureOf([] { return int16Of("32768"); }), failure::overflow);
    EXPECT_EQ(failureOf([] { return int16Of("-32769"); }), failure::overflow);
    EXPECT_EQ(failureOf([] { return int32Of("2147483648"); }), failure::overflow);
    EXPECT_EQ(failureOf([] { return int32Of("1e400"); }), failure::overflow);
    EXPECT_EQ(failureOf([] { return byteOf(""); }), failure::typeMismatch);
    EXPECT_EQ(failureOf([] { return int16Of("x"); }), failure::typeMismatch);
    EXPECT_EQ(failureOf([] { return int32Of("1 2"); }), failure::typeMismatch);
}

TEST(BoolOf, ReadsTheTwoWordsInAnyCaseAndNumbers) {
    for (const std::string_view text : {"True", "true", "TRUE", "tRuE", "1", "-1", " 2 ", "0.1"}) {
        EXPECT_TRUE(boolOf(text)) << text;
    }
    for (const std::string_view text : {"False", "false", "FALSE", "0", "-0", " 0.0 "}) {
        EXPECT_FALSE(boolOf(text)) << text;
    }
    for (const std::string_view text : {"", " ", "Tru", "Truee", " True", "yes", "T", "False "}) {
        EXPECT_EQ(failureOf([&] { return boolOf(text); }), failure::typeMismatch) << text;
    }
}

TEST(HexOf, ReadsUnsignedDigitsOnly) {
    EXPECT_EQ(hexOf("0"), 0U);
    EXPECT_EQ(hexOf("8E53"), 36435U);
    EXPECT_EQ(hexOf("8e53"), 36435U);
    EXPECT_EQ(hexOf("0EC00"), 60416U);
    EXPECT_EQ(hexOf("FFFF"), 65535U);
    EXPECT_EQ(hexOf("FFFFFFFF"), 4294967295U);
    EXPECT_EQ(hexOf("00000000000FFFFFFFF"), 4294967295U);
    for (const std::string_view text :
         {""sv, " "sv, "G"sv, "1G"sv, "-1"sv, "+1"sv, " 1"sv, "1 "sv, "0x1"sv, "&H1"sv, "1.2"sv,
          "FFFFFFFFFG"sv, "1\0"sv, "\xC0"sv}) {
        EXPECT_EQ(failureOf([&] { return hexOf(text); }), failure::typeMismatch) << text;
    }
    EXPECT_EQ(failureOf([] { return hexOf("100000000"); }), failure::overflow);
    EXPECT_EQ(failureOf([] { return hexOf("0FFFFFFFFF"); }), failure::overflow);
}

}  // namespace
}  // namespace magpie
