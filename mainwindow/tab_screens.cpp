#include "mainwindow/tab_screens.h"

#include <string>

#include "core/start_up.h"
#include "core/state.h"
#include "mainwindow/form3.h"
#include "mainwindow/full_window.h"
#include "mainwindow/layout.h"
#include "platform/controls/message_loop.h"
#include "platform/runtime/failure.h"
#include "store/group_lookup.h"
#include "views/group_list.h"
#include "views/refresh.h"
#include "views/side_panel.h"

namespace magpie {

namespace {

constexpr double parked = -20000;  // a screen out of sight
constexpr double smallFontTwips = 15;

// A press on a tab begins a switch, and its release comes while that one lets events run.
class Switching {
public:
    Switching() { ++depth_; }
    ~Switching() { --depth_; }
    Switching(const Switching&) = delete;
    Switching& operator=(const Switching&) = delete;
    static bool underWay() { return depth_ > 0; }

private:
    static inline int depth_ = 0;
};

void leaveAdvanced(std::int16_t keep) {
    storeCHeaders();
    if (Form3.ListView1[3].Count() > 0) Form3.lastIDX2 = keep;
    Form3.ListView1[3].Clear();
}

void leaveStandard(std::int16_t keep) {
    storeCHeaders();
    Form3.picTab[0].Left(parked);
    if (Form3.Combo1[1].ListCount() > 0) {
        Form3.lastIDX2 = keep;
        Form3.lastIDX1 = static_cast<std::int16_t>(Form3.Combo1[1].ListIndex());
    }
    Form3.Combo1[1].Clear();
    Form3.ListView1[1].Clear();
}

void enterAdvanced() {
    Form3.ListView1[2].Clear();
    Form3.filtPicBox.Visible(true);
    Form3.picTab[0].Visible(false);
    Form3.picTab[0].Left(parked);
    Form3.indexFlipBox.Visible(true);
    lvIndex = 2;
    rebuildGroupList(true);
    buildFilterScrn();
    DoEvents();
    RefreshURLPage();
}

void enterStandard() {
    Form3.filtPicBox.Left(parked);
    Form3.filtPicBox.Visible(false);
    Form3.picTab[0].Visible(true);
    Form3.indexFlipBox.Visible(false);
    lvIndex = 1;
    buildMainScrn();
    if (Form3.Combo1[1].ListCount() > 0) {
        selectGroupItem(Form3.lastIDX2);
    } else {
        DoEvents();
        RefreshURLPage();
    }
}

void enterNothing() {
    Form3.picTab[0].Visible(false);
    Form3.filtPicBox.Visible(false);
    Form3.indexFlipBox.Visible(false);
}

// Where a screen lies for one placement of the strip, and the margins that go with
// it. The second value of a pair is for a display of small fonts.
struct ScreenPlace {
    double left[2];
    double top;
    double marginW[2];
    double marginH;
};

constexpr double rightOfStrip = 72 + 50;

constexpr ScreenPlace advancedPlaces[] = {
    {{120, 120}, 408, {300, 322}, 350},
    {{120, 120}, 120, {300, 322}, 390},
    {{380, 428}, 120, {600, 660}, 70},
    {{rightOfStrip, rightOfStrip}, 120, {600, 640}, 70},
};

constexpr ScreenPlace standardPlaces[] = {
    {{120, 120}, 480, {350, 350}, 450},
    {{120, 120}, 150, {350, 350}, 400},
    {{380, 400}, 180, {600, 600}, 140},
    {{120, 120}, 180, {600, 654}, 140},
};

void putScreen(PictureBox& screen, const ScreenPlace& place, double& marginW, double& marginH) {
    const int fonts = Screen.TwipsPerPixelX() == smallFontTwips ? 1 : 0;
    screen.Left(place.left[fonts]);
    screen.Top(place.top);
    marginW = place.marginW[fonts];
    marginH = place.marginH;
}

Checked<std::int16_t>& keptWidth(int column) {
    const auto at = static_cast<std::size_t>(column - 1);
    if (at >= colWidths.size()) throw Failure{failure::subscript};
    return colWidths[at];
}

}  // namespace

void tabSwitch() {
    const int newTab = Form3.tbStrip.SelectedTab();
    if (newTab == previousTab) return;
    const Switching now;
    const std::int16_t keep = GetSelectedIndex();
    currentTab = newTab;
    if (previousTab == 1) leaveAdvanced(keep);
    if (previousTab == 2) leaveStandard(keep);
    tabThing();
    Form3_Resize();
    switch (currentTab) {
        case 1: enterAdvanced(); break;
        case 2: enterStandard(); break;
        default: enterNothing(); break;
    }
    updateCHeaders();
    previousTab = currentTab;
    tabThing();
    Form3_Resize();
}

void tbStrip_MouseUp(int, int button, int, double, double) {
    constexpr int leftButton = 1;
    if (button == leftButton && !Switching::underWay()) tabSwitch();
}

void tabThing() {
    Form3.tbStrip.Top(96);
    Form3.tbStrip.Left(72);
    const int placement = Form3.tbStrip.Placement();
    if (currentTab == 1) {
        putScreen(Form3.filtPicBox, advancedPlaces[placement], Form3.marginAdvW, Form3.marginAdvH);
        UpdateFilterTab();
    } else if (currentTab == 2) {
        putScreen(Form3.picTab[0], standardPlaces[placement], Form3.marginStdW, Form3.marginStdH);
        layoutStandardTab();
    }
    Form3.tbStrip.Visible(true);
}

void setTabPlacement(int placement) {
    if (!Form3.tbStrip.Visible()) toggleFullWindow();
    Form3.tbStrip.Placement(placement);
    if (currentTab == 1) {
        tabThing();
        UpdateFilterTab();
        Form3.tbStrip.SelectTab(1);
    } else if (currentTab == 2) {
        tabThing();
        layoutStandardTab();
        Form3.tbStrip.SelectTab(2);
    }
    DoEvents();
}

void buildMainScrn() {
    ComboBox& groups = Form3.Combo1[1];
    groups.Clear();
    for (std::int32_t i = 0; i < IDXList.uBound(); ++i) {
        groups.AddItem(IDXList[i].Name);
        groups.ItemData(groups.NewIndex(), IDXList[i].GroupID);
    }
}

void storeCHeaders() {
    ListView& list = Form3.ListView1[lvIndex];
    for (int i = 1; i <= list.ColumnCount(); ++i) keptWidth(i) = list.ColumnWidth(i);
}

void updateCHeaders() {
    ListView& list = Form3.ListView1[lvIndex];
    for (int i = 1; i <= list.ColumnCount(); ++i) list.ColumnWidth(i, keptWidth(i).value());
}

void setMiniIcons() {
    const std::string name = Form3.filterAdvanced ? "b1u" : "b1d";
    PictureBox& flip = Form3.indexFlipBox;
    flip.showPicture(LoadPicture(appPath + "\\uBank\\" + name + ".bnk", pixelsX(flip.Width()),
                                 pixelsY(flip.Height())));
}

}  // namespace magpie
