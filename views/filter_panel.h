// The filter panel under its viewport: `filter3Box` with the strips, which the mouse
// drags up and down, the wheel turns and the Tab key brings into sight.
#pragma once

namespace magpie {

class Control;

// The mouse moved over the panel: with `Button` 1, the left one alone, it drags the panel.
// `Y` is the place in twips on the control that the mouse is over, or that holds it since
// the press; it moves along with the panel, so that each move counts from the one before.
void scrollFilterPanel(int Button, double Y);

void filterPanel_MouseMove(int button, int shift, double x, double y);
void filterPanel_MouseWheel(double notches);

// Scrolls just as far as to show a control of the panel; does nothing for other controls.
void showInFilterPanel(Control& control);

}  // namespace magpie
