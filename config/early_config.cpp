// The tray controller's settings: the record "ID", and the flags of "CF" that decide
// what the main window does at its load and at its end.
#include <cstdint>
#include <string>

#include "config/config.h"
#include "config/flags.h"
#include "config/reg_module.h"
#include "config/setting_record.h"
#include "core/misc.h"
#include "core/state.h"
#include "platform/runtime/decimal_text.h"
#include "platform/runtime/number_text.h"
#include "platform/runtime/resume_next.h"
#include "platform/services/screen.h"
#include "tray/form1.h"
#include "tray/pad.h"
#include "tray/tray_icon.h"

namespace magpie {

namespace {

// A token that is no number counts as out of range: the failing comparison falls into
// the block that it guards.
void readLineCheck(SettingRecord& id) {
    const auto outOfRange = [&id] { return numberOf(id.token) < 0 || numberOf(id.token) > 3; };
    ResumeNextNoting(
        id.trap(), [&id] { id.take(0); },
        [&id] {
            if (id.token.empty()) noTrayIcon = true;
        },
        [&id, outOfRange] {
            if (trueOrFailingNoting(id.trap(), outOfRange)) id.token.assign(1, '0');
        },
        [&id] { lineCheck = byteOf(id.token); });
}

void placePad(SettingRecord& id) {
    ResumeNextNoting(
        id.trap(), [] { Form1.Top(Screen.Height() / 2); },
        [] { Form1.Left(Screen.Width() - Form1.Width() - 200); }, readInto(id, 1, iconTop, int32Of),
        readInto(id, 2, iconLeft, int32Of),
        [] {
            if (iconTop > 0 && iconLeft > 0 && iconLeft < Screen.Width() &&
                iconTop < Screen.Height()) {
                Form1.Top(iconTop);
                Form1.Left(iconLeft);
            }
        });
}

// Without a token the failing comparison falls into the block: a first start shows
// the pad.
void showPad(SettingRecord& id) {
    const auto padIsOn = [&id] { return numberOf(id.token) == 0 && !onlineOnly; };
    ResumeNextNoting(
        id.trap(), [&id] { id.take(3); },
        [&id, padIsOn] {
            if (trueOrFailingNoting(id.trap(), padIsOn))
                toggleActiveIcon();
            else
                activeIcon = true;
        },
        [] {
            if (onlineOnly) Form1.Hide();
        });
}

void readFlags() {
    SettingRecord cf;
    std::int32_t flags = 0;
    const auto isClear = [&flags](std::int32_t bit) { return (flags & bit) == 0; };
    ResumeNextNoting(
        cf.trap(), [&cf] { cf.read(regGetValue(settingsKey, "CF")); },
        readInto(cf, 0, flags, int32Of),
        [isClear] {
            autoLoadSettings = isClear(flag::noLoadSettings);
            autoSaveSettings = isClear(flag::noSaveSettings);
            autoLoadURLs = isClear(flag::noLoadURLs);
            autoSaveURLs = isClear(flag::noSaveURLs);
        });
}

std::string oneOrZero(bool value) {
    return value ? "1" : "0";
}

std::string trueOrFalse(bool value) {
    return value ? "True" : "False";
}

}  // namespace

void earlyConfig() {
    SettingRecord id;
    std::uint8_t bound = 0;
    ResumeNextNoting(
        id.trap(), [] { osPlatform = osPlatformId(); },
        [&id] { id.read(regGetValue(settingsKey, "ID")); },
        // A byte has no room for the bound of an empty record, and stays 0.
        [&id, &bound] { bound = Checked<std::uint8_t>(id.uBound()); }, [&id] { readLineCheck(id); },
        [] { Form1.Timer1.Enabled(true); }, [&id] { placePad(id); },
        readInto(id, 4, iconOnTop, boolOf),
        [&bound] {
            if (bound == 0) iconOnTop = true;
        },
        readInto(id, 5, onlineAction, byteOf), readInto(id, 6, noTrayIcon, boolOf),
        [] { setTrayIcon(noTrayIcon); }, readInto(id, 7, onlineOnly, boolOf),
        [&id] { showPad(id); }, readFlags);
}

void lateSave() {
    storeIconPlacement();
    regCreateKey(settingsKey, win::HKEY_CURRENT_USER);
    const std::string record =
        joinTokens({integerText(lineCheck.value()), integerText(iconTop), integerText(iconLeft),
                    oneOrZero(!activeIcon), oneOrZero(iconOnTop), integerText(onlineAction.value()),
                    trueOrFalse(noTrayIcon), trueOrFalse(onlineOnly)});
    regPutValue(settingsKey, "ID", record, win::REG_SZ);
}

}  // namespace magpie
