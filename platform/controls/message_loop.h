// MessageLoop: how the program waits for the desktop.
#pragma once

namespace magpie {

class Form;

// Lets pending window events run, and returns when there are none left.
void DoEvents();

// The same for a loop that goes on until an event has its effect: with none pending it sleeps
// until one comes, which then is for the next call.
void DoEventsOrSleep();

// Loads the start-up form, which speaks for the program when the session ends. Its
// load decides whether it shows.
void startWith(Form& startUp);

// Runs until no form is loaded. The result is the exit code.
int runUntilNoForm();

// Runs events until `going` answers false or the program ends.
void pumpWhile(bool (*going)(void*), void* context);

}  // namespace magpie
