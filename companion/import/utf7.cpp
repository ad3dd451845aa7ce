#include "companion/import/utf7.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "companion/import/unicode.h"

namespace magpie {

namespace {

constexpr int noDigit = -1;

// No address has as many characters in a row that are encoded: what is longer is itself, all of
// it. So the time stays in proportion to a text that is full of "+".
constexpr std::size_t longestRun = 1024;

int digitOf(char byte, bool withComma) {
    if (byte >= 'A' && byte <= 'Z') return byte - 'A';
    if (byte >= 'a' && byte <= 'z') return byte - 'a' + 26;
    if (byte >= '0' && byte <= '9') return byte - '0' + 52;
    if (byte == '+') return 62;
    return byte == '/' || (withComma && byte == ',') ? 63 : noDigit;
}

// The digits at a place of a text, of which each is looked at once however many places there are.
class Digits {
public:
    explicit Digits(bool withComma) : withComma_(withComma) {}

    std::string_view at(std::string_view text) {
        if (end_ == nullptr || text.data() >= end_) {
            std::size_t size = 0;
            while (size < text.size() && digitOf(text[size], withComma_) != noDigit) ++size;
            end_ = text.data() + size;
        }
        return text.substr(0, std::min(static_cast<std::size_t>(end_ - text.data()), longestRun));
    }

private:
    bool withComma_;
    const char* end_ = nullptr;
};

bool isWhole(std::u16string_view text) {
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char16_t unit = text[i];
        if (unit < 0xD800 || unit > 0xDFFF) continue;
        const bool pair =
            unit < 0xDC00 && i + 1 < text.size() && text[i + 1] >= 0xDC00 && text[i + 1] <= 0xDFFF;
        if (!pair) return false;
        ++i;
    }
    return true;
}

// Empty unless the digits are whole characters and nothing but zero bits behind them.
std::u16string charactersOf(std::string_view digits, bool withComma) {
    if (digits.size() * 6 % 16 >= 6) return {};
    std::u16string text;
    std::uint32_t bits = 0;
    int count = 0;
    for (const char digit : digits) {
        bits = (bits << 6U) | static_cast<std::uint32_t>(digitOf(digit, withComma));
        count += 6;
        if (count < 16) continue;
        count -= 16;
        text += static_cast<char16_t>(bits >> count);
        bits &= (1U << count) - 1U;
    }
    return bits == 0 && isWhole(text) ? text : std::u16string();
}

// What is behind a "+".
struct Run {
    std::u16string text;
    std::size_t size = 0;
};

Run runAt(std::string_view text, std::string_view digits, bool withComma) {
    if (digits.size() == longestRun) return {};
    const bool ended = digits.size() < text.size() && text[digits.size()] == '-';
    if (withComma && !ended) return {};
    Run run{charactersOf(digits, withComma), digits.size() + (ended ? 1U : 0U)};
    return run.text.empty() ? Run{} : run;
}

}  // namespace

std::string decodeUtf7(std::string_view text) {
    std::string result;
    Digits strict(false);
    Digits withComma(true);
    while (!text.empty()) {
        const std::size_t plain = text.find('+');
        result += text.substr(0, plain);
        if (plain == std::string_view::npos) break;
        text.remove_prefix(plain + 1);
        if (text.starts_with('-')) {
            result += '+';
            text.remove_prefix(1);
            continue;
        }
        const std::string_view digits = strict.at(text);
        if (digits.size() == longestRun) {
            result.append("+").append(digits);
            text.remove_prefix(digits.size());
            continue;
        }
        Run run = runAt(text, digits, false);
        if (run.size == 0) run = runAt(text, withComma.at(text), true);
        if (run.size == 0) result += '+';
        result += utf8Of(run.text);
        text.remove_prefix(run.size);
    }
    return result;
}

}  // namespace magpie
