#include "companion/import/shifted_japanese.h"

#include <gtest/gtest.h>
#include <string>

namespace magpie {
namespace {

TEST(ShiftedJapanese, BecomesShiftJis) {
    EXPECT_EQ(shiftJisOf("a\x1B$BF|K\\\x1B(Bb\x1B$@$\"\x1B(J~"),
              "a\x93\xFA\x96\x7B"
              "b\x82\xA0~");
    EXPECT_EQ(shiftJisOf("\x1B(I1\x1B(B1"),
              "\xB1"
              "1");
}

TEST(ShiftedJapanese, FirstAndLastLettersOfRows) {
    EXPECT_EQ(shiftJisOf("\x1B$B!!!_!`!~\"!\"~_!~~"),
              "\x81\x40\x81\x7E\x81\x80\x81\x9E\x81\x9F\x81\xFC"
              "\xE0\x40\xEF\xFC");
}

TEST(ShiftedJapanese, EachLineBeginsWithAscii) {
    EXPECT_EQ(shiftJisOf("\x1B$BF|\n<A>"), "\x93\xFA\n<A>");
}

TEST(ShiftedJapanese, WhatIsNoPairStays) {
    EXPECT_EQ(shiftJisOf("\x1B$BF"), "F");
    EXPECT_EQ(shiftJisOf("\x1B$BF |\x80"), "F |\x80");
    EXPECT_EQ(shiftJisOf("\x1B$"), "\x1B$");
}

TEST(ShiftedJapanese, IsKnownByItsFirstPairs) {
    EXPECT_TRUE(hasJapaneseShift("x\x1B(B\x1B$B"));
    EXPECT_TRUE(hasJapaneseShift("\x1B$@"));
    EXPECT_FALSE(hasJapaneseShift("\x1B(B\x1B[B\x1B$"));
}

}  // namespace
}  // namespace magpie
