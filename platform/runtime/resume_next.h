// ResumeNext: a run of statements of which a failing one is passed over and the next one runs.
// Each statement is a callable of its own, so that the place where a failure stops and the run
// goes on is visible in the source. Only Failure is passed over; anything else that is thrown
// leaves the run at once.
#pragma once

#include <utility>

#include "platform/runtime/failure.h"

namespace magpie {

// Runs the statements in order and calls onFailure(const Failure&) after each one that fails,
// before the next one starts. What onFailure itself throws leaves the run.
template <class OnFailure, class... S>
void ResumeNextNoting(OnFailure&& onFailure, S&&... statements) {
    const auto run = [&onFailure](auto&& statement) {
        try {
            static_cast<void>(std::forward<decltype(statement)>(statement)());
        } catch (const Failure& failed) {
            onFailure(failed);
        }
    };
    (run(std::forward<S>(statements)), ...);
}

// Runs the statements in order; a failing one leaves no trace but what it had done so far.
template <class... S>
void ResumeNext(S&&... statements) {
    ResumeNextNoting([](const Failure&) {}, std::forward<S>(statements)...);
}

// The If condition of a run that resumes: the next statement after a failing condition is the
// first one of its block, so a condition that fails counts as met. Calls onFailure(const
// Failure&) when it does.
template <class OnFailure, class Condition>
[[nodiscard]] bool trueOrFailingNoting(OnFailure&& onFailure, Condition&& condition) {
    try {
        return static_cast<bool>(std::forward<Condition>(condition)());
    } catch (const Failure& failed) {
        onFailure(failed);
        return true;
    }
}

template <class Condition>
[[nodiscard]] bool trueOrFailing(Condition&& condition) {
    return trueOrFailingNoting([](const Failure&) {}, std::forward<Condition>(condition));
}

}  // namespace magpie
