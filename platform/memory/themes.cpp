// Visual styles: the desktop draws nothing, so it only keeps which windows go without.
#include <string_view>

#include "platform/api/user32.h"
#include "platform/api/uxtheme.h"
#include "platform/memory/refuse.h"
#include "platform/memory/window.h"

namespace win {

using namespace memory;

HRESULT SetWindowTheme(HWND window, const wchar_t* application, const wchar_t* classNames) {
    constexpr HRESULT badHandle = static_cast<HRESULT>(0x80070006);
    if (!IsWindow(window)) return badHandle;
    constexpr std::wstring_view none = L" ";
    if (application != none || classNames != none)
        refuse("SetWindowTheme", "the theme of an application");
    windowOf(window).themed = false;
    return 0;
}

}  // namespace win
