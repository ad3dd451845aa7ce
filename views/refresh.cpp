#include "views/refresh.h"

#include <string>
#include <utility>

#include "core/state.h"
#include "mainwindow/form3.h"
#include "mainwindow/layout.h"
#include "mainwindow/status_panel.h"
#include "mainwindow/tab_screens.h"
#include "platform/controls/message_loop.h"
#include "platform/runtime/decimal_text.h"
#include "platform/runtime/failure.h"
#include "platform/services/clock.h"
#include "platform/services/screen.h"
#include "store/group_lookup.h"
#include "views/filter_decision.h"
#include "views/group_list.h"
#include "views/side_panel.h"

namespace magpie {

namespace {

// Every record on the Standard screen if "List All" is ticked, on the Advanced one
// unless the pick list shows one group at a time.
bool listsAll() {
    const bool ticked = Form3.mnuListAll.Checked;
    if (currentTab != 1) return ticked;
    return Form3.advMode != 1 || ticked;
}

Masks masksInForce(std::string textMask) {
    return {.rated = ratedMask,
            .visited = {visitedMode, visitedCount},
            .accessed = {accessedMode, accessedValue, accessedUnit},
            .added = {addedMode, addedValue, addedUnit},
            .text = std::move(textMask)};
}

std::string visitText(Date lastAccessed) {
    return lastAccessed.days <= 0 ? "Never" : dateText(lastAccessed);
}

const std::string& ratingText(const URLData& record) {
    const std::size_t rating = record.Rated.value();
    if (rating >= ratedNames.size()) throw Failure{failure::subscript};
    return ratedNames[rating];
}

void fillSubItems(const ListRow& row, const URLData& record) {
    row.SubItem(1, record.URL());
    row.SubItem(2, ratingText(record));
    row.SubItem(3, IDXList[record.Owner].Name);
    row.SubItem(4, visitText(record.LastAccesed));
    row.SubItem(5, dateText(record.Created));
    row.SubItem(6, integerText(record.Visited));
}

void fillList(ListView& list, Filter& filter) {
    const FillingList filling(list);
    for (URLData& record : uBlock.URLDatas())
        if (filter.passes(record)) fillSubItems(list.Add(record.Name(), record.ID()), record);
}

}  // namespace

void RefreshURLPage() {
    if (IDXList.uBound() < 1) return;
    std::string textMask = Form3.txtFilter.Text();
    const std::int16_t Index = GetSelectedIndex();
    if (Index == -1) return;
    Form3.maskIsInvalid = false;
    Form3.ListView1[lvIndex].Clear();
    {
        const Hourglass wait;
        DoEvents();
        Filter filter({listsAll(), Index, IDXList}, masksInForce(std::move(textMask)), now());
        try {
            fillList(Form3.ListView1[lvIndex], filter);
        } catch (const Failure& failed) {
            if (failed.number != failure::invalidPattern) throw;
            Form3.maskIsInvalid = true;
        }
    }
    UpdatePanel();
}

void fillListRow(const ListRow& row, const URLData& record) {
    row.Tag(record.ID());
    row.Text(record.Name());
    fillSubItems(row, record);
}

void refreshTabView() {
    if (currentTab == 1) buildFilterScrn();
    if (currentTab == 2) {
        Form3.Combo1[1].Clear();
        buildMainScrn();
    }
    RefreshURLPage();
}

void fullScrnRefresh(bool doRefresh) {
    if (currentTab == 1) {
        buildFilterScrn();
        UpdateFilterTab();
        rebuildGroupList(false);
        if (doRefresh) RefreshURLPage();
    }
    if (currentTab == 2) buildMainScrn();
    UpdatePanel();
}

}  // namespace magpie
