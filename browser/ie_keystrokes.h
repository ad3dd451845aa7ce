// The roads to and from Internet Explorer by keystrokes and the clipboard, which loses what it
// held. A window that comes in between gets the keys.
#pragma once

#include <string>

namespace magpie {

// Reads the title and the address of the topmost window and opens the URL Information dialog
// with them. Ends without a word when there is no such window, and leaves nothing held.
void copyFromIE();

// Types the address into the topmost window. False when there is none, or when the clipboard
// can't be had; then nothing was sent, or only the key that goes to the address bar.
bool pasteIntoIE(const std::string& url);

}  // namespace magpie
