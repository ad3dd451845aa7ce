#include "mainwindow/layout.h"

#include "mainwindow/form3.h"
#include "platform/runtime/resume_next.h"

namespace magpie {

namespace {

void layoutStrip() {
    ResumeNext([] { Form3.tbStrip.Width(Form3.Width() - Form3.marginTabW); },
               [] { Form3.tbStrip.Height(Form3.Height() - Form3.marginTabH); });
}

double groupListHeight() {
    const double top = Form3.ListView1[3].Top();
    return Form3.indexPanelBox.Visible() ? Form3.indexPanelBox.Top() - top
                                         : Form3.indexBox.Height() - (top + 50);
}

}  // namespace

void UpdateFilterTab() {
    layoutStrip();
    ResumeNext(
        [] { Form3.filtPicBox.Width(Form3.Width() - Form3.marginAdvW); },
        [] { Form3.filtPicBox.Height(Form3.tbStrip.Height() - Form3.marginAdvH); },
        [] { Form3.ListView1[2].Height(Form3.filtPicBox.Height() - 100); },
        [] { Form3.indexBox.Visible(Form3.filterAdvanced); },
        [] {
            Form3.indexFlipBox.Top(Form3.ScaleHeight() - (Form3.indexFlipBox.ScaleHeight() + 15));
        },
        [] {
            const double panel = Form3.filterAdvanced ? Form3.indexBox.Width() + 70 : 0;
            Form3.ListView1[2].Width(Form3.filtPicBox.Width() - panel);
        },
        [] { Form3.indexBox.Left(Form3.filtPicBox.Width() - Form3.indexBox.Width() - 50); },
        [] { Form3.Picture1.Left(Form3.indexBox.Left() + 24); },
        [] { Form3.indexBox.Height(Form3.filtPicBox.Height() - (Form3.indexBox.Top() + 70)); },
        [] {
            Form3.indexPanelBox.Top(Form3.indexBox.Height() - (Form3.indexPanelBox.Height() + 20));
        },
        [] { Form3.slideBox.Height(Form3.indexPanelBox.Top()); },
        [] { Form3.ListView1[3].Height(groupListHeight()); });
}

void layoutStandardTab() {
    layoutStrip();
    ResumeNext([] { Form3.picTab[0].Width(Form3.Width() - Form3.marginStdW); },
               [] { Form3.picTab[0].Height(Form3.tbStrip.Height() - Form3.marginStdH); },
               [] { Form3.Frame1[1].Width(Form3.picTab[0].Width() - 150); },
               [] { Form3.Combo1[1].Width(Form3.Frame1[1].Width() - 1200); },
               [] { Form3.Command1[1].Left(Form3.Frame1[1].Width() - 700); },
               [] { Form3.ListView1[1].Width(Form3.picTab[0].Width() - 100); },
               [] { Form3.ListView1[1].Height(Form3.picTab[0].Height() - 600); });
}

}  // namespace magpie
