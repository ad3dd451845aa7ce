// ControlArray: controls that share a name and are told apart by an index from
// `First` to `Last`. An index without a control raises 340.
#pragma once

#include <array>

#include "platform/runtime/failure.h"

namespace magpie {

template <class T, int First, int Last>
class ControlArray {
public:
    static constexpr int lowest = First;
    static constexpr int highest = Last;

    ControlArray() {
        for (int i = First; i <= Last; ++i) at(i).Index = i;
    }

    T& operator[](int index) {
        if (index < First || index > Last) throw Failure{failure::noSuchControl};
        return at(index);
    }

    int Count() const { return Last - First + 1; }
    auto begin() { return elements_.begin(); }
    auto end() { return elements_.end(); }

private:
    T& at(int index) { return elements_[static_cast<std::size_t>(index - First)]; }

    std::array<T, static_cast<std::size_t>(Last - First + 1)> elements_;
};

}  // namespace magpie
