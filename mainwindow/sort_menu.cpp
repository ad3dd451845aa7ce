#include "mainwindow/sort_menu.h"

#include "mainwindow/form3.h"

namespace magpie {

namespace {

constexpr int rightButton = 2;

const MenuRow mnuSort[] = {
    {0, &Form3.mnuSortz[0], "Title"},
    {0, &Form3.mnuSortz[1], "Rated"},
    {0, &Form3.mnuSortz[2], "Times Visited"},
    {0, &Form3.mnuSortz[3], "Last Visited Date"},
    {0, &Form3.mnuSortz[4], "-"},
    {0, &Form3.mnuSortz[5], "URL"},
    {0, &Form3.mnuSortz[6], "Creation Date"},
    {0, &Form3.mnuSortz[7], "Catagory"},
    {0, &Form3.mnuSortz[8], "-"},
    {0, &Form3.mnuListAll2, "List All"},
};

}  // namespace

void designSortMenu() {
    designMenu(mnuSort);
}

void Command5_MouseUp(int button, int, double, double) {
    if (button == rightButton) PopupMenu(Form3, mnuSort);
}

void Command5_MenuKey() {
    PopupMenu(Form3, mnuSort, Form3.Command5[0].menuPlace());
}

}  // namespace magpie
