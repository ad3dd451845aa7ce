#include "platform/runtime/letter_case.h"

#include <gtest/gtest.h>
#include <random>
#include <string>

namespace magpie {
namespace {

using namespace std::string_view_literals;

// The letters of the code page with a capital, and those capitals, in the same order.
constexpr std::string_view smallLetters =
    "abcdefghijklmnopqrstuvwxyz\x9A\x9C\x9E\xFF"
    "\xE0\xE1\xE2\xE3\xE4\xE5\xE6\xE7\xE8\xE9\xEA\xEB\xEC\xED\xEE\xEF"
    "\xF0\xF1\xF2\xF3\xF4\xF5\xF6\xF8\xF9\xFA\xFB\xFC\xFD\xFE";
constexpr std::string_view capitalLetters =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZ\x8A\x8C\x8E\x9F"
    "\xC0\xC1\xC2\xC3\xC4\xC5\xC6\xC7\xC8\xC9\xCA\xCB\xCC\xCD\xCE\xCF"
    "\xD0\xD1\xD2\xD3\xD4\xD5\xD6\xD8\xD9\xDA\xDB\xDC\xDD\xDE";

TEST(UpperCase, TurnsSmallLettersToCapitalsAndLeavesEveryOtherByte) {
    static_assert(smallLetters.size() == capitalLetters.size());
    for (int byte = 0; byte < 256; ++byte) {
        const char c = static_cast<char>(byte);
        const std::size_t at = smallLetters.find(c);
        EXPECT_EQ(upperCase(c), at == std::string_view::npos ? c : capitalLetters[at]) << byte;
    }
    EXPECT_EQ(upperCase("Plan \xE4\xF7\xDF\0z"sv), "PLAN \xC4\xF7\xDF\0Z"sv);
    EXPECT_EQ(upperCase(""sv), "");
}

TEST(UpperCase, ReusesTheStringItWritesInto) {
    std::string into = "something long that was here before";
    upperCaseInto(into, "ab");
    EXPECT_EQ(into, "AB");
}

TEST(CompareIgnoringCase, OrdersByCapitals) {
    EXPECT_EQ(compareIgnoringCase("", ""), 0);
    EXPECT_EQ(compareIgnoringCase("abc", "ABC"), 0);
    EXPECT_EQ(compareIgnoringCase("\xE4", "\xC4"), 0);
    EXPECT_LT(compareIgnoringCase("a", "B"), 0);
    EXPECT_GT(compareIgnoringCase("b", "A"), 0);
    EXPECT_LT(compareIgnoringCase("ab", "ABC"), 0);
    EXPECT_GT(compareIgnoringCase("abc", "AB"), 0);
    EXPECT_LT(compareIgnoringCase("", "a"), 0);
    // Between the capitals and the small letters of the table stands "_".
    EXPECT_LT(compareIgnoringCase("z", "_"), 0);
    // Bytes are unsigned.
    EXPECT_LT(compareIgnoringCase("z", "\xC4"), 0);
}

TEST(CompareIgnoringCase, IsTheOrderOfTheCapitalTexts) {
    std::mt19937 random(7);
    std::uniform_int_distribution<int> length(0, 4), letter(0, 5);
    const auto pick = [&] {
        std::string text(static_cast<std::size_t>(length(random)), ' ');
        for (char& c : text) c = "aAb_\xE4\xC4"[letter(random)];
        return text;
    };
    const auto sign = [](int number) { return (number > 0) - (number < 0); };
    for (int i = 0; i < 20'000; ++i) {
        const std::string a = pick(), b = pick();
        ASSERT_EQ(sign(compareIgnoringCase(a, b)), sign(upperCase(a).compare(upperCase(b))))
            << a << ' ' << b;
        ASSERT_EQ(equalIgnoringCase(a, b), upperCase(a) == upperCase(b));
    }
}

}  // namespace
}  // namespace magpie
