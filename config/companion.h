// The companion library's operations, called from the menus. Each raises 429 without the library,
// 440 where a call of it fails, and gives the interface back all the same.
#pragma once

#include <cstdint>

#include "platform/controls/form.h"

namespace magpie {

// What `showContact` opens.
inline constexpr std::uint8_t contactMail = 0;
inline constexpr std::uint8_t contactWebSite = 1;

void showContact(Form& owner, std::uint8_t what);
void showAbout(Form& owner);

// The Preferences dialog over the settings; nothing changes but at its Apply.
void showPreferences();
// Takes the settings over from the dialog that is up; does nothing without one.
void gcfg_ApplyCurrent();

// Groups and entries come by the library's events; the caller refreshes.
void importFavorites();
void importNetscape();
// The library asks for the number of the last group.
void mb_storeLastRootOwner();

}  // namespace magpie
