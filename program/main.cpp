// The program's entry: the forms get their routines, and the tray controller, which
// lives for the whole run, starts it.
#include "core/start_up.h"

int main() {
    return magpie::runMagpie();
}
