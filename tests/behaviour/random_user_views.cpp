// What a RandomUser does to see other entries, or the same ones in another order; and to save
// and load them.
#include "tests/behaviour/bulk_fixture.h"
#include "tests/behaviour/panel_fixture.h"
#include "tests/behaviour/random_user.h"
#include "views/find_form.h"

namespace magpie {

namespace driver = win::memory::driver;

namespace {

constexpr std::uint8_t groupListFace = 1;
constexpr std::uint8_t filterFace = 2;

win::POINT middleOfRow(ListView& list, int row) {
    list.Row(row).EnsureVisible();
    win::RECT place{};
    place.left = win::LVIR_BOUNDS;
    win::SendMessageA(list.hWnd(), win::LVM_GETITEMRECT, static_cast<win::WPARAM>(row - 1),
                      reinterpret_cast<win::LPARAM>(&place));
    return {30, (place.top + place.bottom) / 2};
}

void clickHeading(ListView& list, int heading) {
    for (int column = 1; column <= list.ColumnCount(); ++column) list.ColumnWidth(column, 450);
    auto* header =
        reinterpret_cast<win::HWND>(win::SendMessageA(list.hWnd(), win::LVM_GETHEADER, 0, 0));
    win::RECT area{};
    win::SendMessageA(header, win::HDM_GETITEMRECT, static_cast<win::WPARAM>(heading - 1),
                      reinterpret_cast<win::LPARAM>(&area));
    driver::click(header, {(area.left + area.right) / 2, (area.top + area.bottom) / 2});
    driver::pump();
}

}  // namespace

void RandomUser::switchTab() {
    clickTab(currentTab == 1 ? 2 : 1);
    shown_.clear();
    refreshed();
}

// Another face shows the same rows until the next refresh.
void RandomUser::stepFace() {
    if (currentTab == 1) PanelFixture::clickButton(Form3.Command3[oneIn(2) ? 0 : 2]);
}

// The pick ends "List All", on the Standard tab only if it is another one.
void RandomUser::pickGroup() {
    if (currentTab == 2) {
        const int row = below(Form3.Combo1[1].ListCount());
        if (row == Form3.Combo1[1].ListIndex()) return;
        Form3.Combo1[1].ListIndex(row);
        EXPECT_FALSE(Form3.mnuListAll.Checked);
        refreshed();
    } else if (Form3.advMode != filterFace) {
        const int row = 1 + below(groups().Count());
        driver::click(groups().hWnd(), middleOfRow(groups(), row));
        driver::pump();
        if (Form3.advMode == groupListFace) refreshed();
    }
}

void RandomUser::tickGroups() {
    if (currentTab != 1 || Form3.advMode != 0) return;
    switch (below(3)) {
        case 0: PanelFixture::clickButton(Form3.cmdIndex[0]); break;
        case 1: PanelFixture::clickButton(Form3.cmdIndex[1]); break;
        default: {
            const ListRow row = groups().Row(1 + below(groups().Count()));
            row.Checked(!row.Checked());
        }
    }
    PanelFixture::clickButton(Form3.cmdIndex[2]);
    refreshed();
}

void RandomUser::maskRatings() {
    if (currentTab != 1 || Form3.advMode != filterFace) return;
    PanelFixture::clickInPanel(Form3.ratedBox[below(5)]);
    PanelFixture::clickButton(Form3.cmdIndex[3]);
    EXPECT_EQ(savedAdvMode, filterFace);
    refreshed();
}

void RandomUser::maskText() {
    if (currentTab != 1 || Form3.advMode != filterFace) return;
    Form3.txtFilter.Text(oneIn(2) ? "" : "ma");
    PanelFixture::bringIntoSight(Form3.txtFilter);
    Form3.txtFilter.SetFocus();
    PanelFixture::pressKey(win::VK_RETURN);
    refreshed();
}

void RandomUser::listAll() {
    chooseFrom(clickMenuButton, "List All");
    driver::pump();
    refreshed();
}

void RandomUser::sortRows() {
    clickHeading(records(), 1 + below(7));
}

void RandomUser::find() {
    if (records().Count() == 0) return;
    records().SetFocus();
    driver::whenIdle([this] {
        Find.Text1.Text(oneIn(2) ? "NEWS" : "1");
        Find.Combo1.ListIndex(below(2));
        press(Find.Command1);
        key(win::VK_ESCAPE);
        win::PostMessageA(win::GetActiveWindow(), win::WM_NULL, 0, 0);
    });
    key('F', {.ctrl = true, .shift = false, .alt = false});
    key(oneIn(2) ? 'N' : 'P', {.ctrl = true, .shift = false, .alt = false});
}

// On the Standard tab the group follows the entry that the key leaves, and with another group
// there are other rows.
void RandomUser::moveByKeys() {
    const int group = Form3.Combo1[1].ListIndex();
    const int arrow = oneIn(2) ? win::VK_DOWN : win::VK_UP;
    const bool inGroups = currentTab == 1 && Form3.advMode != filterFace && oneIn(2);
    (inGroups ? groups() : records()).SetFocus();
    key(arrow);
    if (inGroups || Form3.Combo1[1].ListIndex() != group) refreshed();
}

void RandomUser::clickSomeRow() {
    if (records().Count() == 0) return;
    driver::click(records().hWnd(), middleOfRow(records(), 1 + below(records().Count())));
    driver::pump();
}

// Saving and loading ------------------------------------------------------------------------

void RandomUser::save() {
    if (model_.entries.empty()) return;
    chooseFrom(clickMenuButton, "Save Default");
    model_.save();
}

// A list that lost its last row under a dialog leaves the line grey.
void RandomUser::open() {
    if (!Form3.mnuOpenz.Enabled) return;
    chooseFrom(clickMenuButton, "Open Default");
    driver::pump();
    model_.load();
    shown_.clear();
    refreshed();
}

void RandomUser::flush() {
    const bool saves = model_.changes > 0 && !model_.entries.empty();
    chooseFrom(clickMenuButton, "Flush to Tray");
    driver::pump();
    EXPECT_FALSE(Form3.loaded());
    if (saves) model_.save();
    model_.load();
    clickPad();
    shown_.clear();
    refreshed();
}

}  // namespace magpie
