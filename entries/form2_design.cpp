// The dialog "URL Information": its controls, in tab order. All sizes are twips.
#include "entries/form2.h"
#include "entries/url_information.h"

namespace magpie {

namespace {

constexpr double firstRow = 180;
constexpr double rowHeight = 420;

double rowTop(int row) {
    return firstRow + rowHeight * row;
}

// All of the pane below the tabs.
Place placeOfPage(double left) {
    return {left, 435, 5856, 1950};
}

// On the line of the row's text.
Place labelPlace(int row, double left, double width) {
    return {left, rowTop(row) + 60, width, 195};
}

void makeFields() {
    magpie::Frame& page = Form2.Frame[0];
    page.createBare(Form2, placeOfPage(pageAtRest));
    Form2.Label1[0].create(page, labelPlace(0, 120, 720), "Name:");
    Form2.Text1[0].create(page, {900, rowTop(0), 4836, 315}, "");
    Form2.Label1[1].create(page, labelPlace(1, 120, 720), "URL:");
    Form2.Text1[1].create(page, {900, rowTop(1), 4836, 315}, "");
    Form2.Label1[2].create(page, labelPlace(2, 120, 720), "Rating:");
    Form2.Combo1[0].create(page, {900, rowTop(2), 1560, 315}, "Rating");
    for (const char* rating : {"Not Rated", "Low", "Medium", "High", "V.High!"})
        Form2.Combo1[0].AddItem(rating);
    Form2.Label5.create(page, labelPlace(3, 120, 720), "Group:");
    Form2.Combo1[1].create(page, {900, rowTop(3), 3000, 315}, "Group", true);
}

void makeValues() {
    magpie::Frame& page = Form2.Frame[1];
    page.createBare(Form2, placeOfPage(pageAway));
    page.Enabled(false);
    constexpr const char* captions[] = {"Created:", "Last Accessed:", "Times Accessed:"};
    for (int row = 0; row < 3; ++row) {
        Form2.Label2[row].create(page, labelPlace(row, 120, 1320), captions[row]);
        Form2.Label3[row].create(page, labelPlace(row, 1560, 4176), "");
    }
}

}  // namespace

InformationForm::InformationForm()
    : Form({.className = "Form2",
            .caption = "URL Information",
            .border = BorderStyle::fixedDialog,
            .clientWidth = 6240,
            .clientHeight = 2985}) {}

void makeForm2() {
    makeFields();
    makeValues();
    Form2.Command1.create(Form2, {3900, 2532, 1080, 345}, "Accept");
    Form2.Command2.create(Form2, {5016, 2532, 1080, 345}, "Cancel");
    Form2.TabStrip.create(Form2, {144, 96, 5952, 2340}, "Pages");
    Form2.TabStrip.addTab("Quick Edit", "", "Main URL Information store.");
    Form2.TabStrip.addTab("Extended", "", "Displays useful information");
    Form2.Command1.makeDefault();
    Form2.Command2.makeCancel();
    Form2.pages(&Form2.TabStrip);
}

}  // namespace magpie
