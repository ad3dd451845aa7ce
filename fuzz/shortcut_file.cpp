// Any bytes as an Internet Shortcut: the address is UTF-8, and fit to be kept once it is brought
// into the form in which the program keeps it.
#include "companion/import/shortcut_file.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "companion/import/hand_over.h"
#include "companion/import/unicode.h"
#include "fuzz/import_checks.h"

namespace {

using namespace magpie;

// The first address stays, whatever comes behind it.
void addBehindAnAddress(std::string_view bytes, const CodePageReader& codePage) {
    const std::string file = "[InternetShortcut.W]\nURL=http://w/\n" + std::string(bytes);
    if (fileStart(file).text == FileText::bytes) {
        fuzz::require(addressInShortcut(file, codePage) == "http://w/");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const CodePageReader western(codePageWestern);
    static const HostText texts(codePageWestern);
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const std::string address = addressInShortcut(bytes, western);
    fuzz::require(isUtf8(address));
    addBehindAnAddress(bytes, western);
    fuzz::CheckingSink sink;
    HandOver handOver(sink, texts);
    handOver.enterRoot("Favorites");
    handOver.link(bytes, address);
    fuzz::require(sink.links + handOver.counts().withoutAddress == 1);
    return 0;
}
