#include "companion/import/bookmark_file.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <limits>
#include <string>

#include "tests/unit/companion/bookmark_fixture.h"

namespace magpie {
namespace {

using namespace std::string_literals;
using testing::ElementsAre;
using testing::IsEmpty;

struct Case {
    const char* name;
    std::string page;
    std::string expected;
};

auto nameOf = [](const auto& test) { return std::string(test.param.name); };

class BookmarkFile : public testing::TestWithParam<Case> {};

TEST_P(BookmarkFile, GivesGroupsAndLinks) {
    EXPECT_EQ(eventsOf(GetParam().page), GetParam().expected);
}

const std::string head =
    "<!DOCTYPE NETSCAPE-Bookmark-file-1>\n<!-- This is an automatically generated file. -->\n"
    "<TITLE>Bookmarks</TITLE>\n<H1>Bookmarks</H1>\n";

INSTANTIATE_TEST_SUITE_P(
    Folders, BookmarkFile,
    testing::Values(
        Case{"LinksAtTheTop",
             head + "<DL><p>\n<DT><A HREF=\"http://a/\" ADD_DATE=\"1\">A</A>\n"
                    "<DT><A HREF=\"http://b/\">B</A>\n</DL><p>\n",
             "+Bookmarks; A|http://a/; B|http://b/"},
        Case{"Nested",
             head + "<DL><p><DT><H3 FOLDED>O</H3><DL><p><DT><H3>I</H3><DL><p><DT><A HREF=i>i</A>"
                    "</DL><p><DT><A HREF=o>o</A></DL><p><DT><A HREF=r>r</A></DL><p>",
             "+Bookmarks; r|r; +O; o|o; +O - I; i|i"},
        Case{"LinksAroundAFolder",
             "<DL><DT><H3>O</H3><DL><DT><A HREF=1>1</A><DT><H3>I</H3><DL><DT><A HREF=2>2</A></DL>"
             "<DT><A HREF=3>3</A></DL></DL>",
             "+O; 1|1; 3|3; +O - I; 2|2"},
        Case{"FolderWithoutLinks",
             "<DL><DT><H3>E</H3><DL></DL><DT><H3>F</H3><DL><DT><A HREF=f>f</A></DL></DL>",
             "+F; f|f"},
        Case{"FolderOfFoldersOnly",
             "<DL><DT><H3>O</H3><DL><DT><H3>I</H3><DL><DT><A HREF=i>i</A></DL></DL></DL>",
             "+O - I; i|i"},
        Case{"SameNameTwice",
             "<DL><DT><H3>F</H3><DL><DT><A HREF=1>1</A></DL><DT><H3>F</H3><DL><DT><A HREF=2>2</A>"
             "</DL></DL>",
             "+F; 1|1; +F; 2|2"},
        Case{"PlusInAName", "<DL><DT><H3>C++</H3><DL><DT><A HREF=c>c++</A></DL></DL>",
             "+C&&; c++|c"},
        Case{"NamelessFolder", "<DL><DT><H3></H3><DL><DT><A HREF=a>a</A></DL></DL>",
             "+Untitled; a|a"},
        Case{"BlankNames",
             "<DL><DT><H3>&#5;\x05</H3><DL><DT><A HREF=a>a</A><H3>I</H3><DL><A HREF=b>b</A></DL>",
             "+Untitled; a|a; +Untitled - I; b|b"},
        Case{"NameWithTags", "<DL><DT><H3><b>F</b>&amp;<i>G</i></H3><DL><DT><A HREF=a>a</A></DL>",
             "+F&G; a|a"},
        Case{"HeadingIsALink", "<DL><DT><H3><A HREF=f>F</A></H3><DL><DT><A HREF=a>a</A></DL></DL>",
             "+F; F|f; a|a"},
        Case{"HeadingIsALinkInATag",
             "<DL><DT><H3><!-- x --><B><IMG SRC=i> <A HREF=f>F</A></B></H3><DL><DT><A HREF=a>a</A>"
             "</DL></DL>",
             "+F; F|f; a|a"},
        Case{"HeadingIsALinkOfNoList",
             "<DL><DT><H3><A HREF=f>F</A></H3><DT><H3><A HREF=g>G</A></H3></DL>",
             "+Bookmarks; F|f; G|g"},
        Case{"HeadingHasAnAnchor",
             "<DL><DT><H3><A NAME=f></A>F</H3><DL><DT><A HREF=a>a</A></DL></DL>", "+F; a|a"},
        Case{"OtherHeadings",
             "<H1>T</H1><DL><DT><H2>F</H2><DL><DT><A HREF=f>f</A></DL><DT><H1>G</H1><DL><DT>"
             "<A HREF=g>g</A></DL></DL>",
             "+F; f|f; +G; g|g"},
        Case{"SecondHeadingOfThePage",
             "<H1>T</H1><DL><DT><A HREF=a>a</A></DL><H1>F</H1><DL><DT><A HREF=f>f</A></DL>",
             "+Bookmarks; a|a; +F; f|f"},
        Case{"SecondHeadingAheadOfTheList", "<H1>T</H1><H1>F</H1><DL><DT><A HREF=f>f</A></DL>",
             "+F; f|f"},
        Case{"TwoPages",
             head + "<DL><DT><A HREF=a>a</A></DL>" + head + "<DL><DT><A HREF=b>b</A></DL>",
             "+Bookmarks; a|a; b|b"},
        Case{"OtherLists",
             "<H2>F</H2><UL><LI><A HREF=f>f</A><LI><H3>I</H3><MENU><LI><A HREF=i>i</A></MENU>"
             "<LI><A HREF=g>g</A></UL><H2>G</H2><OL><LI><A HREF=h>h</A></OL><A HREF=r>r</A>",
             "+Bookmarks; r|r; +F; f|f; g|g; +F - I; i|i; +G; h|h"},
        Case{"OtherListsWithoutHeading",
             "<UL><LI><A HREF=a>a</A></UL><DL><DT><H3>F</H3><DL><DT><UL><LI><A HREF=f>f</A></UL>"
             "<DT><A HREF=g>g</A></DL><DT><A HREF=r>r</A></DL>",
             "+Bookmarks; a|a; r|r; +F; f|f; g|g"},
        Case{"OtherListsUnclosed",
             "<DL><DT><H3>F</H3><DL><DT><UL><LI><A HREF=f>f</DL><DT><A HREF=r>r</DL></UL>",
             "+Bookmarks; r|r; +F; f|f"},
        Case{"OtherListsInDescriptions",
             "<DL><DT><H3>F</H3><DD><UL><LI>x</UL><DL><DT><A HREF=f>f</A><DD>d<UL><LI>x<DT>"
             "<A HREF=g>g</A></UL><DT><A HREF=h>h</A></DL></DL>",
             "+F; f|f; g|g; h|h"},
        Case{"ListWithoutHeading",
             "<DL><DT><H3>F</H3><DL><DL><DT><A HREF=f>f</A></DL></DL><DT><A HREF=r>r</A></DL>",
             "+Bookmarks; r|r; +F; f|f"}),
    nameOf);

INSTANTIATE_TEST_SUITE_P(
    Misnesting, BookmarkFile,
    testing::Values(
        Case{"NoListAtAll", "<DT><A HREF=a>a</A><DT><A HREF=b>b</A>", "+Bookmarks; a|a; b|b"},
        Case{"NoEntryTags", "<DL><A HREF=a>a</A>\n<A HREF=b>b</A></DL>", "+Bookmarks; a|a; b|b"},
        Case{"NoOuterList",
             "<Title>x</Title><DT><H3>F</H3><DL><DT><A HREF=f>f</A></DL><DT><H3>G</H3><DL>"
             "<DT><A HREF=g>g</A></DL></HTML>",
             "+F; f|f; +G; g|g"},
        Case{"ClosedEntries",
             "<DL><DT><H3>F</H3></DT><DL><DT><A HREF=f>f</A></DT></DL><DD>d</DD>"
             "<DT><A HREF=r>r</A></DL>",
             "+Bookmarks; r|r; +F; f|f"},
        Case{"ListsUnclosed", "<DL><DT><H3>F</H3><DL><DT><A HREF=f>f</A>", "+F; f|f"},
        Case{"ListsClosedTooOften",
             "<DL></DL></DL></DL><DT><H3>F</H3><DL><DT><A HREF=f>f</A></DL></DL><A HREF=r>r</A>",
             "+Bookmarks; r|r; +F; f|f"},
        Case{"LinksUnclosed", "<DL><DT><A HREF=a>a\n<DT><A HREF=b>b <A HREF=c>c</DL><A HREF=d>d",
             "+Bookmarks; a|a; b|b; c|c; d|d"},
        Case{"HeadingUnclosed", "<DL><DT><H3>F<DL><DT><A HREF=f>f</A></DL></DL>", "+F; f|f"},
        Case{"HeadingEndsAtALink", "<DL><DT><H3>F<A HREF=a>a</A><DL><A HREF=f>f</A></DL></DL>",
             "+Bookmarks; a|a; +F; f|f"},
        Case{"HeadingWithoutList", "<DL><DT><H3>F</H3><DT><A HREF=a>a</A></DL>", "+Bookmarks; a|a"},
        Case{"LinkClosedBehindTheList", "<DL><DT><H3>F</H3><DL><DT><A HREF=f>f</DL></A></DL>",
             "+F; f|f"},
        Case{"HeadingsAroundTheirEntries",
             "<H3 TITLE=\"M\"><H3 TITLE=\"F &amp; G\"><A HREF=f TITLE=\"t\"></A></H3>"
             "<A HREF=m TITLE=\"u\"></A></H3>",
             "+M; u|m; +M - F & G; t|f"},
        Case{"TagsInATitle",
             "<DL><DT><A HREF=a>The <title> and <textarea> tags</A><DT><A HREF=b>b</A>"
             "<DT><A HREF=c></title></textarea>c</A></DL>",
             "+Bookmarks; The and tags|a; b|b; c|c"},
        Case{"TextThatIsNoPage",
             "<TEXTAREA><A HREF=x>x</A></TEXTAREA><XMP><A HREF=x>x</A></XMP>"
             "<IFRAME><A HREF=x>x</A></IFRAME><NOFRAMES><A HREF=x>x</A></NOFRAMES>"
             "<NOEMBED><A HREF=x>x</A></NOEMBED><A HREF=a>a</A>",
             "+Bookmarks; a|a"},
        Case{"ScriptInALink", "<A HREF=a>x<SCRIPT>y</SCRIPT><STYLE>z</STYLE> w</A>",
             "+Bookmarks; x w|a"},
        Case{"TitleTagUnclosed", "<TITLE>x<DL><DT><A HREF=a>a</A></DL>", "+Bookmarks; a|a"},
        Case{"ScriptAround", "<SCRIPT>'<A HREF=x>x</A>'</SCRIPT><DL><DT><A HREF=a>a</A></DL>",
             "+Bookmarks; a|a"}),
    nameOf);

INSTANTIATE_TEST_SUITE_P(
    Descriptions, BookmarkFile,
    testing::Values(
        Case{"Links",
             "<DL><DT><A HREF=a>a</A><DD>See <A HREF=x>x</A>, <a href=y>y</a>\n"
             "<DT><A HREF=b>b</A></DL>",
             "+Bookmarks; a|a; b|b"},
        Case{"OfAFolder",
             "<DL><DT><H3>F</H3><DD>all <A HREF=x>x</A><DL><DT><A HREF=f>f</A></DL></DL>",
             "+F; f|f"},
        Case{"OfThePage", head + "<DD>mine: <A HREF=x>x</A><DL><DT><A HREF=a>a</A></DL>",
             "+Bookmarks; a|a"},
        Case{"EndAtASeparator", "<DL><DT><A HREF=a>a</A><DD>d<HR><A HREF=b>b</A></DL>",
             "+Bookmarks; a|a; b|b"},
        Case{"EndWithTheList",
             "<DL><DT><H3>F</H3><DL><DT><A HREF=f>f</A><DD>d</DL><A HREF=r>r</A></DL>",
             "+Bookmarks; r|r; +F; f|f"},
        Case{"HeadingsIn", "<DL><DT><A HREF=a>a</A><DD><H3>x</H3><DT><A HREF=b>b</A></DL>",
             "+Bookmarks; a|a; b|b"},
        Case{"OfNothing", "<DL><DD><A HREF=a>a</A><HR><DD><A HREF=b>b</A></DL>",
             "+Bookmarks; a|a; b|b"},
        Case{"OfNothingTwice", "<DL><DD><A HREF=a>a</A><DD><A HREF=b>b</A></DL>",
             "+Bookmarks; a|a; b|b"},
        Case{"OfNothingAndClosed", "<DL><DD><A HREF=a>a</A></DD><DD><A HREF=b>b</A></DD></DL>",
             "+Bookmarks; a|a; b|b"},
        Case{"OfTerms", "<DL><DT>News<DD><A HREF=n>n</A><DT>Sport<DD><A HREF=s>s</A></DL>",
             "+Bookmarks; n|n; s|s"},
        Case{"OfAnEntryBehindTerms",
             "<DL><DT>News<DD><A HREF=n>n</A><DT><A HREF=a>a</A><DD>see <A HREF=x>x</A></DL>",
             "+Bookmarks; n|n; a|a"},
        Case{"OfALinkWithoutAddress",
             "<DL><DT><A HREF=\"\">x</A><DD>see <A HREF=y>y</A><DT><A HREF=a>a</A></DL>",
             "+Bookmarks; a|a"},
        Case{"OfASeparator",
             "<DL><DT><A HREF=\"http://bookmark.placeholder.url/\">---</A><DD>see <A HREF=y>y</A>"
             "<DT><A HREF=a>a</A></DL>",
             "+Bookmarks; a|a"},
        Case{"OfAClosedEntry", "<DL><DT><A HREF=a>a</A></DT><DD>see <A HREF=x>x</A></DD></DL>",
             "+Bookmarks; a|a"},
        Case{"EndAtAFolder",
             "<DL><DT><A HREF=a>a</A><DD>d<H3>F</H3><DL><DT><A HREF=f>f</A></DL>"
             "<DT><A HREF=r>r</A></DL>",
             "+Bookmarks; a|a; r|r; +F; f|f"},
        Case{"HeadingsInThoseOfFolders",
             "<DL><DT><H3>F</H3><DD>d<H4>x</H4><DL><DT><A HREF=f>f</A></DL></DL>", "+F; f|f"},
        Case{"HeadingsInEndWithTheDescription",
             "<DL><DT><A HREF=a>a</A><DD>d<H4>x</H4><DT>y<DL><DT><A HREF=b>b</A></DL></DL>",
             "+Bookmarks; a|a; b|b"},
        Case{"EndAtAnEntryWithoutItsTag",
             "<DL><A HREF=a ADD_DATE=1>a</A><DD>d <A HREF=x>x</A><A HREF=b ADD_DATE=2>b</A>"
             "<DD>d<A LAST_VISIT=2 HREF=c>c</A><DD>d<A HREF=e LAST_MODIFIED=2>e</A></DL>",
             "+Bookmarks; a|a; b|b; c|c; e|e"}),
    nameOf);

INSTANTIATE_TEST_SUITE_P(
    Links, BookmarkFile,
    testing::Values(
        Case{"AttributesInAnyOrder",
             "<A ADD_DATE=1 ICON='data:,>' href = 'http://a/' TAGS=\"x y\">a</A>",
             "+Bookmarks; a|http://a/"},
        Case{"Quoting", "<A HREF=http://a/?b=c>a</A><A HREF='b\"'>b</A><A HREF=\"c'\">c</A>",
             "+Bookmarks; a|http://a/?b=c; b|b\"; c|c'"},
        Case{"OddLetters", "<dl><dt><a Href=a>a</a><Dt><A hREF=b>b</a></dL>",
             "+Bookmarks; a|a; b|b"},
        Case{"LinesInATag", "<A\r\nHREF\n=\n\"http://a/\"\r\nADD_DATE=\"1\"\r>a\r\nb</A\n>",
             "+Bookmarks; a b|http://a/"},
        Case{"BreakInAnAddress", "<A HREF=\"http://a/x\ny\">a</A>", "+Bookmarks; a|http://a/xy"},
        Case{"AttributeTwice", "<A HREF=a HREF=b>a</A>", "+Bookmarks; a|a"},
        Case{"SlashAtTheEnd", "<A HREF=\"a\"/>a</A><HR/>", "+Bookmarks; a|a"},
        Case{"NoBlankBetween", "<A HREF=\"a\"ADD_DATE=\"1\">a</A>", "+Bookmarks; a|a"},
        Case{"Entities", "<A HREF=\"?a=1&amp;b=2&copy=3\">&lt;a&gt; &amp; &#228;&#xE4; &eacute</A>",
             "+Bookmarks; <a> & \xE4\xE4 \xE9|?a=1&b=2&copy=3"},
        Case{"AnyScheme",
             "<A HREF=\"javascript:void(0)\">j</A><A HREF=\"place:sort=8\">p</A>"
             "<A HREF=\"file:///C|/x\">f</A><A HREF=\"?note\">n</A>",
             "+Bookmarks; j|javascript:void(0); p|place:sort=8; f|file:///C|/x; n|?note"},
        Case{"NoTitle", "<A HREF=http://a/></A><A HREF=http://b/> <img src=i> </A>",
             "+Bookmarks; http://a/|http://a/; http://b/|http://b/"},
        Case{"TitleInAnAttribute", "<A HREF=a TITLE=\"t &amp; u\"></A><A HREF=b TITLE=t>u</A>",
             "+Bookmarks; t & u|a; u|b"},
        Case{"TitleInAnAttributeLooksLikeTags", "<A HREF=a TITLE=\" a <b>\n c \"></A>",
             "+Bookmarks; a <b> c|a"},
        Case{"TitleOfAPicture",
             "<A HREF=a TITLE=t><IMG SRC=i ALT=x></A><A HREF=b><IMG ALT=\"\"><IMG ALT=\"y &lt;\">"
             "</A><A HREF=c TITLE=\" \"><IMG ALT=z></A><A HREF=d>u<IMG ALT=x></A>",
             "+Bookmarks; t|a; y <|b; z|c; u|d"},
        Case{"TitleOfBlanks",
             "<A HREF=a TITLE=t>&nbsp;\n&#8203;</A><A HREF=b>\xC2\xA0&#12288;</A>"
             "",
             "+Bookmarks; t|a; b|b"},
        Case{"Feed", "<A FEEDURL=http://f/ >f</A><A FEEDURL=http://f/ HREF=http://g/>g</A>",
             "+Bookmarks; f|http://f/; g|http://g/"},
        Case{"FeedWithoutAPage", "<A HREF=\"\" FEEDURL=\"http://f/\">f</A>",
             "+Bookmarks; f|http://f/"},
        Case{"AnchorInALink", "<A HREF=a>one <A NAME=n>two</A></A>", "+Bookmarks; one two|a"},
        Case{"Separators", "<A HREF=a>a</A><HR><A HREF=b>b</A><HR SIZE=1>", "+Bookmarks; a|a; b|b"},
        Case{"SeparatorsAsLinks",
             "<A HREF=a>a</A><A HREF=\"http://bookmark.placeholder.url/\" "
             "DESCRIPTION=\"separator\">---</A>",
             "+Bookmarks; a|a"},
        Case{"Comments", "<!-- <A HREF=x>x</A> --><A HREF=a>a<!-- > -->b</A><!--><A HREF=c>c</A>",
             "+Bookmarks; ab|a; c|c"},
        Case{"CommentsOldAndNew",
             "<!-- x -- ><A HREF=a>a</A><!-- y --!><A HREF=b>b</A><!-- z --\n><A HREF=c>c</A>"
             "<!-- -- - -> <A HREF=x>x</A> -->",
             "+Bookmarks; a|a; b|b; c|c"},
        Case{"CommentUnclosed", "<A HREF=a>a</A><!-- x ><A HREF=b>b</A>", "+Bookmarks; a|a; b|b"},
        Case{"QuoteUnclosed", "<A HREF=a>a</A><A HREF=\"http://b/>b</A>\n<A HREF=c>c</A>",
             "+Bookmarks; a|a; b|http://b/; c|c"},
        Case{"QuoteClosedByTheNext",
             "<A HREF=a>a</A><A HREF=\"http://b/>b</A>\n<A HREF=\"c\">c</A><A HREF=d>d</A>",
             "+Bookmarks; a|a; c|http://b/>b</A><A HREF=; d|d"},
        Case{"QuotesInAScript",
             "<A HREF=\"javascript:alert(\"hi\")\">a</A>"
             "<A HREF=\"JavaScript:if(a>1)f(\"b>c\", \"\")\"ADD_DATE=\"1\">b</A>"
             "<A HREF='javascript:g('x')' ADD_DATE='1'>c</A><A HREF=\"javascript:h('x')\"/>d</A>",
             "+Bookmarks; a|javascript:alert(\"hi\"); b|JavaScript:if(a>1)f(\"b>c\", \"\"); "
             "c|javascript:g('x'); d|javascript:h('x')"},
        Case{"AttributesBehindAScript",
             "<A HREF=\"javascript:f()\" PRIVATE TITLE=\"t\">a</A>"
             "<A HREF=\"javascript:f()\" data-x1=\"y\">b</A>"
             "<A HREF=\"javascript:f()\" xml:lang=\"de\">c</A><A HREF=\"javascript:f()\" / >d</A>"
             "<A HREF=\"javascript:f(\" x y\")\" PRIVATE>e</A>",
             "+Bookmarks; a|javascript:f(); b|javascript:f(); c|javascript:f(); d|javascript:f(); "
             "e|javascript:f(\" x y\")"},
        Case{"QuoteOfAScriptUnclosed", "<A HREF=\"javascript:f(\"x)\n<A HREF=b>b</A>",
             "+Bookmarks; b|javascript:f("},
        Case{"UnknownTags", "<DL><font><D><A HREF=a>a</A></font></DL>", "+Bookmarks; a|a"}),
    nameOf);

TEST(BookmarkPage, LinksWithoutAnAddressAreCounted) {
    const Imported imported = importPage(
        "<A>x</A><A HREF=>y</A><A HREF=\"\">z</A><A HREF=\" &#32; \">w</A><A HREF=a>a</A>"
        "<H3><A HREF=\"\">F</A></H3><A NAME=n>n</A><A ID=n>n</A>");
    EXPECT_THAT(imported.events, ElementsAre("+Bookmarks", "a|a"));
    EXPECT_EQ(imported.counts.withoutAddress, 5U);
}

TEST(BookmarkPage, WhatCutsALineOfTheStackFileNeverComesThrough) {
    const Imported imported = importPage(
        "<H3>a\x05&#5;b&#10;+c</H3><DL><A HREF=\"u&#5;&#13;&#10;v\">t\x05&#13;&#10;u</A></DL>");
    EXPECT_THAT(imported.events, ElementsAre("+a  b &c", "t   u|u%05v"));
}

TEST(BookmarkPage, AHundredLevelsAreAHundredGroups) {
    std::string page;
    std::string name;
    for (int level = 1; level <= 100; ++level) {
        const std::string number = std::to_string(level);
        page += "<DL><DT><A HREF=" + number + ">" + number + "</A><DT><H3>" + number + "</H3>\n";
        if (level > 1) name += (level > 2 ? " - " : "") + std::to_string(level - 1);
    }
    const Imported imported = importPage(page);
    EXPECT_EQ(imported.counts.groups, 100U);
    EXPECT_EQ(imported.events.at(198), "+" + name);
    EXPECT_EQ(imported.events.at(199), "100|100");
}

TEST(BookmarkPage, AFileCutAnywhereGivesTheLinksThatAreWhole) {
    const std::string page = head +
                             "<DL><p><DT><H3>F</H3><DL><p>\n<DT><A HREF=\"http://a/\">A</A>\n"
                             "<DD>d\n<DT><A HREF='http://b/'>B</A>\n</DL><p></DL><p>";
    const std::size_t first = page.find("\">A</A>") + 2;
    const std::size_t second = page.find("'>B</A>") + 2;
    for (std::size_t size = 0; size <= page.size(); ++size) {
        const Imported imported = importPage(page.substr(0, size));
        const std::size_t expected = (size >= first ? 1U : 0U) + (size >= second ? 1U : 0U);
        EXPECT_EQ(imported.counts.links, expected) << page.substr(0, size);
    }
}

// Each of these would take minutes if the rest of the page were gone through at each tag.
TEST(BookmarkPage, WhatIsNeverClosedIsLookedForOnce) {
    for (const std::string& open :
         {"<title>"s, "<script>"s, "<!--"s, "<a b=\""s, "<a b='"s, "<dl>"s, "<h3>"s}) {
        std::string page;
        for (int i = 0; i < 100000; ++i) page += open;
        EXPECT_THAT(importPage(page).events, IsEmpty()) << open;
    }
}

// The names of folders in folders are as long as all of them together; only so much is handed over.
TEST(BookmarkPage, NamesOfGroupsEndSomewhere) {
    std::string page;
    for (int level = 0; level < 5000; ++level) page += "<DL><DT><H3>\xC3\xA4</H3><A HREF=a>a</A>";
    const Imported imported = importPage(page);
    EXPECT_EQ(imported.counts.links, 5000U);
    std::size_t size = 0;
    for (const std::string& event : imported.events) size = std::max(size, event.size());
    EXPECT_LE(size, 4096U);
    EXPECT_GE(size, 2000U);
}

TEST(BookmarkPage, TheNameOfOneFolderEndsSomewhere) {
    std::string page = "<DL><DT><H3>x";
    for (int i = 0; i < 500000; ++i) page += "\xC3\xA4";
    page += "</H3><DL>";
    for (int i = 0; i < 1000; ++i) page += "<DT><H3>F</H3><DL><A HREF=a>a</A></DL>";
    const Imported imported = importPage(page);
    EXPECT_EQ(imported.counts.groups, 1000U);
    EXPECT_EQ(imported.events.at(0), "+x" + std::string(999, '\xE4') + " - F");
}

TEST(BookmarkPage, ATagMayHaveAnyNumberOfAttributes) {
    std::string page = "<A";
    for (int i = 0; i < 1000000; ++i) page += " x";
    EXPECT_EQ(eventsOf(page + " HREF=a>a</A>"), "+Bookmarks; a|a");
}

// Of each kind of end that is missing, one far off: it is not looked for at each tag.
TEST(BookmarkPage, AnEndThatIsFarAwayIsLookedForOnce) {
    for (const std::string& open :
         {"<title>"s, "<script>"s, "<textarea>"s, "<h3><a href=a>"s, "<h3> <b>"s,
          "<a href=\"javascript:\"x"s, "<ul>"s, "<!-- -- "s}) {
        std::string page;
        for (int i = 0; i < 100000; ++i) page += open;
        EXPECT_EQ(importPage(page + "<dl><a href=b>b</a><dt>").events.back(), "b|b") << open;
    }
}

TEST(BookmarkPage, ZeroBytesAreBlanks) {
    const Imported imported =
        importPage("<A\0HREF=a\0>x\0y</A>\0<A HREF=b>\0</A><A HREF=\"\0c\0d\0\">c</A>"s);
    EXPECT_THAT(imported.events, ElementsAre("+Bookmarks", "x y|a", "b|b", "c|c%00d"));
}

TEST(BookmarkPage, LineEndsOfEveryKindAreTheSame) {
    std::string page = head + "<DL>\n<DT><H3>F\nG</H3>\n<DL>\n<DT><A\nHREF=a>b\nc</A>\n</DL>\n";
    const std::string expected = eventsOf(page);
    EXPECT_EQ(expected, "+F G; b c|a");
    for (const std::string& end : {"\r"s, "\r\n"s, "\n\r"s}) {
        std::string other;
        for (const char byte : page) other += byte == '\n' ? end : std::string(1, byte);
        EXPECT_EQ(eventsOf(other), expected);
    }
}

TEST(BookmarkPage, NothingComesOfAnythingElse) {
    for (const std::string& page : {""s, "<DT>"s, "\xEF\xBB\xBF"s, "\xFF\xFE"s, "<"s, "</"s, "<!"s,
                                    "plain text"s, std::string(1000, '\0'), "<H3>F</H3>"s}) {
        const Imported imported = importPage(page);
        EXPECT_THAT(imported.events, IsEmpty());
        EXPECT_EQ(imported.counts.withoutAddress + imported.counts.unreadable, 0U);
    }
}

TEST(BookmarkPage, TheGroupOfTheTopIsNamedAsTheOwnerOfRootLinks) {
    MemoryFiles files;
    files.file("/a", "<DL><DT><H3>F</H3><DL><A HREF=f>f</A></DL><A HREF=r>r</A></DL>");
    files.file("/b", "<DL><DT><H3>F</H3><DL><A HREF=f>f</A></DL></DL>");
    RecordingSink sink;
    importBookmarkFile(files, "/a", {}, sink);
    importBookmarkFile(files, "/b", {}, sink);
    EXPECT_THAT(sink.rootAt, ElementsAre(1));
}

TEST(BookmarkPage, AStoreThatIsFullIsAskedNoMore) {
    MemoryFiles files;
    files.file("/a", "<A HREF=1>1</A><A HREF=2>2</A><A HREF=3>3</A><A>");
    RecordingSink sink;
    sink.room = 2;
    const ImportCounts counts = importBookmarkFile(files, "/a", {}, sink);
    EXPECT_THAT(sink.events, ElementsAre("+Bookmarks", "1|1"));
    EXPECT_EQ(counts.links, 1U);
    EXPECT_EQ(counts.withoutRoom, 2U);
    EXPECT_EQ(counts.withoutAddress, 1U);
}

// Takes groups, but no link.
class FullSink : public RecordingSink {
public:
    bool BungURL(const std::string&, const std::string&) override { return false; }
};

TEST(BookmarkPage, AGroupOfWhichNoLinkFoundRoomIsNotCounted) {
    MemoryFiles files;
    files.file("/a", "<A HREF=1>1</A><A HREF=2>2</A>");
    FullSink sink;
    const ImportCounts counts = importBookmarkFile(files, "/a", {}, sink);
    EXPECT_EQ(counts.groups, 0U);
    EXPECT_EQ(counts.withoutRoom, 2U);
}

TEST(BookmarkPage, AFileThatCantBeReadIsCounted) {
    MemoryFiles files;
    RecordingSink sink;
    EXPECT_EQ(importBookmarkFile(files, "/none", {}, sink).unreadable, 1U);
    EXPECT_THAT(sink.events, IsEmpty());
}

// A file that gives as many bytes as are asked for, up to its size.
class LargeFile : public MemoryFiles {
public:
    explicit LargeFile(std::size_t size) : size_(size) {}

    bool read(const std::string&, std::size_t limit, std::string& bytes) override {
        asked = limit;
        bytes.assign(std::min(limit, size_), ' ');
        bytes.replace(0, 14, "<A HREF=a>a</A>", 14);
        return true;
    }

    std::size_t asked = 0;

private:
    std::size_t size_;
};

TEST(BookmarkPage, AHundredMegabytesAreRead) {
    LargeFile files(100 * 1024 * 1024);
    RecordingSink sink;
    EXPECT_EQ(importBookmarkFile(files, "/page", {}, sink).links, 1U);
}

TEST(BookmarkPage, AFileThatIsTooLongForAPageIsNotRead) {
    LargeFile files(std::numeric_limits<std::size_t>::max());
    RecordingSink sink;
    const ImportCounts counts = importBookmarkFile(files, "/disk image", {}, sink);
    EXPECT_LE(files.asked, 1024U * 1024 * 1024);
    EXPECT_EQ(counts.links, 0U);
    EXPECT_EQ(counts.unreadable, 1U);
}

}  // namespace
}  // namespace magpie
