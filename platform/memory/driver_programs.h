// Driver, the other programs' part: browsers and their windows, programs that can be talked to
// by dynamic data exchange, what the shell has started, and the keys that the program has
// pressed.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/api/user32.h"
#include "platform/memory/dde_peers.h"
#include "platform/memory/keyboard.h"
#include "platform/memory/launches.h"
#include "platform/memory/shell_windows.h"

namespace win::memory::driver {

// ---- Windows of other programs -----------------------------------------------------

// Another program opens a window, above the others but not in the foreground. `onKey` gets the
// keys that are pressed while it is there.
HWND openOtherWindow(std::string_view className, std::string_view title,
                     std::function<void(int virtualKey, bool down)> onKey = {});
void closeOtherWindow(HWND window);
void retitleOtherWindow(HWND window, std::string_view title);

// The keys that the program has pressed so far, each with the window that was in the foreground.
const std::vector<SentKey>& keysSent();

// ---- Dynamic data exchange ---------------------------------------------------------

// A program that can be talked to from now on. The result stays good, and the program can be
// made another by it.
DdePeer& addDdePeer(DdePeer peer);
void removeDdePeers();

// ---- Automation --------------------------------------------------------------------

// One more window in the shell's collection, which is served from now on.
ShellWindow& addShellWindow(ShellWindow window);
// The program that serves the collection has ended.
void endShellWindows();

// ---- Programs that were started ----------------------------------------------------

const std::vector<Launch>& launched();

}  // namespace win::memory::driver
