#include "tests/behaviour/entry_fixture.h"

namespace magpie {

namespace driver = win::memory::driver;

EntryFixture::~EntryFixture() {
    Form2.discard();
}

void EntryFixture::open() {
    MenuFixture::open();
    urlsDirty = 0;
}

void EntryFixture::wake() {
    if (win::HWND window = win::GetActiveWindow()) win::PostMessageA(window, win::WM_NULL, 0, 0);
}

void EntryFixture::asking(const std::function<void()>& command, const std::function<void()>& user) {
    bool asked = false;
    driver::whenIdle([&] {
        asked = true;
        ASSERT_TRUE(Form2.loaded());
        ASSERT_TRUE(Form2.Visible());
        user();
        Form2.unload();
        wake();
    });
    command();
    EXPECT_TRUE(asked) << "no dialog came up";
}

void EntryFixture::editing(const std::function<void()>& user) {
    asking([] { Form3.mnuEdit.onClick.raise(0); }, user);
}

void EntryFixture::adding(const std::function<void()>& user) {
    asking([] { Form3.mnuAddEntry[1].onClick.raise(1); }, user);
}

void EntryFixture::press(Control& control) {
    driver::click(control.hWnd(), driver::middleOf(control.hWnd()));
    driver::pump();
}

void EntryFixture::key(int virtualKey, driver::Keys held) {
    driver::key(virtualKey, held);
    driver::pump();
}

void EntryFixture::clickPage(int tab) {
    const win::HWND strip = Form2.TabStrip.hWnd();
    win::RECT place{};
    win::SendMessageA(strip, win::TCM_GETITEMRECT, static_cast<win::WPARAM>(tab - 1),
                      reinterpret_cast<win::LPARAM>(&place));
    driver::click(strip, {(place.left + place.right) / 2, (place.top + place.bottom) / 2});
    driver::pump();
}

void EntryFixture::choose(ComboBox& combo, const std::string& text) {
    for (int row = 0; row < combo.ListCount(); ++row)
        if (combo.List(row) == text) return combo.ListIndex(row);
    ADD_FAILURE() << "no row \"" << text << "\"";
}

std::string EntryFixture::chosen(ComboBox& combo) {
    return combo.ListIndex() < 0 ? "" : combo.List(combo.ListIndex());
}

std::pair<win::DWORD, win::DWORD> EntryFixture::marked(TextBox& box) {
    win::DWORD first = 0;
    win::DWORD last = 0;
    win::SendMessageA(box.hWnd(), win::EM_GETSEL, reinterpret_cast<win::WPARAM>(&first),
                      reinterpret_cast<win::LPARAM>(&last));
    return {first, last};
}

std::vector<std::string> EntryFixture::tags() {
    std::vector<std::string> found;
    for (int row = 1; row <= records().Count(); ++row) found.push_back(records().Row(row).Tag());
    return found;
}

std::vector<int> EntryFixture::selectedRows() {
    std::vector<int> rows;
    for (int row = 1; row <= records().Count(); ++row)
        if (records().Row(row).Selected()) rows.push_back(row);
    return rows;
}

}  // namespace magpie
