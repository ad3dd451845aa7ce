// Clipboard: what it holds as text, and which program has it open.
#pragma once

#include "platform/api/types.h"

namespace win::memory {

struct Clipboard {
    bool open = false;           // by this program
    bool openElsewhere = false;  // by another one
    bool emptied = false;        // since it was opened
    HWND owner = nullptr;        // the window that opened it
    HGLOBAL text = nullptr;      // null while there is no text
};

Clipboard& clipboard();

// Puts a block, which becomes the clipboard's, or null in the place of what it holds.
void replaceClipboardText(HGLOBAL text);

}  // namespace win::memory
