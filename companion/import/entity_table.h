// Entity table: the named characters of HTML 4.
#pragma once

#include <array>
#include <string_view>

namespace magpie {

struct NamedEntity {
    std::string_view name;
    char16_t character;
    bool loose;  // holds without its semicolon, also right before other letters
};

extern const std::array<NamedEntity, 259> namedEntities;  // in order of name

}  // namespace magpie
