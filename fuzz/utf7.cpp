// Any bytes as UTF-7: text without a "+" is itself, and text that is encoded comes back.
#include "companion/import/utf7.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "companion/import/unicode.h"
#include "fuzz/import_checks.h"

namespace {

using namespace magpie;

constexpr std::string_view digits =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

// One pair of bytes for each character, all of them in base 64 but "+".
std::string encode(std::u16string_view text) {
    std::string encoded = "+";
    std::uint32_t bits = 0;
    unsigned count = 0;
    for (const char16_t unit : text) {
        bits = (bits << 16U) | unit;
        for (count += 16; count >= 6; count -= 6) encoded += digits[(bits >> (count - 6)) & 63U];
    }
    if (count != 0) encoded += digits[(bits << (6 - count)) & 63U];
    return encoded + "-";
}

std::u16string charactersOf(std::string_view bytes) {
    constexpr std::size_t most = 300;  // what is longer is no run
    std::u16string text;
    for (std::size_t at = 0; at + 1 < bytes.size() && text.size() < most; at += 2) {
        const unsigned high = static_cast<unsigned char>(bytes[at]);
        const unsigned unit = (high << 8U) | static_cast<unsigned char>(bytes[at + 1]);
        if (unit < 0xD800 || unit > 0xDFFF) text += static_cast<char16_t>(unit);
    }
    return text;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const std::string decoded = decodeUtf7(bytes);
    if (bytes.find('+') == std::string_view::npos) fuzz::require(decoded == bytes);
    if (isUtf8(bytes)) fuzz::require(isUtf8(decoded));
    const std::u16string text = charactersOf(bytes);
    if (!text.empty()) fuzz::require(decodeUtf7(encode(text)) == utf8Of(text));
    return 0;
}
