#ifdef _WIN32

#include "tests/conformance/hand.h"
#include "tests/conformance/log_window.h"
#include "tests/desktop/tools/drag_source.h"

namespace hand {

namespace {

struct Way {
    win::POINT to{};
    int step = 0;
};
Way way;

void CALLBACK goOn(::HWND, ::UINT, ::UINT_PTR timer, ::DWORD) {
    ++way.step;
    if (way.step == 1) moveTo({way.to.x - 3, way.to.y - 3});
    if (way.step == 2) moveTo(way.to);
    if (way.step < 4) return;
    ::KillTimer(nullptr, timer);
    release(Button::left);
}

}  // namespace

SeenDrag dragText(const std::optional<std::string>& text, win::POINT to) {
    // The drag begins on a window of its own, away from those of the tests.
    ::HWND start = ::CreateWindowExA(WS_EX_TOPMOST | WS_EX_TOOLWINDOW, "STATIC", "",
                                     WS_POPUP | WS_VISIBLE | SS_NOTIFY, 900, 700, 40, 40, nullptr,
                                     nullptr, ::GetModuleHandleA(nullptr), nullptr);
    moveTo({920, 720});
    press(Button::left);
    settle();
    SeenDrag seen;
    DragData data = text ? DragData::text(*text) : DragData::file("C:\\file.txt");
    DragSource source(
        [&seen](::DWORD effect) { seen.copyShown = (effect & DROPEFFECT_COPY) != 0; });
    way = {to, 0};
    ::SetTimer(nullptr, 0, 30, goOn);
    ::OleInitialize(nullptr);
    seen.taken = dragOut(data, source);
    ::OleUninitialize();
    ::DestroyWindow(start);
    settle();
    return seen;
}

}  // namespace hand

#endif
