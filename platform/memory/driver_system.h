// Driver, the system's part: disk, registry, clipboard, local time, file dialogs,
// notification area and the process, as a user, the system or another program would
// change them, and what of them cannot be asked through the seam.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/memory/file_dialogs.h"
#include "platform/memory/registry.h"
#include "platform/memory/tray.h"

namespace win::memory::driver {

// ---- Disk --------------------------------------------------------------------------
// Paths are full ones, "C:\Magpie\x.pns".

// Makes a file, or gives it other bytes; makes the folders above it, and their drive.
void putFile(std::string_view path, std::string_view bytes);
void makeFolder(std::string_view path);
// The bytes of a file, or nothing when there is none.
std::optional<std::string> file(std::string_view path);
void removeFile(std::string_view path);
// Full paths of the files in a folder, in the order of their names.
std::vector<std::string> filesIn(std::string_view folder);
void setReadOnly(std::string_view path, bool readOnly);

// Another program has the file open and lets nobody else in, until the result is gone.
[[nodiscard]] std::shared_ptr<void> lockFile(std::string_view path);

// Only so many bytes more can be written before the disk is full.
void setDiskRoom(std::uint64_t bytes);

// The shell has no Favorites.
void takeFavoritesAway();

// ---- Registry ----------------------------------------------------------------------
// Bytes are those stored: a text value with its NUL. Keys on the way are made.

void setRegistryValue(HKEY root, std::string_view key, std::string_view name, DWORD type,
                      std::string bytes);
void setRegistryText(HKEY root, std::string_view key, std::string_view name, std::string_view text);
std::optional<RegistryValue> registryValue(HKEY root, std::string_view key, std::string_view name);
// The text of a REG_SZ value without its NUL; nothing when the value is not there.
std::optional<std::string> registryText(HKEY root, std::string_view key, std::string_view name);
bool registryKeyExists(HKEY root, std::string_view key);

// ---- Clipboard ---------------------------------------------------------------------

// As another program would put it there, or read it: as far as the first NUL.
void setClipboardText(std::string_view text);
std::optional<std::string> clipboardText();
// Another program keeps the clipboard open, or lets it go.
void holdClipboard(bool held);

// ---- Local time --------------------------------------------------------------------

// Goes on from here with the ticks. 2001-03-14 09:00:00 at the start.
void setLocalTime(int year, int month, int day, int hour = 0, int minute = 0, int second = 0,
                  int millisecond = 0);

// ---- File dialogs ------------------------------------------------------------------
// Each answer serves one dialog, in the order they were given. A dialog without an answer
// is refused.

void answerFileDialog(std::string path);
void cancelFileDialog();
void onFileDialog(FileDialogAnswer answer);
// Every dialog shown so far.
const std::vector<FileDialog>& shownFileDialogs();

// ---- Notification area -------------------------------------------------------------

const std::vector<TrayIcon>& shownTrayIcons();
// Tells the only icon's program of a mouse message on it. Posted, for a test to say when it comes;
// the shell sends, so a program must take either.
// Refuses when there is not exactly one icon.
void postTrayMessage(UINT mouseMessage);

// ---- Process -----------------------------------------------------------------------

void setProgram(std::string path);
// The whole command line, the program's name included.
void setCommandLine(std::string line);
// What GetVersionExA tells; it fails by a fault like any other call.
void setVersion(DWORD major, DWORD minor, DWORD platform);
// Another program holds the named mutex until the result is gone.
[[nodiscard]] std::shared_ptr<void> otherProgramHolds(std::string_view mutex);

// What is open or not given back, to find leaks by comparing.
struct SystemCounts {
    int handles = 0;       // files and mutexes
    int registryKeys = 0;  // open ones
    int globalBlocks = 0;  // the clipboard's included
    bool clipboardOpen = false;
    int ddeInstances = 0;
    int automationObjects = 0;
    bool operator==(const SystemCounts&) const = default;
};
SystemCounts liveInSystem();

}  // namespace win::memory::driver
