#include <algorithm>
#include <utility>

#include "companion/import/bookmark_file.h"
#include "companion/import/html_scanner.h"

namespace magpie {

namespace {

// Vivaldi writes a separator as a link to this page.
constexpr std::string_view separatorAddress = "http://bookmark.placeholder.url/";

constexpr std::size_t noFolder = static_cast<std::size_t>(-1);
constexpr std::size_t noLink = static_cast<std::size_t>(-1);

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

// Elements whose text holds no tags, or is for programs that can't show the element.
constexpr std::string_view rawElements[] = {"title",    "script", "style",   "textarea",
                                            "noframes", "iframe", "noembed", "xmp"};

// What a link leads to, or null.
const std::string_view* addressOf(const HtmlTag& tag) {
    for (const HtmlAttribute attribute : {HtmlAttribute::href, HtmlAttribute::feedUrl}) {
        const std::string_view* const address = tag.attributes.find(attribute);
        if (address != nullptr && !isBlank(*address)) return address;
    }
    return nullptr;
}

// A place in the page that other links lead to.
bool isAnchor(const HtmlTag& tag) {
    const HtmlAttributes& of = tag.attributes;
    return !of.has(HtmlAttribute::href) && !of.has(HtmlAttribute::feedUrl) &&
           (of.has(HtmlAttribute::name) || of.has(HtmlAttribute::id));
}

// What only the links that a browser keeps have.
bool hasDates(const HtmlTag& tag) {
    const HtmlAttributes& of = tag.attributes;
    return of.has(HtmlAttribute::addDate) || of.has(HtmlAttribute::lastVisit) ||
           of.has(HtmlAttribute::lastModified);
}

bool isOtherList(const HtmlTag& tag) {
    return tag.is("ul") || tag.is("ol") || tag.is("menu") || tag.is("dir");
}

// Goes through the tags of a page and keeps what they mean for folders and links.
class PageReader {
public:
    explicit PageReader(std::string_view page) : text_(page), scanner_(page) {
        page_.folders.push_back({});
        lists_.push_back({0, ListKind::definitions});
    }

    BookmarkPage read() {
        while (const HtmlTag* const tag = scanner_.next()) {
            noteText(*tag);
            take(*tag);
        }
        endText(text_.size());
        return std::move(page_);
    }

private:
    enum class Text { none, link, heading };

    enum class ListKind {
        definitions,
        other,
        heading  // opened by a heading instead of by a list
    };

    struct List {
        std::size_t folder;
        ListKind kind;
    };

    void take(const HtmlTag& tag) {
        if (tag.is("a")) {
            tag.closing ? closeLink(tag) : openLink(tag);
        } else if (isHeading(tag)) {
            tag.closing ? closeHeading(tag) : openHeading(tag);
        } else if (tag.is("dl")) {
            tag.closing ? closeList(tag) : openList(tag, ListKind::definitions);
        } else if (tag.is("dt") || tag.is("hr")) {
            beginEntry(tag);
        } else if (tag.is("dd")) {
            tag.closing ? beginEntry(tag) : openDescription(tag);
        } else if (isOtherList(tag)) {
            tag.closing ? closeOtherList(tag) : openOtherList(tag);
        } else if (tag.is("li")) {
            if (lists_.back().kind == ListKind::other) beginEntry(tag);
        } else if (!tag.closing) {
            takeOther(tag);
        }
    }

    void takeOther(const HtmlTag& tag) {
        if (tag.is("meta")) return takeCharset(tag);
        if (tag.is("img")) return takePicture(tag);
        // One file may hold several pages.
        if (tag.is("title") && lists_.size() == 1) begun_ = false;
        for (const std::string_view name : rawElements) {
            if (tag.is(name)) scanner_.skipRawText(name);
        }
    }

    // --- Links ---

    void openLink(const HtmlTag& tag) {
        if (isAnchor(tag)) return;
        if (isNamelessHeading() && isBlank(titleOf_) && headingLink_ == noLink) {
            return takeLinkOfHeading(tag);
        }
        // A heading that has said its name ends.
        openHeadingAsList(tag);
        endText(tag.begin);
        if (describing_ && !hasDates(tag)) return;
        endDescription();
        described_ = true;
        if (addLink(tag)) beginText(Text::link, tag);
    }

    // False for one that leads nowhere.
    bool addLink(const HtmlTag& tag) {
        const std::string_view* const address = addressOf(tag);
        begun_ = true;
        if (tag.cut || address == nullptr) {
            ++page_.withoutAddress;
            return false;
        }
        if (*address == separatorAddress) return false;
        page_.links.push_back({{}, *address, lists_.back().folder});
        return true;
    }

    // A heading that is a link is still a heading, and its link one in its folder.
    void takeLinkOfHeading(const HtmlTag& tag) {
        if (!describing_ && addLink(tag)) headingLink_ = page_.links.size() - 1;
    }

    void closeLink(const HtmlTag& tag) {
        if (open_ == Text::link) endText(tag.begin);
    }

    void takePicture(const HtmlTag& tag) {
        const std::string_view* const text = tag.attributes.find(HtmlAttribute::alt);
        if (open_ == Text::link && isBlank(titleOf_) && text != nullptr) titleOf_ = *text;
    }

    // --- Headings ---

