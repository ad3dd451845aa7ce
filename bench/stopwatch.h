// Stopwatch: how long something takes, for programs that Google Benchmark does not reach. The
// least of several runs counts, because what else the machine does at the time only adds.
#pragma once

#include <algorithm>
#include <chrono>
#include <limits>

namespace magpie::bench {

inline constexpr int runs = 7;

// Milliseconds that one run of `action` takes.
template <class Action>
double timeOf(Action action) {
    const auto begin = std::chrono::steady_clock::now();
    action();
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - begin;
    return time.count();
}

inline void nothing() {}

// The least of several runs of `action`; `prepare` runs before each and is not measured.
template <class Action, class Prepare = void (*)()>
double leastOf(Action action, Prepare prepare = nothing) {
    double least = std::numeric_limits<double>::max();
    for (int run = 0; run < runs; ++run) {
        prepare();
        least = std::min(least, timeOf(action));
    }
    return least;
}

}  // namespace magpie::bench
