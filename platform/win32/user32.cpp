// user32 answered by Windows, but for the clipboard.
#include "platform/api/user32.h"

#include <windows.h>

namespace win {

namespace {

::HWND native(HWND window) {
    return reinterpret_cast<::HWND>(window);
}

HWND ours(::HWND window) {
    return reinterpret_cast<HWND>(window);
}

::HINSTANCE native(HINSTANCE instance) {
    return reinterpret_cast<::HINSTANCE>(instance);
}

::HMENU native(HMENU menu) {
    return reinterpret_cast<::HMENU>(menu);
}

// The records have the platform's layout (check_records.cpp).
template <class Native, class Ours>
Native* record(Ours* ours) {
    return reinterpret_cast<Native*>(ours);
}

}  // namespace

ATOM RegisterClassExA(const WNDCLASSEXA* definition) {
    return ::RegisterClassExA(record<const ::WNDCLASSEXA>(definition));
}

HWND CreateWindowExA(DWORD exStyle, const char* className, const char* windowName, DWORD style,
                     int x, int y, int width, int height, HWND parent, HMENU menuOrId,
                     HINSTANCE instance, void* param) {
    return ours(::CreateWindowExA(exStyle, className, windowName, style, x, y, width, height,
                                  native(parent), native(menuOrId), native(instance), param));
}

BOOL DestroyWindow(HWND window) {
    return ::DestroyWindow(native(window));
}

BOOL IsWindow(HWND window) {
    return ::IsWindow(native(window));
}

LRESULT DefWindowProcA(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return ::DefWindowProcA(native(window), message, wParam, lParam);
}

LRESULT CallWindowProcA(WNDPROC previous, HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return ::CallWindowProcA(reinterpret_cast<::WNDPROC>(previous), native(window), message, wParam,
                             lParam);
}

LONG_PTR SetWindowLongPtrA(HWND window, int index, LONG_PTR value) {
    return ::SetWindowLongPtrA(native(window), index, value);
}

LONG_PTR GetWindowLongPtrA(HWND window, int index) {
    return ::GetWindowLongPtrA(native(window), index);
}

HWND GetParent(HWND window) {
    return ours(::GetParent(native(window)));
}

HWND GetAncestor(HWND window, UINT flags) {
    return ours(::GetAncestor(native(window), flags));
}

HWND GetWindow(HWND window, UINT relation) {
    return ours(::GetWindow(native(window), relation));
}

int GetClassNameA(HWND window, std::span<char> name) {
    return ::GetClassNameA(native(window), name.data(), static_cast<int>(name.size()));
}

BOOL SetWindowTextA(HWND window, const char* text) {
    return ::SetWindowTextA(native(window), text);
}

int GetWindowTextA(HWND window, std::span<char> text) {
    return ::GetWindowTextA(native(window), text.data(), static_cast<int>(text.size()));
}

int GetWindowTextLengthA(HWND window) {
    return ::GetWindowTextLengthA(native(window));
}

BOOL EnumWindows(WNDENUMPROC visit, LPARAM parameter) {
    return ::EnumWindows(reinterpret_cast<::WNDENUMPROC>(visit), parameter);
}

HWND FindWindowA(const char* className, const char* windowName) {
    return ours(::FindWindowA(className, windowName));
}

BOOL ShowWindow(HWND window, int command) {
    return ::ShowWindow(native(window), command);
}

BOOL SetWindowPos(HWND window, HWND insertAfter, int x, int y, int width, int height, UINT flags) {
    return ::SetWindowPos(native(window), native(insertAfter), x, y, width, height, flags);
}

BOOL GetWindowRect(HWND window, RECT* rect) {
    return ::GetWindowRect(native(window), record<::RECT>(rect));
}

BOOL GetClientRect(HWND window, RECT* rect) {
    return ::GetClientRect(native(window), record<::RECT>(rect));
}

BOOL ClientToScreen(HWND window, POINT* point) {
    return ::ClientToScreen(native(window), record<::POINT>(point));
}

BOOL ScreenToClient(HWND window, POINT* point) {
    return ::ScreenToClient(native(window), record<::POINT>(point));
}

BOOL GetWindowPlacement(HWND window, WINDOWPLACEMENT* placement) {
    return ::GetWindowPlacement(native(window), record<::WINDOWPLACEMENT>(placement));
}

BOOL SetWindowPlacement(HWND window, const WINDOWPLACEMENT* placement) {
    return ::SetWindowPlacement(native(window), record<const ::WINDOWPLACEMENT>(placement));
}

BOOL IsWindowVisible(HWND window) {
    return ::IsWindowVisible(native(window));
}

BOOL IsIconic(HWND window) {
    return ::IsIconic(native(window));
}

BOOL IsZoomed(HWND window) {
    return ::IsZoomed(native(window));
}

BOOL EnableWindow(HWND window, BOOL enable) {
    return ::EnableWindow(native(window), enable);
}

BOOL IsWindowEnabled(HWND window) {
    return ::IsWindowEnabled(native(window));
}

BOOL InvalidateRect(HWND window, const RECT* rect, BOOL erase) {
    return ::InvalidateRect(native(window), record<const ::RECT>(rect), erase);
}

BOOL UpdateWindow(HWND window) {
    return ::UpdateWindow(native(window));
}

BOOL RedrawWindow(HWND window, const RECT* rect, HRGN region, UINT flags) {
    return ::RedrawWindow(native(window), record<const ::RECT>(rect),
                          reinterpret_cast<::HRGN>(region), flags);
}

HWND SetFocus(HWND window) {
    return ours(::SetFocus(native(window)));
}

HWND GetFocus() {
    return ours(::GetFocus());
}

HWND GetActiveWindow() {
    return ours(::GetActiveWindow());
}

HWND SetActiveWindow(HWND window) {
    return ours(::SetActiveWindow(native(window)));
}

HWND GetForegroundWindow() {
    return ours(::GetForegroundWindow());
}

BOOL SetForegroundWindow(HWND window) {
    return ::SetForegroundWindow(native(window));
}

HWND SetCapture(HWND window) {
    return ours(::SetCapture(native(window)));
}

HWND GetCapture() {
    return ours(::GetCapture());
}

BOOL ReleaseCapture() {
    return ::ReleaseCapture();
}

BOOL GetCursorPos(POINT* point) {
    return ::GetCursorPos(record<::POINT>(point));
}

HWND WindowFromPoint(POINT point) {
    return ours(::WindowFromPoint({point.x, point.y}));
}

std::int16_t GetKeyState(int virtualKey) {
    return ::GetKeyState(virtualKey);
}

void keybd_event(BYTE virtualKey, BYTE scanCode, DWORD flags, ULONG_PTR extra) {
    ::keybd_event(virtualKey, scanCode, flags, extra);
}

LRESULT SendMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return ::SendMessageA(native(window), message, wParam, lParam);
}

