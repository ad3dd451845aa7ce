#include "platform/memory/libraries.h"

#include "platform/memory/faults.h"
#include "platform/memory/refuse.h"

namespace win {

namespace memory {

Libraries& systemLibraries() {
    static Libraries libraries{
        {"hhctrl.ocx", {"HtmlHelpA"}},
        {"rasapi32.dll", {"RasEnumConnectionsA", "RasGetConnectStatusA"}},
        {"wininet.dll", {"InternetGetConnectedState"}},
    };
    return libraries;
}

namespace {

// A loaded library is known by its functions, which outlive its file.
std::map<HINSTANCE, Functions>& loadedLibraries() {
    static std::map<HINSTANCE, Functions> loaded;
    return loaded;
}

}  // namespace

}  // namespace memory

using namespace memory;

HINSTANCE LoadLibraryExA(const char* file, HANDLE reserved, DWORD flags) {
    if (reserved || flags != LOAD_LIBRARY_SEARCH_SYSTEM32) refuse("LoadLibraryExA flags", flags);
    if (faultIn("LoadLibraryExA")) return nullptr;
    const auto found = systemLibraries().find(std::string_view(file));
    if (found == systemLibraries().end()) {
        SetLastError(ERROR_MOD_NOT_FOUND);
        return nullptr;
    }
    const auto place = std::uintptr_t{0x7000000} + 0x10000 * (loadedLibraries().size() + 1);
    const auto library = reinterpret_cast<HINSTANCE>(place);
    loadedLibraries()[library] = found->second;
    return library;
}

FARPROC GetProcAddress(HINSTANCE library, const char* function) {
    const auto loaded = loadedLibraries().find(library);
    if (loaded == loadedLibraries().end()) refuse("GetProcAddress", "no library");
    // Only there to be told from null: the functions stand in headers of their own.
    if (loaded->second.contains(function)) return reinterpret_cast<FARPROC>(library);
    SetLastError(ERROR_PROC_NOT_FOUND);
    return nullptr;
}

}  // namespace win
