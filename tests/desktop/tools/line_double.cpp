// Stands in for rasapi32.dll and for wininet.dll under Wine, which knows of no dial-up lines. The
// line is what the script says whose path is in MAGPIE_LINE, read anew at each call:
//
//     connection 1A2B3C4D00000001 2000    a dial-up connection: its handle and state
//     online                              the system thinks that there is a line
//
// Each call is written to the file of the same name with ".log" behind it.
#include <cstdarg>
#include <cstdio>
#include <string>
#include <vector>

// The SDK's base comes first.
// clang-format off
#include <windows.h>
#include <ras.h>
#include <raserror.h>
// clang-format on

namespace {

struct Connection {
    HRASCONN handle;
    RASCONNSTATE state;
};

struct Script {
    std::vector<Connection> connections;
    bool online = false;
};

std::string scriptPath() {
    char path[MAX_PATH] = "";
    GetEnvironmentVariableA("MAGPIE_LINE", path, sizeof path);
    return path;
}

Script readScript() {
    Script script;
    std::FILE* file = std::fopen(scriptPath().c_str(), "r");
    if (file == nullptr) return script;
    char line[100];
    while (std::fgets(line, sizeof line, file) != nullptr) {
        unsigned long long handle = 0;
        unsigned state = 0;
        if (std::sscanf(line, "connection %llx %x", &handle, &state) == 2)
            script.connections.push_back(
                {reinterpret_cast<HRASCONN>(handle), static_cast<RASCONNSTATE>(state)});
        else if (std::string(line).starts_with("online"))
            script.online = true;
    }
    std::fclose(file);
    return script;
}

void note(const char* format, ...) {
    std::FILE* file = std::fopen((scriptPath() + ".log").c_str(), "a");
    if (file == nullptr) return;
    va_list values;
    va_start(values, format);
    std::vfprintf(file, format, values);
    va_end(values);
    std::fclose(file);
}

}  // namespace

extern "C" {

DWORD WINAPI RasEnumConnectionsA(LPRASCONNA records, LPDWORD bytes, LPDWORD count) {
    const Script script = readScript();
    const auto found = static_cast<DWORD>(script.connections.size());
    const DWORD needed = found * static_cast<DWORD>(sizeof(RASCONNA));
    const DWORD room = *bytes;
    note("enumerate %lu %lu\n", records->dwSize, room);
    if (records->dwSize != sizeof(RASCONNA)) return ERROR_INVALID_SIZE;
    *bytes = needed;
    *count = found;
    if (room < needed) return ERROR_BUFFER_TOO_SMALL;
    for (DWORD each = 0; each < found; ++each)
        records[each].hrasconn = script.connections[each].handle;
    return 0;
}

DWORD WINAPI RasGetConnectStatusA(HRASCONN handle, LPRASCONNSTATUSA status) {
    note("state %p\n", static_cast<void*>(handle));
    if (status->dwSize != sizeof(RASCONNSTATUSA)) return ERROR_INVALID_SIZE;
    for (const Connection& each : readScript().connections)
        if (each.handle == handle) {
            status->rasconnstate = each.state;
            status->dwError = 0;
            return 0;
        }
    return ERROR_INVALID_HANDLE;
}

BOOL WINAPI InternetGetConnectedState(LPDWORD flags, DWORD) {
    note("online\n");
    *flags = 0;
    return readScript().online;
}

}  // extern "C"
