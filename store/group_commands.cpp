#include "store/group_commands.h"

#include <string>
#include <vector>

#include "core/misc.h"
#include "core/state.h"
#include "mainwindow/form3.h"
#include "mainwindow/status_panel.h"
#include "platform/api/constants.h"
#include "platform/controls/input_box.h"
#include "platform/controls/message_box.h"
#include "platform/runtime/decimal_text.h"
#include "platform/runtime/number_text.h"
#include "platform/runtime/word.h"
#include "store/group_lookup.h"
#include "store/groups.h"
#include "store/records.h"
#include "views/group_list.h"
#include "views/refresh.h"

namespace magpie {

namespace {

constexpr int advancedScreen = 1;
constexpr int standardScreen = 2;
constexpr int groupColumn = 3;

ListView& groupList() {
    return Form3.ListView1[3];
}

ComboBox& groupCombo() {
    return Form3.Combo1[1];
}

ListView& recordList() {
    return Form3.ListView1[lvIndex];
}

// Empty for Cancel as for an empty name, and when the main window was flushed meanwhile, with the
// groups that the name was meant for, whether or not it has come back since.
std::string askForName(const char* title, const std::string& text) {
    const win::HWND asking = Form3.hWnd();
    setTopMost(Form3, wordFalse);
    modalOpen = 1;
    const std::string name =
        InputBox("Enter Group Name: ", title, text, Form3.Left() + Form3.Width() / 6,
                 Form3.Top() + Form3.Height() / 5);
    modalOpen = 0;
    setTopMost(Form3, word(mainOnTop));
    return Form3.loaded() && Form3.hWnd() == asking ? name : std::string();
}

// A tick for every number but 0: the first group after a reset comes up without one.
void addToGroupList(const IDXEntry& group) {
    const ListRow row = groupList().Add(group.Name);
    row.Selected(true);
    row.Tag(integerText(group.GroupID));
    if (Form3.advMode == 0) row.Checked(group.GroupID != 0);
    selectGroupItem(int16Of(row.Tag()));
    Form3.tmpIDX = int16Of(row.Tag());
    RefreshURLPage();
}

void addToCombo(const IDXEntry& group) {
    groupCombo().AddItem(group.Name);
    groupCombo().ItemData(groupCombo().NewIndex(), group.GroupID);
    groupCombo().ListIndex(groupCombo().ListCount() - 1);
    groupCombo().Refresh();
}

// Every row in view, whatever its record's group; the next refresh shows the truth. All rows are
// taken in hand first: while the list is sorted by its groups, a new name may move a row.
void showGroupInEveryRow(const std::string& name) {
    std::vector<ListRow> rows;
    const int count = recordList().Count();
    for (int i = 1; i <= count; ++i) rows.push_back(recordList().Row(i));
    for (const ListRow& row : rows) row.SubItem(groupColumn, name);
}

std::string nameInView() {
    return currentTab == advancedScreen ? groupList().SelectedItem().Text()
                                        : groupCombo().Caption();
}

bool confirmsRemoval() {
    const int rows = recordList().Count();
    if (rows == 0) return true;
    std::string question = "Remove Selected Group?\r\n\r\n";
    question += nameInView();
    question += "\r\n\r\nThis will Delete ";
    question += std::to_string(rows);
    question += " contained entries.";
    setTopMost(Form3, wordFalse);
    modalOpen = 1;
    const int answer = MsgBox(question, win::MB_YESNO | win::MB_ICONWARNING);
    modalOpen = 0;
    setTopMost(Form3, word(mainOnTop));
    return answer == win::IDYES;
}

void removeRecordsOf(std::int32_t idx) {
    for (URLData& record : uBlock.URLDatas()) {
        if (record.Owner == idx)
            uBlock.URLDatas().Delete(record.ID());
        else if (record.Owner > idx)
            record.Owner = record.Owner - 1;
    }
}

// The spare element moves up with the others.
void removeFromIndex(std::int32_t idx) {
    for (std::int32_t i = idx; i < IDXList.uBound(); ++i) {
        IDXList[i] = IDXList[i + 1];
        --IDXList[i].GroupID;
    }
    IDXList.resize(IDXList.uBound() - 1);
}

// These two answer whether a group is left to be shown. The numbers on the rows behind the removed
// one go down with those of their groups.
bool removeFromGroupList() {
    const int position = groupList().SelectedItem().position();
    groupList().Remove(position);
    if (groupList().Count() == 0) return false;
    recordList().Clear();
    rebuildGroupList(true);
    const ListRow next = groupList().Row(position < groupList().Count() ? position : 1);
    next.Selected(true);
    next.EnsureVisible();
    RefreshURLPage();
    return true;
}

bool removeFromCombo() {
    const int removed = groupCombo().ListIndex();
    groupCombo().RemoveItem(removed);
    for (int row = removed; row < groupCombo().ListCount(); ++row)
        groupCombo().ItemData(row, groupCombo().ItemData(row) - 1);
    if (groupCombo().ListCount() == 0) return false;
    groupCombo().ListIndex(groupCombo().TopIndex());
    groupCombo().Refresh();
    return true;
}

}  // namespace

void mnuNewCombo_Click() {
    const std::string name = askForName("New Group..", "");
    if (name.empty()) return;
    NewCatagory(name);
    ++urlsDirty;
    const IDXEntry group = IDXList[IDXList.uBound() - 1];
    if (currentTab == advancedScreen) addToGroupList(group);
    if (currentTab == standardScreen) addToCombo(group);
}

void mnuNewGroup_Click() {
    mnuNewCombo_Click();
}

// The combo's row number is taken for the group's position, not the number on the row: the two
// part once a group was removed and another added.
void mnuRenameCombo_Click() {
    const std::string name = askForName("Rename Group..", groupCombo().Caption());
    if (name.empty()) return;
    IDXList[std::int32_t{groupCombo().ListIndex()}].Name = name;
    showGroupInEveryRow(name);
    groupCombo().List(groupCombo().ListIndex(), name);
    groupCombo().Refresh();
    ++urlsDirty;
}

void mnuRenameGroup_Click() {
    const ListRow chosen = groupList().SelectedItem();
    const std::string name = askForName("Rename Group..", chosen.Text());
    if (name.empty()) return;
    const ListRow row = groupList().SelectedItem();
    IDXList[int32Of(row.Tag())].Name = name;
    row.Text(name);
    showGroupInEveryRow(name);
    groupList().Sorted(true);
    groupList().SelectedItem().EnsureVisible();
}

void mnuRemoveCombo_Click() {
    removeCurrentGroup(true);
}

void mnuRemoveGroup_Click() {
    mnuRemoveCombo_Click();
}

void removeCurrentGroup(bool promptUser) {
    const std::int32_t idx = getCurrentIDX();
    if (idx < 0) return;
    if (promptUser && !confirmsRemoval()) return;
    removeRecordsOf(idx);
    removeFromIndex(idx);
    const bool groupsAreLeft =
        currentTab == advancedScreen ? removeFromGroupList() : removeFromCombo();
    if (!groupsAreLeft) {
        UpdatePanel();
        return;
    }
    ++urlsDirty;
}

}  // namespace magpie
