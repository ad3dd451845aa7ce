#include "companion/import/bookmark_file.h"

#include <algorithm>
#include <span>

#include "companion/import/html_text.h"
#include "companion/import/shifted_japanese.h"
#include "companion/import/unicode.h"

namespace magpie {

namespace {

constexpr std::string_view rootGroup = "Bookmarks";

// Reads the texts of a page: its charset first, then tags and entities.
class PageTexts {
public:
    PageTexts(unsigned pageCodePage, unsigned codePage, CodePageCalls calls)
        : utf8_(pageCodePage == 0 || pageCodePage == codePageUtf8),
          reader_(utf8_ ? oldCodePage(codePage) : pageCodePage, calls) {}

    // Each is good until its next call.
    const std::string& title(const BookmarkTitle& title) {
        title_.clear();
        appendReadable(title_, decoded(title.html));
        if (isBlankText(title_)) {
            title_.clear();
            appendReadableValue(title_, decoded(title.value));
        }
        return title_;
    }

    const std::string& address(std::string_view value) {
        address_.clear();
        appendWithoutEntities(address_, decoded(value), HtmlPlace::address);
        return address_;
    }

private:
    // Where the program has UTF-8 itself, what is none is older than that.
    static unsigned oldCodePage(unsigned codePage) {
        return codePage == codePageUtf8 ? codePageWestern : codePage;
    }

    // In a page of UTF-8 a text of another code page has no letter that could be read; one that
    // has is UTF-8 of which something broke off.
    bool isReadAsUtf8(std::string_view bytes) const {
        const Utf8Count count = countUtf8(bytes);
        return count.broken == 0 || count.letters != 0;
    }

    std::string_view decoded(std::string_view bytes) {
        if (isAscii(bytes) || (utf8_ && isReadAsUtf8(bytes))) return bytes;
        decoded_.clear();
        reader_.append(decoded_, bytes);
        return decoded_;
    }

    bool utf8_;
    CodePageReader reader_;
    std::string decoded_;
    std::string title_;
    std::string address_;
};

// A page that says nothing of its charset: by most of its letters, as one that was cut, or in which
// a title was, has some that are broken.
bool isMostlyUtf8(const BookmarkPage& page) {
    Utf8Count sum;
    const auto add = [&sum](std::string_view text) {
        if (isAscii(text)) return;
        const Utf8Count count = countUtf8(text);
        sum.letters += count.letters;
        sum.broken += count.broken;
    };
    const auto addTitle = [&add](const BookmarkTitle& title) {
        add(title.html);
        add(title.value);
    };
    for (const BookmarkLink& link : page.links) {
        addTitle(link.title);
        add(link.address);
    }
    for (const BookmarkFolder& folder : page.folders) addTitle(folder.title);
    return sum.letters >= sum.broken;
}

// The places of the links, folder by folder.
class LinksByFolder {
public:
    explicit LinksByFolder(const BookmarkPage& page)
        : begins_(page.folders.size() + 1), places_(page.links.size()) {
        for (const BookmarkLink& link : page.links) ++begins_[link.folder + 1];
        for (std::size_t i = 1; i < begins_.size(); ++i) begins_[i] += begins_[i - 1];
        std::vector<std::size_t> next(begins_);
        for (std::size_t i = 0; i < page.links.size(); ++i) {
            places_[next[page.links[i].folder]++] = i;
        }
    }

    [[nodiscard]] std::span<const std::size_t> of(std::size_t folder) const {
        return std::span(places_).subspan(begins_[folder], begins_[folder + 1] - begins_[folder]);
    }

private:
    std::vector<std::size_t> begins_;
    std::vector<std::size_t> places_;
};

// The names of the folders' groups, asked for in the page's order: a folder begins behind the one
// it lies in and ahead of any that does not lie there.
class GroupNames {
public:
    GroupNames(const BookmarkPage& page, PageTexts& texts) : page_(page), texts_(texts) {}

    const std::string& enter(std::size_t folder) {
        while (!way_.empty() && way_.back().folder != page_.folders[folder].outer) leave();
        way_.push_back({folder, name_.size()});
        appendFolder(name_, texts_.title(page_.folders[folder].title));
        return name_;
    }

private:
    struct Step {
        std::size_t folder;
        std::size_t outerSize;  // of the name without it
    };

    void leave() {
        name_.resize(way_.back().outerSize);
        way_.pop_back();
    }

    const BookmarkPage& page_;
    PageTexts& texts_;
    std::vector<Step> way_;
    std::string name_;
};

// Converts a page into a code page that has ASCII in it; answers which.
unsigned unshift(std::string_view text, unsigned codePage, CodePageCalls calls,
                 std::string& converted) {
    if (codePage == codePageShiftedJapanese) {
        converted = shiftJisOf(text);
        return codePageJapanese;
    }
    CodePageReader(codePage, calls).append(converted, text);
    return codePageUtf8;
}

void handOverPage(const BookmarkPage& page, PageTexts texts, HandOver& handOver) {
    const LinksByFolder links(page);
    GroupNames names(page, texts);
    handOver.enterRoot(rootGroup);
    for (std::size_t folder = 0; folder < page.folders.size(); ++folder) {
        if (folder != 0) handOver.enterFolder(names.enter(folder));
        for (const std::size_t place : links.of(folder)) {
            const BookmarkLink& link = page.links[place];
            handOver.link(texts.title(link.title), texts.address(link.address));
        }
    }
    for (std::size_t i = 0; i < page.withoutAddress; ++i) handOver.skipWithoutAddress();
}

}  // namespace

void importBookmarkBytes(std::string_view bytes, unsigned codePage, CodePageCalls calls,
                         HandOver& handOver) {
    const FileStart start = fileStart(bytes);
    std::string converted;
    std::string_view text = start.rest;
    if (start.text == FileText::utf16LittleEndian || start.text == FileText::utf16BigEndian) {
        converted = utf8OfUtf16(text, start.text == FileText::utf16BigEndian);
        text = converted;
    }
    BookmarkPage page = readBookmarkPage(text);
    unsigned read = start.text == FileText::bytes ? page.codePage : codePageUtf8;
    if (read == 0 && hasJapaneseShift(text)) read = codePageShiftedJapanese;
    if (isShifted(read)) {
        read = unshift(text, read, calls, converted);
        page = readBookmarkPage(converted);
    }
    if (read == 0) read = isMostlyUtf8(page) ? codePageUtf8 : codePage;
    handOverPage(page, PageTexts(read, codePage, calls), handOver);
}

}  // namespace magpie
