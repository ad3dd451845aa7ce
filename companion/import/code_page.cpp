#include "companion/import/code_page.h"

#include <algorithm>

#include "companion/import/unicode.h"

namespace magpie {

namespace {

struct WideLabel {
    std::string_view label;
    unsigned codePage;
};

// The names of code pages without a table.
constexpr WideLabel wideLabels[] = {
    {"utf-8", codePageUtf8}, {"utf8", codePageUtf8}, {"unicode-1-1-utf-8", codePageUtf8},
    {"shift_jis", 932},      {"shift-jis", 932},     {"x-sjis", 932},
    {"sjis", 932},           {"windows-31j", 932},   {"ms_kanji", 932},
    {"gb2312", 936},         {"gbk", 936},           {"x-gbk", 936},
    {"gb_2312-80", 936},     {"gb18030", 54936},     {"big5", 950},
    {"big5-hkscs", 950},     {"x-x-big5", 950},      {"euc-kr", 949},
    {"ks_c_5601-1987", 949}, {"windows-949", 949},   {"euc-jp", 20932},
    {"x-euc-jp", 20932},
};

std::string lowerCase(std::string_view text) {
    std::string lower(text);
    for (char& byte : lower) {
        if (byte >= 'A' && byte <= 'Z') byte = static_cast<char>(byte + ('a' - 'A'));
    }
    return lower;
}

bool hasLabel(const CodePageTable& table, std::string_view label) {
    std::string_view labels = table.labels;
    while (!labels.empty()) {
        const std::size_t end = std::min(labels.find(' '), labels.size());
        if (labels.substr(0, end) == label) return true;
        labels.remove_prefix(std::min(end + 1, labels.size()));
    }
    return false;
}

}  // namespace

unsigned codePageNamed(std::string_view label) {
    const std::string lower = lowerCase(label);
    for (const WideLabel& wide : wideLabels) {
        if (wide.label == lower) return wide.codePage;
    }
    for (const CodePageTable& table : codePageTables) {
        if (hasLabel(table, lower)) return table.number;
    }
    return 0;
}

const CodePageTable* tableOf(unsigned codePage) {
    const auto* const found = std::ranges::find(codePageTables, codePage, &CodePageTable::number);
    return found == codePageTables.end() ? nullptr : &*found;
}

CodePageReader::CodePageReader(unsigned codePage, CodePageCalls calls)
    : table_(tableOf(codePage)), codePage_(codePage), calls_(calls) {}

void CodePageReader::append(std::string& utf8, std::string_view bytes) const {
    if (table_ == nullptr && calls_.toUtf16 != nullptr) {
        std::u16string wide;
        if (calls_.toUtf16(codePage_, bytes, wide)) {
            utf8 += utf8Of(wide);
            return;
        }
    }
    const CodePageTable& table = table_ != nullptr ? *table_ : *tableOf(codePageWestern);
    for (const char byte : bytes) {
        const auto value = static_cast<unsigned char>(byte);
        appendUtf8(utf8, value < 0x80 ? value : table.upperHalf[value - 0x80U]);
    }
}

CodePageWriter::CodePageWriter(unsigned codePage, CodePageCalls calls)
    : codePage_(codePage), calls_(calls) {
    const CodePageTable* table = tableOf(codePage);
    if (table == nullptr && (codePage == codePageUtf8 || calls.fromUtf16 != nullptr)) return;
    if (table == nullptr) table = tableOf(codePageWestern);
    for (std::size_t i = 0; i < table->upperHalf.size(); ++i) {
        const char16_t character = table->upperHalf[i];
        if (character == replacementCharacter) continue;
        bytesOf_.emplace_back(character, static_cast<char>(static_cast<unsigned char>(0x80 + i)));
    }
    std::ranges::sort(bytesOf_);
}

bool CodePageWriter::append(std::string& bytes, char32_t character) const {
    if (character < 0x80) {
        bytes += static_cast<char>(character);
        return true;
    }
    if (codePage_ == codePageUtf8) {
        appendUtf8(bytes, character);
        return true;
    }
    if (bytesOf_.empty()) {
        std::u16string wide;
        if (character >= 0x10000) {
            wide += static_cast<char16_t>(0xD800 + ((character - 0x10000) >> 10U));
            wide += static_cast<char16_t>(0xDC00 + (character & 0x3FFU));
        } else {
            wide += static_cast<char16_t>(character);
        }
        return calls_.fromUtf16(codePage_, wide, bytes);
    }
    const auto found = std::ranges::lower_bound(bytesOf_, character, {}, [](const auto& entry) {
        return static_cast<char32_t>(entry.first);
    });
    if (found == bytesOf_.end() || found->first != character) return false;
    bytes += found->second;
    return true;
}

}  // namespace magpie
