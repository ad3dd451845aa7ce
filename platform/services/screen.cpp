#include "platform/services/screen.h"

#include <cmath>

#include "platform/api/gdi32.h"
#include "platform/api/user32.h"

namespace magpie {

namespace {

constexpr double twipsPerInch = 1440;

win::WORD cursorNumber(Pointer shape) {
    switch (shape) {
        case Pointer::hourglass: return win::IDC_WAIT_NUMBER;
        case Pointer::sizeAll: return win::IDC_SIZEALL_NUMBER;
        case Pointer::standard: break;
    }
    return win::IDC_ARROW_NUMBER;
}

}  // namespace

void ScreenMetrics::measure() {
    win::HDC context = win::GetDC(nullptr);
    twipsX_ = twipsPerInch / win::GetDeviceCaps(context, win::LOGPIXELSX);
    twipsY_ = twipsPerInch / win::GetDeviceCaps(context, win::LOGPIXELSY);
    win::ReleaseDC(nullptr, context);
}

double ScreenMetrics::TwipsPerPixelX() {
    if (twipsX_ == 0) measure();
    return twipsX_;
}

double ScreenMetrics::TwipsPerPixelY() {
    if (twipsY_ == 0) measure();
    return twipsY_;
}

double ScreenMetrics::Width() {
    return win::GetSystemMetrics(win::SM_CXSCREEN) * TwipsPerPixelX();
}

double ScreenMetrics::Height() {
    return win::GetSystemMetrics(win::SM_CYSCREEN) * TwipsPerPixelY();
}

bool ScreenMetrics::workArea(win::RECT& area) {
    win::RECT found{};
    if (!win::SystemParametersInfoA(win::SPI_GETWORKAREA, 1, &found, 0)) return false;
    area = found;
    return true;
}

void ScreenMetrics::MousePointer(Pointer shape) {
    pointer_ = shape;
    showPointer(shape);
}

void showPointer(Pointer shape) {
    win::SetCursor(win::LoadCursorA(nullptr, win::resourceName(cursorNumber(shape))));
}

int pixelsX(double twips) {
    return static_cast<int>(std::lround(twips / Screen.TwipsPerPixelX()));
}

int pixelsY(double twips) {
    return static_cast<int>(std::lround(twips / Screen.TwipsPerPixelY()));
}

}  // namespace magpie
