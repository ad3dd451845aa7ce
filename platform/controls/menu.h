// Menu: popup menus as tables. A table row names the item, how deep it lies, its
// caption and its key; the item holds what changes at run time. The platform's
// menu is made when it pops up and gone when it closes.
#pragma once

#include <span>

#include "platform/api/types.h"
#include "platform/controls/event.h"

namespace magpie {

class Form;

// What changes of a menu item.
class MenuItem {
public:
    int Index = 0;  // in its control array
    bool Enabled = true;
    bool Checked = false;
    bool Visible = true;
    Event<> onClick;
};

// A caption of "-" is a separator line. An item followed by deeper rows is a
// sub-menu.
struct MenuRow {
    int depth;  // 0 for the items of the popup itself
    MenuItem* item;
    const char* caption;
    const char* key = "";  // as shown: "Ctrl+A"
    bool enabled = true;   // before the form's load
};

// Brings every item of the table back to what it is before its form loads.
void designMenu(std::span<const MenuRow> table);

// Pops the menu up at the mouse pointer, or at a place in pixels of the screen, and runs
// the routine of the item that the user chooses. Returns when it has run, which may have
// taken the owner away. Nothing runs when the menu can't be made, or another one is up.
void PopupMenu(Form& owner, std::span<const MenuRow> table);
void PopupMenu(Form& owner, std::span<const MenuRow> table, win::POINT at);

// Closes the menu that is up over this form, if there is one: without its owner it would
// wait for ever.
void closePopupOf(const Form& owner);

// The answer to WM_MENUCHAR, which asks what a letter means that is no access key of a
// menu: the only line that can be chosen and begins with it, as on the desktops that take
// first letters by themselves.
win::LRESULT lineOfLetter(win::HMENU menu, char letter);

// The row whose key is Ctrl and this capital letter, or null.
const MenuRow* rowWithShortcut(std::span<const MenuRow> table, char letter);

// Runs the row's routine, unless the user could not choose it in the menu now: it or a
// sub-menu around it is grey or not there; then the answer is false.
bool chooseRow(std::span<const MenuRow> table, const MenuRow& row);

}  // namespace magpie
