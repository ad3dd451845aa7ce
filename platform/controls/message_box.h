// MsgBox: a question or a notice over the program's active window.
#pragma once

#include <string>

#include "platform/api/types.h"

namespace magpie {

// `buttons` are the platform's MB_ flags; the answer is one of its ID numbers. Without a
// title of its own the box bears the application's.
int MsgBox(const std::string& text, win::UINT buttons, const char* title = "Magpie");

}  // namespace magpie
