#include "companion/preferences/preferences.h"

#include <algorithm>

#include "platform/api/user32.h"
#include "platform/services/screen.h"

namespace magpie::companion {

namespace {

// Of the dialog that is up.
PreferenceSettings current;
const PreferencesHost* currentHost = nullptr;
win::HWND currentOwner = nullptr;

// Choices ------------------------------------------------------------------------------

// The row of a number that stands for itself; -1 for one that has none.
int rowOf(ComboBox& field, std::uint8_t number) {
    return number < field.ListCount() ? number : -1;
}

// The row of "always", which two numbers stand for.
int rowOfLine(std::uint8_t number) {
    constexpr std::uint8_t always = 2;
    return std::min(number, always);
}

// What the field shows, or the number from before where that is what it still shows.
std::uint8_t chosen(ComboBox& field, int rowBefore, std::uint8_t before) {
    const int row = field.ListIndex();
    return row == rowBefore ? before : static_cast<std::uint8_t>(row);
}

bool ticked(CheckBox& box) {
    return box.Value() != 0;
}

// Between settings and controls --------------------------------------------------------

void show(const PreferenceSettings& settings) {
    PreferencesForm& form = Preferences;
    form.browserType.ListIndex(rowOf(form.browserType, settings.browserType));
    form.useKeystrokes.Value(settings.useKeystrokes);
    form.lineCheck.ListIndex(rowOfLine(settings.lineCheck));
    form.onlineAction.Value(settings.onlineAction == 1);
    form.trayIcon.Value(!settings.noTrayIcon);
    form.activeIcon.Value(settings.activeIcon);
    form.onlineOnly.Value(settings.onlineOnly);
    form.iconOnTop.Value(settings.iconOnTop);
    form.placement.ListIndex(rowOf(form.placement, settings.Placement));
    form.mainOnTop.Value(settings.mainOnTop);
    form.fullWindow.Value(settings.fullWindow);
    form.autoLoadURLs.Value(settings.autoLoadURLs);
    form.autoSaveURLs.Value(settings.autoSaveURLs);
    form.autoLoadSettings.Value(settings.autoLoadSettings);
    form.autoSaveSettings.Value(settings.autoSaveSettings);
    form.shortcutMode.ListIndex(rowOf(form.shortcutMode, settings.shortcutMode));
}

PreferenceSettings shown() {
    PreferencesForm& form = Preferences;
    PreferenceSettings settings = current;
    settings.browserType =
        chosen(form.browserType, rowOf(form.browserType, current.browserType), current.browserType);
    settings.useKeystrokes = ticked(form.useKeystrokes);
    settings.lineCheck = chosen(form.lineCheck, rowOfLine(current.lineCheck), current.lineCheck);
    if (ticked(form.onlineAction) != (current.onlineAction == 1))
        settings.onlineAction = ticked(form.onlineAction);
    settings.noTrayIcon = !ticked(form.trayIcon);
    settings.activeIcon = ticked(form.activeIcon);
    settings.onlineOnly = ticked(form.onlineOnly);
    settings.iconOnTop = ticked(form.iconOnTop);
    settings.Placement =
        chosen(form.placement, rowOf(form.placement, current.Placement), current.Placement);
    settings.mainOnTop = ticked(form.mainOnTop);
    settings.autoLoadURLs = ticked(form.autoLoadURLs);
    settings.autoSaveURLs = ticked(form.autoSaveURLs);
    settings.autoLoadSettings = ticked(form.autoLoadSettings);
    settings.autoSaveSettings = ticked(form.autoSaveSettings);
    settings.shortcutMode = chosen(
        form.shortcutMode, rowOf(form.shortcutMode, current.shortcutMode), current.shortcutMode);
    return settings;
}

// Browsers -----------------------------------------------------------------------------

void showInstalled() {
    constexpr const char* files[] = {"IEXPLORE.EXE", "Netscape.exe", "Opera.EXE"};
    for (Label& path : Preferences.browserPaths) {
        const std::string found = currentHost->findCurrentVersion(files[path.Index]);
        path.Caption(found.empty() ? "not found" : found);
        path.ToolTipText(found);
    }
}

// Place --------------------------------------------------------------------------------

// Over the middle of the owner, and wholly on the screen.
void centre() {
    win::RECT owner{};
    win::RECT area{};
    if (!win::GetWindowRect(currentOwner, &owner) || !Screen.workArea(area)) return;
    const double x = Screen.TwipsPerPixelX();
    const double y = Screen.TwipsPerPixelY();
    const double left = (owner.left + owner.right) * x / 2 - Preferences.Width() / 2;
    const double top = (owner.top + owner.bottom) * y / 2 - Preferences.Height() / 2;
    Preferences.Left(std::max(area.left * x, std::min(left, area.right * x - Preferences.Width())));
    Preferences.Top(std::max(area.top * y, std::min(top, area.bottom * y - Preferences.Height())));
}

// A host takes no news of a pad that shows with the line only. Such a pad is one that always shows
// for a moment, and goes or comes as that.
void apply() {
    const PreferenceSettings wanted = shown();
    if (wanted == current) return;
    const bool padFirst = wanted.activeIcon != current.activeIcon && wanted.onlineOnly;
    current = wanted;
    if (padFirst) {
        PreferenceSettings before = wanted;
        before.onlineOnly = false;
        currentHost->apply(before);
    }
    currentHost->apply(wanted);
}

// What the dialog that is up works on; it goes also where the dialog could not come up whole.
class Editing {
public:
    Editing(const PreferenceSettings& settings, const PreferencesHost& host, win::HWND owner) {
        current = settings;
        currentHost = &host;
        currentOwner = owner;
    }
    ~Editing() {
        Preferences.discard();
        currentHost = nullptr;
    }
    Editing(const Editing&) = delete;
    Editing& operator=(const Editing&) = delete;
};

}  // namespace

PreferenceSettings editPreferences(const PreferenceSettings& settings, const PreferencesHost& host,
                                   win::HWND owner) {
    if (Preferences.loaded()) return settings;
    const Editing editing(settings, host, owner);
    Preferences.showModal(owner);
    return current;
}

void Preferences_Load() {
    show(current);
    showInstalled();
    Preferences_Change();
    centre();
}

void Preferences_Change() {
    Preferences.applyButton.Enabled(shown() != current);
}

void Preferences_Page() {
    const int selected = Preferences.strip.SelectedTab() - 1;
    for (Frame& page : Preferences.page) {
        if (page.Index != selected && page.holdsFocus()) Preferences.strip.SetFocus();
        page.Visible(page.Index == selected);
    }
}

void okButton_Click() {
    apply();
    Preferences.unload();
}

void cancelButton_Click() {
    Preferences.unload();
}

// What the host shows anew for a setting, as the pad, must not cover the dialog.
void applyButton_Click() {
    apply();
    if (!Preferences.loaded()) return;
    if (Preferences.applyButton.holdsFocus()) Preferences.okButton.SetFocus();
    Preferences_Change();
    Preferences.Show();
}

void helpButton_Click() {
    currentHost->help(static_cast<PreferencesPage>(Preferences.strip.SelectedTab() - 1));
}

}  // namespace magpie::companion
