// hhctrl: the viewer of compiled help. The library is loaded at the first call, from the system's
// own folder; a program makes sure first that it is there.
#pragma once

#include "platform/api/constants.h"
#include "platform/api/types.h"

namespace win {

// Opens the file's first topic (HH_DISPLAY_TOPIC, `data` 0), or the one of this number
// (HH_HELP_CONTEXT). The viewer's window, or null without such a file or topic.
HWND HtmlHelpA(HWND caller, const char* file, UINT command, DWORD_PTR data);

}  // namespace win
