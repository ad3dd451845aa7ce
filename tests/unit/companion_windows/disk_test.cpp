// An import on a real disk.
#include "companion/import/windows/disk.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <string>
#include <vector>

#include "companion/import/host_text.h"
#include "companion/import/import.h"
#include "companion/import/windows/platform_code_pages.h"
#include "companion/import/windows/wide_text.h"
#include "tests/unit/companion/recording_sink.h"

namespace magpie {
namespace {

using testing::ElementsAre;

class DiskTest : public testing::Test {
protected:
    void SetUp() override {
        const testing::TestInfo* const test = testing::UnitTest::GetInstance()->current_test_info();
        root = std::filesystem::temp_directory_path() / "magpie import" / test->name();
        std::filesystem::remove_all(root);
        std::filesystem::create_directories(root);
    }
    void TearDown() override { std::filesystem::remove_all(root); }

    void write(const std::string& name, const std::string& bytes) {
        const std::filesystem::path path = root / wideOf(name);
        std::filesystem::create_directories(path.parent_path());
        std::ofstream(path, std::ios::binary) << bytes;
    }
    std::string utf8Root() const { return utf8OfWide(root.native()); }
    ImportCounts importAll() {
        return importFavorites(disk, utf8Root(), {codePageWestern, platformCodePages()}, sink);
    }

