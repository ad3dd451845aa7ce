#include "companion/import/import_counts.h"

#include <string_view>

namespace magpie {

namespace {

std::string counted(std::size_t count, std::string_view one, std::string_view many) {
    return std::to_string(count).append(" ").append(count == 1 ? one : many);
}

void appendSentence(std::string& report, std::size_t count, std::string_view one,
                    std::string_view many) {
    if (count != 0) report.append(" ").append(counted(count, one, many));
}

}  // namespace

std::string reportOf(const ImportCounts& counts) {
    const bool skipped = counts.withoutAddress + counts.unreadable + counts.withoutRoom != 0;
    std::string report = skipped ? "No links were imported." : "No links were found.";
    if (counts.links != 0) {
        report = counted(counts.links, "link in ", "links in ");
        report.append(counted(counts.groups, "group", "groups"));
        report.append(counts.links == 1 ? " was imported." : " were imported.");
    }
    appendSentence(report, counts.withoutAddress, "link without an address was skipped.",
                   "links without an address were skipped.");
    appendSentence(report, counts.unreadable, "file or folder could not be read.",
                   "files or folders could not be read.");
    appendSentence(report, counts.withoutRoom, "link was left out: the list is full.",
                   "links were left out: the list is full.");
    return report;
}

}  // namespace magpie
