#include "companion/import/utf7.h"

#include <gtest/gtest.h>
#include <string>

namespace magpie {
namespace {

struct Case {
    const char* name;
    std::string text;
    std::string expected;
};

class Utf7 : public testing::TestWithParam<Case> {};

TEST_P(Utf7, IsDecoded) {
    EXPECT_EQ(decodeUtf7(GetParam().text), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Table, Utf7,
    testing::Values(
        Case{"Nothing", "", ""}, Case{"PlainText", "http://a/?b=c&d", "http://a/?b=c&d"},
        Case{"OneLetter", "http://b+AOQ-r/", "http://b\xC3\xA4r/"},
        Case{"SeveralLetters", "+ZeVnLIqe-", "\xE6\x97\xA5\xE6\x9C\xAC\xE8\xAA\x9E"},
        Case{"SurrogatePair", "+2DzfiQ-", "\xF0\x9F\x8E\x89"}, Case{"PlusSign", "a+-b", "a+b"},
        Case{"PlusSigns", "+-+-", "++"}, Case{"RunEndsWithoutHyphen", "+AOQ/b", "+AOQ/b"},
        Case{"RunEndsAtAnotherByte", "+AOQ.b", "\xC3\xA4.b"},
        Case{"RunEndsWithTheText", "b+AOQ", "b\xC3\xA4"},
        Case{"HyphenBehindTheHyphen", "+AOQ--", "\xC3\xA4-"},
        Case{"RunBehindRun", "+AOQ-+APY-", "\xC3\xA4\xC3\xB6"},
        Case{"CommaForSlash", "+U,BTFw-", "\xE5\x8F\xB0\xE5\x8C\x97"},
        Case{"CommaBehindARun", "+AOQ,b", "\xC3\xA4,b"},
        Case{"SlashOfBase64", "+U/BTFw-", "\xE5\x8F\xB0\xE5\x8C\x97"},
        Case{"PlusThatMeansItself", "q=a+b", "q=a+b"}, Case{"PlusAtTheEnd", "q=a+", "q=a+"},
        Case{"PlusBeforeABlank", "a+ b", "a+ b"}, Case{"BitsLeftOver", "+AOR-", "+AOR-"},
        Case{"DigitLeftOver", "+AOQA-", "+AOQA-"}, Case{"HalfAPair", "+2Dw-", "+2Dw-"},
        Case{"SecondHalfAlone", "+34k-", "+34k-"},
        Case{"BytesAbove7F", "\xE4+AOQ-", "\xE4\xC3\xA4"}),
    [](const auto& test) { return std::string(test.param.name); });

TEST(Utf7Text, ALongRunOfPlusSignsStaysAsItIs) {
    const std::string text(200000, '+');
    const std::string decoded = decodeUtf7(text);
    EXPECT_EQ(decoded.substr(0, 100000), text.substr(0, 100000));
}

TEST(Utf7Text, AnAddressFullOfEncodedCharactersIsDecoded) {
    std::string text = "+";
    std::string expected;
    for (int i = 0; i < 100; ++i) {  // eight digits are three characters
        text += "ZeVnLIqe";
        expected += "\xE6\x97\xA5\xE6\x9C\xAC\xE8\xAA\x9E";
    }
    EXPECT_EQ(decodeUtf7(text + "-"), expected);
}

}  // namespace
}  // namespace magpie
