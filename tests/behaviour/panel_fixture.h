// PanelFixture: the side panel of the Advanced tab under the user's hand.
#pragma once

#include <string>
#include <vector>

#include "platform/controls/message_loop.h"
#include "tests/behaviour/view_fixture.h"

namespace magpie {

class PanelFixture : public ViewFixture {
public:
    // Two groups with a record each; the panel's face is the Group List.
    static void open() {
        openWith({"A", "B"});
        add("a", 0);
        add("b", 1);
        RefreshURLPage();
    }

    // The same on the Filter face.
    static void openFilter() {
        open();
        clickButton(Form3.Command3[2]);
        ASSERT_EQ(Form3.advMode, 2);
    }

    static void clickButton(Control& button) {
        win::memory::driver::click(button.hWnd(), win::memory::driver::middleOf(button.hWnd()));
        win::memory::driver::pump();
    }

    static void pressKey(int key, win::memory::driver::Keys held = {}) {
        win::memory::driver::key(key, held);
        win::memory::driver::pump();
    }

    static std::vector<Frame*> frames() {
        return {&Form3.Frame2, &Form3.visitedFrame, &Form3.accessedFrame, &Form3.addedFrame,
                &Form3.Frame4};
    }

    // A control's upper edge in the filter panel, twips.
    static double topInPanel(Control& control) {
        double top = 0;
        for (Control* each = &control; each != &Form3.filter3Box; each = each->containingControl())
            top += each->Top();
        return top;
    }

    // Scrolls the panel so that the control stands near the viewport's upper edge.
    static void bringIntoSight(Control& control) {
        Form3.filter3Box.Top(150 - topInPanel(control));
    }

    // The same, and clicks it.
    static void clickInPanel(Control& control) {
        bringIntoSight(control);
        clickButton(control);
    }
};

}  // namespace magpie
