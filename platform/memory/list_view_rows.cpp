// Rows of a list view: texts, parameters, coming and going.
#include <algorithm>
#include <cstring>
#include <utility>

#include "platform/memory/list_view.h"
#include "platform/memory/refuse.h"

namespace win::memory {
namespace {

std::string textOf(const LVITEMA& item) {
    if (reinterpret_cast<std::intptr_t>(item.pszText) == -1)
        refuse("text that a list view shall ask for, column", static_cast<UINT>(item.iSubItem));
    return item.pszText ? item.pszText : "";
}

void requireKnownMask(const LVITEMA& item) {
    if (item.mask & ~(LVIF_TEXT | LVIF_PARAM | LVIF_STATE)) refuse("mask of a row", item.mask);
}

std::string& textAt(ListViewRow& row, int column) {
    const auto place = static_cast<std::size_t>(column);
    if (row.texts.size() <= place) row.texts.resize(place + 1);
    return row.texts[place];
}

// What does not fit is cut without an end sign, and the answer is the length of what the
// buffer then holds. A reader has to bring a cleared byte more than it names.
LRESULT copyText(const ListViewRow& row, int column, const LVITEMA& item) {
    if (item.cchTextMax <= 0)
        refuse("text of a row into no room, column", static_cast<UINT>(column));
    const auto place = static_cast<std::size_t>(column);
    const std::string& text = place < row.texts.size() ? row.texts[place] : std::string();
    const std::size_t room = static_cast<std::size_t>(item.cchTextMax);
    std::memcpy(item.pszText, text.c_str(), std::min(text.size() + 1, room));
    return static_cast<LRESULT>(std::strlen(item.pszText));
}

bool hasColumn(const ListViewState& list, int column) {
    return column == 0 || static_cast<std::size_t>(column) < list.columns.size();
}

// Text, parameter and state of a row; the parent hears of all at once.
void changeRow(HWND window, int row, const LVITEMA& item) {
    auto& list = listViewOf(window);
    ListViewRow& kept = list.row(row);
    UINT changed = 0;
    if (item.mask & LVIF_TEXT && textAt(kept, 0) != textOf(item)) {
        textAt(kept, 0) = textOf(item);
        changed |= LVIF_TEXT;
    }
    if (item.mask & LVIF_PARAM && std::exchange(kept.param, item.lParam) != item.lParam)
        changed |= LVIF_PARAM;
    // A row's state is only spoken of when it was asked for.
    const UINT before = item.mask & LVIF_STATE ? list.stateOf(row) : 0;
    const UINT mask = item.mask & LVIF_STATE ? item.stateMask : 0;
    const UINT now = (before & ~mask) | (item.state & mask);
    if (now != before) {
        applyRowState(window, row, now, mask);
        changed |= LVIF_STATE;
    }
    if (changed) tellRowChanged(window, row, now, before, changed);
}

}  // namespace

void ListViewState::putIn(int number, ListViewRow row) {
    if (freeSlots.empty()) {
        freeSlots.push_back(slots.size());
        slots.emplace_back();
    }
    slots[freeSlots.back()] = std::move(row);
    order.insert(order.begin() + number, freeSlots.back());
    freeSlots.pop_back();
    marks.insert(marks.begin() + number, false);
}

void ListViewState::takeOut(int number) {
    mark(number, false);
    row(number) = {};
    freeSlots.push_back(order[static_cast<std::size_t>(number)]);
    order.erase(order.begin() + number);
    marks.erase(marks.begin() + number);
}

LRESULT insertRow(HWND window, const LVITEMA& item) {
    constexpr UINT unticked = 0x1000;
    requireKnownMask(item);
    auto& list = listViewOf(window);
    if (item.iItem < 0 || item.iSubItem != 0) return -1;
    const int place = std::min(item.iItem, list.count());
    ListViewRow row;
    if (item.mask & LVIF_TEXT) row.texts.push_back(textOf(item));
    if (item.mask & LVIF_PARAM) row.param = item.lParam;
    if (list.exStyle & LVS_EX_CHECKBOXES) row.image = unticked;
    list.putIn(place, std::move(row));
    if (place <= list.focused) ++list.focused;
    if (place <= list.selectionMark) ++list.selectionMark;
    // With check boxes, a new row's is always empty.
    const UINT mask = item.mask & LVIF_STATE ? item.stateMask : 0;
    const UINT imageMask = list.exStyle & LVS_EX_CHECKBOXES ? LVIS_STATEIMAGEMASK : 0;
    setRowState(window, place, item.state, mask & ~imageMask);
    return place;
}

LRESULT deleteRow(HWND window, int row) {
    auto& list = listViewOf(window);
    if (!list.has(row)) return 0;
    const UINT before = list.stateOf(row);
    const int focused = list.focused;
    if (row == focused) list.focused = -1;
    list.mark(row, false);
    if (before & (LVIS_SELECTED | LVIS_FOCUSED))
        tellRowChanged(window, row, list.stateOf(row), before, LVIF_STATE);
    list.takeOut(row);
    // The focus stays at its place in the list, which is the row below, without a word.
    list.focused = focused > row ? focused - 1 : std::min(focused, list.count() - 1);
    if (list.selectionMark > row) --list.selectionMark;
    list.top = std::min(list.top, std::max(list.count() - 1, 0));
    return 1;
}

LRESULT deleteAllRows(HWND window) {
    auto& list = listViewOf(window);
    list.slots.clear();
    list.freeSlots.clear();
    list.order.clear();
    list.marks.clear();
    list.focused = -1;
    list.selectionMark = -1;
    list.selectedCount = 0;
    list.top = 0;
    return 1;
}

LRESULT setRow(HWND window, const LVITEMA& item) {
    requireKnownMask(item);
    if (item.iSubItem != 0) {
        // Only texts belong to a column.
        return item.mask == LVIF_TEXT ? setRowText(window, item.iItem, item) : 0;
    }
    if (!listViewOf(window).has(item.iItem)) return 0;
    changeRow(window, item.iItem, item);
    return 1;
}

LRESULT tellRow(HWND window, LVITEMA& item) {
    requireKnownMask(item);
    auto& list = listViewOf(window);
    if (!list.has(item.iItem)) return 0;
    ListViewRow& row = list.row(item.iItem);
    if (item.mask & LVIF_TEXT) copyText(row, item.iSubItem, item);
    if (item.mask & LVIF_PARAM) item.lParam = row.param;
    if (item.mask & LVIF_STATE)
        item.state = item.iSubItem == 0 ? list.stateOf(item.iItem) & item.stateMask : 0;
    return 1;
}

// Only the first column's text is told of.
LRESULT setRowText(HWND window, int row, const LVITEMA& item) {
    auto& list = listViewOf(window);
    if (!list.has(row) || !hasColumn(list, item.iSubItem)) return 0;
    if (item.iSubItem != 0) {
        textAt(list.row(row), item.iSubItem) = textOf(item);
        return 1;
    }
    LVITEMA first = item;
    first.mask = LVIF_TEXT;
    changeRow(window, row, first);
    return 1;
}

LRESULT tellRowText(HWND window, int row, LVITEMA& item) {
    auto& list = listViewOf(window);
    return list.has(row) ? copyText(list.row(row), item.iSubItem, item) : 0;
}

LRESULT findRow(HWND window, int after, const LVFINDINFOA& wanted) {
    if (wanted.flags != LVFI_PARAM) refuse("search of a row, flags", wanted.flags);
    auto& list = listViewOf(window);
    for (int row = after + 1; row < list.count(); ++row) {
        if (list.row(row).param == wanted.lParam) return row;
    }
    return -1;
}

}  // namespace win::memory
