// Control: what every control has, whatever its class: a place in twips, text,
// tag, tip, visibility, the mouse and keyboard events. The desktop's window is
// made when the form loads and gone when it unloads; the first access to a
// control of a form that is not loaded loads the form.
#pragma once

#include <string>

#include "platform/api/types.h"
#include "platform/controls/event.h"
#include "platform/controls/mouse.h"
#include "platform/services/screen.h"

namespace magpie {

class Form;

// A place inside the container, in twips.
struct Place {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;
};

// What a control can be put into: a form, a frame, a picture box.
class Container {
public:
    virtual ~Container() = default;
    // The window that children are made in. Loads the form when need be.
    virtual win::HWND containerWindow() = 0;
    virtual Form& owningForm() = 0;
};

class Control {
public:
    Control();
    virtual ~Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    // The element's number in its control array; 0 outside of one.
    int Index = 0;
    // Free text of the program.
    std::string Tag;

    // Twips. The values that were assigned are kept to the fraction; pixels come
    // from them at the last moment. A negative width or height raises 380.
    double Left();
    double Top();
    double Width();
    double Height();
    void Left(double twips);
    void Top(double twips);
    void Width(double twips);
    void Height(double twips);
    void Move(const Place& place);

    bool Visible();
    void Visible(bool visible);
    bool Enabled();
    void Enabled(bool enabled);

    std::string Caption();
    void Caption(const std::string& text);

    const std::string& ToolTipText();
    void ToolTipText(const std::string& text);

    Pointer MousePointer();
    void MousePointer(Pointer pointer);

    void SetFocus();
    // Whether it has the keyboard, or something in it has.
    bool holdsFocus();
    // From now on texts can be dropped on the control, by copying them; anything else that is
    // dragged over it cannot.
    void takeTextDrops();
    // Paints the control and what is in it, at once.
    void Refresh();
    // The control that this one lies in; null for one that lies on the form itself.
    Control* containingControl();

    // Inner size in twips.
    double ScaleWidth();
    double ScaleHeight();

    win::HWND hWnd();

    // Where a menu belongs that the keys have asked for, in pixels of the screen: below
    // the control.
    virtual win::POINT menuPlace();

    Event<> onClick;
    Event<> onDblClick;
    Event<int, int> onKeyDown;  // key code, shift
    Event<int, int> onKeyUp;
    Event<int> onKeyPress;  // character code
    Event<> onMenuKey;      // the menu key, or Shift and F10
    MouseEvent onMouseDown;
    MouseEvent onMouseMove;
    MouseEvent onMouseUp;
    // The wheel was turned over the control, or over one in it that does not listen:
    // notches, above 0 away from the user. Without a listener the wheel turns what has
    // the focus.
    Event<double> onMouseWheel;
    // Another program's text was dropped here; only after takeTextDrops.
    Event<const std::string&> onOLEDragDrop;

    // Called by the desktop's side of the controls.
    Form& form() { return form_; }
    virtual void onCommand(win::WORD code);             // WM_COMMAND from this control
    virtual win::LRESULT onNotify(win::LPARAM header);  // WM_NOTIFY from this control
    virtual bool handleMessage(win::UINT message, win::WPARAM wParam, win::LPARAM lParam,
                               win::LRESULT& answer);
    win::WNDPROC previousProcedure() const { return previous_; }
    virtual void forgetWindow();
    bool hasWindow(win::HWND window) const { return window_ == window; }
    // A key that was pressed while this control has the focus and is no shortcut of the
    // form's. True when the control has acted on it; then no character comes of it.
    virtual bool ownKey(int keyCode, int shift);

protected:
    struct WindowKind {
        const char* className;
        win::DWORD style;
        win::DWORD exStyle = 0;
    };

    // Makes the window inside `container`. Design values replace whatever an
    // earlier life of the form left.
    void createWindow(Container& container, const WindowKind& kind, const Place& place,
                      const std::string& caption);
    // Makes the window anew with another style, at the same place.
    void recreateWindow(const WindowKind& kind);

    virtual void place();  // brings the window to the place kept in twips

    void tellMouse(const MouseReport& mouse);

    Place place_;

private:
    void makeWindow(const WindowKind& kind, const std::string& caption);

    Form& form_;
    Container* container_ = nullptr;
    win::HWND window_ = nullptr;
    win::WNDPROC previous_ = nullptr;
    std::string toolTip_;
    Pointer pointer_ = Pointer::standard;
    bool visible_ = true;
    bool takesDrops_ = false;
};

// Holds back the drawing of a control and of what is in it, so that all that moves there
// moves in one step. Whoever releases it paints. A hidden control draws nothing anyway.
class HeldDrawing {
public:
    explicit HeldDrawing(Control& control);
    ~HeldDrawing();
    HeldDrawing(const HeldDrawing&) = delete;
    HeldDrawing& operator=(const HeldDrawing&) = delete;

private:
    Control& control_;
    bool held_;
};

// The control behind a window, or null.
Control* controlOf(win::HWND window);

}  // namespace magpie