    void openHeading(const HtmlTag& tag) {
        openHeadingAsList(tag);
        endText(tag.begin);
        // In the description of a folder whose list is to come it is nothing else.
        if (describing_ && waiting_ != noFolder) return;
        if (!describing_) described_ = true;
        const bool ofPage = tag.name[1] == '1' && !begun_;
        begun_ = true;
        if (ofPage) return;
        page_.folders.push_back({{}, lists_.back().folder});
        waiting_ = page_.folders.size() - 1;
        waitsInDescription_ = describing_;
        headingLink_ = noLink;
        beginText(Text::heading, tag);
    }

    void closeHeading(const HtmlTag& tag) {
        if (open_ == Text::heading) {
            endText(tag.begin);
        } else if (lists_.back().kind == ListKind::heading) {
            closeLink(tag);
            lists_.pop_back();
        }
    }

    bool isNamelessHeading() const { return open_ == Text::heading && !hasText_; }

    // Some tools leave the lists away: the headings enclose what is in the folders, and say
    // their names in an attribute.
    void openHeadingAsList(const HtmlTag& tag) {
        if (!isNamelessHeading() || titleOf_.empty() || describing_) return;
        endText(tag.begin);
        pushList(ListKind::heading);
    }

    // --- Lists ---

    // A list without a heading goes on with the folder that it stands in.
    void pushList(ListKind kind) {
        lists_.push_back({waiting_ != noFolder ? waiting_ : lists_.back().folder, kind});
        if (waiting_ != noFolder && headingLink_ != noLink) {
            page_.links[headingLink_].folder = waiting_;
        }
        forgetHeading();
        begun_ = true;
        described_ = entryIsDescription_ = false;
    }

    void openList(const HtmlTag& tag, ListKind kind) {
        endText(tag.begin);
        describing_ = false;
        pushList(kind);
    }

    void closeList(const HtmlTag& tag) {
        beginEntry(tag);
        while (lists_.back().kind != ListKind::definitions) lists_.pop_back();
        if (lists_.size() > 1) lists_.pop_back();
        forgetHeading();
        described_ = false;
    }

    // In a description it is a part of that.
    void openOtherList(const HtmlTag& tag) {
        if (!describing_) openList(tag, ListKind::other);
    }

    void closeOtherList(const HtmlTag& tag) {
        if (describing_ || lists_.back().kind != ListKind::other) return;
        beginEntry(tag);
        lists_.pop_back();
        forgetHeading();
        described_ = false;
    }

    void forgetHeading() {
        waiting_ = noFolder;
        waitsInDescription_ = false;
        headingLink_ = noLink;
    }

    // --- Entries and descriptions ---

    void beginEntry(const HtmlTag& tag) {
        endText(tag.begin);
        endDescription();
        if (tag.closing || tag.is("dd")) return;
        described_ = false;
        if (!tag.is("hr")) entryIsDescription_ = false;
    }

    // A heading in it was one of a folder only if its list is the next that comes.
    void endDescription() {
        describing_ = false;
        if (waitsInDescription_) forgetHeading();
    }

    // Where there is nothing to describe, it can only be an entry; what follows one is one as well.
    void openDescription(const HtmlTag& tag) {
        endText(tag.begin);
        endDescription();
        describing_ = described_ && !entryIsDescription_;
        if (!describing_) entryIsDescription_ = true;
    }

    // --- Charset ---

    void takeCharset(const HtmlTag& tag) {
        if (page_.codePage != 0) return;
        const std::string_view* const charset = tag.attributes.find(HtmlAttribute::charset);
        const std::string_view* const content = tag.attributes.find(HtmlAttribute::content);
        if (charset != nullptr) page_.codePage = codePageNamed(*charset);
        if (page_.codePage == 0 && content != nullptr) {
            page_.codePage = codePageNamed(charsetIn(*content));
        }
    }

    // --- Titles ---

    void beginText(Text kind, const HtmlTag& tag) {
        const std::string_view* const title = tag.attributes.find(HtmlAttribute::title);
        open_ = kind;
        textBegin_ = lookedAt_ = tag.end;
        hasText_ = false;
        titleOf_ = title == nullptr ? std::string_view() : *title;
    }

    // Whether a title has begun: anything but tags and blanks.
    void noteText(const HtmlTag& tag) {
        if (open_ == Text::none || hasText_) return;
        hasText_ = !isBlank(text_.substr(lookedAt_, tag.begin - lookedAt_));
        lookedAt_ = tag.end;
    }

    void endText(std::size_t end) {
        if (open_ == Text::none) return;
        const BookmarkTitle title{text_.substr(textBegin_, end - textBegin_), titleOf_};
        if (open_ == Text::link) {
            page_.links.back().title = title;
        } else {
            page_.folders.back().title = title;
            if (headingLink_ != noLink) page_.links[headingLink_].title = title;
        }
        open_ = Text::none;
    }

    std::string_view text_;
    HtmlScanner scanner_;
    BookmarkPage page_;
    std::vector<List> lists_;  // those that are open
    bool begun_ = false;       // a heading has no longer to be the page's own

    std::size_t waiting_ = noFolder;    // the folder whose list is to come
    bool waitsInDescription_ = false;   // its heading stands in a description
    std::size_t headingLink_ = noLink;  // the link that its heading is

    Text open_ = Text::none;
    std::size_t textBegin_ = 0;
    std::size_t lookedAt_ = 0;
    bool hasText_ = false;
    std::string_view titleOf_;  // what its tag says that its text would be

    bool described_ = false;           // a description would be that of the entry before it
    bool describing_ = false;          // inside one
    bool entryIsDescription_ = false;  // the entry before stands where descriptions do
};

}  // namespace

BookmarkPage readBookmarkPage(std::string_view page) {
    return PageReader(page).read();
}

}  // namespace magpie
