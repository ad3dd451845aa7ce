// uxtheme answered by Windows.
#include "platform/api/uxtheme.h"

// The SDK's base comes first.
// clang-format off
#include <windows.h>
#include <uxtheme.h>
// clang-format on

namespace win {

HRESULT SetWindowTheme(HWND window, const wchar_t* application, const wchar_t* classNames) {
    return ::SetWindowTheme(reinterpret_cast<::HWND>(window), application, classNames);
}

}  // namespace win
