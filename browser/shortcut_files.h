// Shortcut files: entries mirrored as Internet Shortcuts in the user's Favorites.
#pragma once

#include <cstdint>
#include <string>

namespace magpie {

// Writes "title.url", where and whether `shortcutMode` says: into the group's folder, which is
// made when need be, or straight into Favorites. What fails is passed over; a title or a group
// that can't be a name gets no file.
void writeShortcut(const std::string& title, const std::string& url, const std::string& gName);

// The path of a folder of the shell by its CSIDL_ number, empty when it can't be had.
std::string specialFolder(std::int32_t id);

}  // namespace magpie
