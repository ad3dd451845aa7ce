// What the items of the main window's menus run: event on the left, routine on the right.
#include "config/companion.h"
#include "core/shutdown.h"
#include "entries/add_entry.h"
#include "entries/bulk_commands.h"
#include "entries/edit_entry.h"
#include "mainwindow/form3.h"
#include "mainwindow/full_window.h"
#include "mainwindow/main_menu.h"
#include "store/group_commands.h"
#include "store/stack_commands.h"
#include "views/find.h"
#include "views/list_all.h"
#include "views/sorting.h"

namespace magpie {

namespace {

void wireMainMenu() {
    Form3.mnuNewCombo.onClick = mnuNewCombo_Click;
    Form3.mnuRenameCombo.onClick = mnuRenameCombo_Click;
    Form3.mnuRemoveCombo.onClick = mnuRemoveCombo_Click;
    Form3.mnuSettingsDLL.onClick = showPreferences;
    for (MenuItem& item : Form3.mnuSettings) item.onClick = mnuSettings_Click;
    Form3.mnuFullwindow.onClick = toggleFullWindow;
    Form3.mnuEject.onClick = mnuEject_Click;
    for (MenuItem& item : Form3.mnuOpen) item.onClick = mnuOpen_Click;
    for (MenuItem& item : Form3.mnuMerge) item.onClick = mnuMerge_Click;
    for (MenuItem& item : Form3.mnuSave) item.onClick = mnuSave_Click;
    Form3.mnuListAll.onClick = mnuListAll_Click;
    Form3.mnuFree.onClick = mnuFree_Click;
    Form3.mnuClose[1].onClick = mnuClose_Click;
    Form3.mnuAbout.onClick = mnuAbout_Click;
    Form3.mnuHelp.onClick = mnuHelp_Click;
    Form3.mnuUnload.onClick = mnuUnload_Click;
    Form3.mnuLoadAll.onClick = mnuLoadAll_Click;
    Form3.mnuSaveAll.onClick = mnuSaveAll_Click;
}

void wireEntryMenu() {
    for (MenuItem& item : Form3.mnuAddEntry) item.onClick = mnuAddEntry_Click;
    for (MenuItem& item : Form3.mnuSend) item.onClick = mnuSend_Click;
    Form3.mnuSendFolder.onClick = mnuSendFolder_Click;
    for (MenuItem& item : Form3.mnuRate) item.onClick = mnuRate_Click;
    Form3.mnuEdit.onClick = mnuEdit_Click;
    Form3.mnuMove.onClick = mnuMove_Click;
    for (MenuItem& item : Form3.mnuFind) item.onClick = mnuFind_Click;
    Form3.mnuRemove.onClick = mnuRemove_Click;
}

void wireSortMenu() {
    for (MenuItem& item : Form3.mnuSortz) item.onClick = mnuSortz_Click;
    Form3.mnuListAll2.onClick = mnuListAll2_Click;
}

void wireGroupMenu() {
    Form3.mnuNewGroup.onClick = mnuNewGroup_Click;
    Form3.mnuRenameGroup.onClick = mnuRenameGroup_Click;
    Form3.mnuRemoveGroup.onClick = mnuRemoveGroup_Click;
}

}  // namespace

void wireMenus() {
    wireMainMenu();
    wireEntryMenu();
    wireSortMenu();
    wireGroupMenu();
}

}  // namespace magpie
