// The floating pad: Form1 itself, filled by its picture box. Its picture shows the
// state of the line and of the program, a click raises or hides the main window, and
// its right-hand strip drags it.
#pragma once

namespace magpie {

// Draws the pad: held down if `pressed`, else by the line and the main window. Raises
// 53 or 481 for a picture that can't be read; the pad keeps its old one.
void ButtonState(bool pressed);

// Turns the pad on or off.
void toggleActiveIcon();

// Form1's own left press drags the pad, without keeping its place.
void Form1_MouseDown(int button, int shift, double x, double y);
void Form1_Resize();

void padMouseDown(int button, int shift, double x, double y);
void padMouseMove(int button, int shift, double x, double y);
void padMouseUp(int button, int shift, double x, double y);
void padClick();

}  // namespace magpie
