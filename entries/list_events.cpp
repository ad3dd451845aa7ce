#include "entries/list_events.h"

#include "browser/send_url.h"
#include "core/state.h"
#include "entries/add_entry.h"
#include "entries/list_binding.h"
#include "mainwindow/entry_menu.h"
#include "mainwindow/group_menu.h"
#include "mainwindow/same_main_window.h"
#include "mainwindow/status_panel.h"
#include "platform/api/constants.h"
#include "platform/runtime/number_text.h"
#include "platform/runtime/resume_next.h"
#include "platform/services/clock.h"
#include "store/group_lookup.h"
#include "store/record_key.h"
#include "store/records.h"
#include "views/find.h"
#include "views/list_all.h"
#include "views/refresh.h"

namespace magpie {

namespace {

constexpr int groupList = 3;
constexpr std::uint8_t groupListFace = 1;  // of the side panel
constexpr int leftButton = 1;
constexpr int rightButton = 2;
constexpr int controlF = 6;
constexpr int controlN = 14;
constexpr int controlP = 16;
constexpr std::int16_t groupOfTheRecord = -1;
constexpr std::int32_t selectedItem = -1;

bool isUpOrDown(int keyCode) {
    return keyCode == win::VK_UP || keyCode == win::VK_DOWN;
}

void listTheGroup() {
    setListAll(false);
    Form3.tmpIDX = int16Of(Form3.ListView1[groupList].SelectedItem().Tag());
    RefreshURLPage();
}

void leftUp(int Index) {
    if (Index == groupList && Form3.ListView1[groupList].Count() > 0 &&
        Form3.advMode == groupListFace)
        listTheGroup();
    UpdateMenus();
}

}  // namespace

// The Group List follows the record, which is what an edit of it will start from.
void ListView1_Click(int Index) {
    if (Form3.ListView1[lvIndex].Count() > 0 && currentTab == 1 && Index == lvIndex)
        selectGroupItem(groupOfTheRecord);
}

// The row first: what is sent keeps its selection only if its texts are the record's. A row that
// cannot be written and a browser that fails to open still cost the visit.
void ListView1_DblClick(int Index) {
    ListView& list = Form3.ListView1[lvIndex];
    if (Index == groupList || list.Count() == 0) return;
    const ListRow row = list.SelectedItem();
    const std::string url = row.SubItem(1);
    URLData& record = uBlock.URLDatas().Item(recordKey(row.Tag()));
    ++record.Visited;
    record.LastAccesed = now();
    ResumeNext([&] { Flannel(row, record); });
    const SameMainWindow mainWindow;
    sendURL(url, false);
    if (!mainWindow.isThere()) return;
    ++urlsDirty;
    UpdateSelectedEntry(selectedItem);
}

void ListView1_ItemClick(int Index) {
    if (Index == groupList) savedAdvMode = Form3.advMode;
}

// Before the key moves the selection, and on either tab.
void ListView1_KeyDown(int Index, int keyCode, int) {
    if (Index != groupList && isUpOrDown(keyCode)) selectGroupItem(groupOfTheRecord);
}

void ListView1_KeyUp(int Index, int keyCode, int) {
    if (Index == groupList && isUpOrDown(keyCode)) RefreshURLPage();
}

// The keys of the menu's Find lines come here only as characters of their own: pressed,
// they are the menu's.
void ListView1_KeyPress(int, int character) {
    switch (character) {
        case controlF: mnuFind_Click(0); break;
        case controlN: mnuFind_Click(1); break;
        case controlP: mnuFind_Click(2); break;
        default: break;
    }
}

// A popup is the last thing done: the form may be gone when it has closed.
void ListView1_MouseUp(int Index, int button, int, double, double) {
    if (button == leftButton) {
        leftUp(Index);
    } else if (button == rightButton) {
        UpdateMenus();
        if (Index == groupList)
            popUpGroupMenu();
        else
            popUpEntryMenu();
    }
}

void ListView1_OLEDragDrop(int, const std::string& text) {
    QuickAdd(text);
}

void ListView1_MenuKey(int Index) {
    UpdateMenus();
    const win::POINT at = Form3.ListView1[Index].menuPlace();
    if (Index == groupList)
        popUpGroupMenu(at);
    else
        popUpEntryMenu(at);
}

}  // namespace magpie
