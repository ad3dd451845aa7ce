// advapi32: the registry. Every call answers the platform's error number, 0 for
// success.
#pragma once

#include "platform/api/constants.h"
#include "platform/api/types.h"

namespace win {

LSTATUS RegCreateKeyExA(HKEY root, const char* name, DWORD reserved, const char* className,
                        DWORD options, DWORD access, const void* security, HKEY* key,
                        DWORD* disposition);
LSTATUS RegOpenKeyExA(HKEY root, const char* name, DWORD options, DWORD access, HKEY* key);
LSTATUS RegSetValueExA(HKEY key, const char* name, DWORD reserved, DWORD type, const void* data,
                       DWORD bytes);
// With a null buffer only the type and the size in bytes are answered. A buffer
// that is too small: ERROR_MORE_DATA.
LSTATUS RegQueryValueExA(HKEY key, const char* name, DWORD* reserved, DWORD* type, void* data,
                         DWORD* bytes);
LSTATUS RegDeleteValueA(HKEY key, const char* name);
LSTATUS RegCloseKey(HKEY key);

}  // namespace win
