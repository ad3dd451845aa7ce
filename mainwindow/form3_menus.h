// The items of the main window's four popup menus. A menu itself has no caption and no
// place in a menu bar: it is there to be popped up.
#pragma once

#include "platform/controls/control_array.h"
#include "platform/controls/menu.h"

namespace magpie {

// Menu items that share a name and are told apart by an index.
template <int First, int Last>
using MenuArray = ControlArray<MenuItem, First, Last>;

struct MainMenus {
    // mnuList(1), the menu of "<<" and "Menu"
    MenuItem mnuNewCombo;
    MenuItem mnuRenameCombo;
    MenuItem mnuRemoveCombo;
    MenuItem bk1;
    MenuItem mnuSettingz;
    MenuItem mnuSettingsDLL;
    MenuItem mB89;
    MenuArray<0, 1> mnuSettings;
    MenuItem mnuB10;
    MenuItem mnuFullwindow;
    MenuItem mBrkE;
    MenuItem mnuEject;
    MenuItem mB12;
    MenuItem mnuOpenz;
    MenuArray<0, 1> mnuOpen;
    MenuItem mnuMergez;
    MenuArray<0, 2> mnuMerge;
    MenuItem mnuSavez;
    MenuArray<0, 1> mnuSave;
    MenuItem mnuListAll;
    MenuItem mnuBreak;
    MenuItem mnuFree;
    MenuItem mbkz;
    MenuArray<1, 1> mnuClose;
    MenuItem mnuAbout;
    MenuItem mnuHelp;
    MenuItem mnuUnload;
    MenuItem mB11;
    MenuItem mnuLoadAll;
    MenuItem mnuSaveAll;

    // mnuPopup, the menu of the record lists
    MenuItem mnuAddz;
    MenuArray<0, 1> mnuAddEntry;
    MenuItem mnuSendz;
    MenuArray<0, 1> mnuSend;
    MenuItem mBrk01;
    MenuItem mnuSendFolder;
    MenuItem mBRK13;
    MenuItem mnuRatez;
    MenuArray<0, 4> mnuRate;
    MenuItem mnuEdit;
    MenuItem mnuMove;
    MenuItem mnuBrk6;
    MenuItem mnuFindHd;
    MenuArray<0, 2> mnuFind;
    MenuArray<1, 1> mnuBrk2;
    MenuItem mnuRemove;

    // mnuSort, the menu of "F"
    MenuArray<0, 8> mnuSortz;
    MenuItem mnuListAll2;

    // mnuIPop, the menu of the Group List
    MenuItem mnuNewGroup;
    MenuItem mnuRenameGroup;
    MenuItem mBrk16;
    MenuItem mnuRemoveGroup;
};

// The routines behind the items. Once, before the form loads.
void wireMenus();

}  // namespace magpie
