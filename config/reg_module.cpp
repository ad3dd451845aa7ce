#include "config/reg_module.h"

#include "platform/runtime/decimal_text.h"
#include "platform/runtime/number_text.h"

namespace magpie {

namespace {

constexpr win::LSTATUS unsupportedType = -1;

struct TextOf {
    std::string operator()(std::monostate) const { return {}; }
    std::string operator()(const std::string& text) const { return text; }
    std::string operator()(std::int32_t number) const { return integerText(number); }
};

struct NumberOf {
    std::int32_t operator()(std::monostate) const { return 0; }
    std::int32_t operator()(const std::string& text) const { return int32Of(text); }
    std::int32_t operator()(std::int32_t number) const { return number; }
};

// The key under the current user, or the null key, on which every call fails.
class OpenKey {
public:
    explicit OpenKey(const std::string& name) {
        win::RegOpenKeyExA(win::HKEY_CURRENT_USER, name.c_str(), 0, regAllAccess, &key_);
    }
    ~OpenKey() { win::RegCloseKey(key_); }
    OpenKey(const OpenKey&) = delete;
    OpenKey& operator=(const OpenKey&) = delete;

    win::HKEY handle() const { return key_; }

private:
    win::HKEY key_ = nullptr;
};

win::LSTATUS queryText(win::HKEY hKey, const std::string& name, win::DWORD size,
                       RegVariant& value) {
    std::string buffer(size, '\0');
    value = std::monostate{};
    const win::LSTATUS status =
        win::RegQueryValueExA(hKey, name.c_str(), nullptr, nullptr, buffer.data(), &size);
    if (status != 0) return status;
    // The NUL at the end is dropped by count: whoever wrote the value counted it.
    buffer.resize(buffer.size() - 1);
    value = buffer;
    return status;
}

win::LSTATUS queryNumber(win::HKEY hKey, const std::string& name, RegVariant& value) {
    std::int32_t number = 0;
    win::DWORD size = sizeof number;
    const win::LSTATUS status =
        win::RegQueryValueExA(hKey, name.c_str(), nullptr, nullptr, &number, &size);
    if (status == 0) value = number;
    return status;
}

}  // namespace

std::string regText(const RegVariant& value) {
    return std::visit(TextOf{}, value);
}

void regCreateKey(const std::string& name, win::HKEY root) {
    win::HKEY key = nullptr;
    win::DWORD disposition = 0;
    win::RegCreateKeyExA(root, name.c_str(), 0, nullptr, 0, regAllAccess, nullptr, &key,
                         &disposition);
    win::RegCloseKey(key);
}

win::LSTATUS regSetValue(win::HKEY hKey, const std::string& sValueName, win::DWORD valueType,
                         const RegVariant& value) {
    if (valueType == win::REG_SZ) {
        const std::string text = regText(value);
        return win::RegSetValueExA(hKey, sValueName.c_str(), 0, win::REG_SZ, text.c_str(),
                                   static_cast<win::DWORD>(text.size() + 1));
    }
    if (valueType == win::REG_DWORD) {
        const std::int32_t number = std::visit(NumberOf{}, value);
        return win::RegSetValueExA(hKey, sValueName.c_str(), 0, win::REG_DWORD, &number,
                                   sizeof number);
    }
    return win::LSTATUS{0};
}

win::LSTATUS regQueryValue(win::HKEY hKey, const std::string& sValueName, RegVariant& value) {
    win::DWORD type = 0;
    win::DWORD size = 0;
    const win::LSTATUS status =
        win::RegQueryValueExA(hKey, sValueName.c_str(), nullptr, &type, nullptr, &size);
    if (status != 0) return status;
    if (type == win::REG_DWORD) return queryNumber(hKey, sValueName, value);
    if (type != win::REG_SZ) return unsupportedType;
    // A text without even its NUL has nothing to take the NUL from.
    return size == 0 ? status : queryText(hKey, sValueName, size, value);
}

void regPutValue(const std::string& sKeyName, const std::string& sValueName,
                 const RegVariant& value, win::DWORD valueType) {
    const OpenKey key(sKeyName);
    regSetValue(key.handle(), sValueName, valueType, value);
}

std::string regGetValue(const std::string& sKeyName, const std::string& sValueName) {
    const OpenKey key(sKeyName);
    RegVariant value;
    regQueryValue(key.handle(), sValueName, value);
    return regText(value);
}

}  // namespace magpie
