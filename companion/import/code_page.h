// Code page: which character a byte of an old text is, and which byte a character is. Code pages
// of one byte to a character stand in tables; any other is the platform's to know.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "companion/import/code_page_tables.h"

namespace magpie {

inline constexpr unsigned codePageJapanese = 932;
inline constexpr unsigned codePageWestern = 1252;
inline constexpr unsigned codePageUtf7 = 65000;
inline constexpr unsigned codePageUtf8 = 65001;
inline constexpr unsigned codePageShiftedJapanese = 50220;  // ISO-2022-JP

// The platform's conversions, for code pages of more than one byte to a character; both may be
// absent. Each answers false where it knows no such code page; the second also where the text
// can't be written in it exactly.
struct CodePageCalls {
    bool (*toUtf16)(unsigned codePage, std::string_view bytes, std::u16string& text) = nullptr;
    bool (*fromUtf16)(unsigned codePage, std::u16string_view text, std::string& bytes) = nullptr;
};

// The code page of a name such as "iso-8859-1" or "Shift_JIS", in any spelling; 0 for one unknown.
[[nodiscard]] unsigned codePageNamed(std::string_view label);

// Whether it writes letters as bytes that elsewhere are signs, so that a "<" may be part of one.
[[nodiscard]] bool isShifted(unsigned codePage);

// Null for a code page without a table.
[[nodiscard]] const CodePageTable* tableOf(unsigned codePage);

// Reads bytes of one code page as UTF-8. One that nobody knows is read as the western one.
class CodePageReader {
public:
    explicit CodePageReader(unsigned codePage, CodePageCalls calls = {});

    void append(std::string& utf8, std::string_view bytes) const;

private:
    const CodePageTable* table_;
    unsigned codePage_;
    CodePageCalls calls_;
};

// Writes single characters in one code page. One that nobody knows is written as the western one.
class CodePageWriter {
public:
    explicit CodePageWriter(unsigned codePage, CodePageCalls calls = {});

    // False, with nothing appended, for a character that the code page does not hold.
    bool append(std::string& bytes, char32_t character) const;

private:
    std::vector<std::pair<char16_t, char>> bytesOf_;  // in order of character
    unsigned codePage_;
    CodePageCalls calls_;
};

}  // namespace magpie
