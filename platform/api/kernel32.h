// kernel32: the process, files, time, global memory.
#pragma once

#include <span>

#include "platform/api/constants.h"
#include "platform/api/types.h"

namespace win {

struct SYSTEMTIME {
    WORD wYear;
    WORD wMonth;
    WORD wDayOfWeek;
    WORD wDay;
    WORD wHour;
    WORD wMinute;
    WORD wSecond;
    WORD wMilliseconds;
};

struct OSVERSIONINFOA {
    DWORD dwOSVersionInfoSize;  // 148, set by the caller
    DWORD dwMajorVersion;
    DWORD dwMinorVersion;
    DWORD dwBuildNumber;
    DWORD dwPlatformId;
    char szCSDVersion[128];
};

// Process
HINSTANCE GetModuleHandleA(const char* name);

// The program's own: the module that the caller's code is in, the program itself or a library.
HINSTANCE GetOwnModule();
DWORD GetModuleFileNameA(HINSTANCE module, std::span<char> path);  // length without the NUL
const char* GetCommandLineA();
BOOL GetVersionExA(OSVERSIONINFOA* version);
HANDLE CreateMutexA(const void* security, BOOL initialOwner, const char* name);
BOOL CloseHandle(HANDLE handle);
using THREADPROC = DWORD (*)(void* parameter);
// The thread runs beside the interface thread and ends with the process. It may call what says
// so; windows are the interface thread's alone.
HANDLE CreateThread(const void* security, std::size_t stackBytes, THREADPROC start, void* parameter,
                    DWORD flags, DWORD* threadId);
HANDLE CreateEventA(const void* security, BOOL manualReset, BOOL initialState, const char* name);
BOOL SetEvent(HANDLE event);  // from any thread
DWORD GetLastError();
void SetLastError(DWORD error);

// Libraries. With LOAD_LIBRARY_SEARCH_SYSTEM32 a file's name is looked for in the system's own
// folder and nowhere else. Null where there is none: ERROR_MOD_NOT_FOUND, ERROR_PROC_NOT_FOUND.
HINSTANCE LoadLibraryExA(const char* file, HANDLE reserved, DWORD flags);
FARPROC GetProcAddress(HINSTANCE library, const char* function);

// Time
void GetLocalTime(SYSTEMTIME* time);
void Sleep(DWORD milliseconds);
DWORD GetTickCount();  // milliseconds of the system's run, from any thread

// Files. Results and GetLastError numbers are the platform's.
HANDLE CreateFileA(const char* path, DWORD access, DWORD share, const void* security,
                   DWORD disposition, DWORD attributes, HANDLE templateFile);
BOOL ReadFile(HANDLE file, std::span<char> buffer, DWORD* read, void* overlapped);
BOOL WriteFile(HANDLE file, std::span<const char> data, DWORD* written, void* overlapped);
BOOL MoveFileA(const char* from, const char* to);  // never replaces: ERROR_ALREADY_EXISTS
BOOL DeleteFileA(const char* path);
DWORD GetFileAttributesA(const char* path);
BOOL CreateDirectoryA(const char* path, const void* security);  // ERROR_ALREADY_EXISTS

// Global memory, for the clipboard
HGLOBAL GlobalAlloc(UINT flags, std::size_t bytes);
void* GlobalLock(HGLOBAL memory);
BOOL GlobalUnlock(HGLOBAL memory);
HGLOBAL GlobalFree(HGLOBAL memory);
std::size_t GlobalSize(HGLOBAL memory);

}  // namespace win
