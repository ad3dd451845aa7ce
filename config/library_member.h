// LibraryMember: how the companion library calls a routine of the program: what it hands over is
// taken apart, and a routine that fails tells it so.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <variant>

#include "platform/api/olectl.h"
#include "platform/runtime/failure.h"

namespace magpie {

using LibraryArguments = std::span<const win::VARIANT>;

// The argument at a place, from 0. Raises 5 where there is none and 13 for one of another kind.
template <class T>
const T& argument(LibraryArguments arguments, std::size_t at) {
    if (at >= arguments.size()) throw Failure{failure::invalidCall};
    const T* const found = std::get_if<T>(&arguments[at]);
    if (found == nullptr) throw Failure{failure::typeMismatch};
    return *found;
}

// Runs the routine. 0, or its failure as the platform hands such numbers on.
template <class Routine>
win::HRESULT answered(Routine&& routine) {
    try {
        routine();
        return 0;
    } catch (const Failure& failed) {
        return static_cast<win::HRESULT>(0x800A0000u | static_cast<std::uint32_t>(failed.number));
    }
}

}  // namespace magpie
