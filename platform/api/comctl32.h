// comctl32: the records of the common controls' messages. The controls themselves
// are reached with SendMessageA.
#pragma once

#include "platform/api/constants.h"
#include "platform/api/types.h"
#include "platform/api/user32.h"

namespace win {

inline constexpr const char* WC_LISTVIEWA = "SysListView32";
inline constexpr const char* WC_HEADERA = "SysHeader32";
inline constexpr const char* WC_TABCONTROLA = "SysTabControl32";
inline constexpr const char* STATUSCLASSNAMEA = "msctls_statusbar32";
inline constexpr const char* TOOLTIPS_CLASSA = "tooltips_class32";

struct INITCOMMONCONTROLSEX {
    DWORD dwSize;
    DWORD dwICC;
};

BOOL InitCommonControlsEx(const INITCOMMONCONTROLSEX* classes);

struct LVITEMA {
    UINT mask;
    INT iItem;
    INT iSubItem;
    UINT state;
    UINT stateMask;
    char* pszText;
    INT cchTextMax;
    INT iImage;
    LPARAM lParam;
    INT iIndent;
    INT iGroupId;
    UINT cColumns;
    UINT* puColumns;
    INT* piColFmt;
    INT iGroup;
};

struct LVCOLUMNA {
    UINT mask;
    INT fmt;
    INT cx;  // pixels
    char* pszText;
    INT cchTextMax;
    INT iSubItem;
    INT iImage;
    INT iOrder;
    INT cxMin;
    INT cxDefault;
    INT cxIdeal;
};

struct LVFINDINFOA {
    UINT flags;
    const char* psz;
    LPARAM lParam;
    POINT pt;
    UINT vkDirection;
};

// What LVM_SORTITEMS compares rows by: gets the parameters of two rows and its own. Above
// 0 the second row goes before the first.
using PFNLVCOMPARE = INT (*)(LPARAM first, LPARAM second, LPARAM sort);

struct NMLISTVIEW {
    NMHDR hdr;
    INT iItem;
    INT iSubItem;
    UINT uNewState;
    UINT uOldState;
    UINT uChanged;
    POINT ptAction;
    LPARAM lParam;
};

struct NMITEMACTIVATE {
    NMHDR hdr;
    INT iItem;
    INT iSubItem;
    UINT uNewState;
    UINT uOldState;
    UINT uChanged;
    POINT ptAction;
    LPARAM lParam;
    UINT uKeyFlags;
};

struct NMMOUSE {
    NMHDR hdr;
    DWORD_PTR dwItemSpec;  // of a status bar: the part
    DWORD_PTR dwItemData;
    POINT pt;
    LPARAM dwHitInfo;
};

struct TCITEMA {
    UINT mask;
    DWORD dwState;
    DWORD dwStateMask;
    char* pszText;
    INT cchTextMax;
    INT iImage;
    LPARAM lParam;
};

struct TTTOOLINFOA {
    UINT cbSize;
    UINT uFlags;
    HWND hwnd;
    UINT_PTR uId;
    RECT rect;
    HINSTANCE hinst;
    char* lpszText;
    LPARAM lParam;
    void* lpReserved;
};

struct NMTTDISPINFOA {
    NMHDR hdr;
    char* lpszText;
    char szText[80];
    HINSTANCE hinst;
    UINT uFlags;
    LPARAM lParam;
};

}  // namespace win
