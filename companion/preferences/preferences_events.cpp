// What the events of "Preferences" run: event on the left, routine on the right.
#include "companion/preferences/preferences.h"

namespace magpie::companion {

void wirePreferences() {
    Preferences.makeControls = makePreferences;
    Preferences.onLoad = Preferences_Load;

    for (ComboBox* field : {&Preferences.browserType, &Preferences.lineCheck,
                            &Preferences.placement, &Preferences.shortcutMode})
        field->onClick = Preferences_Change;
    for (CheckBox* box :
         {&Preferences.useKeystrokes, &Preferences.onlineAction, &Preferences.trayIcon,
          &Preferences.activeIcon, &Preferences.onlineOnly, &Preferences.iconOnTop,
          &Preferences.mainOnTop, &Preferences.autoLoadURLs, &Preferences.autoSaveURLs,
          &Preferences.autoLoadSettings, &Preferences.autoSaveSettings})
        box->onClick = Preferences_Change;
    Preferences.strip.onClick = Preferences_Page;

    Preferences.okButton.onClick = okButton_Click;
    Preferences.cancelButton.onClick = cancelButton_Click;
    Preferences.applyButton.onClick = applyButton_Click;
    Preferences.helpButton.onClick = helpButton_Click;
}

}  // namespace magpie::companion
