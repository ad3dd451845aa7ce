#include "store/stack_commands.h"

#include "config/companion.h"
#include "config/config.h"
#include "core/state.h"
#include "mainwindow/form3.h"
#include "mainwindow/status_panel.h"
#include "mainwindow/tab_screens.h"
#include "store/group_lookup.h"
#include "store/stack_dialogs.h"
#include "store/stack_file.h"
#include "views/group_list.h"
#include "views/refresh.h"
#include "views/side_panel.h"

namespace magpie {

namespace {

void rebuildScreen() {
    if (currentTab == 2) buildMainScrn();
    if (currentTab == 1) {
        buildFilterScrn();
        rebuildGroupList(true);
        RefreshURLPage();
    }
    UpdatePanel();
}

}  // namespace

// A cancelled dialog has opened nothing, and the screen is rebuilt all the same.
void mnuOpen_Click(int Index) {
    if (Index == 0) Populate();
    if (Index == 1) OpenURLAs(false);
    reloadLastGroup();
    rebuildScreen();
    selectGroupItem(Form3.lastIDX2);
}

void mnuMerge_Click(int Index) {
    if (Index == 0) OpenURLAs(true);
    if (Index == 1) importFavorites();
    if (Index == 2) importNetscape();
    fullScrnRefresh(true);
}

void mnuSave_Click(int Index) {
    if (Index == 0) DePopulate();
    if (Index == 1) SaveURLAs();
}

void mnuLoadAll_Click() {
    mnuOpen_Click(0);
    loadConfig();
}

void mnuSaveAll_Click() {
    saveConfig();
    DePopulate();
}

}  // namespace magpie
