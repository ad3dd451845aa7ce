#include "platform/controls/form.h"

#include <algorithm>
#include <string_view>

#include "platform/api/gdi32.h"
#include "platform/api/kernel32.h"
#include "platform/api/user32.h"
#include "platform/controls/control_failure.h"
#include "platform/controls/menu.h"
#include "platform/controls/message_loop.h"
#include "platform/controls/timer.h"
#include "platform/controls/tool_tips.h"

namespace magpie {

namespace {

std::vector<Form*> loadedList;

struct FrameStyle {
    win::DWORD style;
    win::DWORD exStyle;
};

FrameStyle frameStyle(BorderStyle border) {
    switch (border) {
        case BorderStyle::none: return {win::WS_POPUP, win::WS_EX_TOOLWINDOW};
        case BorderStyle::fixedDialog:
            return {win::WS_POPUP | win::WS_CAPTION | win::WS_SYSMENU, win::WS_EX_DLGMODALFRAME};
        case BorderStyle::sizable: break;
    }
    return {win::WS_OVERLAPPEDWINDOW, 0};
}

// The dialogs' font of the classic desktop: 8 points, whatever the density.
win::HFONT makeDialogFont() {
    constexpr double eightPointsInTwips = 160;
    win::LOGFONTA font{};
    font.lfHeight = -pixelsY(eightPointsInTwips);
    font.lfWeight = 400;
    font.lfCharSet = 1;
    std::string_view("MS Shell Dlg").copy(font.lfFaceName, sizeof font.lfFaceName - 1);
    return win::CreateFontIndirectA(&font);
}

// An icon of the program; it belongs to the system and is never destroyed.
win::HICON loadIcon(win::WORD number, win::INT widthMetric, win::INT heightMetric) {
    return static_cast<win::HICON>(win::LoadImageA(
        win::GetModuleHandleA(nullptr), win::resourceName(number), win::IMAGE_ICON,
        win::GetSystemMetrics(widthMetric), win::GetSystemMetrics(heightMetric), win::LR_SHARED));
}

void registerFormClass(const char* name) {
    win::WNDCLASSEXA definition{};
    definition.cbSize = sizeof definition;
    definition.style = win::CS_DBLCLKS;
    definition.lpfnWndProc = &formProcedure;
    definition.hInstance = win::GetOwnModule();
    definition.hCursor = win::LoadCursorA(nullptr, win::resourceName(win::IDC_ARROW_NUMBER));
    definition.hbrBackground = win::GetSysColorBrush(win::COLOR_BTNFACE);
    definition.lpszClassName = name;
    // A form that loads again finds its class registered; that is no failure.
    win::RegisterClassExA(&definition);
}

}  // namespace

Form* Form::underConstruction = nullptr;
Form* Form::startUp = nullptr;
bool Form::ending = false;

const std::vector<Form*>& loadedForms() {
    return loadedList;
}

Form::Form(const FormDesign& design) : design_(design) {
    underConstruction = this;
}

win::HWND Form::hWnd() {
    loadByAccess();
    if (window_ == nullptr) throw Failure{failure::objectNotSet};
    return window_;
}

void Form::load() {
    if (window_ != nullptr) return;
    if (ending) throw Failure{failure::objectNotSet};
    createWindow();
    beHeld();
    loadedList.push_back(this);
    if (makeControls != nullptr) makeControls();
    ready_ = true;
    onLoad.raise(0);
}

void Form::loadByAccess() {
    if (window_ != nullptr) return;
    const unsigned accessing = EventUnderWay::innermost();
    if (accessing != 0 && accessing < goneInEvent_) throw Failure{failure::objectNotSet};
    load();
}

void Form::createWindow() {
    registerFormClass(design_.className);
    const FrameStyle frame = frameStyle(design_.border);
    window_ = win::CreateWindowExA(frame.exStyle, design_.className, design_.caption,
                                   frame.style | win::WS_CLIPCHILDREN, 0, 0, 0, 0, outer_, nullptr,
                                   win::GetOwnModule(), nullptr);
    if (window_ == nullptr) throw Failure{failure::outOfMemory};
    win::SetWindowLongPtrA(window_, win::GWLP_USERDATA, reinterpret_cast<win::LONG_PTR>(this));
    font_ = makeDialogFont();
    lastControlId_ = 100;
    // The design tells the inner size; the frame around it is the desktop's.
    const int width = pixelsX(design_.clientWidth);
    const int height = pixelsY(design_.clientHeight);
    win::SetWindowPos(window_, nullptr, 0, 0, width + 200, height + 200,
                      win::SWP_NOZORDER | win::SWP_NOACTIVATE);
    win::RECT inner{};
    win::GetClientRect(window_, &inner);
    win::SetWindowPos(window_, nullptr, 0, 0, width + (width + 200 - inner.right),
                      height + (height + 200 - inner.bottom),
                      win::SWP_NOZORDER | win::SWP_NOACTIVATE);
    assigned_ = measured();
    hiddenState_ = stateNormal;
    knownMinimised_ = false;
    if (design_.iconResource != 0)
        Icon({loadIcon(design_.iconResource, win::SM_CXICON, win::SM_CYICON),
              loadIcon(design_.iconResource, win::SM_CXSMICON, win::SM_CYSMICON)});
}

bool Form::unload(UnloadMode mode) {
    if (window_ == nullptr) return true;
    if (unloading_) return false;
    unloading_ = true;
    bool cancel = false;
    onQueryUnload.raise(0, cancel, mode);
    if (!cancel) {
        onUnload.raise(0);
        discard();
    }
    unloading_ = false;
    return !cancel;
}

void Form::discard() {
    if (window_ == nullptr) return;
    if (this == startUp) ending = true;
    leave();
    win::DestroyWindow(window_);
}

// What has to end while the window is still there.
void Form::leave() {
    goneInEvent_ = EventUnderWay::innermost();
    closePopupOf(*this);
    endModal();
    ready_ = false;
    for (Timer* timer : timers_) timer->stop();
    timers_.clear();
    delete toolTips_;
    toolTips_ = nullptr;
}

// A window that is owned goes with its owner, and nobody has told the form before.
void Form::forgetWindow() {
    if (ready_) leave();
    win::DeleteObject(font_);
    font_ = nullptr;
    default_ = drawnDefault_ = cancel_ = docked_ = nullptr;
    pages_ = nullptr;
    lastFocus_ = leftOnPage_ = nullptr;
    std::erase(loadedList, this);
    window_ = nullptr;
    toldActive_ = false;
    // Inside a message that another program has sent, as the tray's are, the loop waits on
    // for a message of its own.
    if (ending && loadedList.empty()) win::PostQuitMessage(0);
}

void Form::attachTimer(Timer& timer) {
    timers_.push_back(&timer);
}

ToolTips& Form::toolTips() {
    if (toolTips_ == nullptr) toolTips_ = new ToolTips(hWnd());
    return *toolTips_;
}

std::string Form::Caption() {
    std::string text(static_cast<std::size_t>(win::GetWindowTextLengthA(hWnd())) + 1, '\0');
    text.resize(static_cast<std::size_t>(win::GetWindowTextA(window_, text)));
    return text;
}

void Form::Caption(const std::string& text) {
    win::SetWindowTextA(hWnd(), text.c_str());
}

const FormIcon& Form::Icon() {
    hWnd();
    return icon_;
}

void Form::Icon(const FormIcon& icon) {
    hWnd();
    icon_ = icon;
    const auto show = [this](win::INT size, win::HICON wanted) {
        const auto which = static_cast<win::WPARAM>(size);
        const auto handle = reinterpret_cast<win::LPARAM>(wanted);
        // Asking first spares the frame a repaint when nothing changes.
        if (win::SendMessageA(window_, win::WM_GETICON, which, 0) != handle)
            win::SendMessageA(window_, win::WM_SETICON, which, handle);
    };
    show(win::ICON_BIG, icon.big);
    show(win::ICON_SMALL, icon.small);
}

double Form::ScaleWidth() {
    win::RECT inner{};
    win::GetClientRect(hWnd(), &inner);
    return inner.right * Screen.TwipsPerPixelX();
}

double Form::ScaleHeight() {
    win::RECT inner{};
    win::GetClientRect(hWnd(), &inner);
    return inner.bottom * Screen.TwipsPerPixelY();
}

// Geometry ---------------------------------------------------------------------

namespace {

// The platform counts the place that a window comes back to from the corner of the
// work area, and for a tool window from that of the screen.
win::POINT originOfPlacement(const FormDesign& design) {
    win::RECT area{};
    if (design.border == BorderStyle::none || !Screen.workArea(area)) return {};
    return {area.left, area.top};
}

}  // namespace

// Of a minimised window the place that it comes back to.
Form::Geometry Form::measured() {
    win::RECT rect{};
    if (win::IsIconic(window_)) {
        win::WINDOWPLACEMENT placement{};
        placement.length = sizeof placement;
        win::GetWindowPlacement(window_, &placement);
        const win::POINT origin = originOfPlacement(design_);
        const win::RECT& back = placement.rcNormalPosition;
        rect = {back.left + origin.x, back.top + origin.y, back.right + origin.x,
                back.bottom + origin.y};
    } else {
        win::GetWindowRect(window_, &rect);
    }
    return {rect.left * Screen.TwipsPerPixelX(), rect.top * Screen.TwipsPerPixelY(),
            (rect.right - rect.left) * Screen.TwipsPerPixelX(),
            (rect.bottom - rect.top) * Screen.TwipsPerPixelY()};
}

// What was assigned, to the fraction, as long as the window still stands there.
double Form::edge(double Geometry::*which) {
    hWnd();
    const double now = measured().*which;
    const bool horizontal = which == &Geometry::left || which == &Geometry::width;
    const auto pixels = horizontal ? &pixelsX : &pixelsY;
    return pixels(assigned_.*which) == pixels(now) ? assigned_.*which : now;
}

void Form::assign(double Geometry::*which, double twips) {
    hWnd();
    const bool size = which == &Geometry::width || which == &Geometry::height;
    if (size && twips < 0) throw Failure{failure::invalidProperty};
    assigned_ = {edge(&Geometry::left), edge(&Geometry::top), edge(&Geometry::width),
                 edge(&Geometry::height)};
    assigned_.*which = twips;
    applyGeometry();
}

void Form::applyGeometry() {
    const int left = pixelsX(assigned_.left);
    const int top = pixelsY(assigned_.top);
    const int width = pixelsX(assigned_.width);
    const int height = pixelsY(assigned_.height);
    if (!win::IsIconic(window_)) {
        win::SetWindowPos(window_, nullptr, left, top, width, height,
                          win::SWP_NOZORDER | win::SWP_NOACTIVATE);
        return;
    }
    win::WINDOWPLACEMENT placement{};
    placement.length = sizeof placement;
    win::GetWindowPlacement(window_, &placement);
    const win::POINT origin = originOfPlacement(design_);
    placement.rcNormalPosition = {left - origin.x, top - origin.y, left + width - origin.x,
                                  top + height - origin.y};
    placement.showCmd = static_cast<win::UINT>(
        win::IsWindowVisible(window_) ? win::SW_SHOWMINNOACTIVE : win::SW_HIDE);
    win::SetWindowPlacement(window_, &placement);
}

double Form::Left() {
    return edge(&Geometry::left);
}
double Form::Top() {
    return edge(&Geometry::top);
}
double Form::Width() {
    return edge(&Geometry::width);
}
double Form::Height() {
    return edge(&Geometry::height);
}
void Form::Left(double twips) {
    assign(&Geometry::left, twips);
}
void Form::Top(double twips) {
    assign(&Geometry::top, twips);
}
void Form::Width(double twips) {
    assign(&Geometry::width, twips);
}
void Form::Height(double twips) {
    assign(&Geometry::height, twips);
}

}  // namespace magpie
