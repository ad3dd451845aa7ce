// Resources: the cursors and icons that LoadCursorA and LoadImageA find.
#pragma once

#include <map>
#include <set>
#include <string>

#include "platform/api/user32.h"

namespace win::memory {

struct Icons {
    std::set<WORD> numbers{32512};  // that LoadImageA finds; at first the system's own
    std::set<HICON> owned;          // that the program has to destroy; shared ones are not
    std::uintptr_t made = 0;
};

Icons& icons();

// The path that each picture was read from, also of those that are gone.
std::map<HBITMAP, std::string>& pictureFiles();

// A cursor's handle is this and its number.
inline constexpr std::uintptr_t firstCursor = 0x50000;

}  // namespace win::memory
