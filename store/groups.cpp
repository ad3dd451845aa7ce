#include "store/groups.h"

#include <string>
#include <utility>

#include "core/state.h"

namespace magpie {

void NewCatagory(std::string_view newCat) {
    std::string name(newCat);  // the text may be a name in the array that grows now
    IDXList.resize(IDXList.uBound() + 1);
    IDXEntry& group = IDXList[IDXList.uBound() - 1];
    group.Name = std::move(name);
    group.Checked = true;
    group.GroupID = IDXCount;
    ++IDXCount;
}

}  // namespace magpie
