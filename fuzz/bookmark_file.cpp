// Any bytes as a Netscape bookmark file: what is handed over is fit to be kept, and the counts are
// those of the events.
#include "companion/import/bookmark_file.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "fuzz/import_checks.h"

namespace {

using namespace magpie;

void importInto(std::string_view bytes, unsigned codePage, const HostText& texts) {
    fuzz::CheckingSink sink;
    HandOver handOver(sink, texts);
    importBookmarkBytes(bytes, codePage, {}, handOver);
    fuzz::require(handOver.counts().links == sink.links);
    fuzz::require(handOver.counts().groups == sink.groups);
    fuzz::require(handOver.counts().withoutRoom == 0 && handOver.counts().unreadable == 0);
}

// Every text is a piece of the page, and every folder lies in one ahead of it.
void readPage(std::string_view bytes) {
    const BookmarkPage page = readBookmarkPage(bytes);
    fuzz::require(!page.folders.empty());
    for (std::size_t i = 1; i < page.folders.size(); ++i) {
        fuzz::require(page.folders[i].outer < i);
    }
    for (const BookmarkLink& link : page.links) {
        fuzz::require(link.folder < page.folders.size());
        fuzz::require(link.address.data() >= bytes.data() &&
                      link.address.data() + link.address.size() <= bytes.data() + bytes.size());
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    readPage(bytes);
    static const HostText western(1252);
    static const HostText cyrillic(1251);
    importInto(bytes, 1252, western);
    importInto(bytes, 1251, cyrillic);
    return 0;
}
