#include "platform/services/application.h"

#include <string_view>

#include "platform/api/kernel32.h"
#include "platform/runtime/split.h"

namespace magpie {

namespace {

constexpr const char* instanceName = "Local\\Magpie.Fennelworks.Instance";
constexpr std::size_t longestPath = 32768;

// Where the program's name ends in a command line.
std::size_t nameEnd(std::string_view line) {
    if (!line.empty() && line.front() == '"') {
        const std::size_t quote = line.find('"', 1);
        return quote == std::string_view::npos ? line.size() : quote + 1;
    }
    const std::size_t blank = line.find_first_of(" \t");
    return blank == std::string_view::npos ? line.size() : blank;
}

// False when another process has set it. The system closes the handle when the process
// ends, however it ends. Nothing may come before the question for the error, which even
// the guard of a static variable sets anew.
bool setInstanceMark() {
    win::HANDLE mark = win::CreateMutexA(nullptr, 0, instanceName);
    return mark == nullptr || win::GetLastError() != win::ERROR_ALREADY_EXISTS;
}

}  // namespace

std::string appFolder() {
    std::string path(longestPath, '\0');
    path.resize(win::GetModuleFileNameA(nullptr, path));
    const std::size_t slash = path.rfind('\\');
    if (slash == std::string::npos) return {};
    const bool root = slash != 0 && path[slash - 1] == ':';
    return path.substr(0, root ? slash + 1 : slash);
}

std::string commandTail() {
    const std::string_view line = win::GetCommandLineA();
    return std::string(trimBlanks(line.substr(nameEnd(line))));
}

bool anotherInstance() {
    static const bool other = !setInstanceMark();
    return other;
}

}  // namespace magpie
