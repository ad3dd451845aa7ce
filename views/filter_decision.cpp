#include "views/filter_decision.h"

#include <string_view>
#include <utility>

#include "platform/runtime/failure.h"
#include "platform/runtime/letter_case.h"

namespace magpie {

namespace {

std::string_view unitText(int unit) {
    switch (unit) {
        case 1: return "ww";
        case 2: return "m";
        default: return "d";
    }
}

bool passesVisits(const VisitMask& mask, std::int32_t visited) {
    switch (mask.mode) {
        case maskMoreThan: return visited > mask.count;
        case maskLessThan: return visited < mask.count;
        case maskEqualTo: return visited == mask.count;
        default: return true;
    }
}

// A date of zero, which is none, passes no mask that is on.
bool passesDateMask(const DateMask& mask, Date date, Date now) {
    return mask.mode == maskOff || (date.days != 0 && passesDate(mask, date, now));
}

}  // namespace

Filter::Filter(Scope scope, Masks masks, Date now)
    : scope_(scope), masks_(std::move(masks)), now_(now) {}

bool Filter::passes(const URLData& record) {
    return inScope(record) && passesRating(record) &&
           passesVisits(masks_.visited, record.Visited) &&
           passesDateMask(masks_.accessed, record.LastAccesed, now_) &&
           passesDateMask(masks_.added, record.Created, now_) &&
           (masks_.text.empty() || passesText(record));
}

bool Filter::inScope(const URLData& record) const {
    if (!scope_.listAll) return record.Owner == scope_.group;
    return scope_.groups[record.Owner].Checked;
}

bool Filter::passesRating(const URLData& record) const {
    const std::size_t rating = record.Rated.value();
    if (rating >= masks_.rated.size()) throw Failure{failure::subscript};
    return masks_.rated[rating];
}

bool Filter::passesText(const URLData& record) {
    if (!pattern_) pattern_.emplace(std::string("*").append(upperCase(masks_.text)).append("*"));
    upperCaseInto(title_, record.Name());
    return pattern_->matches(title_);
}

bool passesDate(const DateMask& mask, Date date, Date now) {
    const std::string_view unit = unitText(mask.unit);
    const std::int32_t t = DateDiff(unit, now, DateAdd(unit, mask.count, date));
    switch (mask.mode) {
        case maskMoreThan: return t <= mask.count;
        case maskLessThan: return t <= mask.count && t > 0;
        case maskEqualTo: return t == 0;
        default: return false;
    }
}

}  // namespace magpie
