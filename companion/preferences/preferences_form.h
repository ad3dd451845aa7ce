// PreferencesForm: the dialog "Preferences": four pages under a tab strip, and four buttons.
#pragma once

#include "platform/controls/basic_controls.h"
#include "platform/controls/combo_box.h"
#include "platform/controls/control_array.h"
#include "platform/controls/form.h"
#include "platform/controls/tab_strip.h"

namespace magpie::companion {

enum PreferencesPage : int { browserPage, linePage, windowPage, filesPage };

struct PreferencesForm : Form {
    PreferencesForm();

    ControlArray<Frame, 0, 3> page;  // by PreferencesPage

    Label browserLabel;
    ComboBox browserType;  // row by row
    CheckBox useKeystrokes;
    Label installedLabel;
    ControlArray<Label, 0, 2> browserNames;  // row by row
    ControlArray<Label, 0, 2> browserPaths;

    Label lineLabel;
    ComboBox lineCheck;
    CheckBox onlineAction;
    CheckBox trayIcon;
    CheckBox activeIcon;
    CheckBox onlineOnly;
    CheckBox iconOnTop;

    Label placementLabel;
    ComboBox placement;
    CheckBox mainOnTop;
    CheckBox fullWindow;

    CheckBox autoLoadURLs;
    CheckBox autoSaveURLs;
    CheckBox autoLoadSettings;
    CheckBox autoSaveSettings;
    Label shortcutLabel;
    ComboBox shortcutMode;

    Button okButton;
    Button cancelButton;
    Button applyButton;
    Button helpButton;
    TabStrip strip;
};

inline PreferencesForm Preferences;

// Builds the form's controls; runs at each load.
void makePreferences();

// The routines behind the form's events. Once, before the form loads.
void wirePreferences();

}  // namespace magpie::companion
