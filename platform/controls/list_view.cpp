#include "platform/controls/list_view.h"

#include "platform/api/comctl32.h"
#include "platform/api/user32.h"
#include "platform/controls/control_failure.h"
#include "platform/controls/form.h"

namespace magpie {

namespace {

constexpr win::UINT stateImage(unsigned number) {
    return number << 12;
}
constexpr win::UINT unticked = stateImage(1);
constexpr win::UINT ticked = stateImage(2);

win::LPARAM address(const void* record) {
    return reinterpret_cast<win::LPARAM>(record);
}

win::WPARAM rowNumber(int position) {
    return static_cast<win::WPARAM>(position - 1);
}

}  // namespace

void ListView::create(Container& container, const Place& place, const std::string& name,
                      Selection selection) {
    columns_ = 0;
    sorted_ = false;
    sortKey_ = 0;
    sortOrder_ = 0;
    createWindow(
        container,
        {win::WC_LISTVIEWA,
         win::LVS_REPORT | win::LVS_SHOWSELALWAYS | win::WS_TABSTOP | win::WS_CLIPCHILDREN |
             (selection == Selection::single ? win::LVS_SINGLESEL : 0),
         win::WS_EX_CLIENTEDGE},
        place, name);
    const win::DWORD looks =
        win::LVS_EX_FULLROWSELECT | win::LVS_EX_LABELTIP | win::LVS_EX_DOUBLEBUFFER;
    send(win::LVM_SETEXTENDEDLISTVIEWSTYLE, looks, static_cast<win::LPARAM>(looks));
}

void ListView::forgetWindow() {
    Control::forgetWindow();
    tags_.clear();
    pressed_ = 0;
    released_.reset();
    doubleClicked_ = false;
    outOfOrder_ = false;
}

// Wine draws the end of a longer or shorter row of headings and leaves the old end there.
void ListView::place() {
    Control::place();
    const auto headings = reinterpret_cast<win::HWND>(send(win::LVM_GETHEADER, 0, 0));
    if (headings != nullptr) win::InvalidateRect(headings, nullptr, 1);
}

win::LRESULT ListView::send(win::UINT message, win::WPARAM wParam, win::LPARAM lParam) {
    win::HWND window = hWnd();
    ++sending_;
    const win::LRESULT answer = win::SendMessageA(window, message, wParam, lParam);
    --sending_;
    return answer;
}

win::LRESULT ListView::sendStraight(win::UINT message, win::WPARAM wParam, win::LPARAM lParam) {
    win::HWND window = hWnd();
    ++sending_;
    const win::LRESULT answer =
        win::CallWindowProcA(previousProcedure(), window, message, wParam, lParam);
    --sending_;
    return answer;
}

void ListView::addColumn(const std::string& heading, double width) {
    win::LVCOLUMNA column{};
    column.mask = win::LVCF_TEXT | win::LVCF_WIDTH | win::LVCF_SUBITEM;
    column.pszText = const_cast<char*>(heading.c_str());
    column.cx = pixelsX(width);
    column.iSubItem = columns_;
    send(win::LVM_INSERTCOLUMNA, static_cast<win::WPARAM>(columns_), address(&column));
    ++columns_;
}

int ListView::ColumnCount() {
    hWnd();
    return columns_;
}

void ListView::needColumn(int column) {
    if (column < 1 || column > ColumnCount()) throw Failure{failure::subscript};
}

double ListView::ColumnWidth(int column) {
    needColumn(column);
    return static_cast<double>(send(win::LVM_GETCOLUMNWIDTH, rowNumber(column), 0)) *
           Screen.TwipsPerPixelX();
}

void ListView::ColumnWidth(int column, double width) {
    needColumn(column);
    if (width < 0) throw Failure{failure::invalidProperty};
    send(win::LVM_SETCOLUMNWIDTH, rowNumber(column), pixelsX(width));
}

void ListView::ColumnHeading(int column, const std::string& heading) {
    needColumn(column);
    win::LVCOLUMNA change{};
    change.mask = win::LVCF_TEXT;
    change.pszText = const_cast<char*>(heading.c_str());
    send(win::LVM_SETCOLUMNA, rowNumber(column), address(&change));
}

// A tick belongs to its row, boxes or none; the platform unticks every row when its boxes
// appear.
void ListView::CheckBoxes(bool shown) {
    const auto looks = static_cast<win::DWORD>(send(win::LVM_GETEXTENDEDLISTVIEWSTYLE, 0, 0));
    if (shown == ((looks & win::LVS_EX_CHECKBOXES) != 0)) return;
    std::vector<bool> ticks;
    for (int i = 1; i <= Count(); ++i) ticks.push_back(Row(i).Checked());
    send(win::LVM_SETEXTENDEDLISTVIEWSTYLE, win::LVS_EX_CHECKBOXES,
         shown ? static_cast<win::LPARAM>(win::LVS_EX_CHECKBOXES) : 0);
    for (int i = 1; i <= Count(); ++i) Row(i).Checked(ticks[static_cast<std::size_t>(i - 1)]);
}

int ListView::Count() {
    return static_cast<int>(send(win::LVM_GETITEMCOUNT, 0, 0));
}

void ListView::Clear() {
    send(win::LVM_DELETEALLITEMS, 0, 0);
    tags_.clear();
    outOfOrder_ = false;
}

ListRow ListView::Add(const std::string& text, const std::string& tag) {
    const auto number = static_cast<win::LPARAM>(tags_.size());
    win::LVITEMA item{};
    item.mask = win::LVIF_TEXT | win::LVIF_PARAM;
    item.iItem = static_cast<win::INT>(0x7FFFFFFF);
    item.pszText = const_cast<char*>(text.c_str());
    item.lParam = number;
    tags_.push_back(tag);
    const auto row = static_cast<int>(sendStraight(win::LVM_INSERTITEMA, 0, address(&item)));
    loseOrder();
    return {*this, row + 1, number, ordering_};
}

ListRow ListView::Row(int position) {
    putInOrder();
    return rowAt(position);
}

void ListView::Remove(int position) {
    send(win::LVM_DELETEITEM, rowNumber(Row(position).position()), 0);
}

ListRow ListView::SelectedItem() {
    if (Count() == 0) throw Failure{failure::objectNotSet};
    putInOrder();
    const int focused = focusedRow();
    return rowAt(focused < 0 ? 1 : focused + 1);
}

int ListView::focusedRow() {
    return static_cast<int>(send(win::LVM_GETNEXTITEM, static_cast<win::WPARAM>(-1),
                                 static_cast<win::LPARAM>(win::LVNI_FOCUSED)));
}

ListRow ListView::rowAt(int position) {
    win::LVITEMA item{};
    item.mask = win::LVIF_PARAM;
    item.iItem = position - 1;
    if (position < 1 || !sendStraight(win::LVM_GETITEMA, 0, address(&item)))
        throw Failure{failure::subscript};
    return {*this, position, item.lParam, ordering_};
}

std::string& ListView::tagOf(win::LPARAM number) {
    const auto place = static_cast<std::size_t>(number);
    if (place >= tags_.size()) throw Failure{failure::subscript};
    return tags_[place];
}

std::string ListView::textAt(int position, int column) {
    std::string text(260, '\0');
    for (;;) {
        win::LVITEMA item{};
        item.iSubItem = column;
        item.pszText = text.data();
        item.cchTextMax = static_cast<win::INT>(text.size());
        const auto length = static_cast<std::size_t>(
            sendStraight(win::LVM_GETITEMTEXTA, rowNumber(position), address(&item)));
        // A text that fills the buffer may have been cut.
        if (length + 1 < text.size()) {
            text.resize(length);
            return text;
        }
        text.resize(text.size() * 2);
    }
}

void ListView::setText(const ListRow& row, int column, const std::string& text) {
    const int position = row.place();
    const bool takesItsPlace =
        sorted_ && !outOfOrder_ && column == sortKey_ && textAt(position, column).empty();
    win::LVITEMA item{};
    item.iSubItem = column;
    item.pszText = const_cast<char*>(text.c_str());
    sendStraight(win::LVM_SETITEMTEXTA, rowNumber(position), address(&item));
    if (takesItsPlace) loseOrder();
}

void ListView::setState(const ListRow& row, win::UINT state, win::UINT mask) {
    win::LVITEMA item{};
    item.state = state;
    item.stateMask = mask;
    send(win::LVM_SETITEMSTATE, rowNumber(row.place()), address(&item));
}

win::UINT ListView::stateOf(const ListRow& row, win::UINT mask) {
    return static_cast<win::UINT>(
        send(win::LVM_GETITEMSTATE, rowNumber(row.place()), static_cast<win::LPARAM>(mask)));
}

std::string ListRow::SubItem(int column) const {
    return list_->textAt(place(), column);
}

void ListRow::SubItem(int column, const std::string& text) const {
    list_->setText(*this, column, text);
}

const std::string& ListRow::Tag() const {
    return list_->tagOf(number_);
}

void ListRow::Tag(const std::string& tag) const {
    list_->tagOf(number_) = tag;
}

bool ListRow::Selected() const {
    return list_->stateOf(*this, win::LVIS_SELECTED) != 0;
}

void ListRow::Selected(bool selected) const {
    if (selected)
        list_->setState(*this, win::LVIS_SELECTED | win::LVIS_FOCUSED,
                        win::LVIS_SELECTED | win::LVIS_FOCUSED);
    else
        list_->setState(*this, 0, win::LVIS_SELECTED);
}

bool ListRow::Checked() const {
    return list_->stateOf(*this, win::LVIS_STATEIMAGEMASK) == ticked;
}

void ListRow::Checked(bool checked) const {
    list_->setState(*this, checked ? ticked : unticked, win::LVIS_STATEIMAGEMASK);
}

void ListRow::EnsureVisible() const {
    list_->send(win::LVM_ENSUREVISIBLE, rowNumber(position()), 0);
}

FillingList::FillingList(ListView& list) : list_(list), hadFocus_(win::GetFocus() == list.hWnd()) {
    list_.Visible(false);
    win::SendMessageA(list_.hWnd(), win::WM_SETREDRAW, 0, 0);
}

FillingList::~FillingList() {
    // The form may have gone in an event of the filling.
    if (!list_.form().loaded()) return;
    win::SendMessageA(list_.hWnd(), win::WM_SETREDRAW, 1, 0);
    // Drawing again has marked the window as visible without painting it or its
    // headings; only a window that is hidden is painted whole when it is shown.
    list_.Visible(false);
    list_.Visible(true);
    if (hadFocus_) list_.SetFocus();
}

}  // namespace magpie
