#include "companion/import/shifted_japanese.h"

#include <cstddef>

namespace magpie {

namespace {

constexpr char escape = '\x1B';

enum class Letters { ascii, katakana, pairs };

struct Shift {
    std::string_view sequence;
    Letters letters;
};

constexpr Shift shifts[] = {
    {"\x1B$B", Letters::pairs}, {"\x1B$@", Letters::pairs},    {"\x1B(B", Letters::ascii},
    {"\x1B(J", Letters::ascii}, {"\x1B(I", Letters::katakana},
};

const Shift* shiftAt(std::string_view bytes) {
    for (const Shift& shift : shifts) {
        if (bytes.starts_with(shift.sequence)) return &shift;
    }
    return nullptr;
}

bool isHalf(char byte) {
    return byte > ' ' && byte < '\x7F';
}

char byteOf(unsigned value) {
    return static_cast<char>(static_cast<unsigned char>(value));
}

// Two rows of 94 letters each become one of 188.
void appendPair(std::string& text, char first, char second) {
    const unsigned row = static_cast<unsigned char>(first) - 0x21U;
    const unsigned column = static_cast<unsigned char>(second) - 0x21U;
    const unsigned lead = row / 2 + 0x81;
    const unsigned trail = row % 2 == 0 ? column + 0x40 : column + 0x9F;
    text += byteOf(lead > 0x9F ? lead + 0x40 : lead);
    text += byteOf(row % 2 == 0 && trail >= 0x7F ? trail + 1 : trail);
}

}  // namespace

bool hasJapaneseShift(std::string_view bytes) {
    for (std::size_t at = bytes.find(escape); at != std::string_view::npos;
         at = bytes.find(escape, at + 1)) {
        const Shift* const shift = shiftAt(bytes.substr(at));
        if (shift != nullptr && shift->letters == Letters::pairs) return true;
    }
    return false;
}

std::string shiftJisOf(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size());
    Letters letters = Letters::ascii;
    for (std::size_t at = 0; at < bytes.size();) {
        const Shift* const shift = bytes[at] == escape ? shiftAt(bytes.substr(at)) : nullptr;
        if (shift != nullptr) {
            letters = shift->letters;
            at += shift->sequence.size();
            continue;
        }
        // Each line begins with ASCII.
        if (bytes[at] == '\n' || bytes[at] == '\r') letters = Letters::ascii;
        if (letters == Letters::pairs && at + 1 < bytes.size() && isHalf(bytes[at]) &&
            isHalf(bytes[at + 1])) {
            appendPair(text, bytes[at], bytes[at + 1]);
            at += 2;
            continue;
        }
        const bool katakana = letters == Letters::katakana && isHalf(bytes[at]);
        text += katakana ? byteOf(static_cast<unsigned char>(bytes[at]) | 0x80U) : bytes[at];
        ++at;
    }
    return text;
}

}  // namespace magpie