BOOL PostMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return ::PostMessageA(native(window), message, wParam, lParam);
}

BOOL PeekMessageA(MSG* message, HWND window, UINT first, UINT last, UINT remove) {
    return ::PeekMessageA(record<::MSG>(message), native(window), first, last, remove);
}

BOOL GetMessageA(MSG* message, HWND window, UINT first, UINT last) {
    return ::GetMessageA(record<::MSG>(message), native(window), first, last);
}

BOOL WaitMessage() {
    return ::WaitMessage();
}

DWORD MsgWaitForMultipleObjects(DWORD count, const HANDLE* handles, BOOL waitForAll,
                                DWORD milliseconds, DWORD wakeMask) {
    return ::MsgWaitForMultipleObjects(count, handles, waitForAll, milliseconds, wakeMask);
}

BOOL TranslateMessage(const MSG* message) {
    return ::TranslateMessage(record<const ::MSG>(message));
}

LRESULT DispatchMessageA(const MSG* message) {
    return ::DispatchMessageA(record<const ::MSG>(message));
}

BOOL IsDialogMessageA(HWND dialog, MSG* message) {
    return ::IsDialogMessageA(native(dialog), record<::MSG>(message));
}

void PostQuitMessage(int exitCode) {
    ::PostQuitMessage(exitCode);
}

