// The double click on a list view.
#include "platform/controls/list_view.h"
#include "tests/unit/controls/controls_test.h"

namespace magpie {
namespace {

using driver::Button;
using testing::ElementsAre;

struct Shelf : Form {
    Shelf()
        : Form({.className = "Shelf",
                .caption = "Shelf",
                .clientWidth = 6000,
                .clientHeight = 4500}) {}
    ListView list;
};

Shelf shelf;

class DoubleClick : public ControlsTest {
public:
    DoubleClick() {
        shelf.makeControls = [] {
            shelf.list.create(shelf, {0, 0, 6000, 4500}, "List", ListView::Selection::multiple);
            shelf.list.addColumn("Title", 3000);
            for (const char* title : {"a", "b"}) shelf.list.Add(title);
        };
        shelf.list.onClick = [] { note("click"); };
        shelf.list.onDblClick = [] { note("double"); };
        shelf.list.onMouseUp = [](int, int, double, double) { note("up"); };
        shelf.Show();
    }
    ~DoubleClick() override { shelf.discard(); }

    static void on(win::POINT at, Button button = Button::left) {
        driver::doubleClick(shelf.list.hWnd(), at, button);
    }
    static constexpr win::POINT firstRow{30, 24};
    static constexpr win::POINT noRow{30, 200};
};

TEST_F(DoubleClick, ItIsToldAtTheSecondPress) {
    on(firstRow);
    EXPECT_THAT(noted, ElementsAre("click", "up", "double", "up"));
}

TEST_F(DoubleClick, BesideTheRowsItIsOneAllTheSame) {
    on(noRow);
    EXPECT_THAT(noted, ElementsAre("click", "up", "double", "up"));
}

TEST_F(DoubleClick, OnlyTheLeftButtonMakesOne) {
    on(firstRow, Button::middle);
    EXPECT_THAT(noted, ElementsAre("up", "up"));
    noted.clear();
    on(firstRow, Button::right);
    EXPECT_THAT(noted, testing::Not(testing::Contains("double")));
}

TEST_F(DoubleClick, TheFormMayGoAtIt) {
    shelf.list.onDblClick = [] { shelf.unload(); };
    const win::HWND list = shelf.list.hWnd();
    driver::click(list, firstRow);
    win::SendMessageA(list, win::WM_LBUTTONDBLCLK, 0, win::makeLParam(firstRow.x, firstRow.y));
    EXPECT_FALSE(shelf.loaded());
    EXPECT_EQ(driver::live(), driver::Counts{});
}

TEST_F(DoubleClick, TheListMayBeEmptiedAtIt) {
    shelf.list.onDblClick = [] { shelf.list.Clear(); };
    on(firstRow);
    EXPECT_EQ(shelf.list.Count(), 0);
}

}  // namespace
}  // namespace magpie
