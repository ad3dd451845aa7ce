#include "companion/import/shortcut_file.h"

#include <algorithm>
#include <cstddef>

#include "companion/import/unicode.h"
#include "companion/import/utf7.h"

namespace magpie {

namespace {

bool isBlank(char byte) {
    return static_cast<unsigned char>(byte) <= ' ';
}

std::string_view trimmed(std::string_view text) {
    while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
    return text;
}

// Quotes around a value belong to the file, as the platform reads it.
std::string_view unquoted(std::string_view value) {
    value = trimmed(value);
    const bool quoted = value.size() >= 2 && value.front() == value.back() &&
                        (value.front() == '"' || value.front() == '\'');
    return quoted ? trimmed(value.substr(1, value.size() - 2)) : value;
}

bool sameName(std::string_view a, std::string_view lower) {
    return std::ranges::equal(a, lower, {}, [](char byte) {
        return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte + ('a' - 'A')) : byte;
    });
}

// The next line without its end, which may be CR LF, LF or CR.
std::string_view takeLine(std::string_view& text) {
    std::size_t end = 0;
    while (end < text.size() && text[end] != '\r' && text[end] != '\n') ++end;
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(line.size() + 1, text.size()));
    return line;
}

// The addresses of a file; of several with the same name the first one that says something.
struct Addresses {
    std::string_view plain;
    std::string_view ansi;
    std::string_view wide;
    std::string_view sectionless;
    std::string_view base;

    std::string_view* of(std::string_view section, std::string_view key) {
        if (sameName(section, "default")) return sameName(key, "baseurl") ? &base : nullptr;
        if (!sameName(key, "url")) return nullptr;
        if (section.empty()) return &sectionless;
        if (sameName(section, "internetshortcut")) return &plain;
        if (sameName(section, "internetshortcut.a")) return &ansi;
        return sameName(section, "internetshortcut.w") ? &wide : nullptr;
    }
};

Addresses addressesIn(std::string_view text) {
    Addresses found;
    std::string_view section;
    while (!text.empty()) {
        const std::string_view line = trimmed(takeLine(text));
        if (line.empty() || line.front() == ';' || line.front() == '#') continue;
        if (line.front() == '[') {
            section = trimmed(line.substr(1, line.find(']') - 1));
            continue;
        }
        const std::size_t equals = line.find('=');
        if (equals == std::string_view::npos) continue;
        std::string_view* const address = found.of(section, trimmed(line.substr(0, equals)));
        if (address != nullptr && address->empty()) *address = unquoted(line.substr(equals + 1));
    }
    return found;
}

std::string readText(std::string_view text, const CodePageReader& codePage) {
    if (isUtf8(text)) return std::string(text);
    std::string utf8;
    codePage.append(utf8, text);
    return utf8;
}

}  // namespace

std::string addressInShortcut(std::string_view bytes, const CodePageReader& codePage) {
    const FileStart start = fileStart(bytes);
    std::string converted;
    std::string_view text = start.rest;
    if (start.text == FileText::utf16LittleEndian || start.text == FileText::utf16BigEndian) {
        converted = utf8OfUtf16(text, start.text == FileText::utf16BigEndian);
        text = converted;
    }
    const Addresses found = addressesIn(text);
    // One that stands in both forms alike was not encoded, and a "+" in it means itself.
    if (!found.wide.empty() && found.wide != found.plain) {
        return decodeUtf7(readText(found.wide, codePage));
    }
    for (const std::string_view address :
         {found.plain, found.ansi, found.sectionless, found.base}) {
        if (!address.empty()) return readText(address, codePage);
    }
    return {};
}

}  // namespace magpie
