// The dialog "Preferences": its controls, in tab order, with their tips. All sizes are twips.
#include <initializer_list>

#include "companion/preferences/preferences_form.h"
#include "platform/controls/tool_tips.h"
#include "platform/services/screen.h"

namespace magpie::companion {

namespace {

constexpr double pageWidth = 5856;
constexpr double left = 180;
constexpr double fieldLeft = 1740;
constexpr double firstRow = 180;
constexpr double rowHeight = 375;

constexpr double rowTop(int row) {
    return firstRow + rowHeight * row;
}

// On the line of a field's text.
Place labelPlace(int row) {
    return {left, rowTop(row) + 60, fieldLeft - left - 60, 195};
}

Place fieldPlace(int row) {
    return {fieldLeft, rowTop(row), pageWidth - fieldLeft - left, 315};
}

void makeChoice(Frame& page, int row, Label& label, const char* caption, ComboBox& field,
                const char* name, std::initializer_list<const char*> lines, const char* tip) {
    label.create(page, labelPlace(row), caption);
    field.create(page, fieldPlace(row), name);
    for (const char* line : lines) field.AddItem(line);
    field.ToolTipText(tip);
}

Place tickPlace(int row) {
    return {left, rowTop(row) + 30, pageWidth - 2 * left, 255};
}

win::RECT inPixels(const Place& place) {
    return {pixelsX(place.left), pixelsY(place.top), pixelsX(place.left + place.width),
            pixelsY(place.top + place.height)};
}

void makeTick(Frame& page, int row, CheckBox& box, const char* caption, const char* tip) {
    box.create(page, tickPlace(row), caption);
    box.ToolTipText(tip);
}

void makeBrowserPage(Frame& page) {
    makeChoice(page, 0, Preferences.browserLabel, "&Browser:", Preferences.browserType, "Browser",
               {"Internet Explorer", "Netscape", "Opera"},
               "The browser that bookmarks are sent to and pages are taken from");
    makeTick(page, 1, Preferences.useKeystrokes, "Drive Internet Explorer by &keystrokes",
             "Addresses go through the clipboard; what was on it is lost");
    Preferences.installedLabel.create(page, {left, rowTop(2) + 180, pageWidth - 2 * left, 195},
                                      "Found on this computer:");
    constexpr const char* names[] = {"Internet Explorer", "Netscape", "Opera"};
    for (int row = 0; row < 3; ++row) {
        const double top = rowTop(3) + 165 + 285 * row;
        Preferences.browserNames[row].create(page, {left + 180, top, 1380, 195}, names[row]);
        Preferences.browserPaths[row].create(
            page, {fieldLeft, top, pageWidth - fieldLeft - left, 195}, "");
    }
}

void makeLinePage(Frame& page) {
    makeChoice(page, 0, Preferences.lineLabel, "&Online while:", Preferences.lineCheck,
               "Online while",
               {"a dial-up connection is up", "Windows reports a connection", "always"},
               "How Magpie tells whether the computer is online");
    makeTick(page, 1, Preferences.onlineAction, "Open the &main window when the line comes up",
             "With the pad on it is only loaded, and a click on the pad shows it");
    makeTick(page, 2, Preferences.trayIcon, "Show an &icon in the notification area",
             "The icon beside the clock, with the menu of the pad");
    makeTick(page, 3, Preferences.activeIcon, "Show the &pad",
             "The small floating window that opens the main window");
    makeTick(page, 4, Preferences.onlineOnly, "Show the pad o&nly while online",
             "The pad goes away when the line falls and comes back with it");
    makeTick(page, 5, Preferences.iconOnTop, "Keep the pad on &top of other windows",
             "While the computer is online");
}

void makeWindowPage(Frame& page) {
    makeChoice(page, 0, Preferences.placementLabel, "Tabs &stand:", Preferences.placement,
               "Tabs stand", {"at the top", "at the bottom", "at the left", "at the right"},
               "The edge of the main window that its two tabs stand on");
    makeTick(page, 1, Preferences.mainOnTop, "Keep the main &window on top of other windows",
             "The main window then covers other programs until it is closed");
    Preferences.fullWindow.create(page, tickPlace(2), "Th&e list fills the whole main window");
    Preferences.fullWindow.Enabled(false);
    // The mouse over a disabled control is over what lies below it.
    Preferences.toolTips().tellPart(
        page.hWnd(), 0, inPixels(tickPlace(2)),
        "Shown here only: the Escape key in the main window changes it");
}

void makeFilesPage(Frame& page) {
    makeTick(page, 0, Preferences.autoLoadURLs, "&Load the bookmarks when the main window opens",
             "Otherwise the window opens empty, until you load them by its menu");
    makeTick(page, 1, Preferences.autoSaveURLs,
             "Save &changed bookmarks when they leave the memory",
             "The file before the change is kept as a backup");
    makeTick(page, 2, Preferences.autoLoadSettings, "Load the settin&gs when the main window opens",
             "Place, tab, group, columns, the pages Browser and Window, copies in Favorites");
    makeTick(page, 3, Preferences.autoSaveSettings,
             "Sa&ve the settings when the bookmarks leave the memory",
             "The same; without it they are saved by \"Save Settings\" in the menu alone");
    makeChoice(page, 5, Preferences.shortcutLabel,
               "Copies in &Favorites:", Preferences.shortcutMode, "Copies in Favorites",
               {"none", "in a folder for each group", "all in one folder"},
               "Shortcut files of new entries, and of those that you send there");
}

}  // namespace

PreferencesForm::PreferencesForm()
    : Form({.className = "MagpiePreferences",
            .caption = "Preferences",
            .border = BorderStyle::fixedDialog,
            .clientWidth = 6240,
            .clientHeight = 3750}) {}

void makePreferences() {
    void (*const makers[])(Frame&) = {makeBrowserPage, makeLinePage, makeWindowPage, makeFilesPage};
    for (Frame& page : Preferences.page) {
        page.createBare(Preferences, {192, 435, pageWidth, 2700});
        makers[page.Index](page);
        page.Visible(page.Index == browserPage);
    }
    constexpr double top = 3300;
    Preferences.okButton.create(Preferences, {1560, top, 1080, 345}, "OK");
    Preferences.cancelButton.create(Preferences, {2712, top, 1080, 345}, "Cancel");
    Preferences.applyButton.create(Preferences, {3864, top, 1080, 345}, "&Apply");
    Preferences.helpButton.create(Preferences, {5016, top, 1080, 345}, "&Help");
    Preferences.strip.create(Preferences, {144, 96, 5952, 3090}, "Pages");
    Preferences.strip.addTab("Browser", "", "The browser that Magpie works with");
    Preferences.strip.addTab("Line and tray", "", "The line, the pad and the icon by the clock");
    Preferences.strip.addTab("Window", "", "How the main window looks");
    Preferences.strip.addTab("Files", "", "What is loaded and saved by itself");
    Preferences.okButton.makeDefault();
    Preferences.cancelButton.makeCancel();
    Preferences.pages(&Preferences.strip);
}

}  // namespace magpie::companion
