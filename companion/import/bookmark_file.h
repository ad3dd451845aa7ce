// Bookmark file: the links and folders of a Netscape bookmark file, as browsers have written it for
// thirty years. Of the page only its frame counts:
//
//   <DL>                        a list, of the folder whose heading stands before it
//     <DT><H3>Folder</H3>       a heading; <DD> behind it describes the folder
//     <DL> ... </DL>
//     <DT><A HREF="...">Title</A>
//     <DD>Description           up to the next entry; links in it are no bookmarks
//     <HR>                      a separator
//   </DL>
//
// Headings of any size do, as do other lists behind them. Whatever of it is missing, unclosed or in
// the wrong order is made up for; nothing is an error.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "companion/import/code_page.h"
#include "companion/import/hand_over.h"

namespace magpie {

// A title as it stands in the page: text with tags and entities, and, for where nothing of it can
// be read, what an attribute of its tag or of a picture in it says.
struct BookmarkTitle {
    std::string_view html;
    std::string_view value;
};

struct BookmarkFolder {
    BookmarkTitle title;
    std::size_t outer = 0;  // its place among the folders
};

struct BookmarkLink {
    BookmarkTitle title;
    std::string_view address;
    std::size_t folder = 0;
};

struct BookmarkPage {
    std::vector<BookmarkFolder> folders;  // the first one is the page itself
    std::vector<BookmarkLink> links;      // in the page's order
    std::size_t withoutAddress = 0;
    unsigned codePage = 0;  // as its META says; 0 where it says none that is known
};

// The page must outlive the result. `page` is in UTF-8 or in a code page that has ASCII in it,
// and is no shifted one other than to be asked for its META.
[[nodiscard]] BookmarkPage readBookmarkPage(std::string_view page);

// Hands over the links of a file's bytes, folder by folder in the page's order, those of no folder
// first as group "Bookmarks". `codePage` is the program's: it reads pages that say nothing of
// theirs and are no UTF-8.
void importBookmarkBytes(std::string_view bytes, unsigned codePage, CodePageCalls calls,
                         HandOver& handOver);

}  // namespace magpie
