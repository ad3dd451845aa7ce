// Sending an address to the user's browser.
#pragma once

#include <string>

namespace magpie {

// Cuts the selection of the list in view down to the row of its selected item, and hands
// the address to the browser of the settings: to the window active last, or to a new one.
// The main window steps aside for a browser that was handed the address by keystrokes or by
// dynamic data exchange, if the pad is on; one that is started or driven by automation comes
// up by itself. Raises nothing; what can't be sent is dropped without a word.
void sendURL(const std::string& url, bool newWindow);

}  // namespace magpie
