// What the events of "Move to..." run: event on the left, routine on the right.
#include "entries/frm_move.h"
#include "entries/move_dialog.h"

namespace magpie {

void wireFrmMove() {
    frmMove.makeControls = makeFrmMove;
    frmMove.onLoad = frmMove_Load;
    frmMove.onActivate = frmMove_Activate;
    frmMove.onUnload = frmMove_Unload;

    frmMove.acceptCmd.onClick = acceptCmd_Click;
}

}  // namespace magpie
