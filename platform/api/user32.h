// user32: windows, messages, focus, timers, menus, message boxes, clipboard.
//
// Names, argument order, results and failures are the platform's (Win32 API,
// user32.dll); other threads may send and post, all else is for the interface thread.
// Texts are NUL-terminated ANSI bytes and are copied by the callee.
#pragma once

#include <span>

#include "platform/api/constants.h"
#include "platform/api/types.h"

namespace win {

struct WNDCLASSEXA {
    UINT cbSize;
    UINT style;
    WNDPROC lpfnWndProc;
    INT cbClsExtra;
    INT cbWndExtra;
    HINSTANCE hInstance;
    HICON hIcon;
    HCURSOR hCursor;
    HBRUSH hbrBackground;
    const char* lpszMenuName;
    const char* lpszClassName;
    HICON hIconSm;
};

struct CREATESTRUCTA {
    void* lpCreateParams;
    HINSTANCE hInstance;
    HMENU hMenu;
    HWND hwndParent;
    INT cy;
    INT cx;
    INT y;
    INT x;
    LONG style;
    const char* lpszName;
    const char* lpszClass;
    DWORD dwExStyle;
};

struct WINDOWPLACEMENT {
    UINT length;  // 44, set by the caller
    UINT flags;
    UINT showCmd;
    POINT ptMinPosition;
    POINT ptMaxPosition;
    RECT rcNormalPosition;  // pixels of the work area, also while minimised or hidden
};

struct NMHDR {
    HWND hwndFrom;
    UINT_PTR idFrom;
    UINT code;
};

struct MENUITEMINFOA {
    UINT cbSize;
    UINT fMask;
    UINT fType;
    UINT fState;
    UINT wID;
    HMENU hSubMenu;
    HBITMAP hbmpChecked;
    HBITMAP hbmpUnchecked;
    ULONG_PTR dwItemData;
    char* dwTypeData;
    UINT cch;
    HBITMAP hbmpItem;
};

// Window classes and windows
ATOM RegisterClassExA(const WNDCLASSEXA* definition);
HWND CreateWindowExA(DWORD exStyle, const char* className, const char* windowName, DWORD style,
                     int x, int y, int width, int height, HWND parent, HMENU menuOrId,
                     HINSTANCE instance, void* param);
BOOL DestroyWindow(HWND window);
BOOL IsWindow(HWND window);
LRESULT DefWindowProcA(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT CallWindowProcA(WNDPROC previous, HWND window, UINT message, WPARAM wParam, LPARAM lParam);
LONG_PTR SetWindowLongPtrA(HWND window, int index, LONG_PTR value);
LONG_PTR GetWindowLongPtrA(HWND window, int index);
HWND GetParent(HWND window);
HWND GetAncestor(HWND window, UINT flags);
HWND GetWindow(HWND window, UINT relation);
int GetClassNameA(HWND window, std::span<char> name);
BOOL SetWindowTextA(HWND window, const char* text);
int GetWindowTextA(HWND window, std::span<char> text);
int GetWindowTextLengthA(HWND window);

// Windows of every program
using WNDENUMPROC = BOOL (*)(HWND window, LPARAM parameter);
// Calls `visit` for each top-level window on the screen, topmost first, until it answers 0.
// The result is its last answer, or 0 on failure.
BOOL EnumWindows(WNDENUMPROC visit, LPARAM parameter);
// The topmost top-level window of this class and title; either may be null for any.
HWND FindWindowA(const char* className, const char* windowName);

// Place, level, visibility
BOOL ShowWindow(HWND window, int command);
BOOL SetWindowPos(HWND window, HWND insertAfter, int x, int y, int width, int height, UINT flags);
BOOL GetWindowRect(HWND window, RECT* rect);
BOOL GetClientRect(HWND window, RECT* rect);
BOOL ClientToScreen(HWND window, POINT* point);
BOOL ScreenToClient(HWND window, POINT* point);
BOOL GetWindowPlacement(HWND window, WINDOWPLACEMENT* placement);
BOOL SetWindowPlacement(HWND window, const WINDOWPLACEMENT* placement);
BOOL IsWindowVisible(HWND window);
BOOL IsIconic(HWND window);
BOOL IsZoomed(HWND window);
BOOL EnableWindow(HWND window, BOOL enable);
BOOL IsWindowEnabled(HWND window);
BOOL InvalidateRect(HWND window, const RECT* rect, BOOL erase);
BOOL UpdateWindow(HWND window);
BOOL RedrawWindow(HWND window, const RECT* rect, HRGN region, UINT flags);

// Focus, activation, mouse, keyboard
HWND SetFocus(HWND window);
HWND GetFocus();
HWND GetActiveWindow();
HWND SetActiveWindow(HWND window);
HWND GetForegroundWindow();
BOOL SetForegroundWindow(HWND window);
HWND SetCapture(HWND window);
HWND GetCapture();
BOOL ReleaseCapture();
BOOL GetCursorPos(POINT* point);
// The window that the mouse would reach at a point of the screen, in pixels.
HWND WindowFromPoint(POINT point);
std::int16_t GetKeyState(int virtualKey);
// One key going down, or up with KEYEVENTF_KEYUP, in the window that is in the foreground when
// it is delivered, whoever's it is.
void keybd_event(BYTE virtualKey, BYTE scanCode, DWORD flags, ULONG_PTR extra);

// Messages
LRESULT SendMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
BOOL PostMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
BOOL PeekMessageA(MSG* message, HWND window, UINT first, UINT last, UINT remove);
BOOL GetMessageA(MSG* message, HWND window, UINT first, UINT last);
// Returns when a message has come since the last look at the queue.
BOOL WaitMessage();
// Returns when one of the objects is signalled (WAIT_OBJECT_0 and its number), when a message of
// the kinds in `wakeMask` has come (WAIT_OBJECT_0 + count), or after the time (WAIT_TIMEOUT).
DWORD MsgWaitForMultipleObjects(DWORD count, const HANDLE* handles, BOOL waitForAll,
                                DWORD milliseconds, DWORD wakeMask);
BOOL TranslateMessage(const MSG* message);
LRESULT DispatchMessageA(const MSG* message);
BOOL IsDialogMessageA(HWND dialog, MSG* message);
void PostQuitMessage(int exitCode);
UINT_PTR SetTimer(HWND window, UINT_PTR id, UINT milliseconds, TIMERPROC procedure);
BOOL KillTimer(HWND window, UINT_PTR id);

// Metrics
int GetSystemMetrics(int index);
BOOL SystemParametersInfoA(UINT action, UINT parameter, void* data, UINT flags);
HDC GetDC(HWND window);
int ReleaseDC(HWND window, HDC context);

// Cursors, icons, pictures
HCURSOR LoadCursorA(HINSTANCE instance, const char* name);
HCURSOR SetCursor(HCURSOR cursor);
// LR_LOADFROMFILE with IMAGE_BITMAP reads a .bmp file whatever its extension; a
// width and height of 0 keep the picture's own size. Null when there is no such
// file or it is no picture. The caller owns a picture loaded from a file
// (DeleteObject); one loaded with LR_SHARED belongs to the system.
HANDLE LoadImageA(HINSTANCE instance, const char* name, UINT type, int width, int height,
                  UINT flags);
BOOL DestroyIcon(HICON icon);

// Menus
HMENU CreatePopupMenu();
BOOL DestroyMenu(HMENU menu);  // sub-menus included
BOOL InsertMenuItemA(HMENU menu, UINT position, BOOL byPosition, const MENUITEMINFOA* item);
BOOL SetMenuItemInfoA(HMENU menu, UINT item, BOOL byPosition, const MENUITEMINFOA* info);
BOOL GetMenuItemInfoA(HMENU menu, UINT item, BOOL byPosition, MENUITEMINFOA* info);
BOOL RemoveMenu(HMENU menu, UINT item, UINT flags);  // a sub-menu stays alive
int GetMenuItemCount(HMENU menu);
// With TPM_RETURNCMD the identifier of the chosen item, or 0 for none.
BOOL TrackPopupMenu(HMENU menu, UINT flags, int x, int y, int reserved, HWND owner,
                    const RECT* rect);
BOOL EndMenu();  // closes the popup that is up, without a choice

// Boxes and the beep
int MessageBoxA(HWND owner, const char* text, const char* caption, UINT type);
BOOL MessageBeep(UINT type);  // returns at once; the sound is the user's setting

// Clipboard
BOOL OpenClipboard(HWND owner);
BOOL EmptyClipboard();
HANDLE SetClipboardData(UINT format, HANDLE data);  // the clipboard takes the memory
HANDLE GetClipboardData(UINT format);               // stays the clipboard's
BOOL CloseClipboard();

}  // namespace win
