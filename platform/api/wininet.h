// wininet: the system's own opinion of the line. The library is loaded at the first call, from the
// system's own folder; a program makes sure first that it is there.
#pragma once

#include "platform/api/types.h"

namespace win {

// Whether there is a line; `flags` says of which kind. `reserved` is 0.
BOOL InternetGetConnectedState(DWORD* flags, DWORD reserved);

}  // namespace win
