#include "platform/memory/registry.h"

#include <cstring>

#include "platform/api/advapi32.h"
#include "platform/memory/faults.h"
#include "platform/memory/refuse.h"

namespace win {

namespace memory {
namespace {

constexpr LSTATUS badPathname = 161;  // ERROR_BAD_PATHNAME
constexpr DWORD everyRight = 63;      // the six rights that are a key's own

struct Registry {
    RegistryKey user;
    RegistryKey machine;
    std::map<HKEY, RegistryKey*> open;
    std::uintptr_t next = 0x1000;
};

Registry& registry() {
    static Registry hives = [] {
        Registry made;
        made.machine.machine = true;
        return made;
    }();
    return hives;
}

RegistryKey* keyOf(HKEY handle) {
    if (RegistryKey* root = registryRoot(handle)) return root;
    const auto found = openKeys().find(handle);
    return found == openKeys().end() ? nullptr : found->second;
}

HKEY newHandle(RegistryKey& key) {
    const auto handle = reinterpret_cast<HKEY>(registry().next++);
    openKeys()[handle] = &key;
    return handle;
}

const char* orEmpty(const char* text) {
    return text ? text : "";
}

// What both ways to get a key have in common: the checks of their arguments, the key
// they start from, and the refusal of a name that begins with a backslash.
LSTATUS startOf(HKEY root, const char* name, DWORD options, DWORD access, RegistryKey*& from) {
    if (options) refuse("registry key options", options);
    if (access != everyRight) refuse("registry access mask", access);
    from = keyOf(root);
    if (!from) return ERROR_INVALID_HANDLE;
    return orEmpty(name)[0] == '\\' ? badPathname : 0;
}

}  // namespace

RegistryKey* registryRoot(HKEY root) {
    if (root == HKEY_CURRENT_USER) return &registry().user;
    return root == HKEY_LOCAL_MACHINE ? &registry().machine : nullptr;
}

RegistryKey* registryKey(RegistryKey& from, std::string_view path, bool make) {
    constexpr std::size_t longestName = 254;  // the platform's versions differ from here on
    RegistryKey* key = &from;
    while (key && !path.empty()) {
        const std::string_view name = path.substr(0, path.find('\\'));
        if (name.empty() || name.size() > longestName) refuse("registry key name", path);
        auto found = key->keys.find(name);
        if (found == key->keys.end() && make) {
            found = key->keys.emplace(name, std::make_unique<RegistryKey>()).first;
            found->second->machine = key->machine;
        }
        key = found == key->keys.end() ? nullptr : found->second.get();
        path.remove_prefix(std::min(name.size() + 1, path.size()));
    }
    return key;
}

std::map<HKEY, RegistryKey*>& openKeys() {
    return registry().open;
}

}  // namespace memory

using namespace memory;

LSTATUS RegCreateKeyExA(HKEY root, const char* name, DWORD reserved, const char* className,
                        DWORD options, DWORD access, const void* security, HKEY* key,
                        DWORD* disposition) {
    constexpr DWORD createdNew = 1;      // REG_CREATED_NEW_KEY
    constexpr DWORD openedExisting = 2;  // REG_OPENED_EXISTING_KEY
    if (reserved || className || security) refuse("RegCreateKeyExA", "class or security");
    if (const DWORD error = faultIn("RegCreateKeyExA")) return static_cast<LSTATUS>(error);
    RegistryKey* from = nullptr;
    if (const LSTATUS error = startOf(root, name, options, access, from)) return error;
    if (from->machine) refuse("RegCreateKeyExA below HKEY_LOCAL_MACHINE", orEmpty(name));
    const bool existed = registryKey(*from, orEmpty(name), false) != nullptr;
    *key = newHandle(*registryKey(*from, orEmpty(name), true));
    if (disposition) *disposition = existed ? openedExisting : createdNew;
    return 0;
}

LSTATUS RegOpenKeyExA(HKEY root, const char* name, DWORD options, DWORD access, HKEY* key) {
    if (const DWORD error = faultIn("RegOpenKeyExA")) return static_cast<LSTATUS>(error);
    RegistryKey* from = nullptr;
    if (const LSTATUS error = startOf(root, name, options, access, from)) return error;
    RegistryKey* found = registryKey(*from, orEmpty(name), false);
    if (!found) return ERROR_FILE_NOT_FOUND;
    *key = newHandle(*found);
    return 0;
}

LSTATUS RegSetValueExA(HKEY key, const char* name, DWORD reserved, DWORD type, const void* data,
                       DWORD bytes) {
    if (reserved) refuse("RegSetValueExA reserved", reserved);
    if (type != REG_SZ && type != REG_BINARY && type != REG_DWORD) {
        refuse("RegSetValueExA type", type);
    }
    if (!data && bytes) refuse("RegSetValueExA without data, bytes", bytes);
    if (const DWORD error = faultIn("RegSetValueExA")) return static_cast<LSTATUS>(error);
    RegistryKey* found = keyOf(key);
    if (!found) return ERROR_INVALID_HANDLE;
    if (found->machine) refuse("RegSetValueExA below HKEY_LOCAL_MACHINE", orEmpty(name));
    const auto* text = static_cast<const char*>(data);
    // The platform looks one byte further and takes a NUL that the caller did not count.
    if (type == REG_SZ && bytes && text[bytes - 1] != '\0' && text[bytes] == '\0') ++bytes;
    found->values[orEmpty(name)] = {type, std::string(text, bytes)};
    return 0;
}

LSTATUS RegQueryValueExA(HKEY key, const char* name, DWORD* reserved, DWORD* type, void* data,
                         DWORD* bytes) {
    if (reserved) refuse("RegQueryValueExA", "reserved");
    if (const DWORD error = faultIn("RegQueryValueExA")) return static_cast<LSTATUS>(error);
    const RegistryKey* found = keyOf(key);
    if (!found) return ERROR_INVALID_HANDLE;
    if (data && !bytes) return ERROR_INVALID_PARAMETER;
    const auto at = found->values.find(std::string_view(orEmpty(name)));
    if (at == found->values.end()) return ERROR_FILE_NOT_FOUND;
    const RegistryValue& value = at->second;
    const DWORD room = data ? *bytes : 0;
    const auto size = static_cast<DWORD>(value.bytes.size());
    if (type) *type = value.type;
    if (bytes) *bytes = size;
    if (!data) return 0;
    if (room < size) return ERROR_MORE_DATA;
    value.bytes.copy(static_cast<char*>(data), size);
    // A text that was stored without its NUL gets one where there is room for it.
    const bool open = value.type == REG_SZ && size && value.bytes.back() != '\0' && room > size;
    if (open) static_cast<char*>(data)[size] = '\0';
    return 0;
}

LSTATUS RegDeleteValueA(HKEY key, const char* name) {
    if (const DWORD error = faultIn("RegDeleteValueA")) return static_cast<LSTATUS>(error);
    RegistryKey* found = keyOf(key);
    if (!found) return ERROR_INVALID_HANDLE;
    if (found->machine) refuse("RegDeleteValueA below HKEY_LOCAL_MACHINE", orEmpty(name));
    return found->values.erase(orEmpty(name)) ? 0 : static_cast<LSTATUS>(ERROR_FILE_NOT_FOUND);
}

LSTATUS RegCloseKey(HKEY key) {
    if (registryRoot(key)) return 0;
    return openKeys().erase(key) ? 0 : static_cast<LSTATUS>(ERROR_INVALID_HANDLE);
}

}  // namespace win
