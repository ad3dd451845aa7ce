#include "entries/bulk_commands.h"

#include <string>

#include "browser/send_url.h"
#include "core/misc.h"
#include "core/state.h"
#include "entries/bulk_list.h"
#include "entries/frm_move.h"
#include "entries/row_match.h"
#include "entries/selection_walk.h"
#include "mainwindow/same_main_window.h"
#include "mainwindow/status_panel.h"
#include "platform/api/constants.h"
#include "platform/controls/message_box.h"
#include "platform/runtime/failure.h"
#include "platform/runtime/word.h"

namespace magpie {

namespace {

// A single row goes without a question.
bool confirmsRemoval(std::int32_t count) {
    if (count <= 1) return true;
    std::string question = "Remove ";
    question.append(std::to_string(count)).append(" items, are you sure?");
    return MsgBox(question, win::MB_YESNO | win::MB_ICONWARNING, "Confirm Delete") == win::IDYES;
}

// A flush under the question, or while the walk waits at a row, ends the command, and nothing
// holds the interface of the next main window.
bool flushed(const SameMainWindow& begun) {
    if (begun.isThere()) return false;
    modalOpen = 0;
    return true;
}

void removeRows(const SameMainWindow& begun) {
    try {
        RemoveSelected();
    } catch (const Failure&) {
        flushed(begun);
        throw;
    }
}

}  // namespace

void mnuRate_Click(int Index) {
    RateSelected(static_cast<std::int16_t>(Index), false);
}

void mnuMove_Click() {
    if (SelectionWalk::waits()) return;
    setTopMost(Form3, wordFalse);
    modalOpen = plainDialog;
    frmMove.showModal();
    modalOpen = 0;
    setTopMost(Form3, word(mainOnTop));
}

// A No leaves the interface held and the main window off its level; the next dialog gives
// both back.
void mnuRemove_Click() {
    if (SelectionWalk::waits()) return;
    const SameMainWindow begun;
    const std::int32_t count = selectedCount();
    modalOpen = plainDialog;
    setTopMost(Form3, wordFalse);
    const bool confirmed = confirmsRemoval(count);
    if (flushed(begun) || !confirmed) return;
    removeRows(begun);
    modalOpen = 0;
    setTopMost(Form3, word(mainOnTop));
    UpdatePanel();
}

void mnuSend_Click(int Index) {
    constexpr int urlColumn = 1;
    const std::string url = Form3.ListView1[lvIndex].SelectedItem().SubItem(urlColumn);
    const SameMainWindow mainWindow;
    if (Index == 0) sendURL(url, false);
    if (Index == 1) sendURL(url, true);
    if (mainWindow.isThere()) ++urlsDirty;
}

void mnuSendFolder_Click() {
    SendSelectedToFolder();
}

}  // namespace magpie
