// SystemFunction: a function of a library that is not loaded with the program, but at the
// function's first call, from the system's own folder and from nowhere else.
#pragma once

#include <windows.h>

namespace win {

template <class Function>
class SystemFunction {
public:
    constexpr SystemFunction(const char* library, const char* name)
        : library_(library), name_(name) {}

    // Null while there is no such library, or no such function in it. The library stays loaded.
    Function* get() {
        if (function_ != nullptr) return function_;
        ::HMODULE module = ::LoadLibraryExA(library_, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
        if (module == nullptr) return nullptr;
        auto* found = reinterpret_cast<void (*)()>(::GetProcAddress(module, name_));
        return function_ = reinterpret_cast<Function*>(found);
    }

private:
    const char* library_;
    const char* name_;
    Function* function_ = nullptr;
};

}  // namespace win
