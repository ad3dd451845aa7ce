#include "entries/add_entry.h"

#include "browser/capture.h"
#include "core/misc.h"
#include "core/state.h"
#include "entries/form2.h"
#include "mainwindow/form3.h"
#include "mainwindow/status_panel.h"
#include "platform/services/clock.h"
#include "store/group_lookup.h"
#include "store/records.h"
#include "views/refresh.h"

namespace magpie {

void mnuAddEntry_Click(int Index) {
    if (modalOpen > 0) return;
    switch (Index) {
        case 0: getURL(); break;
        case 1:
            modalOpen = D_NEW;
            showDialogModal(Form2);
            break;
        default: return;
    }
    // The entry was counted while the dialog made the commands on entries wait.
    if (Form3.loaded()) UpdateMenus();
}

void mnuNew_Click() {
    if (modalOpen != 0) return;
    modalOpen = D_NEW;
    Form2.Visible(true);
}

void QuickAdd(const std::string& url) {
    constexpr const char* name = "<Quick Add>";
    if (IDXList.uBound() < 1) return;
    const std::int32_t group = getCurrentIDX();
    const ListRow row = Form3.ListView1[lvIndex].Add(name);
    URLData& record = uBlock.URLDatas().Add(name, url, group);
    record.Created = now();
    ++urlsDirty;
    fillListRow(row, record);
    row.EnsureVisible();
    UpdatePanel();
}

}  // namespace magpie
