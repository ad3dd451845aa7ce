// Disk: the folders and files of Windows, for an import.
#pragma once

#include <string>
#include <string_view>

#include "companion/import/folder_files.h"

namespace magpie {

// A path that the platform takes as it is: longer than 260 characters, names with blanks at the
// end.
[[nodiscard]] std::wstring platformPath(std::string_view path);

class Disk : public FolderFiles {
public:
    bool list(const std::string& path, std::vector<FolderEntry>& entries) override;
    std::optional<std::string> identity(const std::string& path) override;
    bool read(const std::string& path, std::size_t limit, std::string& bytes) override;
    [[nodiscard]] std::string inFolder(const std::string& path,
                                       const std::string& name) const override;
};

}  // namespace magpie
