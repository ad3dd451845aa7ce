// Config: the settings that survive a run. Three records of tokens between single
// blanks stand in the registry: "ID" belongs to the tray controller, "CF" to the main
// window, "CH" to the columns of the record list. A token that is missing or no
// number leaves its setting as it was; nothing here stops the start or says a word.
#pragma once

namespace magpie {

// Reads "ID" and the flags of "CF"; places and shows the pad, sets the tray icon,
// starts the line watch.
void earlyConfig();

// Writes "ID".
void lateSave();

// Reads "CF" and "CH" and applies them to the main window.
void loadConfig();

// Writes "CF" and "CH". Raises 6 for a column wider than 32,767 twips; nothing is
// written then.
void saveConfig();

// Puts the main window into the lower right corner of the work area.
void placeMainDefault();

// Reads the remembered group from "CF" into `lastIDX2`, 0 when there is none.
void reloadLastGroup();

// Fill the settings of the windows' places from the windows.
void storeMainPlacement();
void storeIconPlacement();

}  // namespace magpie
