#include "companion/import/html_text.h"

#include <algorithm>
#include <cstddef>

#include "companion/import/code_page.h"
#include "companion/import/entity_table.h"
#include "companion/import/html_scanner.h"
#include "companion/import/unicode.h"

namespace magpie {

namespace {

// An entity at the beginning of a text; no size where there is none.
struct Entity {
    char32_t character = 0;
    char32_t second = 0;  // 0 where it means one
    std::size_t size = 0;
};

bool isDigit(char byte) {
    return byte >= '0' && byte <= '9';
}

bool isWord(char byte) {
    return isDigit(byte) || (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z');
}

int digitOf(char byte) {
    if (isDigit(byte)) return byte - '0';
    const char lower = static_cast<char>(byte | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : 16;
}

// Numbers 128 to 159 were written by programs that took the western code page for the standard.
char32_t characterOfNumber(char32_t number) {
    if (number >= 0x80 && number < 0xA0) {
        return tableOf(codePageWestern)->upperHalf[number - 0x80];
    }
    const bool valid = number != 0 && number <= 0x10FFFF && (number < 0xD800 || number > 0xDFFF);
    return valid ? number : replacementCharacter;
}

// The text begins with "&#".
Entity numberAt(std::string_view text) {
    const bool hexadecimal = text.size() > 2 && (text[2] | 0x20) == 'x';
    const int base = hexadecimal ? 16 : 10;
    const std::size_t begin = hexadecimal ? 3 : 2;
    std::size_t at = begin;
    char32_t number = 0;
    for (; at < text.size() && digitOf(text[at]) < base; ++at) {
        number = std::min<char32_t>(
            number * static_cast<char32_t>(base) + static_cast<char32_t>(digitOf(text[at])),
            0x110000);
    }
    if (at == begin) return {};
    if (at < text.size() && text[at] == ';') ++at;
    return {characterOfNumber(number), 0, at};
}

const NamedEntity* entityNamed(std::string_view name) {
    const auto* const found = std::ranges::lower_bound(namedEntities, name, {}, &NamedEntity::name);
    return found != namedEntities.end() && found->name == name ? &*found : nullptr;
}

// The longest beginning of the word that holds without a semicolon.
const NamedEntity* looseEntityIn(std::string_view word) {
    constexpr std::size_t longest = 6;
    for (std::size_t size = std::min(word.size(), longest); size > 1; --size) {
        const NamedEntity* const entity = entityNamed(word.substr(0, size));
        if (entity != nullptr && entity->end == EntityEnd::loose) return entity;
    }
    return nullptr;
}

// A name without a semicolon, or null. Addresses were written by programs that escaped the few
// signs that they must, or nothing: any other name there is a parameter's.
const NamedEntity* unclosedEntity(std::string_view word, std::string_view behind, HtmlPlace place) {
    const NamedEntity* const entity = entityNamed(word);
    if (place == HtmlPlace::address) {
        constexpr std::string_view ofNames = "=_-.[%";
        const bool escape =
            entity != nullptr && (entity->character == '&' || entity->character == '"' ||
                                  entity->character == '<' || entity->character == '>');
        const bool name = !behind.empty() && ofNames.find(behind.front()) != std::string_view::npos;
        return escape && entity->end == EntityEnd::loose && !name ? entity : nullptr;
    }
    return entity != nullptr && entity->end != EntityEnd::closed ? entity : looseEntityIn(word);
}

// The text begins with "&".
Entity nameAt(std::string_view text, HtmlPlace place) {
    constexpr std::size_t longest = 32;
    std::size_t end = 1;
    while (end < text.size() && end <= longest && isWord(text[end])) ++end;
    const std::string_view word = text.substr(1, end - 1);
    const bool closed = end < text.size() && text[end] == ';';
    const NamedEntity* entity = closed ? entityNamed(word) : nullptr;
    if (entity != nullptr) return {entity->character, entity->second, end + 1};
    entity = unclosedEntity(word, text.substr(end), place);
    if (entity == nullptr) return {};
    return {entity->character, entity->second, 1 + entity->name.size()};
}

Entity entityAt(std::string_view text, HtmlPlace place) {
    return text.size() > 1 && text[1] == '#' ? numberAt(text) : nameAt(text, place);
}

bool isBlank(char byte) {
    return byte == ' ' || (byte >= '\t' && byte <= '\r');
}

// Appends text with its blanks run together; `begin` is where all of it begins, `blank` whether a
// blank is owed.
void appendFolded(std::string& result, std::size_t begin, std::string_view text, bool& blank) {
    for (std::size_t at = 0; at < text.size();) {
        if (isBlank(text[at])) {
            blank = true;
            ++at;
            continue;
        }
        // A single blank inside is as it shall be.
        std::size_t end = at + 1;
        while (end < text.size() &&
               (!isBlank(text[end]) || (text[end] == ' ' && !isBlank(text[end - 1])))) {
            ++end;
        }
        if (blank && result.size() != begin) result += ' ';
        blank = isBlank(text[end - 1]);
        result += text.substr(at, end - at - (blank ? 1 : 0));
        at = end;
    }
}

// Whether the text reads as it stands there.
bool isPlain(std::string_view html) {
    char before = ' ';
    for (const char byte : html) {
        if (byte == '<' || byte == '&' || (isBlank(byte) && (byte != ' ' || before == ' '))) {
            return false;
        }
        before = byte;
    }
    return before != ' ' || html.empty();
}

bool breaksLine(const HtmlTag& tag) {
    return tag.is("br") || tag.is("p");
}

// True where the text up to the next tag is no text of the page.
bool skipHidden(HtmlScanner& scanner, const HtmlTag& tag) {
    if (tag.closing) return false;
    return (tag.is("script") && scanner.skipRawText("script")) ||
           (tag.is("style") && scanner.skipRawText("style"));
}

}  // namespace

void appendWithoutEntities(std::string& result, std::string_view text, HtmlPlace place) {
    while (!text.empty()) {
        const std::size_t plain = std::min(text.find('&'), text.size());
        result += text.substr(0, plain);
        text.remove_prefix(plain);
        if (text.empty()) break;
        const Entity entity = entityAt(text, place);
        if (entity.size == 0) {
            result += '&';
            text.remove_prefix(1);
            continue;
        }
        appendUtf8(result, entity.character);
        if (entity.second != 0) appendUtf8(result, entity.second);
        text.remove_prefix(entity.size);
    }
}

namespace {

// Those from a place on.
void replaceEntities(std::string& text, std::size_t begin) {
    begin = text.find('&', begin);
    if (begin == std::string::npos) return;
    const std::string from = text.substr(begin);
    text.resize(begin);
    appendWithoutEntities(text, from, HtmlPlace::text);
}

}  // namespace

void appendReadable(std::string& result, std::string_view html) {
    if (isPlain(html)) {
        result += html;
        return;
    }
    const std::size_t begin = result.size();
    bool blank = false;
    HtmlScanner scanner(html);
    std::size_t from = 0;
    bool shown = true;
    while (const HtmlTag* const tag = scanner.next()) {
        if (shown) appendFolded(result, begin, html.substr(from, tag->begin - from), blank);
        blank = blank || breaksLine(*tag);
        from = tag->end;
        shown = !skipHidden(scanner, *tag);
    }
    appendFolded(result, begin, html.substr(from), blank);
    replaceEntities(result, begin);
}

void appendReadableValue(std::string& result, std::string_view value) {
    const std::size_t begin = result.size();
    bool blank = false;
    appendFolded(result, begin, value, blank);
    replaceEntities(result, begin);
}

}  // namespace magpie
