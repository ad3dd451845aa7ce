// rasapi32 answered by Windows. Its own records are larger than the program's, and its handles
// have 64 bits: the program gets a number for each.
#include "platform/api/rasapi32.h"

#include <algorithm>
#include <vector>

#include "platform/win32/system_function.h"

// The SDK's base comes first.
// clang-format off
#include <windows.h>
#include <ras.h>
// clang-format on

// Some SDKs have macros for the tags of the records.
#undef RASCONNA
#undef RASCONNSTATUSA

namespace win {

namespace {

// The handles that the program has seen; it knows each by its place, counted from 1.
class SeenHandles {
public:
    HRASCONN numberOf(::HRASCONN handle) {
        if (handle == nullptr) return 0;
        const auto known = std::ranges::find(seen_, handle);
        if (known != seen_.end()) return static_cast<HRASCONN>(known - seen_.begin() + 1);
        seen_.push_back(handle);
        return static_cast<HRASCONN>(seen_.size());
    }

    // Null for 0 and for a number that was never given.
    ::HRASCONN handleOf(HRASCONN number) const {
        return number == 0 || number > seen_.size() ? nullptr : seen_[number - 1];
    }

private:
    std::vector<::HRASCONN> seen_;
};

SeenHandles& seenHandles() {
    static SeenHandles handles;
    return handles;
}

}  // namespace

DWORD RasEnumConnectionsA(RASCONNA* connection, DWORD* bytes, DWORD* connections) {
    static SystemFunction<decltype(::RasEnumConnectionsA)> function("rasapi32.dll",
                                                                    "RasEnumConnectionsA");
    auto* const enumerate = function.get();
    if (enumerate == nullptr) return ERROR_PROC_NOT_FOUND;
    const DWORD size = connection->dwSize;
    if (size != 32 && size != 412) return ERROR_INVALID_SIZE;

    ::tagRASCONNA record{};
    constexpr ::DWORD nativeSize = sizeof record;
    record.dwSize = nativeSize;
    record.hrasconn = seenHandles().handleOf(connection->hrasconn);
    ::DWORD needed = *bytes < size ? 0 : nativeSize;
    ::DWORD count = 0;
    const ::DWORD error = enumerate(&record, &needed, &count);
    // Read as it stands also after a failure: untouched, it is the program's own again.
    connection->hrasconn = seenHandles().numberOf(record.hrasconn);
    *bytes = needed / nativeSize * size;
    *connections = count;
    return error;
}

DWORD RasGetConnectStatusA(HRASCONN connection, RASCONNSTATUSA* status) {
    static SystemFunction<decltype(::RasGetConnectStatusA)> function("rasapi32.dll",
                                                                     "RasGetConnectStatusA");
    auto* const ask = function.get();
    if (ask == nullptr) return ERROR_PROC_NOT_FOUND;
    if (status->dwSize != 64 && status->dwSize != 160) return ERROR_INVALID_SIZE;

    ::tagRASCONNSTATUSA record{};
    record.dwSize = sizeof record;
    record.rasconnstate = static_cast<::tagRASCONNSTATE>(status->rasconnstate);
    record.dwError = status->dwError;
    const ::DWORD error = ask(seenHandles().handleOf(connection), &record);
    status->rasconnstate = static_cast<DWORD>(record.rasconnstate);
    status->dwError = record.dwError;
    return error;
}

}  // namespace win
