#include "companion/import/import.h"

#include "companion/import/bookmark_file.h"
#include "companion/import/favorites.h"
#include "companion/import/hand_over.h"

namespace magpie {

namespace {

// Several times the largest page of bookmarks with a picture for each. What is longer is something
// else, chosen by mistake, such as the image of a disk.
constexpr std::size_t longestPage = 512 * 1024 * 1024;

}  // namespace

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
    if (files.read(path, longestPage + 1, bytes) && bytes.size() <= longestPage) {
        importBookmarkBytes(bytes, options.codePage, options.calls, handOver);
    } else {
        handOver.skipUnreadable();
    }
    return handOver.counts();
}

}  // namespace magpie
