// FileDialogUser: the user in front of the next common file dialog of this program. Made
// before the dialog is asked for; the answer is given while the dialog waits.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "platform/api/user32.h"

// What the user has seen on the dialog.
struct SeenFileDialog {
    std::string title;
    std::string name;  // in the box for the file's name, before the user did anything
    bool ownerEnabled = true;
};

class FileDialogUser {
public:
    // Types the choice and accepts it; without one, presses Cancel.
    FileDialogUser(win::HWND owner, std::optional<std::string> choice);
    ~FileDialogUser();
    FileDialogUser(const FileDialogUser&) = delete;
    FileDialogUser& operator=(const FileDialogUser&) = delete;

    // Complete once the dialog has ended.
    const SeenFileDialog& seen();

private:
    struct Hand;
    std::unique_ptr<Hand> hand_;
};
