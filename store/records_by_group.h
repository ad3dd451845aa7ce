// RecordsByGroup: which records stand in which group, for a walk group by group that costs one
// pass over the store.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "store/records.h"

namespace magpie {

class RecordsByGroup {
public:
    // Sorts the records into the groups 0 to groups - 1 whose position equals their Owner; a
    // record of any other Owner, 1.5 or -1 say, is in none. Good until a record is deleted or
    // changes its Owner.
    RecordsByGroup(URLDatas& records, std::int32_t groups);

    // The records of a group in collection order.
    [[nodiscard]] std::span<const URLData* const> of(std::int32_t group) const;

private:
    std::vector<const URLData*> records_;  // one group behind the other
    std::vector<std::size_t> ends_;        // of each group in records_
};

}  // namespace magpie
