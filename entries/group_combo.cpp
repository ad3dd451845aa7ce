#include "entries/group_combo.h"

#include "core/state.h"

namespace magpie {

void BuildCatCombo(ComboBox& catCombo) {
    for (std::int32_t i = 0; i < IDXList.uBound(); ++i) {
        catCombo.AddItem(IDXList[i].Name);
        catCombo.ItemData(catCombo.NewIndex(), IDXList[i].GroupID);
    }
}

}  // namespace magpie
