// Hand: the user's mouse, keys and choices, on either desktop. What it does reaches the
// program through the desktop, as a real user's doing would.
#pragma once

#include <optional>
#include <string>

#include "platform/api/user32.h"

namespace hand {

// Moves the mouse to a point of the screen, in pixels.
void moveTo(win::POINT at);
// Presses or lets go a button, where the mouse is.
enum class Button { left, right, middle };
void press(Button button);
void release(Button button);
// Presses once more, soon enough to make a double click.
void pressAgain(Button button);
void turnWheel(int notches);
// A point of the window's client area, on the screen.
win::POINT pointIn(win::HWND window, int x, int y);

void keyDown(int virtualKey);
void keyUp(int virtualKey);

// Answers the popup menu that comes next: with its n-th line from 1, separators not
// counted; 0 closes it without a choice.
void answerPopup(int line);
// The same by a letter, which is no access key of the menu.
void answerPopupByLetter(char letter);
// Runs `action` while the popup menu that comes next is up. It has to see to the menu's end.
void actInPopup(void (*action)());
// Presses this button of the message box that comes next; notes what it sees.
void answerBox(int button);
struct SeenBox {
    bool ownerEnabled = true;
    bool ownerActive = true;
};
SeenBox seenBox();
// Runs `action` while the message box that comes next is up. It has to see to the box's end.
void actInBox(void (*action)());
// Presses the window's caption, drags its upper left corner here and lets go, as soon as
// messages are delivered.
void dragByCaption(win::HWND window, win::POINT corner);

// Drags a text from a program over a point of the screen and lets it go there; without a text
// something else is dragged. Answers once all is over.
struct SeenDrag {
    bool copyShown = false;  // by the cursor, over the point
    bool taken = false;
};
SeenDrag dragText(const std::optional<std::string>& text, win::POINT to);

// Delivers everything that the hand has done, and what comes of it.
void settle(win::HWND dialog = nullptr);

// Whether this is Wine, which in a few places differs from the documentation. A test that
// expects such a difference fails once it is gone.
bool underWine();

}  // namespace hand
