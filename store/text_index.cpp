#include "store/text_index.h"

namespace magpie {

namespace {

// As many as a store has places at most.
constexpr std::size_t slots = 32768;

}  // namespace

void TextIndex::clear() {
    chains_.clear();
    links_.clear();
}

// New records stand behind all others, so the search for the neighbour begins at the end.
void TextIndex::add(std::int32_t place, std::size_t number) {
    if (chains_.empty()) chains_.resize(slots);
    const std::size_t needed = static_cast<std::size_t>(place) + 1;
    if (links_.size() < needed) links_.resize(needed);

    Chain& its = chain(number);
    std::int32_t before = its.last;
    while (before > place) before = link(before).before;
    const std::int32_t behind = before == nowhere ? its.first : link(before).behind;
    link(place) = {number, before, behind};
    (before == nowhere ? its.first : link(before).behind) = place;
    (behind == nowhere ? its.last : link(behind).before) = place;
}

void TextIndex::remove(std::int32_t place) {
    const Link gone = link(place);
    Chain& its = chain(gone.number);
    (gone.before == nowhere ? its.first : link(gone.before).behind) = gone.behind;
    (gone.behind == nowhere ? its.last : link(gone.behind).before) = gone.before;
}

std::int32_t TextIndex::first(std::size_t number) const {
    if (chains_.empty()) return nowhere;
    return withNumber(chains_[number % slots].first, number);
}

std::int32_t TextIndex::firstBehind(std::int32_t place, std::size_t number) const {
    if (link(place).number == number) return withNumber(link(place).behind, number);
    std::int32_t found = first(number);
    while (found != nowhere && found <= place) found = withNumber(link(found).behind, number);
    return found;
}

const TextIndex::Link& TextIndex::link(std::int32_t place) const {
    return links_[static_cast<std::size_t>(place)];
}

TextIndex::Link& TextIndex::link(std::int32_t place) {
    return links_[static_cast<std::size_t>(place)];
}

TextIndex::Chain& TextIndex::chain(std::size_t number) {
    return chains_[number % slots];
}

// From a place of its chain on.
std::int32_t TextIndex::withNumber(std::int32_t place, std::size_t number) const {
    while (place != nowhere && link(place).number != number) place = link(place).behind;
    return place;
}

}  // namespace magpie
