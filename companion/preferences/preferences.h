// Preferences: what the dialog does with the settings that it is given.
#pragma once

#include <functional>
#include <string>

#include "companion/preferences/preferences_form.h"
#include "companion/preferences/settings.h"
#include "platform/api/types.h"

namespace magpie::companion {

struct PreferencesHost {
    // Where the program of that file is installed; empty when it is not.
    std::function<std::string(const std::string& exeName)> findCurrentVersion;
    // The settings are to be taken over now. Must not throw.
    std::function<void(const PreferenceSettings&)> apply;
    std::function<void(PreferencesPage)> help;
};

// Shows the dialog over `owner`, which it holds meanwhile, and returns when it has gone, or at
// once while one is up. Every Apply, and OK, hands settings over that differ from the last ones
// handed over, in two steps where the host would not take them in one; the others nothing. Answers
// the settings as they are then. Raises 7 where a window cannot be made, and no dialog is left.
PreferenceSettings editPreferences(const PreferenceSettings& settings, const PreferencesHost& host,
                                   win::HWND owner);

void Preferences_Load();
void Preferences_Change();
void Preferences_Page();
void okButton_Click();
void cancelButton_Click();
void applyButton_Click();
void helpButton_Click();

}  // namespace magpie::companion
