// uxtheme: visual styles of single windows.
#pragma once

#include "platform/api/types.h"

namespace win {

// Draws the window by the theme of that application and those class names, or, with a blank for
// each, without any. Answers 0 or the error.
HRESULT SetWindowTheme(HWND window, const wchar_t* application, const wchar_t* classNames);

}  // namespace win
