#include "entries/row_match.h"

#include <algorithm>

#include "core/state.h"
#include "mainwindow/form3.h"
#include "platform/api/comctl32.h"
#include "platform/api/user32.h"
#include "platform/runtime/date.h"
#include "platform/runtime/failure.h"
#include "store/record_key.h"

namespace magpie {

namespace {

win::LRESULT send(win::UINT message, std::int32_t row, win::LPARAM lParam) {
    return Form3.ListView1[lvIndex].ask(message, static_cast<win::WPARAM>(row), lParam);
}

win::LRESULT send(win::UINT message, std::int32_t row, const win::LVITEMA& item) {
    return send(message, row, reinterpret_cast<win::LPARAM>(&item));
}

// A list shows "Never" for any date up to 0, but a date below 0 has a text of its own and
// is not found again.
std::string visitDateText(const std::string& shown) {
    return dateText(shown == "Never" ? Date{} : readDateText(shown));
}

}  // namespace

std::int32_t rowCount() {
    return static_cast<std::int32_t>(send(win::LVM_GETITEMCOUNT, 0, 0));
}

std::int32_t selectedCount() {
    return static_cast<std::int32_t>(send(win::LVM_GETSELECTEDCOUNT, 0, 0));
}

win::UINT rowState(std::int32_t row, win::UINT mask) {
    return static_cast<win::UINT>(send(win::LVM_GETITEMSTATE, row, static_cast<win::LPARAM>(mask)));
}

void setRowState(std::int32_t row, win::UINT state, win::UINT mask) {
    win::LVITEMA item{};
    item.state = state;
    item.stateMask = mask;
    win::SendMessageA(Form3.ListView1[lvIndex].hWnd(), win::LVM_SETITEMSTATE,
                      static_cast<win::WPARAM>(row), reinterpret_cast<win::LPARAM>(&item));
}

std::int32_t nextRowWith(std::int32_t row, win::UINT mask) {
    const std::int32_t rows = rowCount();
    while (row < rows && rowState(row, mask) == 0) ++row;
    return row;
}

std::int32_t selectionStart() {
    constexpr std::int32_t aboveAll = -1;
    if (selectedCount() != 1) return 0;
    const auto focused = static_cast<std::int32_t>(
        send(win::LVM_GETNEXTITEM, aboveAll, static_cast<win::LPARAM>(win::LVNI_FOCUSED)));
    return focused >= 0 && rowState(focused, win::LVIS_SELECTED) != 0 ? focused : 0;
}

std::int32_t selectionMark() {
    return static_cast<std::int32_t>(send(win::LVM_GETSELECTIONMARK, 0, 0));
}

void readRowText(std::string& text, std::int32_t row, int column) {
    constexpr std::size_t capacity = 255;
    // The list ends a text that it cuts, but not under Wine, which then counts on to the
    // next zero byte: so there is one more, and the last character goes as it would.
    std::array<char, capacity + 1> buffer;
    buffer.front() = buffer.back() = 0;
    win::LVITEMA item{};
    item.iSubItem = column;
    item.pszText = buffer.data();
    item.cchTextMax = capacity;
    const auto copied = static_cast<std::size_t>(send(win::LVM_GETITEMTEXTA, row, item));
    text.assign(buffer.data(), std::min(copied, capacity - 1));
}

std::string rowText(std::int32_t row, int column) {
    std::string text;
    readRowText(text, row, column);
    return text;
}

void readRowTexts(RowTexts& texts, std::int32_t row) {
    int column = 0;
    for (std::string& text : texts) readRowText(text, row, column++);
}

void setRowText(std::int32_t row, int column, const std::string& text) {
    win::LVITEMA item{};
    item.iSubItem = column;
    item.pszText = const_cast<char*>(text.c_str());
    send(win::LVM_SETITEMTEXTA, row, item);
}

void deleteRow(std::int32_t row) {
    send(win::LVM_DELETEITEM, row, 0);
}

bool rowIsRecord(const RowTexts& texts, const URLData& record) {
    return texts[0] == record.Name() &&                                //
           texts[1] == record.URL() &&                                 //
           texts[3] == IDXList[record.Owner].Name &&                   //
           texts[5] == dateText(record.Created) &&                     //
           visitDateText(texts[4]) == dateText(record.LastAccesed) &&  //
           texts[2] == ratingName(record.Rated.value());
}

const std::string& ratingName(std::size_t rating) {
    if (rating >= ratedNames.size()) throw Failure{failure::subscript};
    return ratedNames[rating];
}

// Title and address come first in the comparison and cannot fail, so a record with others need
// not be asked.
URLData* recordOfRow(const RowTexts& texts, URLData* from) {
    URLDatas& records = uBlock.URLDatas();
    URLData* record = from != nullptr ? from : records.Find(texts[0], texts[1]);
    while (record != nullptr && !rowIsRecord(texts, *record))
        record = records.Find(texts[0], texts[1], record);
    return record;
}

std::int32_t singleSelect(bool removeAll) {
    std::int32_t remaining = selectedCount();
    const std::string key = recordKey(Form3.ListView1[lvIndex].SelectedItem().Tag());
    const URLData& kept = uBlock.URLDatas().Item(key);
    std::int32_t result = 0;
    RowTexts texts;
    for (std::int32_t i = selectionStart(); i < rowCount() && remaining != 0; ++i) {
        if (rowState(i, win::LVIS_SELECTED) == 0) continue;
        readRowTexts(texts, i);
        if (rowIsRecord(texts, kept) && !removeAll)
            result = i;
        else
            setRowState(i, 0, win::LVIS_SELECTED);
        --remaining;
    }
    return result;
}

}  // namespace magpie
