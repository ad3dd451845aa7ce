// Reading the places that the settings keep: of the main window, and of its columns.
#include "platform/services/screen.h"
#include "tests/behaviour/settings_fixture.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;
using testing::ElementsAre;

class SavedPlaces : public SettingsFixture {
public:
    // Starts with this "CF" and opens the main window.
    static void openWith(std::string_view cf) {
        putRecord("CF", cf);
        startAndOpen();
    }

    static void placeWindow(double left, double top, double width, double height) {
        Form3.Left(left);
        Form3.Top(top);
        Form3.Width(width);
        Form3.Height(height);
    }

    static void readColumns(std::string_view ch) {
        putRecord("CH", ch);
        loadConfig();
    }
};

// The window's place -------------------------------------------------------------------

TEST_F(SavedPlaces, TheWindowComesBackToItsPlace) {
    openWith(mainRecord(0, "0"));
    EXPECT_EQ(Form3.Top(), 1500);
    EXPECT_EQ(Form3.Left(), 3000);
    EXPECT_EQ(Form3.Width(), 6000);
    EXPECT_EQ(Form3.Height(), 4500);
}

TEST_F(SavedPlaces, APlaceThatIsNoNumberKeepsTheWindowWhereItIs) {
    start();
    for (const char* token : {"", "x", "2147483648", "1e400", "True"}) {
        for (int position = 7; position <= 10; ++position) {
            SCOPED_TRACE(std::string(token) + " at " + std::to_string(position));
            placeWindow(3300, 1800, 6300, 4800);
            readMain(mainRecord(position, token));
            EXPECT_EQ(Form3.Top(), position == 7 ? 1800 : 1500);
            EXPECT_EQ(Form3.Left(), position == 8 ? 3300 : 3000);
            EXPECT_EQ(Form3.Width(), position == 9 ? 6300 : 6000);
            EXPECT_EQ(Form3.Height(), position == 10 ? 4800 : 4500);
        }
    }
}

TEST_F(SavedPlaces, APlaceBeyondTheUpperLeftComesToTheEdge) {
    start();
    readMain(mainRecord(7, "-1"));
    EXPECT_EQ(Form3.Top(), 0);
    readMain(mainRecord(8, "-600"));
    EXPECT_EQ(Form3.Left(), 0);
    readMain(mainRecord(7, "-2000000000"));
    EXPECT_EQ(Form3.Top(), 0);
}

TEST_F(SavedPlaces, AWindowTooSmallOpensAtAUsefulSize) {
    start();
    const struct {
        const char* width;
        const char* height;
        double openWidth;
        double openHeight;
    } cases[] = {{"2495", "4500", 5208, 4500},
                 {"2496", "4500", 2496, 4500},
                 {"6000", "2379", 6000, 3624},
                 {"6000", "2380", 6000, 2380},
                 {"0", "0", 5208, 3624}};
    for (const auto& each : cases) {
        SCOPED_TRACE(std::string(each.width) + " by " + each.height);
        readMain(std::string("0 0 0 0 1 1 0 1500 3000 ") + each.width + " " + each.height +
                 " 31 0 36000");
        EXPECT_EQ(Form3.Width(), each.openWidth);
        EXPECT_EQ(Form3.Height(), each.openHeight);
    }
}

TEST_F(SavedPlaces, ANegativeSizeIsRefusedAndTheOldOneStays) {
    start();
    readMain(mainRecord(0, "0"));
    readMain(mainRecord(9, "-6000"));
    EXPECT_EQ(Form3.Width(), 6000);
    readMain(mainRecord(10, "-4500"));
    EXPECT_EQ(Form3.Height(), 4500);
}

TEST_F(SavedPlaces, AWindowBeyondTheRightEdgeMovesIn) {
    start();
    readMain(mainRecord(8, "9375"));
    EXPECT_EQ(Form3.Left(), 9360);
    readMain(mainRecord(8, "9360"));
    EXPECT_EQ(Form3.Left(), 9360);
    readMain(mainRecord(8, "2000000000"));
    EXPECT_EQ(Form3.Left(), 9360);
}

TEST_F(SavedPlaces, AWindowBeyondTheLowerEdgeMovesAboveTheTaskBar) {
    start();
    readMain(mainRecord(7, "7020"));
    EXPECT_EQ(Form3.Top(), 7020);
    readMain(mainRecord(7, "7035"));
    EXPECT_EQ(Form3.Top(), 11520 - 4500 - 28 * 15);
}

TEST_F(SavedPlaces, ATaskBarOfUnknownHeightCountsAsNone) {
    start();
    readMain(mainRecord(0, "0"));
    driver::failCall("SystemParametersInfoA", 1, win::ERROR_ACCESS_DENIED);
    readMain(mainRecord(7, "7035"));
    EXPECT_EQ(driver::faultsLeft(), 0);
    EXPECT_EQ(Form3.Top(), 11520 - 4500);
}

