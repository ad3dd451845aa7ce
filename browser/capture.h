// Capture: the page on show in the user's browser as a new entry.
#pragma once

namespace magpie {

// Reads the page's title and address, by the road that the settings choose, and opens the URL
// Information dialog with them. Does nothing while something holds the interface or another
// capture is on its way, and ends without a word when there is no page to be had.
void getURL();

// The road by automation. Counts as a change of the store, whatever the user does in the dialog.
void readIEDirect();

}  // namespace magpie
