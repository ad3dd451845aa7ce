#include "platform/memory/driver_system.h"

#include <algorithm>
#include <chrono>

#include "platform/api/user32.h"
#include "platform/memory/clipboard.h"
#include "platform/memory/clock.h"
#include "platform/memory/dde_peers.h"
#include "platform/memory/files.h"
#include "platform/memory/global_memory.h"
#include "platform/memory/handles.h"
#include "platform/memory/process.h"
#include "platform/memory/refuse.h"
#include "platform/memory/shell_folders.h"
#include "platform/memory/shell_windows.h"
#include "platform/memory/ticks.h"

namespace win::memory::driver {
namespace {

std::string fullPath(std::string_view path) {
    const DiskPath found = diskPath(std::string(path).c_str());
    if (found.error) refuse("driver: no path", path);
    return found.full;
}

File& existing(std::string_view path) {
    const auto found = fileAt(fullPath(path));
    if (!found) refuse("driver: no file", path);
    return *found;
}

RegistryKey& root(HKEY handle) {
    RegistryKey* found = registryRoot(handle);
    if (!found) refuse("driver: registry root", reinterpret_cast<std::uintptr_t>(handle));
    return *found;
}

}  // namespace

void putFile(std::string_view path, std::string_view bytes) {
    const std::string full = fullPath(path);
    makeFolder(folderOf(full));
    auto& file = disk().files[full];
    if (!file) file = std::make_shared<File>();
    if (file->folder) refuse("driver: a folder", path);
    file->bytes = bytes;
}

void makeFolder(std::string_view path) {
    // The root of a drive is spelled with its backslash only where a program does.
    const std::string full = path.size() > 2 ? fullPath(path) : std::string(path);
    if (const std::string_view above = folderOf(full); !above.empty()) makeFolder(above);
    auto& folder = disk().files[full];
    if (!folder) folder = std::make_shared<File>(File{.folder = true, .bytes = {}, .openers = {}});
    if (!folder->folder) refuse("driver: a file", path);
}

void takeFavoritesAway() {
    favoritesFolder().reset();
}

std::optional<std::string> file(std::string_view path) {
    const auto found = fileAt(fullPath(path));
    return found && !found->folder ? std::optional(found->bytes) : std::nullopt;
}

void removeFile(std::string_view path) {
    if (existing(path).folder) refuse("driver: a folder", path);
    disk().files.erase(fullPath(path));
}

std::vector<std::string> filesIn(std::string_view folder) {
    const std::string full = folder.size() > 2 ? fullPath(folder) : std::string(folder);
    std::vector<std::string> paths;
    for (const auto& [path, entry] : disk().files) {
        const bool inside = !NoCase{}(folderOf(path), full) && !NoCase{}(full, folderOf(path));
        if (inside && !entry->folder) paths.push_back(path);
    }
    return paths;
}

void setReadOnly(std::string_view path, bool readOnly) {
    existing(path).readOnly = readOnly;
}

std::shared_ptr<void> lockFile(std::string_view path) {
    existing(path);
    const OpenMode alone{GENERIC_READ | GENERIC_WRITE, 0};
    auto locked = fileAt(fullPath(path));
    locked->openers.push_back(alone);
    return {nullptr, [locked, alone](void*) {
                locked->openers.erase(std::ranges::find(locked->openers, alone));
            }};
}

void setDiskRoom(std::uint64_t bytes) {
    disk().room = bytes;
}

void setRegistryValue(HKEY handle, std::string_view key, std::string_view name, DWORD type,
                      std::string bytes) {
    registryKey(root(handle), key, true)->values[std::string(name)] = {type, std::move(bytes)};
}

void setRegistryText(HKEY handle, std::string_view key, std::string_view name,
                     std::string_view text) {
    setRegistryValue(handle, key, name, REG_SZ, std::string(text) + '\0');
}

std::optional<RegistryValue> registryValue(HKEY handle, std::string_view key,
                                           std::string_view name) {
    const RegistryKey* found = registryKey(root(handle), key, false);
    if (!found) return std::nullopt;
    const auto value = found->values.find(name);
    return value == found->values.end() ? std::nullopt : std::optional(value->second);
}

std::optional<std::string> registryText(HKEY handle, std::string_view key, std::string_view name) {
    const auto value = registryValue(handle, key, name);
    if (!value) return std::nullopt;
    if (value->type != REG_SZ) refuse("driver: no text value", name);
    std::string text = value->bytes;
    if (text.empty() || text.back() != '\0') refuse("driver: text without its NUL", name);
    text.pop_back();
    return text;
}

bool registryKeyExists(HKEY handle, std::string_view key) {
    return registryKey(root(handle), key, false) != nullptr;
}

void setClipboardText(std::string_view text) {
    if (clipboard().open) refuse("driver: clipboard", "the program has it open");
    replaceClipboardText(newBlock(std::string(text) + '\0'));
}

std::optional<std::string> clipboardText() {
    if (!clipboard().text) return std::nullopt;
    return std::string(blockOf(clipboard().text).bytes.c_str());
}

void holdClipboard(bool held) {
    clipboard().openElsewhere = held;
}

void setLocalTime(int year, int month, int day, int hour, int minute, int second, int millisecond) {
    namespace chr = std::chrono;
    const auto date = chr::year(year) / month / day;
    if (!date.ok()) refuse("driver: no day of the calendar", static_cast<std::uintmax_t>(day));
    const auto time = chr::local_days(date).time_since_epoch() + chr::hours(hour) +
                      chr::minutes(minute) + chr::seconds(second) + chr::milliseconds(millisecond);
    timeAtTickZero() = chr::milliseconds(time).count() - static_cast<LocalTime>(ticks());
}

void answerFileDialog(std::string path) {
    onFileDialog([path = std::move(path)](const FileDialog&) { return std::optional(path); });
}

void cancelFileDialog() {
    onFileDialog([](const FileDialog&) { return std::nullopt; });
}

void onFileDialog(FileDialogAnswer answer) {
    fileDialogs().answers.push_back(std::move(answer));
}

const std::vector<FileDialog>& shownFileDialogs() {
    return fileDialogs().shown;
}

const std::vector<TrayIcon>& shownTrayIcons() {
    return trayIcons();
}

void postTrayMessage(UINT mouseMessage) {
    if (trayIcons().size() != 1) refuse("driver: icons in the tray", trayIcons().size());
    const TrayIcon& icon = trayIcons().front();
    if (!(icon.flags & NIF_MESSAGE)) refuse("driver: icon without a message", icon.id);
    PostMessageA(icon.window, icon.callbackMessage, icon.id, static_cast<LPARAM>(mouseMessage));
}

void setProgram(std::string path) {
    process().programPath = std::move(path);
}

void setCommandLine(std::string line) {
    process().commandLine = std::move(line);
}

void setVersion(DWORD major, DWORD minor, DWORD platform) {
    process().version.dwMajorVersion = major;
    process().version.dwMinorVersion = minor;
    process().version.dwPlatformId = platform;
}

std::shared_ptr<void> otherProgramHolds(std::string_view mutex) {
    return holdMutex(mutex);
}

SystemCounts liveInSystem() {
    return {static_cast<int>(openHandles().size()),
            static_cast<int>(openKeys().size()),
            static_cast<int>(globalBlocks().size()),
            clipboard().open,
            openDdeInstances,
            shellWindows().objects};
}

}  // namespace win::memory::driver
