// Form3: the main window. Two screens under a tab strip: Advanced, a record list
// with a side panel, and Standard, a record list under a drop-down of groups.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include "mainwindow/form3_menus.h"
#include "platform/controls/basic_controls.h"
#include "platform/controls/combo_box.h"
#include "platform/controls/control_array.h"
#include "platform/controls/form.h"
#include "platform/controls/list_view.h"
#include "platform/controls/picture_box.h"
#include "platform/controls/status_bar.h"
#include "platform/controls/tab_strip.h"
#include "platform/controls/text_box.h"
#include "platform/services/automation.h"

namespace magpie {

struct MainForm : Form, MainMenus {
    MainForm();

    // The Advanced screen. ListView1(1) belongs to the Standard screen.
    PictureBox filtPicBox;
    ControlArray<ListView, 1, 3> ListView1;
    PictureBox Picture1;
    ControlArray<Button, 0, 2> Command3;
    PictureBox indexBox;
    PictureBox indexPanelBox;
    ControlArray<Button, 0, 5> cmdIndex;

    // Its Filter face: five strips that slide open and shut over their frames
    PictureBox slideBox;  // keeps the strips above the row of buttons
    PictureBox filter3Box;
    ControlArray<Frame, 0, 4> slideSwitch;
    ControlArray<Button, 0, 4> slideButton;
    Frame Frame2;
    ControlArray<CheckBox, 0, 4> ratedBox;
    PictureBox Picture3;
    Frame visitedFrame;
    Frame accessedFrame;
    Frame addedFrame;
    ControlArray<ComboBox, 0, 4> Combo3;  // 0, 1, 3 modes, 2, 4 units
    ControlArray<TextBox, 0, 2> Text2;    // 0 visits, 1 last accessed, 2 added
    Label timesLabel;
    Frame Frame4;
    TextBox txtFilter;

    PictureBox indexFlipBox;

    // The Standard screen
    ControlArray<PictureBox, 0, 0> picTab;
    ControlArray<Frame, 1, 1> Frame1;
    ControlArray<ComboBox, 1, 1> Combo1;
    ControlArray<PictureBox, 0, 0> Picture2;
    ControlArray<Button, 0, 0> Command5;
    ControlArray<Button, 1, 1> Command1;

    // Around both
    TabStrip tbStrip;
    StatusBar StatusBar1;

    // Public variables
    double removeMeY = 0;        // where on a control the drag of the filter panel began
    bool filterAdvanced = true;  // the side panel is shown
    std::uint8_t advMode = 0;    // its face: 0 Index Mask, 1 Group List, 2 Filter
    std::int16_t tmpIDX = 0;     // a group's row number, kept aside
    std::int16_t lastIDX1 = 0;   // row of Combo1(1) when the screen was last left
    std::int16_t lastIDX2 = 0;   // group in view when the screen was last left

    // The companion library's objects, only while an operation of theirs runs
    std::shared_ptr<AutomationObject> gcfg;  // Preferences
    std::shared_ptr<AutomationObject> mb;    // the import of bookmarks

    // Top of the filter panel when the mouse pressed a strip's button that it still holds
    std::optional<double> slidePressTop;
    bool maskIsInvalid = false;  // the last refresh met a text mask that is no pattern

    // Layout margins in twips: what the screens leave free of the window.
    double marginTabW = 0;
    double marginTabH = 0;
    double marginAdvW = 0;
    double marginAdvH = 1040;
    double marginStdW = 0;
    double marginStdH = 0;
};

inline MainForm Form3;

// The routines behind the form's events. Once, before the form loads.
void wireForm3();

// Builds the form's controls; runs at each load.
void makeForm3();

}  // namespace magpie
