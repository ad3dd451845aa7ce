#include "companion/import/unicode.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace magpie {

namespace {

constexpr char32_t lastCharacter = 0x10FFFF;

bool isSurrogate(char32_t unit) {
    return unit >= 0xD800 && unit < 0xE000;
}

bool isHighSurrogate(char32_t unit) {
    return unit >= 0xD800 && unit < 0xDC00;
}

bool isLowSurrogate(char32_t unit) {
    return unit >= 0xDC00 && unit < 0xE000;
}

unsigned byteAt(std::string_view text, std::size_t at) {
    return static_cast<unsigned char>(text[at]);
}

char byteOf(char32_t value) {
    return static_cast<char>(static_cast<unsigned char>(value));
}

// How many bytes the character of a first byte has; 0 for a byte that begins none.
std::size_t utf8Length(unsigned first) {
    if (first < 0x80) return 1;
    if (first < 0xC2) return 0;
    if (first < 0xE0) return 2;
    if (first < 0xF0) return 3;
    return first < 0xF5 ? 4 : 0;
}

struct Utf8Character {
    char32_t character;
    std::size_t length;  // of what can't be read: the bytes that belong together
    bool valid;
};

bool isContinuation(unsigned byte) {
    return (byte & 0xC0U) == 0x80;
}

Utf8Character readUtf8(std::string_view text, std::size_t at) {
    constexpr char32_t least[] = {0, 0, 0x80, 0x800, 0x10000};
    const unsigned first = byteAt(text, at);
    const std::size_t length = utf8Length(first);
    if (length == 1) return {first, 1, true};
    if (length == 0) return {replacementCharacter, 1, false};
    char32_t character = first & (0xFFU >> (length + 1));
    for (std::size_t i = 1; i < length; ++i) {
        if (at + i == text.size() || !isContinuation(byteAt(text, at + i))) {
            return {replacementCharacter, i, false};
        }
        character = (character << 6U) | (byteAt(text, at + i) & 0x3FU);
    }
    const bool valid =
        character >= least[length] && character <= lastCharacter && !isSurrogate(character);
    return valid ? Utf8Character{character, length, true}
                 : Utf8Character{replacementCharacter, 1, false};
}

bool isBlank(char32_t character) {
    return character <= 0x20 || (character >= 0x7F && character <= 0xA0) || character == 0xAD ||
           character == 0x1680 || (character >= 0x2000 && character <= 0x200F) ||
           (character >= 0x2028 && character <= 0x202F) ||
           (character >= 0x205F && character <= 0x206F) || character == 0x3000 ||
           (character >= 0xFE00 && character <= 0xFE0F) || character == 0xFEFF;
}

// Appends UTF-16 that comes unit by unit.
class Utf16Reader {
public:
    explicit Utf16Reader(std::string& text) : text_(text) {}

    void put(char32_t unit) {
        if (high_ != 0 && isLowSurrogate(unit)) {
            appendUtf8(text_, 0x10000 + ((high_ - 0xD800) << 10U) + (unit - 0xDC00));
            high_ = 0;
            return;
        }
        end();
        if (isHighSurrogate(unit)) {
            high_ = unit;
        } else {
            appendUtf8(text_, unit);
        }
    }

    // Behind the last unit: half a pair that waits for the other half waits in vain.
    void end() {
        if (high_ != 0) appendUtf8(text_, replacementCharacter);
        high_ = 0;
    }

private:
    std::string& text_;
    char32_t high_ = 0;
};

// In UTF-16 most characters of a page's frame are ASCII, so that every other byte is zero.
FileText guessUtf16(std::string_view bytes) {
    constexpr std::size_t looked = 1024;
    std::size_t zeros[2] = {0, 0};
    const std::size_t size = std::min(bytes.size(), looked) & ~std::size_t{1};
    if (size < 4 || std::memchr(bytes.data(), 0, size) == nullptr) return FileText::bytes;
    for (std::size_t at = 0; at < size; ++at) {
        if (bytes[at] == '\0') ++zeros[at % 2];
    }
    const std::size_t many = size / 2 * 3 / 4;
    if (zeros[1] > many && zeros[0] == 0) return FileText::utf16LittleEndian;
    if (zeros[0] > many && zeros[1] == 0) return FileText::utf16BigEndian;
    return FileText::bytes;
}

}  // namespace

