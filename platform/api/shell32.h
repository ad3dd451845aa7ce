// shell32: the notification area, where the shell keeps its folders, and starting programs.
#pragma once

#include "platform/api/constants.h"
#include "platform/api/types.h"

namespace win {

// The record in its first version, which is all that is used of it.
struct NOTIFYICONDATAA_V1 {
    DWORD cbSize;
    HWND hWnd;
    UINT uID;
    UINT uFlags;
    UINT uCallbackMessage;
    HICON hIcon;
    char szTip[64];
};

BOOL Shell_NotifyIconA(DWORD message, NOTIFYICONDATAA_V1* data);

// Starts the program `file` with `parameters` as they are. More than 32 for success, else a
// number that tells why not (SE_ERR_FNF for a file that is not there). `folder` may be null.
HINSTANCE ShellExecuteA(HWND owner, const char* verb, const char* file, const char* parameters,
                        const char* folder, INT show);

// A place among the shell's folders, known to the shell alone.
struct ITEMIDLIST;

// Zero and the place of a CSIDL_ folder, or the error and no place.
HRESULT SHGetSpecialFolderLocation(HWND owner, INT folder, ITEMIDLIST** place);
// `path` has room for 260 bytes.
BOOL SHGetPathFromIDListA(const ITEMIDLIST* place, char* path);

}  // namespace win
