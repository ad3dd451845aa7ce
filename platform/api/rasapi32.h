// rasapi32: the dial-up connections that are up, and the state of one. The library is loaded at
// the first call, from the system's own folder; a program makes sure first that it is there.
//
// The records are those of a 32-bit program, in which a handle is a number of 32 bits. The
// desktop's side brings them to what its platform takes, and leaves alone what is opaque.
#pragma once

#include "platform/api/constants.h"
#include "platform/api/types.h"

namespace win {

using HRASCONN = std::uint32_t;  // a connection; 0 is none

struct RASCONNA {  // the program's own
    DWORD dwSize;  // 412, or 32 by the small record; set by the caller
    HRASCONN hrasconn;
    BYTE opaque[404];  // 24 in the small record
};

struct RASCONNSTATUSA {  // the program's own
    DWORD dwSize;        // 160, or 64 by the small record; set by the caller
    DWORD rasconnstate;  // RASCS_Connected, RASCS_Disconnected, or a step on the way
    DWORD dwError;       // why it could not be connected
    BYTE opaque[148];    // 52 in the small record
};

static_assert(sizeof(RASCONNA) == 412 && sizeof(RASCONNSTATUSA) == 160);

// Fills the one record for which `bytes` offers room. Tells how many bytes all connections would
// need, `dwSize` each, and how many they are. Without room for all of them it answers
// ERROR_BUFFER_TOO_SMALL and leaves the record as it is; for another `dwSize` ERROR_INVALID_SIZE.
DWORD RasEnumConnectionsA(RASCONNA* connection, DWORD* bytes, DWORD* connections);

// Answers 0, or the error: ERROR_INVALID_HANDLE for a connection that has ended.
DWORD RasGetConnectStatusA(HRASCONN connection, RASCONNSTATUSA* status);

}  // namespace win
