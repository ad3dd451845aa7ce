// ComboBox: rows, numbers on rows, the click.
#include "platform/controls/combo_box.h"

#include "platform/api/user32.h"
#include "tests/unit/controls/controls_test.h"

namespace magpie {
namespace {

using testing::ElementsAre;

struct Bar : Form {
    Bar()
        : Form({.className = "Bar", .caption = "Bar", .clientWidth = 6000, .clientHeight = 4500}) {}
    ComboBox plain;
    ComboBox sorted;
};

Bar bar;

class ComboBoxTest : public ControlsTest {
public:
    ComboBoxTest() {
        bar.makeControls = [] {
            bar.plain.create(bar, {300, 300, 3000, 315}, "Plain");
            bar.sorted.create(bar, {300, 900, 3000, 315}, "Sorted", true);
        };
    }

    static void fill(ComboBox& box) {
        for (const char* text : {"delta", "alpha", "Charlie"}) box.AddItem(text);
    }

    static void listen() {
        bar.plain.onClick = [] { note("click " + std::to_string(bar.plain.ListIndex())); };
    }
};

TEST_F(ComboBoxTest, RowsStayInTheirOrderOrAreSorted) {
    fill(bar.plain);
    fill(bar.sorted);
    EXPECT_EQ(bar.plain.List(0), "delta");
    EXPECT_EQ(bar.plain.NewIndex(), 2);
    EXPECT_EQ(bar.sorted.List(0), "alpha");
    EXPECT_EQ(bar.sorted.List(1), "Charlie");
    EXPECT_EQ(bar.sorted.NewIndex(), 1);
}

TEST_F(ComboBoxTest, ANumberStaysWithItsRow) {
    fill(bar.sorted);
    bar.sorted.ItemData(bar.sorted.NewIndex(), -7);
    bar.sorted.AddItem("bravo");
    bar.sorted.ItemData(bar.sorted.NewIndex(), 2147483647);
    EXPECT_EQ(bar.sorted.ItemData(1), 2147483647);
    EXPECT_EQ(bar.sorted.ItemData(2), -7);
    EXPECT_EQ(bar.sorted.ItemData(0), 0);
}

TEST_F(ComboBoxTest, NothingIsSelectedUntilSomethingIs) {
    fill(bar.plain);
    EXPECT_EQ(bar.plain.ListIndex(), -1);
}

TEST_F(ComboBoxTest, SettingTheRowClicksOnlyWhenItChanges) {
    fill(bar.plain);
    listen();
    bar.plain.ListIndex(-1);
    bar.plain.ListIndex(1);
    bar.plain.ListIndex(1);
    bar.plain.ListIndex(-1);
    EXPECT_THAT(noted, ElementsAre("click 1", "click -1"));
}

TEST_F(ComboBoxTest, TheUsersChoiceClicks) {
    fill(bar.plain);
    bar.plain.ListIndex(0);
    listen();
    bar.Show();
    bar.plain.SetFocus();
    driver::key(win::VK_DOWN);
    EXPECT_THAT(noted, ElementsAre("click 1"));
}

TEST_F(ComboBoxTest, ClearingIsSilent) {
    fill(bar.plain);
    bar.plain.ListIndex(1);
    listen();
    bar.plain.Clear();
    EXPECT_EQ(bar.plain.ListCount(), 0);
    EXPECT_EQ(bar.plain.ListIndex(), -1);
    EXPECT_THAT(noted, ElementsAre());
    fill(bar.plain);
    bar.plain.ListIndex(1);
    EXPECT_THAT(noted, ElementsAre("click 1"));
}

TEST_F(ComboBoxTest, ARowThatIsNotThereRaises380) {
    fill(bar.plain);
    EXPECT_EQ(failureOf([] { bar.plain.ListIndex(3); }), 380);
    EXPECT_EQ(failureOf([] { bar.plain.ListIndex(-2); }), 380);
    EXPECT_EQ(failureOf([] { bar.plain.ItemData(-1); }), 380);
    EXPECT_EQ(failureOf([] { bar.plain.ItemData(3, 1); }), 380);
    EXPECT_EQ(failureOf([] { bar.plain.List(3); }), 380);
    EXPECT_EQ(bar.plain.ListIndex(), -1);
}

TEST_F(ComboBoxTest, LongAndEmptyTextsComeBackWhole) {
    bar.plain.AddItem("");
    bar.plain.AddItem(std::string(3000, 'g'));
    EXPECT_EQ(bar.plain.List(0), "");
    EXPECT_EQ(bar.plain.List(1), std::string(3000, 'g'));
}

TEST_F(ComboBoxTest, KeepsItsAssignedPlace) {
    bar.plain.Width(3333);
    EXPECT_EQ(bar.plain.Width(), 3333);
    EXPECT_EQ(bar.plain.Height(), 315);
    win::RECT rect{};
    win::GetWindowRect(bar.plain.hWnd(), &rect);
    EXPECT_EQ(rect.right - rect.left, 222);
}

TEST_F(ComboBoxTest, AReloadedFormHasEmptyBoxes) {
    fill(bar.plain);
    bar.unload();
    EXPECT_EQ(bar.plain.ListCount(), 0);
    EXPECT_EQ(bar.plain.NewIndex(), -1);
}

}  // namespace
}  // namespace magpie
