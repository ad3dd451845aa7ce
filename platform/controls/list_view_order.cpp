// The order of a list's rows: the sort that stays in force, and the one that is made once.
#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "platform/api/user32.h"
#include "platform/controls/control_failure.h"
#include "platform/controls/list_view.h"
#include "platform/runtime/letter_case.h"

namespace magpie {

namespace {

constexpr int descending = 1;

// A row's number and the text that decides on its place, in capitals.
struct RowText {
    std::string text;
    win::LPARAM number;
};

// Rows are numbered in the order in which they were added.
struct InOrder {
    int sortOrder;
    bool operator()(const RowText& a, const RowText& b) const {
        const int order = a.text.compare(b.text);
        if (order == 0) return a.number < b.number;
        return sortOrder == descending ? order > 0 : order < 0;
    }
};

using Places = std::vector<int>;  // where each row belongs, by its number

win::INT compareByPlace(win::LPARAM upper, win::LPARAM lower, win::LPARAM places) {
    const auto& belongs = *reinterpret_cast<const Places*>(places);
    return belongs[static_cast<std::size_t>(upper)] - belongs[static_cast<std::size_t>(lower)];
}

}  // namespace

bool ListView::Sorted() {
    hWnd();
    return sorted_;
}

// Turned off, it leaves the rows in the order that they ought to have by then.
void ListView::Sorted(bool sorted) {
    hWnd();
    if (sorted) {
        sorted_ = true;
        loseOrder();
    }
    putInOrder();
    sorted_ = sorted;
}

int ListView::SortKey() {
    hWnd();
    return sortKey_;
}

void ListView::SortKey(int column) {
    if (column < 0 || column >= ColumnCount()) throw Failure{failure::invalidProperty};
    sortKey_ = column;
    loseOrder();
}

int ListView::SortOrder() {
    hWnd();
    return sortOrder_;
}

void ListView::SortOrder(int order) {
    hWnd();
    if (order != 0 && order != descending) throw Failure{failure::invalidProperty};
    sortOrder_ = order;
    loseOrder();
}

void ListView::SortBy(win::PFNLVCOMPARE routine) {
    putInOrder();
    send(win::LVM_SORTITEMS, reinterpret_cast<win::WPARAM>(hWnd()),
         reinterpret_cast<win::LPARAM>(routine));
    ++ordering_;
}

win::LRESULT ListView::ask(win::UINT message, win::WPARAM wParam, win::LPARAM lParam) {
    putInOrder();
    return sendStraight(message, wParam, lParam);
}

bool ListView::handleMessage(win::UINT message, win::WPARAM wParam, win::LPARAM lParam,
                             win::LRESULT& answer) {
    if (sending_ == 0) putInOrder();
    return isMouseMessage(message) ? handleMouse(message, wParam, lParam, answer)
                                   : Control::handleMessage(message, wParam, lParam, answer);
}

// Painting, too, asks for the rows in their order.
void ListView::loseOrder() {
    if (!sorted_ || outOfOrder_) return;
    outOfOrder_ = true;
    win::InvalidateRect(hWnd(), nullptr, 1);
}

void ListView::putInOrder() {
    if (!outOfOrder_) return;
    outOfOrder_ = false;
    std::vector<RowText> rows;
    const int count = Count();
    rows.reserve(static_cast<std::size_t>(count));
    for (int position = 1; position <= count; ++position)
        rows.push_back({upperCase(textAt(position, sortKey_)), rowAt(position).number_});
    const InOrder inOrder{sortOrder_};
    if (std::is_sorted(rows.begin(), rows.end(), inOrder)) return;
    std::sort(rows.begin(), rows.end(), inOrder);
    Places places(tags_.size());
    for (std::size_t i = 0; i < rows.size(); ++i)
        places[static_cast<std::size_t>(rows[i].number)] = static_cast<int>(i);
    send(win::LVM_SORTITEMS, reinterpret_cast<win::WPARAM>(&places),
         reinterpret_cast<win::LPARAM>(&compareByPlace));
    ++ordering_;
}

int ListRow::place() const {
    if (ordering_ == list_->ordering_) return position_;
    win::LVFINDINFOA wanted{};
    wanted.flags = win::LVFI_PARAM;
    wanted.lParam = number_;
    const win::LRESULT found = list_->send(win::LVM_FINDITEMA, static_cast<win::WPARAM>(-1),
                                           reinterpret_cast<win::LPARAM>(&wanted));
    if (found < 0) throw Failure{failure::subscript};
    return static_cast<int>(found) + 1;
}

int ListRow::position() const {
    list_->putInOrder();
    return place();
}

}  // namespace magpie
