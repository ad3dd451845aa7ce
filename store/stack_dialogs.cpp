#include "store/stack_dialogs.h"

#include "core/misc.h"
#include "core/state.h"
#include "mainwindow/form3.h"
#include "platform/api/constants.h"
#include "platform/controls/common_dialog.h"
#include "platform/controls/message_box.h"
#include "platform/runtime/failure.h"
#include "platform/runtime/split.h"
#include "platform/runtime/word.h"
#include "platform/services/files.h"
#include "store/stack_file.h"

namespace magpie {

namespace {

CommonDialog stackDialog(const char* title) {
    CommonDialog dialog;
    dialog.DialogTitle = title;
    dialog.Filter = "(*.PNS)|*.pns";
    return dialog;
}

bool mayOverwrite() {
    return MsgBox("File Already Exists, Overwrite?", win::MB_YESNO) == win::IDYES;
}

// Asks on until the name is free or may be overwritten. A cancelled dialog leaves modalOpen and
// the main window's level as they are: the next dialog puts them right.
void settleName(CommonDialog& dialog) {
    modalOpen = 1;
    setTopMost(Form3, wordFalse);
    while (fileExists(dialog.FileName) && !mayOverwrite()) dialog.ShowSave();
    modalOpen = 0;
    setTopMost(Form3, word(mainOnTop));
}

}  // namespace

std::string OpenURLAs(bool merge) {
    try {
        CommonDialog dialog = stackDialog(merge ? "Merge From Pienest" : "Open Pienest As");
        dialog.ShowOpen();
        ReadStackFile(dialog.FileName, merge);
        return dialog.FileName;
    } catch (const Failure&) {
        return {};
    }
}

std::string SaveURLAs() {
    try {
        CommonDialog dialog = stackDialog("Save Pienest As");
        dialog.ShowSave();
        dialog.FileName = std::string(trimBlanks(dialog.FileName));
        settleName(dialog);
        WriteStackFile(dialog.FileName);
        return dialog.FileName;
    } catch (const Failure&) {
        return {};
    }
}

}  // namespace magpie
