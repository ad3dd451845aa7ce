// Pienest: the numbers of the companion library's contract, as its type library has them.
#pragma once

#include "platform/api/olectl.h"

namespace magpie::pienest {

inline constexpr const char* libraryFile = "Pienest.dll";  // in the program's folder

constexpr win::CLSID id(win::BYTE last) {
    return {0x6C1D5E20, 0x3B7A, 0x4F0E, {0x9A, 0x55, 0x0B, 0x6E, 0x2F, 0x7A, 0x1C, last}};
}

// The classes, and their events.
inline constexpr win::CLSID gcfg = id(0x12);
inline constexpr win::CLSID gcfgEvents = id(0x11);
inline constexpr win::CLSID mb = id(0x22);
inline constexpr win::CLSID mbEvents = id(0x21);
inline constexpr win::CLSID out = id(0x32);

inline constexpr win::LONG applyCurrent = 1;

inline constexpr win::LONG newGroup = 1;
inline constexpr win::LONG bungURL = 2;
inline constexpr win::LONG storeLastRootOwner = 3;

}  // namespace magpie::pienest
