// RAS: the dial-up test. It watches one connection, in `hRasConn`, for as long as that is up.
#pragma once

#include <cstdint>

namespace magpie {

// -1 while a dial-up connection is up, else 0; `rasOnline` remembers it. Raises 53 or 453 without
// the dial-up library.
std::int16_t rasConnected();

// The state of the connection under watch, or 0 when it can't be had. Raises as rasConnected.
std::int32_t rasStatus();

}  // namespace magpie
