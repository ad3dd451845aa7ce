// PreferenceSettings: the settings that the Preferences dialog shows, as the host hands them over.
#pragma once

#include <cstdint>

namespace magpie::companion {

// The numbers are the host's. A number that the dialog has no line for is kept until the user
// chooses another.
struct PreferenceSettings {
    std::uint8_t lineCheck = 0;     // 0 dial-up connections, 1 the system's opinion, 2 and 3 always
    std::uint8_t onlineAction = 0;  // 1: the main window comes up with the line
    bool noTrayIcon = false;
    bool onlineOnly = false;        // the pad shows while online only
    bool activeIcon = false;        // the pad is on
    std::uint8_t shortcutMode = 0;  // 0 no files, 1 a folder for each group, 2 all in one folder
    bool fullWindow = false;        // shown, and not for the dialog to change
    std::uint8_t browserType = 0;   // 0 Internet Explorer, 1 Netscape, 2 Opera
    bool useKeystrokes = false;
    bool autoLoadURLs = false;
    bool autoSaveURLs = false;
    bool autoLoadSettings = false;
    bool autoSaveSettings = false;
    std::uint8_t Placement = 0;  // edge of the tabs: top, bottom, left, right
    bool iconOnTop = false;
    bool mainOnTop = false;

    bool operator==(const PreferenceSettings&) const = default;
};

}  // namespace magpie::companion
