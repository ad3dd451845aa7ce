// Another program that texts and files can be dragged out of, by pressing on its window.
//   dragger LEFT TOP TEXT        drags that text
//   dragger LEFT TOP --file PATH drags a file
// LEFT and TOP place the window on the screen. Prints a line whenever the cursor changes during
// a drag, "copy" or "no", and one at its end, "taken" or "refused". Runs until it is killed. Its
// window leaves the activation where it is, or the main window would step aside for it.
#include <cstdio>
#include <cstdlib>
#include <string>

#include "tests/desktop/tools/drag_source.h"

namespace {

DragData* dragged = nullptr;

void say(const char* word) {
    std::puts(word);
    std::fflush(stdout);
}

void dragIt() {
    DWORD before = 0xFFFF;
    DragSource source([&before](DWORD effect) {
        if (effect == before) return;
        before = effect;
        say((effect & DROPEFFECT_COPY) != 0 ? "copy" : "no");
    });
    say(dragOut(*dragged, source) ? "taken" : "refused");
}

LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_MOUSEACTIVATE) return MA_NOACTIVATE;
    if (message == WM_LBUTTONDOWN) dragIt();
    return DefWindowProcA(window, message, wParam, lParam);
}

bool show(int left, int top) {
    WNDCLASSA definition{};
    definition.lpfnWndProc = procedure;
    definition.hInstance = GetModuleHandleA(nullptr);
    definition.hCursor = LoadCursorA(nullptr, IDC_ARROW);
    definition.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_INFOBK + 1);
    definition.lpszClassName = "Dragger";
    RegisterClassA(&definition);
    HWND window = CreateWindowExA(WS_EX_TOPMOST | WS_EX_NOACTIVATE, "Dragger", "Dragger",
                                  WS_POPUP | WS_BORDER, left, top, 60, 60, nullptr, nullptr,
                                  definition.hInstance, nullptr);
    ShowWindow(window, SW_SHOWNOACTIVATE);
    return window != nullptr;
}

}  // namespace

int main(int count, char** arguments) {
    if (count < 4) return 2;
    const bool file = count == 5 && std::string(arguments[3]) == "--file";
    DragData data = file ? DragData::file(arguments[4]) : DragData::text(arguments[3]);
    dragged = &data;
    OleInitialize(nullptr);
    if (!show(std::atoi(arguments[1]), std::atoi(arguments[2]))) return 1;
    MSG message;
    while (GetMessageA(&message, nullptr, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
}
