#include "mainwindow/entry_menu.h"

#include "mainwindow/form3.h"

namespace magpie {

namespace {

const MenuRow mnuPopup[] = {
    {0, &Form3.mnuAddz, "Add"},
    {1, &Form3.mnuAddEntry[0], "From Browser", "Ctrl+B"},
    {1, &Form3.mnuAddEntry[1], "&New Entry", "Ctrl+A"},
    {0, &Form3.mnuSendz, "Send"},
    {1, &Form3.mnuSend[0], "Last Active"},
    {1, &Form3.mnuSend[1], "New Window"},
    {1, &Form3.mBrk01, "-"},
    {1, &Form3.mnuSendFolder, "Bookmarks Folder"},
    {0, &Form3.mBRK13, "-"},
    {0, &Form3.mnuRatez, "Rate"},
    {1, &Form3.mnuRate[0], "Not Rated"},
    {1, &Form3.mnuRate[1], "Low"},
    {1, &Form3.mnuRate[2], "Medium"},
    {1, &Form3.mnuRate[3], "High"},
    {1, &Form3.mnuRate[4], "Very High"},
    {0, &Form3.mnuEdit, "&Edit"},
    {0, &Form3.mnuMove, "Move"},
    {0, &Form3.mnuBrk6, "-"},
    {0, &Form3.mnuFindHd, "Find"},
    {1, &Form3.mnuFind[0], "Find", "Ctrl+F"},
    {1, &Form3.mnuFind[1], "Find Next", "Ctrl+N"},
    {1, &Form3.mnuFind[2], "Find Previous", "Ctrl+P"},
    {0, &Form3.mnuBrk2[1], "-"},
    {0, &Form3.mnuRemove, "Remove"},
};

}  // namespace

void designEntryMenu() {
    designMenu(mnuPopup);
}

void popUpEntryMenu() {
    PopupMenu(Form3, mnuPopup);
}

void popUpEntryMenu(win::POINT at) {
    PopupMenu(Form3, mnuPopup, at);
}

bool entryMenuShortcut(char letter) {
    const MenuRow* row = rowWithShortcut(mnuPopup, letter);
    return row != nullptr && chooseRow(mnuPopup, *row);
}

}  // namespace magpie
