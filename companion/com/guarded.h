// Guarded: what an object is asked for, with its failures told to the caller.
#pragma once

#include <cstdint>
#include <new>
#include <stdexcept>

#include "platform/runtime/failure.h"

// The SDK's base comes first.
// clang-format off
#include <windows.h>
// clang-format on

namespace magpie {

// Runs a routine that answers a HRESULT. A failure in it, or want of memory, becomes an error of
// the call: nothing unwinds into another module.
template <class Routine>
HRESULT guarded(Routine&& routine) noexcept {
    try {
        return routine();
    } catch (const Failure& failed) {
        return static_cast<HRESULT>(0x800A0000u | static_cast<std::uint32_t>(failed.number));
    } catch (const std::bad_alloc&) {
        return E_OUTOFMEMORY;
    } catch (const std::length_error&) {  // a text that is larger than any may be
        return E_OUTOFMEMORY;
    }
}

}  // namespace magpie
