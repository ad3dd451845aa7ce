#include "platform/memory/line.h"

#include <algorithm>

#include "platform/api/rasapi32.h"
#include "platform/api/wininet.h"
#include "platform/memory/faults.h"
#include "platform/memory/refuse.h"

namespace win {

namespace memory {

Line& line() {
    static Line only;
    return only;
}

}  // namespace memory

using namespace memory;

DWORD RasEnumConnectionsA(RASCONNA* connection, DWORD* bytes, DWORD* connections) {
    const DWORD size = connection->dwSize;
    if (size != 32 && size != 412) return ERROR_INVALID_SIZE;
    ++line().asked.enumerations;
    line().asked.connectionSize = size;
    line().asked.offeredBytes = *bytes;
    if (DWORD error = faultIn("RasEnumConnectionsA")) return error;
    const bool room = *bytes >= size * line().dialUp.size();
    *connections = static_cast<DWORD>(line().dialUp.size());
    *bytes = size * *connections;
    if (!room) return ERROR_BUFFER_TOO_SMALL;
    if (*connections > 1) refuse("RasEnumConnectionsA", "room for more than one record");
    if (*connections == 1) connection->hrasconn = line().dialUp.front().handle;
    return 0;
}

DWORD RasGetConnectStatusA(HRASCONN connection, RASCONNSTATUSA* status) {
    if (status->dwSize != 64 && status->dwSize != 160) return ERROR_INVALID_SIZE;
    ++line().asked.states;
    line().asked.stateSize = status->dwSize;
    if (DWORD error = faultIn("RasGetConnectStatusA")) return error;
    const auto known = std::ranges::find(line().dialUp, connection, &DialUp::handle);
    if (known == line().dialUp.end()) return ERROR_INVALID_HANDLE;
    status->rasconnstate = known->state;
    status->dwError = 0;
    return 0;
}

BOOL InternetGetConnectedState(DWORD* flags, DWORD reserved) {
    if (!flags || reserved) refuse("InternetGetConnectedState", "no flags, or reserved");
    ++line().asked.general;
    *flags = 0;
    return line().online;
}

}  // namespace win
