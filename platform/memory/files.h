// Files: the disk of the memory desktop. Folders and files are found by their full path
// whatever its capitals; nothing of it outlives the process.
#pragma once

#include <cstdint>
#include <limits>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/api/types.h"
#include "platform/memory/no_case.h"

namespace win::memory {

// What one opener of a file does with it, and what it lets others do.
struct OpenMode {
    DWORD access = 0;  // GENERIC_READ, GENERIC_WRITE
    DWORD share = 0;   // FILE_SHARE_READ, FILE_SHARE_WRITE

    bool operator==(const OpenMode&) const = default;
};

struct File {
    bool folder = false;
    bool readOnly = false;
    std::string bytes;
    std::vector<OpenMode> openers;
};

struct Disk {
    // By full path: "C:" for the root of the drive, "C:\Magpie", "C:\Magpie\x.pns".
    std::map<std::string, std::shared_ptr<File>, NoCase> files;
    std::uint64_t room = std::numeric_limits<std::uint64_t>::max();  // bytes still free
};

// Drive C: with an empty root at the start.
Disk& disk();

// The full path behind a path as a program spells it, without a backslash at its end.
struct DiskPath {
    std::string full;
    DWORD error = 0;  // why there is no such path
};
DiskPath diskPath(const char* spelled);

// The file or folder at a full path, or null.
std::shared_ptr<File> fileAt(std::string_view full);

// The folder that holds `full`, as a full path.
std::string_view folderOf(std::string_view full);

}  // namespace win::memory
