#include "platform/runtime/decimal_text.h"

#include <charconv>
#include <cmath>
#include <cstddef>

#include "platform/runtime/failure.h"

namespace magpie {

namespace {

std::string_view written(const NumberBuffer& buffer, const char* end) {
    return {buffer.data(), static_cast<std::size_t>(end - buffer.data())};
}

}  // namespace

std::string_view decimalText(double number, NumberBuffer& buffer) {
    if (!std::isfinite(number)) throw Failure{failure::overflow};
    char* const begin = buffer.data();
    char* const limit = begin + buffer.size();

    // A whole number needs none of the work below, and has no negative zero.
    if (std::abs(number) < 1e15 && number == std::trunc(number)) {
        return written(buffer, std::to_chars(begin, limit, static_cast<std::int64_t>(number)).ptr);
    }
    char* const end = std::to_chars(begin, limit, number, std::chars_format::general, 15).ptr;
    for (char* at = begin; at != end; ++at) {
        if (*at == 'e') *at = 'E';
    }
    return written(buffer, end);
}

std::string decimalText(double number) {
    NumberBuffer buffer;
    return std::string(decimalText(number, buffer));
}

std::string_view integerText(std::int32_t number, NumberBuffer& buffer) {
    return written(buffer, std::to_chars(buffer.data(), buffer.data() + buffer.size(), number).ptr);
}

std::string integerText(std::int32_t number) {
    NumberBuffer buffer;
    return std::string(integerText(number, buffer));
}

std::string_view hexText(std::uint32_t number, NumberBuffer& buffer) {
    char* const begin = buffer.data();
    char* const end = std::to_chars(begin, begin + buffer.size(), number, 16).ptr;
    for (char* at = begin; at != end; ++at) {
        if (*at >= 'a') *at = static_cast<char>(*at - 'a' + 'A');
    }
    return written(buffer, end);
}

std::string hexText(std::uint32_t number) {
    NumberBuffer buffer;
    return std::string(hexText(number, buffer));
}

std::string hexText(std::int32_t number) {
    return hexText(static_cast<std::uint32_t>(number));
}

}  // namespace magpie
