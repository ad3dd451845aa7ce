// The dial-up test: which connection it watches, and what it remembers of it.
#include "tests/behaviour/line_fixture.h"
#include "tray/ras.h"

namespace magpie {
namespace {

using DialUp = LineFixture;

TEST_F(DialUp, WithoutAConnectionThereIsNoLine) {
    EXPECT_EQ(rasConnected(), 0);
    EXPECT_EQ(rasOnline, 0);
    EXPECT_EQ(hRasConn, 0);
    EXPECT_EQ(driver::lineQuestions().enumerations, 1);
    EXPECT_EQ(driver::lineQuestions().states, 0);
}

TEST_F(DialUp, AConnectionThatIsUpIsTheLine) {
    connect(7);
    EXPECT_EQ(rasConnected(), -1);
    EXPECT_EQ(rasOnline, -1);
    EXPECT_EQ(hRasConn, 7);
}

TEST_F(DialUp, AConnectionOnItsWayIsNone) {
    for (const win::DWORD state : {win::DWORD{0}, dialing, win::RASCS_Disconnected}) {
        driver::setDialUp({{7, state}});
        EXPECT_EQ(rasConnected(), 0) << state;
        EXPECT_EQ(hRasConn, 7);
    }
    connect(7);
    EXPECT_EQ(rasConnected(), -1);
}

TEST_F(DialUp, AKnownConnectionIsNotLookedForAgainUntilItReportsItsEnd) {
    connect(7);
    rasConnected();
    for (int look = 0; look < 5; ++look) EXPECT_EQ(rasConnected(), -1);
    EXPECT_EQ(driver::lineQuestions().enumerations, 1);
    EXPECT_EQ(driver::lineQuestions().states, 6);

    driver::setDialUp({{7, win::RASCS_Disconnected}});
    EXPECT_EQ(rasConnected(), 0);
    EXPECT_EQ(driver::lineQuestions().enumerations, 2);
}

TEST_F(DialUp, AKnownConnectionInAnyOtherStateCounts) {
    connect(7);
    rasConnected();
    for (const win::DWORD state : {dialing, win::DWORD{0x1000}, win::DWORD{0x2002}}) {
        driver::setDialUp({{7, state}});
        EXPECT_EQ(rasConnected(), -1) << state;
    }
    EXPECT_EQ(driver::lineQuestions().enumerations, 1);
}

TEST_F(DialUp, AnotherConnectionTakesThePlaceOfTheOneThatEnded) {
    connect(7);
    rasConnected();
    connect(8);
    EXPECT_EQ(rasConnected(), -1);
    EXPECT_EQ(hRasConn, 8);
}

TEST_F(DialUp, TheEndedConnectionStaysTheOneUnderWatch) {
    connect(7);
    rasConnected();
    disconnect();
    EXPECT_EQ(rasConnected(), 0);
    EXPECT_EQ(hRasConn, 7);
}

TEST_F(DialUp, OfTwoConnectionsNoneIsFoundForWantOfRoom) {
    driver::setDialUp({{7, win::RASCS_Connected}, {8, win::RASCS_Connected}});
    EXPECT_EQ(rasConnected(), 0);
    // The record was read as it stood all the same, and asked for.
    EXPECT_EQ(hRasConn, 0);
    EXPECT_EQ(driver::lineQuestions().states, 1);
}

TEST_F(DialUp, ASecondConnectionDoesNotHideTheKnownOne) {
    connect(7);
    rasConnected();
    driver::setDialUp({{8, win::RASCS_Connected}, {7, win::RASCS_Connected}});
    EXPECT_EQ(rasConnected(), -1);
    EXPECT_EQ(hRasConn, 7);
}

TEST_F(DialUp, AHandleOfAllBitsIsAHandle) {
    connect(0xFFFFFFFF);
    EXPECT_EQ(rasConnected(), -1);
    EXPECT_EQ(hRasConn, -1);
    EXPECT_EQ(rasStatus(), 0x2000);
}

// Failing calls ------------------------------------------------------------------------

TEST_F(DialUp, AnEnumerationThatFailsReadsAsNoConnection) {
    connect(7);
    driver::failCall("RasEnumConnectionsA", 1, win::ERROR_ACCESS_DENIED);
    EXPECT_EQ(rasConnected(), 0);
    EXPECT_EQ(rasConnected(), -1);
}

TEST_F(DialUp, AStateThatCannotBeHadReadsAsNoConnection) {
    connect(7);
    driver::failCall("RasGetConnectStatusA", 1, win::ERROR_ACCESS_DENIED);
    EXPECT_EQ(rasConnected(), 0);
    EXPECT_EQ(rasConnected(), -1);
}

TEST_F(DialUp, AKnownConnectionWhoseStateCannotBeHadIsLookedForAgain) {
    connect(7);
    rasConnected();
    driver::failCall("RasGetConnectStatusA", 1, win::ERROR_ACCESS_DENIED);
    EXPECT_EQ(rasConnected(), -1);
    EXPECT_EQ(driver::lineQuestions().enumerations, 2);
}

TEST_F(DialUp, TheStateIsZeroWhereItCannotBeHad) {
    connect(7);
    hRasConn = 6;
    EXPECT_EQ(rasStatus(), 0);
    hRasConn = 7;
    EXPECT_EQ(rasStatus(), 0x2000);
    driver::failCall("RasGetConnectStatusA", 1, win::ERROR_ACCESS_DENIED);
    EXPECT_EQ(rasStatus(), 0);
}

// Sizes --------------------------------------------------------------------------------

TEST_F(DialUp, ThePlatformDecidesOnTheSizeOfTheRecords) {
    connect(7);
    for (const std::int32_t platform : {0, 1, 2, 3}) {
        SCOPED_TRACE(platform);
        osPlatform = platform;
        rasOnline = 0;
        EXPECT_EQ(rasConnected(), -1);
        EXPECT_EQ(driver::lineQuestions().connectionSize, platform == 2 ? 32u : 412u);
        EXPECT_EQ(driver::lineQuestions().offeredBytes, platform == 2 ? 32u : 412u);
        EXPECT_EQ(driver::lineQuestions().stateSize, platform == 2 ? 64u : 160u);
    }
}

}  // namespace
}  // namespace magpie
