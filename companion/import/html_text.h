// HTML text: what a piece of a page reads as: entities replaced, tags gone, blanks run together.
// Text in and out is UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace magpie {

// Where an ampersand may begin something else, as in the address "?a=1&copy=2", an entity needs its
// semicolon, unless it is a number or one of the few that escape what must be escaped.
enum class HtmlPlace { text, address };

// Replaces entities: named, decimal, hexadecimal; in text also most of those without a semicolon.
// What is none stays as it is.
void appendWithoutEntities(std::string& result, std::string_view text, HtmlPlace place);

// The text of a heading or of a link: tags and comments in it are left out, runs of blanks and
// line ends become one blank, those at the ends go.
void appendReadable(std::string& result, std::string_view html);

// The same of a text in an attribute, in which what looks like a tag is none.
void appendReadableValue(std::string& result, std::string_view value);

}  // namespace magpie
