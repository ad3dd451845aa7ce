#include "platform/runtime/number_text.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <system_error>

#include "platform/runtime/failure.h"
#include "platform/runtime/letter_case.h"
#include "platform/runtime/rounding.h"

namespace magpie {

namespace {

std::string_view withoutBlanks(std::string_view text) {
    constexpr std::string_view blanks = " \t\r\n";
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

// The digits of the text, counted from `at`, which moves behind them.
std::size_t digitsAt(std::string_view text, std::size_t& at) {
    const std::size_t first = at;
    while (at < text.size() && isDigit(text[at])) ++at;
    return at - first;
}

// Whether the text, known to spell a number other than zero, spells one of 1 or more. Only asked
// of numbers far outside what a double holds, where it tells the too large from the too small.
bool isLarge(std::string_view text) {
    const std::size_t exponentAt = std::min(text.find_first_of("eE"), text.size());
    const std::string_view digits = text.substr(0, exponentAt);
    const std::size_t point = std::min(digits.find('.'), digits.size());
    const std::size_t leading = digits.find_first_of("123456789");
    // The power of ten of the leading digit, were there no exponent.
    const auto place = static_cast<std::int64_t>(point) - static_cast<std::int64_t>(leading);

    std::int64_t exponent = 0;
    if (exponentAt < text.size()) {
        std::string_view spelled = text.substr(exponentAt + 1);
        const bool negative = spelled.front() == '-';
        if (negative || spelled.front() == '+') spelled.remove_prefix(1);
        const auto read =
            std::from_chars(spelled.data(), spelled.data() + spelled.size(), exponent);
        // An exponent of this size outweighs any number of digits that fits into memory.
        if (read.ec == std::errc::result_out_of_range) return !negative;
        if (negative) exponent = -exponent;
    }
    return exponent > -place;
}

// Raises Failure 13 unless the text is digits, point and exponent, as numberOf takes them.
void requireDecimal(std::string_view text) {
    std::size_t at = 0;
    std::size_t digits = digitsAt(text, at);
    if (at < text.size() && text[at] == '.') digits += digitsAt(text, ++at);
    if (digits == 0) throw Failure{failure::typeMismatch};
    if (at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
        ++at;
        if (at < text.size() && (text[at] == '+' || text[at] == '-')) ++at;
        if (digitsAt(text, at) == 0) throw Failure{failure::typeMismatch};
    }
    if (at != text.size()) throw Failure{failure::typeMismatch};
}

double decimalOf(std::string_view text) {
    const bool negative = !text.empty() && text.front() == '-';
    if (negative || (!text.empty() && text.front() == '+')) text.remove_prefix(1);
    requireDecimal(text);

    double number = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
    if (read.ec == std::errc::result_out_of_range) {
        if (isLarge(text)) throw Failure{failure::overflow};
        number = 0;
    }
    return negative ? -number : number;
}

double signedBitsOf(std::uint32_t bits) {
    if (bits <= 0xFFFF) return static_cast<std::int16_t>(bits);
    return static_cast<std::int32_t>(bits);
}

}  // namespace

double numberOf(std::string_view text) {
    text = withoutBlanks(text);
    if (text.starts_with("&H") || text.starts_with("&h")) {
        return signedBitsOf(hexOf(text.substr(2)));
    }
    return decimalOf(text);
}

std::uint8_t byteOf(std::string_view text) {
    return toByte(numberOf(text));
}

std::int16_t int16Of(std::string_view text) {
    return toInt16(numberOf(text));
}

std::int32_t int32Of(std::string_view text) {
    return toInt32(numberOf(text));
}

bool boolOf(std::string_view text) {
    if (equalIgnoringCase(text, "True")) return true;
    if (equalIgnoringCase(text, "False")) return false;
    return numberOf(text) != 0;
}

std::uint32_t hexOf(std::string_view text) {
    std::uint32_t number = 0;
    const char* const end = text.data() + text.size();
    const auto read = std::from_chars(text.data(), end, number, 16);
    // A text that is no number is told from one that is too large: the end says how far the
    // digits go, also past those that did not fit.
    if (read.ec == std::errc::invalid_argument || read.ptr != end) {
        throw Failure{failure::typeMismatch};
    }
    if (read.ec == std::errc::result_out_of_range) throw Failure{failure::overflow};
    return number;
}

}  // namespace magpie
