// Real browsers' files, where there are some: the folder is named by MAGPIE_BOOKMARK_CORPUS, and a
// list in it, SOURCES.txt, says what each file holds.
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iostream>
#include <iterator>
#include <regex>
#include <string>

#include "companion/import/import.h"
#include "companion/import/shortcut_file.h"
#include "tests/unit/companion/memory_files.h"
#include "tests/unit/companion/recording_sink.h"

namespace magpie {
namespace {

std::string bytesOf(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

struct Source {
    std::string file;
    std::string line;
};

// What a search for the expression finds first; empty where it finds nothing.
std::string firstIn(const std::string& text, const std::string& expression) {
    std::smatch found;
    if (!std::regex_search(text, found, std::regex(expression))) return {};
    return found[1];
}

class BookmarkCorpus : public testing::Test {
protected:
    void SetUp() override {
        const char* const folder = std::getenv("MAGPIE_BOOKMARK_CORPUS");
        if (folder == nullptr) GTEST_SKIP() << "MAGPIE_BOOKMARK_CORPUS names no folder";
        root = folder;
        std::ifstream list(root / "SOURCES.txt");
        for (std::string line; std::getline(list, line);) {
            const std::string file = firstIn(line, R"(^(\S+\.(?:html?|url)) \|)");
            if (!file.empty()) sources.push_back({file, line});
        }
        ASSERT_FALSE(sources.empty());
    }

    std::filesystem::path root;
    std::vector<Source> sources;
};

// Said in words, or else counted by whoever made the list.
std::size_t expectedLinks(const std::string& line) {
    if (line.find("refused") != std::string::npos) return 0;
    const std::string said = firstIn(line, R"((\d+) links?\b)");
    return std::stoul(said.empty() ? firstIn(line, R"(raw A=(\d+))") : said);
}

TEST_F(BookmarkCorpus, EveryBookmarkFileGivesTheLinksThatItsOriginExpects) {
    for (const Source& source : sources) {
        if (source.file.ends_with(".url")) continue;
        MemoryFiles files;
        files.file("/page", bytesOf(root / source.file));
        RecordingSink sink;
        const ImportCounts counts = importBookmarkFile(files, "/page", {}, sink);
        std::cout << source.file << " | " << expectedLinks(source.line) << " | " << counts.links
                  << " | " << counts.groups << " | " << reportOf(counts) << "\n";
        EXPECT_EQ(counts.links, expectedLinks(source.line)) << source.file;
    }
}

std::string expectedAddress(const std::filesystem::path& path, const std::string& line) {
    const std::string said = firstIn(line, R"(\| URL=(\S+))");
    if (!said.empty()) return said;
    std::filesystem::path answer = path;
    answer.replace_extension(".json");
    return firstIn(bytesOf(answer), R"re("URL": "([^"]*)")re");
}

TEST_F(BookmarkCorpus, EveryShortcutFileGivesTheAddressThatItsOriginExpects) {
    const CodePageReader western(codePageWestern);
    for (const Source& source : sources) {
        if (!source.file.ends_with(".url")) continue;
        const std::string found = addressInShortcut(bytesOf(root / source.file), western);
        const std::string expected = expectedAddress(root / source.file, source.line);
        std::cout << source.file << " | " << expected << " | " << found << "\n";
        // Of some files the origin says nothing but what they are called.
        if (expected.empty()) continue;
        EXPECT_EQ(found, expected) << source.file;
    }
}

}  // namespace
}  // namespace magpie
