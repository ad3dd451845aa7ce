#include "platform/memory/help.h"

#include "platform/api/hhctrl.h"
#include "platform/memory/files.h"
#include "platform/memory/refuse.h"

namespace win {

namespace memory {

std::vector<HelpCall>& helpCalls() {
    static std::vector<HelpCall> calls;
    return calls;
}

}  // namespace memory

using namespace memory;

HWND HtmlHelpA(HWND caller, const char* file, UINT command, DWORD_PTR data) {
    if (command != HH_DISPLAY_TOPIC && command != HH_HELP_CONTEXT) refuse("HtmlHelpA", command);
    helpCalls().push_back({caller, file, command, data});
    // The viewer's window belongs to no program of this desktop: only whether there is one shows.
    if (!fileAt(diskPath(file).full)) return nullptr;
    refuse("HtmlHelpA", "a file that is there");
}

}  // namespace win
