#include "tests/conformance/list_view_user.h"

win::HWND ListViewUser::make(win::DWORD style) {
    list = parent.add(win::WC_LISTVIEWA, win::LVS_REPORT | win::LVS_SHOWSELALWAYS | style,
                      {10, 10, 410, 160});
    win::LVCOLUMNA column{};
    column.mask = win::LVCF_TEXT | win::LVCF_WIDTH | win::LVCF_SUBITEM;
    char title[] = "Title";
    column.pszText = title;
    column.cx = 60;
    send(win::LVM_INSERTCOLUMNA, 0, &column);
    char number[] = "Count";
    column.pszText = number;
    column.cx = 80;
    column.iSubItem = 1;
    send(win::LVM_INSERTCOLUMNA, 1, &column);
    send(win::LVM_SETEXTENDEDLISTVIEWSTYLE, 0, win::LPARAM{win::LVS_EX_FULLROWSELECT});
    return list;
}

void ListViewUser::addCheckBoxes() {
    send(win::LVM_SETEXTENDEDLISTVIEWSTYLE, static_cast<int>(win::LVS_EX_CHECKBOXES),
         win::LPARAM{win::LVS_EX_CHECKBOXES});
}

win::LRESULT ListViewUser::send(win::UINT message, int wParam, win::LPARAM lParam) {
    return win::SendMessageA(list, message, static_cast<win::WPARAM>(wParam), lParam);
}

win::LRESULT ListViewUser::send(win::UINT message, int wParam, const void* record) {
    return send(message, wParam, reinterpret_cast<win::LPARAM>(record));
}

int ListViewUser::insert(int at, const char* text, win::LPARAM param) {
    win::LVITEMA item{};
    item.mask = win::LVIF_TEXT | win::LVIF_PARAM;
    item.iItem = at;
    item.pszText = const_cast<char*>(text);
    item.lParam = param;
    return static_cast<int>(send(win::LVM_INSERTITEMA, 0, &item));
}

int ListViewUser::insertWithState(int at, win::UINT state, win::UINT mask) {
    win::LVITEMA item{};
    item.mask = win::LVIF_PARAM | win::LVIF_STATE;
    item.iItem = at;
    item.lParam = 9;
    item.state = state;
    item.stateMask = mask;
    return static_cast<int>(send(win::LVM_INSERTITEMA, 0, &item));
}

void ListViewUser::fill(int rows) {
    for (int row = 0; row < rows; ++row) {
        std::string title = "r";
        title += std::to_string(row);
        insert(row, title.c_str(), 100 + row);
    }
    parent.takeNotices();
}

std::string ListViewUser::text(int row, int column) {
    char buffer[100] = "untouched";
    win::LVITEMA item{};
    item.iSubItem = column;
    item.pszText = buffer;
    item.cchTextMax = sizeof buffer;
    const auto length = send(win::LVM_GETITEMTEXTA, row, &item);
    std::string found = buffer;
    EXPECT_TRUE(found == "untouched" || length == static_cast<win::LRESULT>(found.size()));
    return found;
}

win::LRESULT ListViewUser::setText(int row, int column, const char* text) {
    win::LVITEMA item{};
    item.iSubItem = column;
    item.pszText = const_cast<char*>(text);
    return send(win::LVM_SETITEMTEXTA, row, &item);
}

std::vector<std::string> ListViewUser::titles() {
    std::vector<std::string> found;
    for (int row = 0; row < count(); ++row) found.push_back(text(row));
    return found;
}

win::LPARAM ListViewUser::param(int row) {
    win::LVITEMA item{};
    item.mask = win::LVIF_PARAM;
    item.iItem = row;
    return send(win::LVM_GETITEMA, 0, &item) ? item.lParam : -1;
}

bool ListViewUser::setState(int row, win::UINT state, win::UINT mask) {
    win::LVITEMA item{};
    item.state = state;
    item.stateMask = mask;
    return send(win::LVM_SETITEMSTATE, row, &item) != 0;
}

std::vector<win::UINT> ListViewUser::states() {
    std::vector<win::UINT> found;
    for (int row = 0; row < count(); ++row)
        found.push_back(
            static_cast<win::UINT>(send(win::LVM_GETITEMSTATE, row, win::LPARAM{0xFFFF})));
    return found;
}

int ListViewUser::focusedRow() {
    return static_cast<int>(send(win::LVM_GETNEXTITEM, -1, win::LPARAM{win::LVNI_FOCUSED}));
}

win::RECT ListViewUser::place(int row) {
    win::RECT found{};
    found.left = win::LVIR_BOUNDS;
    if (!send(win::LVM_GETITEMRECT, row, &found)) found = {-1, -1, -1, -1};
    return found;
}

win::POINT ListViewUser::middle(int row, int column) {
    const win::RECT found = place(row);
    return {column == 0 ? 30 : 100, (found.top + found.bottom) / 2};
}

void ListViewUser::clickOn(int row, int column, MouseButton button) {
    const win::POINT at = middle(row, column);
    click(list, at.x, at.y, button);
}

Notice ListViewUser::change(int row, win::LPARAM param, win::UINT before, win::UINT now) {
    return {win::LVN_ITEMCHANGED, row, 0, now, before, win::LVIF_STATE, param};
}

std::vector<Notice> ListViewUser::takeClicks() {
    std::vector<Notice> found;
    for (const Notice& notice : parent.takeNotices()) {
        if (notice.code != win::LVN_ITEMCHANGED) found.push_back(notice);
    }
    return found;
}
