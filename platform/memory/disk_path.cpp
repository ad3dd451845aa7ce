// The platform's rules for spelling a path.
#include <algorithm>

#include "platform/api/constants.h"
#include "platform/memory/files.h"
#include "platform/memory/refuse.h"

namespace win::memory {
namespace {

constexpr std::size_t longestPath = 259;
constexpr std::string_view currentDrive = "C:";

bool isDrive(std::string_view path) {
    const unsigned char letter = path.empty() ? '\0' : capital(path[0]);
    return path.size() >= 3 && letter >= 'A' && letter <= 'Z' && path[1] == ':' && path[2] == '\\';
}

// The characters that no file system of the platform takes in a name.
bool isForbidden(char letter) {
    return static_cast<unsigned char>(letter) < ' ' ||
           std::string_view("<>\"|?*").find(letter) != std::string_view::npos;
}

// In the file's own name a colon would name a stream of the file.
bool isForbiddenInFolder(char letter) {
    return letter == ':' || isForbidden(letter);
}

// The platform drops the dots and blanks at the end of a path, and one dot at the end of each
// folder on the way.
std::string_view trimmed(std::string_view name) {
    const std::size_t last = name.find_last_not_of(". ");
    return last == std::string_view::npos ? std::string_view() : name.substr(0, last + 1);
}

// Goes from the folder `full` to what `name` calls in it.
void step(std::string& full, std::string_view name, bool last) {
    if (name == "..") {
        full.resize(full.find('\\') == std::string::npos ? full.size() : full.rfind('\\'));
        return;
    }
    if (name.empty() || name == ".") return;
    if (last) {
        name = trimmed(name);
        if (name.empty()) return;
    } else if (name.ends_with('.')) {
        name.remove_suffix(1);
        if (name.find_first_not_of('.') == std::string_view::npos) refuse("folder of dots", name);
    }
    if (name.find(':') != std::string_view::npos) refuse("stream of a file", name);
    full.append("\\").append(name);
}

}  // namespace

DiskPath diskPath(const char* spelled) {
    std::string path(spelled);
    if (path.empty()) return {{}, ERROR_PATH_NOT_FOUND};
    if (path.size() > longestPath) return {{}, ERROR_FILENAME_EXCED_RANGE};
    std::replace(path.begin(), path.end(), '/', '\\');
    if (path.starts_with('\\')) path.insert(0, currentDrive);
    if (!isDrive(path)) refuse("path that does not begin with a drive", path);
    const auto name = path.begin() + static_cast<std::ptrdiff_t>(path.rfind('\\'));
    if (std::any_of(path.begin() + 2, name, isForbiddenInFolder)) return {{}, ERROR_INVALID_NAME};
    if (std::any_of(name, path.end(), isForbidden)) return {{}, ERROR_INVALID_NAME};
    std::string full = path.substr(0, 2);
    for (std::size_t at = 2; at < path.size();) {
        const std::size_t begin = at + 1;
        at = std::min(path.find('\\', begin), path.size());
        step(full, std::string_view(path).substr(begin, at - begin), at == path.size());
    }
    const auto file = fileAt(full);
    if (path.back() == '\\' && file && !file->folder) refuse("file named as a folder", path);
    return {std::move(full), 0};
}

std::string_view folderOf(std::string_view full) {
    const std::size_t backslash = full.rfind('\\');
    return backslash == std::string_view::npos ? std::string_view() : full.substr(0, backslash);
}

}  // namespace win::memory
