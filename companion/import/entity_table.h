// Entity table: the named characters of HTML.
#pragma once

#include <array>
#include <string_view>

namespace magpie {

// What must stand behind a name: its semicolon; or else no letter or digit; or anything.
enum class EntityEnd { closed, alone, loose };

struct NamedEntity {
    std::string_view name;
    char32_t character;
    char16_t second;  // some names mean two characters; else 0
    EntityEnd end;
};

extern const std::array<NamedEntity, 2125> namedEntities;  // in order of name

}  // namespace magpie
