// Form: a top-level window with its controls. A form loads at the first access to
// it or to one of its controls, can be hidden and shown, and unloaded and loaded
// again any number of times in one run.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "platform/api/types.h"
#include "platform/controls/control.h"
#include "platform/controls/event.h"

namespace magpie {

class TabStrip;
class Timer;
class ToolTips;

enum class BorderStyle { none, sizable, fixedDialog };

// Called by the desktop for every window of a form.
win::LRESULT formProcedure(win::HWND window, win::UINT message, win::WPARAM wParam,
                           win::LPARAM lParam) noexcept;

// Why a form is asked to unload. The numbers are the platform's.
enum UnloadMode : int {
    unloadByCloseBox = 0,
    unloadByCode = 1,
    unloadBySessionEnd = 2,
    unloadByTaskManager = 3,
    unloadByOwner = 5,
};

enum WindowStates : int { stateNormal = 0, stateMinimised = 1, stateMaximised = 2 };

struct FormIcon {
    win::HICON big = nullptr;
    win::HICON small = nullptr;
};

// What a form is before it loads.
struct FormDesign {
    const char* className;
    const char* caption = "";
    BorderStyle border = BorderStyle::sizable;
    double clientWidth = 0;  // twips
    double clientHeight = 0;
    bool keyPreview = false;     // the form hears characters before its controls
    win::WORD iconResource = 0;  // number of the icon in the program, 0 for none
    bool live = false;           // modal forms leave it in use
};

class Form : public Container {
public:
    explicit Form(const FormDesign& design);
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    // Assigned once, before the first load.
    void (*makeControls)() = nullptr;  // builds the controls at each load
    Event<> onLoad;
    Event<> onResize;
    // The form became the active one, for the first time since its load or from another window
    // of the program.
    Event<> onActivate;
    Event<bool&, int> onQueryUnload;  // Cancel, UnloadMode
    Event<> onUnload;
    Event<int> onKeyPress;  // character code
    Event<Control&> onTab;  // the Tab key, or an arrow, gave the focus to this control
    MouseEvent onMouseDown;
    MouseEvent onMouseMove;
    MouseEvent onMouseUp;
    // Ctrl and a capital letter, before any control hears of it. True when it was a
    // shortcut, and then nobody else does. Assigned once.
    bool (*onShortcut)(char letter) = nullptr;

    // Loading and unloading. `load` does nothing to a loaded form, and raises 91 once
    // the start-up form has gone: what still runs then must not bring the program
    // back. `unload` answers whether the form is gone; it does nothing to a form that
    // is not loaded.
    bool loaded() const { return window_ != nullptr; }
    bool modal() const { return modal_; }
    void load();
    bool unload(UnloadMode mode = unloadByCode);
    // Takes a loaded form away without asking or telling anybody.
    void discard();

    // Everything below loads the form when it is not loaded, and so does every access to one of
    // its controls. But a routine whose form went in an event inside its own, as under a pump,
    // began with another window: what it goes on to do raises 91, until it shows the form.
    void Show();
    // Holds every other form but a live one until this one hides or unloads, and then returns.
    // A form that is shown meanwhile comes up behind it. `outer`, for a form that is not loaded,
    // is a window that no form of this module has, as the program's for a library: it owns this
    // one and is held as well, and takes it along when it goes.
    void showModal(win::HWND outer = nullptr);
    void Hide() { Visible(false); }
    bool Visible();
    void Visible(bool visible);

    // While hidden the state is kept and shows at the next Show.
    int WindowState();
    void WindowState(int state);

    // Outer place in twips; of a minimised form its restored size. A negative
    // width or height raises 380.
    double Left();
    double Top();
    double Width();
    double Height();
    void Left(double twips);
    void Top(double twips);
    void Width(double twips);
    void Height(double twips);

    // Inner size in twips.
    double ScaleWidth();
    double ScaleHeight();

    std::string Caption();
    void Caption(const std::string& text);

    // The icon of the window, in the system's two sizes.
    const FormIcon& Icon();
    void Icon(const FormIcon& icon);

