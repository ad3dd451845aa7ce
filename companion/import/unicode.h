// Unicode: texts between UTF-8, UTF-16 and single characters. Inside the import every text is valid
// UTF-8; what can't be read comes out as U+FFFD.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace magpie {

inline constexpr char32_t replacementCharacter = 0xFFFD;

// A surrogate, or what is no character at all, is appended as U+FFFD.
void appendUtf8(std::string& text, char32_t character);

// The character at a place of the text, which must not be its end; the place moves behind it. What
// is left of a broken character is one U+FFFD.
[[nodiscard]] char32_t nextUtf8(std::string_view text, std::size_t& at);

[[nodiscard]] bool isAscii(std::string_view text);
[[nodiscard]] bool isUtf8(std::string_view text);

// Of the characters above 7F: how many there are, and how many are broken.
struct Utf8Count {
    std::size_t letters = 0;
    std::size_t broken = 0;
};
[[nodiscard]] Utf8Count countUtf8(std::string_view text);

// Whether nobody sees anything of it.
[[nodiscard]] bool isBlankText(std::string_view text);

// The text's first bytes, at most so many, without a part of a character at the end.
[[nodiscard]] std::string_view firstBytes(std::string_view text, std::size_t most);
[[nodiscard]] std::string_view firstCharacters(std::string_view text, std::size_t most);

[[nodiscard]] std::string utf8Of(std::u16string_view text);

// What the beginning of a file says of its text. `rest` is the text without the mark.
enum class FileText { bytes, utf8, utf16LittleEndian, utf16BigEndian };
struct FileStart {
    FileText text;
    std::string_view rest;
};

// By a byte-order mark; without one, by the zero bytes that UTF-16 has in every other place.
[[nodiscard]] FileStart fileStart(std::string_view bytes);

// The bytes of a UTF-16 text as UTF-8; an odd last byte is dropped.
[[nodiscard]] std::string utf8OfUtf16(std::string_view bytes, bool bigEndian);

}  // namespace magpie
