// Folder files: what an import needs of a disk. Paths and names are UTF-8; a path is one that came
// from the caller or was made of it and a name by `inFolder`.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace magpie {

struct FolderEntry {
    std::string name;
    bool folder = false;
    bool link = false;  // a folder that is another one's second name
};

class FolderFiles {
public:
    virtual ~FolderFiles() = default;

    // What is in a folder, in any order, without "." and ".."; false when it can't be listed.
    virtual bool list(const std::string& path, std::vector<FolderEntry>& entries) = 0;

    // What tells a folder from any other, by whichever way it was come to; none when the folder
    // can't be asked.
    virtual std::optional<std::string> identity(const std::string& path) = 0;

    // The first bytes of a file, at most `limit`; false when it can't be read.
    virtual bool read(const std::string& path, std::size_t limit, std::string& bytes) = 0;

    [[nodiscard]] virtual std::string inFolder(const std::string& path,
                                               const std::string& name) const = 0;
};

}  // namespace magpie
