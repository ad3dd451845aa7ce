// Place of a list view's rows on the screen, and what mouse and keyboard do to them.
#include <algorithm>
#include <utility>

#include "platform/memory/list_view.h"
#include "platform/memory/refuse.h"

namespace win::memory {
namespace {

// What stands under a point of the client area.
struct Hit {
    int row = -1;
    int column = -1;
    bool box = false;
};

Hit hitTest(HWND window, LPARAM point) {
    auto& list = listViewOf(window);
    if (!(list.exStyle & LVS_EX_FULLROWSELECT))
        refuse("mouse in a list view of style", list.exStyle);
    Hit hit;
    hit.column = columnAt(window, xOf(point));
    const int row = list.top + (yOf(point) - headerHeight) / rowHeight;
    if (hit.column >= 0 && yOf(point) >= headerHeight && list.has(row)) hit.row = row;
    hit.box = hit.row >= 0 && list.exStyle & LVS_EX_CHECKBOXES && xOf(point) < boxWidth;
    return hit;
}

LRESULT tellClick(HWND window, UINT code, LPARAM point) {
    const Hit hit = hitTest(window, point);
    NMITEMACTIVATE told{};
    told.iItem = hit.row;
    told.iSubItem = hit.column;
    told.ptAction = {xOf(point), yOf(point)};
    if (hit.row >= 0) told.lParam = listViewOf(window).row(hit.row).param;
    return notify(window, told.hdr, code);
}

int rowsOnShow(HWND window) {
    RECT client{};
    GetClientRect(window, &client);
    return std::max(1, (client.bottom - headerHeight) / rowHeight);
}

void toggleBox(HWND window, int row) {
    constexpr UINT unticked = 0x1000;
    constexpr UINT ticked = 0x2000;
    const UINT now = listViewOf(window).row(row).image;
    setRowState(window, row, now == ticked ? unticked : ticked, LVIS_STATEIMAGEMASK);
}

void pressLeft(HWND window, WPARAM keys, LPARAM point) {
    if (keys & (MK_SHIFT | MK_CONTROL)) refuse("click in a list view with keys", keys);
    auto& list = listViewOf(window);
    const Hit hit = hitTest(window, point);
    const bool selected = hit.row >= 0 && list.isSelected(hit.row);
    list.pressed = true;
    list.pressedBox = hit.box ? hit.row : -1;
    list.pressedSelected = selected && !hit.box ? hit.row : -1;
    if (!hit.box && !selected) selectOnly(window, hit.row);
    SetFocus(window);
}

// A press on one of several selected rows selects it alone when it ends there.
void releaseLeft(HWND window, LPARAM point) {
    auto& list = listViewOf(window);
    if (!std::exchange(list.pressed, false)) return;
    tellClick(window, NM_CLICK, point);
    const Hit hit = hitTest(window, point);
    if (hit.row < 0) return;
    if (hit.row == list.pressedSelected) selectOnly(window, hit.row);
    if (hit.box && hit.row == list.pressedBox) toggleBox(window, hit.row);
}

void pressRight(HWND window, LPARAM point) {
    auto& list = listViewOf(window);
    const Hit hit = hitTest(window, point);
    SetFocus(window);
    if (hit.row >= 0) setRowState(window, hit.row, LVIS_FOCUSED, LVIS_FOCUSED);
    if (hit.row < 0 || !list.isSelected(hit.row)) selectOnly(window, hit.row);
}

// A parent that answers the click with something else than 0 gets no context menu.
void releaseRight(HWND window, LPARAM point) {
    if (tellClick(window, NM_RCLICK, point)) return;
    POINT at{xOf(point), yOf(point)};
    ClientToScreen(window, &at);
    SendMessageA(window, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(window), makeLParam(at.x, at.y));
}

void pressKey(HWND window, WPARAM key) {
    if (key == VK_PRIOR || key == VK_NEXT) refuse("key in a list view", key);
    auto& list = listViewOf(window);
    int row = list.focused;
    switch (key) {
        case VK_UP: row = std::max(row - 1, std::min(row, 0)); break;
        case VK_DOWN: row = std::min(row + 1, list.count() - 1); break;
        case VK_HOME: row = std::min(0, list.count() - 1); break;
        case VK_END: row = list.count() - 1; break;
        case VK_SPACE: break;
        default: return;
    }
    if (GetKeyState(VK_SHIFT) < 0 || GetKeyState(VK_CONTROL) < 0) refuse("shifted key", key);
    if (row < 0 || (row == list.focused && key != VK_SPACE)) return;
    if (key == VK_SPACE && list.exStyle & LVS_EX_CHECKBOXES) toggleBox(window, row);
    selectOnly(window, row);
}

void typeLetter(WPARAM letter) {
    if (letter > VK_SPACE) refuse("search in a list view by typing", letter);
}

}  // namespace

LRESULT showRow(HWND window, int row) {
    auto& list = listViewOf(window);
    if (!list.has(row)) return 0;
    list.top = std::clamp(list.top, std::max(0, row - rowsOnShow(window) + 1), row);
    return 1;
}

LRESULT scrollRows(HWND window, int right, int down) {
    if (right) refuse("list view scrolled sideways, pixels", static_cast<UINT>(right));
    if (down % rowHeight) refuse("list view scrolled by no whole row", static_cast<UINT>(down));
    auto& list = listViewOf(window);
    const int last = std::max(0, list.count() - rowsOnShow(window));
    list.top = std::clamp(list.top + down / rowHeight, 0, last);
    return 1;
}

LRESULT tellRowPlace(HWND window, int row, RECT& place) {
    const auto& list = listViewOf(window);
    const LONG part = place.left;
    if (part != LVIR_BOUNDS) refuse("part of a row's place", static_cast<UINT>(part));
    if (!list.has(row)) return 0;
    const int top = headerHeight + (row - list.top) * rowHeight;
    place = {0, top, columnsWidth(window), top + rowHeight};
    return 1;
}

bool handleInput(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_LBUTTONDOWN: pressLeft(window, wParam, lParam); return true;
        case WM_LBUTTONUP: releaseLeft(window, lParam); return true;
        case WM_LBUTTONDBLCLK: tellClick(window, NM_DBLCLK, lParam); return true;
        case WM_RBUTTONDOWN: pressRight(window, lParam); return true;
        case WM_RBUTTONUP: releaseRight(window, lParam); return true;
        case WM_KEYDOWN: pressKey(window, wParam); return true;
        case WM_CHAR: typeLetter(wParam); return true;
        default: return false;
    }
}

}  // namespace win::memory
