// The dialog "Move to...": its controls, in tab order. All sizes are twips.
#include "entries/frm_move.h"

namespace magpie {

MoveForm::MoveForm()
    : Form({.className = "frmMove",
            .caption = "Move to...",
            .border = BorderStyle::fixedDialog,
            .clientWidth = 4440,
            .clientHeight = 585}) {}

void makeFrmMove() {
    frmMove.Combo1.create(frmMove, {120, 135, 3000, 315}, "Group", true);
    frmMove.acceptCmd.create(frmMove, {3240, 120, 1080, 345}, "Accept");
    frmMove.acceptCmd.makeDefault();
}

}  // namespace magpie
