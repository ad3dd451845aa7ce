// Graphic objects: fonts and pictures that the program has to delete.
#pragma once

#include <set>

#include "platform/api/gdi32.h"

namespace win::memory {

struct GdiObjects {
    std::set<std::uintptr_t> objects;
    std::set<std::uintptr_t> contexts;  // device contexts that are not released
    std::uintptr_t made = 0;
};

GdiObjects& gdi();
HBITMAP newBitmap();

}  // namespace win::memory
