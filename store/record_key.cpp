#include "store/record_key.h"

#include <cstddef>

#include "platform/runtime/decimal_text.h"
#include "platform/runtime/failure.h"
#include "platform/runtime/number_text.h"

namespace magpie {

namespace {

constexpr std::size_t digits = 5;

bool isKey(std::string_view tag) {
    return tag.size() == digits && tag.find_first_not_of("0123456789") == std::string_view::npos;
}

}  // namespace

std::string recordKey(std::string_view tag) {
    // What rows carry is a key already; anything else takes the road of a general number.
    if (isKey(tag)) return std::string(tag);
    try {
        std::string text = integerText(int32Of(tag));
        const std::size_t sign = text.front() == '-' ? 1 : 0;
        if (text.size() < sign + digits) text.insert(sign, sign + digits - text.size(), '0');
        return text;
    } catch (const Failure&) {
        return std::string(tag);
    }
}

}  // namespace magpie
