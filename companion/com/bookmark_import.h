// BookmarkImport: the class `mb`: the readers of other browsers' bookmarks behind the contract of
// the library. What they find goes to the host by events.
#pragma once

// The SDK's base comes first.
// clang-format off
#include <windows.h>
// clang-format on

namespace magpie {

// A new object, held once by the caller.
IDispatch* newBookmarkImport();

}  // namespace magpie
