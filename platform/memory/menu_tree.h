// Menu tree: the popup menus that the program has made.
#pragma once

#include <deque>
#include <map>
#include <string>
#include <vector>

#include "platform/api/user32.h"

namespace win::memory {

struct MenuEntry {
    UINT type = MFT_STRING;
    UINT state = MFS_ENABLED;
    UINT id = 0;
    HMENU below = nullptr;
    std::string text;
};

struct Menus {
    std::map<HMENU, std::vector<MenuEntry>> alive;
    std::uintptr_t made = 0;
    struct Tracked {
        bool ended = false;  // by EndMenu
    };
    std::deque<Tracked> tracked;  // the popups that are up, the innermost last
};

Menus& menus();
// The entries of a menu, topmost first; refuses what is no menu.
std::vector<MenuEntry>& entriesOf(HMENU menu);

}  // namespace win::memory
