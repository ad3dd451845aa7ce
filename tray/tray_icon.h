// The icon in the notification area, and what the shell tells of it. The shell's
// notifications arrive as mouse moves of Form1, with the mouse message in the place
// of the X coordinate: a form hears mouse moves anyway.
#pragma once

namespace magpie {

// Removes the icon if `remove`, else adds it. What the shell answers is not looked at.
void setTrayIcon(bool remove);

// Form1's mouse move: a left release restores and shows the main window, a right one
// pops up the tray menu, anything else is nothing.
void trayNotification(int button, int shift, double x, double y);

}  // namespace magpie
