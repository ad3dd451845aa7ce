#include "core/start_up.h"

#include <string>

#include "config/config.h"
#include "core/state.h"
#include "entries/form2.h"
#include "entries/frm_move.h"
#include "mainwindow/form3.h"
#include "platform/controls/common_controls.h"
#include "platform/controls/message_loop.h"
#include "platform/runtime/resume_next.h"
#include "platform/services/application.h"
#include "tray/form1.h"
#include "views/find_form.h"
#include "views/rated.h"

namespace magpie {

void beginMagpie() {
    startCommonControls();
    wireForm1();
    wireForm2();
    wireForm3();
    wireFrmMove();
    wireRated();
    wireFind();
    startWith(Form1);
}

int runMagpie() {
    beginMagpie();
    return runUntilNoForm();
}

bool AnotherInstance() {
    return anotherInstance();
}

void readCommandLine() {
    const std::string tail = commandTail();
    if (!tail.empty()) stackPath = appPath + "\\" + tail;
}

// A second instance ends here, without a word to the user or to the first one, and
// without writing anything.
void Form1_Load() {
    if (AnotherInstance()) {
        Form1.discard();
        return;
    }
    helpFile = appFolder() + "\\PNSHelp.chm";
    appPath = appFolder();
    stackPath = appPath + "\\" + "Pienest";
    ResumeNext(earlyConfig, readCommandLine);
}

}  // namespace magpie
