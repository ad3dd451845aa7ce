// The main window's load, and its events at form level.
#include "config/config.h"
#include "core/start_up.h"
#include "core/state.h"
#include "core/winproc.h"
#include "entries/add_entry.h"
#include "mainwindow/first_build.h"
#include "mainwindow/form3.h"
#include "mainwindow/full_window.h"
#include "mainwindow/layout.h"
#include "platform/controls/message_loop.h"
#include "platform/runtime/resume_next.h"
#include "store/stack_commands.h"
#include "tray/form1.h"
#include "tray/pad.h"
#include "views/group_list.h"

namespace magpie {

namespace {

constexpr int controlA = 1;
constexpr int controlB = 2;
constexpr int escape = 27;

void readSettingsOrDefaults() {
    if (autoLoadSettings)
        loadConfig();
    else
        placeMainDefault();
}

}  // namespace

void Form3_Load() {
    ResumeNext([] { hookMainWindow(Form3.hWnd()); },  //
               [] { Form3.Icon(Form1.Icon()); },      //
               firstBuild, DoEvents, readSettingsOrDefaults, Form3_Resize,
               [] {
                   if (autoLoadURLs) mnuOpen_Click(0);
               },
               reloadLastGroup,                      //
               [] { rebuildGroupList(true); },       //
               [] { Form1.mFlush.Enabled = true; },  //
               [] {
                   if (startFullWindow) toggleFullWindow();
               },
               [] {
                   if (activeIcon) ButtonState(false);
               },
               [] { reallyLoaded = true; });
}

void Form3_Resize() {
    if (Form3.WindowState() == stateMinimised) {
        Form3.Hide();
        return;
    }
    if (currentTab == 1) UpdateFilterTab();
    if (currentTab == 2) layoutStandardTab();
}

void Form3_KeyPress(int character) {
    switch (character) {
        case escape: toggleFullWindow(); break;
        case controlA: mnuAddEntry_Click(1); break;
        case controlB: mnuAddEntry_Click(0); break;
        default: break;
    }
}

}  // namespace magpie
