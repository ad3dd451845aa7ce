// Shortcut file: the address in an Internet Shortcut, the .url files of Favorites. It is a settings
// file of sections and keys, of which a dozen programs each write another selection:
//
//   [DEFAULT]             BASEURL, the page that the shortcut was made from
//   [DOC#4#5]             the pages in its frames
//   [InternetShortcut]    URL, the address, in the code page of whoever wrote it
//   [InternetShortcut.A]  the same again
//   [InternetShortcut.W]  the same with nothing lost, in UTF-7
#pragma once

#include <string>
#include <string_view>

#include "companion/import/code_page.h"

namespace magpie {

// The address in UTF-8, as it stands there; empty when the file has none. `codePage` reads bytes
// that are no UTF-8.
[[nodiscard]] std::string addressInShortcut(std::string_view bytes, const CodePageReader& codePage);

}  // namespace magpie
