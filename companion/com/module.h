// Module: the library itself: its handle, its type library, and how many objects of it live.
#pragma once

#include <string>

// The SDK's base comes first.
// clang-format off
#include <windows.h>
#include <oleauto.h>
// clang-format on

namespace magpie {

HINSTANCE moduleHandle();

// The description of an interface in the library's own type library; the caller's to release.
HRESULT typeInfo(REFIID id, ITypeInfo** info) noexcept;

LONG& liveObjects();

// A string of the library's resources.
std::wstring resourceText(UINT id);

// What the style of a message box needs so that no window of the program covers it: MB_TOPMOST
// while one is always on top, else 0.
UINT boxLevel();

}  // namespace magpie
