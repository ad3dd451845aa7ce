#include "platform/memory/launches.h"

#include "platform/api/shell32.h"
#include "platform/memory/classes.h"
#include "platform/memory/faults.h"
#include "platform/memory/files.h"
#include "platform/memory/refuse.h"

namespace win {

namespace memory {
namespace {

constexpr std::intptr_t badFormat = 11;  // ERROR_BAD_FORMAT
constexpr std::intptr_t started = 42;

std::intptr_t start(const std::string& file, const char* parameters) {
    if (file.empty()) return badFormat;
    const DiskPath path = diskPath(file.c_str());
    if (path.error || !fileAt(path.full)) return SE_ERR_FNF;
    launches().push_back({file, parameters});
    return started;
}

}  // namespace

std::vector<Launch>& launches() {
    static std::vector<Launch> all;
    return all;
}

}  // namespace memory

using namespace memory;

HINSTANCE ShellExecuteA(HWND, const char* verb, const char* file, const char* parameters,
                        const char* folder, INT show) {
    if (!sameIgnoringCase(verb, "open") || folder || show != SW_SHOWNORMAL)
        refuse("ShellExecuteA", verb);
    return reinterpret_cast<HINSTANCE>(start(file, parameters));
}

}  // namespace win
