// PictureBox: the mouse on it, its picture, controls in it.
#include "platform/controls/picture_box.h"

#include "platform/api/user32.h"
#include "platform/controls/basic_controls.h"
#include "platform/memory/driver_system.h"
#include "tests/unit/controls/controls_test.h"

namespace magpie {
namespace {

using testing::ElementsAre;

struct Wall : Form {
    Wall()
        : Form(
              {.className = "Wall", .caption = "Wall", .clientWidth = 6000, .clientHeight = 4500}) {
    }
    PictureBox box;
    PictureBox area;
    Button inner;
};

Wall wall;

void noteMouse(const char* what, int button, int shift, double x, double y) {
    note(std::string(what) + " " + std::to_string(button) + " " + std::to_string(shift) + " " +
         std::to_string(static_cast<int>(x)) + " " + std::to_string(static_cast<int>(y)));
}

class PictureBoxTest : public ControlsTest {
public:
    PictureBoxTest() {
        wall.makeControls = [] {
            wall.box.createForPicture(wall, {0, 0, 1500, 1500});
            wall.area.create(wall, {0, 3000, 3000, 1500});
            wall.inner.create(wall.area, {0, 0, 900, 375}, "Inner");
        };
        wall.box.onClick = [] { note("click"); };
        wall.box.onMouseDown = [](int button, int shift, double x, double y) {
            noteMouse("down", button, shift, x, y);
        };
        wall.box.onMouseUp = [](int button, int shift, double x, double y) {
            noteMouse("up", button, shift, x, y);
        };
        driver::putFile("C:\\p\\good.bnk", bitmap());
    }
    ~PictureBoxTest() override { wall.discard(); }

