#include "store/records.h"

#include <array>
#include <functional>
#include <utility>

#include "platform/runtime/failure.h"

namespace magpie {

namespace {

using Key = std::array<char, 5>;

// The number with "00000": the counter's range keeps it at five digits.
Key keyOf(std::int16_t number) {
    Key key;
    int rest = number;
    for (auto digit = key.rbegin(); digit != key.rend(); ++digit) {
        *digit = static_cast<char>('0' + rest % 10);
        rest /= 10;
    }
    return key;
}

std::size_t hashOf(std::string_view name, std::string_view url) {
    constexpr std::size_t factor = 31;
    const std::hash<std::string_view> hash;
    return hash(name) * factor + hash(url);
}

}  // namespace

void URLData::change(std::string& field, std::string_view text) {
    if (home_ != nullptr) home_->unlist(*this);
    field = text;
    if (home_ != nullptr) home_->list(*this);
}

void URLData::ID(std::string_view id) {
    if (idGiven_) return;
    idGiven_ = true;
    id_ = id;
}

URLDatas::Enumerator URLDatas::NewEnum() {
    return Enumerator(*this);
}

URLDatas::Enumerator URLDatas::begin() {
    return NewEnum();
}

URLData& URLDatas::Add(std::string_view Name, std::string_view URL, double Owner) {
    auto record = std::make_unique<URLData>();
    ++urlCounter_;
    const Key key = keyOf(urlCounter_);
    record->ID({key.data(), key.size()});
    record->Name(Name);
    record->URL(URL);
    record->Owner = Owner;

    const std::size_t place = places_.size();
    if (place % blockSize == 0) inBlock_.push_back(0);
    places_.push_back(std::move(record));
    ++inBlock_.back();
    ++count_;
    URLData& added = *places_.back();
    added.home_ = this;
    list(added);
    return added;
}

URLData& URLDatas::Item(std::string_view key) {
    return *places_[placeOf(key)];
}

URLData& URLDatas::Item(std::int32_t position) {
    return *places_[placeOf(position)];
}

URLData* URLDatas::Find(std::string_view Name, std::string_view URL, const URLData* after) {
    if (!listed_) listAll();
    const std::size_t number = hashOf(Name, URL);
    std::int32_t place =
        after == nullptr ? byTexts_.first(number) : byTexts_.firstBehind(indexed(*after), number);
    for (; place != TextIndex::nowhere; place = byTexts_.firstBehind(place, number)) {
        URLData& record = *places_[static_cast<std::size_t>(place)];
        if (record.Name() == Name && record.URL() == URL) return &record;
    }
    return nullptr;
}

void URLDatas::Delete(std::string_view key) {
    deleteAt(placeOf(key));
}

void URLDatas::Delete(std::int32_t position) {
    deleteAt(placeOf(position));
}

void URLDatas::Clear() {
    for (auto& record : places_) retire(std::move(record));
    places_.clear();
    inBlock_.clear();
    byTexts_.clear();
    listed_ = false;
    count_ = 0;
    urlCounter_ = 0;
    ++emptyings_;
}

std::size_t URLDatas::placeOf(std::string_view key) const {
    std::size_t number = 0;
    for (const char digit : key) {
        if (key.size() != Key{}.size() || digit < '0' || digit > '9') {
            throw Failure{failure::invalidCall};
        }
        number = number * 10 + static_cast<std::size_t>(digit - '0');
    }
    if (number == 0 || number > places_.size() || !places_[number - 1]) {
        throw Failure{failure::invalidCall};
    }
    return number - 1;
}

std::size_t URLDatas::placeOf(std::int32_t position) const {
    if (position < 1 || position > count_) throw Failure{failure::subscript};
    std::int32_t before = position - 1;  // records to pass over
    std::size_t block = 0;
    while (before >= inBlock_[block]) before -= inBlock_[block++];

    std::size_t place = block * blockSize;
    while (!places_[place] || before-- > 0) ++place;
    return place;
}

void URLDatas::deleteAt(std::size_t place) {
    unlist(*places_[place]);
    --inBlock_[place / blockSize];
    --count_;
    retire(std::move(places_[place]));
    if (count_ < 1) Clear();
}

void URLDatas::retire(std::unique_ptr<URLData> record) {
    if (!record || walks_ == 0) return;
    record->home_ = nullptr;
    retired_.push_back(std::move(record));
}

std::int32_t URLDatas::indexed(const URLData& record) const {
    return static_cast<std::int32_t>(placeOf(record.ID()));
}

void URLDatas::listAll() {
    listed_ = true;
    for (const auto& record : places_)
        if (record) list(*record);
}

void URLDatas::list(const URLData& record) {
    if (listed_) byTexts_.add(indexed(record), hashOf(record.Name(), record.URL()));
}

void URLDatas::unlist(const URLData& record) {
    if (listed_) byTexts_.remove(indexed(record));
}

URLDatas::Enumerator::Enumerator(URLDatas& records)
    : records_(records), emptyings_(records.emptyings_) {
    ++records_.walks_;
    settle();
}

URLDatas::Enumerator::~Enumerator() {
    if (--records_.walks_ == 0) records_.retired_.clear();
}

URLDatas::Enumerator& URLDatas::Enumerator::operator++() {
    ++place_;
    settle();
    return *this;
}

// Stops at the first record from place_ on.
void URLDatas::Enumerator::settle() {
    const auto& places = records_.places_;
    const std::size_t end = emptyings_ == records_.emptyings_ ? places.size() : 0;
    while (place_ < end && !places[place_]) ++place_;
    current_ = place_ < end ? places[place_].get() : nullptr;
}

URLDatas& URLBlock::URLDatas() {
    if (!urlDatas_) urlDatas_ = std::make_unique<magpie::URLDatas>();
    return *urlDatas_;
}

}  // namespace magpie
