// Keeps Wine's desktop process running for as long as it runs itself: the desktop ends a
// second after the last program with a window, and a program that starts without one
// waits for another. Shows nothing, ends with the session or by a kill.
#include <windows.h>

int main() {
    HWND window = CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr,
                                  GetModuleHandleA(nullptr), nullptr);
    if (window == nullptr) return 1;
    MSG message;
    while (GetMessageA(&message, nullptr, 0, 0) > 0) DispatchMessageA(&message);
}
