// What the mouse does on the pad.
#include "store/records.h"
#include "tests/behaviour/pad_fixture.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;
using driver::Button;

using PadMouse = PadFixture;

// The strip ----------------------------------------------------------------------------

TEST_F(PadMouse, TheStripDragsThePadAndKeepsItsPlace) {
    startOnline();
    driver::dragTo(111, 222);
    press(strip);
    EXPECT_EQ(Form1.Left(), 111 * 15);
    EXPECT_EQ(Form1.Top(), 222 * 15);
    EXPECT_EQ(iconLeft, 111 * 15);
    EXPECT_EQ(iconTop, 222 * 15);
    EXPECT_EQ(letter(), 'b');
    EXPECT_FALSE(Form3.loaded());
}

TEST_F(PadMouse, APressOnTheStripNeverShowsTheHeldPadAndIsNoClick) {
    startOnline();
    click(face);
    driver::dragTo(111, 222);
    press(strip);
    EXPECT_EQ(letter(), 'd');
    release(strip);
    EXPECT_EQ(letter(), 'd');
    EXPECT_TRUE(Form3.Visible());
}

TEST_F(PadMouse, APlaceBeyondTheScreenIsKeptAsItIs) {
    startOnline();
    driver::dragTo(-20, -10);
    press(strip);
    EXPECT_EQ(iconLeft, -300);
    EXPECT_EQ(iconTop, -150);
}

TEST_F(PadMouse, TheDraggedPlaceIsThatOfTheNextStart) {
    startOnline();
    driver::dragTo(111, 222);
    press(strip);
    Form1.unload();
    EXPECT_EQ(record("ID"), "2 3330 1665 0 1 0 True False");
    activeIcon = false;
    start();
    EXPECT_EQ(Form1.Top(), 3330);
    EXPECT_EQ(Form1.Left(), 1665);
}

TEST_F(PadMouse, TheFormItselfDragsWithoutKeepingItsPlace) {
    startOnline();
    iconLeft = 15;
    iconTop = 30;
    driver::dragTo(111, 222);
    win::SendMessageA(Form1.hWnd(), win::WM_LBUTTONDOWN, win::MK_LBUTTON, 0);
    EXPECT_EQ(Form1.Left(), 111 * 15);
    EXPECT_EQ(iconLeft, 15);
    EXPECT_EQ(iconTop, 30);
    win::SendMessageA(Form1.hWnd(), win::WM_RBUTTONDOWN, win::MK_RBUTTON, 0);
    EXPECT_EQ(Form1.Left(), 111 * 15);
}

TEST_F(PadMouse, ThePointerTellsTheStripFromTheFace) {
    startOnline();
    driver::moveMouse(Form1.Picture1.hWnd(), strip);
    EXPECT_EQ(driver::cursor(), win::IDC_SIZEALL_NUMBER);
    driver::moveMouse(Form1.Picture1.hWnd(), face);
    EXPECT_EQ(driver::cursor(), win::IDC_ARROW_NUMBER);
    driver::moveMouse(Form1.Picture1.hWnd(), {22, 8});
    EXPECT_EQ(driver::cursor(), win::IDC_SIZEALL_NUMBER);
    driver::moveMouse(Form1.Picture1.hWnd(), {21, 8});
    EXPECT_EQ(driver::cursor(), win::IDC_ARROW_NUMBER);
}

// Clicks -------------------------------------------------------------------------------

TEST_F(PadMouse, AClickOnAFlushedPadMakesTheMainWindow) {
    startOnline();
    EXPECT_EQ(letter(), 'b');
    click(face);
    EXPECT_TRUE(Form3.Visible());
    EXPECT_EQ(Form3.WindowState(), stateNormal);
    EXPECT_EQ(uBlock.URLDatas().Count(), 3);
    EXPECT_EQ(letter(), 'd');
}

TEST_F(PadMouse, AClickHidesAVisibleMainWindowAndBringsAHiddenOneBack) {
    startOnline();
    click(face);
    urlsDirty = 5;
    click(face);
    EXPECT_TRUE(Form3.loaded());
    EXPECT_FALSE(Form3.Visible());
    click(face);
    EXPECT_TRUE(Form3.Visible());
    EXPECT_EQ(Form3.WindowState(), stateNormal);
    EXPECT_EQ(urlsDirty, 5);
}

TEST_F(PadMouse, AClickRestoresAMinimisedMainWindow) {
    startOnline();
    click(face);
    Form3.WindowState(stateMinimised);
    EXPECT_FALSE(Form3.Visible());
    click(face);
    EXPECT_TRUE(Form3.Visible());
    EXPECT_EQ(Form3.WindowState(), stateNormal);
}

TEST_F(PadMouse, APressThatIsReleasedElsewhereIsNoClick) {
    startOnline();
    press(face);
    release({100, 100});
    EXPECT_EQ(letter(), 'b');
    EXPECT_FALSE(Form3.loaded());
}

TEST_F(PadMouse, AMiddleClickLeavesTheMainWindowAsItWas) {
    startOnline();
    click(face, Button::middle);
    EXPECT_FALSE(Form3.loaded());
    EXPECT_EQ(letter(), 'b');
    click(face);
    click(face, Button::middle);
    EXPECT_TRUE(Form3.Visible());
    click(face);
    click(face, Button::middle);
    EXPECT_FALSE(Form3.Visible());
    EXPECT_TRUE(Form1.middleClick);
}

TEST_F(PadMouse, AMiddlePressShowsNothing) {
    startOnline();
    press(face, Button::middle);
    EXPECT_EQ(letter(), 'b');
    release(face, Button::middle);
    press(strip, Button::middle);
    EXPECT_EQ(letter(), 'b');
}

TEST_F(PadMouse, ALeftClickAfterAMiddleOneCountsAgain) {
    startOnline();
    click(face, Button::middle);
    click(face);
    EXPECT_FALSE(Form1.middleClick);
    EXPECT_TRUE(Form3.Visible());
}

TEST_F(PadMouse, ARightPressShowsTheTrayMenuOnFaceAndStrip) {
    startOnline();
    for (const win::POINT at : {face, strip}) {
        int lines = 0;
        driver::onPopup([&lines](const driver::Popup& popup) {
            lines = static_cast<int>(popup.menu.lines.size());
            EXPECT_EQ(popup.owner, Form1.hWnd());
            return win::UINT{0};
        });
        press(at, Button::right);
        EXPECT_EQ(lines, 12);
        EXPECT_EQ(letter(), 'b');
    }
    EXPECT_FALSE(Form3.loaded());
}

TEST_F(PadMouse, TheMenuOfThePadOpensTheMainWindow) {
    startOnline();
    driver::choose("Restore");
    press(face, Button::right);
    EXPECT_TRUE(Form3.Visible());
}

TEST_F(PadMouse, TheMenuOfThePadMayEndTheProgramUnderThePress) {
    startOnline();
    driver::choose("Unload");
    press(face, Button::right);
    EXPECT_FALSE(Form1.loaded());
}

}  // namespace
}  // namespace magpie
