#include "companion/import/host_text.h"

#include <algorithm>

#include "companion/import/letter_tables.h"
#include "companion/import/unicode.h"

namespace magpie {

namespace {

// Longer chains than letter, letter with one mark, letter with two marks do not exist.
constexpr int mostSteps = 4;

bool isControl(char32_t character) {
    return character < 0x20 || (character >= 0x7F && character < 0xA0);
}

// Joiners, marks of direction, variation selectors: without any look of their own.
bool isUnseen(char32_t character) {
    return (character >= 0x200B && character <= 0x200F) ||
           (character >= 0x202A && character <= 0x202E) ||
           (character >= 0x2060 && character <= 0x206F) ||
           (character >= 0xFE00 && character <= 0xFE0F) || character == 0xFEFF ||
           (character >= 0xE0000 && character <= 0xE0FFF);
}

bool isMark(char32_t character) {
    return (character >= 0x300 && character <= 0x36F) ||
           (character >= 0x1AB0 && character <= 0x1AFF) ||
           (character >= 0x1DC0 && character <= 0x1DFF) ||
           (character >= 0x20D0 && character <= 0x20FF) ||
           (character >= 0xFE20 && character <= 0xFE2F);
}

// 0 where no letter is made of the two.
char32_t composed(char32_t base, char32_t mark) {
    for (const ComposedLetter& each : composedLetters) {
        if (each.base == base && each.mark == mark) return each.letter;
    }
    return 0;
}

// 0 for a letter that is not made of another.
char32_t baseOf(char32_t letter) {
    const auto* const found = std::ranges::lower_bound(
        composedLetters, letter, {}, [](const auto& each) { return char32_t{each.letter}; });
    return found != composedLetters.end() && found->letter == letter ? found->base : 0;
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

bool isPlain(std::string_view text) {
    if (text.empty() || text.front() == ' ' || text.back() == ' ') return false;
    return std::ranges::all_of(text, [](char byte) { return byte >= ' ' && byte < '\x7F'; });
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

HostText::HostText(unsigned codePage, CodePageCalls calls) : writer_(codePage, calls) {}

std::string HostText::title(std::string_view utf8) const {
    if (isPlain(utf8)) return std::string(utf8);
    std::string text;
    std::size_t at = 0;
    while (at < utf8.size()) {
        char32_t character = nextUtf8(utf8, at);
        while (at < utf8.size()) {
            std::size_t behind = at;
            const char32_t mark = nextUtf8(utf8, behind);
            const char32_t whole = isMark(mark) ? composed(character, mark) : 0;
            if (whole == 0) break;
            character = whole;
            at = behind;
        }
        append(text, character, 0);
    }
    return std::string(trimmed(text));
}

std::string HostText::groupName(std::string_view utf8) const {
    std::string name = title(utf8);
    std::ranges::replace(name, '+', '&');
    return name;
}

void HostText::append(std::string& text, char32_t character, int depth) const {
    if (isControl(character)) {
        text += ' ';
    } else if (isUnseen(character)) {
        return;
    } else if (!writer_.append(text, character)) {
        appendAlike(text, character, depth);
    }
}

void HostText::appendAlike(std::string& text, char32_t character, int depth) const {
    const char32_t base = baseOf(character);
    const char32_t plain = plainOfFace(character);
    const std::u16string_view alike = alikeOf(character);
    if (depth == mostSteps) {
        text += '?';
    } else if (base != 0) {
        append(text, base, depth + 1);
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
