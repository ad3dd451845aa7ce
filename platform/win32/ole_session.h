// OleSession: the component libraries as the interface thread has them open, once for all that
// it asks of them.
#pragma once

namespace win {

// Starts them at the first call. They end with the program.
void useOle();

}  // namespace win
