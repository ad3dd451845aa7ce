// ListView: rows, tags, selection, columns, texts.
#include "platform/controls/list_view.h"

#include "platform/api/comctl32.h"
#include "platform/api/user32.h"
#include "tests/unit/controls/controls_test.h"

namespace magpie {
namespace {

using testing::ElementsAre;
using testing::Pair;
using testing::SizeIs;
using testing::StartsWith;

struct Shelf : Form {
    Shelf()
        : Form({.className = "Shelf",
                .caption = "Shelf",
                .clientWidth = 9000,
                .clientHeight = 6000}) {}
    ListView many;
    ListView single;
};

Shelf shelf;

void makeShelf() {
    shelf.many.create(shelf, {0, 0, 6000, 3000}, "Many", ListView::Selection::multiple);
    shelf.many.addColumn("Title", 2400);
    shelf.many.addColumn("URL", 1503);
    shelf.single.create(shelf, {0, 3000, 6000, 3000}, "Single", ListView::Selection::single);
    shelf.single.addColumn("Group", 1700);
}

class ListViewTest : public ControlsTest {
public:
    ListViewTest() { shelf.makeControls = makeShelf; }

    static void fill(ListView& list) {
        list.Add("a", "00001");
        list.Add("b", "00002");
        list.Add("c", "00003");
    }

    static std::vector<std::string> tags(ListView& list) {
        std::vector<std::string> all;
        for (int row = 1; row <= list.Count(); ++row) all.push_back(list.Row(row).Tag());
        return all;
    }

    static std::vector<std::string> selected(ListView& list) {
        std::vector<std::string> all;
        for (int row = 1; row <= list.Count(); ++row)
            if (list.Row(row).Selected()) all.push_back(list.Row(row).Text());
        return all;
    }

    static win::LRESULT send(ListView& list, win::UINT message, win::WPARAM wParam) {
        return win::SendMessageA(list.hWnd(), message, wParam, 0);
    }

    static win::RECT placeOf(ListView& list, int row) {
        win::RECT area{};
        area.left = win::LVIR_BOUNDS;
        win::SendMessageA(list.hWnd(), win::LVM_GETITEMRECT, static_cast<win::WPARAM>(row - 1),
                          reinterpret_cast<win::LPARAM>(&area));
        return area;
    }

    // The middle of a row's first column.
    static win::POINT pointOf(ListView& list, int row) {
        const win::RECT area = placeOf(list, row);
        return {area.left + 20, (area.top + area.bottom) / 2};
    }

    // Where the list's menu belongs, in pixels of the list.
    static std::pair<win::LONG, win::LONG> menuPlaceOf(ListView& list) {
        win::POINT at = list.menuPlace();
        win::ScreenToClient(list.hWnd(), &at);
        return {at.x, at.y};
    }

