#include "platform/memory/files.h"

#include <algorithm>

#include "platform/api/kernel32.h"
#include "platform/memory/faults.h"
#include "platform/memory/handles.h"
#include "platform/memory/refuse.h"

namespace win {

namespace memory {
namespace {

struct OpenFile : KernelObject {
    OpenFile(std::shared_ptr<File> what, OpenMode how) : file(std::move(what)), mode(how) {
        file->openers.push_back(mode);
    }
    ~OpenFile() override { file->openers.erase(std::ranges::find(file->openers, mode)); }

    std::shared_ptr<File> file;
    OpenMode mode;
    std::size_t position = 0;
};

OpenFile* openFile(HANDLE handle) {
    return dynamic_cast<OpenFile*>(objectOf(handle));
}

Disk formattedDisk() {
    Disk made;
    made.files["C:"] = std::make_shared<File>(File{.folder = true, .bytes = {}, .openers = {}});
    return made;
}

bool isFolder(std::string_view full) {
    const auto file = fileAt(full);
    return file && file->folder;
}

// Why nothing was found at a path.
DWORD missing(const DiskPath& path) {
    return isFolder(folderOf(path.full)) ? ERROR_FILE_NOT_FOUND : ERROR_PATH_NOT_FOUND;
}

bool collides(OpenMode one, OpenMode other) {
    return ((one.access & GENERIC_READ) && !(other.share & FILE_SHARE_READ)) ||
           ((one.access & GENERIC_WRITE) && !(other.share & FILE_SHARE_WRITE));
}

DWORD openError(const DiskPath& path, const File* file, OpenMode mode, DWORD disposition) {
    if (path.error) return path.error;
    if (!file) {
        const bool creates = disposition == CREATE_ALWAYS && isFolder(folderOf(path.full));
        return creates ? ERROR_SUCCESS : missing(path);
    }
    if (file->folder) return ERROR_ACCESS_DENIED;
    if (file->readOnly && (mode.access & GENERIC_WRITE)) return ERROR_ACCESS_DENIED;
    const bool shared = std::ranges::none_of(file->openers, [mode](OpenMode other) {
        return collides(mode, other) || collides(other, mode);
    });
    return shared ? ERROR_SUCCESS : ERROR_SHARING_VIOLATION;
}

void checkOpening(OpenMode mode, DWORD disposition, DWORD attributes) {
    if (mode.access == 0 || (mode.access & ~(GENERIC_READ | GENERIC_WRITE))) {
        refuse("CreateFileA access", mode.access);
    }
    if (mode.share & ~(FILE_SHARE_READ | FILE_SHARE_WRITE)) refuse("CreateFileA share", mode.share);
    if (disposition != CREATE_ALWAYS && disposition != OPEN_EXISTING) {
        refuse("CreateFileA disposition", disposition);
    }
    if (disposition == CREATE_ALWAYS && !(mode.access & GENERIC_WRITE)) {
        refuse("CreateFileA creates without writing, access", mode.access);
    }
    if (attributes != FILE_ATTRIBUTE_NORMAL && attributes != FILE_ATTRIBUTE_READONLY) {
        refuse("CreateFileA attributes", attributes);
    }
}

BOOL failWith(DWORD error) {
    SetLastError(error);
    return 0;
}

}  // namespace

Disk& disk() {
    static Disk drive = formattedDisk();
    return drive;
}

std::shared_ptr<File> fileAt(std::string_view full) {
    const auto found = disk().files.find(full);
    return found == disk().files.end() ? nullptr : found->second;
}

}  // namespace memory

using namespace memory;

HANDLE CreateFileA(const char* path, DWORD access, DWORD share, const void* security,
                   DWORD disposition, DWORD attributes, HANDLE templateFile) {
    const OpenMode mode{access, share};
    checkOpening(mode, disposition, attributes);
    if (security || templateFile) refuse("CreateFileA", "security or template");
    if (faultIn("CreateFileA")) return INVALID_HANDLE_VALUE;
    const DiskPath place = diskPath(path);
    std::shared_ptr<File> file = fileAt(place.full);
    const bool existed = file != nullptr;
    if (const DWORD error = openError(place, file.get(), mode, disposition)) {
        SetLastError(error);
        return INVALID_HANDLE_VALUE;
    }
    if (!file) file = disk().files[place.full] = std::make_shared<File>();
    const bool creates = disposition == CREATE_ALWAYS;
    if (creates) file->bytes.clear();
    if (creates) file->readOnly = attributes == FILE_ATTRIBUTE_READONLY;
    SetLastError(creates && existed ? ERROR_ALREADY_EXISTS : ERROR_SUCCESS);
    return newHandle(std::make_unique<OpenFile>(std::move(file), mode));
}

BOOL ReadFile(HANDLE handle, std::span<char> buffer, DWORD* read, void* overlapped) {
    if (overlapped || !read) refuse("ReadFile", "overlapped");
    *read = 0;
    if (faultIn("ReadFile")) return 0;
    OpenFile* open = openFile(handle);
    if (!open) return failWith(ERROR_INVALID_HANDLE);
    if (!(open->mode.access & GENERIC_READ)) return failWith(ERROR_ACCESS_DENIED);
    const std::string& bytes = open->file->bytes;
    const std::size_t begin = std::min(open->position, bytes.size());
    const std::size_t count = bytes.copy(buffer.data(), buffer.size(), begin);
    open->position = begin + count;
    *read = static_cast<DWORD>(count);
    return 1;
}

BOOL WriteFile(HANDLE handle, std::span<const char> data, DWORD* written, void* overlapped) {
    if (overlapped || !written) refuse("WriteFile", "overlapped");
    *written = 0;
    if (faultIn("WriteFile")) return 0;
    OpenFile* open = openFile(handle);
    if (!open) return failWith(ERROR_INVALID_HANDLE);
    if (!(open->mode.access & GENERIC_WRITE)) return failWith(ERROR_ACCESS_DENIED);
    if (data.size() > disk().room) return failWith(ERROR_DISK_FULL);
    disk().room -= data.size();
    std::string& bytes = open->file->bytes;
    bytes.resize(std::max(bytes.size(), open->position + data.size()));
    std::ranges::copy(data, bytes.begin() + static_cast<std::ptrdiff_t>(open->position));
    open->position += data.size();
    *written = static_cast<DWORD>(data.size());
    return 1;
}

BOOL MoveFileA(const char* from, const char* to) {
    if (faultIn("MoveFileA")) return 0;
    const DiskPath source = diskPath(from);
    if (source.error) return failWith(source.error);
    const DiskPath target = diskPath(to);
    if (target.error == ERROR_FILENAME_EXCED_RANGE) refuse("MoveFileA to a name too long", to);
    if (target.error) return failWith(target.error);
    const std::shared_ptr<File> file = fileAt(source.full);
    if (!file) return failWith(missing(source));
    if (file->folder) refuse("MoveFileA of a folder", source.full);
    if (!file->openers.empty()) return failWith(ERROR_SHARING_VIOLATION);
    if (!isFolder(folderOf(target.full))) return failWith(ERROR_PATH_NOT_FOUND);
    const std::shared_ptr<File> there = fileAt(target.full);
    if (there && there != file) return failWith(ERROR_ALREADY_EXISTS);
    disk().files.erase(source.full);
    disk().files[target.full] = file;
    return 1;
}

BOOL DeleteFileA(const char* path) {
    if (faultIn("DeleteFileA")) return 0;
    const DiskPath place = diskPath(path);
    if (place.error) return failWith(place.error);
    const std::shared_ptr<File> file = fileAt(place.full);
    if (!file) return failWith(missing(place));
    if (file->folder || file->readOnly) return failWith(ERROR_ACCESS_DENIED);
    if (!file->openers.empty()) return failWith(ERROR_SHARING_VIOLATION);
    disk().files.erase(place.full);
    return 1;
}

BOOL CreateDirectoryA(const char* path, const void* security) {
    if (security) refuse("CreateDirectoryA", "security");
    if (faultIn("CreateDirectoryA")) return 0;
    const DiskPath place = diskPath(path);
    if (place.error) return failWith(place.error);
    if (fileAt(place.full)) return failWith(ERROR_ALREADY_EXISTS);
    if (!isFolder(folderOf(place.full))) return failWith(ERROR_PATH_NOT_FOUND);
    disk().files[place.full] =
        std::make_shared<File>(File{.folder = true, .bytes = {}, .openers = {}});
    return 1;
}

DWORD GetFileAttributesA(const char* path) {
    constexpr DWORD archive = 0x20;  // what every new file has until a backup clears it
    if (faultIn("GetFileAttributesA")) return INVALID_FILE_ATTRIBUTES;
    const DiskPath place = diskPath(path);
    const std::shared_ptr<File> file = fileAt(place.full);
    if (!file) {
        SetLastError(place.error ? place.error : missing(place));
        return INVALID_FILE_ATTRIBUTES;
    }
    if (file->folder) return FILE_ATTRIBUTE_DIRECTORY;
    return archive | (file->readOnly ? FILE_ATTRIBUTE_READONLY : 0);
}

}  // namespace win
