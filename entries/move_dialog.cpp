#include "entries/move_dialog.h"

#include "core/state.h"
#include "entries/bulk_list.h"
#include "entries/frm_move.h"
#include "entries/group_combo.h"
#include "entries/list_binding.h"
#include "entries/selection_walk.h"
#include "mainwindow/form3.h"

namespace magpie {

namespace {

constexpr double belowMain = 500;  // twips
constexpr std::int32_t selectedItem = -1;

}  // namespace

void frmMove_Load() {
    frmMove.Icon(Form3.Icon());
    BuildCatCombo(frmMove.Combo1);
    frmMove.Left(Form3.Left());
    frmMove.Top(Form3.Top() + belowMain);
    frmMove.Combo1.ListIndex(0);
}

void frmMove_Activate() {
    frmMove.Combo1.SetFocus();
}

// Without the main window there is nothing to be moved, and asking for its rows would bring it
// back.
void acceptCmd_Click() {
    if (SelectionWalk::waits()) return;
    if (!Form3.loaded()) {
        frmMove.unload();
        return;
    }
    const std::int32_t newCat = frmMove.Combo1.ItemData(frmMove.Combo1.ListIndex());
    MoveSelected(newCat, false);
    ++urlsDirty;
    UpdateSelectedEntry(selectedItem);
    frmMove.unload();
}

void frmMove_Unload() {
    frmMove.Combo1.Clear();
}

}  // namespace magpie
