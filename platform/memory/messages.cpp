// Sending, posting, fetching and dispatching messages.
#include <algorithm>
#include <utility>

#include "platform/memory/desktop.h"
#include "platform/memory/faults.h"
#include "platform/memory/queue.h"
#include "platform/memory/refuse.h"
#include "platform/memory/threads.h"
#include "platform/memory/ticks.h"
#include "platform/memory/timers.h"

namespace win::memory {
namespace {

bool passes(const MSG& message, HWND window, UINT first, UINT last) {
    if (window && !(message.hwnd && isInside(window, message.hwnd))) return false;
    return (first == 0 && last == 0) || (message.message >= first && message.message <= last);
}

bool take(std::deque<MSG>& from, MSG& message, HWND window, UINT first, UINT last, bool remove) {
    auto found = std::find_if(from.begin(), from.end(),
                              [&](const MSG& each) { return passes(each, window, first, last); });
    if (found == from.end()) return false;
    message = *found;
    if (remove) from.erase(found);
    return true;
}

bool takeQuit(MSG& message, bool remove) {
    if (!queue().quitting || !queue().posted.empty()) return false;
    message = MSG{nullptr, WM_QUIT, static_cast<WPARAM>(queue().exitCode), 0, 0, {}};
    if (remove) queue().quitting = false;
    return true;
}

bool takeInput(MSG& message, HWND window, UINT first, UINT last, bool remove) {
    while (true) {
        if (take(queue().ready, message, window, first, last, remove)) return true;
        if (queue().input.empty()) return false;
        deliverInput();
    }
}

bool takeTimer(MSG& message, HWND window, UINT first, UINT last, bool remove) {
    if (!timerDue()) return false;
    MSG due = nextTimerMessage(window, false);
    if (!due.message || !passes(due, window, first, last)) return false;
    message = nextTimerMessage(window, remove);
    return true;
}

void beginPump() {
    Queue& waiting = queue();
    if (!waiting.pumpOver || waiting.dispatching == waiting.uncountedDepth) return;
    waiting.pumpOver = false;
    ++waiting.pumps;
    if (waiting.atPumpBegin) waiting.atPumpBegin();
}

// Lets the user act, or the time pass until the next timer falls due.
void waitForSomething() {
    // A loop whose only company is a timer would wait for its user for ever.
    constexpr std::uint64_t longestWait = 24ull * 3600 * 1000;
    std::uint64_t& waited = queue().waited;
    if (queue().whenNothingToDo && queue().whenNothingToDo()) return;
    if (!anyTimer()) refuse("message loop", "waits with nothing to come");
    if (timerDue()) refuse("message loop", "waits for what its filter shuts out");
    if (waited > longestWait) refuse("message loop", "waits for a day");
    std::uint64_t step = nextTimerTick() - ticks();
    waited += step;
    passTicks(step);
}

}  // namespace

Queue& queue() {
    static Queue theQueue;
    return theQueue;
}

bool nextMessage(MSG& message, HWND window, UINT first, UINT last, bool remove) {
    deliverSent();
    Queue& waiting = queue();
    if (!waiting.posted.empty() && take(waiting.posted, message, window, first, last, remove))
        return true;
    if (waiting.quitting && takeQuit(message, remove)) return true;
    if (!(waiting.input.empty() && waiting.ready.empty()) &&
        takeInput(message, window, first, last, remove))
        return true;
    return takeTimer(message, window, first, last, remove);
}

void forgetMessagesOf(HWND handle) {
    auto concerns = [handle](const MSG& each) { return each.hwnd == handle; };
    std::erase_if(queue().posted, concerns);
    std::erase_if(queue().ready, concerns);
    forgetTimersOf(handle);
}

}  // namespace win::memory

namespace win {

using namespace memory;

LRESULT SendMessageA(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
    if (besideInterface()) return sendToInterface(handle, message, wParam, lParam);
    return windowOf(handle).procedure(handle, message, wParam, lParam);
}

LRESULT CallWindowProcA(WNDPROC previous, HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
    return previous(handle, message, wParam, lParam);
}

BOOL PostMessageA(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
    windowOf(handle);
    if (faultIn("PostMessageA")) return false;
    DWORD time = static_cast<DWORD>(ticks());
    queue().posted.push_back({handle, message, wParam, lParam, time, desktop().pointer});
    return true;
}

void PostQuitMessage(int exitCode) {
    queue().quitting = true;
    queue().exitCode = exitCode;
}

BOOL PeekMessageA(MSG* message, HWND handle, UINT first, UINT last, UINT remove) {
    if (remove & ~PM_REMOVE) refuse("flags of PeekMessageA", remove);
    // Who looks for one kind of message only lets nothing else run.
    const bool pumps = first == 0 && last == 0;
    if (pumps) beginPump();
    const bool found = nextMessage(*message, handle, first, last, remove & PM_REMOVE);
    if (pumps) queue().pumpOver = !found;
    return found;
}

BOOL GetMessageA(MSG* message, HWND handle, UINT first, UINT last) {
    while (!nextMessage(*message, handle, first, last, true)) waitForSomething();
    if (message->message != WM_TIMER) queue().waited = 0;
    return message->message != WM_QUIT;
}

BOOL WaitMessage() {
    MSG message{};
    while (!nextMessage(message, nullptr, 0, 0, false)) waitForSomething();
    return true;
}

LRESULT DispatchMessageA(const MSG* message) {
    // Pumps inside the handler are pumps of their own.
    bool pumpOver = std::exchange(queue().pumpOver, true);
    ++queue().dispatching;
    LRESULT result = 0;
    if (message->message == WM_TIMER && message->lParam) {
        runTimerProcedure(*message);
    } else if (IsWindow(message->hwnd)) {  // it may have gone since the message was fetched
        result = SendMessageA(message->hwnd, message->message, message->wParam, message->lParam);
    }
    --queue().dispatching;
    queue().pumpOver = pumpOver;
    return result;
}

}  // namespace win
