// Mouse: the platform's mouse messages as the events tell them.
#pragma once

#include "platform/api/types.h"

namespace magpie {

// How a receiver counts places.
enum ScaleModes : int { scaleTwips = 1, scalePixels = 3 };

enum class MouseKind { down, move, up };

struct MouseReport {
    MouseKind kind;
    int button;  // 1 left, 2 right, 4 middle; of a move the sum of those held
    int shift;   // 1 Shift, 2 Ctrl, 4 Alt
    double x;    // in the receiver's scale
    double y;
};

// True for button and move messages; the wheel is none of them.
bool isMouseMessage(win::UINT message);

// `scaleMode` 3 gives pixels, anything else twips. A double click's second press
// counts as a press.
MouseReport mouseReport(win::UINT message, win::WPARAM wParam, win::LPARAM lParam, int scaleMode);

// Shift, Ctrl and Alt as they are now: 1, 2, 4.
inline constexpr int shiftControl = 2;
int shiftState();

}  // namespace magpie
