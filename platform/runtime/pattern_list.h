// PatternList: the list between "[" and "]" of a pattern, read in place. Both readers of patterns
// use it, so that what a list means is written down once.
#pragma once

#include <cstddef>
#include <string_view>

#include "platform/runtime/failure.h"

namespace magpie {

// A stretch of consecutive bytes of a list, both ends included; a single byte is its own end.
struct PatternRange {
    unsigned char first = 0;
    unsigned char last = 0;
};

class PatternList {
public:
    // Reads the list whose "[" stands at `open` in the pattern. Raises Failure 93 where no "]"
    // follows it.
    PatternList(std::string_view pattern, std::size_t open) {
        const std::size_t close = pattern.find(']', open + 1);
        if (close == std::string_view::npos) throw Failure{failure::invalidPattern};
        members_ = pattern.substr(open + 1, close - open - 1);
        end_ = close + 1;
        empty_ = members_.empty();
        negated_ = members_.starts_with('!');
        if (negated_) members_.remove_prefix(1);
    }

    // Where the pattern goes on behind the "]".
    [[nodiscard]] std::size_t end() const { return end_; }

    // Whether it is "[]", which matches no byte but the empty text.
    [[nodiscard]] bool empty() const { return empty_; }

    // Whether the bytes that match are those outside the ranges.
    [[nodiscard]] bool negated() const { return negated_; }

    // Hands each range of the list to take(PatternRange), in order, until it answers false. Raises
    // Failure 93 at a range that descends.
    template <class Take>
    void eachRange(Take take) const {
        std::size_t at = 0;
        while (at < members_.size()) {
            const auto first = static_cast<unsigned char>(members_[at]);
            auto last = first;
            // A "-" where a range would begin is itself.
            if (first != '-' && at + 2 < members_.size() && members_[at + 1] == '-') {
                last = static_cast<unsigned char>(members_[at + 2]);
                if (last < first) throw Failure{failure::invalidPattern};
                at += 2;
            }
            ++at;
            if (!take(PatternRange{first, last})) return;
        }
    }

    [[nodiscard]] bool matches(unsigned char byte) const {
        bool found = false;
        eachRange([&](PatternRange range) {
            found = byte >= range.first && byte <= range.last;
            return !found;
        });
        return found != negated_;
    }

private:
    std::string_view members_;  // without the brackets and the "!"
    std::size_t end_ = 0;
    bool empty_ = false;
    bool negated_ = false;
};

}  // namespace magpie
