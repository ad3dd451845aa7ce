// CommonDialog: the desktop's dialogs for opening and saving files.
#pragma once

#include <string>

#include "platform/api/comdlg32.h"

namespace magpie {

class CommonDialog {
public:
    std::string DialogTitle;
    // Pairs of description and pattern, all joined by "|".
    std::string Filter;
    // The name offered, and after the dialog the full path chosen.
    std::string FileName;

    // Raise 32755 when the user cancels.
    void ShowOpen();
    void ShowSave();

private:
    void show(win::BOOL (*dialog)(win::OPENFILENAMEA*));
};

}  // namespace magpie
