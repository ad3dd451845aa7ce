// ole32: texts that the user drags from a program onto a window. What the platform asks of a
// drop target is the affair of the desktop's side; a window only says where its texts go.
#pragma once

#include <string_view>

#include "platform/api/constants.h"
#include "platform/api/types.h"

namespace win {

// Gets the bytes of a text that was dropped on the window, as far as the first NUL.
using TEXTDROPPROC = void (*)(HWND window, std::string_view text);

// From now on the window, and what is in it, takes drags that hold CF_TEXT and allow to copy
// it. Over any other drag the cursor says that it cannot be dropped there, and over all while
// the window or the top-level one that it stands in is disabled. Answers 0 or the error.
HRESULT RegisterDragDrop(HWND window, TEXTDROPPROC dropped);

// Has to be called before the window goes.
HRESULT RevokeDragDrop(HWND window);

}  // namespace win
