#include "companion/import/favorites.h"

#include <algorithm>
#include <deque>
#include <set>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

#include "companion/import/shortcut_file.h"

namespace magpie {

namespace {

constexpr std::string_view rootGroup = "Favorites";

// A shortcut file has a few hundred bytes; what is longer than this is none.
constexpr std::size_t longestShortcut = 1024 * 1024;

std::string lowerCase(std::string_view text) {
    std::string lower(text);
    for (char& byte : lower) {
        if (byte >= 'A' && byte <= 'Z') byte = static_cast<char>(byte + ('a' - 'A'));
    }
    return lower;
}

bool hasEnding(std::string_view name, std::string_view ending) {
    return name.size() >= ending.size() &&
           lowerCase(name.substr(name.size() - ending.size())) == ending;
}

std::string_view withoutEnding(std::string_view name) {
    return name.substr(0, name.rfind('.'));
}

// Without regard to case; names that differ in nothing else by their bytes.
void sortByName(std::vector<FolderEntry>& entries) {
    std::vector<std::pair<std::string, FolderEntry*>> keys;
    keys.reserve(entries.size());
    for (FolderEntry& entry : entries) keys.emplace_back(lowerCase(entry.name), &entry);
    std::ranges::sort(keys, [](const auto& a, const auto& b) {
        return std::tie(a.first, a.second->name) < std::tie(b.first, b.second->name);
    });
    std::vector<FolderEntry> sorted;
    sorted.reserve(entries.size());
    for (const auto& key : keys) sorted.push_back(std::move(*key.second));
    entries = std::move(sorted);
}

class Walk {
public:
    Walk(FolderFiles& files, const CodePageReader& codePage, HandOver& handOver)
        : files_(files), codePage_(codePage), handOver_(handOver) {}

    void run(const std::string& root) {
        waiting_.push_back({root, {}});
        visitWaiting();
        // A folder that has a name of its own in the tree goes by that.
        while (!links_.empty()) {
            waiting_.push_back(std::move(links_.front()));
            links_.pop_front();
            visitWaiting();
        }
    }

private:
    struct Folder {
        std::string path;
        std::string group;  // empty for the root
    };

    void visitWaiting() {
        while (!waiting_.empty()) {
            const Folder folder = std::move(waiting_.back());
            waiting_.pop_back();
            visit(folder);
        }
    }

    void visit(const Folder& folder) {
        const std::optional<std::string> identity = files_.identity(folder.path);
        if (identity && !visited_.insert(*identity).second) return;
        std::vector<FolderEntry> entries;
        if (!identity || !files_.list(folder.path, entries)) return handOver_.skipUnreadable();
        sortByName(entries);
        if (folder.group.empty()) {
            handOver_.enterRoot(rootGroup);
        } else {
            handOver_.enterFolder(folder.group);
        }
        for (const FolderEntry& entry : entries) {
            if (!entry.folder) takeFile(folder, entry.name);
        }
        takeFolders(folder, entries);
    }

    void takeFolders(const Folder& folder, const std::vector<FolderEntry>& entries) {
        const auto in = [&](const FolderEntry& entry) {
            return Folder{files_.inFolder(folder.path, entry.name),
                          nameInFolder(folder.group, entry.name)};
        };
        // The last one that waits is visited first.
        for (auto entry = entries.rbegin(); entry != entries.rend(); ++entry) {
            if (entry->folder && !entry->link) waiting_.push_back(in(*entry));
        }
        for (const FolderEntry& entry : entries) {
            if (entry.folder && entry.link) links_.push_back(in(entry));
        }
    }

    void takeFile(const Folder& folder, const std::string& name) {
        if (hasEnding(name, ".lnk")) return handOver_.skipWithoutAddress();
        if (!hasEnding(name, ".url") && !hasEnding(name, ".website")) return;
        bytes_.clear();
        if (!files_.read(files_.inFolder(folder.path, name), longestShortcut, bytes_)) {
            return handOver_.skipUnreadable();
        }
        handOver_.link(withoutEnding(name), addressInShortcut(bytes_, codePage_));
    }

    FolderFiles& files_;
    const CodePageReader& codePage_;
    HandOver& handOver_;
    std::vector<Folder> waiting_;
    std::deque<Folder> links_;
    std::set<std::string> visited_;
    std::string bytes_;
};

}  // namespace

void importFavoritesFolder(FolderFiles& files, const std::string& path, unsigned codePage,
                           CodePageCalls calls, HandOver& handOver) {
    const CodePageReader reader(codePage, calls);
    Walk(files, reader, handOver).run(path);
}

}  // namespace magpie