    static void listenToTheMouse() {
        shelf.many.onItemClick = [] { note("row"); };
        shelf.many.onClick = [] { note("click"); };
        shelf.many.onMouseUp = [](int button, int, double x, double y) {
            note("up " + std::to_string(button) + " " + std::to_string(static_cast<int>(x)) + "," +
                 std::to_string(static_cast<int>(y)));
        };
        shelf.Show();
    }
};

// Rows and tags ------------------------------------------------------------------------

TEST_F(ListViewTest, RowsAreAddedAtTheEnd) {
    fill(shelf.many);
    EXPECT_EQ(shelf.many.Count(), 3);
    EXPECT_EQ(shelf.many.Row(1).Text(), "a");
    EXPECT_EQ(shelf.many.Row(3).Text(), "c");
    EXPECT_EQ(shelf.many.Add("d").position(), 4);
    EXPECT_EQ(shelf.many.Row(4).Tag(), "");
}

TEST_F(ListViewTest, ATagFollowsItsRow) {
    fill(shelf.many);
    send(shelf.many, win::LVM_DELETEITEM, 0);
    EXPECT_THAT(tags(shelf.many), ElementsAre("00002", "00003"));
    shelf.many.Add("d", "00004");
    EXPECT_THAT(tags(shelf.many), ElementsAre("00002", "00003", "00004"));
    shelf.many.Row(2).Tag("other");
    EXPECT_THAT(tags(shelf.many), ElementsAre("00002", "other", "00004"));
}

TEST_F(ListViewTest, AClearedListStartsItsTagsAnew) {
    fill(shelf.many);
    shelf.many.Clear();
    EXPECT_EQ(shelf.many.Count(), 0);
    shelf.many.Add("z", "00009");
    EXPECT_THAT(tags(shelf.many), ElementsAre("00009"));
}

TEST_F(ListViewTest, AReloadedFormHasEmptyLists) {
    fill(shelf.many);
    shelf.unload();
    EXPECT_EQ(shelf.many.Count(), 0);
    EXPECT_EQ(shelf.many.ColumnCount(), 2);
    shelf.many.Add("z", "00009");
    EXPECT_THAT(tags(shelf.many), ElementsAre("00009"));
}

TEST_F(ListViewTest, ARowThatIsNotThereRaises9) {
    fill(shelf.many);
    EXPECT_EQ(failureOf([] { shelf.many.Row(0); }), 9);
    EXPECT_EQ(failureOf([] { shelf.many.Row(4); }), 9);
    const ListRow last = shelf.many.Row(3);
    shelf.many.Clear();
    EXPECT_EQ(failureOf([&] { last.Tag(); }), 9);
}

// Texts --------------------------------------------------------------------------------

TEST_F(ListViewTest, TextsOfAnyLengthComeBackWhole) {
    ListRow row = shelf.many.Add("", "t");
    for (const std::size_t length : {0u, 1u, 258u, 259u, 260u, 261u, 519u, 520u, 5000u, 70000u}) {
        const std::string text(length, 'x');
        row.Text(text);
        row.SubItem(1, text + "y");
        EXPECT_EQ(row.Text(), text) << length;
        EXPECT_EQ(row.SubItem(1), text + "y") << length;
    }
}

TEST_F(ListViewTest, BytesAbove127ComeBackAsTheyWere) {
    ListRow row = shelf.many.Add("\xE4\xF6\xFC\x80\xFF");
    EXPECT_EQ(row.Text(), "\xE4\xF6\xFC\x80\xFF");
}

// Selection ----------------------------------------------------------------------------

TEST_F(ListViewTest, AFilledListHasASelectedItemAndNoSelection) {
    fill(shelf.many);
    EXPECT_THAT(selected(shelf.many), ElementsAre());
    EXPECT_EQ(send(shelf.many, win::LVM_GETSELECTEDCOUNT, 0), 0);
    EXPECT_EQ(shelf.many.SelectedItem().Text(), "a");
}

TEST_F(ListViewTest, TheSelectedItemIsTheRowWithTheFocusMark) {
    fill(shelf.many);
    shelf.many.Row(2).Selected(true);
    EXPECT_EQ(shelf.many.SelectedItem().Text(), "b");
    shelf.many.Row(2).Selected(false);
    EXPECT_THAT(selected(shelf.many), ElementsAre());
    EXPECT_EQ(shelf.many.SelectedItem().Text(), "b");
    EXPECT_EQ(shelf.many.SelectedItem().Tag(), "00002");
}

TEST_F(ListViewTest, AnEmptyListHasNoSelectedItem) {
    EXPECT_EQ(failureOf([] { shelf.many.SelectedItem(); }), 91);
    fill(shelf.many);
    shelf.many.Row(3).Selected(true);
    shelf.many.Clear();
    EXPECT_EQ(failureOf([] { shelf.many.SelectedItem(); }), 91);
    fill(shelf.many);
    EXPECT_EQ(shelf.many.SelectedItem().Text(), "a");
}

TEST_F(ListViewTest, SelectingTakesNothingFromOtherRows) {
    fill(shelf.many);
    shelf.many.Row(1).Selected(true);
    shelf.many.Row(3).Selected(true);
    EXPECT_THAT(selected(shelf.many), ElementsAre("a", "c"));
    EXPECT_EQ(shelf.many.SelectedItem().Text(), "c");
}

TEST_F(ListViewTest, AListOfSingleSelectionHasOneSelectedRow) {
    fill(shelf.single);
    shelf.single.Row(1).Selected(true);
    shelf.single.Row(3).Selected(true);
    EXPECT_THAT(selected(shelf.single), ElementsAre("c"));
}

TEST_F(ListViewTest, AClickSelectsARowAndIsTold) {
    fill(shelf.many);
    shelf.many.onItemClick = [] { note("click " + shelf.many.SelectedItem().Text()); };
    shelf.Show();
    driver::click(shelf.many.hWnd(), pointOf(shelf.many, 2));
    EXPECT_THAT(selected(shelf.many), ElementsAre("b"));
    EXPECT_THAT(noted, ElementsAre("click b"));
}

TEST_F(ListViewTest, AClickBesideTheRowsIsNoClickOnARow) {
    fill(shelf.many);
    shelf.many.onItemClick = [] { note("click"); };
    shelf.Show();
    win::POINT below = pointOf(shelf.many, 3);
    below.y += 60;
    driver::click(shelf.many.hWnd(), below);
    EXPECT_THAT(noted, ElementsAre());
}

TEST_F(ListViewTest, AClickTellsTheRowThenItselfThenTheRelease) {
    fill(shelf.many);
    listenToTheMouse();
    const win::POINT at = pointOf(shelf.many, 2);
    driver::click(shelf.many.hWnd(), at);
    const std::string up = std::to_string(15 * at.x).append(",").append(std::to_string(15 * at.y));
    EXPECT_THAT(noted, ElementsAre("row", "click", "up 1 " + up));
    noted.clear();
    driver::click(shelf.many.hWnd(), at, driver::Button::right);
    EXPECT_THAT(noted, ElementsAre("row", "click", "up 2 " + up));
}

TEST_F(ListViewTest, AClickBesideTheRowsIsAClickAllTheSame) {
    fill(shelf.many);
    listenToTheMouse();
    win::POINT below = pointOf(shelf.many, 3);
    below.y += 60;
    for (const driver::Button button : {driver::Button::left, driver::Button::right})
        driver::click(shelf.many.hWnd(), below, button);
    ASSERT_THAT(noted, SizeIs(4));
    EXPECT_EQ(noted[0], "click");
    EXPECT_THAT(noted[1], StartsWith("up 1 "));
    EXPECT_EQ(noted[2], "click");
    EXPECT_THAT(noted[3], StartsWith("up 2 "));
}

TEST_F(ListViewTest, TheMiddleButtonIsLetGoWithoutAClick) {
    listenToTheMouse();
    driver::click(shelf.many.hWnd(), {40, 60}, driver::Button::middle);
    EXPECT_THAT(noted, ElementsAre("up 4 600,900"));
}

TEST_F(ListViewTest, TheSecondReleaseOfADoubleClickIsTold) {
    fill(shelf.many);
    listenToTheMouse();
    driver::doubleClick(shelf.many.hWnd(), pointOf(shelf.many, 1));
    ASSERT_THAT(noted, SizeIs(4));
    EXPECT_THAT(noted[2], StartsWith("up 1 "));
    EXPECT_THAT(noted[3], StartsWith("up 1 "));
}

// Some desktops' lists keep the release to themselves.
TEST_F(ListViewTest, AClickThatIsToldWithoutAReleaseTellsOneAllTheSame) {
    fill(shelf.many);
    listenToTheMouse();
    driver::press(shelf.many.hWnd(), pointOf(shelf.many, 1));
    win::NMITEMACTIVATE told{};
    told.hdr = {shelf.many.hWnd(), 0, win::NM_CLICK};
    told.iItem = 0;
    told.ptAction = {7, 8};
    win::SendMessageA(shelf.hWnd(), win::WM_NOTIFY, 0, reinterpret_cast<win::LPARAM>(&told));
    driver::moveMouse(shelf.many.hWnd(), pointOf(shelf.many, 1));
    EXPECT_THAT(noted, ElementsAre("row", "click", "up 1 105,120"));
}

TEST_F(ListViewTest, AReleaseWithoutAPressIsNotTold) {
    listenToTheMouse();
    driver::release(shelf.many.hWnd(), {40, 60});
    EXPECT_THAT(noted, ElementsAre());
}

TEST_F(ListViewTest, AReleaseFindsTheListAsTheClickLeavesIt) {
    fill(shelf.many);
    shelf.many.CheckBoxes(true);
    shelf.many.onMouseUp = [](int, int, double, double) {
        note(shelf.many.Row(2).Checked() ? "ticked" : "not ticked");
    };
    shelf.Show();
    win::POINT box = pointOf(shelf.many, 2);
    box.x = 7;
    driver::click(shelf.many.hWnd(), box);
    EXPECT_THAT(noted, ElementsAre("ticked"));
}

TEST_F(ListViewTest, AFormMayGoUnderTheMouse) {
    for (int part = 0; part < 4; ++part) {
        SCOPED_TRACE(part);
        shelf.many.onMouseDown = shelf.many.onMouseUp = MouseEvent();
        shelf.many.onItemClick = shelf.many.onClick = Event<>();
        const auto leave = [](int, int, double, double) { shelf.unload(); };
        if (part == 0) shelf.many.onMouseDown = leave;
        if (part == 1) shelf.many.onItemClick = [] { shelf.unload(); };
        if (part == 2) shelf.many.onClick = [] { shelf.unload(); };
        if (part == 3) shelf.many.onMouseUp = leave;
        fill(shelf.many);
        shelf.Show();
        const win::POINT at = pointOf(shelf.many, 1);
        driver::press(shelf.many.hWnd(), at, driver::Button::right);
        if (part > 0) driver::release(shelf.many.hWnd(), at, driver::Button::right);
        EXPECT_FALSE(shelf.loaded());
    }
    EXPECT_EQ(driver::live(), driver::Counts{});
}

// The place of its menu ----------------------------------------------------------------

TEST_F(ListViewTest, ItsMenuBelongsBelowTheRowWithTheFocus) {
    fill(shelf.many);
    shelf.Show();
    shelf.many.Row(2).Selected(true);
    const win::RECT row = placeOf(shelf.many, 2);
    EXPECT_THAT(menuPlaceOf(shelf.many), Pair(0, row.bottom));
}

TEST_F(ListViewTest, WithoutAFocusItsMenuBelongsIntoItsCorner) {
    shelf.Show();
    EXPECT_THAT(menuPlaceOf(shelf.many), Pair(0, 0));
    fill(shelf.many);
    EXPECT_THAT(menuPlaceOf(shelf.many), Pair(0, 0));
}

TEST_F(ListViewTest, ItsMenuStaysAtTheListWhenTheRowIsScrolledAway) {
    for (int row = 0; row < 100; ++row) shelf.many.Add("row");
    shelf.Show();
    win::RECT inner{};
    win::GetClientRect(shelf.many.hWnd(), &inner);
    shelf.many.Row(1).Selected(true);
    shelf.many.Row(100).EnsureVisible();
    EXPECT_THAT(menuPlaceOf(shelf.many), Pair(0, 0));
    shelf.many.Row(100).Selected(true);
    shelf.many.Row(1).EnsureVisible();
    EXPECT_THAT(menuPlaceOf(shelf.many), Pair(0, inner.bottom));
}

// Check marks --------------------------------------------------------------------------

TEST_F(ListViewTest, RowsCanBeTicked) {
    shelf.many.CheckBoxes(true);
    fill(shelf.many);
    shelf.many.Row(2).Checked(true);
    EXPECT_FALSE(shelf.many.Row(1).Checked());
    EXPECT_TRUE(shelf.many.Row(2).Checked());
    shelf.many.Row(2).Checked(false);
    EXPECT_FALSE(shelf.many.Row(2).Checked());
    EXPECT_THAT(selected(shelf.many), ElementsAre());
}

TEST_F(ListViewTest, TicksOutliveTheirBoxes) {
    fill(shelf.many);
    shelf.many.Row(2).Checked(true);
    EXPECT_TRUE(shelf.many.Row(2).Checked());
    shelf.many.CheckBoxes(true);
    EXPECT_FALSE(shelf.many.Row(1).Checked());
    EXPECT_TRUE(shelf.many.Row(2).Checked());
    shelf.many.Row(1).Checked(true);
    shelf.many.CheckBoxes(true);
    shelf.many.CheckBoxes(false);
    EXPECT_TRUE(shelf.many.Row(1).Checked());
    EXPECT_TRUE(shelf.many.Row(2).Checked());
    shelf.many.CheckBoxes(true);
    EXPECT_TRUE(shelf.many.Row(1).Checked());
    EXPECT_TRUE(shelf.many.Row(2).Checked());
    EXPECT_FALSE(shelf.many.Row(3).Checked());
}

// Columns ------------------------------------------------------------------------------

TEST_F(ListViewTest, AColumnIsAsWideAsWholePixelsAllow) {
    EXPECT_EQ(shelf.many.ColumnCount(), 2);
    EXPECT_EQ(shelf.many.ColumnWidth(1), 2400);
    EXPECT_EQ(shelf.many.ColumnWidth(2), 1500);
    shelf.many.ColumnWidth(2, 3000);
    EXPECT_EQ(shelf.many.ColumnWidth(2), 3000);
}

TEST_F(ListViewTest, AtAHighDensityAColumnHasMorePixels) {
    driver::setDpi(144);
    EXPECT_EQ(shelf.many.ColumnWidth(1), 2400);
    EXPECT_EQ(send(shelf.many, win::LVM_GETCOLUMNWIDTH, 0), 240);
    EXPECT_EQ(shelf.many.ColumnWidth(2), 1500);
}

TEST_F(ListViewTest, AColumnThatIsNotThereRaises9) {
    EXPECT_EQ(failureOf([] { shelf.many.ColumnWidth(0); }), 9);
    EXPECT_EQ(failureOf([] { shelf.many.ColumnWidth(3, 900); }), 9);
    EXPECT_EQ(failureOf([] { shelf.many.ColumnHeading(3, "x"); }), 9);
}

// Filling ------------------------------------------------------------------------------

TEST_F(ListViewTest, AListIsHiddenWhileItIsFilledAndKeepsItsFocus) {
    shelf.Show();
    shelf.many.SetFocus();
    {
        const FillingList filling(shelf.many);
        EXPECT_FALSE(shelf.many.Visible());
        fill(shelf.many);
    }
    EXPECT_TRUE(shelf.many.Visible());
    EXPECT_EQ(win::GetFocus(), shelf.many.hWnd());
}

TEST_F(ListViewTest, AnAbandonedFillingShowsTheListAgain) {
    shelf.Show();
    EXPECT_EQ(failureOf([] {
                  const FillingList filling(shelf.many);
                  throw Failure{13};
              }),
              13);
    EXPECT_TRUE(shelf.many.Visible());
}

TEST_F(ListViewTest, AFormMayGoWhileItsListIsFilled) {
    shelf.Show();
    {
        const FillingList filling(shelf.many);
        shelf.unload();
    }
    EXPECT_FALSE(shelf.loaded());
}

}  // namespace
}  // namespace magpie
