// Start-up: the road from the process's entry to a working tray controller, and the
// load of the main window.
#pragma once

namespace magpie {

// Runs the program from start to end; the result is the process's exit code.
int runMagpie();

// What stands before the message loop: the forms get their routines and the tray
// controller loads.
void beginMagpie();

// True when another instance of the program is already running.
bool AnotherInstance();

// Takes a base name behind the program's name, whole, as the stack file's name.
void readCommandLine();

void Form1_Load();

void Form3_Load();
void Form3_Resize();
void Form3_KeyPress(int character);

}  // namespace magpie
