// Imported entries: what the companion library's import hands over, group by group.
#pragma once

#include <string>

namespace magpie {

// The library has come to a group, and to a bookmark in it. Neither marks the store as
// changed nor shows anything: whoever has started the import does.
void mb_NewGroup(const std::string& name);
// The bookmark goes into the group made last; while there is none, into no group at all.
void mb_BungURL(const std::string& title, const std::string& url);

}  // namespace magpie
