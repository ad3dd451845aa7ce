#include "platform/memory/handles.h"

#include "platform/api/kernel32.h"
#include "platform/memory/refuse.h"

namespace win {

namespace memory {
std::map<HANDLE, std::unique_ptr<KernelObject>>& openHandles() {
    static std::map<HANDLE, std::unique_ptr<KernelObject>> objects;
    return objects;
}

HANDLE newHandle(std::unique_ptr<KernelObject> object) {
    static std::uintptr_t last = 0;
    last += 4;
    const auto handle = reinterpret_cast<HANDLE>(last);
    openHandles()[handle] = std::move(object);
    return handle;
}

KernelObject* objectOf(HANDLE handle) {
    const auto found = openHandles().find(handle);
    return found == openHandles().end() ? nullptr : found->second.get();
}

}  // namespace memory

BOOL CloseHandle(HANDLE handle) {
    // It is also the number of the process itself, which closes without a word.
    if (handle == INVALID_HANDLE_VALUE) memory::refuse("CloseHandle", "INVALID_HANDLE_VALUE");
    if (memory::openHandles().erase(handle)) return 1;
    SetLastError(ERROR_INVALID_HANDLE);
    return 0;
}

}  // namespace win
