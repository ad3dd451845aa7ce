#include "companion/import/host_text.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

#include "companion/import/letter_tables.h"
#include "companion/import/unicode.h"

namespace magpie {

namespace {

// Longer chains than letter, letter with one mark, letter with two marks do not exist.
constexpr int mostSteps = 4;

constexpr char32_t byteOrderMark = 0xFEFF;

// Those that break lines are controls as well.
bool isControl(char32_t character) {
    return character < 0x20 || (character >= 0x7F && character < 0xA0) || character == 0x2028 ||
           character == 0x2029;
}

// Joiners, marks of direction, variation selectors: without any look of their own.
bool isUnseen(char32_t character) {
    return character == 0xAD || character == 0x61C || character == 0x180E ||
           (character >= 0x200B && character <= 0x200F) ||
           (character >= 0x202A && character <= 0x202E) ||
           (character >= 0x2060 && character <= 0x206F) ||
           (character >= 0xFE00 && character <= 0xFE0F) ||
           (character >= 0xE0000 && character <= 0xE0FFF);
}

bool isMark(char32_t character) {
    return (character >= 0x300 && character <= 0x36F) ||
           (character >= 0x1AB0 && character <= 0x1AFF) ||
           (character >= 0x1DC0 && character <= 0x1DFF) ||
           (character >= 0x20D0 && character <= 0x20FF) ||
           (character >= 0xFE20 && character <= 0xFE2F) || character == 0x3099 ||
           character == 0x309A;
}

// Korean syllables are made of two or three letters by rule.
char32_t composedSyllable(char32_t first, char32_t second) {
    constexpr char32_t lead = 0x1100;
    constexpr char32_t vowel = 0x1161;
    constexpr char32_t trail = 0x11A7;
    constexpr char32_t syllable = 0xAC00;
    constexpr char32_t vowels = 21;
    constexpr char32_t trails = 28;
    if (first >= lead && first < lead + 19 && second >= vowel && second < vowel + vowels) {
        return syllable + ((first - lead) * vowels + (second - vowel)) * trails;
    }
    const bool open = first >= syllable && first < syllable + 19 * vowels * trails &&
                      (first - syllable) % trails == 0;
    return open && second > trail && second < trail + trails ? first + (second - trail) : 0;
}

// 0 where no letter is made of the two.
char32_t composed(char32_t base, char32_t mark) {
    if (!isMark(mark)) return composedSyllable(base, mark);
    const std::pair wanted(base, mark);
    const auto partsAt = [](std::size_t place) {
        const ComposedLetter& each = composedLetters[place];
        return std::pair(char32_t{each.base}, char32_t{each.mark});
    };
    const auto* const found = std::ranges::lower_bound(composedByParts, wanted, {}, partsAt);
    return found != composedByParts.end() && partsAt(*found) == wanted
               ? composedLetters[*found].letter
               : 0;
}

// Null for a letter that is not made of another.
const ComposedLetter* composition(char32_t letter) {
    const auto* const found = std::ranges::lower_bound(
        composedLetters, letter, {}, [](const auto& each) { return char32_t{each.letter}; });
    return found != composedLetters.end() && found->letter == letter ? &*found : nullptr;
}

std::u16string_view alikeOf(char32_t character) {
    const auto* const found = std::ranges::lower_bound(
        alikeTexts, character, {}, [](const auto& each) { return char32_t{each.character}; });
    if (found == alikeTexts.end() || found->character != character) return {};
    return found->text;
}

// The letters and digits that mathematics has in many faces; 0 for any other character.
char32_t plainOfFace(char32_t character) {
    if (character >= 0x1D400 && character < 0x1D6A4) {
        const char32_t letter = (character - 0x1D400) % 52;
        return letter < 26 ? U'A' + letter : U'a' + (letter - 26);
    }
    if (character >= 0x1D7CE && character < 0x1D800) return U'0' + (character - 0x1D7CE) % 10;
    return 0;
}

bool isPlain(char byte) {
    return byte >= ' ' && byte < '\x7F';
}

bool isPlain(std::string_view text) {
    if (text.empty() || text.front() == ' ' || text.back() == ' ') return false;
    return std::ranges::all_of(text, [](char byte) { return isPlain(byte); });
}

// How many bytes at the beginning are printable ASCII, without the last one where a mark may
// follow.
std::size_t plainSize(std::string_view text) {
    std::size_t size = 0;
    while (size < text.size() && isPlain(text[size])) ++size;
    const bool marked =
        size != 0 && size < text.size() && static_cast<unsigned char>(text[size]) >= 0x80;
    return marked ? size - 1 : size;
}

// The next character, made one with the marks behind it as far as that is a letter.
char32_t nextWithMarks(std::string_view utf8, std::size_t& at) {
    char32_t character = nextUtf8(utf8, at);
    while (at < utf8.size() && static_cast<unsigned char>(utf8[at]) >= 0x80) {
        std::size_t behind = at;
        const char32_t whole = composed(character, nextUtf8(utf8, behind));
        if (whole == 0) break;
        character = whole;
        at = behind;
    }
    return character;
}

std::string_view trimmed(std::string_view text) {
    const auto blank = [](char byte) { return static_cast<unsigned char>(byte) <= ' '; };
    while (!text.empty() && blank(text.front())) text.remove_prefix(1);
    while (!text.empty() && blank(text.back())) text.remove_suffix(1);
    return text;
}

bool isScript(std::string_view address) {
    const std::size_t colon = address.find(':');
    if (colon == std::string_view::npos) return false;
    std::string scheme(address.substr(0, colon));
    for (char& byte : scheme) byte = static_cast<char>(byte | 0x20);
    return scheme.ends_with("script") || scheme == "data";
}

void appendPercent(std::string& text, char byte) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    const auto value = static_cast<unsigned char>(byte);
    text += '%';
    text += digits[value >> 4U];
    text += digits[value & 0xFU];
}

}  // namespace

