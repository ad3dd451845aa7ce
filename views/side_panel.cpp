#include "views/side_panel.h"

#include "core/state.h"
#include "mainwindow/form3.h"
#include "mainwindow/layout.h"
#include "mainwindow/main_menu.h"
#include "mainwindow/tab_screens.h"
#include "platform/controls/message_loop.h"
#include "platform/runtime/number_text.h"
#include "views/mask_controls.h"
#include "views/refresh.h"

namespace magpie {

namespace {

constexpr std::uint8_t indexMask = 0;
constexpr std::uint8_t groupList = 1;
constexpr std::uint8_t filterFace = 2;

void showMaskButtons(bool shown) {
    for (int i = 0; i <= 2; ++i) Form3.cmdIndex[i].Visible(shown);
    Form3.cmdIndex[3].Visible(!shown);
    Form3.indexPanelBox.Visible(true);
}

void showGroups(bool ticks, const char* heading) {
    Form3.filter3Box.Visible(false);
    Form3.ListView1[3].CheckBoxes(ticks);
    Form3.ListView1[3].ColumnHeading(1, heading);
    Form3.ListView1[3].Visible(true);
}

void tickAll(bool ticked) {
    for (std::int32_t i = 0; i < IDXList.uBound(); ++i) {
        Form3.ListView1[3].Row(i + 1).Checked(ticked);
        IDXList[i].Checked = ticked;
    }
}

void takeTicks() {
    for (std::int32_t i = 0; i < IDXList.uBound(); ++i) {
        const ListRow row = Form3.ListView1[3].Row(i + 1);
        IDXList[std::int32_t{int16Of(row.Tag())}].Checked = row.Checked();
    }
    RefreshURLPage();
}

void applyFilter() {
    takeMasks();
    savedAdvMode = Form3.advMode;
    RefreshURLPage();
}

void stepFace(int step) {
    Form3.advMode = static_cast<std::uint8_t>((Form3.advMode + step + 3) % 3);
    Form3.txtFilter.Text("");
    buildFilterScrn();
    UpdateFilterTab();
}

}  // namespace

bool showFace() {
    Form3.Picture1.Visible(Form3.filterAdvanced);
    if (!Form3.filterAdvanced) return false;
    switch (Form3.advMode) {
        case indexMask:
            setRatedBoxes(false);
            showGroups(true, "Index Mask");
            showMaskButtons(true);
            break;
        case groupList:
            setRatedBoxes(false);
            showGroups(false, "Group List");
            Form3.indexPanelBox.Visible(false);
            break;
        case filterFace:
            showMasks();
            Form3.filter3Box.Visible(true);
            Form3.ListView1[3].Visible(false);
            showMaskButtons(false);
            break;
        default: break;
    }
    return true;
}

void buildFilterScrn() {
    if (showFace()) DoEvents();
}

void Command3_Click(int Index) {
    switch (Index) {
        case 0: stepFace(-1); break;
        case 1: popUpMainMenu(); break;
        default: stepFace(1); break;
    }
}

void cmdIndex_Click(int Index) {
    switch (Index) {
        case 0: tickAll(true); break;
        case 1: tickAll(false); break;
        case 2: takeTicks(); break;
        case 3: applyFilter(); break;
        case 4: setRatedBoxes(false); break;
        default: setRatedBoxes(true); break;
    }
}

void indexFlipBox_Click() {
    Form3.filterAdvanced = !Form3.filterAdvanced;
    buildFilterScrn();
    UpdateFilterTab();
    setMiniIcons();
    Form3.ListView1[lvIndex].SetFocus();
}

}  // namespace magpie
