#include "bench/sample_store.h"

#include <array>
#include <cstddef>
#include <random>

#include "bench/plain_pass.h"
#include "core/state.h"
#include "store/groups.h"
#include "store/records.h"

namespace magpie::bench {

namespace {

using Random = std::mt19937;

// 0 to limit - 1.
int below(Random& random, int limit) {
    return static_cast<int>(random() % static_cast<unsigned>(limit));
}

std::string someText(Random& random, std::size_t size) {
    static constexpr std::array words{"reference", "front", "page", "of", "the", "weekly", "tools",
                                      "and",       "news",  "a",    "to", "map", "library"};
    std::string text;
    while (text.size() < size) {
        if (!text.empty()) text += ' ';
        text += words[random() % words.size()];
    }
    return text;
}

// 1997 to 2001, with a fraction of five digits that start and end with others than zero.
Date someDate(Random& random) {
    const int fraction = 10000 + below(random, 9000) * 10 + 1 + below(random, 9);
    return {35500 + below(random, 1500) + fraction / 100000.0};
}

void addEntry(Random& random, std::int32_t number, std::int32_t group) {
    const std::string url = "http://www.server" + std::to_string(below(random, 1000)) +
                            ".example/folder/page-" + std::to_string(number) + ".html";
    URLData& record = uBlock.URLDatas().Add(someText(random, 12 + random() % 24), url, group);
    record.Created = someDate(random);
    if (below(random, 4) != 0) record.LastAccesed = someDate(random);
    record.Visited = below(random, 50);
    record.Catagory = below(random, 20);
    record.Rated = below(random, 5);
}

}  // namespace

void fillStore(StoreSize size) {
    Random random(1);
    for (std::int32_t group = 0; group < size.groups; ++group) {
        NewCatagory("Group " + std::to_string(group));
    }
    for (std::int32_t i = 0; i < size.entries; ++i) {
        const auto group = static_cast<std::int64_t>(i) * size.groups / size.entries;
        addEntry(random, i, static_cast<std::int32_t>(group));
    }
}

void emptyStore() {
    IDXList.reset();
    uBlock.URLDatas().Clear();
    IDXCount = 0;
    urlsDirty = 0;
}

std::string bytesOf(const std::string& path) {
    std::string bytes;
    readWhole(path, bytes);
    return bytes;
}

}  // namespace magpie::bench
