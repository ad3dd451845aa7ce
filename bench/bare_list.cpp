#include "bench/bare_list.h"

#include "platform/api/comctl32.h"
#include "platform/api/kernel32.h"
#include "platform/api/user32.h"

namespace magpie::bench {

namespace {

constexpr int columns = 7;

win::LRESULT send(win::HWND window, win::UINT message, win::WPARAM wParam = 0,
                  const void* lParam = nullptr) {
    return win::SendMessageA(window, message, wParam, reinterpret_cast<win::LPARAM>(lParam));
}

void addColumns(win::HWND list, win::HWND like) {
    for (int i = 0; i < columns; ++i) {
        win::LVCOLUMNA column{};
        column.mask = win::LVCF_WIDTH | win::LVCF_SUBITEM;
        column.cx =
            static_cast<int>(send(like, win::LVM_GETCOLUMNWIDTH, static_cast<win::WPARAM>(i)));
        column.iSubItem = i;
        send(list, win::LVM_INSERTCOLUMNA, static_cast<win::WPARAM>(i), &column);
    }
}

void insertRow(win::HWND list, int row, const RowTexts& texts) {
    win::LVITEMA item{};
    item.mask = win::LVIF_TEXT | win::LVIF_PARAM;
    item.iItem = row;
    item.pszText = const_cast<char*>(texts[0].c_str());
    item.lParam = row;
    send(list, win::LVM_INSERTITEMA, 0, &item);
    for (int column = 1; column < columns; ++column) {
        item.iSubItem = column;
        item.pszText = const_cast<char*>(texts[static_cast<std::size_t>(column)].c_str());
        send(list, win::LVM_SETITEMTEXTA, static_cast<win::WPARAM>(row), &item);
    }
}

bool isSelected(win::HWND list, win::WPARAM row) {
    return win::SendMessageA(list, win::LVM_GETITEMSTATE, row,
                             static_cast<win::LPARAM>(win::LVIS_SELECTED)) != 0;
}

win::INT compareByPlace(win::LPARAM row1, win::LPARAM row2, win::LPARAM places) {
    const auto& placeOf = *reinterpret_cast<const std::vector<int>*>(places);
    return placeOf[static_cast<std::size_t>(row1)] - placeOf[static_cast<std::size_t>(row2)];
}

}  // namespace

BareList::BareList(win::HWND like) {
    win::RECT size{};
    win::GetWindowRect(like, &size);
    const int width = size.right - size.left;
    const int height = size.bottom - size.top;
    window_ =
        win::CreateWindowExA(0, "Static", "", win::WS_POPUP | win::WS_VISIBLE, 0, 0, width, height,
                             nullptr, nullptr, win::GetModuleHandleA(nullptr), nullptr);
    list_ = win::CreateWindowExA(
        win::WS_EX_CLIENTEDGE, win::WC_LISTVIEWA, "",
        win::WS_CHILD | win::WS_VISIBLE | win::LVS_REPORT | win::LVS_SHOWSELALWAYS, 0, 0, width,
        height, window_, nullptr, win::GetModuleHandleA(nullptr), nullptr);
    const win::DWORD looks =
        win::LVS_EX_FULLROWSELECT | win::LVS_EX_LABELTIP | win::LVS_EX_DOUBLEBUFFER;
    win::SendMessageA(list_, win::LVM_SETEXTENDEDLISTVIEWSTYLE, looks,
                      static_cast<win::LPARAM>(looks));
    addColumns(list_, like);
}

BareList::~BareList() {
    win::DestroyWindow(window_);
}

void BareList::clear() {
    send(list_, win::LVM_DELETEALLITEMS);
}

void BareList::insert(const std::vector<RowTexts>& rows) {
    send(list_, win::WM_SETREDRAW, 0);
    int row = 0;
    for (const RowTexts& texts : rows) insertRow(list_, row++, texts);
    send(list_, win::WM_SETREDRAW, 1);
}

void BareList::rearrange(const std::vector<int>& places) {
    win::SendMessageA(list_, win::LVM_SORTITEMS, reinterpret_cast<win::WPARAM>(&places),
                      reinterpret_cast<win::LPARAM>(compareByPlace));
}

void BareList::selectAll() {
    win::LVITEMA item{};
    item.state = item.stateMask = win::LVIS_SELECTED;
    send(list_, win::LVM_SETITEMSTATE, static_cast<win::WPARAM>(-1), &item);
}

std::size_t BareList::readRow(win::WPARAM row) {
    std::array<char, 256> text{};
    std::size_t bytes = 0;
    for (int column = 0; column < columns; ++column) {
        win::LVITEMA item{};
        item.iSubItem = column;
        item.pszText = text.data();
        item.cchTextMax = static_cast<win::INT>(text.size() - 1);
        bytes += static_cast<std::size_t>(send(list_, win::LVM_GETITEMTEXTA, row, &item));
    }
    return bytes;
}

std::size_t BareList::deleteSelected() {
    std::size_t bytes = 0;
    send(list_, win::WM_SETREDRAW, 0);
    while (isSelected(list_, 0)) {
        bytes += readRow(0);
        send(list_, win::LVM_DELETEITEM);
    }
    send(list_, win::WM_SETREDRAW, 1);
    return bytes;
}

std::size_t BareList::writeSelected(int column, const std::string& text) {
    std::size_t bytes = 0;
    send(list_, win::WM_SETREDRAW, 0);
    for (win::WPARAM row = 0; isSelected(list_, row); ++row) {
        bytes += readRow(row);
        win::LVITEMA item{};
        item.stateMask = win::LVIS_SELECTED;
        send(list_, win::LVM_SETITEMSTATE, row, &item);
        item.iSubItem = column;
        item.pszText = const_cast<char*>(text.c_str());
        send(list_, win::LVM_SETITEMTEXTA, row, &item);
    }
    send(list_, win::WM_SETREDRAW, 1);
    return bytes;
}

std::size_t BareList::readTitles() {
    std::array<char, 256> text{};
    std::size_t bytes = 0;
    const auto rows = static_cast<win::WPARAM>(send(list_, win::LVM_GETITEMCOUNT));
    for (win::WPARAM row = 0; row < rows; ++row) {
        win::LVITEMA item{};
        item.pszText = text.data();
        item.cchTextMax = static_cast<win::INT>(text.size());
        bytes += static_cast<std::size_t>(send(list_, win::LVM_GETITEMTEXTA, row, &item));
    }
    return bytes;
}

}  // namespace magpie::bench
