// MemoryFiles: a disk for the tests of the import, "/" between names. A folder may be a link to
// another one, a file or folder may be unreadable.
#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "companion/import/folder_files.h"

namespace magpie {

class MemoryFiles : public FolderFiles {
public:
    MemoryFiles() { folders_.insert("/"); }

    // Makes the folders around it as well. Paths begin with "/".
    void file(const std::string& path, const std::string& bytes) {
        folder(path.substr(0, path.rfind('/')));
        files_[path] = bytes;
    }
    void folder(const std::string& path) {
        if (path.empty()) return;
        folder(path.substr(0, path.rfind('/')));
        folders_.insert(path);
    }
    void link(const std::string& path, const std::string& target) {
        folder(path.substr(0, path.rfind('/')));
        links_[path] = target;
    }
    void lock(const std::string& path) { locked_.insert(path); }

    bool list(const std::string& path, std::vector<FolderEntry>& entries) override {
        const std::string real = realPath(path);
        ++listed[real];
        if (locked_.contains(real)) return false;
        // A disk has its own order: here the last name comes first.
        for (auto each = files_.rbegin(); each != files_.rend(); ++each) {
            add(real, each->first, {{}, false}, entries);
        }
        for (auto each = folders_.rbegin(); each != folders_.rend(); ++each) {
            add(real, *each, {{}, true}, entries);
        }
        for (const auto& [at, target] : links_) {
            add(real, at, {{}, true, true}, entries);
        }
        return true;
    }
    std::optional<std::string> identity(const std::string& path) override {
        const std::string real = realPath(path);
        if (!folders_.contains(real)) return std::nullopt;
        return real;
    }
    bool read(const std::string& path, std::size_t limit, std::string& bytes) override {
        const std::string real = realPath(path);
        if (locked_.contains(real) || !files_.contains(real)) return false;
        bytes = files_.at(real).substr(0, limit);
        return true;
    }
    [[nodiscard]] std::string inFolder(const std::string& path,
                                       const std::string& name) const override {
        return path == "/" ? path + name : path + "/" + name;
    }

    std::map<std::string, int> listed;

private:
    static void add(const std::string& path, const std::string& each, FolderEntry entry,
                    std::vector<FolderEntry>& entries) {
        const std::size_t slash = each.rfind('/');
        const std::string outer = slash == 0 ? "/" : each.substr(0, slash);
        entry.name = each.substr(slash + 1);
        if (each != "/" && outer == path) entries.push_back(entry);
    }

    // Follows the links on the way, the last name's included.
    std::string realPath(const std::string& path) const {
        std::string real;
        std::size_t at = 1;
        while (at < path.size()) {
            const std::size_t end = std::min(path.find('/', at), path.size());
            real += "/" + path.substr(at, end - at);
            if (links_.contains(real)) real = links_.at(real);
            if (real == "/") real.clear();
            at = end + 1;
        }
        return real.empty() ? "/" : real;
    }

    std::map<std::string, std::string> files_;
    std::set<std::string> folders_;
    std::map<std::string, std::string> links_;
    std::set<std::string> locked_;
};

}  // namespace magpie
