#include "views/group_list.h"

#include "core/state.h"
#include "mainwindow/form3.h"
#include "platform/controls/message_loop.h"
#include "platform/runtime/decimal_text.h"
#include "store/group_lookup.h"

namespace magpie {

void rebuildGroupList(bool force) {
    if (!force && !(IDXList.uBound() >= 1 && Form3.advMode < 2)) return;
    ListView& groups = Form3.ListView1[3];
    groups.Clear();
    for (std::int32_t i = 0; i < IDXList.uBound(); ++i) {
        const IDXEntry& group = IDXList[i];
        groups.Add(group.Name, integerText(group.GroupID)).Checked(group.Checked);
    }
    if (groups.Count() > 0) {
        selectGroupItem(Form3.lastIDX2);
        groups.SelectedItem().EnsureVisible();
    }
    DoEvents();
}

}  // namespace magpie
