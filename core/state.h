// State: the program's global variables, one line each, with what it means and who
// writes it. Nothing else is global but the forms and the store.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "platform/runtime/checked.h"
#include "platform/runtime/date.h"
#include "store/index_list.h"

namespace magpie {

// What holds the interface, in `modalOpen`.
inline constexpr std::uint8_t plainDialog = 1;
inline constexpr std::uint8_t D_EDIT = 2;  // the URL Information dialog on an entry
inline constexpr std::uint8_t D_NEW = 3;   // the URL Information dialog on a new one

// Paths ------------------------------------------------------------------------------
inline std::string appPath;    // the program's folder; Form1's load
inline std::string stackPath;  // the stack file without extension; Form1's load, command line
inline std::string helpFile;   // the help file's full path; Form1's load

// The run ----------------------------------------------------------------------------
inline Checked<std::int16_t> urlsDirty;  // unsaved changes; every change, load, save, flush
inline std::uint8_t modalOpen = 0;       // 0 nothing, plainDialog, D_EDIT, D_NEW, 4 Find
inline bool keepResident = false;        // closing only hides; first build sets, ways out clear
inline bool reallyLoaded = false;        // Form3's load is through; its end sets, flush clears
inline std::int16_t isOnline = 0;        // not 0: the line is up; the connection watcher
inline std::uint8_t lastLine = 0;        // line seen last: 0 unknown, 1 off, 2 on; watcher, flush
inline std::int16_t rasOnline = 0;       // not 0: the dial-up line is up; rasConnected
inline std::int32_t hRasConn = 0;        // the dial-up connection under watch; rasConnected
inline std::int32_t osPlatform = 0;      // the platform's identifier; earlyConfig

// Groups -----------------------------------------------------------------------------
inline IndexList IDXList;               // the groups and a spare element; group operations
inline Checked<std::int16_t> IDXCount;  // groups made since the last reset; NewCatagory, resets

// Views ------------------------------------------------------------------------------
inline int currentTab = 1;                              // 1 Advanced, 2 Standard; tab switch
inline int previousTab = 0;                             // 0 none yet, -1 flushed; tab switch, flush
inline std::uint8_t lvIndex = 2;                        // the record list in view; tab switch
inline std::string findText;                            // looked for last, trimmed; Find
inline std::array<Checked<std::int16_t>, 9> colWidths;  // twips; storeCHeaders, loadConfig
inline bool sortReversed = false;                       // sorts by rating, date, count; nobody

// Masks ------------------------------------------------------------------------------
inline std::array<bool, 6> ratedMask{true, true, true, true, true, false};  // by rating
inline std::array<std::string, 6> ratedNames;  // texts of the ratings; first build
inline std::uint8_t visitedMode = 0;           // 0 off, 1 more than, 2 less than, 3 equal to
inline std::int16_t visitedCount = 0;          // its operand
inline std::uint8_t accessedMode = 0;          // as visitedMode
inline std::int16_t accessedValue = 0;         // its operand
inline std::uint8_t accessedUnit = 0;          // 0 days, 1 weeks, 2 months
inline std::uint8_t addedMode = 0;             // as visitedMode
inline std::int16_t addedValue = 0;            // its operand
inline std::int16_t addedUnit = 0;             // as accessedUnit

// Settings: the configuration reads them at start and writes them at leaving ----------
inline Checked<std::uint8_t> lineCheck;     // 0 dial-up, 1 the system's line, 2 and 3 always on
inline Checked<std::int32_t> iconTop;       // the pad's place, twips
inline Checked<std::int32_t> iconLeft;      // the pad's place, twips
inline bool activeIcon = false;             // the pad is on
inline bool iconOnTop = false;              // the pad stays above other windows
inline Checked<std::uint8_t> onlineAction;  // 1: the main window comes up with the line
inline bool noTrayIcon = false;             // no icon in the notification area
inline bool onlineOnly = false;             // the pad shows only while online
inline Checked<std::uint8_t> browserType;   // element of ddeApps
inline std::array<std::string, 4> ddeApps;  // the browsers' service names; first build
inline Checked<std::uint8_t> tabStyle;      // the placement of the tab strip
inline Checked<std::uint8_t> savedAdvMode;  // the side panel's face to come back to
inline Checked<std::int32_t> mainTop;       // the main window's place, twips
inline Checked<std::int32_t> mainLeft;
inline Checked<std::int32_t> mainWidth;
inline Checked<std::int32_t> mainHeight;
inline Checked<std::int32_t> slideState = 31;  // bit i: strip i of the side panel is open
inline Checked<std::uint8_t> shortcutMode;     // what sending to Favorites does
inline Checked<std::int32_t> firstDate;        // day number of the first start
inline bool useKeystrokes = false;             // Internet Explorer is driven by keystrokes
inline bool mainOnTop = false;                 // the main window stays above other windows
inline bool startFullWindow = false;           // the main window opens in full-window mode
inline bool autoLoadSettings = false;          // the main window's load reads the settings
inline bool autoSaveSettings = false;          // leaving writes the settings
inline bool autoLoadURLs = false;              // the main window's load opens the stack file
inline bool autoSaveURLs = false;              // leaving saves the stack file

}  // namespace magpie
