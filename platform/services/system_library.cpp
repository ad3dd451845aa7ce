#include "platform/services/system_library.h"

#include "platform/api/kernel32.h"
#include "platform/runtime/failure.h"

namespace magpie {

void SystemLibrary::require(const char* function) {
    if (library_ == nullptr)
        library_ = win::LoadLibraryExA(file_, nullptr, win::LOAD_LIBRARY_SEARCH_SYSTEM32);
    if (library_ == nullptr) throw Failure{failure::fileNotFound};
    if (win::GetProcAddress(library_, function) == nullptr) throw Failure{failure::noSuchFunction};
}

}  // namespace magpie
