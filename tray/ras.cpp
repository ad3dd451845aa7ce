#include "tray/ras.h"

#include "core/state.h"
#include "platform/api/rasapi32.h"
#include "platform/runtime/word.h"
#include "platform/services/system_library.h"

namespace magpie {

namespace {

constexpr std::int32_t smallRecords = 2;  // the platform whose records are the small ones

void requireRasApi32(const char* function) {
    static SystemLibrary library("rasapi32.dll");
    library.require(function);
}

bool hasEnded(std::int32_t state) {
    return state == 0 || state == static_cast<std::int32_t>(win::RASCS_Disconnected);
}

// Offers room for one connection. The number of bytes that comes back tells whether there is any,
// also when there are more than one and the record was left as it is.
void lookForConnection() {
    requireRasApi32("RasEnumConnectionsA");
    win::RASCONNA connection{};
    connection.dwSize = osPlatform == smallRecords ? 32 : 412;
    win::DWORD bytes = connection.dwSize;
    win::DWORD connections = 0;
    win::RasEnumConnectionsA(&connection, &bytes, &connections);
    if (bytes == 0) return;
    hRasConn = static_cast<std::int32_t>(connection.hrasconn);
    rasOnline = word(rasStatus() == static_cast<std::int32_t>(win::RASCS_Connected));
}

}  // namespace

std::int32_t rasStatus() {
    requireRasApi32("RasGetConnectStatusA");
    win::RASCONNSTATUSA status{};
    status.dwSize = osPlatform == smallRecords ? 64 : 160;
    const auto connection = static_cast<win::HRASCONN>(hRasConn);
    if (win::RasGetConnectStatusA(connection, &status) != 0) return 0;
    return static_cast<std::int32_t>(status.rasconnstate);
}

std::int16_t rasConnected() {
    if (rasOnline != 0 && hasEnded(rasStatus())) rasOnline = 0;
    if (rasOnline == 0) lookForConnection();
    return rasOnline;
}

}  // namespace magpie
