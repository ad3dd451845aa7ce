// Popup menus.
#include <algorithm>
#include <cstring>

#include "platform/memory/faults.h"
#include "platform/memory/menu_tree.h"
#include "platform/memory/refuse.h"

namespace win::memory {
namespace {

constexpr std::uintptr_t firstMenu = 0x40000000;

void check(const MENUITEMINFOA& item) {
    constexpr UINT known = MIIM_STATE | MIIM_ID | MIIM_SUBMENU | MIIM_STRING | MIIM_FTYPE;
    if (item.cbSize != sizeof(MENUITEMINFOA)) refuse("menu item of size", item.cbSize);
    if (item.fMask & ~known) refuse("mask of a menu item", item.fMask);
    if (item.fMask & MIIM_FTYPE && item.fType & ~MFT_SEPARATOR) refuse("menu type", item.fType);
    if (item.fMask & MIIM_STATE && item.fState & ~(MFS_GRAYED | MFS_CHECKED))
        refuse("state of a menu item", item.fState);
}

void assign(MenuEntry& entry, const MENUITEMINFOA& item) {
    check(item);
    if (item.fMask & MIIM_FTYPE) entry.type = item.fType;
    if (item.fMask & MIIM_STATE) entry.state = item.fState;
    if (item.fMask & MIIM_ID) entry.id = item.wID;
    if (item.fMask & MIIM_SUBMENU) entry.below = item.hSubMenu;
    if (item.fMask & MIIM_STRING) entry.text = item.dwTypeData ? item.dwTypeData : "";
}

// What a buffer that is too small gets differs among the platform's versions.
void readText(const std::string& text, MENUITEMINFOA& item) {
    if (item.dwTypeData) {
        if (item.cch <= text.size()) refuse("text of a menu item cut", text);
        std::memcpy(item.dwTypeData, text.c_str(), text.size() + 1);
    }
    item.cch = static_cast<UINT>(text.size());
}

struct Found {
    HMENU menu = nullptr;
    std::size_t at = 0;
};

// By position in this menu alone, by command in its sub-menus too.
Found find(HMENU menu, UINT item, bool byPosition) {
    auto& entries = entriesOf(menu);
    if (byPosition) return item < entries.size() ? Found{menu, item} : Found{};
    for (std::size_t at = 0; at < entries.size(); ++at) {
        if (entries[at].below) {
            Found below = find(entries[at].below, item, false);
            if (below.menu) return below;
        } else if (entries[at].id == item) {
            return {menu, at};
        }
    }
    return {};
}

}  // namespace

Menus& menus() {
    static Menus theMenus;
    return theMenus;
}

std::vector<MenuEntry>& entriesOf(HMENU menu) {
    auto found = menus().alive.find(menu);
    if (found == menus().alive.end()) refuse("no menu", reinterpret_cast<std::uintptr_t>(menu));
    return found->second;
}

}  // namespace win::memory

namespace win {

using namespace memory;

HMENU CreatePopupMenu() {
    if (faultIn("CreatePopupMenu")) return nullptr;
    HMENU menu = reinterpret_cast<HMENU>(firstMenu + ++menus().made * 4);
    menus().alive[menu];
    return menu;
}

BOOL DestroyMenu(HMENU menu) {
    for (const MenuEntry& each : std::vector<MenuEntry>(entriesOf(menu))) {
        if (each.below) DestroyMenu(each.below);
    }
    menus().alive.erase(menu);
    return true;
}

BOOL InsertMenuItemA(HMENU menu, UINT position, BOOL byPosition, const MENUITEMINFOA* item) {
    auto& entries = entriesOf(menu);
    if (faultIn("InsertMenuItemA")) return false;
    MenuEntry added;
    assign(added, *item);
    Found before = find(menu, position, byPosition);
    if (!before.menu) before = {menu, entries.size()};
    auto& list = entriesOf(before.menu);
    list.insert(list.begin() + static_cast<std::ptrdiff_t>(before.at), added);
    return true;
}

BOOL SetMenuItemInfoA(HMENU menu, UINT item, BOOL byPosition, const MENUITEMINFOA* info) {
    if (faultIn("SetMenuItemInfoA")) return false;
    Found found = find(menu, item, byPosition);
    if (!found.menu) return false;
    assign(entriesOf(found.menu)[found.at], *info);
    return true;
}

BOOL GetMenuItemInfoA(HMENU menu, UINT item, BOOL byPosition, MENUITEMINFOA* info) {
    Found found = find(menu, item, byPosition);
    if (!found.menu) return false;
    const MenuEntry& entry = entriesOf(found.menu)[found.at];
    UINT mask = info->fMask;
    constexpr UINT known = MIIM_STATE | MIIM_ID | MIIM_SUBMENU | MIIM_STRING | MIIM_FTYPE;
    if (mask & ~known) refuse("mask of a menu item", mask);
    if (mask & MIIM_FTYPE) info->fType = entry.type;
    if (mask & MIIM_STATE) info->fState = entry.state;
    if (mask & MIIM_ID) info->wID = entry.id;
    if (mask & MIIM_SUBMENU) info->hSubMenu = entry.below;
    if (mask & MIIM_STRING) readText(entry.text, *info);
    return true;
}

BOOL RemoveMenu(HMENU menu, UINT item, UINT flags) {
    if (flags & ~MF_BYPOSITION) refuse("flags of RemoveMenu", flags);
    Found found = find(menu, item, flags & MF_BYPOSITION);
    if (!found.menu) return false;
    auto& list = entriesOf(found.menu);
    list.erase(list.begin() + static_cast<std::ptrdiff_t>(found.at));
    return true;
}

int GetMenuItemCount(HMENU menu) {
    return static_cast<int>(entriesOf(menu).size());
}

}  // namespace win
