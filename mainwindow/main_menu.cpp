#include "mainwindow/main_menu.h"

#include "config/companion.h"
#include "config/config.h"
#include "config/help.h"
#include "mainwindow/form3.h"
#include "mainwindow/status_panel.h"

namespace magpie {

namespace {

const MenuRow mnuList1[] = {
    {0, &Form3.mnuNewCombo, "&New Group"},
    {0, &Form3.mnuRenameCombo, "&Rename Group"},
    {0, &Form3.mnuRemoveCombo, "Remove Group"},
    {0, &Form3.bk1, "-"},
    {0, &Form3.mnuSettingz, "Settings"},
    {1, &Form3.mnuSettingsDLL, "Preferences"},
    {1, &Form3.mB89, "-"},
    {1, &Form3.mnuSettings[0], "Load Settings"},
    {1, &Form3.mnuSettings[1], "Save Settings"},
    {1, &Form3.mnuB10, "-"},
    {1, &Form3.mnuFullwindow, "Full Window (ESQ)"},
    {1, &Form3.mBrkE, "-"},
    {1, &Form3.mnuEject, "Eject Bookmarks"},
    {1, &Form3.mB12, "-"},
    {1, &Form3.mnuOpenz, "&Open URLs"},
    {2, &Form3.mnuOpen[0], "&Open Default"},
    {2, &Form3.mnuOpen[1], "Open &As"},
    {1, &Form3.mnuMergez, "Merge From"},
    {2, &Form3.mnuMerge[0], "Magpie .PNS"},
    {2, &Form3.mnuMerge[1], "IE Favorites"},
    {2, &Form3.mnuMerge[2], "Netscape .HTM"},
    {1, &Form3.mnuSavez, "&Save URLs"},
    {2, &Form3.mnuSave[0], "Save Default"},
    {2, &Form3.mnuSave[1], "Save As"},
    {0, &Form3.mnuListAll, "List All"},
    {0, &Form3.mnuBreak, "-"},
    {0, &Form3.mnuFree, "Flush to Tray"},
    {0, &Form3.mbkz, "-"},
    {0, &Form3.mnuClose[1], "&Hide"},
    {0, &Form3.mnuAbout, "&About"},
    {0, &Form3.mnuHelp, "Help"},
    {0, &Form3.mnuUnload, "Unload"},
    {0, &Form3.mB11, "-"},
    {0, &Form3.mnuLoadAll, "Load All"},
    {0, &Form3.mnuSaveAll, "Save All"},
};

}  // namespace

void designMainMenu() {
    designMenu(mnuList1);
}

void popUpMainMenu() {
    UpdateMenus();
    PopupMenu(Form3, mnuList1);
}

void mnuSettings_Click(int Index) {
    if (Index == 0) {
        earlyConfig();
        loadConfig();
    } else {
        lateSave();
        saveConfig();
    }
}

void mnuAbout_Click() {
    showAbout(Form3);
}

void mnuHelp_Click() {
    showHelp(Form3);
}

}  // namespace magpie
