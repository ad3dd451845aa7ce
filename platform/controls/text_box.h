// TextBox: one line of text that the user edits.
#pragma once

#include <string>

#include "platform/controls/control.h"

namespace magpie {

class TextBox : public Control {
public:
    void create(Container& container, const Place& place, const std::string& text);

    Event<> onChange;

    std::string Text() { return Caption(); }
    void Text(const std::string& text) { Caption(text); }
    // Marks the whole text.
    void selectAll();

    void onCommand(win::WORD code) override;
    bool handleMessage(win::UINT message, win::WPARAM wParam, win::LPARAM lParam,
                       win::LRESULT& answer) override;
    // Ctrl+A marks the whole text, as the newer desktops' own text boxes do.
    bool ownKey(int keyCode, int shift) override;
};

}  // namespace magpie
