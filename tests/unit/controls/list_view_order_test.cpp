// ListView: the sort that stays in force, the one that is made once, heading clicks.
#include <algorithm>

#include "platform/api/comctl32.h"
#include "platform/api/user32.h"
#include "platform/controls/list_view.h"
#include "tests/unit/controls/controls_test.h"

namespace magpie {
namespace {

using testing::ElementsAre;

struct Rack : Form {
    Rack()
        : Form(
              {.className = "Rack", .caption = "Rack", .clientWidth = 9000, .clientHeight = 6000}) {
    }
    ListView list;
};

Rack rack;

void makeRack() {
    rack.list.create(rack, {0, 0, 6000, 3000}, "List", ListView::Selection::multiple);
    rack.list.addColumn("Title", 2400);
    rack.list.addColumn("Group", 1500);
}

// Counts the sorts that the list's window is asked for.
int sorts = 0;
win::WNDPROC listProcedure = nullptr;

win::LRESULT countSorts(win::HWND window, win::UINT message, win::WPARAM wParam,
                        win::LPARAM lParam) {
    if (message == win::LVM_SORTITEMS) ++sorts;
    return win::CallWindowProcA(listProcedure, window, message, wParam, lParam);
}

class ListViewOrder : public ControlsTest {
public:
    ListViewOrder() { rack.makeControls = makeRack; }

