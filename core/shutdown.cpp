#include "core/shutdown.h"

#include "config/config.h"
#include "core/state.h"
#include "core/winproc.h"
#include "entries/form2.h"
#include "mainwindow/form3.h"
#include "mainwindow/status_panel.h"
#include "platform/runtime/resume_next.h"
#include "store/records.h"
#include "store/stack_file.h"
#include "tray/form1.h"
#include "tray/tray_icon.h"

namespace magpie {

void Form3_QueryUnload(bool& cancel, int) {
    cancel = keepResident;
    if (!keepResident) {
        Form1.mFlush.Enabled = false;
        // The store is emptied also when it could not be saved.
        ResumeNext(leaveSave, flushEverything);
    }
    Form3.WindowState(stateMinimised);
    Form3.Hide();
}

void Form3_Unload() {
    if (modalOpen > 0) Form2.unload();
    Form3.mb.reset();
    unhookMainWindow(Form3.hWnd());
}

void Form1_QueryUnload(bool&, int mode) {
    if (mode == unloadByCode || mode == unloadByOwner || !keepResident) return;
    keepResident = false;
    Form3.unload();
}

void Form1_Unload() {
    setTrayIcon(true);
    ResumeNext(lateSave);
    keepResident = false;
    Form3.unload();
}

void leaveSave() {
    shouldSaveUrls();
    if (autoSaveSettings) saveConfig();
}

void flushEverything() {
    IDXList.reset();
    Form3.Combo1[1].Clear();
    for (ListView& list : Form3.ListView1) list.Clear();
    uBlock.URLDatas().Clear();
    // The keys come again, for other records than the one under edit.
    Form2.toEdit.clear();
    urlsDirty = 0;
    IDXCount = 0;
    Form3.lastIDX2 = 0;
    lastLine = 0;
    previousTab = -1;
    reallyLoaded = false;
}

void mnuClose_Click() {
    Form3.unload();
}

void mnuFree_Click() {
    keepResident = false;
    Form3.unload();
}

void mnuEject_Click() {
    leaveSave();
    flushEverything();
    UpdatePanel();
}

void mnuUnload_Click() {
    keepResident = false;
    Form3.unload();
    Form1.unload();
}

}  // namespace magpie
