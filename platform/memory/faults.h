// Faults: platform calls that a test wants to fail. Every function of the memory
// desktop that can fail on a real one asks here first, on one line:
//
//     if (faultIn("SetWindowPos")) return FALSE;
//     if (DWORD error = faultIn("RegSetValueExA")) return LSTATUS(error);
#pragma once

#include <functional>
#include <string_view>

#include "platform/api/types.h"

namespace win::memory {

// True while at least one call is still to fail.
inline bool faultsArmed = false;

// Counts this call of `function` against the armed faults. Not for callers: use faultIn.
DWORD countedFault(std::string_view function);

// The error number with which this call of `function` has to fail, after storing it as
// the last error; 0 when the call goes on.
inline DWORD faultIn(std::string_view function) {
    return faultsArmed ? countedFault(function) : 0;
}

// Lets the `nth` call from now (1: the next) of `function` fail with `error`, which is
// not 0. Several faults may be armed for one function.
void armFault(std::string_view function, int nth, DWORD error);

// Runs `action` at the beginning of that call, which then goes on.
void armAction(std::string_view function, int nth, std::function<void()> action);

// How many armed faults have not been met yet.
int faultsLeft();

}  // namespace win::memory
