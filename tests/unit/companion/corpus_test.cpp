// Real browsers' files, where there are some: the folder is named by MAGPIE_BOOKMARK_CORPUS, and a
// list in it, SOURCES.txt, says what each file holds. Beside some lies the tree of bookmarks that
// another program made of it.
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <iostream>
#include <iterator>
#include <regex>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "companion/import/import.h"
#include "companion/import/shortcut_file.h"
#include "tests/unit/companion/json_value.h"
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

// --- Trees -------------------------------------------------------------------

// The links of a folder, each "title|address", in its order.
struct Group {
    std::string name;
    std::vector<std::string> links;
};

// The other programs write in addresses what ours leaves, and keep the blanks of titles.
std::string comparable(const std::string& title, const std::string& address) {
    std::string url;
    for (const char byte : address) {
        const std::string_view escaped = byte == ' ' ? "%20" : byte == '<' ? "%3C" : "%3E";
        byte == ' ' || byte == '<' || byte == '>' ? url += escaped : url += byte;
    }
    const std::string folded = std::regex_replace(title, std::regex(R"(\s+)"), " ");
    return (folded.empty() ? url : folded) + "|" + url;
}

// The links of a folder of the tree as one group, those of the folders in it behind it.
void appendGroups(const JsonValue& folder, const std::string& name, std::vector<Group>& groups) {
    const JsonValue* const children = folder.find("children");
    if (children == nullptr) return;
    Group group{name, {}};
    for (const auto& [unnamed, child] : children->members) {
        const std::string url = child.textOf({"url", "uri"});
        if (!url.empty()) group.links.push_back(comparable(child.textOf({"title", "name"}), url));
    }
    if (!group.links.empty()) groups.push_back(group);
    for (const auto& [unnamed, child] : children->members) {
        const std::string inner = child.textOf({"title", "name"});
        appendGroups(child, name.empty() ? inner : name + " - " + inner, groups);
    }
}

// Groups by their way from one of the tree's roots. What the roots are called is each program's own
// affair, and where a page has what lies in them: it may be at the top, or in a folder.
std::vector<Group> groupsOfTree(const JsonValue& tree) {
    std::vector<Group> groups;
    const JsonValue* roots = tree.find("roots");
    if (roots == nullptr) roots = tree.find("children");
    for (const auto& [name, root] : roots->members) {
        // Firefox leaves these out of the pages that it writes.
        if (root.textOf({"root"}) != "mobileFolder") appendGroups(root, {}, groups);
    }
    return groups;
}

std::vector<Group> groupsOf(const std::vector<std::string>& events) {
    std::vector<Group> groups;
    for (const std::string& event : events) {
        if (event.starts_with('+')) {
            groups.push_back({event.substr(1), {}});
            continue;
        }
        const std::size_t bar = event.rfind('|');
        groups.back().links.push_back(comparable(event.substr(0, bar), event.substr(bar + 1)));
    }
    return groups;
}

bool isWay(const std::string& name, const std::string& fromRoot) {
    return name == fromRoot || name.ends_with(" - " + fromRoot);
}

// Takes from what was found each group of the tree, link by link; what lies at the top of the
// roots must be all that is left.
void expectSame(std::vector<Group> found, const std::vector<Group>& expected) {
    std::vector<std::string> atTop;
    for (const Group& group : expected) {
        if (group.name.empty()) {
            atTop.insert(atTop.end(), group.links.begin(), group.links.end());
            continue;
        }
        const auto same = std::ranges::find_if(found, [&group](const Group& each) {
            return isWay(each.name, group.name) && each.links == group.links;
        });
        EXPECT_NE(same, found.end()) << group.name;
        if (same != found.end()) found.erase(same);
    }
    std::vector<std::string> left;
    for (const Group& group : found) {
        left.insert(left.end(), group.links.begin(), group.links.end());
    }
    EXPECT_THAT(left, testing::UnorderedElementsAreArray(atTop));
}

// The tree of a page: beside it, or in a folder of expected ones. Some pages differ in layout only.
std::filesystem::path treeOf(const std::filesystem::path& page) {
    std::string name = page.stem().string();
    name = std::regex_replace(name, std::regex("_(formatted|unindented)$"), "");
    name += ".json";
    const std::filesystem::path beside = page.parent_path() / name;
    if (std::filesystem::exists(beside)) return beside;
    std::error_code none;
    for (const auto& each :
         std::filesystem::directory_iterator(page.parent_path() / "expected", none)) {
        if (each.path().filename().string().ends_with("." + name)) return each.path();
    }
    return {};
}

TEST_F(BookmarkCorpus, EveryBookmarkFileGivesTheTreeThatItsOriginExpects) {
    std::size_t compared = 0;
    for (const Source& source : sources) {
        const std::filesystem::path tree = treeOf(root / source.file);
        if (source.file.ends_with(".url") || tree.empty()) continue;
        SCOPED_TRACE(source.file);
        MemoryFiles files;
        files.file("/page", bytesOf(root / source.file));
        RecordingSink sink;
        importBookmarkFile(files, "/page", {codePageUtf8, {}}, sink);
        const std::vector<Group> expected = groupsOfTree(JsonReader(bytesOf(tree)).read());
        expectSame(groupsOf(sink.events), expected);
        std::cout << source.file << " | " << expected.size() << " groups\n";
        ++compared;
    }
    EXPECT_NE(compared, 0U);
}

// --- Shortcuts ---------------------------------------------------------------

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
