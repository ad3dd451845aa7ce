// Groups: adding one to IDXList.
#pragma once

#include <string_view>

namespace magpie {

// Adds a group at the end, ticked, with IDXCount as its GroupID, and counts it. The name is taken
// as it is; names may repeat. Marks nothing as changed and shows nothing: the callers do. Raises
// Failure 6 when IDXCount is at 32,767; the group has been added then.
void NewCatagory(std::string_view newCat);

}  // namespace magpie
