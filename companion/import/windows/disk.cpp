#include "companion/import/windows/disk.h"

#include <algorithm>
#include <array>
#include <memory>

#include "companion/import/windows/wide_text.h"

#include <windows.h>

namespace magpie {

namespace {

constexpr std::size_t chunk = 64 * 1024;

struct CloseFile {
    using pointer = HANDLE;
    void operator()(HANDLE file) const { CloseHandle(file); }
};
using File = std::unique_ptr<HANDLE, CloseFile>;

struct CloseSearch {
    using pointer = HANDLE;
    void operator()(HANDLE search) const { FindClose(search); }
};
using Search = std::unique_ptr<HANDLE, CloseSearch>;

bool isLink(const WIN32_FIND_DATAW& found) {
    return (found.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 &&
           (found.dwReserved0 == IO_REPARSE_TAG_MOUNT_POINT ||
            found.dwReserved0 == IO_REPARSE_TAG_SYMLINK);
}

HANDLE orNull(HANDLE handle) {
    return handle == INVALID_HANDLE_VALUE ? nullptr : handle;
}

File openFile(const std::string& path, DWORD access, DWORD flags) {
    constexpr DWORD shareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    return File(orNull(CreateFileW(platformPath(path).c_str(), access, shareAll, nullptr,
                                   OPEN_EXISTING, flags, nullptr)));
}

}  // namespace

std::wstring platformPath(std::string_view path) {
    if (path.size() > 2 && path[1] == ':' && path[2] == '\\') return L"\\\\?\\" + wideOf(path);
    const bool server =
        path.size() > 2 && path.starts_with("\\\\") && path[2] != '?' && path[2] != '.';
    return server ? L"\\\\?\\UNC" + wideOf(path.substr(1)) : wideOf(path);
}

bool Disk::list(const std::string& path, std::vector<FolderEntry>& entries) {
    WIN32_FIND_DATAW found{};
    const std::wstring all = platformPath(inFolder(path, "*"));
    const Search search(
        orNull(FindFirstFileExW(all.c_str(), FindExInfoBasic, &found, FindExSearchNameMatch,
                                nullptr, FIND_FIRST_EX_LARGE_FETCH)));
    if (!search) return false;
    do {
        const std::wstring_view name = found.cFileName;
        if (name == L"." || name == L"..") continue;
        const bool folder = (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
        entries.push_back({utf8OfWide(name), folder, folder && isLink(found)});
    } while (FindNextFileW(search.get(), &found) != 0);
    return GetLastError() == ERROR_NO_MORE_FILES;
}

// The volume's number and the folder's on it.
std::optional<std::string> Disk::identity(const std::string& path) {
    const File folder = openFile(path, FILE_READ_ATTRIBUTES, FILE_FLAG_BACKUP_SEMANTICS);
    BY_HANDLE_FILE_INFORMATION found{};
    if (!folder || GetFileInformationByHandle(folder.get(), &found) == 0) return std::nullopt;
    return std::to_string(found.dwVolumeSerialNumber)
        .append(":")
        .append(std::to_string(found.nFileIndexHigh))
        .append(":")
        .append(std::to_string(found.nFileIndexLow));
}

bool Disk::read(const std::string& path, std::size_t limit, std::string& bytes) {
    const File file = openFile(path, GENERIC_READ, FILE_FLAG_SEQUENTIAL_SCAN);
    if (!file) return false;
    bytes.clear();
    std::array<char, chunk> buffer;
    while (bytes.size() < limit) {
        const std::size_t wanted = std::min(limit - bytes.size(), buffer.size());
        DWORD count = 0;
        if (ReadFile(file.get(), buffer.data(), static_cast<DWORD>(wanted), &count, nullptr) == 0) {
            return false;
        }
        if (count == 0) break;
        bytes.append(buffer.data(), count);
    }
    return true;
}

std::string Disk::inFolder(const std::string& path, const std::string& name) const {
    std::string whole = path;
    if (!whole.ends_with('\\')) whole += '\\';
    return whole += name;
}

}  // namespace magpie
