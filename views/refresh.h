// The list refresh engine: turns the store into the rows of the record list in view.
#pragma once

#include "platform/controls/list_view.h"
#include "store/records.h"

namespace magpie {

// Rebuilds the record list in view. The rows stay as they are while there is no
// group, or none in view. An invalid pattern in the text mask ends the refresh with
// the rows it got so far and a word in the status bar.
void RefreshURLPage();

// Writes a record into a row that has no texts yet.
void fillListRow(const ListRow& row, const URLData& record);

// Rebuilds the screen on show, then the list.
void refreshTabView();

// Rebuilds the screen on show and the panel; on the Advanced screen also the group
// list, and the record list if `doRefresh`.
void fullScrnRefresh(bool doRefresh);

}  // namespace magpie
