// Favorites: the shortcut files of a folder and of the folders in it.
#pragma once

#include <string>

#include "companion/import/code_page.h"
#include "companion/import/folder_files.h"
#include "companion/import/hand_over.h"

namespace magpie {

// Hands over the links of a folder tree, sorted by name, a folder's own before those of the folders
// in it; those of the folder itself as group "Favorites". Folders may be links to others: each is
// visited once, so that links in a circle end, and by its own name if it lies in the tree. A
// shortcut file without an address, one that can't be read, a folder that can't be listed and a
// shortcut to something on the disk are counted as skipped; other files are nobody's bookmarks.
// `codePage` is the program's: it reads files that are no UTF-8.
void importFavoritesFolder(FolderFiles& files, const std::string& path, unsigned codePage,
                           CodePageCalls calls, HandOver& handOver);

}  // namespace magpie
