// Import: bookmarks of other browsers, read and handed over to the program. This is all that the
// library's calls need; what is behind it knows no window and no platform.
#pragma once

#include <string>

#include "companion/import/code_page.h"
#include "companion/import/folder_files.h"
#include "companion/import/import_counts.h"
#include "companion/import/import_sink.h"

namespace magpie {

struct ImportOptions {
    unsigned codePage = codePageWestern;  // the program's
    CodePageCalls calls;
};

// The folder tree at a path, UTF-8, as a Favorites folder.
ImportCounts importFavorites(FolderFiles& files, const std::string& path,
                             const ImportOptions& options, ImportSink& sink);

// The file at a path, UTF-8, as a Netscape bookmark file. One that can't be read, or is
// far too long for one, counts as unreadable.
ImportCounts importBookmarkFile(FolderFiles& files, const std::string& path,
                                const ImportOptions& options, ImportSink& sink);

}  // namespace magpie
