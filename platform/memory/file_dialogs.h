// File dialogs: what the common open and save dialogs of the memory desktop were asked
// to show, and how the user that a test plays answers them.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/api/types.h"

namespace win::memory {

struct FileDialog {
    bool save = false;
    HWND owner = nullptr;
    std::string title;
    // Name and pattern in turn, as many as the program gave.
    std::vector<std::string> filter;
    std::string initialName;
    std::string initialFolder;
    DWORD flags = 0;
};

// The full path that the user chooses, or nothing for Cancel.
using FileDialogAnswer = std::function<std::optional<std::string>(const FileDialog&)>;

struct FileDialogs {
    std::vector<FileDialogAnswer> answers;  // the next one first
    std::vector<FileDialog> shown;
};

FileDialogs& fileDialogs();

}  // namespace win::memory
