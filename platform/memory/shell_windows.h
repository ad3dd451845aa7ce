// ShellWindows: the windows that the shell and its browser have open, as automation tells of
// them.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "platform/api/types.h"

namespace win::memory {

struct ShellWindow {
    std::string name = "Microsoft Internet Explorer";  // of its program
    HWND window = nullptr;
    bool visible = true;
    std::string locationName{};
    std::string locationUrl{};

    bool away = false;    // the collection counts it and has nothing to give for it
    std::string fails{};  // the member that fails, as one that its program denies
    std::function<void(const std::string& member)> underRead{};  // what happens while it is read
    std::vector<std::string> done{};  // "visible", "hidden", "navigate ADDRESS", so far
};

struct ShellWindows {
    bool served = false;  // by a program that is running
    std::deque<ShellWindow> all{};
    int objects = 0;  // that were not given back
};

ShellWindows& shellWindows();

}  // namespace win::memory
