// Shell folders: where the shell keeps a user's folders.
#pragma once

#include <optional>
#include <string>

namespace win::memory {

// The user's Favorites: a full path, or nothing when the shell has none.
std::optional<std::string>& favoritesFolder();

}  // namespace win::memory
