// ListViewState: rows, columns, focus and selection of one list view in report view.
// Rows keep their slot while they live; their order is a list of slot numbers, so that
// putting one in and taking one out is quick wherever it stands.
#pragma once

#include <deque>
#include <string>
#include <vector>

#include "platform/memory/window.h"

namespace win::memory {

struct ListViewRow {
    std::vector<std::string> texts;  // by column; those never set are missing
    LPARAM param = 0;
    UINT image = 0;  // the state image; focus and selection stand in ListViewState
    UINT looks = 0;  // LVIS_CUT and LVIS_GLOW: how it is drawn
};

struct ListViewColumn {
    std::string text;
    int width = 0;  // pixels
    INT subItem = 0;
};

struct ListViewState : ControlState {
    std::deque<ListViewRow> slots;
    std::vector<std::size_t> freeSlots;
    std::deque<std::size_t> order;  // the slot of each row
    std::vector<ListViewColumn> columns;
    DWORD exStyle = 0;
    HWND header = nullptr;
    int focused = -1;
    int selectionMark = -1;  // where a selection by hand began, or the first focus was
    std::deque<bool> marks;  // whether each row is selected
    int selectedCount = 0;
    int top = 0;               // the first row on show
    int pressedHeading = -1;   // where the mouse went down in the header
    bool pressed = false;      // the left button went down in the rows
    int pressedSelected = -1;  // on this row, which was selected before
    int pressedBox = -1;       // on this row's check box

    int count() const { return static_cast<int>(order.size()); }
    bool has(int row) const { return row >= 0 && row < count(); }
    ListViewRow& row(int number) { return slots[order[static_cast<std::size_t>(number)]]; }
    void putIn(int number, ListViewRow row);
    void takeOut(int number);

    bool isSelected(int number) const;
    int nextSelected(int from) const;  // -1 for none from there on
    void mark(int number, bool selected);
    // All of a row's state, focus and selection included.
    UINT stateOf(int number);
};

ListViewState& listViewOf(HWND window);

// ---- Focus and selection. Every change is told to the parent. -----------------------

bool isSingleSelection(HWND window);
// Row -1 means every row.
LRESULT setRowState(HWND window, int row, UINT state, UINT mask);
// The side effects of a row's new state, without telling of the row itself.
void applyRowState(HWND window, int row, UINT now, UINT mask);
void tellRowChanged(HWND window, int row, UINT now, UINT before, UINT changed);
// Selects this row alone and gives it the focus, as a click does; -1 selects none.
void selectOnly(HWND window, int row);
LRESULT nextRow(HWND window, int after, UINT flags);

// ---- Rows ---------------------------------------------------------------------------

LRESULT insertRow(HWND window, const LVITEMA& item);
LRESULT deleteRow(HWND window, int row);
LRESULT deleteAllRows(HWND window);
LRESULT setRow(HWND window, const LVITEMA& item);
LRESULT tellRow(HWND window, LVITEMA& item);
LRESULT setRowText(HWND window, int row, const LVITEMA& item);
LRESULT tellRowText(HWND window, int row, LVITEMA& item);
LRESULT findRow(HWND window, int after, const LVFINDINFOA& wanted);

// Focus, selection and check boxes stay on their rows; nobody is told of it.
LRESULT sortRows(HWND window, PFNLVCOMPARE compare, LPARAM sort);

// ---- Columns and their headings -----------------------------------------------------

void makeHeader(HWND window);
void placeHeader(HWND window);
LRESULT insertColumn(HWND window, int column, const LVCOLUMNA& wanted);
LRESULT setColumn(HWND window, int column, const LVCOLUMNA& wanted);
LRESULT tellColumn(HWND window, int column, LVCOLUMNA& asked);
LRESULT setColumnWidth(HWND window, int column, int width);
int columnsWidth(HWND window);
int columnAt(HWND window, int x);  // -1 beyond the last

// ---- Place, mouse, keyboard ---------------------------------------------------------

inline constexpr int headerHeight = 17;  // pixels
inline constexpr int rowHeight = 14;
inline constexpr int boxWidth = 15;

LRESULT showRow(HWND window, int row);
// In pixels.
LRESULT scrollRows(HWND window, int right, int down);
LRESULT tellRowPlace(HWND window, int row, RECT& place);
// Answers whether the message was one of the mouse's or the keyboard's.
bool handleInput(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

}  // namespace win::memory
