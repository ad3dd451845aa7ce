#include "platform/runtime/pattern.h"

#include <gtest/gtest.h>
#include <optional>
#include <random>
#include <string>

#include "tests/unit/runtime/failure_of.h"

namespace magpie {
namespace {

using namespace std::string_view_literals;

// Both ways to match, which must agree. No answer means Failure 93.
std::optional<bool> match(std::string_view text, std::string_view pattern) {
    bool once = false;
    bool compiled = false;
    const int onceFailed = failureOf([&] { return once = matchesPattern(text, pattern); });
    const int compiledFailed = failureOf([&] { return compiled = Pattern(pattern).matches(text); });
    EXPECT_EQ(onceFailed, compiledFailed) << pattern;
    EXPECT_EQ(once, compiled) << '"' << text << "\" like \"" << pattern << '"';
    if (onceFailed == 0) return once;
    EXPECT_EQ(onceFailed, failure::invalidPattern) << pattern;
    return std::nullopt;
}

struct Row {
    std::string_view pattern;
    std::string_view text;
    bool matches;
};

template <std::size_t n>
void expectAll(const Row (&table)[n]) {
    for (const Row& row : table) {
        EXPECT_EQ(match(row.text, row.pattern), std::optional(row.matches))
            << '"' << row.text << "\" like \"" << row.pattern << '"';
    }
}

TEST(Pattern, MatchesTheWholeTextByteByByte) {
    const Row table[] = {
        {"", "", true},           {"", "a", false},
        {"a", "", false},         {"abc", "abc", true},
        {"abc", "abcd", false},   {"abcd", "abc", false},
        {"abc", "aBc", false},    {"\xC4", "\xC4", true},
        {"\xC4", "\xE4", false},  {"a\0b"sv, "a\0b"sv, true},
        {"a\0b"sv, "a"sv, false},
    };
    expectAll(table);
}

TEST(Pattern, TakesAnyByteAnyDigitAndAnyRun) {
    const Row table[] = {
        {"?", "", false},
        {"?", "a", true},
        {"?", "\xFF", true},
        {"?", "\0"sv, true},
        {"?", "ab", false},
        {"A?C", "ABC", true},
        {"A?C", "AC", false},
        {"#", "0", true},
        {"#", "9", true},
        {"#", "/", false},
        {"#", ":", false},
        {"#", "\xB2", false},
        {"#", "#", false},
        {"*", "", true},
        {"*", "anything", true},
        {"**", "", true},
        {"a*", "a", true},
        {"a*", "abc", true},
        {"a*", "ba", false},
        {"*c", "abc", true},
        {"*c", "abcd", false},
        {"*b*", "abc", true},
        {"*b*", "ac", false},
        {"*ab*", "aab", true},
        {"*aab", "aaab", true},
        {"a*b*c", "axxbyyc", true},
        {"a*b*c", "abbc", true},
        {"a*b*c", "acb", false},
        {"ab*ba", "aba", false},
        {"ab*ba", "abba", true},
        {"*a?c*", "xabcx", true},
        {"*a?c*", "xaabcx", true},
        {"*a?a*", "aaba", true},
        {"*##", "v10", true},
        {"*?", "", false},
        {"?*?", "a", false},
        {"?*?", "ab", true},
        {"*issip*ss*", "mississippi", false},
        {"*issip*pi", "mississippi", true},
        {"*PLAN*", "MY PLANS", true},
    };
    expectAll(table);
}

TEST(Pattern, TakesOneByteOfAList) {
    const Row table[] = {
        {"[abc]", "b", true},
        {"[abc]", "d", false},
        {"[abc]", "", false},
        {"[abc]", "ab", false},
        {"[a-c]", "b", true},
        {"[a-c]", "a", true},
        {"[a-c]", "c", true},
        {"[a-c]", "d", false},
        {"[a-c]", "-", false},
        {"[a-a]", "a", true},
        {"[a-cx-z]", "y", true},
        {"[a-cx-z]", "m", false},
        {"[!a-c]", "b", false},
        {"[!a-c]", "d", true},
        {"[!a-c]", "!", true},
        {"[!a-c]", "", false},
        {"[!]", "x", true},
        {"[!]", "", false},
        {"[a!]", "!", true},
        {"[a!]", "b", false},
        {"[!!]", "!", false},
        {"[!!]", "a", true},
        {"[\x80-\xFF]", "\xE4", true},
        {"[\x80-\xFF]", "a", false},
        {"[\x7F-\x81]", "\x80", true},
        {"[\x01-\xFF]", "\xFF", true},
        {"[\x01-\xFF]", "\0"sv, false},
        {"*[0-9]", "v7", true},
        {"[A-Z]*[!0-9]", "A7x", true},
        {"[A-Z]*[!0-9]", "A77", false},
    };
    expectAll(table);
}

TEST(Pattern, TakesTheDashAsItselfWhereItJoinsNothing) {
    const Row table[] = {
        {"[-a]", "-", true},    {"[-a]", "a", true},    {"[-a]", "b", false},
        {"[-]", "-", true},     {"[a-]", "-", true},    {"[a-]", "a", true},
        {"[a-]", "b", false},   {"[!-a]", "-", false},  {"[!-a]", "b", true},
        {"[!a-]", "-", false},  {"[a-c-e]", "-", true}, {"[a-c-e]", "d", false},
        {"[a-c-e]", "e", true}, {"[-a-c]", "b", true},  {"[-a-c]", "-", true},
        {"[--a]", "A", false},  {"[--a]", "-", true},   {"[+--]", ",", true},
        {"-", "-", true},       {"a-c", "b", false},
    };
    expectAll(table);
}

TEST(Pattern, TakesWildcardsInAListAndBracketsOutsideAsThemselves) {
    const Row table[] = {
        {"[?]", "?", true},       {"[?]", "a", false}, {"[*]", "*", true},   {"[*]", "", false},
        {"[#]", "#", true},       {"[#]", "1", false}, {"[[]", "[", true},   {"[[]", "a", false},
        {"a[[]b]", "a[b]", true}, {"]", "]", true},    {"a]b", "a]b", true}, {"!", "!", true},
        {"!a", "b", false},
    };
    expectAll(table);
}

TEST(Pattern, TakesTheEmptyListAsNothing) {
    const Row table[] = {
        {"[]", "", true},
        {"[]", "a", false},
        {"a[]b", "ab", true},
        {"[][][]a", "a", true},
        {"a[][]", "a", true},
        {"*[]", "abc", true},
        {"[]*[]b[]*[]", "abc", true},
        {"[]]", "]", true},
        {"[]a]", "a]", true},
    };
    expectAll(table);
}

TEST(Pattern, RaisesNinetyThreeWhateverTheTextIs) {
    for (const std::string_view pattern :
         {"[", "a[", "*[*", "[a", "[!", "[a-", "[]a[", "*[", "b[c-a]", "[z-a]", "[ab-az-y]",
          "[!b-a]", "[a--]", "[\xFF-\x01]", "[b-a][b-a", "xyz[9-0]*"}) {
        for (const std::string_view text : {"", "a", "b", "xyz", "xyz[9-0]"}) {
            EXPECT_EQ(match(text, pattern), std::nullopt) << pattern;
        }
    }
}

TEST(Pattern, MatchesManyTextsAfterOneReading) {
    const Pattern pattern("*[A-C]#*");
    EXPECT_TRUE(pattern.matches("XB7"));
    EXPECT_FALSE(pattern.matches("XD7"));
    EXPECT_TRUE(pattern.matches("A0"));
    EXPECT_FALSE(pattern.matches(""));
}

// Tries every run for every star; what stands in a list is found by a scan for each byte.
class NaiveMatcher {
public:
    static bool matches(std::string_view text, std::string_view pattern) {
        if (pattern.empty()) return text.empty();
        const char byte = pattern.front();
        const std::string_view rest = pattern.substr(1);
        if (byte == '*') {
            for (std::size_t run = 0; run <= text.size(); ++run) {
                if (matches(text.substr(run), rest)) return true;
            }
            return false;
        }
        if (byte == '[') {
            const std::size_t close = rest.find(']');
            const std::string_view list = rest.substr(0, close);
            const std::string_view behind = rest.substr(close + 1);
            if (list.empty()) return matches(text, behind);
            return !text.empty() && listHas(list, text.front()) && matches(text.substr(1), behind);
        }
        if (text.empty()) return false;
        const char found = text.front();
        const bool fits =
            byte == '?' || (byte == '#' ? found >= '0' && found <= '9' : byte == found);
        return fits && matches(text.substr(1), rest);
    }