    // The smallest true bitmap file: one pixel, 24 bits.
    static std::string bitmap() {
        std::string bytes(58, '\0');
        bytes.replace(0, 2, "BM");
        bytes[2] = 58;
        bytes[10] = 54;
        bytes[14] = 40;
        bytes[18] = bytes[22] = bytes[26] = 1;
        bytes[28] = 24;
        return bytes;
    }
};

// The mouse ----------------------------------------------------------------------------

TEST_F(PictureBoxTest, APressAndAReleaseOfAnyButtonAreAClick) {
    wall.Show();
    driver::click(wall.box.hWnd(), {10, 20});
    driver::click(wall.box.hWnd(), {10, 20}, driver::Button::right);
    driver::click(wall.box.hWnd(), {10, 20}, driver::Button::middle);
    EXPECT_THAT(noted, ElementsAre("down 1 0 150 300", "up 1 0 150 300", "click",  //
                                   "down 2 0 150 300", "up 2 0 150 300", "click",  //
                                   "down 4 0 150 300", "up 4 0 150 300", "click"));
}

TEST_F(PictureBoxTest, AReleaseOutsideIsNoClickAndIsToldAllTheSame) {
    wall.Show();
    driver::press(wall.box.hWnd(), {10, 20});
    driver::release(wall.hWnd(), {200, 150});
    EXPECT_THAT(noted, ElementsAre("down 1 0 150 300", "up 1 0 3000 2250"));
    EXPECT_EQ(win::GetCapture(), nullptr);
}

TEST_F(PictureBoxTest, AReleaseWithoutAPressIsNoClick) {
    wall.Show();
    driver::press(wall.hWnd(), {200, 150});
    driver::release(wall.box.hWnd(), {10, 20});
    EXPECT_THAT(noted, ElementsAre("up 1 0 150 300"));
}

TEST_F(PictureBoxTest, APressWhoseCaptureIsTakenAwayIsNoClick) {
    wall.Show();
    driver::press(wall.box.hWnd(), {10, 20});
    win::ReleaseCapture();
    driver::release(wall.box.hWnd(), {10, 20});
    EXPECT_THAT(noted, ElementsAre("down 1 0 150 300", "up 1 0 150 300"));
}

TEST_F(PictureBoxTest, APressThatDragsTheFormAwayIsNoClick) {
    wall.box.onMouseDown = [](int, int, double, double) {
        win::ReleaseCapture();
        win::SendMessageA(wall.hWnd(), win::WM_NCLBUTTONDOWN,
                          static_cast<win::WPARAM>(win::HTCAPTION), 0);
    };
    wall.Show();
    driver::dragTo(150, 120);
    driver::click(wall.box.hWnd(), {10, 20});
    EXPECT_EQ(wall.Left(), 2250);
    EXPECT_THAT(noted, testing::Not(testing::Contains("click")));
}

TEST_F(PictureBoxTest, TheSecondPressOfADoubleClickIsAPress) {
    wall.Show();
    driver::doubleClick(wall.box.hWnd(), {10, 20});
    EXPECT_EQ(std::count(noted.begin(), noted.end(), "click"), 2);
    EXPECT_EQ(std::count(noted.begin(), noted.end(), "down 1 0 150 300"), 2);
}

TEST_F(PictureBoxTest, AMoveIsToldWithTheShifts) {
    wall.box.onMouseMove = [](int button, int shift, double x, double y) {
        noteMouse("move", button, shift, x, y);
    };
    wall.Show();
    driver::hold(win::VK_SHIFT, true);
    driver::moveMouse(wall.box.hWnd(), {10, 20});
    EXPECT_THAT(noted, ElementsAre("move 0 1 150 300"));
}

TEST_F(PictureBoxTest, AtAHighDensityPlacesAreTwipsAllTheSame) {
    driver::setDpi(144);
    wall.Show();
    driver::click(wall.box.hWnd(), {140, 20});
    EXPECT_THAT(noted, ElementsAre("down 1 0 1400 200", "up 1 0 1400 200", "click"));
}

TEST_F(PictureBoxTest, AClickMayUnloadTheForm) {
    wall.box.onClick = [] { wall.unload(); };
    wall.Show();
    driver::click(wall.box.hWnd(), {10, 20});
    EXPECT_FALSE(wall.loaded());
}

TEST_F(PictureBoxTest, AReleaseMayUnloadTheForm) {
    wall.box.onMouseUp = [](int, int, double, double) { wall.unload(); };
    wall.Show();
    driver::click(wall.box.hWnd(), {10, 20});
    EXPECT_FALSE(wall.loaded());
}

TEST_F(PictureBoxTest, ThePointerOverItIsItsOwn) {
    wall.Show();
    driver::moveMouse(wall.box.hWnd(), {10, 20});
    EXPECT_EQ(driver::cursor(), win::IDC_ARROW_NUMBER);
    wall.box.MousePointer(Pointer::sizeAll);
    driver::moveMouse(wall.box.hWnd(), {11, 20});
    EXPECT_EQ(driver::cursor(), win::IDC_SIZEALL_NUMBER);
    Screen.MousePointer(Pointer::hourglass);
    driver::moveMouse(wall.box.hWnd(), {12, 20});
    EXPECT_EQ(driver::cursor(), win::IDC_WAIT_NUMBER);
    Screen.MousePointer(Pointer::standard);
    driver::moveMouse(wall.box.hWnd(), {13, 20});
    EXPECT_EQ(driver::cursor(), win::IDC_SIZEALL_NUMBER);
    driver::moveMouse(wall.hWnd(), {200, 150});
    EXPECT_EQ(driver::cursor(), win::IDC_ARROW_NUMBER);
}

// The picture --------------------------------------------------------------------------

TEST_F(PictureBoxTest, ShowsAPictureAndLetsItGo) {
    wall.load();
    const driver::Counts before = driver::live();
    EXPECT_FALSE(wall.box.hasPicture());
    wall.box.showPicture(LoadPicture("C:\\p\\good.bnk"));
    EXPECT_TRUE(wall.box.hasPicture());
    EXPECT_EQ(driver::live().gdiObjects, before.gdiObjects + 1);
    wall.box.showPicture(LoadPicture("C:\\p\\good.bnk", 20, 20));
    EXPECT_EQ(driver::live().gdiObjects, before.gdiObjects + 1);
    wall.box.showPicture({});
    EXPECT_FALSE(wall.box.hasPicture());
    EXPECT_EQ(driver::live(), before);
}

TEST_F(PictureBoxTest, APictureGoesWithItsForm) {
    wall.box.showPicture(LoadPicture("C:\\p\\good.bnk"));
    wall.unload();
    EXPECT_EQ(driver::live(), driver::Counts{});
    EXPECT_FALSE(wall.box.hasPicture());
}

TEST_F(PictureBoxTest, AFileThatIsNotThereRaises53AndOneThatIsNoPicture481) {
    driver::putFile("C:\\p\\bad.bnk", "not a picture");
    driver::putFile("C:\\p\\empty.bnk", "");
    EXPECT_EQ(failureOf([] { LoadPicture("C:\\p\\none.bnk"); }), 53);
    EXPECT_EQ(failureOf([] { LoadPicture("C:\\p\\bad.bnk"); }), 481);
    EXPECT_EQ(failureOf([] { LoadPicture("C:\\p\\empty.bnk"); }), 481);
}

TEST_F(PictureBoxTest, APictureThatCannotBeReadLeavesTheOldOne) {
    wall.box.showPicture(LoadPicture("C:\\p\\good.bnk"));
    EXPECT_EQ(failureOf([] { wall.box.showPicture(LoadPicture("C:\\p\\none.bnk")); }), 53);
    EXPECT_TRUE(wall.box.hasPicture());
}

// Controls in it -----------------------------------------------------------------------

TEST_F(PictureBoxTest, AControlInItIsHeard) {
    wall.inner.onClick = [] { note("inner"); };
    wall.Show();
    driver::click(wall.inner.hWnd(), {5, 5});
    EXPECT_THAT(noted, ElementsAre("inner"));
}

TEST_F(PictureBoxTest, AControlInItIsAStopForTheFocus) {
    wall.Show();
    EXPECT_EQ(win::GetFocus(), wall.inner.hWnd());
    wall.area.Visible(false);
    EXPECT_FALSE(win::IsWindowVisible(wall.inner.hWnd()));
    EXPECT_TRUE(wall.inner.Visible());
}

}  // namespace
}  // namespace magpie
