// Checked: a whole number of a prescribed width (byte, 16 bits, 32 bits) whose arithmetic raises
// Failure 6 instead of leaving that width. The expression checks, not only the assignment: the
// sum of two 16-bit numbers has to fit 16 bits even where it is assigned to 32.
#pragma once

#include <concepts>
#include <cstdint>
#include <type_traits>
#include <utility>

#include "platform/runtime/failure.h"
#include "platform/runtime/rounding.h"
#include "platform/runtime/word.h"

namespace magpie {

template <class T>
concept CheckedWidth =
    std::same_as<T, std::uint8_t> || std::same_as<T, std::int16_t> || std::same_as<T, std::int32_t>;

// The plain integers that mix with checked ones. Truth values and characters are no numbers
// here; a truth value becomes one by word().
template <class T>
concept WholeNumber = std::integral<T> && !std::same_as<T, bool> && !std::same_as<T, char> &&
                      !std::same_as<T, wchar_t> && !std::same_as<T, char8_t> &&
                      !std::same_as<T, char16_t> && !std::same_as<T, char32_t>;

template <CheckedWidth T>
class Checked {
public:
    constexpr Checked() = default;

    // Each conversion raises Failure 6 for a number outside T; a floating number is rounded
    // first, halves to even.
    template <WholeNumber U>
    constexpr Checked(U number) : value_(fitting(number)) {}
    template <std::floating_point U>
    constexpr Checked(U number) : value_(roundedTo<T>(static_cast<double>(number))) {}
    template <CheckedWidth U>
    requires(!std::same_as<T, U>) constexpr Checked(Checked<U> number)
        : value_(fitting(number.value())) {}

    [[nodiscard]] constexpr T value() const { return value_; }
    constexpr operator T() const { return value_; }

    template <class U>
    constexpr Checked& operator+=(U number) {
        return *this = *this + number;
    }
    template <class U>
    constexpr Checked& operator-=(U number) {
        return *this = *this - number;
    }
    template <class U>
    constexpr Checked& operator*=(U number) {
        return *this = *this * number;
    }
    constexpr Checked& operator++() { return *this += 1; }
    constexpr Checked& operator--() { return *this -= 1; }
    constexpr Checked operator++(int) {
        const Checked before = *this;
        ++*this;
        return before;
    }
    constexpr Checked operator--(int) {
        const Checked before = *this;
        --*this;
        return before;
    }

private:
    template <WholeNumber U>
    static constexpr T fitting(U number) {
        if (!std::in_range<T>(number)) throw Failure{failure::overflow};
        return static_cast<T>(number);
    }

    T value_ = 0;
};

// The width of an expression is that of its wider operand.
template <CheckedWidth A, CheckedWidth B>
using WiderOf = std::conditional_t<(sizeof(A) >= sizeof(B)), A, B>;

template <CheckedWidth A, CheckedWidth B>
[[nodiscard]] constexpr Checked<WiderOf<A, B>> operator+(Checked<A> a, Checked<B> b) {
    return std::int64_t{a.value()} + std::int64_t{b.value()};
}
template <CheckedWidth A, CheckedWidth B>
[[nodiscard]] constexpr Checked<WiderOf<A, B>> operator-(Checked<A> a, Checked<B> b) {
    return std::int64_t{a.value()} - std::int64_t{b.value()};
}
template <CheckedWidth A, CheckedWidth B>
[[nodiscard]] constexpr Checked<WiderOf<A, B>> operator*(Checked<A> a, Checked<B> b) {
    return std::int64_t{a.value()} * std::int64_t{b.value()};
}
template <CheckedWidth T>
[[nodiscard]] constexpr Checked<T> operator-(Checked<T> a) {
    return -std::int64_t{a.value()};
}

// A plain integer takes on the width of the checked operand beside it, and has to fit it.
template <CheckedWidth T, WholeNumber U>
[[nodiscard]] constexpr Checked<T> operator+(Checked<T> a, U b) {
    return a + Checked<T>(b);
}
template <CheckedWidth T, WholeNumber U>
[[nodiscard]] constexpr Checked<T> operator-(Checked<T> a, U b) {
    return a - Checked<T>(b);
}
template <CheckedWidth T, WholeNumber U>
[[nodiscard]] constexpr Checked<T> operator*(Checked<T> a, U b) {
    return a * Checked<T>(b);
}
template <CheckedWidth T, WholeNumber U>
[[nodiscard]] constexpr Checked<T> operator+(U a, Checked<T> b) {
    return Checked<T>(a) + b;
}
template <CheckedWidth T, WholeNumber U>
[[nodiscard]] constexpr Checked<T> operator-(U a, Checked<T> b) {
    return Checked<T>(a) - b;
}
template <CheckedWidth T, WholeNumber U>
[[nodiscard]] constexpr Checked<T> operator*(U a, Checked<T> b) {
    return Checked<T>(a) * b;
}

}  // namespace magpie
