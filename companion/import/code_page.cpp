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
    {"utf8", codePageUtf8},
    {"unicode11utf8", codePageUtf8},
    {"unicode20utf8", codePageUtf8},
    {"utf7", codePageUtf7},
    {"unicode11utf7", codePageUtf7},
    {"unicode20utf7", codePageUtf7},
    {"shiftjis", 932},
    {"csshiftjis", 932},
    {"sjis", 932},
    {"windows31j", 932},
    {"cswindows31j", 932},
    {"mskanji", 932},
    {"ms932", 932},
    {"cp932", 932},
    {"mscp932", 932},
    {"gb2312", 936},
    {"gb231280", 936},
    {"csgb2312", 936},
    {"csiso58gb231280", 936},
    {"isoir58", 936},
    {"gbk", 936},
    {"euccn", 936},
    {"cp936", 936},
    {"ms936", 936},
    {"windows936", 936},
    {"chinese", 936},
    {"gb18030", 54936},
    {"hzgb2312", 52936},
    {"hz", 52936},
    {"big5", 950},
    {"big5hkscs", 950},
    {"cnbig5", 950},
    {"csbig5", 950},
    {"cp950", 950},
    {"windows950", 950},
    {"euckr", 949},
    {"cseuckr", 949},
    {"ksc5601", 949},
    {"ksc56011987", 949},
    {"ksc56011989", 949},
    {"csksc56011987", 949},
    {"isoir149", 949},
    {"korean", 949},
    {"cp949", 949},
    {"ms949", 949},
    {"windows949", 949},
    {"johab", 1361},
    {"iso2022kr", 50225},
    {"csiso2022kr", 50225},
    {"eucjp", 20932},
    {"cseucpkdfmtjapanese", 20932},
    {"iso2022jp", codePageShiftedJapanese},
    {"csiso2022jp", codePageShiftedJapanese},
};

// Programs differ in case, hyphens and blanks, and in whether they call a name their own.
std::string plainLabel(std::string_view label) {
    label = label.substr(0, label.find(':'));
    std::string plain;
    for (const char byte : label) {
        const char lower =
            byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte + ('a' - 'A')) : byte;
        const bool own = byte == '-' && plain == "x";
        if (own) plain.clear();
        if ((lower >= 'a' && lower <= 'z') || (lower >= '0' && lower <= '9')) plain += lower;
    }
    return plain;
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
    const std::string plain = plainLabel(label);
    if (plain.empty()) return 0;
    for (const WideLabel& wide : wideLabels) {
        if (wide.label == plain) return wide.codePage;
    }
    for (const CodePageTable& table : codePageTables) {
        if (hasLabel(table, plain)) return table.number;
    }
    return 0;
}

bool isShifted(unsigned codePage) {
    return codePage == codePageShiftedJapanese || codePage == 50225 || codePage == 52936 ||
           codePage == codePageUtf7;
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
