// What a RandomUser does to entries and groups.
#include "entries/frm_move.h"
#include "platform/services/clock.h"
#include "store/group_lookup.h"
#include "tests/behaviour/bulk_fixture.h"
#include "tests/behaviour/random_user.h"

namespace magpie {

namespace driver = win::memory::driver;

namespace {

constexpr std::uint8_t singleGroup = 1;  // in savedAdvMode
constexpr std::uint8_t filterFace = 2;

std::string withoutBlanksAround(const std::string& text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string::npos) return "";
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

void chooseForEntries(const std::string& caption) {
    BulkFixture::choose(caption);
}

}  // namespace

// What the dialog held when it was left.
struct RandomUser::Chosen {
    bool accepted = false;
    std::string name;
    std::string url;
    int rating = 0;
    int group = 0;
    int groupRow = 0;
};

// Groups ------------------------------------------------------------------------------------

void RandomUser::answerName(const std::string& name) {
    driver::whenIdle([name] {
        if (!name.empty()) driver::type(name);
        driver::key(name.empty() ? win::VK_ESCAPE : win::VK_RETURN);
        win::PostMessageA(win::GetActiveWindow(), win::WM_NULL, 0, 0);
    });
}

void RandomUser::chooseForGroups(const std::string& inMainMenu, const std::string& inGroupMenu) {
    if (currentTab == 2) {
        chooseFrom(clickMenuButton, inMainMenu);
    } else {
        groups().SetFocus();
        chooseFrom([] { driver::key(win::VK_APPS); }, inGroupMenu);
    }
    driver::pump();
}

// Behind a gap the numbers on the rows are no positions, until the file is loaded again.
void RandomUser::loadIfNumbersHaveGaps() {
    if (model_.groupsMade != static_cast<int>(model_.groups.size())) flush();
}

void RandomUser::newGroup() {
    if (model_.groups.size() > 5) return;
    if (currentTab == 1 && Form3.advMode == filterFace) stepFace();
    if (currentTab == 1 && Form3.advMode == filterFace) return;
    loadIfNumbersHaveGaps();
    const std::string name = someName();
    answerName(name);
    chooseForGroups("New Group", "New");
    if (name.empty()) return;
    model_.addGroup(name);
    ++model_.changes;
    refreshed();
}

// Every row gets the name on show; then the user looks at the truth.
void RandomUser::renameGroup() {
    if (currentTab == 1 && Form3.advMode == filterFace) return;
    const auto group = static_cast<std::size_t>(getCurrentIDX());
    const std::string name = someName();
    answerName(name);
    chooseForGroups("Rename Group", "Rename");
    if (name.empty()) return;
    model_.groups.at(group) = name;
    if (currentTab == 2) ++model_.changes;
    for (int row = 1; row <= records().Count(); ++row) EXPECT_EQ(rowTexts(row)[3], name);
    listAll();
    listAll();
}

void RandomUser::removeGroup() {
    if (currentTab == 1 && Form3.advMode == filterFace) return;
    const int group = getCurrentIDX();
    const bool no = oneIn(3);
    const bool asked = records().Count() > 0;
    if (asked) driver::answerMessageBox(no ? win::IDNO : win::IDYES);
    chooseForGroups("Remove Group", "Remove");
    if (asked && no) return;
    model_.removeGroup(group);
    if (model_.groups.empty()) return;
    ++model_.changes;
    refreshed();
}

// The dialog --------------------------------------------------------------------------------

RandomUser::Chosen RandomUser::fillDialog() {
    if (!oneIn(4)) writeName((oneIn(3) ? "  " : "") + someName() + (oneIn(3) ? " " : ""));
    if (!oneIn(4)) writeUrl(someUrl() + (oneIn(3) ? " " : ""));
    if (oneIn(2)) Form2.Combo1[0].ListIndex(below(5));
    ComboBox& group = Form2.Combo1[1];
    if (oneIn(3)) group.ListIndex(below(group.ListCount()));
    if (oneIn(4)) clickPage(2);
    Chosen chosen;
    chosen.accepted = !oneIn(5);
    chosen.name = withoutBlanksAround(Form2.Text1[0].Text());
    chosen.url = withoutBlanksAround(Form2.Text1[1].Text());
    chosen.rating = Form2.Combo1[0].ListIndex();
    chosen.groupRow = group.ListIndex();
    chosen.group = group.ItemData(chosen.groupRow);
    switch (below(2) + (chosen.accepted ? 0 : 2)) {
        case 0: accept(); break;
        case 1: key(win::VK_RETURN); break;
        case 2: cancel(); break;
        default: key(win::VK_ESCAPE);
    }
    return chosen;
}

void RandomUser::take(StoreModel::Entry& entry, const Chosen& chosen) {
    entry.name = chosen.name;
    entry.url = chosen.url;
    entry.rated = chosen.rating;
}

void RandomUser::newEntry() {
    Chosen chosen;
    adding([&] { chosen = fillDialog(); });
    driver::pump();
    if (!chosen.accepted) return;
    StoreModel::Entry& entry = model_.add(chosen.name, chosen.url, chosen.group, now());
    take(entry, chosen);
    entry.catagory = chosen.groupRow;
    ++model_.changes;
    panelIsLate_ = false;
    if (chosen.group == getCurrentIDX()) shown_.insert(entry.key);
}

// The entry with the focus mark. Its row leaves the list only if it is among the selected ones.
void RandomUser::editEntry() {
    if (records().Count() == 0) return;
    if (oneIn(2)) clickSomeRow();
    const ListRow row = records().SelectedItem();
    const std::string key = row.Tag();
    const bool selected = row.Selected();
    const int inView = getCurrentIDX();
    Chosen chosen;
    editing([&] { chosen = fillDialog(); });
    driver::pump();
    if (!chosen.accepted) return;
    StoreModel::Entry& entry = model_.at(key);
    take(entry, chosen);
    model_.changes += 2;
    entry.group = chosen.group;
    if (!selected || savedAdvMode != singleGroup || chosen.group == inView) return;
    shown_.erase(shown_.find(key));
    panelIsLate_ = true;
}

void RandomUser::dropText() {
    const std::string text = someUrl();
    EXPECT_TRUE(driver::drop(records().hWnd(), {30, 60}, text));
    StoreModel::Entry& entry = model_.add("<Quick Add>", text, getCurrentIDX(), now());
    ++model_.changes;
    panelIsLate_ = false;
    shown_.insert(entry.key);
}

// Several at once ---------------------------------------------------------------------------

void RandomUser::selectSome() {
    const int chances = 1 + below(5);
    for (int row = 1; row <= records().Count(); ++row) records().Row(row).Selected(oneIn(chances));
}

void RandomUser::rate() {
    static const char* const ratings[] = {"Not Rated", "Low", "Medium", "High", "Very High"};
    if (records().Count() == 0) return;
    selectSome();
    const int rating = below(5);
    for (const int row : selectedRows()) model_.at(records().Row(row).Tag()).rated = rating;
    chooseForEntries(ratings[rating]);
    EXPECT_TRUE(selectedRows().empty());
    ++model_.changes;
}

// While a single group is kept in view the rows that leave it go; for those that are in it
// already the first one stands.
void RandomUser::move() {
    if (records().Count() == 0) return;
    selectSome();
    const int inView = getCurrentIDX();
    std::vector<std::string> keys;
    for (const int row : selectedRows()) keys.push_back(records().Row(row).Tag());
    int group = -1;
    BulkFixture::move([&] {
        frmMove.Combo1.ListIndex(below(frmMove.Combo1.ListCount()));
        if (oneIn(4)) return;
        group = frmMove.Combo1.ItemData(frmMove.Combo1.ListIndex());
        BulkFixture::clickOn(frmMove.acceptCmd);
    });
    if (group < 0) return;
    model_.changes += 2;
    if (savedAdvMode == singleGroup && group == inView && !keys.empty()) keys.resize(1);
    for (const std::string& key : keys) {
        model_.at(key).group = group;
        if (savedAdvMode != singleGroup || group == inView) continue;
        shown_.erase(shown_.find(key));
        panelIsLate_ = true;
    }
}

void RandomUser::remove() {
    if (records().Count() == 0) return;
    selectSome();
    std::vector<std::string> keys;
    for (const int row : selectedRows()) keys.push_back(records().Row(row).Tag());
    const bool asked = keys.size() > 1;
    const bool no = asked && oneIn(3);
    if (asked) driver::answerMessageBox(no ? win::IDNO : win::IDYES);
    chooseForEntries("Remove");
    if (no) {
        EXPECT_EQ(modalOpen, 1);
        chooseFrom(clickMenuButton, "About");
        return;
    }
    for (const std::string& key : keys) {
        model_.remove(key);
        shown_.erase(shown_.find(key));
    }
    ++model_.changes;
    panelIsLate_ = false;
}

void RandomUser::sendToFolder() {
    if (records().Count() == 0) return;
    selectSome();
    chooseForEntries("Bookmarks Folder");
    EXPECT_TRUE(selectedRows().empty());
    ++model_.changes;
}

// One ---------------------------------------------------------------------------------------

void RandomUser::visit() {
    if (records().Count() == 0) return;
    clickSomeRow();
    const ListRow row = records().SelectedItem();
    win::RECT place{};
    place.left = win::LVIR_BOUNDS;
    win::SendMessageA(records().hWnd(), win::LVM_GETITEMRECT,
                      static_cast<win::WPARAM>(row.position() - 1),
                      reinterpret_cast<win::LPARAM>(&place));
    driver::doubleClick(records().hWnd(), {30, (place.top + place.bottom) / 2});
    driver::pump();
    StoreModel::Entry& entry = model_.at(row.Tag());
    ++entry.visited;
    entry.accessed = now();
    ++model_.changes;
}

void RandomUser::sendToBrowser() {
    if (records().Count() == 0) return;
    chooseForEntries(oneIn(2) ? "Last Active" : "New Window");
    ++model_.changes;
}

}  // namespace magpie
