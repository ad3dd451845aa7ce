// The main window's controls, in tab order: what is made first is reached first and
// lies over what is made later. All sizes are twips.
#include "mainwindow/entry_menu.h"
#include "mainwindow/form3.h"
#include "mainwindow/group_menu.h"
#include "mainwindow/main_menu.h"
#include "mainwindow/sort_menu.h"

namespace magpie {

namespace {

constexpr double parked = -20000;   // a screen out of sight
constexpr double firstPane = 3300;  // ends behind the flip box, which lies over the bar

struct Column {
    const char* heading;
    double width;
};

constexpr Column recordColumns[] = {
    {"Title", 2400},        {"URL", 2400},     {"Rated", 900},   {"Group", 1200},
    {"Last Visited", 1680}, {"Created", 1680}, {"Visited", 720},
};

void makeRecordList(int index, Container& screen, const Place& place) {
    ListView& list = Form3.ListView1[index];
    list.create(screen, place, "Bookmarks", ListView::Selection::multiple);
    for (const Column& column : recordColumns) list.addColumn(column.heading, column.width);
    list.takeTextDrops();
}

void makeModes(ComboBox& combo, Container& frame, const Place& place, const char* name) {
    combo.create(frame, place, name);
    for (const char* mode : {"OFF", "More Than", "Less Than", "Equal To"}) combo.AddItem(mode);
}

void makeUnits(ComboBox& combo, Container& frame, const Place& place, const char* name) {
    combo.create(frame, place, name);
    for (const char* unit : {"Days", "Weeks", "Months"}) combo.AddItem(unit);
}

void makeRatings() {
    constexpr const char* ratings[] = {"Not Rated", "Low", "Medium", "High", "Very High"};
    Form3.Frame2.create(Form3.filter3Box, {36, 0, 1956, 2148}, "");
    for (CheckBox& box : Form3.ratedBox)
        box.create(Form3.Frame2, {204, 324.0 + 270 * box.Index, 1548, 240}, ratings[box.Index]);
    Form3.Picture3.create(Form3.Frame2, {156, 1752, 1644, 252});
    Form3.cmdIndex[4].create(Form3.Picture3, {0, 0, 804, 252}, "Clear");
    Form3.cmdIndex[5].create(Form3.Picture3, {840, 0, 804, 252}, "Set");
}

// A strip lies over the upper edge of its frame, as a caption does, and is reached
// before what is in it.
void makeStrip(int i, const char* caption) {
    Form3.slideSwitch[i].create(Form3.filter3Box, {144, 400.0 * i, 1740, 396}, "");
    Form3.slideButton[i].create(Form3.slideSwitch[i], {48, 144, 1644, 204}, caption);
}

void makeFilterStrips() {
    Form3.filter3Box.create(Form3.slideBox, {0, 0, 2028, 2300});
    Form3.filter3Box.Visible(false);

    makeStrip(0, "Importance Masks");
    makeRatings();

    makeStrip(1, "Visited");
    Form3.visitedFrame.create(Form3.filter3Box, {36, 0, 1956, 1500}, "");
    makeModes(Form3.Combo3[0], Form3.visitedFrame, {156, 420, 1644, 315}, "Visited Mode");
    Form3.Text2[0].create(Form3.visitedFrame, {156, 915, 804, 285}, "");
    Form3.timesLabel.create(Form3.visitedFrame, {1050, 960, 750, 195}, "Times");

    makeStrip(2, "Last Accessed");
    Form3.accessedFrame.create(Form3.filter3Box, {36, 0, 1956, 1476}, "");
    makeModes(Form3.Combo3[1], Form3.accessedFrame, {156, 420, 1644, 315}, "Last Accessed Mode");
    Form3.Text2[1].create(Form3.accessedFrame, {156, 915, 660, 285}, "");
    makeUnits(Form3.Combo3[2], Form3.accessedFrame, {876, 900, 924, 315}, "Last Accessed Unit");

    makeStrip(3, "Added");
    Form3.addedFrame.create(Form3.filter3Box, {36, 0, 1956, 1476}, "");
    makeModes(Form3.Combo3[3], Form3.addedFrame, {156, 420, 1644, 315}, "Added Mode");
    Form3.Text2[2].create(Form3.addedFrame, {156, 915, 660, 285}, "");
    makeUnits(Form3.Combo3[4], Form3.addedFrame, {876, 900, 924, 315}, "Added Unit");

    makeStrip(4, "Text Masking");
    Form3.Frame4.create(Form3.filter3Box, {36, 0, 1956, 828}, "");
    Form3.txtFilter.create(Form3.Frame4, {156, 360, 1644, 285}, "");
}

void makeSidePanel() {
    Form3.Picture1.create(Form3.filtPicBox, {3912, 72, 2052, 324});
    Form3.Command3[0].create(Form3.Picture1, {0, 0, 468, 276}, "<<");
    Form3.Command3[1].create(Form3.Picture1, {480, 0, 1044, 276}, "Menu");
    Form3.Command3[2].create(Form3.Picture1, {1536, 0, 468, 276}, ">>");

    Form3.indexBox.create(Form3.filtPicBox, {3888, 432, 2100, 3516});
    Form3.ListView1[3].create(Form3.indexBox, {0, 0, 2028, 708}, "Groups",
                              ListView::Selection::single);
    Form3.ListView1[3].addColumn("Group List", 1700);
    Form3.slideBox.create(Form3.indexBox, {0, 0, 2100, 3516});
    makeFilterStrips();
    Form3.indexPanelBox.create(Form3.indexBox, {24, 1104, 2028, 300});
    Form3.cmdIndex[0].create(Form3.indexPanelBox, {0, 0, 660, 252}, "Set All");
    Form3.cmdIndex[1].create(Form3.indexPanelBox, {672, 0, 636, 252}, "CLR");
    Form3.cmdIndex[2].create(Form3.indexPanelBox, {1320, 0, 660, 252}, "Filter");
    Form3.cmdIndex[3].create(Form3.indexPanelBox, {0, 0, 1980, 252}, "Apply Filter");
    Form3.cmdIndex[3].Visible(false);
}

void makeAdvancedScreen() {
    Form3.filtPicBox.create(Form3, {120, 408, 6036, 4236});
    makeRecordList(2, Form3.filtPicBox, {0, 48, 3876, 828});
    makeSidePanel();
}

void makeStandardScreen() {
    Form3.picTab[0].create(Form3, {parked, 480, 6012, 4140});
    Form3.Frame1[1].create(Form3.picTab[0], {48, -96, 5940, 588}, "");
    Form3.Picture2[0].create(Form3.Frame1[1], {60, 192, 300, 276});
    Form3.Command5[0].create(Form3.Picture2[0], {0, 0, 252, 228}, "F");
    Form3.Command5[0].ToolTipText("Rating Filters");
    Form3.Combo1[1].create(Form3.Frame1[1], {384, 192, 4812, 315}, "Group");
    Form3.Command1[1].create(Form3.Frame1[1], {5256, 216, 588, 252}, "<<");
    makeRecordList(1, Form3.picTab[0], {48, 552, 5940, 3588});
}

}  // namespace

MainForm::MainForm()
    : Form({.className = "Form3",
            .caption = "Magpie",
            .border = BorderStyle::sizable,
            .clientWidth = 6240,
            .clientHeight = 5004,
            .keyPreview = true}) {}

void makeForm3() {
    Form3.maskIsInvalid = false;
    makeStandardScreen();
    makeAdvancedScreen();
    Form3.indexFlipBox.createForPicture(Form3, {2952, 4752, 300, 228});
    Form3.tbStrip.create(Form3, {72, 96, 6108, 4608}, "Views");
    Form3.tbStrip.addTab("Advanced", "Group1", "Advanced URL View Pane");
    Form3.tbStrip.addTab("Standard", "Group2", "Standard URL View Pane");
    Form3.StatusBar1.create(Form3, {firstPane, 2400}, "Status");
    Form3.StatusBar1.PaneToolTip(1, "Display Information");
    designMainMenu();
    designEntryMenu();
    designSortMenu();
    designGroupMenu();
}

}  // namespace magpie
