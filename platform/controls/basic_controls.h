// The plain controls: label, push button, check box, frame.
#pragma once

#include <string>

#include "platform/controls/mouse_area.h"

namespace magpie {

class Label : public MouseArea {
public:
    void create(Container& container, const Place& place, const std::string& caption);
};

class Button : public Control {
public:
    void create(Container& container, const Place& place, const std::string& caption);
    void onCommand(win::WORD code) override;
    // Pressed by Enter anywhere in the form, and drawn so.
    void makeDefault();
    // Pressed by Escape anywhere in the form.
    void makeCancel();
};

class CheckBox : public Control {
public:
    void create(Container& container, const Place& place, const std::string& caption);
    void onCommand(win::WORD code) override;
    // 0 not ticked, 1 ticked. Setting it raises no click.
    int Value();
    void Value(int value);
};

// A box with a caption around other controls.
class Frame : public MouseArea, public Container {
public:
    void create(Container& container, const Place& place, const std::string& caption);
    // Without box and caption, as a page of a tab strip is.
    void createBare(Container& container, const Place& place);
    win::HWND containerWindow() override { return hWnd(); }
    Form& owningForm() override { return form(); }
    bool handleMessage(win::UINT message, win::WPARAM wParam, win::LPARAM lParam,
                       win::LRESULT& answer) override;
};

}  // namespace magpie
