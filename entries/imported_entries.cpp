#include "entries/imported_entries.h"

#include "core/state.h"
#include "platform/services/clock.h"
#include "store/groups.h"
#include "store/records.h"

namespace magpie {

void mb_NewGroup(const std::string& name) {
    NewCatagory(name);
}

void mb_BungURL(const std::string& title, const std::string& url) {
    const Checked<std::int32_t> group = Checked<std::int32_t>(IDXList.uBound()) - 1;
    URLData& record = uBlock.URLDatas().Add(title, url, group.value());
    record.LastAccesed = Date{};
    record.Created = now();
    record.Visited = 0;
    record.Catagory = 0;
    record.Rated = 0;
}

}  // namespace magpie
