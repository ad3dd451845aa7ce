// wininet answered by Windows.
#include "platform/api/wininet.h"

#include "platform/win32/system_function.h"

// The SDK's base comes first.
// clang-format off
#include <windows.h>
#include <wininet.h>
// clang-format on

namespace win {

BOOL InternetGetConnectedState(DWORD* flags, DWORD reserved) {
    static SystemFunction<decltype(::InternetGetConnectedState)> function(
        "wininet.dll", "InternetGetConnectedState");
    auto* const ask = function.get();
    return ask != nullptr && ask(reinterpret_cast<::DWORD*>(flags), reserved);
}

}  // namespace win