UINT_PTR SetTimer(HWND window, UINT_PTR id, UINT milliseconds, TIMERPROC procedure) {
    return ::SetTimer(native(window), id, milliseconds, reinterpret_cast<::TIMERPROC>(procedure));
}

BOOL KillTimer(HWND window, UINT_PTR id) {
    return ::KillTimer(native(window), id);
}

int GetSystemMetrics(int index) {
    return ::GetSystemMetrics(index);
}

BOOL SystemParametersInfoA(UINT action, UINT parameter, void* data, UINT flags) {
    return ::SystemParametersInfoA(action, parameter, data, flags);
}

HDC GetDC(HWND window) {
    return reinterpret_cast<HDC>(::GetDC(native(window)));
}

int ReleaseDC(HWND window, HDC context) {
    return ::ReleaseDC(native(window), reinterpret_cast<::HDC>(context));
}

HCURSOR LoadCursorA(HINSTANCE instance, const char* name) {
    return reinterpret_cast<HCURSOR>(::LoadCursorA(native(instance), name));
}

HCURSOR SetCursor(HCURSOR cursor) {
    return reinterpret_cast<HCURSOR>(::SetCursor(reinterpret_cast<::HCURSOR>(cursor)));
}

HANDLE LoadImageA(HINSTANCE instance, const char* name, UINT type, int width, int height,
                  UINT flags) {
    return ::LoadImageA(native(instance), name, type, width, height, flags);
}

BOOL DestroyIcon(HICON icon) {
    return ::DestroyIcon(reinterpret_cast<::HICON>(icon));
}

HMENU CreatePopupMenu() {
    return reinterpret_cast<HMENU>(::CreatePopupMenu());
}

BOOL DestroyMenu(HMENU menu) {
    return ::DestroyMenu(native(menu));
}

BOOL InsertMenuItemA(HMENU menu, UINT position, BOOL byPosition, const MENUITEMINFOA* item) {
    return ::InsertMenuItemA(native(menu), position, byPosition,
                             record<const ::MENUITEMINFOA>(item));
}

BOOL SetMenuItemInfoA(HMENU menu, UINT item, BOOL byPosition, const MENUITEMINFOA* info) {
    return ::SetMenuItemInfoA(native(menu), item, byPosition, record<const ::MENUITEMINFOA>(info));
}

BOOL GetMenuItemInfoA(HMENU menu, UINT item, BOOL byPosition, MENUITEMINFOA* info) {
    return ::GetMenuItemInfoA(native(menu), item, byPosition, record<::MENUITEMINFOA>(info));
}

BOOL RemoveMenu(HMENU menu, UINT item, UINT flags) {
    return ::RemoveMenu(native(menu), item, flags);
}

int GetMenuItemCount(HMENU menu) {
    return ::GetMenuItemCount(native(menu));
}

BOOL TrackPopupMenu(HMENU menu, UINT flags, int x, int y, int reserved, HWND owner,
                    const RECT* rect) {
    return ::TrackPopupMenu(native(menu), flags, x, y, reserved, native(owner),
                            record<const ::RECT>(rect));
}

BOOL EndMenu() {
    return ::EndMenu();
}

int MessageBoxA(HWND owner, const char* text, const char* caption, UINT type) {
    return ::MessageBoxA(native(owner), text, caption, type);
}

BOOL MessageBeep(UINT type) {
    return ::MessageBeep(type);
}

}  // namespace win
