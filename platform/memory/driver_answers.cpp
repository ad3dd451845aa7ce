// The driver's answers to menus and boxes.
#include <utility>

#include "platform/memory/driver.h"
#include "platform/memory/refuse.h"
#include "platform/memory/user_answers.h"

namespace win::memory::driver {
namespace {

// As a user reads it: without the mark of the access key and the key at the right.
std::string readable(std::string_view caption) {
    std::string text;
    for (char each : caption.substr(0, caption.find('\t'))) {
        if (each != '&') text += each;
    }
    return text;
}

const MenuLine* find(const MenuLine& among, const std::string& wanted) {
    for (const MenuLine& each : among.lines) {
        if (readable(each.caption) == wanted) return &each;
        if (const MenuLine* below = find(each, wanted)) return below;
    }
    return nullptr;
}

}  // namespace

const MenuLine& MenuLine::at(std::string_view wanted) const {
    const MenuLine* line = find(*this, readable(wanted));
    if (!line) refuse("no line of the menu", wanted);
    return *line;
}

void onPopup(std::function<UINT(const Popup&)> answer) {
    userAnswers().popups.push_back(std::move(answer));
}

void choose(std::string line) {
    onPopup([line](const Popup& popup) { return popup.menu.at(line).id; });
}

void answerMessageBox(int button) {
    onMessageBox([button](const Box&) { return button; });
}

void onMessageBox(std::function<int(const Box&)> answer) {
    userAnswers().boxes.push_back(std::move(answer));
}

int beeps() {
    return userAnswers().beeps;
}

const std::vector<Box>& messageBoxes() {
    return userAnswers().boxesShown;
}

}  // namespace win::memory::driver
