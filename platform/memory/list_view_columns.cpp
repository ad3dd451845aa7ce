// Columns of a list view, and the header that shows them: the class "SysHeader32".
#include <algorithm>
#include <cstring>
#include <utility>

#include "platform/memory/list_view.h"
#include "platform/memory/refuse.h"

namespace win::memory {
namespace {

constexpr UINT knownMask = LVCF_TEXT | LVCF_WIDTH | LVCF_SUBITEM;

ListViewColumn* findColumn(HWND window, int column) {
    auto& columns = listViewOf(window).columns;
    const auto place = static_cast<std::size_t>(column);
    return column >= 0 && place < columns.size() ? &columns[place] : nullptr;
}

void fillColumn(ListViewColumn& column, const LVCOLUMNA& wanted) {
    if (wanted.mask & ~knownMask) refuse("mask of a column", wanted.mask);
    if (wanted.mask & LVCF_TEXT) column.text = wanted.pszText;
    if (wanted.mask & LVCF_WIDTH) column.width = wanted.cx;
    if (wanted.mask & LVCF_SUBITEM) column.subItem = wanted.iSubItem;
}

// Pixels of the header's client area.
RECT headingPlace(const ListViewState& list, std::size_t column) {
    int left = 0;
    for (std::size_t each = 0; each < column; ++each) left += list.columns[each].width;
    return {left, 0, left + list.columns[column].width, headerHeight};
}

void tellClick(HWND window, int column) {
    NMLISTVIEW told{};
    told.iItem = -1;
    told.iSubItem = column;
    notify(window, told.hdr, LVN_COLUMNCLICK);
}

LRESULT headerMessage(const ListViewState& list, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case HDM_GETITEMCOUNT: return static_cast<LRESULT>(list.columns.size());
        case HDM_GETITEMRECT:
            if (wParam >= list.columns.size()) return 0;
            *reinterpret_cast<RECT*>(lParam) = headingPlace(list, wParam);
            return 1;
        default: refuse("header's message", message);
    }
}

}  // namespace

void makeHeader(HWND window) {
    listViewOf(window).header = CreateWindowExA(0, WC_HEADERA, "", WS_CHILD | WS_VISIBLE, 0, 0, 0,
                                                headerHeight, window, nullptr, nullptr, nullptr);
}

void placeHeader(HWND window) {
    RECT client{};
    GetClientRect(window, &client);
    SetWindowPos(listViewOf(window).header, nullptr, 0, 0, client.right, headerHeight,
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

LRESULT insertColumn(HWND window, int column, const LVCOLUMNA& wanted) {
    auto& columns = listViewOf(window).columns;
    if (column < 0) return -1;
    if (static_cast<std::size_t>(column) < columns.size())
        refuse("column put in before column", static_cast<UINT>(column));
    if (!(wanted.mask & LVCF_WIDTH)) refuse("column without a width", wanted.mask);
    fillColumn(columns.emplace_back(), wanted);
    return static_cast<LRESULT>(columns.size()) - 1;
}

LRESULT setColumn(HWND window, int column, const LVCOLUMNA& wanted) {
    ListViewColumn* found = findColumn(window, column);
    if (!found) return 0;
    fillColumn(*found, wanted);
    return 1;
}

LRESULT tellColumn(HWND window, int column, LVCOLUMNA& asked) {
    const ListViewColumn* found = findColumn(window, column);
    if (!found) return 0;
    if (asked.mask & ~knownMask) refuse("mask of a column", asked.mask);
    if (asked.mask & LVCF_WIDTH) asked.cx = found->width;
    if (asked.mask & LVCF_SUBITEM) asked.iSubItem = found->subItem;
    if (asked.mask & LVCF_TEXT) {
        const std::size_t length =
            std::min(found->text.size(), static_cast<std::size_t>(asked.cchTextMax) - 1);
        std::memcpy(asked.pszText, found->text.data(), length);
        asked.pszText[length] = '\0';
    }
    return 1;
}

LRESULT setColumnWidth(HWND window, int column, int width) {
    if (width < 0) refuse("width of a column by its texts", static_cast<UINT>(column));
    ListViewColumn* found = findColumn(window, column);
    if (!found) return 0;
    found->width = width;
    return 1;
}

int columnsWidth(HWND window) {
    int width = 0;
    for (const ListViewColumn& column : listViewOf(window).columns) width += column.width;
    return width;
}

int columnAt(HWND window, int x) {
    const auto& list = listViewOf(window);
    for (std::size_t column = 0; column < list.columns.size(); ++column) {
        const RECT place = headingPlace(list, column);
        if (x >= place.left && x < place.right) return static_cast<int>(column);
    }
    return -1;
}

// A click is a press and a release on the same heading.
LRESULT headerProcedure(HWND header, UINT message, WPARAM wParam, LPARAM lParam) {
    constexpr UINT firstOfClass = 0x1200;
    constexpr UINT lastOfClass = 0x12FF;
    const HWND window = GetParent(header);
    auto& list = listViewOf(window);
    if (message >= firstOfClass && message <= lastOfClass)
        return headerMessage(list, message, wParam, lParam);
    switch (message) {
        case WM_LBUTTONDOWN: list.pressedHeading = columnAt(window, xOf(lParam)); return 0;
        case WM_LBUTTONUP: {
            const int pressed = std::exchange(list.pressedHeading, -1);
            if (pressed >= 0 && pressed == columnAt(window, xOf(lParam)))
                tellClick(window, pressed);
            return 0;
        }
        default: return DefWindowProcA(header, message, wParam, lParam);
    }
}

}  // namespace win::memory
