// The windows of Internet Explorer on the screen: the probes that look for the topmost one.
#pragma once

#include <string>

#include "platform/api/types.h"

namespace magpie {

// For EnumWindows: go on with -1, stop at a window of Internet Explorer's with 0 and its handle
// at the place that `found` points to.
win::BOOL ieTitleProbe(win::HWND window, win::LPARAM found);  // by its title
win::BOOL ieFrameProbe(win::HWND window, win::LPARAM found);  // by its class, as looked up last

// The topmost window by its title, or null.
win::HWND topmostByTitle();
// The topmost one by its class or, before the NT line, by its title; null when there is none. A
// folder's window has the same class: whose it is, only automation knows.
win::HWND topmostOfPlatform();

// Whether a window's title is one of Internet Explorer's.
bool isIeTitle(const std::string& title);

}  // namespace magpie
