// Keystrokes: groups of keys pressed as by a user, in whatever window is in the foreground.
#pragma once

namespace magpie {

void pressAltD();
void pressEnter();
// Control goes up again, the letter stays down: so it always was.
void pressCtrlV();
void pressCtrlC();

}  // namespace magpie
