// JsonValue: as much of JSON as an expected tree of bookmarks needs. Numbers and words are read as
// their text.
#pragma once

#include <cstddef>
#include <initializer_list>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "companion/import/unicode.h"

namespace magpie {

struct JsonValue {
    std::string text;
    std::vector<std::pair<std::string, JsonValue>> members;  // those of an array have no names

    // Null where there is none.
    const JsonValue* find(std::string_view name) const {
        for (const auto& [key, value] : members) {
            if (key == name) return &value;
        }
        return nullptr;
    }
    // The text of the first of the members that is there.
    std::string textOf(std::initializer_list<std::string_view> names) const {
        for (const std::string_view name : names) {
            if (const JsonValue* const found = find(name)) return found->text;
        }
        return {};
    }
};

class JsonReader {
public:
    explicit JsonReader(std::string_view json) : json_(json) {}

    // Throws std::out_of_range at a text that is none.
    JsonValue read() {
        skipBlanks();
        if (next() == '{') return readMembers('}');
        if (next() == '[') return readMembers(']');
        if (next() == '"') return {readString(), {}};
        const std::size_t begin = at_;
        while (at_ < json_.size() && std::string_view(",]} \r\n").find(next()) == npos) ++at_;
        return {std::string(json_.substr(begin, at_ - begin)), {}};
    }

private:
    static constexpr std::size_t npos = std::string_view::npos;

    char next() const {
        if (at_ >= json_.size()) throw std::out_of_range("JSON ends too early");
        return json_[at_];
    }

    void skipBlanks() {
        while (at_ < json_.size() && static_cast<unsigned char>(json_[at_]) <= ' ') ++at_;
    }

    JsonValue readMembers(char end) {
        JsonValue value;
        for (++at_, skipBlanks(); next() != end; skipBlanks()) {
            if (next() == ',') {
                ++at_;
                continue;
            }
            std::string name;
            if (end == '}') {
                name = readString();
                skipBlanks();
                ++at_;  // the colon
            }
            value.members.emplace_back(std::move(name), read());
        }
        ++at_;
        return value;
    }

    std::string readString() {
        std::string text;
        for (++at_; next() != '"'; ++at_) {
            if (next() != '\\') {
                text += next();
                continue;
            }
            ++at_;
            text += unescaped();
        }
        ++at_;
        return text;
    }

    // Stands behind a backslash; stays on the last character of what it stands for.
    std::string unescaped() {
        constexpr std::string_view names = "nrtbf";
        constexpr std::string_view characters = "\n\r\t\b\f";
        if (next() != 'u') {
            const std::size_t known = names.find(next());
            return std::string(1, known == npos ? next() : characters[known]);
        }
        std::u16string units(1, unit());
        if (units[0] >= 0xD800 && units[0] < 0xDC00 && json_.substr(at_ + 1).starts_with("\\u")) {
            at_ += 2;
            units += unit();
        }
        return utf8Of(units);
    }

    char16_t unit() {
        const std::string digits(json_.substr(at_ + 1, 4));
        at_ += 4;
        return static_cast<char16_t>(std::stoul(digits, nullptr, 16));
    }

    std::string_view json_;
    std::size_t at_ = 0;
};

}  // namespace magpie
