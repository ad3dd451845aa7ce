// comctl32 answered by Windows.
#include "platform/api/comctl32.h"

// The SDK's base comes first.
// clang-format off
#include <windows.h>
#include <commctrl.h>
// clang-format on

namespace win {

BOOL InitCommonControlsEx(const INITCOMMONCONTROLSEX* classes) {
    return ::InitCommonControlsEx(reinterpret_cast<const ::INITCOMMONCONTROLSEX*>(classes));
}

}  // namespace win
