#include "entries/url_information.h"

#include "browser/shortcut_files.h"
#include "core/misc.h"
#include "core/state.h"
#include "entries/bulk_list.h"
#include "entries/form2.h"
#include "entries/group_combo.h"
#include "entries/list_binding.h"
#include "entries/row_match.h"
#include "entries/selection_walk.h"
#include "mainwindow/form3.h"
#include "mainwindow/status_panel.h"
#include "platform/runtime/decimal_text.h"
#include "platform/runtime/resume_next.h"
#include "platform/runtime/split.h"
#include "platform/services/clock.h"
#include "store/group_lookup.h"
#include "store/record_key.h"
#include "store/records.h"

namespace magpie {

namespace {

constexpr std::int32_t selectedItem = -1;

TextBox& nameBox() {
    return Form2.Text1[0];
}

TextBox& urlBox() {
    return Form2.Text1[1];
}

ComboBox& ratingCombo() {
    return Form2.Combo1[0];
}

ComboBox& groupCombo() {
    return Form2.Combo1[1];
}

ListView& recordList() {
    return Form3.ListView1[lvIndex];
}

void showGroupControls(bool state) {
    Form2.Label5.Visible(state);
    groupCombo().Visible(state);
}

// One past the last row where no row is the group in view.
std::int32_t groupRowOfView() {
    const std::int16_t group = GetSelectedIndex();
    const int rows = groupCombo().ListCount();
    for (int row = 0; row < rows; ++row)
        if (groupCombo().ItemData(row) == group) return row;
    return rows;
}

std::int32_t chosenGroup() {
    return groupCombo().ItemData(groupCombo().ListIndex());
}

// The list writes "Never" for a date below 0 as well; here it has a text of its own.
std::string visitText(Date lastAccessed) {
    return lastAccessed.days == 0 ? "Never" : dateText(lastAccessed);
}

void trimBox(TextBox& box) {
    box.Text(std::string(trimBlanks(box.Text())));
}

// What can fail is asked for before the first field is written. The row is in step again before
// MoveSelected looks for its record by the row's texts; without a selected row there is none for
// it to find. Nothing here asks the dialog after that: it may have been closed meanwhile.
void acceptEdit() {
    URLData& record = uBlock.URLDatas().Item(Form2.toEdit);
    const std::int32_t newCat = chosenGroup();
    const Checked<std::uint8_t> rating = ratingCombo().ListIndex();
    (void)getCurrentIDX();
    record.Name(nameBox().Text());
    record.URL(urlBox().Text());
    record.Rated = rating;
    UpdateSelectedEntry(selectedItem);
    if (selectedCount() == 0 || SelectionWalk::waits()) record.Owner = newCat;
    MoveSelected(newCat, true);
    modalOpen = 0;
    UpdateSelectedEntry(selectedItem);
    ++urlsDirty;
}

void showNewRow(const URLData& record) {
    const ListRow row = recordList().Add(record.Name());
    Flannel(row, record);
    row.EnsureVisible();
}

// A main window that was flushed under the dialog comes back, and with it the store, when
// it is asked for the group in view: so that is asked first.
void acceptNew() {
    const std::int32_t group = chosenGroup();
    if (group < 0) return;
    const bool inView = GetSelectedIndex() == group;
    URLData& record = uBlock.URLDatas().Add(nameBox().Text(), urlBox().Text(), group);
    record.Rated = ratingCombo().ListIndex();
    // Nobody asks for this number, so a row that no byte can hold must not cost the entry.
    record.Catagory = static_cast<std::uint8_t>(groupCombo().ListIndex());
    record.Created = now();
    writeShortcut(record.Name(), record.URL(), groupCombo().Caption());
    if (inView) showNewRow(record);
    UpdatePanel();
    ++urlsDirty;
}

void store() {
    if (modalOpen == D_EDIT)
        acceptEdit();
    else if (modalOpen == D_NEW)
        acceptNew();
}

void fillForItsPurpose() {
    if (modalOpen == D_EDIT) {
        showGroupControls(true);
        EditSelected();
    }
    if (modalOpen == D_NEW) {
        showGroupControls(true);
        CreateNew();
    }
}

}  // namespace

void EditSelected() {
    singleSelect(false);
    Form2.toEdit = recordKey(recordList().SelectedItem().Tag());
    const URLData& record = uBlock.URLDatas().Item(Form2.toEdit);
    nameBox().Text(record.Name());
    urlBox().Text(record.URL());
    ratingCombo().ListIndex(record.Rated);
    Form2.Label3[0].Caption(dateText(record.Created));
    groupCombo().ListIndex(groupRowOfView());
    Form2.Label3[1].Caption(visitText(record.LastAccesed));
    Form2.Label3[2].Caption(integerText(record.Visited));
    nameBox().selectAll();
}

void CreateNew() {
    nameBox().Text("");
    urlBox().Text("http://");
    ratingCombo().ListIndex(0);
    groupCombo().ListIndex(groupRowOfView());
}

// A dialog that could not be filled comes up all the same, and in its place.
void Form2_Load() {
    Form2.Icon(Form3.Icon());
    BuildCatCombo(groupCombo());
    ResumeNext(fillForItsPurpose, [] { centerOnMain(Form2); });
}

// A prefilled name is overtyped by the first key.
void Form2_Activate() {
    nameBox().SetFocus();
    nameBox().selectAll();
}

void Form2_Unload() {
    modalOpen = 0;
    Form2.toEdit.clear();
}

// A page that is turned away keeps what its controls hold.
void TabStrip_Click() {
    const int selected = Form2.TabStrip.SelectedTab() - 1;
    for (magpie::Frame& page : Form2.Frame) {
        const bool shown = page.Index == selected;
        if (!shown && page.holdsFocus()) Form2.TabStrip.SetFocus();
        page.Left(shown ? pageAtRest : pageAway);
        page.Enabled(shown);
    }
}

void acceptEntry_Click() {
    trimBox(nameBox());
    trimBox(urlBox());
    try {
        store();
    } catch (const Failure&) {
        if (modalOpen == 0) Form2.unload();
        throw;
    }
    modalOpen = 0;
    Form2.unload();
}

void cancelEntry_Click() {
    Form2.unload();
}

}  // namespace magpie
