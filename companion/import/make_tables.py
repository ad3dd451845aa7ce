#!/usr/bin/env python3
"""Writes code_page_tables.cpp, letter_tables.cpp and entity_table.cpp beside itself, from the
Unicode data and the encodings that come with Python. Run by hand when a table is to change."""
import html.entities
import os
import re
import unicodedata

HERE = os.path.dirname(os.path.abspath(__file__))

# Code page number, Python's codec, the labels that pages use for it.
PAGES = [
    (437, "cp437", "ibm437 cp437 437"),
    (850, "cp850", "ibm850 cp850 850"),
    (852, "cp852", "ibm852 cp852 852"),
    (855, "cp855", "ibm855 cp855 855"),
    (866, "cp866", "ibm866 cp866 866 csibm866"),
    (874, "cp874", "windows-874 cp874 win-874 tis-620 iso-8859-11 dos-874"),
    (1250, "cp1250", "windows-1250 cp1250 win-1250"),
    (1251, "cp1251", "windows-1251 cp1251 win-1251"),
    (1252, "cp1252", "windows-1252 cp1252 win-1252 iso-8859-1 latin1 l1 csisolatin1 iso-ir-100 "
                     "us-ascii ascii ansi_x3.4-1968 cp819 ibm819"),
    (1253, "cp1253", "windows-1253 cp1253 win-1253"),
    (1254, "cp1254", "windows-1254 cp1254 win-1254 iso-8859-9 latin5 l5 csisolatin5 iso-ir-148"),
    (1255, "cp1255", "windows-1255 cp1255 win-1255"),
    (1256, "cp1256", "windows-1256 cp1256 win-1256"),
    (1257, "cp1257", "windows-1257 cp1257 win-1257"),
    (1258, "cp1258", "windows-1258 cp1258 win-1258"),
    (10000, "mac_roman", "macintosh mac-roman mac csmacintosh"),
    (10006, "mac_greek", "mac-greek"),
    (10007, "mac_cyrillic", "mac-cyrillic mac-ukrainian"),
    (10029, "mac_latin2", "mac-ce mac-centraleurroman mac-latin2"),
    (10081, "mac_turkish", "mac-turkish"),
    (20866, "koi8_r", "koi8-r koi8 koi cskoi8r"),
    (21866, "koi8_u", "koi8-u koi8-ru"),
    (28592, "iso8859_2", "iso-8859-2 latin2 l2 csisolatin2 iso-ir-101"),
    (28593, "iso8859_3", "iso-8859-3 latin3 l3 csisolatin3 iso-ir-109"),
    (28594, "iso8859_4", "iso-8859-4 latin4 l4 csisolatin4 iso-ir-110"),
    (28595, "iso8859_5", "iso-8859-5 cyrillic csisolatincyrillic iso-ir-144"),
    (28596, "iso8859_6", "iso-8859-6 iso-8859-6-e iso-8859-6-i arabic csisolatinarabic asmo-708 "
                         "ecma-114 iso-ir-127"),
    (28597, "iso8859_7", "iso-8859-7 greek greek8 csisolatingreek ecma-118 elot_928 iso-ir-126"),
    (28598, "iso8859_8", "iso-8859-8 iso-8859-8-e iso-8859-8-i hebrew csisolatinhebrew visual "
                         "logical iso-ir-138"),
    (28600, "iso8859_10", "iso-8859-10 latin6 l6 csisolatin6 iso-ir-157"),
    (28603, "iso8859_13", "iso-8859-13 latin7 l7"),
    (28604, "iso8859_14", "iso-8859-14 latin8 l8"),
    (28605, "iso8859_15", "iso-8859-15 latin9 l9 csisolatin9"),
    (28606, "iso8859_16", "iso-8859-16 latin10 l10"),
]

