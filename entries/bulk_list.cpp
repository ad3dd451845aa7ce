#include "entries/bulk_list.h"

#include "browser/shortcut_files.h"
#include "core/state.h"
#include "entries/row_match.h"
#include "entries/selection_walk.h"
#include "platform/api/constants.h"
#include "store/group_lookup.h"
#include "store/records.h"

namespace magpie {

namespace {

// Rows that were cut count as selected where nothing of them is shown afterwards.
constexpr win::UINT selectedMark = win::LVIS_SELECTED;
constexpr win::UINT selectedOrCut = win::LVIS_SELECTED | win::LVIS_CUT;

constexpr int ratingColumn = 2;
constexpr int groupColumn = 3;

constexpr std::uint8_t singleGroup = 1;  // in savedAdvMode

void deselect(std::int32_t row) {
    setRowState(row, 0, win::LVIS_SELECTED);
}

// A row of another group than the one in view may be on show also where a single group is kept
// to, and is met again.
void showGroup(const SelectionWalk& walk, const URLData& record) {
    const std::string& name = IDXList[record.Owner].Name;
    if (walk.texts()[groupColumn] != name) setRowText(walk.row(), groupColumn, name);
}

}  // namespace

void RemoveSelected() {
    if (SelectionWalk::waits()) return;
    const Checked<std::int16_t> remaining = selectedCount();
    SelectionWalk walk(selectedOrCut, 0, remaining);
    while (walk.nextRecord()) {
        walk.deleteRecord();
        deleteRow(walk.row());
    }
    ++urlsDirty;
}

void RateSelected(std::int16_t Index, bool markOnly) {
    if (SelectionWalk::waits()) return;
    SelectionWalk walk(selectedMark, markOnly ? selectionMark() : selectionStart(),
                       markOnly ? 1 : selectedCount());
    while (walk.nextRecord()) {
        walk.record().Rated = Index;
        deselect(walk.row());
        setRowText(walk.row(), ratingColumn, ratingName(static_cast<std::size_t>(Index)));
    }
    ++urlsDirty;
}

void MoveSelected(std::int32_t newCat, bool) {
    if (SelectionWalk::waits()) return;
    const std::int32_t current = getCurrentIDX();
    SelectionWalk walk(selectedMark, selectionStart(), selectedCount());
    while (walk.nextRecord()) {
        URLData& record = walk.record();
        record.Owner = newCat;
        if (savedAdvMode == singleGroup && record.Owner != current) {
            deleteRow(walk.row());
            continue;
        }
        if (savedAdvMode != singleGroup) deselect(walk.row());
        showGroup(walk, record);
    }
    ++urlsDirty;
}

void SendSelectedToFolder() {
    if (SelectionWalk::waits()) return;
    SelectionWalk walk(selectedOrCut, 0, selectedCount());
    while (walk.nextRow()) {
        const RowTexts& texts = walk.texts();
        writeShortcut(texts[0], texts[1], texts[3]);
        deselect(walk.row());
    }
    ++urlsDirty;
}

}  // namespace magpie
