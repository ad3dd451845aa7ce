#include "config/setting_record.h"

#include "platform/runtime/split.h"

namespace magpie {

void SettingRecord::read(std::string_view record) {
    const std::vector<std::string_view> parts = split(record, ' ');
    tokens_.assign(parts.begin(), parts.end());
}

void SettingRecord::take(int position) {
    if (position < 0 || position > uBound()) throw Failure{failure::subscript};
    token = tokens_[static_cast<std::size_t>(position)];
}

std::string joinTokens(std::initializer_list<std::string> tokens) {
    std::string record;
    for (const std::string& token : tokens) {
        if (!record.empty()) record += ' ';
        record += token;
    }
    return record;
}

}  // namespace magpie
