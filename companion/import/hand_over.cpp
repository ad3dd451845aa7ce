#include "companion/import/hand_over.h"

#include "companion/import/unicode.h"

namespace magpie {

namespace {

constexpr std::string_view nameless = "Untitled";

// Far above what a hundred levels of usual names come to.
constexpr std::size_t mostCharactersOfOne = 1000;
constexpr std::size_t mostBytesOfAll = 4096;

}  // namespace

void HandOver::enter(std::string_view groupName, bool root) {
    groupName_ = groupName;
    root_ = root;
    begun_ = counted_ = false;
}

void HandOver::link(std::string_view title, std::string_view address) {
    const std::string url = HostText::address(address);
    if (url.empty()) return skipWithoutAddress();
    if (full_ || !beginGroup()) return skipWithoutRoom();
    std::string name = isBlankText(title) ? std::string() : texts_.title(title);
    if (name.empty()) name = url;
    full_ = !sink_.BungURL(name, url);
    if (full_) return skipWithoutRoom();
    if (!counted_) ++counts_.groups;
    counted_ = true;
    ++counts_.links;
}

// True when the links' group is there.
bool HandOver::beginGroup() {
    if (begun_) return true;
    std::string name = texts_.groupName(groupName_);
    if (name.empty()) name = nameless;
    full_ = !sink_.NewGroup(name);
    if (full_) return false;
    if (root_) sink_.storeLastRootOwner();
    begun_ = true;
    return true;
}

std::string nameInFolder(std::string_view outer, std::string_view inner) {
    std::string name(outer);
    appendFolder(name, inner);
    return name;
}

void appendFolder(std::string& name, std::string_view inner) {
    if (!name.empty()) name += betweenFolders;
    name += isBlankText(inner) ? nameless : firstCharacters(inner, mostCharactersOfOne);
    name.resize(firstBytes(name, mostBytesOfAll).size());
}

}  // namespace magpie
