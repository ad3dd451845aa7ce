// The floating pad: its pictures, tips and size, and turning it on and off.
#include "tray/pad.h"

#include "tests/behaviour/pad_fixture.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;

using Pad = PadFixture;

// Pictures and tips --------------------------------------------------------------------

TEST_F(Pad, OfflineItSaysSo) {
    start();
    EXPECT_EQ(driver::pictureOf(Form1.Picture1.hWnd()), "C:\\Magpie\\uBank\\ia.bnk");
    EXPECT_EQ(tip(), "Status: Offline");
    driver::advance(4000);
    EXPECT_EQ(letter(), 'a');
    clickPad();
    EXPECT_EQ(letter(), 'a');
    EXPECT_EQ(tip(), "Status: Offline");
}

TEST_F(Pad, OnlineWithoutAMainWindowItIsFlushed) {
    startOnline();
    EXPECT_EQ(driver::pictureOf(Form1.Picture1.hWnd()), "C:\\Magpie\\uBank\\ib.bnk");
    EXPECT_EQ(tip(), "Status: Online: Flushed");
}

TEST_F(Pad, OnlineWithAMainWindowItIsReady) {
    startOnline();
    click(face);
    EXPECT_EQ(driver::pictureOf(Form1.Picture1.hWnd()), "C:\\Magpie\\uBank\\id.bnk");
    EXPECT_EQ(tip(), "Status: Online: Ready");
}

TEST_F(Pad, AnyLineThatIsNotZeroIsOnline) {
    start();
    for (int line : {-1, 1, 32767}) {
        isOnline = static_cast<std::int16_t>(line);
        ButtonState(false);
        EXPECT_EQ(letter(), 'b');
    }
    isOnline = 0;
    ButtonState(false);
    EXPECT_EQ(letter(), 'a');
}

TEST_F(Pad, HeldDownItShowsThatAndKeepsItsTip) {
    startOnline();
    press(face);
    EXPECT_EQ(driver::pictureOf(Form1.Picture1.hWnd()), "C:\\Magpie\\uBank\\ic.bnk");
    EXPECT_EQ(tip(), "Status: Online: Flushed");
}

TEST_F(Pad, APressAndAReleaseShowThePressAndThenTheState) {
    startOnline();
    click(face);
    press(face);
    EXPECT_EQ(letter(), 'c');
    EXPECT_EQ(tip(), "Status: Online: Ready");
    release(face);
    EXPECT_EQ(letter(), 'd');
}

TEST_F(Pad, AFlushShowsAtTheNextDrawing) {
    startOnline();
    click(face);
    keepResident = false;
    Form3.unload();
    EXPECT_EQ(letter(), 'd');
    ButtonState(false);
    EXPECT_EQ(letter(), 'b');
    EXPECT_EQ(tip(), "Status: Online: Flushed");
}

TEST_F(Pad, TheMainWindowsLoadDrawsThePadOnlyWhileItIsOn) {
    startOnline();
    toggleActiveIcon();
    EXPECT_EQ(letter(), '-');
    Form3.Show();
    EXPECT_EQ(letter(), '-');
}

TEST_F(Pad, ManyDrawingsLeaveOnePictureBehind) {
    startOnline();
    const driver::Counts before = driver::live();
    for (int time = 0; time < 50; ++time) {
        ButtonState(true);
        ButtonState(false);
    }
    EXPECT_EQ(driver::live(), before);
}

// A picture that can't be read ---------------------------------------------------------

TEST_F(Pad, AMissingPictureKeepsTheOldOne) {
    startOnline();
    driver::removeFile(file('c'));
    press(face);
    EXPECT_EQ(letter(), 'b');
    driver::removeFile(file('d'));
    release(face);
    EXPECT_EQ(letter(), 'b');
    EXPECT_TRUE(Form3.Visible());
    EXPECT_TRUE(reallyLoaded);
}

TEST_F(Pad, APictureThatIsNoneKeepsTheOldOne) {
    startOnline();
    for (const std::string& bytes : {std::string(), std::string("BM"), std::string(4096, 'x')}) {
        SCOPED_TRACE(bytes.size());
        driver::putFile(file('c'), bytes);
        press(face);
        EXPECT_EQ(letter(), 'b');
        release({-5, 8});
        EXPECT_EQ(letter(), 'b');
    }
}

