#include "platform/runtime/checked.h"

#include <cfenv>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <optional>
#include <random>

#include "tests/unit/runtime/failure_of.h"

namespace magpie {
namespace {

using Byte = Checked<std::uint8_t>;
using Int16 = Checked<std::int16_t>;
using Int32 = Checked<std::int32_t>;

constexpr double inf = std::numeric_limits<double>::infinity();

// No result means Failure 6.
struct Rounding {
    double number;
    std::optional<int> byte, int16, int32;
};

TEST(Rounding, TakesHalvesToTheEvenNeighbourAndRaisesSixOutsideTheWidth) {
    const Rounding table[] = {
        {0, 0, 0, 0},
        {-0.0, 0, 0, 0},
        {0.5, 0, 0, 0},
        {0.50000000000000011, 1, 1, 1},
        {1.5, 2, 2, 2},
        {2.5, 2, 2, 2},
        {2.4999999999999996, 2, 2, 2},
        {-0.5, 0, 0, 0},
        {-0.6, {}, -1, -1},
        {-1.5, {}, -2, -2},
        {-2.5, {}, -2, -2},
        {255.49, 255, 255, 255},
        {255.5, {}, 256, 256},
        {254.5, 254, 254, 254},
        {32767.49, {}, 32767, 32767},
        {32767.5, {}, {}, 32768},
        {-32768.5, {}, -32768, -32768},
        {-32768.51, {}, {}, -32769},
        {2147483647.49, {}, {}, 2147483647},
        {2147483647.5, {}, {}, {}},
        {-2147483648.5, {}, {}, std::numeric_limits<int>::min()},
        {-2147483648.51, {}, {}, {}},
        {1e300, {}, {}, {}},
        {inf, {}, {}, {}},
        {-inf, {}, {}, {}},
        {std::nan(""), {}, {}, {}},
    };
    const auto expect = [](double number, std::optional<int> expected, auto round) {
        if (expected) {
            EXPECT_EQ(int{round(number)}, *expected) << number;
        } else {
            EXPECT_EQ(failureOf([&] { return round(number); }), failure::overflow) << number;
        }
    };
    for (const Rounding& row : table) {
        expect(row.number, row.byte, [](double number) { return toByte(number); });
        expect(row.number, row.int16, [](double number) { return toInt16(number); });
        expect(row.number, row.int32, [](double number) { return toInt32(number); });
    }
}

TEST(Rounding, AgreesWithTheProcessorInItsUsualMode) {
    ASSERT_EQ(std::fegetround(), FE_TONEAREST);
    std::mt19937 random(1);
    std::uniform_int_distribution<int> eighths(-8 * 32767, 8 * 32767);
    for (int i = 0; i < 100'000; ++i) {
        const double number = eighths(random) / 8.0;
        ASSERT_EQ(toInt32(number), std::nearbyint(number)) << number;
    }
}

TEST(Checked, RaisesSixWhereTheExpressionLeavesItsWidthEvenIntoAWiderTarget) {
    const Int16 big = 30000;
    EXPECT_EQ(failureOf([&] { return Int32(big + big); }), failure::overflow);
    EXPECT_EQ(Int32(big) + big, 60000);
    EXPECT_EQ(big + Int32(big), 60000);
    EXPECT_EQ(failureOf([&] { return big * 2; }), failure::overflow);
    EXPECT_EQ(failureOf([&] { return -big - big; }), failure::overflow);
    EXPECT_EQ(failureOf([&] { return Byte(3) - Byte(4); }), failure::overflow);
    EXPECT_EQ(Byte(3) - Int16(4), -1);
    EXPECT_EQ(failureOf([&] { return -Int16(-32768); }), failure::overflow);
}

TEST(Checked, LeavesTheNumberAloneWhenAnUpdateFails) {
    Int16 number = 32767;
    EXPECT_EQ(failureOf([&] { return ++number; }), failure::overflow);
    EXPECT_EQ(failureOf([&] { return number++; }), failure::overflow);
    EXPECT_EQ(failureOf([&] { return number += 1; }), failure::overflow);
    EXPECT_EQ(failureOf([&] { return number *= 2; }), failure::overflow);
    EXPECT_EQ(number, 32767);
    number = -32768;
    EXPECT_EQ(failureOf([&] { return --number; }), failure::overflow);
    EXPECT_EQ(failureOf([&] { return number--; }), failure::overflow);
    EXPECT_EQ(failureOf([&] { return number -= 1; }), failure::overflow);
    EXPECT_EQ(failureOf([&] { return number = 1e9; }), failure::overflow);
    EXPECT_EQ(number, -32768);
}

TEST(Checked, CountsAndComparesLikeANumber) {
    Int32 number;
    EXPECT_EQ(number, 0);
    EXPECT_EQ(number++, 0);
    EXPECT_EQ(++number, 2);
    EXPECT_EQ(number--, 2);
    EXPECT_EQ(--number, 0);
    number += 10;
    number -= Int16(4);
    number *= Byte(7);
    EXPECT_EQ(number, 42);
    EXPECT_TRUE(number > Int16(41) && Int16(41) < number && number <= 42 && number != Byte(41));
    EXPECT_EQ(100 - number, 58);
    EXPECT_EQ(2 + number, 44);
    EXPECT_EQ(2 * number, 84);
    const int table[3] = {1, 2, 3};
    EXPECT_EQ(table[Int16(2)], 3);
}

TEST(Checked, ChecksEveryConversionIntoIt) {
    EXPECT_EQ(failureOf([] { return Int16(32768); }), failure::overflow);
    EXPECT_EQ(failureOf([] { return Int16(-32769); }), failure::overflow);
    EXPECT_EQ(failureOf([] { return Byte(-1); }), failure::overflow);
    EXPECT_EQ(failureOf([] { return Byte(256); }), failure::overflow);
    EXPECT_EQ(failureOf([] { return Byte(Int32(256)); }), failure::overflow);
    EXPECT_EQ(failureOf([] { return Int32(std::uint64_t{1} << 63); }), failure::overflow);
    EXPECT_EQ(failureOf([] { return Int32(4294967295U); }), failure::overflow);
    EXPECT_EQ(Int16(2.5), 2);
    EXPECT_EQ(Byte(255.4F), 255);
    EXPECT_EQ(Int16(Int32(-32768)), -32768);
}

template <class T>
void expectExactOrFailing(std::mt19937& random) {
    using Limits = std::numeric_limits<T>;
    std::uniform_int_distribution<std::int64_t> anywhere(Limits::min(), Limits::max());
    std::uniform_int_distribution<int> nearAnEnd(0, 20);
    std::bernoulli_distribution coin;
    const auto pick = [&]() -> std::int64_t {
        if (coin(random)) return anywhere(random);
        return coin(random) ? Limits::min() + nearAnEnd(random) : Limits::max() - nearAnEnd(random);
    };
    const auto expect = [](std::int64_t exact, auto compute) {
        std::int64_t computed = 0;
        const int failed = failureOf([&] { return computed = compute().value(); });
        if (exact < Limits::min() || exact > Limits::max()) {
            ASSERT_EQ(failed, failure::overflow) << exact;
        } else {
            ASSERT_EQ(failed, 0) << exact;
            ASSERT_EQ(computed, exact);
        }
    };
    for (int i = 0; i < 20'000; ++i) {
        const std::int64_t a = pick(), b = pick();
        const Checked<T> x = a, y = b;
        expect(a + b, [&] { return x + y; });
        expect(a - b, [&] { return x - y; });
        expect(a * b, [&] { return x * y; });
        expect(-a, [&] { return -x; });
    }
}

TEST(Checked, IsExactOrRaisesSixWhateverTheOperands) {
    std::mt19937 random(2);
    expectExactOrFailing<std::uint8_t>(random);
    expectExactOrFailing<std::int16_t>(random);
    expectExactOrFailing<std::int32_t>(random);
}

TEST(Word, IsMinusOneOrZeroAndReadsAnyOtherNumberAsTrue) {
    EXPECT_EQ(word(true), -1);
    EXPECT_EQ(word(false), 0);
    EXPECT_TRUE(isTrue(-1));
    EXPECT_TRUE(isTrue(1));
    EXPECT_TRUE(isTrue(-32768));
    EXPECT_FALSE(isTrue(0));
}

}  // namespace
}  // namespace magpie
