// The roads to and from a browser by dynamic data exchange. The browser of the settings is asked
// first, then the next ones in the order of their numbers; three attempts are made in all.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace magpie {

enum class Delivery {
    done,    // a browser has taken the address
    likely,  // Netscape has not answered in time, which it does where it loads the page first
    failed,
};

// Hands the address to a browser: into a new window, or into the one that was active last.
Delivery deliverByDde(const std::string& url, bool newWindow);

struct Page {
    std::string title;
    std::string url;
};

// The page that a browser shows; nothing when none could be asked.
std::optional<Page> readPageByDde();

// A browser's answer, "url","title" and more: each without its first and its last character,
// whatever they are. A title ends at its first comma. Raises 9 where one of the two is missing
// and 5 where it is too short to lose two characters.
Page pageOf(std::string_view reply);

}  // namespace magpie