    int ScaleMode = scaleTwips;

    // Buttons pressed by Enter and Escape.
    void defaultButton(Control* button) { default_ = drawnDefault_ = button; }
    void cancelButton(Control* button) { cancel_ = button; }

    // The strip whose tabs are the form's pages: Ctrl+Tab goes on to the next one and
    // Ctrl+Shift+Tab back, round the ends, wherever the focus is. Null for none.
    void pages(TabStrip* strip) { pages_ = strip; }

    // Raises 91 when the load itself takes the form away.
    win::HWND hWnd();
    void loadByAccess();
    win::HWND containerWindow() override { return hWnd(); }
    Form& owningForm() override { return *this; }

    // The desktop's side of the form.
    static Form* underConstruction;
    static Form* startUp;  // the form that speaks for the program when the session ends
    static bool ending;    // the start-up form has gone
    const FormDesign& design() const { return design_; }
    Control* defaultButton() const { return default_; }
    Control* cancelButton() const { return cancel_; }
    // Notes the button that is drawn as the default one; answers the one before.
    Control* drawnDefault(Control* button) { return std::exchange(drawnDefault_, button); }
    win::LRESULT handleMessage(win::UINT message, win::WPARAM wParam, win::LPARAM lParam);
    // So many tabs on in the strip of the pages. False without one.
    bool turnPage(int step);
    void attachTimer(Timer& timer);
    void dock(Control& bar) { docked_ = &bar; }  // hears of the form's new sizes
    win::HFONT font() const { return font_; }
    ToolTips& toolTips();
    win::UINT_PTR nextControlId() { return ++lastControlId_; }

private:
    struct Geometry {
        double left = 0, top = 0, width = 0, height = 0;
    };

    void createWindow();
    void forgetWindow();
    Geometry measured();
    void assign(double Geometry::*edge, double twips);
    void applyGeometry();
    double edge(double Geometry::*edge);
    void reveal();
    void tellActivation(bool fromOwnWindow);
    void beginModal();
    void hold(win::HWND other);
    void leave();
    void beHeld();
    void comeBack();
    void endModal();
    void sized(win::WPARAM kind);
    void tick(win::UINT_PTR id);
    void tellMouse(const MouseReport& mouse);
    void keepFocus();
    void giveFocus();
    void followAccessKey(win::WPARAM wParam, win::LPARAM lParam);

    FormDesign design_;
    win::HWND window_ = nullptr;
    win::HFONT font_ = nullptr;
    FormIcon icon_;
    Geometry assigned_;
    Control* default_ = nullptr;
    Control* drawnDefault_ = nullptr;
    Control* cancel_ = nullptr;
    Control* docked_ = nullptr;
    TabStrip* pages_ = nullptr;
    win::HWND leftOnPage_ = nullptr;  // had the focus on a page that was turned away
    std::vector<Timer*> timers_;
    std::vector<win::HWND> disabledForModal_;
    win::HWND activeBeforeModal_ = nullptr;
    win::HWND outer_ = nullptr;  // owns the form's window
    ToolTips* toolTips_ = nullptr;
    win::UINT_PTR lastControlId_ = 100;
    win::HWND lastFocus_ = nullptr;
    win::HWND labelOfKey_ = nullptr;  // whose access key is being followed
    int hiddenState_ = stateNormal;   // what WindowState says while hidden
    bool knownMinimised_ = false;     // the last size that onResize told of was minimised
    bool ready_ = false;              // the controls stand; events may be told
    unsigned goneInEvent_ = 0;        // the event in which the form went the last time
    bool unloading_ = false;
    bool toldActive_ = false;  // onActivate was raised since the load
    bool modal_ = false;
};

// The loaded forms, in the order of their loading.
const std::vector<Form*>& loadedForms();

// The form whose window this is, or whose control it is; null for neither.
Form* formOf(win::HWND window);

// The window that a dialog of the system is to lie over and hold: the latest form on the
// screen, whoever has the keyboard.
win::HWND dialogOwner();

}  // namespace magpie
