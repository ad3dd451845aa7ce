// comdlg32: the common file dialogs.
#pragma once

#include "platform/api/constants.h"
#include "platform/api/types.h"

namespace win {

struct OPENFILENAMEA {
    DWORD lStructSize;
    HWND hwndOwner;
    HINSTANCE hInstance;
    const char* lpstrFilter;  // pairs, each NUL-terminated, an empty text at the end
    char* lpstrCustomFilter;
    DWORD nMaxCustFilter;
    DWORD nFilterIndex;
    char* lpstrFile;
    DWORD nMaxFile;
    char* lpstrFileTitle;
    DWORD nMaxFileTitle;
    const char* lpstrInitialDir;
    const char* lpstrTitle;
    DWORD Flags;
    WORD nFileOffset;
    WORD nFileExtension;
    const char* lpstrDefExt;
    LPARAM lCustData;
    void* lpfnHook;
    const char* lpTemplateName;
    void* pvReserved;
    DWORD dwReserved;
    DWORD FlagsEx;
};

// FALSE on Cancel and on failure.
BOOL GetOpenFileNameA(OPENFILENAMEA* dialog);
BOOL GetSaveFileNameA(OPENFILENAMEA* dialog);

}  // namespace win
