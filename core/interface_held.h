// InterfaceHeld: holds the interface while a routine works, and lets it go however that ends.
#pragma once

#include <cstdint>

#include "core/state.h"

namespace magpie {

class InterfaceHeld {
public:
    // `by` as in `modalOpen`.
    explicit InterfaceHeld(std::uint8_t by) { modalOpen = by; }
    ~InterfaceHeld() { modalOpen = 0; }
    InterfaceHeld(const InterfaceHeld&) = delete;
    InterfaceHeld& operator=(const InterfaceHeld&) = delete;
};

}  // namespace magpie
