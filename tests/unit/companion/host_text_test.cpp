#include "companion/import/host_text.h"

#include <gtest/gtest.h>
#include <string>

namespace magpie {
namespace {

using namespace std::string_literals;

struct Case {
    const char* name;
    std::string text;
    std::string expected;
};

auto nameOf = [](const auto& test) { return std::string(test.param.name); };

class WesternTitle : public testing::TestWithParam<Case> {};

TEST_P(WesternTitle, IsBroughtIntoTheCodePage) {
    EXPECT_EQ(HostText(1252).title(GetParam().text), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Table, WesternTitle,
    testing::Values(
        Case{"Empty", "", ""}, Case{"Ascii", "AT&T + more", "AT&T + more"},
        Case{"Accents", "\xC3\xA4\xC3\x96\xC3\xA9\xC3\x9F", "\xE4\xD6\xE9\xDF"},
        Case{"Typography", "\xE2\x80\x9Cx\xE2\x80\x9D \xE2\x80\x93 \xE2\x82\xAC \xE2\x84\xA2",
             "\x93x\x94 \x96 \x80 \x99"},
        Case{"NearestLetter", "\xC5\x81\xC3\xB3\x64\xC5\xBA", "L\xF3\x64z"},
        Case{"NearestOfTwoMarks", "\xE1\xBA\xA5", "\xE2"},
        Case{"NearestLetters", "\xEF\xAC\x81x \xE2\x85\xA3", "fix IV"},
        Case{"WideForms", "\xEF\xBC\xA1\xEF\xBC\x91\xE3\x80\x80\xEF\xBC\x8B", "A1 +"},
        Case{"MathematicalFaces", "\xF0\x9D\x93\x90\xF0\x9D\x93\xAB\xF0\x9D\x9F\x97", "Ab9"},
        Case{"NoNearLetter", "\xD0\x96\xE6\x97\xA5", "??"},
        Case{"Picture", "\xF0\x9F\x8E\x89 party", "? party"},
        Case{"PictureWithItsSelector", "\xE2\x9D\xA4\xEF\xB8\x8F", "?"},
        Case{"LetterAndMark", "Ame\xCC\x81lie", "Am\xE9lie"},
        Case{"LetterAndTwoMarks", "a\xCC\x82\xCC\x81", "\xE2"},
        Case{"LetterAndForeignMark", "x\xCC\x81", "x"},
        Case{"Unseen",
             "\xEF\xBB\xBF"
             "a\xE2\x80\x8B\xE2\x80\x8E"
             "b",
             "ab"},
        Case{"ControlCharacters",
             "a\tb\nc\x05"
             "d\0e"s,
             "a b c d e"},
        Case{"UpperControlCharacters",
             "a\xC2\x85"
             "b\x7F"
             "c",
             "a b c"},
        Case{"LineSeparators",
             "a\xE2\x80\xA8"
             "b",
             "a b"},
        Case{"BlanksAtTheEnds", " \x01 a b \n", "a b"},
        Case{"NoBreakSpace",
             "a\xC2\xA0"
             "b",
             "a\xA0"
             "b"},
        Case{"SoftHyphen", "a\xC2\xAD", "a\xAD"},
        Case{"Apostrophes", "Hawai\xCA\xBBi \xCA\xBF\xCA\xBE\xCA\xBD\xCB\x8A",
             "Hawai'i \x27\x27\x27\x27"},
        Case{"GreekMu", "\xCE\xBCs", "\xB5s"}, Case{"NearerOfTwoMarks", "\xE1\xBB\x87", "\xEA"},
        Case{"BrokenBytes",
             "a\xFF"
             "b\xC3",
             "a?b?"}),
    nameOf);

TEST(HostTitle, EveryCodePageHasItsOwnLetters) {
    const std::string text = "\xC5\x81 \xD0\x96 \xCE\xB1 \xC3\xA9";
    EXPECT_EQ(HostText(1250).title(text), "\xA3 ? ? \xE9");
    EXPECT_EQ(HostText(1251).title(text), "L \xC6 ? e");
    EXPECT_EQ(HostText(1253).title(text), "L ? \xE1 e");
    EXPECT_EQ(HostText(65001).title(text), text);
}

TEST(HostTitle, WhatACodePageHoldsIsKeptUnseenOrNot) {
    EXPECT_EQ(HostText(1256).title("\xD9\x85\xDB\x8C\xE2\x80\x8C\xD8\xAE"), "\xE3\xED\x9D\xCE");
    EXPECT_EQ(HostText(1255).title("\xD7\x90\xE2\x80\x8F!"), "\xE0\xFE!");
    EXPECT_EQ(HostText(1252).title("a\xE2\x80\x8C\xE2\x80\x8F"
                                   "b"),
              "ab");
    const std::string family = "\xF0\x9F\x91\xA8\xE2\x80\x8D\xF0\x9F\x91\xA9";
    const std::string heart = "\xE2\x9D\xA4\xEF\xB8\x8F";
    EXPECT_EQ(HostText(65001).title(family + heart), family + heart);
}

TEST(HostTitle, WhatBreaksALineIsABlankInEveryCodePage) {
    EXPECT_EQ(HostText(65001).title("\xEF\xBB\xBF"
                                    "a\xE2\x80\xA8"
                                    "b\xC2\x85"
                                    "c"),
              "a b c");
}

TEST(HostTitle, LettersAndMarksStandApartWhereTheCodePageHasThemSo) {
    const HostText vietnamese(1258);
    EXPECT_EQ(vietnamese.title("Ti\xE1\xBA\xBFng"), "Ti\xEA\xECng");
    EXPECT_EQ(vietnamese.title("Ti\xC3\xAA\xCC\x81ng"), "Ti\xEA\xECng");
    EXPECT_EQ(vietnamese.title("Vi\xE1\xBB\x87t"), "Vi\xEA\xF2t");
    EXPECT_EQ(vietnamese.title("Vie\xCC\xA3\xCC\x82t"), "Vi\xEA\xF2t");
    EXPECT_EQ(vietnamese.title("\xE1\xBA\xA1 \xC3\xAD"), "a\xF2 \xED");
}

TEST(HostTitle, ASoftHyphenThatTheCodePageDoesNotHoldGoes) {
    EXPECT_EQ(HostText(866).title("a\xC2\xAD"
                                  "b"),
              "ab");
    EXPECT_EQ(HostText(1251).title("it\xC2\xB4s"), "it's");
}

// A code page of everything but what a Mac writes in parts.
bool onlyWhole(unsigned codePage, std::u16string_view text, std::string& bytes) {
    const char16_t character = text.front();
    const bool part = character == 0x3099 || (character >= 0x1100 && character < 0x1200);
    if (codePage != 932 || part) return false;
    bytes += character == u'\u304C' ? "ga" : character == u'\uD55C' ? "han" : "*";
    return true;
}

TEST(HostTitle, LettersInPartsBecomeWhole) {
    const HostText host(932, {nullptr, onlyWhole});
    EXPECT_EQ(host.title("\xE3\x81\x8B\xE3\x82\x99"), "ga");
    EXPECT_EQ(host.title("\xE1\x84\x92\xE1\x85\xA1\xE1\x86\xAB\xE1\x84\x92\xE1\x85\xA1x"), "han*x");
    EXPECT_EQ(host.title("\xE1\x84\x92x"), "?x");
}

TEST(HostTitle, ManyMarksCostNoMoreThanManyLetters) {
    std::string text = "a";
    for (int i = 0; i < 2000000; ++i) text += "\xCC\x81";
    EXPECT_EQ(HostText(1252).title(text), "\xE1");
}

TEST(HostTitle, ACodePageThatNobodyKnowsIsTakenForTheWesternOne) {
    EXPECT_EQ(HostText(12345).title("\xC3\xA9\xD0\x96"), "\xE9?");
}

bool onlyGreek(unsigned codePage, std::u16string_view text, std::string& bytes) {
    if (codePage != 932 || text != u"\u03B1") return false;
    bytes += "\x83\xBF";
    return true;
}

TEST(HostTitle, OtherCodePagesAreThePlatforms) {
    const HostText japanese(932, {nullptr, onlyGreek});
    EXPECT_EQ(japanese.title("\xCE\xB1\xC3\xA9\xD0\x96"),
              "\x83\xBF"
              "e?");
}

TEST(HostGroupName, APlusSignBecomesAnAmpersand) {
    const HostText western(1252);
    EXPECT_EQ(western.groupName("C++ & more"), "C&& & more");
    EXPECT_EQ(western.groupName("\xEF\xBC\x8B"), "&");
    EXPECT_EQ(western.groupName("a\r\nb"), "a  b");
}

class HostAddress : public testing::TestWithParam<Case> {};

TEST_P(HostAddress, KeepsEveryCharacter) {
    EXPECT_EQ(HostText::address(GetParam().text), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Table, HostAddress,
    testing::Values(Case{"Plain", "http://a/b?c=d&e#f", "http://a/b?c=d&e#f"},
                    Case{"PlusSign", "http://a/?q=b+c", "http://a/?q=b+c"},
                    Case{"Encoded", "http://a/%C3%A4%20%", "http://a/%C3%A4%20%"},
                    Case{"Blank", "http://a/b c", "http://a/b c"},
                    Case{"Letters", "http://b\xC3\xA4r/\xD0\x96", "http://b%C3%A4r/%D0%96"},
                    Case{"Picture", "http://a/\xF0\x9F\x8E\x89", "http://a/%F0%9F%8E%89"},
                    Case{"Separator",
                         "http://a/\x05"
                         "b\0c"s,
                         "http://a/%05b%00c"},
                    Case{"Delete", "http://a/\x7F", "http://a/%7F"},
                    Case{"LineBreaks", "http://a/tbm=isc\r\nh\t&x", "http://a/tbm=isch&x"},
                    Case{"LineBreaksInAScript", "javascript:a() // b\n\tc()",
                         "javascript:a() // b%0A%09c()"},
                    Case{"Ends", " \r\n\x01http://a/ \n", "http://a/"},
                    Case{"AnyScheme", "place:sort=8&maxResults=10", "place:sort=8&maxResults=10"},
                    Case{"NoScheme", "?KvNdlQ", "?KvNdlQ"}, Case{"Nothing", " \n ", ""}),
    nameOf);

}  // namespace
}  // namespace magpie
