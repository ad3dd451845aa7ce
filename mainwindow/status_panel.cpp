#include "mainwindow/status_panel.h"

#include <initializer_list>
#include <string>

#include "core/state.h"
#include "mainwindow/form3.h"
#include "store/records.h"

namespace magpie {

namespace {

constexpr std::uint8_t findDialog = 4;  // in modalOpen
constexpr int advanced = 1;             // tabs
constexpr int standard = 2;
constexpr std::uint8_t groupListFace = 1;  // faces of the side panel
constexpr std::uint8_t filterFace = 2;

void enable(std::initializer_list<MenuItem*> items, bool enabled) {
    for (MenuItem* item : items) item->Enabled = enabled;
}

// True while a dialog on entries is up, which makes most commands wait.
bool entriesHeld() {
    return modalOpen == D_EDIT || modalOpen == D_NEW || modalOpen == findDialog;
}

void updateWithRows() {
    enable({&Form3.mnuRemoveCombo, &Form3.mnuRemoveGroup, &Form3.mnuRemove, &Form3.mnuEdit,
            &Form3.mnuOpenz, &Form3.mnuMergez, &Form3.mnuMove, &Form3.mnuFindHd, &Form3.mnuAddz,
            &Form3.mnuSendz, &Form3.mnuRatez},
           !entriesHeld());
    enable({&Form3.mnuFind[1], &Form3.mnuFind[2]}, !findText.empty());
}

// What opens, merges and repeats a search stays as it was.
void updateWithoutRows() {
    enable({&Form3.mnuRemove, &Form3.mnuEdit, &Form3.mnuFindHd, &Form3.mnuSendz, &Form3.mnuMove,
            &Form3.mnuRatez},
           false);
}

// False when there is nothing that a command on rows could do.
bool updateForGroups() {
    const bool anyGroup = IDXList.uBound() >= 1;
    enable({&Form3.mnuRenameCombo, &Form3.mnuRenameGroup, &Form3.mnuRemoveCombo,
            &Form3.mnuRemoveGroup, &Form3.mnuAddz},
           anyGroup);
    if (anyGroup) Form3.mnuRatez.Enabled = true;
    return anyGroup && Form3.ListView1[lvIndex].Count() > 0;
}

// The pick list shows one group at a time, and so does the Standard tab.
void updateForScreen() {
    if (currentTab == advanced && Form3.advMode != groupListFace)
        Form3.mnuRemoveCombo.Enabled = false;
    const bool shown =
        currentTab == standard || (currentTab == advanced && Form3.advMode != filterFace);
    for (MenuItem* item :
         {&Form3.mnuRenameCombo, &Form3.mnuRemoveCombo, &Form3.mnuNewCombo, &Form3.bk1})
        item->Visible = shown;
}

std::string viewedText() {
    return "Viewed: " + std::to_string(Form3.ListView1[lvIndex].Count());
}

}  // namespace

void UpdatePanel() {
    Form3.StatusBar1.Pane(1, Form3.maskIsInvalid ? "Invalid filter pattern" : viewedText());
    Form3.StatusBar1.Pane(2, "Total: " + std::to_string(uBlock.URLDatas().Count()));
    UpdateMenus();
}

// Later steps override earlier ones.
void UpdateMenus() {
    Form3.mnuSavez.Enabled = uBlock.URLDatas().Count() >= 1;
    if (updateForGroups())
        updateWithRows();
    else
        updateWithoutRows();
    updateForScreen();
}

}  // namespace magpie
