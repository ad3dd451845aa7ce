#include "views/row_comparison.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

#include "core/state.h"
#include "platform/api/comctl32.h"
#include "platform/api/user32.h"
#include "platform/runtime/date.h"
#include "platform/runtime/failure.h"
#include "platform/runtime/number_text.h"

namespace magpie {

namespace {

constexpr std::size_t textLimit = 32;

// Keys ---------------------------------------------------------------------------------

double dateKey(std::string_view text) {
    return dateIfText(text).value_or(Date{}).days;
}

double countKey(std::string_view text) {
    return text.empty() ? 0 : int32Of(text);
}

double ratingKey(std::string_view text) {
    constexpr std::string_view initials = "LMHV";
    const std::size_t found = text.empty() ? initials.npos : initials.find(text.front());
    return found == initials.npos ? 0 : static_cast<double>(found + 1);
}

// A column, numbered as its sub-item, and what its texts are worth.
struct KeyColumn {
    int column;
    double (*keyOf)(std::string_view text);
    win::PFNLVCOMPARE compare;
};

constexpr KeyColumn lastVisited{4, dateKey, compareLastVisited};
constexpr KeyColumn created{5, dateKey, compareCreated};
constexpr KeyColumn visited{6, countKey, compareVisited};
constexpr KeyColumn rated{2, ratingKey, compareRated};

// Reading them -------------------------------------------------------------------------

win::LPARAM address(const void* record) {
    return reinterpret_cast<win::LPARAM>(record);
}

// The key of a row, numbered from 0 in the order on show. `ask` sends the list a message.
template <class Ask>
double keyInRow(const KeyColumn& by, int row, Ask&& ask) {
    // One byte more than is asked for, because a cut text may come without its end.
    std::array<char, textLimit + 2> text{};
    win::LVITEMA item{};
    item.iSubItem = by.column;
    item.pszText = text.data();
    item.cchTextMax = static_cast<win::INT>(textLimit + 1);
    const win::LRESULT length =
        ask(win::LVM_GETITEMTEXTA, static_cast<win::WPARAM>(row), address(&item));
    const auto read = static_cast<std::size_t>(std::max<win::LRESULT>(length, 0));
    return by.keyOf({text.data(), std::min(read, textLimit)});
}

double keyOfParam(const KeyColumn& by, win::HWND list, win::LPARAM param) {
    const auto ask = [list](win::UINT message, win::WPARAM wParam, win::LPARAM lParam) {
        return win::SendMessageA(list, message, wParam, lParam);
    };
    win::LVFINDINFOA wanted{};
    wanted.flags = win::LVFI_PARAM;
    wanted.lParam = param;
    const win::LRESULT row =
        ask(win::LVM_FINDITEMA, static_cast<win::WPARAM>(-1), address(&wanted));
    return row < 0 ? by.keyOf({}) : keyInRow(by, static_cast<int>(row), ask);
}

// The keys of all rows of a list, by their parameters. While one lives, the comparison
// routines, which can be given nothing but two parameters and a window, find their keys in it
// instead of looking for two rows at each of their many calls.
class KeysInHand {
public:
    KeysInHand(const KeyColumn& by, ListView& list) {
        const auto ask = [&list](win::UINT message, win::WPARAM wParam, win::LPARAM lParam) {
            return list.ask(message, wParam, lParam);
        };
        const int count = list.Count();
        keys_.reserve(static_cast<std::size_t>(count));
        for (int row = 0; row < count; ++row) {
            win::LVITEMA item{};
            item.mask = win::LVIF_PARAM;
            item.iItem = row;
            ask(win::LVM_GETITEMA, 0, address(&item));
            const auto number = static_cast<std::size_t>(item.lParam);
            if (number >= keys_.size()) keys_.resize(number + 1);
            keys_[number] = keyInRow(by, row, ask);
        }
        inHand_ = this;
    }
    ~KeysInHand() { inHand_ = nullptr; }
    KeysInHand(const KeysInHand&) = delete;
    KeysInHand& operator=(const KeysInHand&) = delete;

    static double keyOf(const KeyColumn& by, win::HWND list, win::LPARAM param) {
        return inHand_ != nullptr ? inHand_->keyOf(param) : keyOfParam(by, list, param);
    }

private:
    double keyOf(win::LPARAM param) const {
        const auto number = static_cast<std::size_t>(param);
        if (number >= keys_.size()) throw Failure{failure::subscript};
        return keys_[number];
    }

    static inline const KeysInHand* inHand_ = nullptr;
    std::vector<double> keys_;
};

// Runs inside of the list's sort, so no failure may leave it.
win::INT compareRows(const KeyColumn& by, win::LPARAM lParam1, win::LPARAM lParam2,
                     win::LPARAM lParamSort) noexcept {
    try {
        auto* list = reinterpret_cast<win::HWND>(lParamSort);
        const double a = KeysInHand::keyOf(by, list, lParam1);
        const double b = KeysInHand::keyOf(by, list, lParam2);
        if (a == b) return 1;
        return (sortReversed ? a < b : a > b) ? 0 : 2;
    } catch (const Failure&) {
        return 0;
    }
}

void sortBy(const KeyColumn& by, ListView& list) {
    const KeysInHand keys(by, list);
    list.SortBy(by.compare);
}

}  // namespace

win::INT compareLastVisited(win::LPARAM lParam1, win::LPARAM lParam2, win::LPARAM lParamSort) {
    return compareRows(lastVisited, lParam1, lParam2, lParamSort);
}

win::INT compareCreated(win::LPARAM lParam1, win::LPARAM lParam2, win::LPARAM lParamSort) {
    return compareRows(created, lParam1, lParam2, lParamSort);
}

win::INT compareVisited(win::LPARAM lParam1, win::LPARAM lParam2, win::LPARAM lParamSort) {
    return compareRows(visited, lParam1, lParam2, lParamSort);
}

win::INT compareRated(win::LPARAM lParam1, win::LPARAM lParam2, win::LPARAM lParamSort) {
    return compareRows(rated, lParam1, lParam2, lParamSort);
}

void sortByLastVisited(ListView& list) {
    sortBy(lastVisited, list);
}

void sortByCreated(ListView& list) {
    sortBy(created, list);
}

void sortByVisited(ListView& list) {
    sortBy(visited, list);
}

void sortByRated(ListView& list) {
    sortBy(rated, list);
}

}  // namespace magpie
