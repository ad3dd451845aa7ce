// MenuFixture: the open main window and the menus that pop up over it.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "tests/behaviour/view_fixture.h"

namespace magpie {

class MenuFixture : public ViewFixture {
public:
    // The group "A" with the records "a1" to "a3" in view, and the group "B" with "b".
    static void open();

    // The menu that `action` pops up; nothing is chosen.
    static win::memory::driver::Popup shownBy(const std::function<void()>& action);
    // Does `action`, and in the menu that it pops up chooses the line with this caption.
    static void chooseFrom(const std::function<void()>& action, const std::string& caption);
    // The same with something happening while the menu is up.
    static void chooseFrom(const std::function<void()>& action, const std::string& caption,
                           const std::function<void()>& meanwhile);

    // A menu as a user reads it, one text for each line: two blanks for each level,
    // "[x] " before a ticked line, " (grey)" behind a grey one, " >" behind a sub-menu.
    static std::vector<std::string> linesOf(const win::memory::driver::Popup& popup);

    // What opens the four menus: buttons "<<" or "Menu", and the right mouse button.
    static void clickMenuButton();
    static void rightClickRecords();  // on the first row, or where it would be
    static void rightClickSort();
    static void rightClickGroups();

    // A click into the first column of a row from 1, also where no such row is.
    static void clickRow(ListView& list, int row, win::memory::driver::Button button);

    // Whether a row from 1 is in sight.
    static bool isInSight(ListView& list, int row);

    static ListView& records() { return Form3.ListView1[lvIndex]; }
    static ListView& groups() { return Form3.ListView1[3]; }

    // Pixels of the screen.
    static win::POINT onScreen(Control& control, win::POINT at);
    static win::POINT mouse();
};

}  // namespace magpie
