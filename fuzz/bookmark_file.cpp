// Any bytes as a Netscape bookmark file: what is handed over is fit to be kept, and the counts are
// those of the events.
#include "companion/import/bookmark_file.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "fuzz/import_checks.h"

namespace {

using namespace magpie;

// Like the platform's code pages of one or two bytes to a character: from 80 on a byte begins a
// pair, and of the characters above 7F those of even number are there.
bool readPairs(unsigned, std::string_view bytes, std::u16string& text) {
    for (std::size_t at = 0; at < bytes.size(); ++at) {
        const auto byte = static_cast<unsigned char>(bytes[at]);
        const bool pair = byte >= 0x80 && at + 1 < bytes.size();
        text += static_cast<char16_t>(pair ? 0x3000 + 2 * byte : byte % 0x80);
        if (pair) ++at;
    }
    return true;
}

bool writePair(unsigned, std::u16string_view text, std::string& bytes) {
    if (text.size() != 1 || text[0] % 2 != 0) return false;
    bytes += "\x82\xA0";
    return true;
}

class Program {
public:
    explicit Program(unsigned codePage, CodePageCalls calls = {})
        : codePage_(codePage), calls_(calls), texts_(codePage, calls) {}

    void import(std::string_view bytes, std::size_t room) const {
        fuzz::CheckingSink sink;
        sink.room = room;
        sink.utf8 = codePage_ == codePageUtf8;
        HandOver handOver(sink, texts_);
        importBookmarkBytes(bytes, codePage_, calls_, handOver);
        const ImportCounts& counts = handOver.counts();
        fuzz::require(counts.links == sink.links && counts.unreadable == 0);
        fuzz::require(counts.groups == sink.groupsWithLinks);
        fuzz::require(counts.withoutRoom == 0 || sink.links == room);
    }

private:
    unsigned codePage_;
    CodePageCalls calls_;
    HostText texts_;
};

bool isPieceOf(std::string_view bytes, std::string_view text) {
    return text.empty() || (text.data() >= bytes.data() &&
                            text.data() + text.size() <= bytes.data() + bytes.size());
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
        fuzz::require(isPieceOf(bytes, link.address));
        fuzz::require(isPieceOf(bytes, link.title.html) && isPieceOf(bytes, link.title.value));
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    readPage(bytes);
    constexpr std::size_t all = static_cast<std::size_t>(-1);
    static const Program western(1252);
    static const Program cyrillic(1251);
    static const Program vietnamese(1258);
    static const Program utf8(codePageUtf8);
    static const Program japanese(932, {readPairs, writePair});
    western.import(bytes, all);
    cyrillic.import(bytes, 3);
    vietnamese.import(bytes, all);
    utf8.import(bytes, all);
    japanese.import(bytes, all);
    return 0;
}
