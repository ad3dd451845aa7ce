// shell32 answered by Windows.
#include "platform/api/shell32.h"

#include <cstddef>

// The SDK's base comes first.
// clang-format off
#include <windows.h>
#include <shlobj.h>
// clang-format on

namespace win {

namespace {

// The shell tells the versions of the record apart by cbSize, so ours has to be
// exactly the first one.
static_assert(sizeof(NOTIFYICONDATAA_V1) == NOTIFYICONDATAA_V1_SIZE);
static_assert(offsetof(NOTIFYICONDATAA_V1, hWnd) == offsetof(::NOTIFYICONDATAA, hWnd));
static_assert(offsetof(NOTIFYICONDATAA_V1, uCallbackMessage) ==
              offsetof(::NOTIFYICONDATAA, uCallbackMessage));
static_assert(offsetof(NOTIFYICONDATAA_V1, hIcon) == offsetof(::NOTIFYICONDATAA, hIcon));
static_assert(offsetof(NOTIFYICONDATAA_V1, szTip) == offsetof(::NOTIFYICONDATAA, szTip));

}  // namespace

BOOL Shell_NotifyIconA(DWORD message, NOTIFYICONDATAA_V1* data) {
    return ::Shell_NotifyIconA(message, reinterpret_cast<::NOTIFYICONDATAA*>(data));
}

HINSTANCE ShellExecuteA(HWND owner, const char* verb, const char* file, const char* parameters,
                        const char* folder, INT show) {
    return reinterpret_cast<HINSTANCE>(
        ::ShellExecuteA(reinterpret_cast<::HWND>(owner), verb, file, parameters, folder, show));
}

HRESULT SHGetSpecialFolderLocation(HWND owner, INT folder, ITEMIDLIST** place) {
    return ::SHGetSpecialFolderLocation(reinterpret_cast<::HWND>(owner), folder,
                                        reinterpret_cast<::LPITEMIDLIST*>(place));
}

BOOL SHGetPathFromIDListA(const ITEMIDLIST* place, char* path) {
    return ::SHGetPathFromIDListA(reinterpret_cast<::LPCITEMIDLIST>(place), path);
}

}  // namespace win
