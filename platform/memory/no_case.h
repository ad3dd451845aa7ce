// NoCase: the order of names in the disk and the registry, where capital and small
// letters are the same letter (A to Z, and the accented ones of code page 1252).
#pragma once

#include <algorithm>
#include <string_view>

namespace win::memory {

constexpr unsigned char capital(char letter) {
    const auto byte = static_cast<unsigned char>(letter);
    const bool small =
        (byte >= 'a' && byte <= 'z') || (byte >= 0xE0 && byte <= 0xFE && byte != 0xF7);
    return static_cast<unsigned char>(small ? byte - 0x20 : byte);
}

struct NoCase {
    using is_transparent = void;

    bool operator()(std::string_view a, std::string_view b) const {
        return std::lexicographical_compare(
            a.begin(), a.end(), b.begin(), b.end(),
            [](char left, char right) { return capital(left) < capital(right); });
    }
};

}  // namespace win::memory
