// Focus and selection of a list view. The parent may answer a notification by changing
// the list again, so every row is looked up anew after one.
#include <algorithm>
#include <utility>

#include "platform/memory/list_view.h"
#include "platform/memory/refuse.h"

namespace win::memory {
namespace {

constexpr UINT looks = LVIS_CUT | LVIS_GLOW;
constexpr UINT knownState = LVIS_FOCUSED | LVIS_SELECTED | looks | LVIS_STATEIMAGEMASK;

void setOne(HWND window, int row, UINT state, UINT mask) {
    const UINT before = listViewOf(window).stateOf(row);
    const UINT now = (before & ~mask) | (state & mask);
    if (now == before) return;
    applyRowState(window, row, now, mask);
    tellRowChanged(window, row, now, before, LVIF_STATE);
}

void deselectAllBut(HWND window, int kept) {
    const auto& list = listViewOf(window);
    for (int row = list.nextSelected(0); row >= 0; row = list.nextSelected(row + 1)) {
        if (row != kept) setOne(window, row, 0, LVIS_SELECTED);
    }
}

// The row that had the focus is told first.
void moveFocus(HWND window, int row) {
    auto& list = listViewOf(window);
    if (const int before = std::exchange(list.focused, -1); list.has(before)) {
        const UINT now = list.stateOf(before);
        tellRowChanged(window, before, now, now | LVIS_FOCUSED, LVIF_STATE);
    }
    list.focused = row;
    if (list.selectionMark < 0) list.selectionMark = row;
    showRow(window, row);
}

}  // namespace

bool ListViewState::isSelected(int number) const {
    return marks[static_cast<std::size_t>(number)];
}

int ListViewState::nextSelected(int from) const {
    const auto found = std::find(marks.begin() + std::clamp(from, 0, count()), marks.end(), true);
    return found == marks.end() ? -1 : static_cast<int>(found - marks.begin());
}

void ListViewState::mark(int number, bool selected) {
    selectedCount += static_cast<int>(selected) - static_cast<int>(isSelected(number));
    marks[static_cast<std::size_t>(number)] = selected;
}

UINT ListViewState::stateOf(int number) {
    return row(number).image | row(number).looks | (number == focused ? LVIS_FOCUSED : 0) |
           (isSelected(number) ? LVIS_SELECTED : 0);
}

bool isSingleSelection(HWND window) {
    return windowOf(window).style & LVS_SINGLESEL;
}

void tellRowChanged(HWND window, int row, UINT now, UINT before, UINT changed) {
    auto& list = listViewOf(window);
    NMLISTVIEW told{};
    told.iItem = row;
    told.uNewState = now;
    told.uOldState = before;
    told.uChanged = changed;
    told.lParam = list.row(row).param;
    notify(window, told.hdr, LVN_ITEMCHANGED);
}

void applyRowState(HWND window, int row, UINT now, UINT mask) {
    auto& list = listViewOf(window);
    if (now & mask & LVIS_SELECTED && isSingleSelection(window)) deselectAllBut(window, row);
    list.mark(row, now & LVIS_SELECTED);
    list.row(row).image = now & LVIS_STATEIMAGEMASK;
    list.row(row).looks = now & looks;
    if (!(mask & LVIS_FOCUSED)) return;
    if (now & LVIS_FOCUSED)
        moveFocus(window, row);
    else if (list.focused == row)
        list.focused = -1;
}

LRESULT setRowState(HWND window, int row, UINT state, UINT mask) {
    auto& list = listViewOf(window);
    if (mask & ~knownState) refuse("state of a row", mask);
    if (row >= 0) {
        if (!list.has(row)) return 0;
        setOne(window, row, state, mask);
        return 1;
    }
    // There is but one focus, and where only one row can be selected, all cannot.
    if (state & mask & LVIS_FOCUSED) return 0;
    if (state & mask & LVIS_SELECTED && isSingleSelection(window)) return 0;
    for (int each = 0; each < list.count(); ++each) setOne(window, each, state, mask);
    return 1;
}

void selectOnly(HWND window, int row) {
    deselectAllBut(window, row);
    if (row < 0) return;
    listViewOf(window).selectionMark = row;
    setOne(window, row, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
}

LRESULT nextRow(HWND window, int after, UINT flags) {
    const auto& list = listViewOf(window);
    if (flags == LVNI_FOCUSED) {
        if (after != -1) refuse("focused row after row", static_cast<UINT>(after));
        return list.focused;
    }
    if (flags & ~LVNI_SELECTED) refuse("search of a row, flags", flags);
    if (flags) return list.nextSelected(after + 1);
    return list.has(after + 1) ? after + 1 : -1;
}

}  // namespace win::memory
