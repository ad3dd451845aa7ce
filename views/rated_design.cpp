// The dialog "Mask Filters": its controls, in tab order. All sizes are twips.
#include "views/rated.h"

namespace magpie {

namespace {

void addRows(ComboBox& combo, std::initializer_list<const char*> rows) {
    for (const char* row : rows) combo.AddItem(row);
}

void makeVisits() {
    Frame& box = Rated.Command1[2];
    box.create(Rated, {1800, 45, 2472, 720}, "Accessed");
    Rated.Combo3[0].create(box, {120, 255, 1140, 315}, "Accessed");
    Rated.Text2[0].create(box, {1320, 255, 540, 315}, "");
    Rated.Label5[0].create(box, {1920, 315, 480, 195}, "Times");
}

void makeLastVisit() {
    Frame& box = Rated.Command1[0];
    box.create(Rated, {1800, 810, 2472, 1080}, "Last Accessed");
    Rated.Combo3[1].create(box, {120, 255, 1140, 315}, "Last accessed");
    Rated.Text2[1].create(box, {120, 630, 540, 315}, "");
    Rated.Combo3[2].create(box, {720, 630, 1140, 315}, "Unit");
}

}  // namespace

RatedForm::RatedForm()
    : Form({.className = "Rated",
            .caption = "Mask Filters",
            .border = BorderStyle::fixedDialog,
            .clientWidth = 4392,
            .clientHeight = 2352}) {}

void makeRated() {
    ListView& ratings = Rated.ListView1[0];
    ratings.create(Rated, {120, 120, 1560, 1770}, "Ratings", ListView::Selection::single);
    ratings.addColumn("Rating Filter", 1500);
    ratings.CheckBoxes(true);
    Rated.Command2[0].create(Rated, {120, 1935, 750, 315}, "CLR");
    Rated.Command2[1].create(Rated, {930, 1935, 750, 315}, "SET");
    makeVisits();
    makeLastVisit();
    for (const int mode : {0, 1})
        addRows(Rated.Combo3[mode], {"OFF", "More Than", "Less Than", "Equal To"});
    addRows(Rated.Combo3[2], {"Days", "Weeks", "Months"});
    Rated.cmdFilter.create(Rated, {1800, 1935, 1200, 315}, "Filter");
    Rated.cmdCancel.create(Rated, {3072, 1935, 1200, 315}, "Cancel");
    Rated.cmdFilter.makeDefault();
    Rated.cmdCancel.makeCancel();
}

}  // namespace magpie
