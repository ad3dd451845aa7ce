#include "store/records_by_group.h"

#include <utility>

namespace magpie {

namespace {

constexpr std::int32_t noGroup = -1;

std::int32_t groupOf(double owner, std::int32_t groups) {
    if (!(owner >= 0 && owner < groups)) return noGroup;
    const auto position = static_cast<std::int32_t>(owner);
    return position == owner ? position : noGroup;
}

}  // namespace

RecordsByGroup::RecordsByGroup(URLDatas& records, std::int32_t groups)
    : ends_(static_cast<std::size_t>(groups)) {
    std::vector<std::pair<std::size_t, const URLData*>> placed;
    placed.reserve(static_cast<std::size_t>(records.Count()));
    for (const URLData& record : records) {
        const std::int32_t group = groupOf(record.Owner, groups);
        if (group == noGroup) continue;
        placed.emplace_back(static_cast<std::size_t>(group), &record);
        ++ends_[placed.back().first];
    }

    // From the counts to where each group begins; filling a group moves that to its end.
    std::size_t begin = 0;
    for (std::size_t& end : ends_) begin += std::exchange(end, begin);
    records_.resize(placed.size());
    for (const auto& [group, record] : placed) records_[ends_[group]++] = record;
}

std::span<const URLData* const> RecordsByGroup::of(std::int32_t group) const {
    const auto at = static_cast<std::size_t>(group);
    const std::size_t begin = at == 0 ? 0 : ends_[at - 1];
    return std::span(records_).subspan(begin, ends_[at] - begin);
}

}  // namespace magpie
