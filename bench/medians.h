// Medians: Google Benchmark's console report, of which the median processor time of each
// measurement is kept, so that ratios can be formed from it. What else the machine does at the
// same time counts little in it.
#pragma once

#include <benchmark/benchmark.h>
#include <map>
#include <string>
#include <vector>

namespace magpie::bench {

class Medians : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs) {
            if (run.aggregate_name == "median") {
                times_[run.run_name.function_name] = run.GetAdjustedCPUTime();
            }
        }
    }

    // The median time of a measurement, in the unit of the report; raises std::out_of_range when
    // it was not run.
    double of(const std::string& name) const { return times_.at(name); }
    bool has(const std::string& name) const { return times_.contains(name); }

private:
    std::map<std::string, double> times_;
};

}  // namespace magpie::bench
