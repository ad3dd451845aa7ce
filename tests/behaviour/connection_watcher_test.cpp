// The connection watcher: how it asks for the line, and what the line's coming and going does
// to the pad, the main window and the store.
#include "tray/connection_watcher.h"

#include <memory>

#include "core/misc.h"
#include "store/records.h"
#include "tests/behaviour/line_fixture.h"
#include "tray/pad.h"

namespace magpie {
namespace {

using ConnectionWatcher = LineFixture;

// How the line is asked for ------------------------------------------------------------

TEST_F(ConnectionWatcher, ByDialUpTheLineIsUpWhileAConnectionIs) {
    startByDialUp();
    tick();
    EXPECT_EQ(isOnline, 0);
    connect();
    tick();
    EXPECT_EQ(isOnline, -1);
    disconnect();
    tick();
    EXPECT_EQ(isOnline, 0);
    EXPECT_EQ(driver::lineQuestions().general, 0);
}

TEST_F(ConnectionWatcher, TheSystemIsAskedForItsOwnOpinion) {
    connect();
    putLineRecord(1);
    start();
    tick();
    EXPECT_EQ(isOnline, 0);
    EXPECT_EQ(lastLine, 1);
    driver::setOnline(true);
    tick();
    EXPECT_EQ(isOnline, 1);
    EXPECT_EQ(lastLine, 2);
    EXPECT_EQ(driver::lineQuestions().general, 2);
    EXPECT_EQ(driver::lineQuestions().enumerations, 0);
}

TEST_F(ConnectionWatcher, ByTheSystemsOpinionThePadIsOnTopAsWell) {
    driver::setOnline(true);
    putLineRecord(1);
    start();
    tick();
    EXPECT_TRUE(isTopMost());
    EXPECT_EQ(letter(), 'b');
}

TEST_F(ConnectionWatcher, AnyOtherSettingTakesTheLineToBeUpAndAsksNobody) {
    startByDialUp();
    for (const int check : {2, 3, 4, 255}) {
        SCOPED_TRACE(check);
        isOnline = 0;
        lastLine = 0;
        lineCheck = check;
        tick();
        EXPECT_EQ(isOnline, -1);
        EXPECT_EQ(lastLine, 2);
    }
    EXPECT_EQ(driver::lineQuestions().enumerations, 0);
    EXPECT_EQ(driver::lineQuestions().general, 0);
}

TEST_F(ConnectionWatcher, AChangedSettingCountsFromTheNextTickOn) {
    startByDialUp();
    tick();
    lineCheck = 2;
    driver::advance(3999);
    EXPECT_EQ(isOnline, 0);
    driver::advance(1);
    EXPECT_EQ(isOnline, -1);
    lineCheck = 1;
    tick();
    EXPECT_EQ(isOnline, 0);
}

TEST_F(ConnectionWatcher, ItLooksEveryFourSeconds) {
    startByDialUp();
    driver::advance(3999);
    EXPECT_EQ(driver::lineQuestions().enumerations, 0);
    driver::advance(1);
    EXPECT_EQ(driver::lineQuestions().enumerations, 1);
    driver::advance(40000);
    EXPECT_EQ(driver::lineQuestions().enumerations, 11);
}

// The table: what was seen last, and the line now ---------------------------------------

TEST_F(ConnectionWatcher, OfflineAtTheStartNothingIsFlushed) {
    startByDialUp();
    clickPad();
    tick();
    EXPECT_EQ(lastLine, 1);
    EXPECT_EQ(letter(), 'a');
    EXPECT_TRUE(Form3.Visible());
    EXPECT_TRUE(keepResident);
    EXPECT_EQ(uBlock.URLDatas().Count(), 3);
}

TEST_F(ConnectionWatcher, OnlineAtTheStartItActsAsWhenTheLineComesUp) {
    connect();
    startByDialUp(1);
    tick();
    EXPECT_EQ(lastLine, 2);
    EXPECT_TRUE(Form3.loaded());
    EXPECT_TRUE(isTopMost());
}

TEST_F(ConnectionWatcher, WhileTheLineStaysUpNothingHappens) {
    connect();
    startByDialUp();
    tick();
    ButtonState(true);
    setTopMost(Form1, 0);
    Form1.Hide();
    driver::advance(20000);
    EXPECT_EQ(letter(), 'c');
    EXPECT_FALSE(Form1.Visible());
    EXPECT_FALSE(Form3.loaded());
}

TEST_F(ConnectionWatcher, WhileTheLineStaysDownNothingHappens) {
    startByDialUp();
    tick();
    clickPad();
    ButtonState(true);
    driver::advance(20000);
    EXPECT_EQ(letter(), 'c');
    EXPECT_TRUE(Form3.Visible());
    EXPECT_TRUE(keepResident);
}

TEST_F(ConnectionWatcher, TheFallingLineUnloadsTheMainWindowAndTheNextOneFindsItFlushed) {
    connect();
    startByDialUp();
    tick();
    clickPad();
    uBlock.URLDatas().Item(1).Name("Changed");
    ++urlsDirty;
    EXPECT_EQ(letter(), 'd');

    disconnect();
    tick();
    EXPECT_FALSE(Form3.loaded());
    EXPECT_FALSE(keepResident);
    EXPECT_EQ(uBlock.URLDatas().Count(), 0);
    EXPECT_EQ(lastLine, 1);
    EXPECT_EQ(letter(), 'a');
    EXPECT_EQ(tip(), "Status: Offline");
    EXPECT_THAT(stackFile().value(), testing::HasSubstr("Changed"));

    connect(9);
    tick();
    EXPECT_FALSE(Form3.loaded());
    EXPECT_EQ(letter(), 'b');
    EXPECT_EQ(tip(), "Status: Online: Flushed");

    clickPad();
    EXPECT_EQ(letter(), 'd');
    EXPECT_EQ(tip(), "Status: Online: Ready");
    EXPECT_EQ(uBlock.URLDatas().Count(), 3);
}

TEST_F(ConnectionWatcher, TheFallingLineFlushesAHiddenMainWindowAsWell) {
    connect();
    startByDialUp();
    tick();
    clickPad();
    clickPad();
    ASSERT_FALSE(Form3.Visible());
    disconnect();
    tick();
    EXPECT_FALSE(Form3.loaded());
    EXPECT_EQ(uBlock.URLDatas().Count(), 0);
}

TEST_F(ConnectionWatcher, WithoutAMainWindowTheFallingLineLoadsNone) {
    connect();
    startByDialUp();
    tick();
    disconnect();
    tick();
    EXPECT_FALSE(Form3.loaded());
    EXPECT_EQ(lastLine, 1);
    EXPECT_EQ(letter(), 'a');
}

TEST_F(ConnectionWatcher, AFlushByHandLetsTheNextTickActAgain) {
    connect();
    startByDialUp(1);
    tick();
    keepResident = false;
    Form3.unload();
    EXPECT_EQ(lastLine, 0);
    tick();
    EXPECT_EQ(lastLine, 2);
    EXPECT_TRUE(Form3.loaded());
    EXPECT_EQ(uBlock.URLDatas().Count(), 3);
}

TEST_F(ConnectionWatcher, AlwaysOnlineTheMainWindowIsNeverFlushed) {
    connect();
    startByDialUp();
    tick();
    clickPad();
    lineCheck = 3;
    disconnect();
    driver::advance(60000);
    EXPECT_TRUE(Form3.Visible());
    EXPECT_EQ(uBlock.URLDatas().Count(), 3);
}

// The line comes up ----------------------------------------------------------------------

TEST_F(ConnectionWatcher, WithThePadOffTheLineBringsTheMainWindowUp) {
    startByDialUp(1);
    toggleActiveIcon();
    tick();
    connect();
    tick();
    EXPECT_TRUE(Form3.Visible());
    EXPECT_EQ(Form3.WindowState(), stateNormal);
    EXPECT_FALSE(Form1.Visible());
}

TEST_F(ConnectionWatcher, WithThePadOffAndNoWishForItTheMainWindowStaysAway) {
    startByDialUp();
    toggleActiveIcon();
    for (const int action : {0, 2, 255}) {
        SCOPED_TRACE(action);
        onlineAction = action;
        connect();
        tick();
        EXPECT_EQ(lastLine, 2);
        EXPECT_FALSE(Form3.loaded());
        disconnect();
        tick();
    }
}

TEST_F(ConnectionWatcher, WithThePadOnTheMainWindowIsMadeNormalAndNotShown) {
    startByDialUp(1);
    clickPad();
    clickPad();
    Form3.WindowState(stateMinimised);
    tick();
    connect();
    tick();
    EXPECT_EQ(Form3.WindowState(), stateNormal);
    EXPECT_FALSE(Form3.Visible());
    EXPECT_EQ(letter(), 'd');
}

TEST_F(ConnectionWatcher, WithThePadOnAndNoWishForItTheMainWindowStaysAsItIs) {
    startByDialUp();
    clickPad();
    clickPad();
    Form3.WindowState(stateMinimised);
    connect();
    tick();
    EXPECT_EQ(Form3.WindowState(), stateMinimised);
    EXPECT_FALSE(Form3.Visible());
}

TEST_F(ConnectionWatcher, APadForTheLineOnlyComesAndGoesWithIt) {
    startByDialUp(0, true);
    EXPECT_FALSE(Form1.Visible());
    tick();
    EXPECT_FALSE(Form1.Visible());
    connect();
    tick();
    EXPECT_TRUE(Form1.Visible());
    EXPECT_EQ(letter(), 'b');
    disconnect();
    tick();
    EXPECT_FALSE(Form1.Visible());
    connect();
    tick();
    EXPECT_TRUE(Form1.Visible());
}

TEST_F(ConnectionWatcher, AnyOtherPadStaysWhereItIs) {
    startByDialUp();
    tick();
    EXPECT_TRUE(Form1.Visible());
    Form1.Hide();
    connect();
    tick();
    EXPECT_FALSE(Form1.Visible());
}

TEST_F(ConnectionWatcher, ThePadIsOnTopWhileTheLineIsUpAndTheSettingSaysSo) {
    startByDialUp();
    tick();
    EXPECT_FALSE(isTopMost());
    connect();
    tick();
    EXPECT_TRUE(isTopMost());
    disconnect();
    tick();
    EXPECT_FALSE(isTopMost());
    iconOnTop = false;
    connect();
    tick();
    EXPECT_FALSE(isTopMost());
}

// As the Preferences can have it.
TEST_F(ConnectionWatcher, APadThatIsOffDoesNotComeWithTheLineEither) {
    startByDialUp();
    toggleActiveIcon();
    onlineOnly = true;
    connect();
    tick();
    EXPECT_EQ(lastLine, 2);
    EXPECT_FALSE(Form1.Visible());
    Form1.Show();
    disconnect();
    tick();
    EXPECT_EQ(lastLine, 1);
    EXPECT_FALSE(Form1.Visible());
}

TEST_F(ConnectionWatcher, WithThePadOffItsLevelIsLeftAlone) {
    startByDialUp();
    toggleActiveIcon();
    connect();
    tick();
    EXPECT_FALSE(isTopMost());
}

// What holds it --------------------------------------------------------------------------

TEST_F(ConnectionWatcher, WhileSomethingHoldsTheInterfaceNobodyIsAsked) {
    connect();
    startByDialUp();
    tick();
    clickPad();
    const int asked = driver::lineQuestions().states;
    disconnect();
    for (std::uint8_t holder = 1; holder <= 4; ++holder) {
        modalOpen = holder;
        driver::advance(8000);
        EXPECT_EQ(isOnline, -1);
        EXPECT_TRUE(Form3.Visible());
    }
    EXPECT_EQ(driver::lineQuestions().states, asked);
    modalOpen = 0;
    tick();
    EXPECT_EQ(isOnline, 0);
    EXPECT_FALSE(Form3.loaded());
}

TEST_F(ConnectionWatcher, ALineThatIsBackBeforeTheDialogClosesFlushesNothing) {
    connect();
    startByDialUp();
    tick();
    clickPad();
    modalOpen = 1;
    disconnect();
    driver::advance(8000);
    connect(9);
    modalOpen = 0;
    tick();
    EXPECT_TRUE(Form3.Visible());
    EXPECT_EQ(lastLine, 2);
}

TEST_F(ConnectionWatcher, ATickInsideTheMainWindowsLoadDoesNoHarm) {
    startByDialUp(1);
    tick();
    connect();
    int before = 0;
    int after = 0;
    driver::atPump(1, [&] {
        before = driver::lineQuestions().states;
        driver::advance(4000);
        after = driver::lineQuestions().states;
    });
    driver::advance(4000);
    EXPECT_EQ(after, before + 1) << "no tick came inside the load";
    EXPECT_EQ(lastLine, 2);
    EXPECT_TRUE(reallyLoaded);
    EXPECT_EQ(uBlock.URLDatas().Count(), 3);
}

// The window that the line has brought goes with it at once, not at the next look.
TEST_F(ConnectionWatcher, ALineThatFallsInsideTheMainWindowsLoadTakesItAwayInTheSameTick) {
    startByDialUp(1);
    tick();
    connect();
    bool fallen = false;
    driver::atPump(1, [&fallen] {
        disconnect();
        driver::advance(4000);
        fallen = isOnline == 0;
        EXPECT_TRUE(Form3.loaded());
    });
    tick();
    EXPECT_TRUE(fallen) << "no tick came inside the load";
    EXPECT_FALSE(Form3.loaded());
    EXPECT_EQ(uBlock.URLDatas().Count(), 0);
    EXPECT_EQ(lastLine, 1);
    EXPECT_EQ(letter(), 'a');
}

// A library that is missing --------------------------------------------------------------

// A way to ask for the line, and what it needs.
struct Need {
    int check;
    const char* library;
    const char* function;
};

class MissingLibrary : public LineFixture, public testing::WithParamInterface<Need> {
public:
    static void startWithALine() {
        connect();
        driver::setOnline(true);
        putSampleFile();
        putLineRecord(GetParam().check, 1);
        start();
    }

