#include "store/hex_date.h"

#include <bit>
#include <cstddef>
#include <cstdint>

#include "platform/runtime/number_text.h"
#include "platform/runtime/rounding.h"

namespace magpie {

namespace {

// The characters of a part of the decimal text, and where those of the fraction begin.
constexpr std::size_t partSize = 5;
constexpr std::size_t fractionAt = 6;

// Five digits before the point, where the decimal text shows ten behind it.
constexpr double firstOrdinary = 10000;
constexpr double lastOrdinary = 99999;
constexpr std::uint64_t tenthPowerOfTen = 10'000'000'000;
constexpr std::uint64_t tenthPowerOfFive = 9'765'625;

struct Parts {
    std::uint32_t day;
    std::uint32_t fraction;
};

// The parts by way of the decimal text, whatever it looks like. A negative number is spelled by
// the bits that hold it.
Parts partsOfText(double days) {
    NumberBuffer buffer;
    const std::string_view text = decimalText(days, buffer);
    const auto whole = toInt32(numberOf(text.substr(0, partSize)));
    // A text that ends before the fraction has empty text for it, which is no number.
    const std::string_view fraction =
        text.size() > fractionAt ? text.substr(fractionAt, partSize) : std::string_view();
    return {static_cast<std::uint32_t>(whole),
            static_cast<std::uint32_t>(toInt32(numberOf(fraction)))};
}

// The same parts of an ordinary date without printing it: a number from 10000 to 99999 has 15
// significant digits in its five whole and ten fraction digits. Its own fraction is a whole
// number of 2^-39, so that the tenth digit can be rounded exactly, halves to even, in 64 bits.
// False, with nothing set, where the text has no fraction or the rounding carries into the day.
bool partsOfOrdinary(double days, Parts& parts) {
    const auto whole = static_cast<std::uint32_t>(days);
    const auto bits = static_cast<std::uint64_t>((days - whole) * 0x1p39);
    // bits / 2^39 * 10^10, the common factor 2^10 taken out: 39 + 24 bits before the shift.
    const std::uint64_t product = bits * tenthPowerOfFive;
    std::uint64_t digits = product >> 29;
    const std::uint64_t rest = product & ((1U << 29) - 1);
    const std::uint64_t half = 1U << 28;
    if (rest > half || (rest == half && digits % 2 != 0)) ++digits;
    if (digits == 0 || digits >= tenthPowerOfTen) return false;

    std::uint64_t fraction = digits / 100'000;
    if (digits % 100'000 == 0) {
        // The text ends within the first five digits, and never with a zero.
        while (fraction % 10 == 0) fraction /= 10;
    }
    parts = {whole, static_cast<std::uint32_t>(fraction)};
    return true;
}

// Prints upper-case hexadecimal without leading zeros and answers the end. Every date of every
// record goes through here at each save, which is why it does not go through hexText.
char* printHex(std::uint32_t number, char* at) {
    const unsigned digits = number == 0 ? 1 : (std::bit_width(number) + 3) / 4;
    for (unsigned digit = digits; digit-- > 0; number >>= 4)
        at[digit] = "0123456789ABCDEF"[number & 15];
    return at + digits;
}

Parts partsOf(double days) {
    Parts parts{};
    if (days >= firstOrdinary && days < lastOrdinary && partsOfOrdinary(days, parts)) return parts;
    return partsOfText(days);
}

}  // namespace

std::string_view GetHexDate(Date dat, NumberBuffer& buffer) {
    if (dat.days == 0) return "0";
    const Parts parts = partsOf(dat.days);
    char* const end = printHex(parts.fraction, printHex(parts.day, buffer.data()));
    return {buffer.data(), static_cast<std::size_t>(end - buffer.data())};
}

std::string GetHexDate(Date dat) {
    NumberBuffer buffer;
    return std::string(GetHexDate(dat, buffer));
}

Date ConvertHexDate(std::string_view hexDate) {
    if (hexDate.size() < 8) return {};
    const std::uint32_t day = hexOf(hexDate.substr(0, 4));
    const std::uint32_t fraction = hexOf(hexDate.substr(4, 5));
    // day "." fraction, read as a decimal number: of two whole numbers that a double holds
    // exactly, the quotient is the number nearest to what the text says.
    double shift = 10;
    while (fraction >= shift) shift *= 10;
    return {(day * shift + fraction) / shift};
}

}  // namespace magpie
