// Constants: the platform's numbers under the platform's names. The list is in
// constants.def; the Windows side checks every line of it against the SDK.
#pragma once

#include "platform/api/types.h"

namespace win {

#define MAGPIE_CONSTANT(type, name, value) inline constexpr type name = static_cast<type>(value);
#include "platform/api/constants.def"
#undef MAGPIE_CONSTANT

// Handles that the platform spells as numbers.
inline const HWND HWND_TOP = nullptr;
inline const HWND HWND_BOTTOM = reinterpret_cast<HWND>(std::intptr_t{1});
inline const HWND HWND_TOPMOST = reinterpret_cast<HWND>(std::intptr_t{-1});
inline const HWND HWND_NOTOPMOST = reinterpret_cast<HWND>(std::intptr_t{-2});
inline const HKEY HKEY_CURRENT_USER =
    reinterpret_cast<HKEY>(static_cast<std::intptr_t>(std::int32_t(0x80000001)));
inline const HKEY HKEY_LOCAL_MACHINE =
    reinterpret_cast<HKEY>(static_cast<std::intptr_t>(std::int32_t(0x80000002)));
inline const HANDLE INVALID_HANDLE_VALUE = reinterpret_cast<HANDLE>(std::intptr_t{-1});

}  // namespace win
