#include "companion/import/favorites.h"

#include <gmock/gmock.h>
#include <string>

#include "companion/import/import.h"
#include "tests/unit/companion/memory_files.h"
#include "tests/unit/companion/recording_sink.h"

namespace magpie {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Favorites : public testing::Test {
protected:
    void shortcut(const std::string& path, const std::string& address) {
        files.file(path, "[InternetShortcut]\r\nURL=" + address + "\r\n");
    }
    ImportCounts importAll() { return importFavorites(files, "/", {}, sink); }

    MemoryFiles files;
    RecordingSink sink;
};

TEST_F(Favorites, LinksAtTheTopAreTheGroupFavorites) {
    shortcut("/b.url", "http://b/");
    shortcut("/a.url", "http://a/");
    importAll();
    EXPECT_THAT(sink.events, ElementsAre("+Favorites", "a|http://a/", "b|http://b/"));
    EXPECT_THAT(sink.rootAt, ElementsAre(1));
}

TEST_F(Favorites, FoldersAreGroupsNamedByTheirWay) {
    shortcut("/Outer/Inner/i.url", "i");
    shortcut("/Outer/o.url", "o");
    shortcut("/Last/l.url", "l");
    shortcut("/r.url", "r");
    importAll();
    EXPECT_THAT(sink.events, ElementsAre("+Favorites", "r|r", "+Last", "l|l", "+Outer", "o|o",
                                         "+Outer - Inner", "i|i"));
}

TEST_F(Favorites, FoldersWithoutLinksAreNoGroups) {
    files.folder("/Empty");
    files.file("/Empty too/desktop.ini", "[.ShellClassInfo]\r\nURL=x\r\n");
    shortcut("/Full/f.url", "f");
    const ImportCounts counts = importAll();
    EXPECT_THAT(sink.events, ElementsAre("+Full", "f|f"));
    EXPECT_THAT(sink.rootAt, IsEmpty());
    EXPECT_EQ(counts.withoutAddress + counts.unreadable, 0U);
}

TEST_F(Favorites, NamesAreSortedWithoutRegardToCase) {
    for (const char* const name : {"/b.url", "/C.url", "/a.url", "/B.url"}) shortcut(name, "x");
    importAll();
    EXPECT_THAT(sink.events, ElementsAre("+Favorites", "a|x", "B|x", "b|x", "C|x"));
}

TEST_F(Favorites, EndingsAreKnownInAnyCase) {
    shortcut("/a.URL", "a");
    shortcut("/b.Url", "b");
    shortcut("/c.website", "c");
    shortcut("/d.txt", "d");
    shortcut("/e.url.bak", "e");
    shortcut("/.url", "f");
    shortcut("/url", "h");
    shortcut("/v1.0.url", "g");
    importAll();
    EXPECT_THAT(sink.events, ElementsAre("+Favorites", "f|f", "a|a", "b|b", "c|c", "v1.0|g"));
}

TEST_F(Favorites, WhatGivesNoLinkIsCounted) {
    shortcut("/empty.url", "");
    files.file("/nothing.url", "");
    files.file("/program.lnk", "L");
    shortcut("/locked.url", "x");
    files.lock("/locked.url");
    files.folder("/Locked");
    files.lock("/Locked");
    shortcut("/good.url", "g");
    const ImportCounts counts = importAll();
    EXPECT_THAT(sink.events, ElementsAre("+Favorites", "good|g"));
    EXPECT_EQ(counts.withoutAddress, 3U);
    EXPECT_EQ(counts.unreadable, 2U);
}

TEST_F(Favorites, AFolderThatIsNotThereIsCounted) {
    const ImportCounts counts = importFavorites(files, "/none", {}, sink);
    EXPECT_THAT(sink.events, IsEmpty());
    EXPECT_EQ(counts.unreadable, 1U);
}

TEST_F(Favorites, ALinkToAFolderElsewhereIsFollowed) {
    shortcut("/F/f.url", "f");
    files.link("/F/Elsewhere", "/Other");
    shortcut("/Other/o.url", "o");
    importFavorites(files, "/F", {}, sink);
    EXPECT_THAT(sink.events, ElementsAre("+Favorites", "f|f", "+Elsewhere", "o|o"));
}

TEST_F(Favorites, LinksThatLoopEndAndEachFolderComesInOnce) {
    shortcut("/A/a.url", "a");
    shortcut("/A/B/b.url", "b");
    files.link("/A/B/Back", "/A");
    files.link("/A/B/Top", "/");
    files.link("/A/B/Self", "/A/B");
    files.link("/Z", "/A/B");
    const ImportCounts counts = importAll();
    EXPECT_THAT(sink.events, ElementsAre("+A", "a|a", "+A - B", "b|b"));
    for (const auto& [path, times] : files.listed) EXPECT_EQ(times, 1) << path;
    EXPECT_EQ(counts.unreadable, 0U);
}

TEST_F(Favorites, AFolderComesInUnderItsOwnNameRatherThanALinks) {
    files.link("/A/Link", "/B");
    shortcut("/A/a.url", "a");
    shortcut("/B/C/c.url", "c");
    shortcut("/B/b.url", "b");
    importAll();
    EXPECT_THAT(sink.events, ElementsAre("+A", "a|a", "+B", "b|b", "+B - C", "c|c"));
}

TEST_F(Favorites, AThousandLevelsAreWalked) {
    std::string path;
    for (int level = 0; level < 1000; ++level) path += "/x";
    shortcut(path + "/deep.url", "d");
    const ImportCounts counts = importAll();
    EXPECT_EQ(counts.links, 1U);
    EXPECT_EQ(sink.events.at(1), "deep|d");
}

TEST_F(Favorites, NamesAreBroughtIntoTheCodePage) {
    shortcut("/C++ \xD0\x96/b\xC3\xA4r \xE2\x80\x93 x.url", "http://a/\xC3\xA4");
    importAll();
    EXPECT_THAT(sink.events, ElementsAre("+C&& ?", "b\xE4r \x96 x|http://a/%C3%A4"));
}

TEST_F(Favorites, AStoreThatIsFullIsAskedNoMore) {
    shortcut("/a.url", "a");
    shortcut("/b.url", "b");
    shortcut("/F/c.url", "c");
    sink.room = 2;
    const ImportCounts counts = importAll();
    EXPECT_THAT(sink.events, ElementsAre("+Favorites", "a|a"));
    EXPECT_EQ(counts.withoutRoom, 2U);
}

}  // namespace
}  // namespace magpie
