// The filter decision: whether one record is shown. Pure: it knows of the view, the masks and the
// groups what it is given.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

#include "platform/runtime/date.h"
#include "platform/runtime/pattern.h"
#include "store/index_list.h"
#include "store/records.h"

namespace magpie {

// Modes of the masks that compare. For visits any other number passes everything; for dates any
// other but maskOff passes nothing.
inline constexpr int maskOff = 0;
inline constexpr int maskMoreThan = 1;
inline constexpr int maskLessThan = 2;
inline constexpr int maskEqualTo = 3;

struct VisitMask {
    int mode = maskOff;
    std::int16_t count = 0;
};

struct DateMask {
    int mode = maskOff;
    std::int16_t count = 0;
    int unit = 0;  // 0 days, 1 weeks, 2 months, any other days
};

struct Masks {
    std::array<bool, 6> rated{true, true, true, true, true, false};  // shown, by rating
    VisitMask visited;
    DateMask accessed;
    DateMask added;
    std::string text;  // the user's pattern, found anywhere in a title; empty for none
};

// The groups in view: one, or all that are ticked.
struct Scope {
    bool listAll = true;
    std::int16_t group = 0;   // where not all are listed
    const IndexList& groups;  // outlives the filter
};

// One refresh's view of the records.
class Filter {
public:
    // `now` is the moment that the date masks count from.
    Filter(Scope scope, Masks masks, Date now);

    // Whether a record passes scope, group, rating, visits, last access, addition and text, held
    // against it in this order up to the first that excludes it. Raises 9 for a group or rating
    // that does not exist, 5 for a date that leaves the calendar, 93 for an invalid pattern, each
    // only if the record gets that far.
    bool passes(const URLData& record);

private:
    bool inScope(const URLData& record) const;
    bool passesRating(const URLData& record) const;
    bool passesText(const URLData& record);

    Scope scope_;
    Masks masks_;
    Date now_;
    std::optional<Pattern> pattern_;
    std::string title_;  // upper case, kept for its memory
};

// The date test: "More Than" passes when t <= count, "Less Than" when 0 < t <= count, "Equal To"
// when t = 0, any other mode never; t is the number of boundaries of the unit from `now` to
// `count` units after `date`. Raises 5 for a date that leaves the calendar, given or counted.
[[nodiscard]] bool passesDate(const DateMask& mask, Date date, Date now);

}  // namespace magpie
