#include "platform/controls/combo_box.h"

#include "platform/api/user32.h"
#include "platform/controls/control_failure.h"

namespace magpie {

namespace {

// Rows that the opened list shows before it scrolls.
constexpr int rowsShown = 16;
constexpr double rowTwips = 195;

}  // namespace

void ComboBox::create(Container& container, const Place& place, const std::string& name,
                      bool sorted) {
    newIndex_ = -1;
    createWindow(container,
                 {"COMBOBOX", win::CBS_DROPDOWNLIST | win::WS_VSCROLL | win::WS_TABSTOP |
                                  (sorted ? win::CBS_SORT : 0)},
                 place, name);
}

// The platform's height of a combo box is that of its opened list.
void ComboBox::place() {
    win::SetWindowPos(hWnd(), nullptr, pixelsX(place_.left), pixelsY(place_.top),
                      pixelsX(place_.width), pixelsY(place_.height + rowsShown * rowTwips),
                      win::SWP_NOZORDER | win::SWP_NOACTIVATE);
}

void ComboBox::AddItem(const std::string& text) {
    newIndex_ = static_cast<int>(win::SendMessageA(hWnd(), win::CB_ADDSTRING, 0,
                                                   reinterpret_cast<win::LPARAM>(text.c_str())));
}

void ComboBox::RemoveItem(int row) {
    needRow(row);
    win::SendMessageA(hWnd(), win::CB_DELETESTRING, static_cast<win::WPARAM>(row), 0);
}

void ComboBox::Clear() {
    win::SendMessageA(hWnd(), win::CB_RESETCONTENT, 0, 0);
}

int ComboBox::ListCount() {
    return static_cast<int>(win::SendMessageA(hWnd(), win::CB_GETCOUNT, 0, 0));
}

int ComboBox::NewIndex() {
    hWnd();
    return newIndex_;
}

int ComboBox::ListIndex() {
    return static_cast<int>(win::SendMessageA(hWnd(), win::CB_GETCURSEL, 0, 0));
}

void ComboBox::ListIndex(int row) {
    if (row != -1) needRow(row);
    if (row == ListIndex()) return;
    win::SendMessageA(hWnd(), win::CB_SETCURSEL, static_cast<win::WPARAM>(row), 0);
    onClick.raise(Index);
}

void ComboBox::needRow(int row) {
    if (row < 0 || row >= ListCount()) throw Failure{failure::invalidProperty};
}

std::int32_t ComboBox::ItemData(int row) {
    needRow(row);
    return static_cast<std::int32_t>(
        win::SendMessageA(hWnd(), win::CB_GETITEMDATA, static_cast<win::WPARAM>(row), 0));
}

void ComboBox::ItemData(int row, std::int32_t number) {
    needRow(row);
    win::SendMessageA(hWnd(), win::CB_SETITEMDATA, static_cast<win::WPARAM>(row), number);
}

std::string ComboBox::List(int row) {
    needRow(row);
    const auto length =
        win::SendMessageA(hWnd(), win::CB_GETLBTEXTLEN, static_cast<win::WPARAM>(row), 0);
    std::string text(static_cast<std::size_t>(length) + 1, '\0');
    win::SendMessageA(hWnd(), win::CB_GETLBTEXT, static_cast<win::WPARAM>(row),
                      reinterpret_cast<win::LPARAM>(text.data()));
    text.resize(static_cast<std::size_t>(length));
    return text;
}

// The platform has no message that changes a row's text.
void ComboBox::List(int row, const std::string& text) {
    const std::int32_t number = ItemData(row);
    const bool selected = row == ListIndex();
    RemoveItem(row);
    win::SendMessageA(hWnd(), win::CB_INSERTSTRING, static_cast<win::WPARAM>(row),
                      reinterpret_cast<win::LPARAM>(text.c_str()));
    ItemData(row, number);
    if (selected) win::SendMessageA(hWnd(), win::CB_SETCURSEL, static_cast<win::WPARAM>(row), 0);
}

int ComboBox::TopIndex() {
    return static_cast<int>(win::SendMessageA(hWnd(), win::CB_GETTOPINDEX, 0, 0));
}

void ComboBox::onCommand(win::WORD code) {
    if (code == win::CBN_SELCHANGE) onClick.raise(Index);
}

}  // namespace magpie
