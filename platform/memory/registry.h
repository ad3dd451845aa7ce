// Registry: the memory desktop's keys and values under its two roots. HKEY_LOCAL_MACHINE
// can only be read by the program, which is all that an ordinary user's rights allow.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "platform/api/constants.h"
#include "platform/memory/no_case.h"

namespace win::memory {

struct RegistryValue {
    DWORD type = 0;
    std::string bytes;  // as stored, with the NUL of a text
};

struct RegistryKey {
    std::map<std::string, std::unique_ptr<RegistryKey>, NoCase> keys;
    std::map<std::string, RegistryValue, NoCase> values;  // "" is the key's default value
    bool machine = false;                                 // below HKEY_LOCAL_MACHINE
};

// A root by its predefined handle; null for any other.
RegistryKey* registryRoot(HKEY root);

// The key at a path below `from`, names separated by single backslashes, one more allowed
// at the end. Missing keys are made when `make` is true, else null is the answer.
RegistryKey* registryKey(RegistryKey& from, std::string_view path, bool make);

// The keys that the program has opened and not closed, by their handles.
std::map<HKEY, RegistryKey*>& openKeys();

}  // namespace win::memory
