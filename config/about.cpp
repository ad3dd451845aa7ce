// The about box, and the maker's addresses.
#include "config/companion.h"
#include "config/companion_host.h"
#include "config/pienest.h"
#include "config/version.h"
#include "core/state.h"
#include "mainwindow/form3.h"
#include "platform/runtime/word.h"

namespace magpie {

void showAbout(Form& owner) {
    LibraryDialog dialog;
    if (&owner == &Form3) dialog.lowerMainWindow();
    const AutomationObject out = newLibraryObject(pienest::out);
    const AutomationObject host = hostObject(owner);
    const Version version = programVersion();
    out.call("About",
             {host.lend(), appPath, std::int64_t{version.major}, std::int64_t{version.minor},
              std::int64_t{version.revision}, std::int64_t{wordTrue}});
}

void showContact(Form& owner, std::uint8_t what) {
    const AutomationObject out = newLibraryObject(pienest::out);
    const AutomationObject host = hostObject(owner);
    out.call("Contact", {host.lend(), std::int64_t{what}});
}

}  // namespace magpie
