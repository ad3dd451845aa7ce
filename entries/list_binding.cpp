#include "entries/list_binding.h"

#include "core/state.h"
#include "mainwindow/form3.h"
#include "mainwindow/status_panel.h"
#include "platform/runtime/decimal_text.h"
#include "platform/runtime/number_text.h"
#include "store/record_key.h"
#include "views/refresh.h"

namespace magpie {

namespace {

constexpr std::int32_t selectedItem = -1;

URLData& recordOf(std::string_view tag) {
    return uBlock.URLDatas().Item(recordKey(tag));
}

void updateRowWithTag(ListView& list, std::int32_t itemTag) {
    const URLData& record = recordOf(integerText(itemTag));
    const int rows = list.Count();
    for (int i = 1; i <= rows; ++i) {
        const ListRow row = list.Row(i);
        if (int32Of(row.Tag()) != itemTag) continue;
        Flannel(row, record);
        return;
    }
}

}  // namespace

// A row has all its sub-items from the start, so that filling it for the first time and
// writing it again are the same.
void Flannel(const ListRow& row, const URLData& record) {
    fillListRow(row, record);
}

void UpdateSelectedEntry(std::int32_t itemTag) {
    ListView& list = Form3.ListView1[lvIndex];
    if (list.Count() > 0) {
        if (itemTag == selectedItem) {
            const ListRow row = list.SelectedItem();
            Flannel(row, recordOf(row.Tag()));
        } else {
            updateRowWithTag(list, itemTag);
        }
    }
    UpdateMenus();
}

}  // namespace magpie
