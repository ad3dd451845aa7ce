// SettingRecord: one record as its tokens, and the working token that the reading
// routines pass from statement to statement. A statement that fails clears the
// working token.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "platform/runtime/failure.h"

namespace magpie {

class SettingRecord {
public:
    // Splits a record at its single blanks.
    void read(std::string_view record);

    // Highest position of a token, -1 for an empty record.
    int uBound() const { return static_cast<int>(tokens_.size()) - 1; }

    // Makes a token the working one. Raises 9 for a position beyond the end.
    void take(int position);

    // The working token.
    std::string token;

    // What a trap does after a statement that failed.
    auto trap() {
        return [this](const Failure&) { token.clear(); };
    }

private:
    std::vector<std::string> tokens_;
};

// The record of these tokens: one blank between them, none at the end.
std::string joinTokens(std::initializer_list<std::string> tokens);

// The token at `position`, kept as the working one, read by `convert` into `field`. The
// field keeps what it had when there is no such token or it does not convert.
template <class Field, class Convert>
auto readInto(SettingRecord& record, int position, Field& field, Convert convert) {
    return [&record, position, &field, convert] {
        record.take(position);
        field = convert(record.token);
    };
}

}  // namespace magpie
