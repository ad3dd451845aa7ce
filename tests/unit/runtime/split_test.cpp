#include "platform/runtime/split.h"

#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <random>
#include <string>

namespace magpie {
namespace {

using namespace std::string_view_literals;
using Parts = std::vector<std::string_view>;

TEST(Split, FindsThePartsBetweenSeparators) {
    struct Row {
        std::string_view text;
        Parts parts;
    };
    const Row table[] = {
        {"", {}},
        {"a", {"a"}},
        {"\x05", {"", ""}},
        {"a\x05", {"a", ""}},
        {"\x05"
         "a",
         {"", "a"}},
        {"a\x05\x05"
         "b",
         {"a", "", "b"}},
        {"url\x05name\x05"
         "8E53EC00",
         {"url", "name", "8E53EC00"}},
        {"a\0b\x05\0"sv, {"a\0b"sv, "\0"sv}},
        {" a \x05 ", {" a ", " "}},
    };
    for (const Row& row : table) EXPECT_EQ(split(row.text, '\x05'), row.parts) << row.text;
}

TEST(Split, TakesABytePastAsciiAsSeparator) {
    EXPECT_EQ(split("a\xFF"
                    "b",
                    '\xFF'),
              (Parts{"a", "b"}));
    EXPECT_EQ(split("a\0b"sv, '\0'), (Parts{"a", "b"}));
}

TEST(SplitInto, CountsAllPartsAndStoresThoseThatFit) {
    std::array<std::string_view, 3> parts{"x", "x", "x"};
    EXPECT_EQ(splitInto(parts, "a b", ' '), 2U);
    EXPECT_EQ(parts[0], "a");
    EXPECT_EQ(parts[1], "b");
    EXPECT_EQ(parts[2], "x");

    EXPECT_EQ(splitInto(parts, "1 2 3 4 5 ", ' '), 6U);
    EXPECT_EQ(parts[2], "3");

    EXPECT_EQ(splitInto(parts, "", ' '), 0U);
    EXPECT_EQ(parts[0], "1");
    EXPECT_EQ(splitInto({}, "a b", ' '), 2U);
}

TEST(Split, JoinsBackToTheText) {
    std::mt19937 random(6);
    std::uniform_int_distribution<int> length(1, 40), letter(0, 2);
    for (int i = 0; i < 5'000; ++i) {
        std::string text(static_cast<std::size_t>(length(random)), ' ');
        for (char& c : text) c = "+ab"[letter(random)];

        const Parts parts = split(text, '+');
        std::string joined;
        for (const std::string_view part : parts) {
            ASSERT_EQ(part.find('+'), std::string_view::npos);
            joined.append(part).append("+");
        }
        joined.pop_back();
        ASSERT_EQ(joined, text);

        std::array<std::string_view, 5> few;
        ASSERT_EQ(splitInto(few, text, '+'), parts.size());
        for (std::size_t at = 0; at < std::min(few.size(), parts.size()); ++at) {
            ASSERT_EQ(few[at], parts[at]);
        }
    }
}

TEST(TrimBlanks, TakesSpacesOffBothEndsAndNothingElse) {
    EXPECT_EQ(trimBlanks(""), "");
    EXPECT_EQ(trimBlanks("   "), "");
    EXPECT_EQ(trimBlanks(" a b "), "a b");
    EXPECT_EQ(trimBlanks("a"), "a");
    EXPECT_EQ(trimBlanks(" \ta\r\n "), "\ta\r\n");
    EXPECT_EQ(trimBlanks("\xA0 "), "\xA0");
}

}  // namespace
}  // namespace magpie
