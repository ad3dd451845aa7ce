// Clipboard: its text, shared with every other program.
//
// Every function opens the clipboard and closes it before it ends. One that another
// program holds open is tried again for a fraction of a second; each function raises 521
// when it can't be opened then, or when it refuses what is asked of it.
#pragma once

#include <string>
#include <string_view>

#include "platform/api/types.h"

namespace magpie {

namespace failure {
inline constexpr int clipboardUnavailable = 521;
}

// The text as bytes, up to its first NUL; empty when the clipboard holds no text.
std::string clipboardText();

// The clipboard then holds nothing and belongs to nobody: the next program that puts something
// there need not ask this one, which may be busy.
void clearClipboard();

// Clears whatever was there, too; a NUL in the text ends it for whoever reads it. `owner` is a
// window of this program, without which the system lets nobody put anything there.
void setClipboardText(win::HWND owner, std::string_view text);

}  // namespace magpie
