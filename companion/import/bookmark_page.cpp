#include <algorithm>
#include <utility>

#include "companion/import/bookmark_file.h"
#include "companion/import/html_scanner.h"

namespace magpie {

namespace {

// Vivaldi writes a separator as a link to this page.
constexpr std::string_view separatorAddress = "http://bookmark.placeholder.url/";

constexpr std::size_t noFolder = static_cast<std::size_t>(-1);

bool isHeading(const HtmlTag& tag) {
    return tag.name.size() == 2 && (tag.name[0] | 0x20) == 'h' && tag.name[1] >= '1' &&
           tag.name[1] <= '6';
}

bool isBlank(std::string_view text) {
    return std::ranges::all_of(text,
                               [](char byte) { return static_cast<unsigned char>(byte) <= ' '; });
}

// The label behind "charset=", without quotes.
std::string_view charsetIn(std::string_view content) {
    constexpr std::string_view key = "charset";
    for (std::size_t at = 0; at + key.size() <= content.size(); ++at) {
        if (!sameTagName(content.substr(at, key.size()), key)) continue;
        content.remove_prefix(at + key.size());
        const std::size_t begin = content.find_first_not_of(" \t\r\n='\"");
        if (begin == std::string_view::npos) return {};
        content.remove_prefix(begin);
        return content.substr(0, content.find_first_of(" \t\r\n;'\""));
    }
    return {};
}

// Goes through the tags of a page and keeps what they mean for folders and links.
class PageReader {
public:
    explicit PageReader(std::string_view page) : text_(page), scanner_(page) {
        page_.folders.push_back({});
        lists_.push_back({0, false});
    }

    BookmarkPage read() {
        while (const HtmlTag* const tag = scanner_.next()) take(*tag);
        endText(text_.size());
        return std::move(page_);
    }

private:
    enum class Text { none, link, heading };

    struct List {
        std::size_t folder;
        bool heading;  // opened by a heading instead of by a list
    };

    void take(const HtmlTag& tag) {
        if (tag.is("a")) {
            tag.closing ? closeLink(tag) : openLink(tag);
        } else if (isHeading(tag)) {
            tag.closing ? closeHeading(tag) : openHeading(tag);
        } else if (tag.is("dl")) {
            tag.closing ? closeList(tag) : openList(tag);
        } else if (tag.is("dt") || tag.is("hr")) {
            beginEntry(tag);
        } else if (tag.is("dd")) {
            tag.closing ? beginEntry(tag) : openDescription(tag);
        } else if (!tag.closing) {
            takeOther(tag);
        }
    }

    void takeOther(const HtmlTag& tag) {
        if (tag.is("meta")) {
            takeCharset(tag);
        } else if (tag.is("title") || tag.is("script") || tag.is("style")) {
            scanner_.skipRawText(tag.is("title") ? "title" : tag.is("style") ? "style" : "script");
        }
    }

    void openLink(const HtmlTag& tag) {
        // A heading that is a link itself is still a heading; one that has said its name ends.
        if (isNamelessHeading(tag) && titleOf_.empty()) return;
        openHeadingAsList(tag);
        endText(tag.begin);
        if (describing_) return;
        const HtmlAttribute* address = tag.find("href");
        if (address == nullptr) address = tag.find("feedurl");
        if (tag.cut || address == nullptr || isBlank(address->value)) {
            ++page_.withoutAddress;
            return;
        }
        if (address->value == separatorAddress) return;
        page_.links.push_back({{}, address->value, lists_.back().folder});
        beginText(Text::link, tag);
        described_ = true;
    }

    void closeLink(const HtmlTag& tag) {
        if (open_ == Text::link) endText(tag.begin);
    }

    void openHeading(const HtmlTag& tag) {
        openHeadingAsList(tag);
        endText(tag.begin);
        if (describing_) return;
        described_ = true;
        // The page's own heading stands before its list.
        if (tag.name[1] == '1' && lists_.size() == 1) return;
        page_.folders.push_back({{}, lists_.back().folder});
        waiting_ = page_.folders.size() - 1;
        beginText(Text::heading, tag);
    }

    void closeHeading(const HtmlTag& tag) {
        if (open_ == Text::heading) {
            endText(tag.begin);
        } else if (lists_.back().heading) {
            closeLink(tag);
            lists_.pop_back();
        }
    }

    bool isNamelessHeading(const HtmlTag& tag) const {
        return open_ == Text::heading && isBlank(textUpTo(tag.begin));
    }

    // Some tools leave the lists away: the headings enclose what is in the folders, and say
    // their names in an attribute.
    void openHeadingAsList(const HtmlTag& tag) {
        if (!isNamelessHeading(tag) || titleOf_.empty()) return;
        endText(tag.begin);
        lists_.push_back({waiting_, true});
        waiting_ = noFolder;
        described_ = false;
    }

    // A list without a heading goes on with the folder that it stands in.
    void openList(const HtmlTag& tag) {
        beginEntry(tag);
        lists_.push_back({waiting_ != noFolder ? waiting_ : lists_.back().folder, false});
        waiting_ = noFolder;
        described_ = false;
    }

    void closeList(const HtmlTag& tag) {
        beginEntry(tag);
        while (lists_.back().heading) lists_.pop_back();
        if (lists_.size() > 1) lists_.pop_back();
        waiting_ = noFolder;
        described_ = false;
    }

    void beginEntry(const HtmlTag& tag) {
        endText(tag.begin);
        describing_ = false;
        if (tag.is("hr")) described_ = false;
    }

    // Where there is nothing to describe, it can only be an entry.
    void openDescription(const HtmlTag& tag) {
        endText(tag.begin);
        describing_ = described_;
    }

    void takeCharset(const HtmlTag& tag) {
        if (page_.codePage != 0) return;
        const HtmlAttribute* const charset = tag.find("charset");
        const HtmlAttribute* const content = tag.find("content");
        if (charset != nullptr) page_.codePage = codePageNamed(charset->value);
        if (page_.codePage == 0 && content != nullptr) {
            page_.codePage = codePageNamed(charsetIn(content->value));
        }
    }

    void beginText(Text kind, const HtmlTag& tag) {
        const HtmlAttribute* const title = tag.find("title");
        open_ = kind;
        textBegin_ = tag.end;
        titleOf_ = title == nullptr ? std::string_view() : title->value;
    }

    std::string_view textUpTo(std::size_t end) const {
        return text_.substr(textBegin_, end - textBegin_);
    }

    void endText(std::size_t end) {
        if (open_ == Text::none) return;
        const std::string_view text = isBlank(textUpTo(end)) ? titleOf_ : textUpTo(end);
        (open_ == Text::link ? page_.links.back().title : page_.folders.back().title) = text;
        open_ = Text::none;
    }

    std::string_view text_;
    HtmlScanner scanner_;
    BookmarkPage page_;
    std::vector<List> lists_;         // those that are open
    std::size_t waiting_ = noFolder;  // the folder whose list is to come
    Text open_ = Text::none;
    std::size_t textBegin_ = 0;
    std::string_view titleOf_;  // what its tag says that its text would be
    bool described_ = false;    // a description would be that of the entry before it
    bool describing_ = false;   // inside one
};

}  // namespace

BookmarkPage readBookmarkPage(std::string_view page) {
    return PageReader(page).read();
}

}  // namespace magpie