// A letter taken apart, the mark that comes last first.
struct HostText::LetterParts {
    static constexpr std::size_t mostMarks = 3;

    explicit LetterParts(char32_t letter) : base(letter) {
        for (const ComposedLetter* made = composition(base); made != nullptr && count < mostMarks;
             made = composition(base)) {
            marks[count++] = made->mark;
            base = made->base;
        }
    }

    char32_t base;
    std::array<char32_t, mostMarks> marks{};
    std::size_t count = 0;
};

HostText::HostText(unsigned codePage, CodePageCalls calls) : writer_(codePage, calls) {}

std::string HostText::title(std::string_view utf8) const {
    if (isPlain(utf8)) return std::string(utf8);
    std::string text;
    text.reserve(utf8.size());
    for (std::size_t at = 0; at < utf8.size();) {
        const std::size_t plain = plainSize(utf8.substr(at));
        text += utf8.substr(at, plain);
        at += plain;
        if (at < utf8.size()) append(text, nextWithMarks(utf8, at), 0);
    }
    const std::string_view kept = trimmed(text);
    if (kept.size() != text.size()) text = std::string(kept);
    return text;
}

std::string HostText::groupName(std::string_view utf8) const {
    std::string name = title(utf8);
    std::ranges::replace(name, '+', '&');
    return name;
}

void HostText::append(std::string& text, char32_t character, int depth) const {
    if (isControl(character)) {
        text += ' ';
    } else if (character != byteOrderMark && !writer_.append(text, character) &&
               !isUnseen(character) && !appendInParts(text, character)) {
        appendAlike(text, character, depth);
    }
}

// A letter of several marks, as the code page may have it: with one of them, the others behind it;
// with all of them behind it; or with one of them alone.
bool HostText::appendInParts(std::string& text, char32_t letter) const {
    const LetterParts parts(letter);
    if (parts.count == 0) return false;
    for (std::size_t with = 0; with <= parts.count; ++with) {
        if (appendWithMarks(text, parts, with)) return true;
    }
    for (std::size_t with = parts.count; with-- > 0;) {
        const char32_t one = composed(parts.base, parts.marks[with]);
        if (one != 0 && writer_.append(text, one)) return true;
    }
    return false;
}

// The base made one with the mark at a place, or, where there is none at it, by itself, and the
// other marks.
bool HostText::appendWithMarks(std::string& text, const LetterParts& parts,
                               std::size_t with) const {
    const bool alone = with == parts.count;
    const char32_t one = alone ? parts.base : composed(parts.base, parts.marks[with]);
    std::string written;
    if (one == 0 || !writer_.append(written, one)) return false;
    for (std::size_t at = parts.count; at-- > 0;) {
        if (at != with && !writer_.append(written, parts.marks[at])) return false;
    }
    text += written;
    return true;
}

void HostText::appendAlike(std::string& text, char32_t character, int depth) const {
    const ComposedLetter* const made = composition(character);
    const char32_t plain = plainOfFace(character);
    const std::u16string_view alike = alikeOf(character);
    if (depth == mostSteps) {
        text += '?';
    } else if (made != nullptr) {
        append(text, made->base, depth + 1);
    } else if (plain != 0) {
        append(text, plain, depth + 1);
    } else if (!alike.empty()) {
        for (const char16_t each : alike) append(text, each, depth + 1);
    } else if (!isMark(character)) {
        text += '?';
    }
}

std::string HostText::address(std::string_view utf8) {
    utf8 = trimmed(utf8);
    if (isPlain(utf8)) return std::string(utf8);
    const bool script = isScript(utf8);
    std::string text;
    for (const char byte : utf8) {
        if (byte >= ' ' && byte < '\x7F') {
            text += byte;
        } else if (script || (byte != '\t' && byte != '\r' && byte != '\n')) {
            appendPercent(text, byte);
        }
    }
    return text;
}

}  // namespace magpie
