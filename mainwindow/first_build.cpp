#include "mainwindow/first_build.h"

#include "config/config.h"
#include "core/state.h"
#include "mainwindow/form3.h"
#include "mainwindow/status_panel.h"
#include "mainwindow/tab_screens.h"
#include "platform/runtime/resume_next.h"
#include "views/filter_strips.h"
#include "views/side_panel.h"

namespace magpie {

namespace {

constexpr double stripDesignWidth = 6108;
constexpr double stripDesignHeight = 4608;

void measureMargins() {
    Form3.marginTabW = Form3.Width() - stripDesignWidth;
    Form3.marginTabH = Form3.Height() - stripDesignHeight;
    Form3.marginAdvH = 1040;
}

}  // namespace

void firstBuild() {
    measureMargins();
    placeMainDefault();
    keepResident = true;
    IDXList.reset();
    ratedNames = {"Not Rated", "Low", "Medium", "High", "V.High", ""};
    ddeApps = {"IEXPLORE", "Netscape", "Opera", ""};
    currentTab = 1;
    lvIndex = 2;
    Form3.picTab[0].Visible(false);
    // The widths that go from tab to tab start as those of the design, and the side panel with
    // the face that it had last, also where no settings and no stack file are loaded that bring
    // it up. A flip picture that can't be read is no reason to stop.
    ResumeNext(startStrips, storeCHeaders, setMiniIcons, showFace, tabThing, UpdateMenus);
}

}  // namespace magpie
