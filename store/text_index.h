// Text index: the places of records by a number made of their texts, those with the same number
// in ascending order. Adding a place behind all others, removing and finding take the same time
// in a full store as in an empty one, also where all records look alike.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace magpie {

class TextIndex {
public:
    // What finding answers where there is no place.
    static constexpr std::int32_t nowhere = -1;

    void clear();

    // A place that is not in the index yet, 0 or more.
    void add(std::int32_t place, std::size_t number);
    // A place that is in the index.
    void remove(std::int32_t place);

    // The first place with this number; the first behind a place, which is in the index.
    [[nodiscard]] std::int32_t first(std::size_t number) const;
    [[nodiscard]] std::int32_t firstBehind(std::int32_t place, std::size_t number) const;

private:
    // The places of a slot stand in a chain, lowest first.
    struct Chain {
        std::int32_t first = nowhere;
        std::int32_t last = nowhere;
    };
    struct Link {
        std::size_t number = 0;
        std::int32_t before = nowhere;
        std::int32_t behind = nowhere;
    };

    [[nodiscard]] const Link& link(std::int32_t place) const;
    [[nodiscard]] Link& link(std::int32_t place);
    [[nodiscard]] Chain& chain(std::size_t number);
    [[nodiscard]] std::int32_t withNumber(std::int32_t place, std::size_t number) const;

    std::vector<Chain> chains_;
    std::vector<Link> links_;  // by place
};

}  // namespace magpie