    static void add(const std::string& title, const std::string& group = "") {
        const ListRow row = rack.list.Add(title, "tag of " + title);
        row.SubItem(1, group);
    }
    static void addAll(std::initializer_list<const char*> titles) {
        for (const char* title : titles) add(title);
    }
    static std::vector<std::string> titles() {
        std::vector<std::string> found;
        for (int row = 1; row <= rack.list.Count(); ++row)
            found.push_back(rack.list.Row(row).Text());
        return found;
    }
    // As somebody outside sees it, from row 0 on.
    static std::string textInWindow(int row) {
        char text[100] = "";
        win::LVITEMA item{};
        item.pszText = text;
        item.cchTextMax = sizeof text;
        win::SendMessageA(rack.list.hWnd(), win::LVM_GETITEMTEXTA, static_cast<win::WPARAM>(row),
                          reinterpret_cast<win::LPARAM>(&item));
        return text;
    }
    static void beginCountingSorts() {
        listProcedure = reinterpret_cast<win::WNDPROC>(win::SetWindowLongPtrA(
            rack.list.hWnd(), win::GWLP_WNDPROC, reinterpret_cast<win::LONG_PTR>(&countSorts)));
        sorts = 0;
    }
};

// The sort that stays in force -----------------------------------------------------------

TEST_F(ListViewOrder, BeginsUnsorted) {
    EXPECT_FALSE(rack.list.Sorted());
    EXPECT_EQ(rack.list.SortKey(), 0);
    EXPECT_EQ(rack.list.SortOrder(), 0);
    addAll({"b", "a"});
    EXPECT_THAT(titles(), ElementsAre("b", "a"));
}

TEST_F(ListViewOrder, RowsAreSortedOnceItIsSet) {
    addAll({"pear", "apple", "fig"});
    rack.list.Sorted(true);
    EXPECT_TRUE(rack.list.Sorted());
    EXPECT_THAT(titles(), ElementsAre("apple", "fig", "pear"));
    EXPECT_EQ(rack.list.Row(1).Tag(), "tag of apple");
}

TEST_F(ListViewOrder, LettersCountAlikeInEitherCaseAndBytesInTheirOrder) {
    addAll({"b", "_", "A", "a1", "B2", "\xE4",
            "\xC4"
            "1",
            "Z", "[", "!"});
    rack.list.Sorted(true);
    EXPECT_THAT(titles(), ElementsAre("!", "A", "a1", "b", "B2", "Z", "[", "_", "\xE4",
                                      "\xC4"
                                      "1"));
}

TEST_F(ListViewOrder, EqualRowsStayAsTheyWereAddedInEitherDirection) {
    for (const char* group : {"1", "2", "3"}) add("Same", group);
    add("other", "4");
    add("SAME", "5");
    const auto groups = [] {
        std::string all;
        for (int row = 1; row <= rack.list.Count(); ++row) all += rack.list.Row(row).SubItem(1);
        return all;
    };
    rack.list.Sorted(true);
    EXPECT_EQ(groups(), "41235");
    rack.list.SortOrder(1);
    EXPECT_EQ(groups(), "12354");
    rack.list.SortOrder(0);
    EXPECT_EQ(groups(), "41235");
}

TEST_F(ListViewOrder, LongTextsAreComparedToTheirEnd) {
    const std::string same(5000, 'x');
    add(same + "b");
    add(same + "a");
    rack.list.Sorted(true);
    EXPECT_EQ(rack.list.Row(1).Text().back(), 'a');
}

TEST_F(ListViewOrder, AnotherColumnOrDirectionSortsAtOnce) {
    add("a", "z");
    add("b", "y");
    rack.list.Sorted(true);
    EXPECT_THAT(titles(), ElementsAre("a", "b"));
    rack.list.SortKey(1);
    EXPECT_THAT(titles(), ElementsAre("b", "a"));
    rack.list.SortOrder(1);
    EXPECT_THAT(titles(), ElementsAre("a", "b"));
}

TEST_F(ListViewOrder, WhileItIsOffColumnAndDirectionAreOnlyKept) {
    add("b", "y");
    add("a", "z");
    rack.list.SortKey(1);
    rack.list.SortOrder(1);
    EXPECT_THAT(titles(), ElementsAre("b", "a"));
    rack.list.Sorted(true);
    EXPECT_THAT(titles(), ElementsAre("a", "b"));
}

TEST_F(ListViewOrder, TurnedOffItLeavesTheRowsWhereTheyAre) {
    rack.list.Sorted(true);
    addAll({"b", "a"});
    rack.list.Sorted(false);
    EXPECT_THAT(titles(), ElementsAre("a", "b"));
    add("0");
    EXPECT_THAT(titles(), ElementsAre("a", "b", "0"));
}

TEST_F(ListViewOrder, AColumnOrDirectionThatIsNotThereRaises380) {
    for (const int column : {-1, 2})
        EXPECT_EQ(failureOf([&] { rack.list.SortKey(column); }), 380) << column;
    for (const int order : {-1, 2})
        EXPECT_EQ(failureOf([&] { rack.list.SortOrder(order); }), 380) << order;
    EXPECT_EQ(rack.list.SortKey(), 0);
    EXPECT_EQ(rack.list.SortOrder(), 0);
}

TEST_F(ListViewOrder, AReloadedFormHasAnUnsortedList) {
    rack.list.SortKey(1);
    rack.list.SortOrder(1);
    rack.list.Sorted(true);
    addAll({"b", "a"});
    rack.unload();
    EXPECT_FALSE(rack.list.Sorted());
    EXPECT_EQ(rack.list.SortKey(), 0);
    EXPECT_EQ(rack.list.SortOrder(), 0);
    addAll({"b", "a"});
    EXPECT_THAT(titles(), ElementsAre("b", "a"));
}

// Rows that come later -------------------------------------------------------------------

TEST_F(ListViewOrder, RowsAddedLaterFallIntoOrder) {
    rack.list.Sorted(true);
    addAll({"c", "a"});
    EXPECT_THAT(titles(), ElementsAre("a", "c"));
    add("b");
    EXPECT_THAT(titles(), ElementsAre("a", "b", "c"));
}

TEST_F(ListViewOrder, ARowFallsIntoOrderByATextThatItGetsAfterwards) {
    add("x", "m");
    add("y", "c");
    rack.list.SortKey(1);
    rack.list.Sorted(true);
    const ListRow row = rack.list.Add("new");
    EXPECT_THAT(titles(), ElementsAre("new", "y", "x"));
    row.SubItem(1, "g");
    EXPECT_THAT(titles(), ElementsAre("y", "new", "x"));
    EXPECT_EQ(row.Text(), "new");
    EXPECT_EQ(row.position(), 2);
}

TEST_F(ListViewOrder, ATextThatIsChangedLeavesItsRowInPlaceUntilTheNextSort) {
    rack.list.Sorted(true);
    addAll({"a", "b", "c"});
    rack.list.Row(1).Text("z");
    EXPECT_THAT(titles(), ElementsAre("z", "b", "c"));
    rack.list.Sorted(true);
    EXPECT_THAT(titles(), ElementsAre("b", "c", "z"));
}

TEST_F(ListViewOrder, EveryRowCanBeWrittenInTurnWhileItIsOn) {
    rack.list.Sorted(true);
    addAll({"a", "b", "c"});
    for (int row = 1; row <= 3; ++row) rack.list.Row(row).Text("same");
    EXPECT_THAT(titles(), ElementsAre("same", "same", "same"));
}

TEST_F(ListViewOrder, WhoeverLooksAtTheWindowSeesTheRowsInOrder) {
    rack.list.Sorted(true);
    addAll({"c", "b", "a"});
    EXPECT_EQ(textInWindow(0), "a");
    EXPECT_EQ(textInWindow(2), "c");
}

TEST_F(ListViewOrder, AFillingIsSortedOnceAtItsEnd) {
    rack.Show();
    rack.list.Sorted(true);
    beginCountingSorts();
    {
        const FillingList filling(rack.list);
        for (int row = 0; row < 50; ++row) add(std::to_string(row * 37 % 50 + 10), "x");
        EXPECT_EQ(sorts, 0);
    }
    EXPECT_EQ(sorts, 1);
    const std::vector<std::string> found = titles();
    EXPECT_TRUE(std::is_sorted(found.begin(), found.end()));
    EXPECT_EQ(sorts, 1);
}

TEST_F(ListViewOrder, AnAbandonedFillingIsInOrderToo) {
    rack.Show();
    rack.list.Sorted(true);
    EXPECT_EQ(failureOf([] {
                  const FillingList filling(rack.list);
                  addAll({"b", "a"});
                  throw Failure{13};
              }),
              13);
    EXPECT_EQ(textInWindow(0), "a");
}

TEST_F(ListViewOrder, AClearedListFillsInOrderAgain) {
    rack.list.Sorted(true);
    addAll({"b", "a"});
    rack.list.Clear();
    EXPECT_THAT(titles(), ElementsAre());
    addAll({"d", "c"});
    EXPECT_THAT(titles(), ElementsAre("c", "d"));
}

TEST_F(ListViewOrder, AFormMayGoBeforeItsRowsAreInOrder) {
    rack.list.Sorted(true);
    addAll({"b", "a"});
    rack.unload();
    EXPECT_EQ(rack.list.Count(), 0);
}

// What stays with the rows ---------------------------------------------------------------

TEST_F(ListViewOrder, SelectionFocusAndTagsGoWithTheirRows) {
    addAll({"c", "b", "a"});
    rack.list.Row(1).Selected(true);
    rack.list.Sorted(true);
    EXPECT_TRUE(rack.list.Row(3).Selected());
    EXPECT_FALSE(rack.list.Row(1).Selected());
    EXPECT_EQ(rack.list.SelectedItem().Text(), "c");
    EXPECT_EQ(rack.list.SelectedItem().Tag(), "tag of c");
}

TEST_F(ListViewOrder, ARowInHandFollowsItsRow) {
    rack.list.Sorted(true);
    addAll({"d", "b"});
    const ListRow row = rack.list.Add("c", "mine");
    add("a");
    EXPECT_EQ(row.position(), 3);
    row.Tag("yours");
    row.SubItem(1, "group");
    row.Selected(true);
    EXPECT_EQ(rack.list.Row(3).Tag(), "yours");
    EXPECT_EQ(rack.list.Row(3).SubItem(1), "group");
    EXPECT_TRUE(row.Selected());
    EXPECT_EQ(rack.list.SelectedItem().Text(), "c");
}

TEST_F(ListViewOrder, ARowThatCameLastIsScrolledIntoViewWhereItBelongs) {
    rack.Show();
    for (int row = 100; row < 200; ++row) add(std::to_string(row));
    rack.list.Row(100).EnsureVisible();
    rack.list.Sorted(true);
    rack.list.Add("0").EnsureVisible();
    win::RECT area{};
    area.left = win::LVIR_BOUNDS;
    win::SendMessageA(rack.list.hWnd(), win::LVM_GETITEMRECT, 0,
                      reinterpret_cast<win::LPARAM>(&area));
    EXPECT_GT(area.top, 0);
}

TEST_F(ListViewOrder, ARowThatHasGoneRaises9) {
    addAll({"b", "a"});
    const ListRow row = rack.list.Row(1);
    rack.list.Sorted(true);
    win::SendMessageA(rack.list.hWnd(), win::LVM_DELETEITEM, 1, 0);
    EXPECT_EQ(failureOf([&] { row.Text(); }), 9);
    EXPECT_EQ(failureOf([&] { row.Selected(true); }), 9);
    EXPECT_FALSE(rack.list.Row(1).Selected());
}

// The sort that is made once -------------------------------------------------------------

win::LPARAM sortParameter = 0;

win::INT byLastAdded(win::LPARAM upper, win::LPARAM lower, win::LPARAM sort) {
    sortParameter = sort;
    return upper < lower ? 1 : 0;
}

TEST_F(ListViewOrder, ARoutineRearrangesTheRowsOnce) {
    addAll({"b", "c", "a"});
    const ListRow row = rack.list.Row(1);
    rack.list.SortBy(byLastAdded);
    EXPECT_THAT(titles(), ElementsAre("a", "c", "b"));
    EXPECT_EQ(row.position(), 3);
    EXPECT_EQ(sortParameter, reinterpret_cast<win::LPARAM>(rack.list.hWnd()));
    EXPECT_EQ(rack.list.Row(1).Tag(), "tag of a");
    add("d");
    EXPECT_THAT(titles(), ElementsAre("a", "c", "b", "d"));
}

// Headings -------------------------------------------------------------------------------

TEST_F(ListViewOrder, AClickOnAHeadingIsToldWithItsNumber) {
    rack.list.onColumnClick = [](int heading) { note("heading " + std::to_string(heading)); };
    rack.Show();
    auto* header =
        reinterpret_cast<win::HWND>(win::SendMessageA(rack.list.hWnd(), win::LVM_GETHEADER, 0, 0));
    for (win::WPARAM column : {1, 0}) {
        win::RECT area{};
        win::SendMessageA(header, win::HDM_GETITEMRECT, column,
                          reinterpret_cast<win::LPARAM>(&area));
        driver::click(header, {(area.left + area.right) / 2, (area.top + area.bottom) / 2});
        driver::pump();
    }
    EXPECT_THAT(noted, ElementsAre("heading 2", "heading 1"));
}

}  // namespace
}  // namespace magpie
