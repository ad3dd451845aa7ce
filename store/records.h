// The store: uBlock, the root, owns one collection, which owns every bookmark of the run.
#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "platform/runtime/checked.h"
#include "platform/runtime/date.h"
#include "store/text_index.h"

namespace magpie {

// What the classes of the store show to a debugger. Nothing ever gives an object a number of its
// own, so every one of them answers 0.
struct IDebug {
    virtual ~IDebug() = default;
    [[nodiscard]] virtual std::int32_t DebugID() const { return 0; }
};

// A value of any kind: nothing, a number, a text, an object that somebody else owns.
using Variant = std::variant<std::monostate, double, std::string, IDebug*>;

class URLDatas;

// One bookmark. No field checks its value.
class URLData : public IDebug {
public:
    // The title and the address. The collection finds records by the two, so it hears of a change.
    [[nodiscard]] const std::string& Name() const { return name_; }
    void Name(std::string_view name) { change(name_, name); }
    [[nodiscard]] const std::string& URL() const { return url_; }
    void URL(std::string_view url) { change(url_, url); }

    double Owner = 0;  // position of the group in IDXList; a position without a group is allowed
    Date LastAccesed;  // 0: never
    Date Created;
    Checked<std::int32_t> Visited;
    Checked<std::uint8_t> Rated;     // row of the rating names
    Checked<std::uint8_t> Catagory;  // kept and saved, never asked: the group is Owner
    Variant Tag;                     // free for use, not saved

    // The key in the collection, five decimal digits. It can be given once; giving it again
    // changes nothing.
    [[nodiscard]] const std::string& ID() const { return id_; }
    void ID(std::string_view id);

    [[nodiscard]] std::int32_t DebugID() const override { return debugID_; }

private:
    friend class URLDatas;

    void change(std::string& field, std::string_view text);

    std::string name_;
    std::string url_;
    URLDatas* home_ = nullptr;  // the collection, as long as this record is in it
    std::string id_;
    bool idGiven_ = false;
    std::int32_t debugID_ = 0;
};

// The collection, in the order of addition. Keys are handed out in ascending order and none twice
// while a record remains, so a key is the record's place and adding, finding and deleting cost
// the same in a full store as in an empty one.
class URLDatas : public IDebug {
public:
    class Enumerator;

    Variant Tag;  // free for use

    // Walks the records in collection order. Records may be added and deleted meanwhile: the one
    // being visited may go without the next one being skipped, a deleted one ahead is not visited,
    // an added one is. Emptying the collection ends every walk. A deleted record's memory stays
    // until the last walk has ended, so that the body of a walk may go on reading the record whose
    // deletion it caused.
    [[nodiscard]] Enumerator NewEnum();
    [[nodiscard]] Enumerator begin();
    [[nodiscard]] static std::default_sentinel_t end() { return {}; }

    // Adds a record at the end, its other fields at zero. Raises Failure 6, adding none, when
    // the counter behind the keys has reached 32,767. The reference lives as long as the record.
    URLData& Add(std::string_view Name, std::string_view URL, double Owner);

    // The record of a key, by the text as given ("1" is not "00001"); raises Failure 5 for an
    // unknown one. The record at a position, 1 to Count(); raises Failure 9 for any other.
    [[nodiscard]] URLData& Item(std::string_view key);
    [[nodiscard]] URLData& Item(std::int32_t position);

    // The first record with exactly this title and this address, or the first behind `after`, in
    // collection order; null when there is none. `after` is a record of the collection.
    [[nodiscard]] URLData* Find(std::string_view Name, std::string_view URL,
                                const URLData* after = nullptr);

    [[nodiscard]] std::int32_t Count() const { return count_; }

    // Removes a record; failures as Item. Keys start at "00001" again once the last record of
    // the collection has gone.
    void Delete(std::string_view key);
    void Delete(std::int32_t position);

    // Removes all records and starts the keys at "00001" again.
    void Clear();

    [[nodiscard]] std::int32_t DebugID() const override { return debugID_; }

private:
    friend class URLData;

    // Places are counted in blocks of this many, so that finding a position passes over whole
    // blocks instead of single holes.
    static constexpr std::size_t blockSize = 256;

    [[nodiscard]] std::size_t placeOf(std::string_view key) const;
    [[nodiscard]] std::size_t placeOf(std::int32_t position) const;
    void deleteAt(std::size_t place);
    void retire(std::unique_ptr<URLData> record);
    [[nodiscard]] std::int32_t indexed(const URLData& record) const;
    void listAll();
    void list(const URLData& record);
    void unlist(const URLData& record);

    std::vector<std::unique_ptr<URLData>> places_;  // by key - 1; null where one was deleted
    std::vector<std::int32_t> inBlock_;             // records in each block of places
    std::int32_t count_ = 0;
    Checked<std::int16_t> urlCounter_;
    std::int32_t walks_ = 0;  // enumerators alive
    // The places by title and address. Kept from the first search on, so that reading a file into
    // the collection is not burdened.
    TextIndex byTexts_;
    bool listed_ = false;
    std::uint32_t emptyings_ = 0;                    // tells a walk that its records have gone
    std::vector<std::unique_ptr<URLData>> retired_;  // deleted while a walk was under way
    std::int32_t debugID_ = 0;
};

// The collection's enumerator, for range-for.
class URLDatas::Enumerator {
public:
    explicit Enumerator(URLDatas& records);
    ~Enumerator();
    Enumerator(const Enumerator&) = delete;
    Enumerator& operator=(const Enumerator&) = delete;

    [[nodiscard]] URLData& operator*() const { return *current_; }
    Enumerator& operator++();
    [[nodiscard]] bool operator==(std::default_sentinel_t) const { return current_ == nullptr; }

private:
    void settle();

    URLDatas& records_;
    std::uint32_t emptyings_;
    std::size_t place_ = 0;
    URLData* current_ = nullptr;
};

// The root.
class URLBlock : public IDebug {
public:
    Variant Tag;  // free for use

    // The one collection, made at the first access.
    [[nodiscard]] magpie::URLDatas& URLDatas();

    [[nodiscard]] std::int32_t DebugID() const override { return debugID_; }

private:
    std::unique_ptr<magpie::URLDatas> urlDatas_;
    std::int32_t debugID_ = 0;
};

// The store of the run: emptied at times, never replaced.
inline URLBlock uBlock;

}  // namespace magpie
