// The driver's part in the desktop, its time and its messages.
#include "platform/memory/driver.h"

#include <algorithm>
#include <deque>
#include <utility>

#include "platform/api/comctl32.h"
#include "platform/memory/activity.h"
#include "platform/memory/classes.h"
#include "platform/memory/desktop.h"
#include "platform/memory/faults.h"
#include "platform/memory/file_dialogs.h"
#include "platform/memory/gdi_objects.h"
#include "platform/memory/menu_tree.h"
#include "platform/memory/queue.h"
#include "platform/memory/refuse.h"
#include "platform/memory/resources.h"
#include "platform/memory/ticks.h"
#include "platform/memory/timers.h"
#include "platform/memory/tool_tip.h"
#include "platform/memory/user_answers.h"

namespace win::memory::driver {
namespace {

struct PumpAction {
    int pump;  // its number, counted from the start
    std::function<void()> action;
};

struct Script {
    std::function<void()> loop;
    std::vector<PumpAction> atPumps;
    std::deque<std::function<void()>> whenIdle;
};

Script& script() {
    static Script theScript;
    return theScript;
}

std::vector<HWND> topLevel() {
    return desktop().zOrder;
}

// What a program's loop does, for tests of windows that have none.
void plainLoop() {
    MSG message{};
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT) return PostQuitMessage(static_cast<int>(message.wParam));
        if (message.hwnd && IsDialogMessageA(rootOf(message.hwnd), &message)) continue;
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
}

void runPumpActions() {
    auto& actions = script().atPumps;
    for (std::size_t at = 0; at < actions.size();) {
        if (actions[at].pump > queue().pumps) {
            ++at;
            continue;
        }
        auto action = actions[at].action;
        actions.erase(actions.begin() + static_cast<std::ptrdiff_t>(at));
        action();
    }
}

bool runIdleAction() {
    if (script().whenIdle.empty()) return false;
    auto action = script().whenIdle.front();
    script().whenIdle.pop_front();
    queue().waited = 0;
    action();
    return true;
}

bool matches(const Window& window, std::string_view className, std::string_view text) {
    return (className.empty() || sameIgnoringCase(window.className, className)) &&
           (text.empty() || window.text == text);
}

}  // namespace

void setScreen(int width, int height) {
    constexpr int taskBar = 28;
    desktop().screen = {0, 0, width, height};
    desktop().workArea = {0, 0, width, height - taskBar};
}

void setWorkArea(const RECT& area) {
    constexpr WPARAM setWorkAreaAction = 47;  // SPI_SETWORKAREA
    desktop().workArea = area;
    for (HWND each : topLevel()) {
        if (IsWindow(each)) SendMessageA(each, WM_SETTINGCHANGE, setWorkAreaAction, 0);
    }
}

void setDpi(int dpi) {
    if (live().windows) refuse("density of the screen", "changed under living windows");
    desktop().dpi = dpi;
}

void changeDpi(HWND window, int dpi, const RECT& proposed) {
    RECT rect = proposed;
    desktop().dpi = dpi;
    SendMessageA(window, WM_DPICHANGED, makeWParam(dpi, dpi), reinterpret_cast<LPARAM>(&rect));
}

void provideIcon(WORD number) {
    icons().numbers.insert(number);
}

void pump() {
    Queue& waiting = queue();
    int depth = std::exchange(waiting.uncountedDepth, waiting.dispatching);
    bool pumpOver = waiting.pumpOver;
    script().loop ? script().loop() : plainLoop();
    waiting.pumpOver = pumpOver;
    waiting.uncountedDepth = depth;
}

void pumpWith(std::function<void()> loop) {
    script().loop = std::move(loop);
}

void advance(unsigned milliseconds) {
    std::uint64_t target = ticks() + milliseconds;
    do {
        std::uint64_t next = std::min(nextTimerTick(), target);
        if (next > ticks()) passTicks(next - ticks());
        pump();
    } while (ticks() < target);
}

void atPump(int n, std::function<void()> action) {
    if (n < 1) refuse("pump", "before the next one");
    script().atPumps.push_back({queue().pumps + n, std::move(action)});
    queue().atPumpBegin = runPumpActions;
}

int pumps() {
    return queue().pumps;
}

void whenIdle(std::function<void()> action) {
    script().whenIdle.push_back(std::move(action));
    queue().whenNothingToDo = runIdleAction;
}

int unplayed() {
    const UserAnswers& answers = userAnswers();
    return static_cast<int>(script().atPumps.size() + script().whenIdle.size() +
                            answers.popups.size() + answers.boxes.size() + answers.drags.size() +
                            fileDialogs().answers.size());
}

void failCall(std::string_view function, int nth, DWORD error) {
    armFault(function, nth, error);
}

void atCall(std::string_view function, int nth, std::function<void()> action) {
    armAction(function, nth, std::move(action));
}

int faultsLeft() {
    return memory::faultsLeft();
}

void deactivateApplication() {
    if (!desktop().active) refuse("application", "is not active");
    activate(nullptr, false);
}

void activateApplication() {
    HWND back = desktop().lastActive;
    if (!back || !isShown(back)) refuse("application", "has no window to come back to");
    activate(back, false);
}

bool endSession() {
    bool agreed = true;
    std::vector<HWND> asked;
    for (HWND each : topLevel()) {
        if (!agreed || !IsWindow(each)) continue;
        asked.push_back(each);
        agreed = SendMessageA(each, WM_QUERYENDSESSION, 0, 0) != 0;
    }
    for (HWND each : asked) {
        if (IsWindow(each)) SendMessageA(each, WM_ENDSESSION, agreed, 0);
    }
    return agreed;
}

Counts live() {
    Counts counts;
    for (const auto& each : desktop().windows) counts.windows += each != nullptr;
    counts.menus = static_cast<int>(menus().alive.size());
    counts.gdiObjects = static_cast<int>(gdi().objects.size());
    counts.icons = static_cast<int>(icons().owned.size());
    counts.deviceContexts = static_cast<int>(gdi().contexts.size());
    counts.timers = static_cast<int>(timers().all.size());
    return counts;
}

WORD cursor() {
    if (!desktop().cursor) return 0;
    return static_cast<WORD>(reinterpret_cast<std::uintptr_t>(desktop().cursor) - firstCursor);
}

std::string toolTip(HWND window) {
    for (HWND each : topLevel()) {
        if (windowOf(each).className != TOOLTIPS_CLASSA) continue;
        for (const Tool& tool : controlState<ToolTipState>(each).tools) {
            if (tool.id == reinterpret_cast<UINT_PTR>(window)) return tool.text;
        }
    }
    return {};
}

HWND findChild(HWND parent, std::string_view className, std::string_view text) {
    for (HWND each : windowOf(parent).children) {
        if (matches(windowOf(each), className, text)) return each;
        if (HWND below = findChild(each, className, text)) return below;
    }
    return nullptr;
}

HWND findWindow(std::string_view className, std::string_view text) {
    for (HWND each : desktop().zOrder) {
        if (matches(windowOf(each), className, text)) return each;
        if (HWND below = findChild(each, className, text)) return below;
    }
    return nullptr;
}

std::string pictureOf(HWND window) {
    auto picture = reinterpret_cast<HBITMAP>(SendMessageA(window, STM_GETIMAGE, IMAGE_BITMAP, 0));
    return picture ? pictureFiles().at(picture) : std::string();
}

bool isThemed(HWND window) {
    return windowOf(window).themed;
}

HICON iconOf(HWND window, int which) {
    return which == ICON_SMALL ? windowOf(window).smallIcon : windowOf(window).bigIcon;
}

}  // namespace win::memory::driver
