#include "tests/behaviour/menu_fixture.h"

#include "platform/api/user32.h"

namespace magpie {

namespace driver = win::memory::driver;

namespace {

constexpr int headingHeight = 17;  // pixels, on the memory desktop
constexpr int rowHeight = 14;

void addLines(const driver::MenuLine& menu, const std::string& indent,
              std::vector<std::string>& lines) {
    for (const driver::MenuLine& each : menu.lines) {
        std::string line = indent;
        line += each.checked ? "[x] " : "";
        line += each.separator ? "-" : each.caption;
        line += each.enabled ? "" : " (grey)";
        line += each.lines.empty() ? "" : " >";
        lines.push_back(line);
        addLines(each, indent + "  ", lines);
    }
}

}  // namespace

void MenuFixture::open() {
    openWith({"A", "B"});
    for (const char* name : {"a1", "a2", "a3"}) add(name, 0);
    add("b", 1);
    RefreshURLPage();
}

driver::Popup MenuFixture::shownBy(const std::function<void()>& action) {
    driver::Popup seen;
    driver::onPopup([&seen](const driver::Popup& popup) {
        seen = popup;
        return win::UINT{0};
    });
    action();
    EXPECT_NE(seen.owner, nullptr) << "no menu came up";
    return seen;
}

void MenuFixture::chooseFrom(const std::function<void()>& action, const std::string& caption) {
    driver::choose(caption);
    action();
}

void MenuFixture::chooseFrom(const std::function<void()>& action, const std::string& caption,
                             const std::function<void()>& meanwhile) {
    driver::onPopup([&](const driver::Popup& popup) {
        const win::UINT id = popup.menu.at(caption).id;
        meanwhile();
        return id;
    });
    action();
}

std::vector<std::string> MenuFixture::linesOf(const driver::Popup& popup) {
    std::vector<std::string> lines;
    addLines(popup.menu, "", lines);
    return lines;
}

void MenuFixture::clickMenuButton() {
    Button& button = currentTab == 1 ? Form3.Command3[1] : Form3.Command1[1];
    driver::click(button.hWnd(), driver::middleOf(button.hWnd()));
}

void MenuFixture::rightClickRecords() {
    clickRow(records(), 1, driver::Button::right);
}

void MenuFixture::rightClickSort() {
    const win::HWND button = Form3.Command5[0].hWnd();
    driver::click(button, driver::middleOf(button), driver::Button::right);
}

void MenuFixture::rightClickGroups() {
    clickRow(groups(), 1, driver::Button::right);
}

void MenuFixture::clickRow(ListView& list, int row, driver::Button button) {
    driver::click(list.hWnd(), {30, headingHeight + (row - 1) * rowHeight + rowHeight / 2}, button);
}

bool MenuFixture::isInSight(ListView& list, int row) {
    win::RECT place{};
    place.left = win::LVIR_BOUNDS;
    win::SendMessageA(list.hWnd(), win::LVM_GETITEMRECT, static_cast<win::WPARAM>(row - 1),
                      reinterpret_cast<win::LPARAM>(&place));
    win::RECT inner{};
    win::GetClientRect(list.hWnd(), &inner);
    return place.top >= 0 && place.bottom <= inner.bottom;
}

win::POINT MenuFixture::onScreen(Control& control, win::POINT at) {
    win::ClientToScreen(control.hWnd(), &at);
    return at;
}

win::POINT MenuFixture::mouse() {
    win::POINT at{};
    win::GetCursorPos(&at);
    return at;
}

}  // namespace magpie
