#include "platform/memory/process.h"

#include <algorithm>
#include <string_view>

#include "platform/memory/faults.h"
#include "platform/memory/handles.h"
#include "platform/memory/refuse.h"
#include "platform/memory/ticks.h"

namespace win {

namespace memory {
namespace {

constexpr DWORD insufficientBuffer = 122;  // ERROR_INSUFFICIENT_BUFFER

struct Mutex : KernelObject {
    explicit Mutex(std::shared_ptr<void> name) : held(std::move(name)) {}

    std::shared_ptr<void> held;
};

// The name as the session keeps it.
std::string nameInSession(std::string_view name) {
    if (name.starts_with("Local\\")) name.remove_prefix(6);
    if (name.find('\\') != std::string_view::npos) refuse("mutex name", name);
    return std::string(name);
}

HINSTANCE program() {
    return reinterpret_cast<HINSTANCE>(std::uintptr_t{0x400000});
}

}  // namespace

Process& process() {
    static Process running;
    return running;
}

std::shared_ptr<void> holdMutex(std::string_view name) {
    std::weak_ptr<void>& known = process().mutexes[nameInSession(name)];
    std::shared_ptr<void> held = known.lock();
    if (!held) known = held = std::make_shared<char>();
    return held;
}

}  // namespace memory

using namespace memory;

HINSTANCE GetOwnModule() {
    return GetModuleHandleA(nullptr);
}

HINSTANCE GetModuleHandleA(const char* name) {
    if (name) refuse("GetModuleHandleA", name);
    return program();
}

DWORD GetModuleFileNameA(HINSTANCE module, std::span<char> path) {
    if (module && module != program()) refuse("GetModuleFileNameA", "another module");
    if (path.empty()) refuse("GetModuleFileNameA", "no buffer");
    if (faultIn("GetModuleFileNameA")) return 0;
    const std::string& file = process().programPath;
    const std::size_t count = std::min(file.size(), path.size() - 1);
    path[file.copy(path.data(), count)] = '\0';
    if (count == file.size()) return static_cast<DWORD>(count);
    SetLastError(insufficientBuffer);
    return static_cast<DWORD>(path.size());
}

const char* GetCommandLineA() {
    return process().commandLine.c_str();
}

BOOL GetVersionExA(OSVERSIONINFOA* version) {
    if (faultIn("GetVersionExA")) return 0;
    if (version->dwOSVersionInfoSize != sizeof(OSVERSIONINFOA)) {
        SetLastError(insufficientBuffer);
        return 0;
    }
    *version = process().version;
    return 1;
}

HANDLE CreateMutexA(const void* security, BOOL initialOwner, const char* name) {
    if (security || initialOwner || !name) refuse("CreateMutexA", "security, owner or no name");
    if (faultIn("CreateMutexA")) return nullptr;
    auto held = holdMutex(name);
    SetLastError(held.use_count() > 1 ? ERROR_ALREADY_EXISTS : ERROR_SUCCESS);
    return newHandle(std::make_unique<Mutex>(std::move(held)));
}

DWORD GetLastError() {
    return process().lastError;
}

void SetLastError(DWORD error) {
    process().lastError = error;
}

void Sleep(DWORD milliseconds) {
    passTicks(milliseconds);
}

}  // namespace win
