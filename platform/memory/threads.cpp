#include "platform/memory/threads.h"

#include <algorithm>
#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

#include "platform/api/kernel32.h"
#include "platform/api/user32.h"
#include "platform/memory/faults.h"
#include "platform/memory/handles.h"
#include "platform/memory/refuse.h"
#include "platform/memory/ticks.h"

namespace win {

namespace memory {
namespace {

struct Worker {
    THREADPROC start = nullptr;
    void* parameter = nullptr;
    std::uint64_t wakeAt = 0;  // a tick
    bool over = false;
};

// Whoever holds it runs; null is the interface thread.
struct Baton {
    std::mutex mutex;
    std::condition_variable passed;
    Worker* holder = nullptr;
};

struct EventObject : KernelObject {
    bool set = false;
};

struct ThreadObject : KernelObject {};

// Stands on its sender's stack, who waits for `result`.
struct SentMessage {
    HWND window;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    Worker* sender;
    LRESULT result = 0;
};

// None of these is ever destroyed: a thread that is held up for ever looks at them to the end.
Baton& baton() {
    static auto* const theBaton = new Baton;
    return *theBaton;
}

std::vector<std::unique_ptr<Worker>>& workers() {
    static auto* const all = new std::vector<std::unique_ptr<Worker>>;
    return *all;
}

std::deque<SentMessage*>& sentMessages() {
    static auto* const waiting = new std::deque<SentMessage*>;
    return *waiting;
}

thread_local Worker* self = nullptr;

void awaitBaton(std::unique_lock<std::mutex>& lock) {
    baton().passed.wait(lock, [] { return baton().holder == self; });
}

void passBaton(Worker* to) {
    std::unique_lock lock(baton().mutex);
    baton().holder = to;
    baton().passed.notify_all();
    awaitBaton(lock);
}

void work(Worker& worker) {
    self = &worker;
    {
        std::unique_lock lock(baton().mutex);
        awaitBaton(lock);
    }
    worker.start(worker.parameter);
    const std::scoped_lock lock(baton().mutex);
    worker.over = true;
    baton().holder = nullptr;
    baton().passed.notify_all();
}

void runThreads() {
    for (std::size_t at = 0; at < workers().size(); ++at) {
        Worker* worker = workers()[at].get();
        if (!worker->over && worker->wakeAt <= ticks()) passBaton(worker);
    }
}

std::uint64_t nextWake() {
    std::uint64_t next = never;
    for (const auto& each : workers())
        if (!each->over) next = std::min(next, each->wakeAt);
    return next;
}

EventObject& eventOf(HANDLE handle) {
    auto* event = dynamic_cast<EventObject*>(objectOf(handle));
    if (!event) refuse("no event", reinterpret_cast<std::uintptr_t>(handle));
    return *event;
}

}  // namespace

void holdThreadUp(std::uint64_t milliseconds) {
    if (self) {
        self->wakeAt = milliseconds == never ? never : ticks() + milliseconds;
        passBaton(nullptr);
    } else {
        if (milliseconds == never) refuse("interface thread", "waits for ever");
        passTicks(milliseconds);
    }
}

bool besideInterface() {
    return self != nullptr;
}

LRESULT sendToInterface(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    SentMessage sent{window, message, wParam, lParam, self};
    sentMessages().push_back(&sent);
    holdThreadUp(never);
    return sent.result;
}

void deliverSent() {
    while (!sentMessages().empty()) {
        SentMessage& sent = *sentMessages().front();
        sentMessages().pop_front();
        sent.result = SendMessageA(sent.window, sent.message, sent.wParam, sent.lParam);
        sent.sender->wakeAt = 0;
    }
}

}  // namespace memory

using namespace memory;

HANDLE CreateThread(const void* security, std::size_t stackBytes, THREADPROC start, void* parameter,
                    DWORD flags, DWORD* threadId) {
    if (security || stackBytes || flags || threadId) refuse("CreateThread", "anything special");
    if (faultIn("CreateThread")) return nullptr;
    workers().push_back(std::make_unique<Worker>(Worker{start, parameter}));
    std::thread(work, std::ref(*workers().back())).detach();
    return newHandle(std::make_unique<ThreadObject>());
}

HANDLE CreateEventA(const void* security, BOOL manualReset, BOOL initialState, const char* name) {
    if (security || !manualReset || initialState || name) refuse("CreateEventA", "this kind");
    if (faultIn("CreateEventA")) return nullptr;
    return newHandle(std::make_unique<EventObject>());
}

BOOL SetEvent(HANDLE event) {
    eventOf(event).set = true;
    return 1;
}

// Nothing is painted here.
DWORD MsgWaitForMultipleObjects(DWORD count, const HANDLE* handles, BOOL waitForAll,
                                DWORD milliseconds, DWORD wakeMask) {
    if (count != 1 || waitForAll) refuse("objects to wait for", count);
    if (wakeMask & ~(QS_SENDMESSAGE | QS_PAINT)) refuse("messages to wait for", wakeMask);
    const std::uint64_t deadline = ticks() + milliseconds;
    for (;;) {
        runThreads();
        if (eventOf(handles[0]).set) return WAIT_OBJECT_0;
        if (!sentMessages().empty()) return WAIT_OBJECT_0 + count;
        if (ticks() >= deadline) return WAIT_TIMEOUT;
        passTicks(std::min(nextWake(), deadline) - ticks());
    }
}

}  // namespace win
