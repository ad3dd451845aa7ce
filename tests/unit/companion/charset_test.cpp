// In which code page a bookmark file is read: its mark, its META, or a guess.
#include <gmock/gmock.h>
#include <string>

#include "tests/unit/companion/bookmark_fixture.h"

namespace magpie {
namespace {

using namespace std::string_literals;
using testing::ElementsAre;

// A page with a title and an address, in front of which `meta` stands.
std::string pageOf(const std::string& meta, const std::string& title) {
    return meta + "<DL><DT><A HREF=\"http://a/" + title + "\">" + title + "</A></DL>";
}

std::string metaOf(const std::string& charset) {
    return "<META HTTP-EQUIV=\"Content-Type\" CONTENT=\"text/html; charset=" + charset + "\">";
}

std::string utf16(const std::string& latin, bool bigEndian) {
    std::string bytes;
    for (const char byte : latin) bytes += bigEndian ? "\0"s + byte : byte + "\0"s;
    return bytes;
}

struct Case {
    const char* name;
    std::string page;
    std::string link;
};

class Charset : public testing::TestWithParam<Case> {};

TEST_P(Charset, IsFoundOut) {
    EXPECT_THAT(importPage(GetParam().page).events, ElementsAre("+Bookmarks", GetParam().link));
}

const std::string umlaut = "\xE4|http://a/%C3%A4";
const std::string zhe = "?|http://a/%D0%96";

INSTANTIATE_TEST_SUITE_P(
    Table, Charset,
    testing::Values(
        Case{"Utf8Said", pageOf(metaOf("UTF-8"), "\xC3\xA4"), umlaut},
        Case{"Utf8Guessed", pageOf("", "\xC3\xA4"), umlaut},
        Case{"Utf8Marked", "\xEF\xBB\xBF" + pageOf("", "\xC3\xA4"), umlaut},
        Case{"MarkOverMeta", "\xEF\xBB\xBF" + pageOf(metaOf("windows-1251"), "\xC3\xA4"), umlaut},
        Case{"ProgramsCodePageGuessed", pageOf("", "\xE4"), umlaut},
        Case{"Utf8SaidButNotTrue", pageOf(metaOf("utf-8"), "\xE4"), umlaut},
        Case{"Western", pageOf(metaOf("iso-8859-1"), "\xE4"), umlaut},
        Case{"WesternInCapitals", pageOf(metaOf("ISO-8859-1"), "\xE4"), umlaut},
        Case{"Cyrillic", pageOf(metaOf("windows-1251"), "\xC6"), zhe},
        Case{"CyrillicKoi8", pageOf(metaOf("KOI8-R"), "\xF6"), zhe},
        Case{"Macintosh", pageOf(metaOf("x-mac-roman"), "\x8A"), umlaut},
        Case{"MarkTwice", "\xEF\xBB\xBF\xEF\xBB\xBF" + pageOf("", "\xC3\xA4"), umlaut},
        Case{"SpacedMeta", pageOf("<meta charset=' windows-1251; '>", "\xC6"), zhe},
        Case{"ShortMeta", pageOf("<meta charset=windows-1251>", "\xC6"), zhe},
        Case{"ShortMetaQuoted", pageOf("<meta charset='windows-1251'>", "\xC6"), zhe},
        Case{"MetaWithBlanks",
             pageOf("<META CONTENT='text/html; CharSet = \"windows-1251\"'>", "\xC6"), zhe},
        Case{"MetaBehindTheLinks", pageOf("", "\xC6") + metaOf("windows-1251"), zhe},
        Case{"FirstMetaThatIsKnown",
             pageOf(metaOf("x-none") + metaOf("windows-1251") + metaOf("utf-8"), "\xC6"), zhe},
        Case{"MetaInAComment", pageOf("<!-- " + metaOf("windows-1251") + " -->", "\xE4"), umlaut},
        Case{"UnknownCharset", pageOf(metaOf("x-none"), "\xE4"), umlaut},
        Case{"Utf16SaidInAscii", pageOf(metaOf("utf-16"), "\xC3\xA4"), umlaut},
        Case{"Utf16", "\xFF\xFE" + utf16(pageOf("", "\xE4"), false), umlaut},
        Case{"Utf16BigEndian", "\xFE\xFF" + utf16(pageOf("", "\xE4"), true), umlaut},
        Case{"Utf16WithoutMark", utf16(pageOf("", "\xE4"), false), umlaut},
        Case{"Utf16BigEndianWithoutMark", utf16(pageOf("", "\xE4"), true), umlaut},
        Case{"Utf16WithMeta", "\xFF\xFE" + utf16(pageOf(metaOf("windows-1251"), "\xE4"), false),
             umlaut}),
    [](const auto& test) { return std::string(test.param.name); });

// Three links; the last bytes of the page's last title are missing.
std::string pageCutInALetter(const std::string& meta) {
    return meta +
           "<DL><DT><A HREF=\"http://a/\xC3\xA4\">\xC3\xA4</A>"
           "<DT><A HREF=\"http://b/\xC3\xA4\xE6\x97\">\xC3\xA4\xE6\x97</A><DT><A HREF=c>x\xC3";
}

TEST(CharsetOfAPage, OneBrokenLetterMakesNoOtherPageOfIt) {
    for (const std::string& start : {""s, metaOf("utf-8"), "\xEF\xBB\xBF"s}) {
        EXPECT_THAT(importPage(pageCutInALetter(start)).events,
                    ElementsAre("+Bookmarks", "\xE4|http://a/%C3%A4", "\xE4?|http://b/%C3%A4%E6%97",
                                "x\xC3|c"))
            << start;
    }
}

TEST(CharsetOfAPage, AFileCutAnywhereKeepsItsCharset) {
    const std::string page = pageOf("", "\xC3\xA4") + "<A HREF=b>\xD0\x96\xE6\x97\xA5</A>";
    const std::size_t from = page.find("HREF=b>") + 7;
    for (std::size_t size = from; size <= page.size(); ++size) {
        EXPECT_EQ(importPage(page.substr(0, size)).events.at(1), umlaut) << size;
    }
}

TEST(CharsetOfAPage, ATextOfTheProgramsCodePageInAPageOfUtf8IsReadInThat) {
    const std::string page = "<A HREF=a>\xC3\xA4\xC3\xB6</A><A HREF=b>\xE4\xF6</A>";
    EXPECT_THAT(importPage(metaOf("utf-8") + page).events,
                ElementsAre("+Bookmarks", "\xE4\xF6|a", "\xE4\xF6|b"));
    EXPECT_THAT(importPage(page + page).events,
                ElementsAre("+Bookmarks", "\xE4\xF6|a", "\xE4\xF6|b", "\xE4\xF6|a", "\xE4\xF6|b"));
}

TEST(CharsetOfAPage, WhereTheProgramHasUtf8OldTextsAreTakenForWesternOnes) {
    const ImportOptions utf8{codePageUtf8, {}};
    for (const std::string& meta : {""s, metaOf("utf-8")}) {
        EXPECT_THAT(importPage(pageOf(meta, "\xE4"), utf8).events,
                    ElementsAre("+Bookmarks", "\xC3\xA4|http://a/%C3%A4"));
    }
}

// "Liantong", two letters of Chinese, which are valid UTF-8 by chance.
TEST(CharsetOfAPage, OneTextThatCouldBeUtf8MakesNoPageOfIt) {
    const std::string page = "<A HREF=a>\xC1\xAA\xCD\xA8</A><A HREF=b>\xD6\xD0\xCE\xC4</A>";
    EXPECT_EQ(importPage(page, {1251, {}}).events.at(1), "\xC1\xAA\xCD\xA8|a");
}

TEST(CharsetOfAPage, TheProgramsCodePageReadsWhatSaysNothing) {
    const ImportOptions cyrillic{1251, {}};
    EXPECT_THAT(importPage(pageOf("", "\xC6"), cyrillic).events,
                ElementsAre("+Bookmarks", "\xC6|http://a/%D0%96"));
}

TEST(CharsetOfAPage, NamesAreKnownAsTheyWereWritten) {
    const struct {
        const char* name;
        unsigned codePage;
    } names[] = {
        {"iso_8859-7", 28597},
        {"ISO8859-5", 28595},
        {"iso-ir-100", 1252},
        {"latin-9", 28605},
        {"cp-1251", 1251},
        {"win-1251", 1251},
        {" windows-1251 ", 1251},
        {"utf-8;", 65001},
        {"KOI8R", 20866},
        {"cskoi8r", 20866},
        {"cp850", 850},
        {"ibm437", 437},
        {"cp852", 852},
        {"x-mac-ce", 10029},
        {"x-mac-greek", 10006},
        {"x-mac-turkish", 10081},
        {"x-windows-874", 874},
        {"csShiftJIS", 932},
        {"ms932", 932},
        {"cp936", 936},
        {"csgb2312", 936},
        {"chinese", 936},
        {"ks_c_5601", 949},
        {"korean", 949},
        {"x-johab", 1361},
        {"cn-big5", 950},
        {"eucjp", 20932},
        {"x-unicode-2-0-utf-8", 65001},
        {"iso-2022-jp", 50220},
        {"hz-gb-2312", 52936},
        {"utf-7", 65000},
        {"iso-8859-8-i", 28598},
        {"iso-8859-11", 874},
        {"x-none", 0},
        {"", 0},
        {"-", 0},
    };
    for (const auto& each : names) EXPECT_EQ(codePageNamed(each.name), each.codePage) << each.name;
}

// A code page in which each pair of bytes above 7F is the same letter.
bool oneLetter(unsigned codePage, std::string_view bytes, std::u16string& text) {
    if (codePage != 932) return false;
    for (std::size_t at = 0; at < bytes.size(); ++at) {
        const auto byte = static_cast<unsigned char>(bytes[at]);
        text += byte < 0x80 ? char16_t{byte} : u'\u03B1';
        if (byte >= 0x80) ++at;
    }
    return true;
}

TEST(CharsetOfAPage, OtherCodePagesAreThePlatforms) {
    const ImportOptions options{1253, {oneLetter, nullptr}};
    EXPECT_THAT(importPage(pageOf(metaOf("Shift_JIS"), "\x83\xBF"), options).events,
                ElementsAre("+Bookmarks", "\xE1|http://a/%CE%B1"));
}

TEST(CharsetOfAPage, WhereNobodyKnowsThemItsFrameIsStillRead) {
    EXPECT_EQ(importPage(metaOf("iso-2022-jp") + "<A HREF=a>x</A>").events.at(1), "x|a");
}

// The first letter is made of "&" and "A", the second one of "<" and "!".
TEST(CharsetOfAPage, ShiftedLettersAreNoSigns) {
    const ImportOptions greek{1253, {oneLetter, nullptr}};
    const std::string page =
        "<DL><DT><A HREF=a>\x1B$B&A\x1B(B</A><DT><A HREF=b>\x1B$@<!\x1B(Jx</A></DL>";
    for (const std::string& meta : {""s, metaOf("iso-2022-jp")}) {
        EXPECT_THAT(importPage(meta + page, greek).events,
                    ElementsAre("+Bookmarks", "\xE1|a", "\xE1x|b"))
            << meta;
    }
}

TEST(CharsetOfAPage, EscapesThatShiftNothingAreBlanks) {
    EXPECT_EQ(importPage("<A HREF=a>a\x1B[Bb\x1B(Bc</A>").events.at(1), "a [Bb (Bc|a");
}

}  // namespace
}  // namespace magpie