TEST_F(Pad, APictureThatAnotherProgramHoldsKeepsTheOldOne) {
    startOnline();
    const auto held = driver::lockFile(file('c'));
    press(face);
    EXPECT_EQ(letter(), 'b');
}

TEST_F(Pad, WithoutItsPicturesThePadWorksAllTheSame) {
    for (char which : {'a', 'b', 'c', 'd'}) driver::removeFile(file(which));
    startOnline();
    EXPECT_EQ(letter(), '-');
    click(face);
    EXPECT_TRUE(Form3.Visible());
    click(face);
    EXPECT_FALSE(Form3.Visible());
    EXPECT_TRUE(driver::messageBoxes().empty());
}

// Size ---------------------------------------------------------------------------------

TEST_F(Pad, ItIsThirtyTwoPixelsWideAtEveryDensity) {
    const struct {
        int dpi;
        double twips;
    } cases[] = {{96, 480}, {120, 384}, {144, 320}, {192, 240}};
    for (const auto& each : cases) {
        SCOPED_TRACE(each.dpi);
        driver::setDpi(each.dpi);
        Screen = {};
        activeIcon = false;
        start();
        EXPECT_EQ(Form1.Width(), each.twips);
        EXPECT_EQ(Form1.Height(), each.twips);
        EXPECT_EQ(Form1.Picture1.Width(), each.twips);
        EXPECT_EQ(Form1.Picture1.Height(), each.twips);
        win::RECT inner{};
        win::GetClientRect(Form1.Picture1.hWnd(), &inner);
        EXPECT_EQ(inner.right, 32);
        EXPECT_EQ(inner.bottom, 32);
        Form1.discard();
    }
}

TEST_F(Pad, TheStripStartsAt324Twips) {
    expectStripFrom(22);
}

TEST_F(Pad, TheStripStartsAt324TwipsAtAnotherDensityAsWell) {
    driver::setDpi(120);
    expectStripFrom(28);
}

TEST_F(Pad, AtADensityOf144ThePadEndsBeforeTheStrip) {
    driver::setDpi(144);
    startOnline();
    press({31, 8});
    EXPECT_EQ(letter(), 'c');
}

// On and off ---------------------------------------------------------------------------

TEST_F(Pad, TurnedOffItIsHiddenAndWithoutAPicture) {
    startOnline();
    toggleActiveIcon();
    EXPECT_FALSE(activeIcon);
    EXPECT_FALSE(Form1.Visible());
    EXPECT_FALSE(Form1.Picture1.hasPicture());
    EXPECT_EQ(letter(), '-');
}

TEST_F(Pad, TurnedOnAgainItShowsItsState) {
    startOnline();
    toggleActiveIcon();
    toggleActiveIcon();
    EXPECT_TRUE(activeIcon);
    EXPECT_TRUE(Form1.Visible());
    EXPECT_EQ(letter(), 'b');
    EXPECT_TRUE(isTopMost());
}

TEST_F(Pad, ItIsOnTopOnlyWithItsSettingAndTheLine) {
    startOnline();
    EXPECT_TRUE(isTopMost());
    iconOnTop = false;
    toggleActiveIcon();
    EXPECT_FALSE(isTopMost());
    toggleActiveIcon();
    EXPECT_FALSE(isTopMost());
    toggleActiveIcon();
    iconOnTop = true;
    isOnline = 0;
    toggleActiveIcon();
    EXPECT_FALSE(isTopMost());
    EXPECT_EQ(letter(), 'a');
}

TEST_F(Pad, TurnedOnWithoutAPictureItShowsAllTheSame) {
    startOnline();
    toggleActiveIcon();
    driver::removeFile(file('b'));
    try {
        toggleActiveIcon();
        ADD_FAILURE() << "the missing picture goes to the caller";
    } catch (const Failure& failed) {
        EXPECT_EQ(failed.number, failure::fileNotFound);
    }
    EXPECT_TRUE(activeIcon);
    EXPECT_TRUE(Form1.Visible());
}

}  // namespace
}  // namespace magpie
