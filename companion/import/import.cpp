#include "companion/import/import.h"

#include <limits>

#include "companion/import/bookmark_file.h"
#include "companion/import/favorites.h"
#include "companion/import/hand_over.h"

namespace magpie {

ImportCounts importFavorites(FolderFiles& files, const std::string& path,
                             const ImportOptions& options, ImportSink& sink) {
    const HostText texts(options.codePage, options.calls);
    HandOver handOver(sink, texts);
    importFavoritesFolder(files, path, options.codePage, options.calls, handOver);
    return handOver.counts();
}

ImportCounts importBookmarkFile(FolderFiles& files, const std::string& path,
                                const ImportOptions& options, ImportSink& sink) {
    const HostText texts(options.codePage, options.calls);
    HandOver handOver(sink, texts);
    std::string bytes;
    if (files.read(path, std::numeric_limits<std::size_t>::max(), bytes)) {
        importBookmarkBytes(bytes, options.codePage, options.calls, handOver);
    } else {
        handOver.skipUnreadable();
    }
    return handOver.counts();
}

}  // namespace magpie
