// IndexList: the array of groups. A record belongs to the group at the position its Owner gives.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "platform/runtime/checked.h"
#include "platform/runtime/failure.h"
#include "platform/runtime/rounding.h"

namespace magpie {

struct IDXEntry {
    std::string Name;
    bool Checked = false;  // ticked in the Group List
    // The number on the group's row. It equals the position until a group has been removed and
    // another added in the same run.
    magpie::Checked<std::int16_t> GroupID;
};

// Elements 0 to uBound(). The last one is always a spare: with N groups the upper bound is N and
// the groups stand at 0 to N - 1, so every walk over them runs while i < uBound().
class IndexList {
public:
    // How many groups there are, which is also the position of the spare element.
    [[nodiscard]] std::int32_t uBound() const {
        return static_cast<std::int32_t>(elements_.size()) - 1;
    }

    // The element at a position, 0 to uBound(); raises Failure 9 for any other. An Owner is
    // rounded to a whole number first, halves to even. The reference lives until the array is
    // given another upper bound.
    [[nodiscard]] IDXEntry& operator[](std::int32_t position) {
        return elements_[checked(position)];
    }
    [[nodiscard]] const IDXEntry& operator[](std::int32_t position) const {
        return elements_[checked(position)];
    }
    [[nodiscard]] IDXEntry& operator[](double owner) { return (*this)[toInt32(owner)]; }
    [[nodiscard]] const IDXEntry& operator[](double owner) const { return (*this)[toInt32(owner)]; }

    // Gives the array another upper bound and keeps the elements up to it; new ones are empty.
    // Raises Failure 9 for a negative bound.
    void resize(std::int32_t uBound) {
        if (uBound < 0) throw Failure{failure::subscript};
        elements_.resize(static_cast<std::size_t>(uBound) + 1);
    }

    // Back to the spare element alone: no groups.
    void reset() { elements_.assign(1, IDXEntry{}); }

private:
    [[nodiscard]] std::size_t checked(std::int32_t position) const {
        if (position < 0 || position > uBound()) throw Failure{failure::subscript};
        return static_cast<std::size_t>(position);
    }

    std::vector<IDXEntry> elements_{1};
};

}  // namespace magpie
