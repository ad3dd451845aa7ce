// Tray: the icons in the notification area of the memory desktop.
#pragma once

#include <string>
#include <vector>

#include "platform/api/types.h"

namespace win::memory {

struct TrayIcon {
    HWND window = nullptr;
    UINT id = 0;
    UINT flags = 0;  // NIF_*: which of the rest was ever given
    UINT callbackMessage = 0;
    HICON icon = nullptr;
    std::string tip;
};

// In the order in which they were added. An icon whose window is gone leaves with the
// next call of the shell.
std::vector<TrayIcon>& trayIcons();

}  // namespace win::memory
