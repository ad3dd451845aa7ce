// What reading and writing a stack file costs beside a plain pass over the same bytes, on the
// memory desktop. Prints each measurement and then the ratios with their limits; with --check the
// program fails when a ratio is over its limit.
#include <benchmark/benchmark.h>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

#include "bench/medians.h"
#include "bench/plain_pass.h"
#include "bench/sample_store.h"
#include "mainwindow/form3.h"
#include "platform/controls/common_controls.h"
#include "store/records.h"
#include "store/stack_file.h"

namespace magpie::bench {
namespace {

constexpr int repetitions = 9;
constexpr double passLimit = 3;      // the program's pass over the plain one
constexpr double growthLimit = 5;    // 32,767 entries over 8,192, four times as many
constexpr double groupsLimit = 1.5;  // 1,024 groups over 64: the entries are what counts

constexpr std::int32_t fewEntries = 8192;
constexpr std::int32_t allEntries = 32767;
constexpr std::int32_t fewGroups = 64;
constexpr std::int32_t manyGroups = 1024;

const std::string readFile = "C:\\read.pns";
const std::string writtenFile = "C:\\written.pns";

std::string nameOf(const char* what, StoreSize size) {
    return std::string(what) + " " + std::to_string(size.entries) + " entries in " +
           std::to_string(size.groups) + " groups";
}

// Leaves the store filled and the same in the file.
void prepare(StoreSize size) {
    emptyStore();
    fillStore(size);
    WriteStackFile(readFile);
}

void finish(benchmark::State& state, StoreSize size) {
    state.counters["bytes"] = static_cast<double>(bytesOf(readFile).size());
    state.SetItemsProcessed(state.iterations() * size.entries);
    emptyStore();
}

void measureRead(benchmark::State& state, StoreSize size) {
    prepare(size);
    for (auto _ : state) {
        state.PauseTiming();
        emptyStore();
        state.ResumeTiming();
        if (!ReadStackFile(readFile, false)) state.SkipWithError("not read");
    }
    if (uBlock.URLDatas().Count() != size.entries) state.SkipWithError("not all read");
    finish(state, size);
}

void measurePlainRead(benchmark::State& state, StoreSize size) {
    prepare(size);
    std::vector<PlainEntry> entries;
    for (auto _ : state) {
        state.PauseTiming();
        entries = {};
        state.ResumeTiming();
        readPlainly(readFile, entries);
    }
    if (entries.size() != static_cast<std::size_t>(size.entries)) {
        state.SkipWithError("not all read");
    }
    finish(state, size);
}

void measureWrite(benchmark::State& state, StoreSize size) {
    prepare(size);
    for (auto _ : state) WriteStackFile(writtenFile);
    finish(state, size);
}

void measurePlainWrite(benchmark::State& state, StoreSize size) {
    prepare(size);
    const std::vector<PlainGroup> groups = plainCopyOfStore();
    for (auto _ : state) writePlainly(writtenFile, groups);
    finish(state, size);
}

using Measurement = void (*)(benchmark::State&, StoreSize);

void add(const char* what, Measurement measurement, StoreSize size) {
    benchmark::RegisterBenchmark(
        nameOf(what, size).c_str(),
        [measurement, size](benchmark::State& state) { measurement(state, size); })
        ->Unit(benchmark::kMillisecond)
        ->MinTime(0.05)
        ->Repetitions(repetitions)
        ->ReportAggregatesOnly();
}

void addAll() {
    for (const std::int32_t entries : {fewEntries, allEntries}) {
        for (const std::int32_t groups : {fewGroups, manyGroups}) {
            const StoreSize size{entries, groups};
            add("read", measureRead, size);
            add("plain read", measurePlainRead, size);
            add("write", measureWrite, size);
            add("plain write", measurePlainWrite, size);
        }
    }
}

// Prints the ratio of two measurements; false when it is over the limit or one was not run.
bool compare(const Medians& medians, const std::string& measured, const std::string& baseline,
             double limit) {
    if (!medians.has(measured) || !medians.has(baseline)) return false;
    const double ratio = medians.of(measured) / medians.of(baseline);
    const bool within = ratio <= limit;
    std::printf("%5.2f of %.1f  %s (%.3f ms) / %s (%.3f ms)%s\n", ratio, limit, measured.c_str(),
                medians.of(measured), baseline.c_str(), medians.of(baseline),
                within ? "" : "  OVER");
    return within;
}

bool compareAll(const Medians& medians) {
    bool within = true;
    for (const char* what : {"read", "write"}) {
        const std::string plain = std::string("plain ") + what;
        for (const std::int32_t entries : {fewEntries, allEntries}) {
            for (const std::int32_t groups : {fewGroups, manyGroups}) {
                const StoreSize size{entries, groups};
                within &=
                    compare(medians, nameOf(what, size), nameOf(plain.c_str(), size), passLimit);
            }
            within &= compare(medians, nameOf(what, {entries, manyGroups}),
                              nameOf(what, {entries, fewGroups}), groupsLimit);
        }
        for (const std::int32_t groups : {fewGroups, manyGroups}) {
            within &= compare(medians, nameOf(what, {allEntries, groups}),
                              nameOf(what, {fewEntries, groups}), growthLimit);
        }
    }
    return within;
}

// Takes --check out of the arguments.
bool takeCheck(int& count, char** arguments) {
    if (count < 2 || std::strcmp(arguments[1], "--check") != 0) return false;
    std::memmove(arguments + 1, arguments + 2, sizeof(char*) * static_cast<std::size_t>(count - 1));
    --count;
    return true;
}

int run(int count, char** arguments) {
    const bool check = takeCheck(count, arguments);
    benchmark::Initialize(&count, arguments);
    if (benchmark::ReportUnrecognizedArguments(count, arguments)) return EXIT_FAILURE;
    // The controls that a load clears, without the program behind them.
    startCommonControls();
    Form3.makeControls = makeForm3;
    Form3.load();
    addAll();
    Medians medians;
    benchmark::RunSpecifiedBenchmarks(&medians);
    const bool within = compareAll(medians);
    return check && !within ? EXIT_FAILURE : EXIT_SUCCESS;
}

}  // namespace
}  // namespace magpie::bench

int main(int count, char** arguments) {
    return magpie::bench::run(count, arguments);
}
