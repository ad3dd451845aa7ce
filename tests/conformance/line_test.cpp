#include <gtest/gtest.h>

#include "platform/api/kernel32.h"
#include "platform/api/rasapi32.h"
#include "platform/api/wininet.h"
#include "tests/conformance/line_hand.h"

using namespace win;

namespace {

HINSTANCE systemLibrary(const char* name) {
    return LoadLibraryExA(name, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
}

// In a run of all tests these come first: a library that was loaded stays.
class DialUp : public testing::Test {
protected:
    void SetUp() override {
        if (!hand::movesTheLine()) GTEST_SKIP() << "the machine's own line";
    }

    // Offers room for one record, as `bytes` is left by default.
    DWORD enumerate(DWORD size = 412) {
        connection = {};
        connection.dwSize = size;
        bytes = size;
        connections = 4711;
        return RasEnumConnectionsA(&connection, &bytes, &connections);
    }

    DWORD ask(HRASCONN handle, DWORD size = 160) {
        status = {};
        status.dwSize = size;
        return RasGetConnectStatusA(handle, &status);
    }

    RASCONNA connection{};
    RASCONNSTATUSA status{};
    DWORD bytes = 0;
    DWORD connections = 0;
};

TEST_F(DialUp, WithoutAConnectionNoBytesAreNeeded) {
    hand::setDialUp({});
    EXPECT_EQ(enumerate(), 0u);
    EXPECT_EQ(bytes, 0u);
    EXPECT_EQ(connections, 0u);
    EXPECT_EQ(connection.hrasconn, 0u);
}

TEST_F(DialUp, OneConnectionNeedsOneRecordOfEitherSize) {
    hand::setDialUp({RASCS_Connected});
    for (const DWORD size : {32u, 412u}) {
        EXPECT_EQ(enumerate(size), 0u);
        EXPECT_EQ(bytes, size);
        EXPECT_EQ(connections, 1u);
        EXPECT_NE(connection.hrasconn, 0u);
    }
}

TEST_F(DialUp, AConnectionKeepsItsHandle) {
    hand::setDialUp({RASCS_Connected});
    enumerate();
    const HRASCONN first = connection.hrasconn;
    enumerate(32);
    EXPECT_EQ(connection.hrasconn, first);
}

TEST_F(DialUp, MoreConnectionsThanRoomLeaveTheRecordAsItIs) {
    hand::setDialUp({RASCS_Connected, RASCS_Connected});
    EXPECT_EQ(enumerate(), ERROR_BUFFER_TOO_SMALL);
    EXPECT_EQ(bytes, 824u);
    EXPECT_EQ(connections, 2u);
    EXPECT_EQ(connection.hrasconn, 0u);
    EXPECT_EQ(enumerate(32), ERROR_BUFFER_TOO_SMALL);
    EXPECT_EQ(bytes, 64u);
}

TEST_F(DialUp, TooLittleRoomForOneLeavesTheRecordAsItIs) {
    hand::setDialUp({RASCS_Connected});
    connection.dwSize = 412;
    bytes = 411;
    EXPECT_EQ(RasEnumConnectionsA(&connection, &bytes, &connections), ERROR_BUFFER_TOO_SMALL);
    EXPECT_EQ(bytes, 412u);
    EXPECT_EQ(connections, 1u);
    EXPECT_EQ(connection.hrasconn, 0u);
}

TEST_F(DialUp, TheStateOfAConnectionIsTold) {
    for (const DWORD state : {RASCS_Connected, RASCS_Disconnected, DWORD{4}, DWORD{0}}) {
        hand::setDialUp({state});
        enumerate();
        for (const DWORD size : {64u, 160u}) {
            EXPECT_EQ(ask(connection.hrasconn, size), 0u);
            EXPECT_EQ(status.rasconnstate, state);
            EXPECT_EQ(status.dwError, 0u);
            EXPECT_EQ(status.dwSize, size);
        }
    }
}

TEST_F(DialUp, AConnectionThatHasEndedHasNoState) {
    hand::setDialUp({RASCS_Connected});
    enumerate();
    hand::setDialUp({});
    EXPECT_EQ(ask(connection.hrasconn), ERROR_INVALID_HANDLE);
    EXPECT_EQ(status.rasconnstate, 0u);
}

TEST_F(DialUp, ANumberThatIsNoHandleHasNoState) {
    hand::setDialUp({RASCS_Connected});
    EXPECT_EQ(ask(0), ERROR_INVALID_HANDLE);
    EXPECT_EQ(ask(0xFFFFFFF0), ERROR_INVALID_HANDLE);
}

TEST_F(DialUp, ARecordOfAnotherSizeIsRefused) {
    hand::setDialUp({RASCS_Connected});
    EXPECT_EQ(enumerate(33), ERROR_INVALID_SIZE);
    EXPECT_EQ(ask(1, 65), ERROR_INVALID_SIZE);
}

TEST_F(DialUp, TheSystemsOpinionOfTheLineIsTold) {
    DWORD flags = 0;
    hand::setOnline(false);
    EXPECT_FALSE(InternetGetConnectedState(&flags, 0));
    hand::setOnline(true);
    EXPECT_TRUE(InternetGetConnectedState(&flags, 0));
}

TEST(Library, OfTheSystemIsFoundByItsName) {
    const HINSTANCE library = systemLibrary("wininet.dll");
    ASSERT_NE(library, nullptr);
    EXPECT_NE(GetProcAddress(library, "InternetGetConnectedState"), nullptr);
}

TEST(Library, CapitalsOfItsNameDoNotMatter) {
    EXPECT_NE(systemLibrary("RasApi32.DLL"), nullptr);
}

TEST(Library, ThatIsNotThereIsToldSo) {
    EXPECT_EQ(systemLibrary("magpie_no_such_library.dll"), nullptr);
    EXPECT_EQ(GetLastError(), ERROR_MOD_NOT_FOUND);
}

// This one stands beside the program that runs these tests.
TEST(Library, BesideTheProgramIsNotLookedFor) {
    EXPECT_EQ(systemLibrary("line_double.dll"), nullptr);
    EXPECT_EQ(GetLastError(), ERROR_MOD_NOT_FOUND);
}

TEST(Library, TellsOfAFunctionThatItLacks) {
    const HINSTANCE library = systemLibrary("wininet.dll");
    EXPECT_EQ(GetProcAddress(library, "MagpieNoSuchFunction"), nullptr);
    EXPECT_EQ(GetLastError(), ERROR_PROC_NOT_FOUND);
}

}  // namespace
