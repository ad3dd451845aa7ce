// hhctrl answered by Windows.
#include "platform/api/hhctrl.h"

#include "platform/win32/system_function.h"

// The SDK's base comes first.
// clang-format off
#include <windows.h>
#include <htmlhelp.h>
// clang-format on

namespace win {

HWND HtmlHelpA(HWND caller, const char* file, UINT command, DWORD_PTR data) {
    static SystemFunction<decltype(::HtmlHelpA)> function("hhctrl.ocx", "HtmlHelpA");
    auto* const help = function.get();
    if (help == nullptr) return nullptr;
    return reinterpret_cast<HWND>(help(reinterpret_cast<::HWND>(caller), file, command, data));
}

}  // namespace win
