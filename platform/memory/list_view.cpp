// List view: the class "SysListView32" in report view. Of the class's notifications it
// sends LVN_ITEMCHANGED, LVN_COLUMNCLICK, NM_CLICK, NM_DBLCLK and NM_RCLICK.
#include "platform/memory/list_view.h"

#include "platform/memory/refuse.h"

namespace win::memory {
namespace {

LRESULT setExtendedStyle(HWND window, DWORD mask, DWORD wanted) {
    constexpr DWORD known =
        LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT | LVS_EX_LABELTIP | LVS_EX_DOUBLEBUFFER;
    constexpr UINT unticked = 0x1000;
    if (wanted & ~known) refuse("extended style of a list view", wanted);
    auto& state = listViewOf(window);
    const DWORD before = state.exStyle;
    state.exStyle = mask ? (before & ~mask) | (wanted & mask) : wanted;
    if (state.exStyle & ~before & LVS_EX_CHECKBOXES)
        setRowState(window, -1, unticked, LVIS_STATEIMAGEMASK);
    return static_cast<LRESULT>(before);
}

LRESULT columnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto& state = listViewOf(window);
    const int column = static_cast<INT>(wParam);
    auto* record = reinterpret_cast<LVCOLUMNA*>(lParam);
    switch (message) {
        case LVM_INSERTCOLUMNA: return insertColumn(window, column, *record);
        case LVM_SETCOLUMNA: return setColumn(window, column, *record);
        case LVM_GETCOLUMNA: return tellColumn(window, column, *record);
        case LVM_GETCOLUMNWIDTH:
            return wParam < state.columns.size() ? state.columns[wParam].width : 0;
        case LVM_SETCOLUMNWIDTH: return setColumnWidth(window, column, xOf(lParam));
        default: refuse("list view's message", message);
    }
}

LRESULT listViewMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto& state = listViewOf(window);
    const int row = static_cast<INT>(wParam);
    auto* item = reinterpret_cast<LVITEMA*>(lParam);
    switch (message) {
        case LVM_INSERTITEMA: return insertRow(window, *item);
        case LVM_SETITEMA: return setRow(window, *item);
        case LVM_GETITEMA: return tellRow(window, *item);
        case LVM_SETITEMTEXTA: return setRowText(window, row, *item);
        case LVM_GETITEMTEXTA: return tellRowText(window, row, *item);
        case LVM_DELETEITEM: return deleteRow(window, row);
        case LVM_DELETEALLITEMS: return deleteAllRows(window);
        case LVM_GETITEMCOUNT: return state.count();
        case LVM_SETITEMCOUNT: return 1;
        case LVM_SETITEMSTATE: return setRowState(window, row, item->state, item->stateMask);
        case LVM_GETITEMSTATE:
            return state.has(row) ? state.stateOf(row) & static_cast<UINT>(lParam) : 0;
        case LVM_GETSELECTEDCOUNT: return state.selectedCount;
        case LVM_GETSELECTIONMARK: return state.selectionMark;
        case LVM_GETNEXTITEM: return nextRow(window, row, static_cast<UINT>(lParam));
        case LVM_FINDITEMA:
            return findRow(window, row, *reinterpret_cast<const LVFINDINFOA*>(lParam));
        case LVM_SORTITEMS:
            return sortRows(window, reinterpret_cast<PFNLVCOMPARE>(lParam),
                            static_cast<LPARAM>(wParam));
        case LVM_GETITEMRECT: return tellRowPlace(window, row, *reinterpret_cast<RECT*>(lParam));
        case LVM_ENSUREVISIBLE:
            if (lParam) refuse("row that may stay visible in part", wParam);
            return showRow(window, row);
        case LVM_SCROLL: return scrollRows(window, row, static_cast<int>(lParam));
        case LVM_GETHEADER: return reinterpret_cast<LRESULT>(state.header);
        case LVM_SETEXTENDEDLISTVIEWSTYLE:
            return setExtendedStyle(window, static_cast<DWORD>(wParam), static_cast<DWORD>(lParam));
        case LVM_GETEXTENDEDLISTVIEWSTYLE: return static_cast<LRESULT>(state.exStyle);
        default: return columnMessage(window, message, wParam, lParam);
    }
}

void requireReport(HWND window) {
    constexpr DWORD viewMask = 0x0003;
    const DWORD style = windowOf(window).style;
    if ((style & viewMask) != LVS_REPORT) refuse("view of a list view, style", style);
}

}  // namespace

ListViewState& listViewOf(HWND window) {
    return controlState<ListViewState>(window);
}

LRESULT listViewProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    constexpr UINT firstOfClass = 0x1000;
    constexpr UINT lastOfClass = 0x10FF;
    if (message >= firstOfClass && message <= lastOfClass)
        return listViewMessage(window, message, wParam, lParam);
    switch (message) {
        case WM_CREATE:
            requireReport(window);
            makeHeader(window);
            return 0;
        case WM_SIZE: placeHeader(window); return 0;
        case WM_GETDLGCODE: return DLGC_WANTARROWS | DLGC_WANTCHARS;
        default:
            if (handleInput(window, message, wParam, lParam)) return 0;
            return DefWindowProcA(window, message, wParam, lParam);
    }
}

}  // namespace win::memory
