// AboutBox: the class `out`: the about box, and the ways to the maker.
#pragma once

// The SDK's base comes first.
// clang-format off
#include <windows.h>
// clang-format on

namespace magpie {

// A new object, held once by the caller.
IDispatch* newAboutBox();

}  // namespace magpie