    static bool isValid(std::string_view pattern) {
        for (;;) {
            const std::size_t open = pattern.find('[');
            if (open == std::string_view::npos) return true;
            const std::size_t close = pattern.find(']', open);
            if (close == std::string_view::npos) return false;
            std::string_view list = pattern.substr(open + 1, close - open - 1);
            if (list.starts_with('!')) list.remove_prefix(1);
            for (; !list.empty(); list = behindItem(list)) {
                if (isRange(list) && unsignedOf(list[0]) > unsignedOf(list[2])) return false;
            }
            pattern.remove_prefix(close + 1);
        }
    }

private:
    static unsigned unsignedOf(char byte) { return static_cast<unsigned char>(byte); }

    static bool isRange(std::string_view list) {
        return list.size() >= 3 && list[0] != '-' && list[1] == '-';
    }

    static std::string_view behindItem(std::string_view list) {
        return list.substr(isRange(list) ? 3 : 1);
    }

    static bool listHas(std::string_view list, char byte) {
        return list.starts_with('!') ? !hasItem(list.substr(1), byte) : hasItem(list, byte);
    }

    static bool hasItem(std::string_view list, char byte) {
        if (list.empty()) return false;
        const bool here = isRange(list) ? unsignedOf(byte) >= unsignedOf(list[0]) &&
                                              unsignedOf(byte) <= unsignedOf(list[2])
                                        : byte == list[0];
        return here || hasItem(behindItem(list), byte);
    }
};

TEST(Pattern, AgreesWithAMatcherThatTriesEverything) {
    std::mt19937 random(12);
    constexpr std::string_view patternBytes = "aab1**??#[[]]-!c\xE4";
    constexpr std::string_view textBytes = "aab1c-!]\xE4";
    std::uniform_int_distribution<std::size_t> patternLength(0, 9), textLength(0, 7);
    std::uniform_int_distribution<std::size_t> patternByte(0, patternBytes.size() - 1);
    std::uniform_int_distribution<std::size_t> textByte(0, textBytes.size() - 1);
    int valid = 0, matched = 0;
    for (int i = 0; i < 300'000; ++i) {
        std::string pattern(patternLength(random), ' '), text(textLength(random), ' ');
        for (char& byte : pattern) byte = patternBytes[patternByte(random)];
        for (char& byte : text) byte = textBytes[textByte(random)];

        const std::optional<bool> answer = match(text, pattern);
        ASSERT_EQ(answer.has_value(), NaiveMatcher::isValid(pattern)) << pattern;
        if (!answer) continue;
        ASSERT_EQ(*answer, NaiveMatcher::matches(text, pattern)) << text << " like " << pattern;
        ++valid;
        matched += *answer ? 1 : 0;
    }
    // The inputs are worth something only while both answers are frequent.
    EXPECT_GT(valid, 100'000);
    EXPECT_GT(matched, 10'000);
}

TEST(Pattern, StaysQuickUnderManyStars) {
    const std::string text(5'000, 'a');
    std::string pattern;
    for (int i = 0; i < 500; ++i) pattern += "*a";
    EXPECT_EQ(match(text, pattern), std::optional(true));
    EXPECT_EQ(match(text, pattern + "*b"), std::optional(false));
    EXPECT_EQ(match(text, pattern + "*b*"), std::optional(false));
    EXPECT_EQ(match(text, "*[a-b]?a" + pattern + "b"), std::optional(false));
}

}  // namespace
}  // namespace magpie
