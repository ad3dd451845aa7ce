#include "mainwindow/group_menu.h"

#include "mainwindow/form3.h"

namespace magpie {

namespace {

const MenuRow mnuIPop[] = {
    {0, &Form3.mnuNewGroup, "New"},
    {0, &Form3.mnuRenameGroup, "Rename"},
    {0, &Form3.mBrk16, "-"},
    {0, &Form3.mnuRemoveGroup, "Remove"},
};

}  // namespace

void designGroupMenu() {
    designMenu(mnuIPop);
}

void popUpGroupMenu() {
    PopupMenu(Form3, mnuIPop);
}

void popUpGroupMenu(win::POINT at) {
    PopupMenu(Form3, mnuIPop, at);
}

}  // namespace magpie
