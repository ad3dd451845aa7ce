// Event: what a form or control tells. One plain routine listens to it, with or
// without the index that tells the elements of a control array apart.
#pragma once

#include "platform/runtime/failure.h"

namespace magpie {

// One event under way. Events are numbered in the order of their beginnings, so that of two that
// are under way the inner one has the greater number.
class EventUnderWay {
public:
    EventUnderWay() : outer_(innermost_) { innermost_ = ++begun_; }
    ~EventUnderWay() { innermost_ = outer_; }
    EventUnderWay(const EventUnderWay&) = delete;
    EventUnderWay& operator=(const EventUnderWay&) = delete;

    // 0 while none is under way.
    static unsigned innermost() { return innermost_; }

private:
    static inline unsigned begun_ = 0;
    static inline unsigned innermost_ = 0;
    unsigned outer_;
};

template <class... Args>
class Event {
public:
    using Routine = void (*)(Args...);
    using IndexedRoutine = void (*)(int index, Args...);

    Event& operator=(Routine routine) {
        plain_ = routine;
        indexed_ = nullptr;
        return *this;
    }

    Event& operator=(IndexedRoutine routine) {
        indexed_ = routine;
        plain_ = nullptr;
        return *this;
    }

    explicit operator bool() const { return plain_ != nullptr || indexed_ != nullptr; }

    // Runs the routine, if there is one. A routine that fails is abandoned at the
    // failing statement and the program goes on: an event has nobody to fail to.
    void raise(int index, Args... args) const {
        const EventUnderWay underWay;
        try {
            if (plain_ != nullptr) plain_(args...);
            if (indexed_ != nullptr) indexed_(index, args...);
        } catch (const Failure&) {
            return;
        }
    }

private:
    Routine plain_ = nullptr;
    IndexedRoutine indexed_ = nullptr;
};

// Mouse: button (1 left, 2 right, 4 middle; of a move, the sum of those held),
// shift (1 Shift, 2 Ctrl, 4 Alt), and the place in the receiver's scale.
using MouseEvent = Event<int, int, double, double>;

}  // namespace magpie