void appendUtf8(std::string& text, char32_t character) {
    if (isSurrogate(character) || character > lastCharacter) character = replacementCharacter;
    if (character < 0x80) {
        text += byteOf(character);
        return;
    }
    if (character < 0x800) {
        text += byteOf(0xC0 | (character >> 6U));
    } else {
        if (character < 0x10000) {
            text += byteOf(0xE0 | (character >> 12U));
        } else {
            text += byteOf(0xF0 | (character >> 18U));
            text += byteOf(0x80 | ((character >> 12U) & 0x3FU));
        }
        text += byteOf(0x80 | ((character >> 6U) & 0x3FU));
    }
    text += byteOf(0x80 | (character & 0x3FU));
}

char32_t nextUtf8(std::string_view text, std::size_t& at) {
    const Utf8Character read = readUtf8(text, at);
    at += read.length;
    return read.character;
}

bool isAscii(std::string_view text) {
    std::uint64_t high = 0;
    std::size_t at = 0;
    for (; at + sizeof high <= text.size(); at += sizeof high) {
        std::uint64_t eight = 0;
        std::memcpy(&eight, text.data() + at, sizeof eight);
        high |= eight;
    }
    for (; at < text.size(); ++at) high |= byteAt(text, at);
    return (high & 0x8080808080808080U) == 0;
}

bool isUtf8(std::string_view text) {
    return isAscii(text) || countUtf8(text).broken == 0;
}

Utf8Count countUtf8(std::string_view text) {
    Utf8Count count;
    for (std::size_t at = 0; at < text.size();) {
        if (byteAt(text, at) < 0x80) {
            ++at;
            continue;
        }
        const Utf8Character read = readUtf8(text, at);
        if (!read.valid) ++count.broken;
        if (read.valid) ++count.letters;
        at += read.length;
    }
    return count;
}

bool isBlankText(std::string_view text) {
    for (std::size_t at = 0; at < text.size();) {
        if (!isBlank(nextUtf8(text, at))) return false;
    }
    return true;
}

std::string_view firstBytes(std::string_view text, std::size_t most) {
    if (text.size() <= most) return text;
    while (most != 0 && isContinuation(byteAt(text, most))) --most;
    return text.substr(0, most);
}

std::string_view firstCharacters(std::string_view text, std::size_t most) {
    if (text.size() <= most) return text;
    std::size_t at = 0;
    for (; most != 0 && at < text.size(); --most) at += readUtf8(text, at).length;
    return text.substr(0, at);
}

std::string utf8Of(std::u16string_view text) {
    std::string result;
    Utf16Reader reader(result);
    for (const char16_t unit : text) reader.put(unit);
    reader.end();
    return result;
}

FileStart fileStart(std::string_view bytes) {
    using namespace std::string_view_literals;
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    if (bytes.starts_with(mark)) {
        // A program that put its own mark ahead of a text with one left two.
        while (bytes.starts_with(mark)) bytes.remove_prefix(mark.size());
        return {FileText::utf8, bytes};
    }
    if (bytes.starts_with("\xFF\xFE"sv)) return {FileText::utf16LittleEndian, bytes.substr(2)};
    if (bytes.starts_with("\xFE\xFF"sv)) return {FileText::utf16BigEndian, bytes.substr(2)};
    return {guessUtf16(bytes), bytes};
}

std::string utf8OfUtf16(std::string_view bytes, bool bigEndian) {
    std::string result;
    result.reserve(bytes.size() / 2);
    Utf16Reader reader(result);
    const std::size_t low = bigEndian ? 1 : 0;
    for (std::size_t at = 0; at + 1 < bytes.size(); at += 2) {
        reader.put((byteAt(bytes, at + 1 - low) << 8U) | byteAt(bytes, at + low));
    }
    reader.end();
    return result;
}

}  // namespace magpie
