#include "platform/runtime/split.h"

#include <cstring>

namespace magpie {

namespace {

// Hands each part to take(std::string_view), in order.
template <class Take>
void eachPart(std::string_view text, char separator, Take take) {
    if (text.empty()) return;
    const char* from = text.data();
    const char* const end = from + text.size();
    for (;;) {
        const auto left = static_cast<std::size_t>(end - from);
        // An empty rest may point one past the text, where memchr must not be sent.
        const void* const found = left == 0 ? nullptr : std::memchr(from, separator, left);
        if (found == nullptr) {
            take(std::string_view(from, left));
            return;
        }
        const char* const at = static_cast<const char*>(found);
        take(std::string_view(from, static_cast<std::size_t>(at - from)));
        from = at + 1;
    }
}

}  // namespace

std::vector<std::string_view> split(std::string_view text, char separator) {
    std::vector<std::string_view> parts;
    eachPart(text, separator, [&](std::string_view part) { parts.push_back(part); });
    return parts;
}

std::size_t splitInto(std::span<std::string_view> parts, std::string_view text, char separator) {
    std::size_t count = 0;
    eachPart(text, separator, [&](std::string_view part) {
        if (count < parts.size()) parts[count] = part;
        ++count;
    });
    return count;
}

std::string_view trimBlanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

}  // namespace magpie
