// Screen: the display in twips (1440 to the inch), its work area, and the one
// mouse pointer that holds for every window of the program.
#pragma once

#include "platform/api/constants.h"
#include "platform/api/types.h"

namespace magpie {

// The pointer shapes that the program uses.
enum class Pointer { standard = 0, hourglass = 11, sizeAll = 15 };

class ScreenMetrics {
public:
    // Twips to one pixel: 15 at 96 dots per inch, 12 at 120, 10 at 144. The
    // system's density is fixed for the life of a process, so it is asked once.
    double TwipsPerPixelX();
    double TwipsPerPixelY();

    // Size of the display in twips.
    double Width();
    double Height();

    // The part of the display that no taskbar covers, in pixels. False when the
    // platform does not tell; `area` is then left alone.
    bool workArea(win::RECT& area);

    // Shown over every window of the program; standard leaves each window its own.
    Pointer MousePointer() const { return pointer_; }
    void MousePointer(Pointer shape);

private:
    void measure();

    Pointer pointer_ = Pointer::standard;
    double twipsX_ = 0;
    double twipsY_ = 0;
};

inline ScreenMetrics Screen;

// Makes `shape` the visible cursor at once.
void showPointer(Pointer shape);

// Shows the hourglass while it lives and puts the standard pointer back, also
// when the routine that took it is abandoned.
class Hourglass {
public:
    Hourglass() { Screen.MousePointer(Pointer::hourglass); }
    ~Hourglass() { Screen.MousePointer(Pointer::standard); }
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;
};

// Pixels of a length in twips, rounded to the nearest.
int pixelsX(double twips);
int pixelsY(double twips);

}  // namespace magpie
