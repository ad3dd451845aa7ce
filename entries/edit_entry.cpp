#include "entries/edit_entry.h"

#include "core/misc.h"
#include "core/state.h"
#include "entries/form2.h"
#include "mainwindow/form3.h"

namespace magpie {

void mnuEdit_Click() {
    if (modalOpen > 0 || Form3.ListView1[lvIndex].Count() == 0) return;
    modalOpen = D_EDIT;
    showDialogModal(Form2);
}

}  // namespace magpie
