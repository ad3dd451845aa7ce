// StatusBar: panes of text along the bottom of the form. Panes are counted from 1.
#pragma once

#include <string>
#include <vector>

#include "platform/controls/control.h"

namespace magpie {

class StatusBar : public Control {
public:
    // Panes of the given widths in twips; the last one takes what is left.
    void create(Form& form, const std::vector<double>& widths, const std::string& name);

    // Raise 9 for a pane that is not there.
    std::string Pane(int pane);
    void Pane(int pane, const std::string& text);
    void PaneToolTip(int pane, const std::string& tip);

    bool handleMessage(win::UINT message, win::WPARAM wParam, win::LPARAM lParam,
                       win::LRESULT& answer) override;

protected:
    void place() override {}  // the platform docks it

private:
    win::WPARAM needPane(int pane);

    // Tells the form's tips where the panes lie.
    void tellTips();

    int panes_ = 0;
    std::vector<win::INT> edges_;    // right edge of each pane in pixels; -1 for the bar's end
    std::vector<std::string> tips_;  // of each pane, empty for none
};

}  // namespace magpie
