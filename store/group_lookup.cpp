#include "store/group_lookup.h"

#include "core/state.h"
#include "mainwindow/form3.h"
#include "platform/runtime/number_text.h"
#include "platform/runtime/rounding.h"
#include "store/record_key.h"
#include "store/records.h"

namespace magpie {

namespace {

constexpr int advancedScreen = 1;
constexpr int standardScreen = 2;

ListView& groupList() {
    return Form3.ListView1[3];
}

ComboBox& groupCombo() {
    return Form3.Combo1[1];
}

std::int32_t selectedInGroupList() {
    return int32Of(groupList().SelectedItem().Tag());
}

std::int32_t selectedInCombo() {
    return groupCombo().ItemData(groupCombo().ListIndex());
}

std::int16_t groupOfSelectedRecord(ListView& records) {
    const std::string key = recordKey(records.SelectedItem().Tag());
    return toInt16(uBlock.URLDatas().Item(key).Owner);
}

void selectInGroupList(std::int16_t number) {
    const int rows = groupList().Count();
    for (int i = 1; i <= rows; ++i) {
        const ListRow row = groupList().Row(i);
        if (int32Of(row.Tag()) != number) continue;
        row.Selected(true);
        row.EnsureVisible();
        return;
    }
}

void selectInCombo(std::int16_t number) {
    const int rows = groupCombo().ListCount();
    for (int row = 0; row < rows; ++row) {
        if (groupCombo().ItemData(row) != number) continue;
        groupCombo().ListIndex(row);
        return;
    }
}

}  // namespace

std::int32_t getCurrentIDX() {
    if (currentTab == advancedScreen) return selectedInGroupList();
    if (currentTab == standardScreen) return selectedInCombo();
    return 0;
}

std::int16_t GetSelectedIndex() {
    Checked<std::int16_t> number = -1;
    if (currentTab == advancedScreen && groupList().Count() > 0) number = selectedInGroupList();
    if (currentTab == standardScreen && groupCombo().ListIndex() >= 0) number = selectedInCombo();
    return number;
}

void selectGroupItem(std::int16_t Index) {
    ListView& records = Form3.ListView1[lvIndex];
    if (Index < 0 && records.Count() > 0) Index = groupOfSelectedRecord(records);
    if (currentTab == advancedScreen) selectInGroupList(Index);
    if (currentTab == standardScreen) selectInCombo(Index);
}

}  // namespace magpie
