#include "tray/connection_watcher.h"

#include <cstdint>

#include "core/misc.h"
#include "core/state.h"
#include "mainwindow/form3.h"
#include "platform/api/wininet.h"
#include "platform/runtime/checked.h"
#include "platform/runtime/word.h"
#include "platform/services/system_library.h"
#include "tray/form1.h"
#include "tray/pad.h"
#include "tray/ras.h"

namespace magpie {

namespace {

constexpr std::uint8_t seenOff = 1;
constexpr std::uint8_t seenOn = 2;

// The ways of `lineCheck` to ask for the line; any other takes it to be up.
constexpr std::uint8_t byDialUp = 0;
constexpr std::uint8_t bySystem = 1;

std::int16_t systemsLine() {
    static SystemLibrary library("wininet.dll");
    library.require("InternetGetConnectedState");
    win::DWORD flags = 0;
    const Checked<std::int16_t> online = win::InternetGetConnectedState(&flags, 0);
    return online.value();
}

std::int16_t lineState() {
    if (lineCheck == byDialUp) return word(rasConnected() != 0);
    if (lineCheck == bySystem) return systemsLine();
    return wordTrue;
}

void cameUp() {
    const bool raise = onlineAction == 1;
    if (!activeIcon) {
        if (raise) {
            Form3.WindowState(stateNormal);
            Form3.Show();
        }
    } else {
        if (onlineOnly) {
            Form1.Show();
            Form1.Visible(true);
        }
        // A hidden main window stays hidden here.
        if (raise) Form3.WindowState(stateNormal);
        setTopMost(Form1, word(iconOnTop));
    }
    ButtonState(false);
    lastLine = seenOn;
}

void wentDown() {
    setTopMost(Form1, wordFalse);
    if (lastLine == seenOn && keepResident) {
        keepResident = false;
        Form3.unload();
    }
    if (onlineOnly) Form1.Hide();
    lastLine = seenOff;
    ButtonState(false);
}

}  // namespace

void Timer1_Timer() {
    if (modalOpen != 0) return;
    isOnline = lineState();
    if (isOnline != 0 && lastLine != seenOn) cameUp();
    // Not the other case of the first: the window may let a tick in while it comes up, and the line
    // may have gone by then.
    if (isOnline == 0 && lastLine != seenOff) wentDown();
}

}  // namespace magpie
