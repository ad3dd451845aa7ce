#include "companion/import/html_text.h"

#include <gtest/gtest.h>
#include <string>

namespace magpie {
namespace {

using namespace std::string_literals;

struct Case {
    const char* name;
    std::string html;
    std::string expected;
};

auto nameOf = [](const auto& test) { return std::string(test.param.name); };

class ReadableText : public testing::TestWithParam<Case> {};

TEST_P(ReadableText, IsWhatABrowserShows) {
    std::string text;
    appendReadable(text, GetParam().html);
    EXPECT_EQ(text, GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Entities, ReadableText,
    testing::Values(
        Case{"Named", "&lt;a&gt; &amp; &quot;b&quot; &apos;", "<a> & \"b\" '"},
        Case{"NamedLetters", "&auml;&Auml;&hellip;&euro;&alpha;",
             "\xC3\xA4\xC3\x84\xE2\x80\xA6\xE2\x82\xAC\xCE\xB1"},
        Case{"Capitals", "&AMP;&LT;&COPY;", "&<\xC2\xA9"},
        Case{"Decimal", "&#39;&#228;&#8211;&#128512;", "'\xC3\xA4\xE2\x80\x93\xF0\x9F\x98\x80"},
        Case{"Hexadecimal", "&#x27;&#XE4;&#x1f600;", "'\xC3\xA4\xF0\x9F\x98\x80"},
        Case{"OldNumbers", "&#150;&#x80;", "\xE2\x80\x93\xE2\x82\xAC"},
        Case{"NoSemicolon", "&lt b &#39s &#x27 &copy2020 &auml",
             "< b 's ' \xC2\xA9"
             "2020 \xC3\xA4"},
        Case{"NoSemicolonBeforeLetters", "&notit; &ampx", "\xC2\xACit; &x"},
        Case{"NewerNameWithoutSemicolon", "&hellip", "\xE2\x80\xA6"},
        Case{"None", "AT&T & co &; &# &#x; &foo; &", "AT&T & co &; &# &#x; &foo; &"},
        Case{"Twice", "&amp;lt; &amp;#8230;", "&lt; &#8230;"},
        Case{"Impossible", "&#0;&#xD800;&#x110000;&#99999999999999;",
             "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD"},
        Case{"NewerNames", "&Ccaron;esk&yacute; &lpar;x&rpar;&colon;&NewLine;&Tab;",
             "\xC4\x8C"
             "esk\xC3\xBD (x):\n\t"},
        Case{"NameOfTwoCharacters", "&NotEqualTilde;", "\xE2\x89\x82\xCC\xB8"},
        Case{"NameAboveSixteenBits", "&Afr;", "\xF0\x9D\x94\x84"},
        Case{"LongestName", "&CounterClockwiseContourIntegral;", "\xE2\x88\xB3"},
        Case{"WordsThatAreNamesWithASemicolon", "&image &that &or &real &sub &lpar &b",
             "&image &that &or &real &sub &lpar &b"},
        Case{"WordsThatAreNames", "&image;&or;&sub;", "\xE2\x84\x91\xE2\x88\xA8\xE2\x8A\x82"},
        Case{"Cut", "a &am", "a &am"}),
    nameOf);

INSTANTIATE_TEST_SUITE_P(Layout, ReadableText,
                         testing::Values(Case{"Blanks", "  a \r\n\t b\r", "a b"},
                                         Case{"Tags", "<b>a</b> <i>b</i>c", "a bc"},
                                         Case{"LineBreaks", "a<br>b<P>c", "a b c"},
                                         Case{"Comment", "a<!-- > -->b", "ab"},
                                         Case{"Picture", "<img src=x alt=\"a>b\">", ""},
                                         Case{"LessThan", "a < b <3", "a < b <3"},
                                         Case{"EntityIsNoTag", "&lt;b&gt;", "<b>"},
                                         Case{"EntityIsNoBlank", "&#32;a&#32;", " a "},
                                         Case{"ZeroByte", "a\0b"s, "a\0b"s}),
                         nameOf);

class AddressText : public testing::TestWithParam<Case> {};

TEST_P(AddressText, KeepsItsParameters) {
    std::string text;
    appendWithoutEntities(text, GetParam().html, HtmlPlace::address);
    EXPECT_EQ(text, GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Table, AddressText,
    testing::Values(Case{"Escaped", "?a=1&amp;b=2", "?a=1&b=2"},
                    Case{"NotEscaped", "?a=1&b=2", "?a=1&b=2"},
                    Case{"LooksLikeAnEntity", "?a=1&copy=2&lang=en&section=3&not",
                         "?a=1&copy=2&lang=en&section=3&not"},
                    Case{"LooksLikeAnEntityBeforeASign",
                         "?a&reg_id=7&copy[]=2&para-x=1&sect.n=1&not%5B0%5D=1&amp_x&times&deg",
                         "?a&reg_id=7&copy[]=2&para-x=1&sect.n=1&not%5B0%5D=1&amp_x&times&deg"},
                    Case{"EntityWithItsSemicolon", "?a&copy;&auml;&colon;", "?a\xC2\xA9\xC3\xA4:"},
                    Case{"EscapeWithoutSemicolon", "?a&amp&quot&lt&gt b&amp;c&ampere",
                         "?a&\"<> b&c&ampere"},
                    Case{"NumberWithoutSemicolon", "?a&#38b=1&#x3a", "?a&b=1:"},
                    Case{"NewerNameWithoutSemicolon", "?a&lang&hellip", "?a&lang&hellip"},
                    Case{"Quotes", "javascript:a(&quot;b&#39;)", "javascript:a(\"b')"},
                    Case{"BlanksStay", " a  b ", " a  b "}),
    nameOf);

}  // namespace
}  // namespace magpie
