// The Group List of the side panel, ListView1(3).
#pragma once

namespace magpie {

// Fills the list from IDXList. Without `force` only while there is a group and the
// side panel shows a list.
void rebuildGroupList(bool force);

}  // namespace magpie
