// advapi32 answered by Windows.
#include "platform/api/advapi32.h"

#include <windows.h>

namespace win {

LSTATUS RegCreateKeyExA(HKEY root, const char* name, DWORD reserved, const char* className,
                        DWORD options, DWORD access, const void* security, HKEY* key,
                        DWORD* disposition) {
    const auto* attributes = static_cast<const ::SECURITY_ATTRIBUTES*>(security);
    return ::RegCreateKeyExA(reinterpret_cast<::HKEY>(root), name, reserved,
                             const_cast<char*>(className),  // only read
                             options, access, const_cast<::SECURITY_ATTRIBUTES*>(attributes),
                             reinterpret_cast<::HKEY*>(key),
                             reinterpret_cast<::DWORD*>(disposition));
}

LSTATUS RegOpenKeyExA(HKEY root, const char* name, DWORD options, DWORD access, HKEY* key) {
    return ::RegOpenKeyExA(reinterpret_cast<::HKEY>(root), name, options, access,
                           reinterpret_cast<::HKEY*>(key));
}

LSTATUS RegSetValueExA(HKEY key, const char* name, DWORD reserved, DWORD type, const void* data,
                       DWORD bytes) {
    return ::RegSetValueExA(reinterpret_cast<::HKEY>(key), name, reserved, type,
                            static_cast<const ::BYTE*>(data), bytes);
}

LSTATUS RegQueryValueExA(HKEY key, const char* name, DWORD* reserved, DWORD* type, void* data,
                         DWORD* bytes) {
    return ::RegQueryValueExA(reinterpret_cast<::HKEY>(key), name,
                              reinterpret_cast<::DWORD*>(reserved),
                              reinterpret_cast<::DWORD*>(type), static_cast<::BYTE*>(data),
                              reinterpret_cast<::DWORD*>(bytes));
}

LSTATUS RegDeleteValueA(HKEY key, const char* name) {
    return ::RegDeleteValueA(reinterpret_cast<::HKEY>(key), name);
}

LSTATUS RegCloseKey(HKEY key) {
    return ::RegCloseKey(reinterpret_cast<::HKEY>(key));
}

}  // namespace win