    static void expectFailingTicks() {
        for (int time = 0; time < 3; ++time) {
            EXPECT_THROW(Timer1_Timer(), Failure);
            tick();
            EXPECT_EQ(isOnline, 0);
            EXPECT_EQ(lastLine, 0);
            EXPECT_EQ(letter(), 'a');
            EXPECT_FALSE(Form3.loaded());
        }
    }

    static void expectMainWindowToOpen() {
        clickPad();
        EXPECT_TRUE(Form3.Visible());
        EXPECT_EQ(uBlock.URLDatas().Count(), 3);
    }
};

TEST_P(MissingLibrary, FailsEveryTickUntilItIsThereAndTheProgramGoesOn) {
    auto missing = driver::takeLibraryAway(GetParam().library);
    startWithALine();
    expectFailingTicks();
    expectMainWindowToOpen();
    missing.reset();
    tick();
    EXPECT_NE(isOnline, 0);
    EXPECT_EQ(letter(), 'd');
}

TEST_P(MissingLibrary, WithoutItsFunctionItIsAsGoodAsMissing) {
    const auto missing = driver::takeFunctionAway(GetParam().library, GetParam().function);
    startWithALine();
    expectFailingTicks();
    expectMainWindowToOpen();
}

INSTANTIATE_TEST_SUITE_P(Needs, MissingLibrary,
                         testing::Values(Need{0, "rasapi32.dll", "RasEnumConnectionsA"},
                                         Need{0, "rasapi32.dll", "RasGetConnectStatusA"},
                                         Need{1, "wininet.dll", "InternetGetConnectedState"}),
                         [](const auto& each) { return std::string(each.param.function); });

TEST_F(ConnectionWatcher, ALibraryThatGoesMissingLeavesTheLineAsItWasSeen) {
    putSampleFile();
    putLineRecord(2);
    start();
    tick();
    clickPad();
    const auto gone = driver::takeLibraryAway("rasapi32.dll");
    lineCheck = 0;
    driver::advance(12000);
    EXPECT_EQ(isOnline, -1);
    EXPECT_EQ(lastLine, 2);
    EXPECT_TRUE(Form3.Visible());
}

TEST_F(ConnectionWatcher, TheOtherLibraryIsNotNeeded) {
    const auto noRas = driver::takeLibraryAway("rasapi32.dll");
    const auto noInternet = driver::takeLibraryAway("wininet.dll");
    putLineRecord(3);
    start();
    tick();
    EXPECT_EQ(isOnline, -1);
    EXPECT_EQ(letter(), 'b');
}

TEST_F(ConnectionWatcher, ALibraryIsLoadedOnce) {
    startByDialUp();
    tick();
    driver::failCall("LoadLibraryExA", 1, win::ERROR_MOD_NOT_FOUND);
    connect();
    tick();
    EXPECT_EQ(isOnline, -1);
    lineCheck = 1;  // the fault waits for the other one
    tick();
    EXPECT_EQ(isOnline, -1);
}

}  // namespace
}  // namespace magpie
