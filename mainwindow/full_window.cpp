#include "mainwindow/full_window.h"

#include "core/state.h"
#include "mainwindow/form3.h"
#include "mainwindow/layout.h"
#include "mainwindow/tab_screens.h"
#include "platform/runtime/resume_next.h"

namespace magpie {

namespace {

void fillWindow() {
    Form3.filtPicBox.Top(50);
    Form3.marginAdvW = 145;
    Form3.marginAdvH = -400;
    Form3.picTab[0].Top(50);
    Form3.marginStdW = 80;
    Form3.marginStdH = -390;
    if (currentTab == 1) Form3.filtPicBox.Move({50, 0, Form3.ScaleWidth(), Form3.ScaleHeight()});
    if (currentTab == 2) Form3.picTab[0].Move({0, 0, Form3.ScaleWidth(), Form3.ScaleHeight()});
    Form3.mnuFullwindow.Checked = true;
}

}  // namespace

void toggleFullWindow() {
    const bool wasNormal = Form3.tbStrip.Visible() || !Form3.Visible();
    Form3.tbStrip.Visible(!wasNormal);
    Form3.StatusBar1.Visible(!wasNormal);
    Form3.indexFlipBox.Visible(!wasNormal && currentTab == 1);
    if (wasNormal) {
        fillWindow();
    } else {
        Form3.mnuFullwindow.Checked = false;
        tabThing();
    }
    ResumeNext([] {
        if (modalOpen == 0) Form3.ListView1[lvIndex].SetFocus();
    });
    if (currentTab == 1)
        UpdateFilterTab();
    else
        layoutStandardTab();
}

}  // namespace magpie
