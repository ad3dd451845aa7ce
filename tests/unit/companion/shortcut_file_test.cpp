#include "companion/import/shortcut_file.h"

#include <gtest/gtest.h>
#include <string>

namespace magpie {
namespace {

using namespace std::string_literals;

std::string addressIn(const std::string& bytes) {
    return addressInShortcut(bytes, CodePageReader(codePageWestern));
}

// The same characters in UTF-16, ASCII only.
std::string utf16(const std::string& text, bool bigEndian) {
    std::string bytes;
    for (const char byte : text) bytes += bigEndian ? "\0"s + byte : byte + "\0"s;
    return bytes;
}

const std::string usual = "[InternetShortcut]\r\nURL=http://a/b?c=d\r\n";
const std::string address = "http://a/b?c=d";

struct Case {
    const char* name;
    std::string bytes;
    std::string expected;
};

class ShortcutFile : public testing::TestWithParam<Case> {};

TEST_P(ShortcutFile, GivesItsAddress) {
    EXPECT_EQ(addressIn(GetParam().bytes), GetParam().expected);
}

auto nameOf = [](const auto& test) { return std::string(test.param.name); };

INSTANTIATE_TEST_SUITE_P(
    Sections, ShortcutFile,
    testing::Values(
        Case{"Usual", usual, address},
        Case{"SectionLast",
             "[DEFAULT]\nBASEURL=http://base/\n[{000214A0-0000-0000-C000-000000000046}]\n"
             "Prop3=19,2\n[InternetShortcut]\nIDList=\nURL=http://a/\nIconIndex=1\n",
             "http://a/"},
        Case{"SectionFirst", usual + "[DEFAULT]\r\nBASEURL=http://base/\r\n", address},
        Case{"Frames",
             "[DEFAULT]\nBASEURL=http://a/\n[DOC#4#5]\nBASEURL=http://frame/\nORIGURL=http://o/\n"
             "URL=http://wrong/\n[InternetShortcut]\nURL=http://a/x\n",
             "http://a/x"},
        Case{"BaseAlone", "[DEFAULT]\nBASEURL=http://base/\n", "http://base/"},
        Case{"FrameAlone", "[DOC#1]\nBASEURL=http://frame/\n", ""},
        Case{"AnsiSectionDiffers",
             "[InternetShortcut.A]\nURL=http://ansi/\n[InternetShortcut]\nURL=http://a/\n",
             "http://a/"},
        Case{"PinnedSite",
             "[{000214A0-0000-0000-C000-000000000046}]\nProp3=19,2\n"
             "[{A7AF692E-098D-4C08-A225-D433CA835ED0}]\nProp5=3,0\nURL=http://no/\n"
             "[InternetShortcut]\nIDList=\nURL=http://a/\n[{9F4C2855-9F79-4B39-A8D0-"
             "E1D42DE1D5F3}]\nProp5=8,Microsoft.Website.1\n",
             "http://a/"},
        Case{"AnsiSectionAlone", "[InternetShortcut.A]\nURL=http://a/\n", "http://a/"},
        Case{"WideSection",
             "[InternetShortcut]\nURL=http://b?r/\n[InternetShortcut.A]\nURL=http://b?r/\n"
             "[InternetShortcut.W]\nURL=http://b+AOQ-r/\n",
             "http://b\xC3\xA4r/"},
        Case{"WideSectionOfBytesAndUtf7",
             "[InternetShortcut]\nURL=http://?/\n[InternetShortcut.W]\nURL=http://\xE4+AOQ-/\n",
             "http://\xC3\xA4\xC3\xA4/"},
        Case{"WideSectionFirst",
             "[InternetShortcut.W]\nURL=http://b+AOQ-r/\n[InternetShortcut]\nURL=http://b?r/\n",
             "http://b\xC3\xA4r/"},
        Case{"WideSectionNotEncoded",
             "[InternetShortcut]\nURL=http://a/?q=c+AOQ\n"
             "[InternetShortcut.W]\nURL=http://a/?q=c+AOQ\n",
             "http://a/?q=c+AOQ"},
        Case{"WideSectionEmpty", usual + "[InternetShortcut.W]\r\nURL=\r\n", address},
        Case{"EmptySectionsBeside", usual + "[InternetShortcut.A]\r\n[InternetShortcut.W]\r\n",
             address},
        Case{"NoSection", "URL=http://a/\nIconIndex=0\n", "http://a/"},
        Case{"SectionUnclosed", "[InternetShortcut\nURL=http://a/\n", "http://a/"},
        Case{"SectionTwice", "[InternetShortcut]\n[Other]\nURL=no\n[InternetShortcut]\nURL=yes\n",
             "yes"}),
    nameOf);

INSTANTIATE_TEST_SUITE_P(
    Spelling, ShortcutFile,
    testing::Values(
        Case{"LineFeeds", "[InternetShortcut]\nURL=http://a/\n", "http://a/"},
        Case{"CarriageReturns", "[InternetShortcut]\rURL=http://a/\rIconIndex=0\r", "http://a/"},
        Case{"NoLastLineEnd", "[InternetShortcut]\r\nURL=http://a/", "http://a/"},
        Case{"SmallLetters", "[internetshortcut]\r\nurl=http://a/\r\n", "http://a/"},
        Case{"CapitalLetters", "[INTERNETSHORTCUT]\r\nURL=http://A/\r\n", "http://A/"},
        Case{"Blanks", " \t[ InternetShortcut ] \n\t URL \t=  http://a/ \t\n", "http://a/"},
        Case{"Comments", "; URL=no\n# URL=no\n[InternetShortcut]\n;URL=no\nURL=http://a/\n",
             "http://a/"},
        Case{"Quotes", "[InternetShortcut]\nURL=\"http://a/\"\n", "http://a/"},
        Case{"SingleQuotes", "[InternetShortcut]\nURL='http://a/'\n", "http://a/"},
        Case{"EqualsSigns", "[InternetShortcut]\nURL=http://a/?b=c=d\n", "http://a/?b=c=d"},
        Case{"Script", "[InternetShortcut]\nURL=javascript:alert('a; b')\n",
             "javascript:alert('a; b')"},
        Case{"FirstOfTwo", "[InternetShortcut]\nURL=http://a/\nURL=http://b/\n", "http://a/"},
        Case{"SecondWhereTheFirstIsEmpty", "[InternetShortcut]\nURL=\nURL=http://b/\n",
             "http://b/"},
        Case{"OtherKeys", "[InternetShortcut]\nXURL=no\nURL2=no\nURL=http://a/\n", "http://a/"}),
    nameOf);

INSTANTIATE_TEST_SUITE_P(
    Bytes, ShortcutFile,
    testing::Values(
        Case{"Utf8Mark", "\xEF\xBB\xBF" + usual, address},
        Case{"Utf8MarkTwice", "\xEF\xBB\xBF\xEF\xBB\xBF[DEFAULT]\nBASEURL=x\n" + usual, address},
        Case{"OldEndOfText", usual + "\x1A", address},
        Case{"Utf16", "\xFF\xFE" + utf16(usual, false), address},
        Case{"Utf16BigEndian", "\xFE\xFF" + utf16(usual, true), address},
        Case{"Utf16WithoutMark", utf16(usual, false), address},
        Case{"Utf16BigEndianWithoutMark", utf16(usual, true), address},
        Case{"Utf16Cut", "\xFF\xFE" + utf16(usual, false) + "x", address},
        Case{"Utf8", "[InternetShortcut]\nURL=http://b\xC3\xA4r/\n", "http://b\xC3\xA4r/"},
        Case{"CodePage", "[InternetShortcut]\nURL=http://b\xE4r/\n", "http://b\xC3\xA4r/"},
        Case{"ZeroBytes", "[InternetShortcut]\nURL=http://a/\0\0\n\0"s, "http://a/"}),
    nameOf);

INSTANTIATE_TEST_SUITE_P(
    NoAddress, ShortcutFile,
    testing::Values(Case{"Empty", "", ""}, Case{"OnlyASection", "[InternetShortcut]\r\n", ""},
                    Case{"EmptyAddress", "[InternetShortcut]\r\nURL=\r\n", ""},
                    Case{"BlankAddress", "[InternetShortcut]\r\nURL=  \r\n", ""},
                    Case{"NoKey", "[InternetShortcut]\r\nnot-valid\r\n", ""},
                    Case{"AnotherProgramsFile", "[Desktop Entry]\nURL=http://a/\n", ""},
                    Case{"OnlyBrackets", "[\n]\n[]\n[[[", ""},
                    Case{"OnlyAMark", "\xEF\xBB\xBF", ""},
                    Case{"Garbage", "\x01\x02\xFF\xFE\n=\n=", ""}),
    nameOf);

}  // namespace
}  // namespace magpie
