// kernel32 answered by Windows.
#include "platform/api/kernel32.h"

#include <cstddef>
#include <limits>

#include <windows.h>

namespace win {

namespace {

static_assert(sizeof(SYSTEMTIME) == sizeof(::SYSTEMTIME));
static_assert(offsetof(SYSTEMTIME, wMilliseconds) == offsetof(::SYSTEMTIME, wMilliseconds));
static_assert(sizeof(OSVERSIONINFOA) == sizeof(::OSVERSIONINFOA));
static_assert(offsetof(OSVERSIONINFOA, dwPlatformId) == offsetof(::OSVERSIONINFOA, dwPlatformId));
static_assert(offsetof(OSVERSIONINFOA, szCSDVersion) == offsetof(::OSVERSIONINFOA, szCSDVersion));

// The system counts bytes in 32 bits; more than that in one call is passed on as
// the largest count, which it answers with a short read or write.
::DWORD count(std::size_t bytes) {
    constexpr std::size_t most = std::numeric_limits<::DWORD>::max();
    return static_cast<::DWORD>(bytes < most ? bytes : most);
}

}  // namespace

// Where the linker puts the head of the module.
extern "C" const char __ImageBase;

HINSTANCE GetOwnModule() {
    return reinterpret_cast<HINSTANCE>(const_cast<char*>(&__ImageBase));
}

HINSTANCE GetModuleHandleA(const char* name) {
    return reinterpret_cast<HINSTANCE>(::GetModuleHandleA(name));
}

DWORD GetModuleFileNameA(HINSTANCE module, std::span<char> path) {
    return ::GetModuleFileNameA(reinterpret_cast<::HMODULE>(module), path.data(),
                                count(path.size()));
}

const char* GetCommandLineA() {
    return ::GetCommandLineA();
}

BOOL GetVersionExA(OSVERSIONINFOA* version) {
    return ::GetVersionExA(reinterpret_cast<::OSVERSIONINFOA*>(version));
}

HANDLE CreateMutexA(const void* security, BOOL initialOwner, const char* name) {
    auto* attributes =
        static_cast<::SECURITY_ATTRIBUTES*>(const_cast<void*>(security));  // only read
    return ::CreateMutexA(attributes, initialOwner, name);
}

BOOL CloseHandle(HANDLE handle) {
    return ::CloseHandle(handle);
}

HANDLE CreateThread(const void* security, std::size_t stackBytes, THREADPROC start, void* parameter,
                    DWORD flags, DWORD* threadId) {
    auto* attributes =
        static_cast<::SECURITY_ATTRIBUTES*>(const_cast<void*>(security));  // only read
    return ::CreateThread(attributes, stackBytes, reinterpret_cast<::LPTHREAD_START_ROUTINE>(start),
                          parameter, flags, reinterpret_cast<::DWORD*>(threadId));
}

HANDLE CreateEventA(const void* security, BOOL manualReset, BOOL initialState, const char* name) {
    auto* attributes =
        static_cast<::SECURITY_ATTRIBUTES*>(const_cast<void*>(security));  // only read
    return ::CreateEventA(attributes, manualReset, initialState, name);
}

BOOL SetEvent(HANDLE event) {
    return ::SetEvent(event);
}

DWORD GetLastError() {
    return ::GetLastError();
}

void SetLastError(DWORD error) {
    ::SetLastError(error);
}

HINSTANCE LoadLibraryExA(const char* file, HANDLE reserved, DWORD flags) {
    return reinterpret_cast<HINSTANCE>(::LoadLibraryExA(file, reserved, flags));
}

FARPROC GetProcAddress(HINSTANCE library, const char* function) {
    return reinterpret_cast<FARPROC>(
        ::GetProcAddress(reinterpret_cast<::HMODULE>(library), function));
}

void GetLocalTime(SYSTEMTIME* time) {
    ::GetLocalTime(reinterpret_cast<::SYSTEMTIME*>(time));
}

void Sleep(DWORD milliseconds) {
    ::Sleep(milliseconds);
}

DWORD GetTickCount() {
    return ::GetTickCount();
}

HANDLE CreateFileA(const char* path, DWORD access, DWORD share, const void* security,
                   DWORD disposition, DWORD attributes, HANDLE templateFile) {
    auto* securityAttributes =
        static_cast<::SECURITY_ATTRIBUTES*>(const_cast<void*>(security));  // only read
    return ::CreateFileA(path, access, share, securityAttributes, disposition, attributes,
                         templateFile);
}

BOOL ReadFile(HANDLE file, std::span<char> buffer, DWORD* read, void* overlapped) {
    return ::ReadFile(file, buffer.data(), count(buffer.size()), reinterpret_cast<::DWORD*>(read),
                      static_cast<::OVERLAPPED*>(overlapped));
}

BOOL WriteFile(HANDLE file, std::span<const char> data, DWORD* written, void* overlapped) {
    return ::WriteFile(file, data.data(), count(data.size()), reinterpret_cast<::DWORD*>(written),
                       static_cast<::OVERLAPPED*>(overlapped));
}

BOOL MoveFileA(const char* from, const char* to) {
    return ::MoveFileA(from, to);
}

BOOL DeleteFileA(const char* path) {
    return ::DeleteFileA(path);
}

DWORD GetFileAttributesA(const char* path) {
    return ::GetFileAttributesA(path);
}

BOOL CreateDirectoryA(const char* path, const void* security) {
    return ::CreateDirectoryA(path,
                              static_cast<::LPSECURITY_ATTRIBUTES>(const_cast<void*>(security)));
}

HGLOBAL GlobalAlloc(UINT flags, std::size_t bytes) {
    return ::GlobalAlloc(flags, bytes);
}

void* GlobalLock(HGLOBAL memory) {
    return ::GlobalLock(memory);
}

BOOL GlobalUnlock(HGLOBAL memory) {
    return ::GlobalUnlock(memory);
}

HGLOBAL GlobalFree(HGLOBAL memory) {
    return ::GlobalFree(memory);
}

std::size_t GlobalSize(HGLOBAL memory) {
    return ::GlobalSize(memory);
}

}  // namespace win
