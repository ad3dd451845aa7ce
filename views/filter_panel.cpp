#include "views/filter_panel.h"

#include <algorithm>

#include "mainwindow/form3.h"

namespace magpie {

namespace {

constexpr int leftButton = 1;
constexpr double wheelStep = 400;     // twips for a notch: a shut strip
constexpr double marginInSight = 60;  // left around a control that is brought into sight

bool overflows() {
    return Form3.filter3Box.Height() > Form3.indexBox.Height();
}

// What of the viewport the row of buttons leaves.
double heightInSight() {
    return Form3.indexBox.Height() - Form3.indexPanelBox.Height();
}

// The panel's Top stays above this, so that its end stays below the row of buttons.
double lowestTop() {
    return heightInSight() - Form3.filter3Box.Height();
}

void scrollTo(double top) {
    if (top != Form3.filter3Box.Top()) Form3.filter3Box.Top(top);
}

}  // namespace

void scrollFilterPanel(int Button, double Y) {
    double& lastY = Form3.removeMeY;
    if (Button != leftButton) {
        lastY = Y;
        return;
    }
    const double newTop = Form3.filter3Box.Top() + (Y - lastY);
    if (overflows()) {
        if (newTop > 0)
            scrollTo(0);
        else if (newTop > lowestTop() || Y > lastY)
            scrollTo(newTop);
    } else if (Form3.filter3Box.Top() < 0 && newTop > Form3.filter3Box.Top()) {
        scrollTo(newTop);
    }
}

void filterPanel_MouseMove(int button, int, double, double y) {
    scrollFilterPanel(button, y);
}

// A drag's last step may fall short of a bound; a notch goes up to it.
void filterPanel_MouseWheel(double notches) {
    if (!Form3.filter3Box.Visible()) return;
    const double top = Form3.filter3Box.Top();
    const double newTop = top + notches * wheelStep;
    if (notches > 0)
        scrollTo(std::min(newTop, std::max(top, 0.0)));
    else if (overflows())
        scrollTo(std::min(top, std::max(newTop, lowestTop() + 1)));
}

void showInFilterPanel(Control& control) {
    double top = 0;
    const Control* const panel = &Form3.filter3Box;
    for (Control* each = &control; each != panel; each = each->containingControl()) {
        if (each == nullptr) return;
        top += each->Top();
    }
    const double highest = -(top - marginInSight);
    const double lowest = heightInSight() - (top + control.Height() + marginInSight);
    const double now = Form3.filter3Box.Top();
    scrollTo(std::min(0.0, std::max(std::min(now, lowest), highest)));
}

}  // namespace magpie