# What looks alike, or is written so without the letter, and no decomposition tells.
ALIKE = {
    "Ø": "O", "ø": "o", "Đ": "D", "đ": "d", "Ł": "L", "ł": "l", "Ħ": "H", "ħ": "h", "Ŧ": "T",
    "ŧ": "t", "ı": "i", "Ŋ": "N", "ŋ": "n", "ĸ": "k", "ß": "ss", "ẞ": "SS", "Æ": "AE",
    "æ": "ae", "Œ": "OE", "œ": "oe", "Þ": "Th", "þ": "th", "Ð": "D", "ð": "d", "ƒ": "f",
    "Ɖ": "D", "ƀ": "b", "ə": "e", "Ə": "E", "ɨ": "i",
    "‐": "-", "‑": "-", "‒": "-", "–": "-", "—": "-", "―": "-", "−": "-", "⁃": "-",
    "‘": "'", "’": "'", "‚": "'", "‛": "'", "′": "'", "ʼ": "'", "ʹ": "'", "ˈ": "'",
    "“": '"', "”": '"', "„": '"', "‟": '"', "″": '"', "‹": "<", "›": ">", "«": '"', "»": '"',
    "•": "*", "●": "*", "∙": "*", "‣": "*", "∗": "*", "★": "*", "☆": "*", "×": "x", "÷": "/",
    "⁄": "/", "∕": "/", "∶": ":", "∣": "|", "│": "|", "∼": "~", "≈": "~", "€": "EUR", "¦": "|",
    "¢": "c", "£": "L", "¥": "Y", "©": "(c)", "®": "(R)", "±": "+-", "·": "*", "¡": "!",
    "¿": "?", "†": "+", "‰": "%", "\u2028": " ", "\u2029": " ", "\u00a0": " ", "→": "->",
    "←": "<-", "⇒": "=>", "≤": "<=", "≥": ">=", "≠": "!=",
    "\u00b4": "'", "\u02bb": "'", "\u02bd": "'", "\u02be": "'", "\u02bf": "'", "\u02ca": "'",
    "\u02cb": "`", "\u03bc": "\u00b5", "\u06cc": "\u064a", "\u06a9": "\u0643",
}


def u16(text):
    units = text.encode("utf-16-be")
    return "".join("\\x%02X%02X" % (units[i], units[i + 1]) for i in range(0, len(units), 2))


def literal(text, width):
    """A u"" literal in pieces; a hexadecimal escape would take the letters behind it as well."""
    return "".join('\n    u"%s"' % u16(text[i:i + width]) for i in range(0, len(text), width))


def write(name, lines):
    with open(os.path.join(HERE, name), "w", encoding="ascii", newline="\n") as file:
        file.write("// Written by make_tables.py.\n// clang-format off\n")
        file.write("\n".join(lines) + "\n")


def upper_half(codec):
    text = ""
    for byte in range(128, 256):
        try:
            text += bytes([byte]).decode(codec)
        except UnicodeDecodeError:
            text += chr(byte) if byte < 0xA0 else "\ufffd"
    assert len(text) == 128 and all(ord(c) < 0x10000 for c in text), codec
    return text


def code_pages():
    lines = ['#include "companion/import/code_page_tables.h"', "", "namespace magpie {", "",
             "const std::array<CodePageTable, %d> codePageTables{{" % len(PAGES)]
    for number, codec, readable in PAGES:
        labels = re.sub("[^a-z0-9 ]", "", readable)
        lines.append('    {%d, "%s",%s},' % (number, labels, literal(upper_half(codec), 14)))
    lines += ["}};", "", "}  // namespace magpie"]
    write("code_page_tables.cpp", lines)
    header("code_page_tables.h", """// Code page tables: the upper half of each code page of one byte to a character that bookmarks are
// written in.
#pragma once

#include <array>
#include <string_view>

namespace magpie {

struct CodePageTable {
    unsigned number;                // as Windows numbers it
    std::string_view labels;        // its names, letters and digits only, a blank between them
    std::u16string_view upperHalf;  // the characters of 80 to FF; U+FFFD where there is none
};

extern const std::array<CodePageTable, %d> codePageTables;  // in order of number

}  // namespace magpie
""" % len(PAGES))


def header(name, text):
    with open(os.path.join(HERE, name), "w", encoding="ascii", newline="\n") as file:
        file.write(text)


def wanted(code):
    return (0xA0 <= code < 0x600 or 0x1E00 <= code < 0x2100 or 0x2100 <= code < 0x2190 or
            0x2460 <= code < 0x2500 or code == 0x3000 or 0xFB00 <= code < 0xFB07 or
            0x3041 <= code < 0x3100 or 0xFF01 <= code < 0xFF5F)