    std::filesystem::path root;
    Disk disk;
    RecordingSink sink;
};

TEST_F(DiskTest, AFolderTreeComesInByNameWithTitlesOfEveryScript) {
    write("b\xC3\xA4r.url", "[InternetShortcut]\r\nURL=http://b/\r\n");
    write("Outer\\Inner\\\xD0\x96.url", "[InternetShortcut]\r\nURL=http://zh/\r\n");
    write("Outer\\desktop.ini", "[.ShellClassInfo]\r\n");
    const ImportCounts counts = importAll();
    EXPECT_THAT(sink.events,
                ElementsAre("+Favorites", "b\xE4r|http://b/", "+Outer - Inner", "?|http://zh/"));
    EXPECT_EQ(counts.unreadable, 0U);
}

TEST_F(DiskTest, APathLongerThanUsualIsRead) {
    std::string path = utf8Root();
    std::string group;
    std::vector<std::filesystem::path> made;
    for (int level = 0; level < 8; ++level) {
        const std::string name(60, static_cast<char>('a' + level));
        path = disk.inFolder(path, name);
        group += (level == 0 ? "" : " - ") + name;
        made.emplace_back(L"\\\\?\\" + wideOf(path));
        std::filesystem::create_directory(made.back());
    }
    made.emplace_back(L"\\\\?\\" + wideOf(disk.inFolder(path, "deep.url")));
    std::FILE* const opened = _wfopen(made.back().c_str(), L"wb");
    ASSERT_NE(opened, nullptr);
    std::fputs("[InternetShortcut]\r\nURL=http://deep/\r\n", opened);
    std::fclose(opened);
    importAll();
    EXPECT_THAT(sink.events, ElementsAre("+" + group, "deep|http://deep/"));
    // The library removes no tree with paths as long as these.
    std::for_each(made.rbegin(), made.rend(),
                  [](const auto& each) { std::filesystem::remove(each); });
}

TEST_F(DiskTest, AFolderIsTheSameByWhicheverNameItIsReached) {
    write("a\\one.url", "[InternetShortcut]\r\nURL=http://one/\r\n");
    const std::string path = disk.inFolder(utf8Root(), "a");
    ASSERT_NE(disk.identity(path), std::nullopt);
    EXPECT_EQ(disk.identity(path), disk.identity(disk.inFolder(utf8Root(), "A")));
    EXPECT_NE(disk.identity(path), disk.identity(utf8Root()));
    EXPECT_EQ(disk.identity(path + "nothing"), std::nullopt);
}

TEST_F(DiskTest, PathsOfEveryKindAreTakenAsTheyAre) {
    EXPECT_EQ(platformPath("C:\\a"), L"\\\\?\\C:\\a");
    EXPECT_EQ(platformPath("\\\\server\\share\\a"), L"\\\\?\\UNC\\server\\share\\a");
    EXPECT_EQ(platformPath("\\\\?\\C:\\a"), L"\\\\?\\C:\\a");
    EXPECT_EQ(platformPath("a"), L"a");
}

TEST_F(DiskTest, AFolderThatIsNotThereIsCounted) {
    for (const std::string& path : {utf8Root() + "\\none", std::string()}) {
        RecordingSink none;
        EXPECT_EQ(
            importFavorites(disk, path, {codePageWestern, platformCodePages()}, none).unreadable,
            1U)
            << path;
    }
}

// Held open by a program that shares it with nobody.
TEST_F(DiskTest, AFileThatAnotherProgramHoldsIsCounted) {
    write("held.url", "[InternetShortcut]\r\nURL=http://held/\r\n");
    write("free.url", "[InternetShortcut]\r\nURL=http://free/\r\n");
    const std::filesystem::path held = root / "held.url";
    constexpr int denyAll = 0x10;
    std::FILE* const file = _wfsopen(held.c_str(), L"rb", denyAll);
    ASSERT_NE(file, nullptr);
    const ImportCounts counts = importAll();
    std::fclose(file);
    EXPECT_THAT(sink.events, ElementsAre("+Favorites", "free|http://free/"));
    EXPECT_EQ(counts.unreadable, 1U);
}

TEST_F(DiskTest, TheShiftedCodePagesAreReadThroughThePlatform) {
    write("jis.htm", "<DL><DT><A HREF=\"http://j/\">\x1B$BF|K\\\x1B(B</A></DL>");
    write("utf7.htm", "<META CHARSET=utf-7><DL><DT><A HREF=\"http://u/\">+AOQ-b</A></DL>");
    for (const char* const name : {"jis.htm", "utf7.htm"}) {
        importBookmarkFile(disk, disk.inFolder(utf8Root(), name), {932, platformCodePages()}, sink);
    }
    EXPECT_THAT(sink.events, ElementsAre("+Bookmarks", "\x93\xFA\x96\x7B|http://j/", "+Bookmarks",
                                         "ab|http://u/"));
}

TEST_F(DiskTest, TitlesComeAsNearAsTheCodePagesOfThePlatformAllow) {
    const CodePageCalls calls = platformCodePages();
    EXPECT_EQ(HostText(932, calls).title("\xE3\x81\x8B\xE3\x82\x99\xC3\xA9\xC2\xAD"),
              "\x82\xAA"
              "e");
    EXPECT_EQ(HostText(949, calls).title("\xE1\x84\x92\xE1\x85\xA1\xE1\x86\xAB"), "\xC7\xD1");
    EXPECT_EQ(HostText(874, calls).title("\xE0\xB8\x81\xE2\x80\x8B"), "\xA1");
}

TEST_F(DiskTest, WhatIsNotThereIsNeitherListedNorRead) {
    std::vector<FolderEntry> entries;
    std::string bytes;
    EXPECT_FALSE(disk.list(disk.inFolder(utf8Root(), "none"), entries));
    EXPECT_FALSE(disk.read(disk.inFolder(utf8Root(), "none"), 100, bytes));
    EXPECT_FALSE(disk.read(utf8Root(), 100, bytes));
}

TEST_F(DiskTest, AFileIsReadToItsLimit) {
    write("long", std::string(200000, 'x'));
    std::string bytes;
    EXPECT_TRUE(disk.read(disk.inFolder(utf8Root(), "long"), 100000, bytes));
    EXPECT_EQ(bytes.size(), 100000U);
    EXPECT_TRUE(disk.read(disk.inFolder(utf8Root(), "long"), 1000000, bytes));
    EXPECT_EQ(bytes.size(), 200000U);
}

TEST_F(DiskTest, APageInJapaneseIsReadThroughThePlatform) {
    write("page.htm",
          "<META content=\"text/html; charset=Shift_JIS\"><DL>"
          "<DT><A HREF=\"http://j/\x93\xFA\x96\x7B\">\x93\xFA\x96\x7B</A></DL>");
    const std::string page = disk.inFolder(utf8Root(), "page.htm");
    importBookmarkFile(disk, page, {codePageWestern, platformCodePages()}, sink);
    importBookmarkFile(disk, page, {932, platformCodePages()}, sink);
    EXPECT_THAT(sink.events,
                ElementsAre("+Bookmarks", "??|http://j/%E6%97%A5%E6%9C%AC", "+Bookmarks",
                            "\x93\xFA\x96\x7B|http://j/%E6%97%A5%E6%9C%AC"));
}

}  // namespace
}  // namespace magpie
