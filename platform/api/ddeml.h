// ddeml: conversations with other programs by dynamic data exchange, from the client's side.
// All of it may be called from any thread; what belongs to an instance is for the thread that
// made it.
#pragma once

#include <cstddef>
#include <span>

#include "platform/api/constants.h"
#include "platform/api/types.h"

namespace win {

using HSZ = struct HszTag*;
using HCONV = struct HconvTag*;
using HDDEDATA = struct HddedataTag*;

using PFNCALLBACK = HDDEDATA (*)(UINT type, UINT format, HCONV conversation, HSZ first, HSZ second,
                                 HDDEDATA data, ULONG_PTR more, ULONG_PTR evenMore);

// DMLERR_NO_ERROR and the number of a new instance. A client's callback is asked nothing that
// matters.
UINT DdeInitializeA(DWORD* instance, PFNCALLBACK callback, DWORD commands, ULONG reserved);
// Ends what the instance has left open. Waits for a server that is still busy.
BOOL DdeUninitialize(DWORD instance);
UINT DdeGetLastError(DWORD instance);  // of the last call that failed; asking forgets it

// A name as conversations know it, compared without regard to case; null for one of more than
// 255 bytes and for an empty one.
HSZ DdeCreateStringHandleA(DWORD instance, const char* text, INT codePage);
BOOL DdeFreeStringHandle(DWORD instance, HSZ text);

// Asks every window on the screen, and so waits for one that hangs. Null when nobody answers:
// DMLERR_NO_CONV_ESTABLISHED.
HCONV DdeConnect(DWORD instance, HSZ service, HSZ topic, void* context);
BOOL DdeDisconnect(HCONV conversation);
// The reply to an XTYP_REQUEST in CF_TEXT, or null: DMLERR_NOTPROCESSED when it was refused,
// DMLERR_DATAACKTIMEOUT when the server did not answer in these milliseconds.
HDDEDATA DdeClientTransaction(void* data, DWORD bytes, HCONV conversation, HSZ item, UINT format,
                              UINT type, DWORD milliseconds, DWORD* result);
// Copies the bytes from `offset` on that the buffer has room for, and answers their number; for
// an empty buffer the number of all.
DWORD DdeGetData(HDDEDATA data, std::span<char> buffer, DWORD offset);
BOOL DdeFreeDataHandle(HDDEDATA data);

}  // namespace win
