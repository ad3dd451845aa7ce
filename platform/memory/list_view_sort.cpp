// Sorting of a list view's rows by a routine of the program.
#include <algorithm>
#include <vector>

#include "platform/memory/list_view.h"

namespace win::memory {
namespace {

// Sorts each half, then joins them: the first row of the second half goes before the first
// row of the first one exactly if the routine answers above 0 for the two. So a routine that
// answers that for equal rows turns them round, and one that never does leaves all as it was.
class MergeSort {
public:
    MergeSort(ListViewState& list, PFNLVCOMPARE compare, LPARAM sort)
        : list_(list), compare_(compare), sort_(sort) {}

    void sort(std::vector<int>& rows, std::size_t begin, std::size_t end) {
        if (end - begin < 2) return;
        // The longer half is the first.
        const std::size_t middle = begin + (end - begin + 1) / 2;
        sort(rows, begin, middle);
        sort(rows, middle, end);
        std::vector<int> joined;
        std::size_t first = begin;
        std::size_t second = middle;
        while (first < middle && second < end)
            joined.push_back(goesBefore(rows[second], rows[first]) ? rows[second++]
                                                                   : rows[first++]);
        // What is left of the second half stands where it belongs.
        std::copy(rows.begin() + static_cast<std::ptrdiff_t>(first),
                  rows.begin() + static_cast<std::ptrdiff_t>(middle), std::back_inserter(joined));
        std::copy(joined.begin(), joined.end(), rows.begin() + static_cast<std::ptrdiff_t>(begin));
    }

private:
    bool goesBefore(int second, int first) {
        return compare_(list_.row(first).param, list_.row(second).param, sort_) > 0;
    }

    ListViewState& list_;
    PFNLVCOMPARE compare_;
    LPARAM sort_;
};

}  // namespace

LRESULT sortRows(HWND window, PFNLVCOMPARE compare, LPARAM sort) {
    auto& list = listViewOf(window);
    std::vector<int> rows(list.order.size());
    for (std::size_t i = 0; i < rows.size(); ++i) rows[i] = static_cast<int>(i);
    MergeSort(list, compare, sort).sort(rows, 0, rows.size());

    const std::deque<std::size_t> order = list.order;
    const std::deque<bool> marks = list.marks;
    const int focused = list.focused;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const auto from = static_cast<std::size_t>(rows[i]);
        list.order[i] = order[from];
        list.marks[i] = marks[from];
        if (rows[i] == focused) list.focused = static_cast<int>(i);
    }
    return 1;
}

}  // namespace win::memory
