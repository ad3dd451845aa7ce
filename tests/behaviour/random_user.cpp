#include "tests/behaviour/random_user.h"

#include <vector>

#include "entries/frm_move.h"
#include "platform/memory/driver_system.h"
#include "platform/runtime/letter_case.h"
#include "store/group_lookup.h"
#include "views/find_form.h"

namespace magpie {

namespace driver = win::memory::driver;
using testing::UnorderedElementsAreArray;

namespace {

// Texts of the columns of an entry's row.
std::vector<std::string> columnsOf(const StoreModel::Entry& entry, const StoreModel& model) {
    static const std::vector<std::string> ratings{"Not Rated", "Low", "Medium", "High", "V.High"};
    return {entry.name,
            entry.url,
            ratings.at(static_cast<std::size_t>(entry.rated)),
            model.groups.at(static_cast<std::size_t>(entry.group)),
            entry.accessed.days == 0 ? "Never" : dateText(entry.accessed),
            dateText(entry.created),
            std::to_string(entry.visited)};
}

}  // namespace

RandomUser::~RandomUser() {
    frmMove.discard();
    Find.discard();
}

void RandomUser::begin(unsigned seed) {
    random_.seed(seed);
    putSampleFile();
    putRecord("CF", "8 0 0 0 1 1 0 1500 1500 9000 6000 31 2 36500");
    startAndOpen();
    for (std::int32_t i = 0; i < IDXList.uBound(); ++i) model_.addGroup(IDXList[i].Name);
    for (const URLData& record : uBlock.URLDatas()) {
        StoreModel::Entry& entry =
            model_.add(record.Name(), record.URL(), static_cast<int>(record.Owner), record.Created);
        entry.rated = record.Rated.value();
        entry.catagory = record.Catagory.value();
        entry.visited = record.Visited;
        entry.accessed = record.LastAccesed;
    }
    model_.save();
    refreshed();
}

void RandomUser::act() {
    struct Deed {
        const char* name;
        void (RandomUser::*run)();
        int share;
    };
    static const Deed deeds[] = {
        {"new group", &RandomUser::newGroup, 2},
        {"rename group", &RandomUser::renameGroup, 2},
        {"remove group", &RandomUser::removeGroup, 1},
        {"new entry", &RandomUser::newEntry, 8},
        {"edit", &RandomUser::editEntry, 8},
        {"drop", &RandomUser::dropText, 5},
        {"rate", &RandomUser::rate, 5},
        {"move", &RandomUser::move, 5},
        {"remove", &RandomUser::remove, 3},
        {"visit", &RandomUser::visit, 4},
        {"send to browser", &RandomUser::sendToBrowser, 2},
        {"send to folder", &RandomUser::sendToFolder, 2},
        {"switch tab", &RandomUser::switchTab, 3},
        {"step face", &RandomUser::stepFace, 6},
        {"pick group", &RandomUser::pickGroup, 5},
        {"tick groups", &RandomUser::tickGroups, 2},
        {"mask ratings", &RandomUser::maskRatings, 2},
        {"mask text", &RandomUser::maskText, 2},
        {"list all", &RandomUser::listAll, 3},
        {"sort", &RandomUser::sortRows, 3},
        {"find", &RandomUser::find, 3},
        {"keys", &RandomUser::moveByKeys, 4},
        {"click", &RandomUser::clickSomeRow, 4},
        {"save", &RandomUser::save, 1},
        {"open", &RandomUser::open, 1},
        {"flush", &RandomUser::flush, 1},
    };
    // Far enough apart that the file's dates keep them apart.
    driver::advance(2000 + 100 * static_cast<unsigned>(below(40)));
    if (model_.groups.empty()) {
        deed = "first group";
        return newGroup();
    }
    if (!groupIsChosen()) {
        deed = "pick a group";
        return pickGroup();
    }
    int all = 0;
    for (const Deed& each : deeds) all += each.share;
    int at = below(all);
    const Deed* chosen = deeds;
    while (at >= chosen->share) at -= (chosen++)->share;
    deed = chosen->name;
    (this->*chosen->run)();
}

std::string RandomUser::someName() {
    static const std::vector<std::string> kinds{"News",  "the  Map", "tools + more", "What?", "a:b",
                                                "UPPER", "x"};
    if (oneIn(12)) return "";
    const std::string& kind =
        kinds[static_cast<std::size_t>(below(static_cast<int>(kinds.size())))];
    return kind + " " + std::to_string(++named_);
}

std::string RandomUser::someUrl() {
    return (oneIn(8) ? "+ftp://x y/" : "http://server/") + std::to_string(++named_);
}

// What must be so between two commands ------------------------------------------------------

void RandomUser::expectAllAsKnown() {
    model_.expectStore();
    expectNothingHeld();
    expectRows();
    expectGroupControls();
}

void RandomUser::expectTheFileHoldsAll() {
    flush();
    expectAllAsKnown();
}

void RandomUser::expectNothingHeld() {
    EXPECT_EQ(modalOpen, 0);
    EXPECT_FALSE(Form2.loaded());
    EXPECT_FALSE(frmMove.loaded());
    EXPECT_FALSE(Find.loaded());
    EXPECT_TRUE(win::IsWindowEnabled(Form3.hWnd()));
    expectHourglassAndHidingOver();
    EXPECT_EQ(Form3.StatusBar1.Pane(2), "Total: " + std::to_string(model_.entries.size()));
    if (panelIsLate_) return;
    EXPECT_EQ(Form3.StatusBar1.Pane(1), "Viewed: " + std::to_string(shown_.size()));
}

void RandomUser::expectRows() {
    std::multiset<std::string> rows;
    for (int row = 1; row <= records().Count(); ++row) {
        const std::string key = records().Row(row).Tag();
        rows.insert(key);
        if (!model_.holds(key)) continue;
        EXPECT_EQ(rowTexts(row), columnsOf(model_.at(key), model_));
    }
    EXPECT_EQ(rows, shown_);
}

void RandomUser::expectGroupControls() {
    std::vector<std::string> wanted;
    for (std::size_t i = 0; i < model_.groups.size(); ++i)
        wanted.push_back(model_.groups[i] + " " + std::to_string(i));
    std::vector<std::string> found;
    ComboBox& combo = Form3.Combo1[1];
    if (currentTab == 2)
        for (int row = 0; row < combo.ListCount(); ++row)
            found.push_back(combo.List(row) + " " + std::to_string(combo.ItemData(row)));
    if (currentTab == 1)
        for (int row = 1; row <= groups().Count(); ++row)
            found.push_back(groups().Row(row).Text() + " " + groups().Row(row).Tag());
    EXPECT_THAT(found, UnorderedElementsAreArray(wanted));
}

// The view ----------------------------------------------------------------------------------

bool RandomUser::groupIsChosen() const {
    return GetSelectedIndex() >= 0;
}

bool RandomUser::passes(const StoreModel::Entry& entry) const {
    const bool listsAll = Form3.mnuListAll.Checked || (currentTab == 1 && Form3.advMode != 1);
    if (listsAll ? !IDXList[entry.group].Checked : entry.group != GetSelectedIndex()) return false;
    if (!ratedMask[static_cast<std::size_t>(entry.rated)]) return false;
    return upperCase(entry.name).find(upperCase(Form3.txtFilter.Text())) != std::string::npos;
}

void RandomUser::refreshed() {
    if (model_.groups.empty() || !groupIsChosen()) return;
    shown_.clear();
    for (const StoreModel::Entry& entry : model_.entries)
        if (passes(entry)) shown_.insert(entry.key);
    panelIsLate_ = false;
}

}  // namespace magpie
