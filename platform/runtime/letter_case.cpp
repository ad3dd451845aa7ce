#include "platform/runtime/letter_case.h"

#include <algorithm>
#include <cstddef>

namespace magpie {

std::string upperCase(std::string_view text) {
    std::string capital;
    upperCaseInto(capital, text);
    return capital;
}

void upperCaseInto(std::string& into, std::string_view text) {
    into.resize(text.size());
    std::transform(text.begin(), text.end(), into.begin(), [](char c) { return upperCase(c); });
}

int compareIgnoringCase(std::string_view a, std::string_view b) {
    const std::size_t common = std::min(a.size(), b.size());
    for (std::size_t i = 0; i < common; ++i) {
        if (a[i] == b[i]) continue;
        const int order = int{capitals[static_cast<unsigned char>(a[i])]} -
                          int{capitals[static_cast<unsigned char>(b[i])]};
        if (order != 0) return order;
    }
    return a.size() == b.size() ? 0 : a.size() < b.size() ? -1 : 1;
}

bool equalIgnoringCase(std::string_view a, std::string_view b) {
    return a.size() == b.size() && compareIgnoringCase(a, b) == 0;
}

}  // namespace magpie