def rows(items, form, across):
    items = [form(item) for item in items]
    return ["    " + " ".join(items[i:i + across]) for i in range(0, len(items), across)]


def letters():
    composed = []
    alike = dict(ALIKE)
    for code in filter(wanted, range(0x10000)):
        letter = chr(code)
        parts = unicodedata.decomposition(letter).split()
        if len(parts) == 2 and unicodedata.combining(chr(int(parts[1], 16))):
            composed.append((code, int(parts[0], 16), int(parts[1], 16)))
        elif parts and letter not in alike:
            plain = "".join(c for c in unicodedata.normalize("NFKD", letter)
                            if not unicodedata.combining(c)).replace("\u2044", "/")
            if plain.strip() or plain == " ":
                alike[letter] = plain
    alike = sorted((ord(letter), text) for letter, text in alike.items())
    composed.sort()
    lines = ['#include "companion/import/letter_tables.h"', "", "namespace magpie {", "",
             "const std::array<ComposedLetter, %d> composedLetters{{" % len(composed)]
    lines += rows(composed, lambda row: "{0x%04X, 0x%04X, 0x%04X}," % row, 4)
    by_parts = sorted(range(len(composed)), key=lambda place: composed[place][1:])
    lines += ["}};", "", "const std::array<std::uint16_t, %d> composedByParts{{" % len(by_parts)]
    lines += rows(by_parts, lambda place: "%d," % place, 16)
    lines += ["}};", "", "const std::array<AlikeText, %d> alikeTexts{{" % len(alike)]
    lines += rows(alike, lambda row: '{0x%04X, u"%s"},' % (row[0], u16(row[1])), 3)
    lines += ["}};", "", "}  // namespace magpie"]
    write("letter_tables.cpp", lines)
    header("letter_tables.h", """// Letter tables: of which letter and mark a letter is made, and what a character is written as
// where it is not to be had.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace magpie {

struct ComposedLetter {
    char16_t letter;
    char16_t base;
    char16_t mark;
};

struct AlikeText {
    char16_t character;
    std::u16string_view text;
};

extern const std::array<ComposedLetter, %d> composedLetters;  // in order of letter
extern const std::array<std::uint16_t, %d> composedByParts;   // places in it, by base and mark
extern const std::array<AlikeText, %d> alikeTexts;            // in order of character

}  // namespace magpie
""" % (len(composed), len(by_parts), len(alike)))


def stands_alone(name, loose):
    """Whether a name without its semicolon is one where no letter follows. HTML 4 has them all so;
    but of its names for signs of mathematics many are words, before which an "&" is an "and"."""
    code = html.entities.name2codepoint.get(name)
    return name in loose or name == "trade" or (code is not None and code < 0x2100)


def entities():
    # The older ones hold without a semicolon.
    loose = {name for name in html.entities.html5 if not name.endswith(";")}
    named = {name[:-1]: text for name, text in html.entities.html5.items() if name.endswith(";")}
    table = sorted(named.items())
    assert max(len(text) for text in named.values()) == 2
    assert all(ord(text[1]) < 0x10000 for text in named.values() if len(text) == 2)
    lines = ['#include "companion/import/entity_table.h"', "", "namespace magpie {", "",
             "const std::array<NamedEntity, %d> namedEntities{{" % len(table)]

    def row(item):
        name, text = item
        end = "loose" if name in loose else "alone" if stands_alone(name, loose) else "closed"
        return '{"%s", 0x%04X, 0x%04X, EntityEnd::%s},' % (
            name, ord(text[0]), ord(text[1]) if len(text) == 2 else 0, end)

    lines += rows(table, row, 2)
    lines += ["}};", "", "}  // namespace magpie"]
    write("entity_table.cpp", lines)
    header("entity_table.h", """// Entity table: the named characters of HTML.
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

extern const std::array<NamedEntity, %d> namedEntities;  // in order of name

}  // namespace magpie
""" % len(table))


if __name__ == "__main__":
    code_pages()
    letters()
    entities()
