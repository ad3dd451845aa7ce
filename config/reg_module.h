// regModule: the settings in the registry. Nothing is reported: an absent value, an
// absent key and a value of another type read as the empty text, and a write that
// fails is lost.
#pragma once

#include <cstdint>
#include <string>
#include <variant>

#include "platform/api/advapi32.h"

namespace magpie {

// What a value is in the program: nothing yet, a text, a 32-bit number.
using RegVariant = std::variant<std::monostate, std::string, std::int32_t>;

// A value as text: empty for none, a number in decimal.
std::string regText(const RegVariant& value);

// The mask that keys have always been opened with, also for reading.
inline constexpr win::DWORD regAllAccess = 63;

// The key of everything that survives a run, under the current user. The backslash at
// its end belongs to it.
inline constexpr const char* settingsKey = "SOFTWARE\\Fennelworks\\Magpie\\";

// Makes sure that the key is there.
void regCreateKey(const std::string& name, win::HKEY root);

// Writes a value of type REG_SZ or REG_DWORD into an open key; the result is the
// platform's error number. Any other type writes nothing and is a success. A text that
// is no number raises 13 for a REG_DWORD.
win::LSTATUS regSetValue(win::HKEY hKey, const std::string& sValueName, win::DWORD valueType,
                         const RegVariant& value);

// Reads a value of an open key: 0 for success, -1 for a type that is neither REG_SZ nor
// REG_DWORD, else the platform's error number. `value` is left alone where it is not
// read, and emptied by a text that is there but can't be read.
win::LSTATUS regQueryValue(win::HKEY hKey, const std::string& sValueName, RegVariant& value);

// Write and read a value of a key under the current user. Each opens and closes the
// key; the key has to exist for a write.
void regPutValue(const std::string& sKeyName, const std::string& sValueName,
                 const RegVariant& value, win::DWORD valueType);
std::string regGetValue(const std::string& sKeyName, const std::string& sValueName);

}  // namespace magpie
