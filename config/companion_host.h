// Companion host: what the companion library gets to see of the program: its forms, by the
// members that it may call, and the application.
#pragma once

#include <cstdint>
#include <string>

#include "platform/controls/form.h"
#include "platform/services/automation.h"

namespace magpie {

// Public on Form3, as is out_ShowHelpID; the library calls them by these names. Where a browser
// is installed, or empty.
std::string gcfg_findCurrentVersion(const std::string& exeName, const std::string& sValueName);

// The form as the library is given it: `hWnd`, and for Form3 its public methods.
AutomationObject hostObject(Form& form);

// The application: Title, Path, HelpFile, Major, Minor, Revision.
AutomationObject applicationObject();

// A new object of a class of the library, which lies in the program's own folder; no other folder
// and no registration counts. Raises 429.
AutomationObject newLibraryObject(const win::CLSID& classId);

// Holds the interface while a dialog of the library is up, and gives it back also when the
// library fails.
class LibraryDialog {
public:
    LibraryDialog();
    // `modalOpen` is 0 again.
    ~LibraryDialog();
    LibraryDialog(const LibraryDialog&) = delete;
    LibraryDialog& operator=(const LibraryDialog&) = delete;

    // Takes the main window off the top level for the rest of the time.
    void lowerMainWindow();

private:
    bool lowered_ = false;
};

}  // namespace magpie