TEST_F(SavedPlaces, ATaskBarOnAnotherEdgeCountsByTheHeightThatIsLeft) {
    start();
    driver::setWorkArea({60, 50, 1024, 768});
    readMain(mainRecord(7, "7035"));
    EXPECT_EQ(Form3.Top(), 11520 - 4500 - 50 * 15);
}

TEST_F(SavedPlaces, AWindowLargerThanTheScreenHangsOverTheUpperLeft) {
    start();
    readMain("0 0 0 0 1 1 0 1500 3000 18000 13500 31 0 36000");
    EXPECT_EQ(Form3.Width(), 18000);
    EXPECT_EQ(Form3.Left(), 15360 - 18000);
    EXPECT_EQ(Form3.Top(), 11520 - 13500 - 28 * 15);
}

TEST_F(SavedPlaces, TheDefaultPlaceIsTheLowerRightOfTheWorkArea) {
    start();
    placeWindow(300, 300, 6000, 4500);
    placeMainDefault();
    EXPECT_EQ(Form3.Left(), 15360 - 6000);
    EXPECT_EQ(Form3.Top(), 11520 - 4500 - 28 * 15);
    driver::failCall("SystemParametersInfoA", 1, win::ERROR_ACCESS_DENIED);
    placeMainDefault();
    EXPECT_EQ(Form3.Top(), 11520 - 4500);
}

// The columns --------------------------------------------------------------------------

TEST_F(SavedPlaces, TheColumnsComeBackWithTheirWidths) {
    putRecord("CH", "1500 1515 1530 1545 1560 1575 1590 ");
    startAndOpen();
    EXPECT_THAT(widths(2), ElementsAre(1500, 1515, 1530, 1545, 1560, 1575, 1590));
}

TEST_F(SavedPlaces, TheWidthsGoToTheListOfTheRememberedTabAndFollowTheUser) {
    putRecord("CF", mainRecord(4, "2"));
    putRecord("CH", "1500 1515 1530 1545 1560 1575 1590 ");
    startAndOpen();
    EXPECT_THAT(widths(1), ElementsAre(1500, 1515, 1530, 1545, 1560, 1575, 1590));
    EXPECT_THAT(widths(2), ElementsAre(2400, 2400, 900, 1200, 1680, 1680, 720));
    clickTab(1);
    EXPECT_THAT(widths(2), ElementsAre(1500, 1515, 1530, 1545, 1560, 1575, 1590));
}

TEST_F(SavedPlaces, MoreWidthsThanColumnsAreIgnored) {
    putRecord("CH", "1500 1515 1530 1545 1560 1575 1590 900 915 930 945 960 975 990 ");
    startAndOpen();
    EXPECT_THAT(widths(2), ElementsAre(1500, 1515, 1530, 1545, 1560, 1575, 1590));
    EXPECT_EQ(colWidths[7], 0);
    EXPECT_EQ(colWidths[8], 0);
}

TEST_F(SavedPlaces, ColumnsWithoutAWidthKeepTheirs) {
    startAndOpen();
    readColumns("1500 1515 ");
    EXPECT_THAT(widths(2), ElementsAre(1500, 1515, 900, 1200, 1680, 1680, 720));
    readColumns("");
    EXPECT_THAT(widths(2), ElementsAre(1500, 1515, 900, 1200, 1680, 1680, 720));
    readColumns("  600");
    EXPECT_THAT(widths(2), ElementsAre(1500, 1515, 600, 1200, 1680, 1680, 720));
}

TEST_F(SavedPlaces, AWidthThatIsNoSixteenBitNumberLeavesItsColumnAlone) {
    startAndOpen();
    readColumns("x 32768 1e400 True -32769 &H 1590 ");
    EXPECT_THAT(widths(2), ElementsAre(2400, 2400, 900, 1200, 1680, 1680, 1590));
}

TEST_F(SavedPlaces, AWidthBelowZeroLeavesItsColumnAloneAndTheTabsUsable) {
    putRecord("CH", "-1 -15 -30 -32768 1500");
    startAndOpen();
    EXPECT_THAT(widths(2), ElementsAre(2400, 2400, 900, 1200, 1500, 1680, 720));
    clickTab(2);
    EXPECT_THAT(widths(1), ElementsAre(2400, 2400, 900, 1200, 1500, 1680, 720));
    EXPECT_EQ(previousTab, 2);
}

TEST_F(SavedPlaces, AWidthOfZeroHidesItsColumn) {
    startAndOpen();
    readColumns("0 1500");
    EXPECT_EQ(widths(2)[0], 0);
    EXPECT_EQ(widths(2)[1], 1500);
}

}  // namespace
}  // namespace magpie
