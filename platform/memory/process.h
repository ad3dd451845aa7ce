// Process: the running program as the memory desktop knows it: its file, its command
// line, the system's version, and the mutexes that programs know each other by.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "platform/api/kernel32.h"

namespace win::memory {

struct Process {
    std::string programPath = "C:\\Magpie\\Magpie.exe";
    std::string commandLine = "\"C:\\Magpie\\Magpie.exe\"";
    OSVERSIONINFOA version{sizeof(OSVERSIONINFOA), 6, 2, 9200, 2, ""};
    // By name in the session; expired when the last holder has let it go.
    std::map<std::string, std::weak_ptr<void>> mutexes;
    DWORD lastError = 0;
};

Process& process();

// Holds a named mutex as long as the result lives. "Local\x" and "x" are the same name.
std::shared_ptr<void> holdMutex(std::string_view name);

}  // namespace win::memory
