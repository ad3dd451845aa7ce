// SystemLibrary: a library of the platform that may be missing. It is loaded at its first use,
// from the system's own folder and from nowhere else, and then stays loaded.
#pragma once

#include "platform/api/types.h"

namespace magpie {

class SystemLibrary {
public:
    // The file's name, without a path; it has to outlive this.
    explicit constexpr SystemLibrary(const char* file) : file_(file) {}

    // To be asked before a call of the function. Raises 53 without the library, which is looked
    // for again the next time, and 453 without the function.
    void require(const char* function);

private:
    const char* file_;
    win::HINSTANCE library_ = nullptr;
};

}  // namespace magpie
