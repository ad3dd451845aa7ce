#include "companion/import/bookmark_file.h"

#include <gmock/gmock.h>
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
             "+F; a|a"},
        Case{"OtherHeadings",
             "<H1>T</H1><DL><DT><H2>F</H2><DL><DT><A HREF=f>f</A></DL><DT><H1>G</H1><DL><DT>"
             "<A HREF=g>g</A></DL></DL>",
             "+F; f|f; +G; g|g"},
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
             "+Bookmarks; a|a; b|b"}),
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
        Case{"Feed", "<A FEEDURL=http://f/ >f</A><A FEEDURL=http://f/ HREF=http://g/>g</A>",
             "+Bookmarks; f|http://f/; g|http://g/"},
        Case{"Separators", "<A HREF=a>a</A><HR><A HREF=b>b</A><HR SIZE=1>", "+Bookmarks; a|a; b|b"},
        Case{"SeparatorsAsLinks",
             "<A HREF=a>a</A><A HREF=\"http://bookmark.placeholder.url/\" "
             "DESCRIPTION=\"separator\">---</A>",
             "+Bookmarks; a|a"},
        Case{"Comments", "<!-- <A HREF=x>x</A> --><A HREF=a>a<!-- > -->b</A><!--><A HREF=c>c</A>",
             "+Bookmarks; ab|a; c|c"},
        Case{"CommentUnclosed", "<A HREF=a>a</A><!-- x ><A HREF=b>b</A>", "+Bookmarks; a|a; b|b"},
        Case{"QuoteUnclosed", "<A HREF=a>a</A><A HREF=\"http://b/>b</A>\n<A HREF=c>c</A>",
             "+Bookmarks; a|a; b|http://b/; c|c"},
        Case{"UnknownTags", "<DL><font><D><A HREF=a>a</A></font></DL>", "+Bookmarks; a|a"}),
    nameOf);

TEST(BookmarkPage, LinksWithoutAnAddressAreCounted) {
    const Imported imported = importPage(
        "<A NAME=x>x</A><A HREF=>y</A><A HREF=\"\">z</A><A HREF=\" &#32; \">w</A><A HREF=a>a</A>");
    EXPECT_THAT(imported.events, ElementsAre("+Bookmarks", "a|a"));
    EXPECT_EQ(imported.counts.withoutAddress, 4U);
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

TEST(BookmarkPage, ZeroBytesAreBlanks) {
    const Imported imported = importPage("<A\0HREF=a\0>x\0y</A>\0<A HREF=b>\0</A>"s);
    EXPECT_THAT(imported.events, ElementsAre("+Bookmarks", "x y|a", "b|b"));
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

TEST(BookmarkPage, AFileThatCantBeReadIsCounted) {
    MemoryFiles files;
    RecordingSink sink;
    EXPECT_EQ(importBookmarkFile(files, "/none", {}, sink).unreadable, 1U);
    EXPECT_THAT(sink.events, IsEmpty());
}

}  // namespace
}  // namespace magpie
