// What the main window's events run: event on the left, routine on the right.
#include "core/shutdown.h"
#include "core/start_up.h"
#include "entries/list_events.h"
#include "mainwindow/entry_menu.h"
#include "mainwindow/form3.h"
#include "mainwindow/full_window.h"
#include "mainwindow/main_menu.h"
#include "mainwindow/sort_menu.h"
#include "mainwindow/tab_screens.h"
#include "views/filter_panel.h"
#include "views/filter_strips.h"
#include "views/mask_filters.h"
#include "views/side_panel.h"
#include "views/sorting.h"
#include "views/view_commands.h"

namespace magpie {

namespace {

// A drag of the filter panel begins anywhere on it; its strips' buttons are no exception.
void wireFilterPanel() {
    Form3.filter3Box.onMouseMove = filterPanel_MouseMove;
    for (Frame& strip : Form3.slideSwitch) strip.onMouseMove = filterPanel_MouseMove;
    for (Frame* frame : {&Form3.Frame2, &Form3.visitedFrame, &Form3.accessedFrame,
                         &Form3.addedFrame, &Form3.Frame4})
        frame->onMouseMove = filterPanel_MouseMove;
    Form3.timesLabel.onMouseMove = filterPanel_MouseMove;
    for (Button& button : Form3.slideButton) {
        button.onMouseMove = filterPanel_MouseMove;
        button.onMouseDown = slideButton_MouseDown;
        button.onMouseUp = slideButton_MouseUp;
        button.onClick = slideButton_Click;
    }
    Form3.slideBox.onMouseWheel = filterPanel_MouseWheel;
    Form3.onTab = showInFilterPanel;
}

}  // namespace

void wireForm3() {
    Form3.makeControls = makeForm3;
    Form3.onLoad = Form3_Load;
    Form3.onResize = Form3_Resize;
    Form3.onKeyPress = Form3_KeyPress;
    Form3.onShortcut = entryMenuShortcut;
    Form3.onQueryUnload = Form3_QueryUnload;
    Form3.onUnload = Form3_Unload;

    Form3.tbStrip.onClick = tabSwitch;
    Form3.tbStrip.onMouseUp = tbStrip_MouseUp;
    Form3.Combo1[1].onClick = Combo1_Click;
    Form3.Command1[1].onClick = popUpMainMenu;
    Form3.Command5[0].onClick = Command5_Click;
    Form3.Command5[0].onMouseUp = Command5_MouseUp;
    Form3.Command5[0].onMenuKey = Command5_MenuKey;
    for (Button& button : Form3.Command3) button.onClick = Command3_Click;
    for (Button& button : Form3.cmdIndex) button.onClick = cmdIndex_Click;
    Form3.indexFlipBox.onClick = indexFlipBox_Click;
    for (ListView& list : Form3.ListView1) {
        list.onClick = ListView1_Click;
        list.onDblClick = ListView1_DblClick;
        list.onItemClick = ListView1_ItemClick;
        list.onKeyDown = ListView1_KeyDown;
        list.onKeyUp = ListView1_KeyUp;
        list.onKeyPress = ListView1_KeyPress;
        list.onMouseUp = ListView1_MouseUp;
        list.onColumnClick = columnHeading_Click;
        list.onMenuKey = ListView1_MenuKey;
        list.onOLEDragDrop = ListView1_OLEDragDrop;
    }
    Form3.txtFilter.onKeyDown = txtFilter_KeyDown;
    wireFilterPanel();
    wireMenus();
}

}  // namespace magpie
