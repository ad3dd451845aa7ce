// Writing the settings records: what stands in them, and when they are written.
#include <algorithm>

#include "tests/behaviour/settings_fixture.h"
#include "views/filter_strips.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;

class SavedSettings : public SettingsFixture {
public:
    static void clickCloseBox(Form& form) {
        win::PostMessageA(form.hWnd(), win::WM_SYSCOMMAND, win::SC_CLOSE, 0);
        driver::pump();
    }

    static std::string savedTray(int position) {
        lateSave();
        return tokenOf("ID", position);
    }

    static std::string savedMain(int position) {
        saveConfig();
        return tokenOf("CF", position);
    }

    static int tokenCount(std::string_view name) {
        const std::string text = record(name).value();
        return static_cast<int>(std::count(text.begin(), text.end(), ' ')) + 1;
    }
};

// "ID" ---------------------------------------------------------------------------------

TEST_F(SavedSettings, TheTrayRecordComesBackAsItWasRead) {
    const std::string whole = "3 3000 4500 1 0 1 False True";
    putRecord("ID", whole);
    start();
    putRecord("ID", "");
    activeIcon = false;
    lateSave();
    EXPECT_EQ(record("ID"), whole);
}

TEST_F(SavedSettings, TheTrayRecordHasEightTokensAndNoBlankAtItsEnd) {
    start();
    lateSave();
    EXPECT_EQ(tokenCount("ID"), 8);
    EXPECT_NE(record("ID")->back(), ' ');
    EXPECT_EQ(driver::registryValue(win::HKEY_CURRENT_USER, settingsKeyPath, "ID")->type,
              win::REG_SZ);
}

TEST_F(SavedSettings, EachTraySettingHasItsToken) {
    start();
    lineCheck = 0;
    EXPECT_EQ(savedTray(0), "0");
    lineCheck = 255;
    EXPECT_EQ(savedTray(0), "255");
    activeIcon = true;
    EXPECT_EQ(savedTray(3), "0");
    activeIcon = false;
    EXPECT_EQ(savedTray(3), "1");
    iconOnTop = true;
    EXPECT_EQ(savedTray(4), "1");
    iconOnTop = false;
    EXPECT_EQ(savedTray(4), "0");
    onlineAction = 0;
    EXPECT_EQ(savedTray(5), "0");
    onlineAction = 255;
    EXPECT_EQ(savedTray(5), "255");
    noTrayIcon = true;
    EXPECT_EQ(savedTray(6), "True");
    noTrayIcon = false;
    EXPECT_EQ(savedTray(6), "False");
    onlineOnly = true;
    EXPECT_EQ(savedTray(7), "True");
    onlineOnly = false;
    EXPECT_EQ(savedTray(7), "False");
}

TEST_F(SavedSettings, ThePadsPlaceIsThatOfItsWindow) {
    start();
    iconTop = 1;
    iconLeft = 2;
    Form1.Top(1500);
    Form1.Left(2250);
    EXPECT_EQ(savedTray(1), "1500");
    EXPECT_EQ(savedTray(2), "2250");
    EXPECT_EQ(iconTop, 1500);
    EXPECT_EQ(iconLeft, 2250);
}

TEST_F(SavedSettings, AHiddenPadKeepsItsPlace) {
    putRecord("ID", "0 3000 4500 1 1 0 True False");
    start();
    EXPECT_FALSE(Form1.Visible());
    EXPECT_EQ(savedTray(1), "3000");
    EXPECT_EQ(savedTray(2), "4500");
}

TEST_F(SavedSettings, APadBesideTheScreenIsSavedWhereItIs) {
    start();
    Form1.Top(-150);
    Form1.Left(-300);
    EXPECT_EQ(savedTray(1), "-150");
    EXPECT_EQ(savedTray(2), "-300");
}

TEST_F(SavedSettings, ThePlaceIsInTwipsWhateverTheDensity) {
    driver::setDpi(144);
    putRecord("ID", "0 3000 4500 0 1 0 True False");
    start();
    EXPECT_EQ(savedTray(1), "3000");
    Form1.Top(1010);
    EXPECT_EQ(savedTray(1), "1010");
}

TEST_F(SavedSettings, TheTrayRecordIsWrittenAtTheEndAndByCommandOnly) {
    putSampleFile();
    start();
    clickPad();
    clickTab(2);
    chooseFromMenu("Save All");
    clickCloseBox(Form3);
    clickPad();
    chooseFromMenu("Flush to Tray");
    clickPad();
    chooseFromMenu("Load Settings");
    EXPECT_EQ(record("ID"), std::nullopt);
    chooseFromMenu("Save Settings");
    EXPECT_NE(record("ID"), std::nullopt);
}

TEST_F(SavedSettings, TheEndWritesTheTrayRecordWithoutAMainWindow) {
    start();
    Form1.unload();
    EXPECT_NE(record("ID"), std::nullopt);
    EXPECT_EQ(record("CF"), std::nullopt);
    EXPECT_EQ(record("CH"), std::nullopt);
}

TEST_F(SavedSettings, ARegistryThatTakesNothingIsSilent) {
    startAndOpen();
    driver::failCall("RegSetValueExA", 1, win::ERROR_ACCESS_DENIED);
    lateSave();
    EXPECT_EQ(record("ID"), std::nullopt);
    driver::failCall("RegCreateKeyExA", 1, win::ERROR_ACCESS_DENIED);
    lateSave();
    EXPECT_NE(record("ID"), std::nullopt);
    driver::failCall("RegSetValueExA", 1, win::ERROR_ACCESS_DENIED);
    saveConfig();
    EXPECT_EQ(record("CF"), std::nullopt);
    EXPECT_NE(record("CH"), std::nullopt);
    EXPECT_EQ(driver::faultsLeft(), 0);
    EXPECT_TRUE(driver::messageBoxes().empty());
}

TEST_F(SavedSettings, WithoutItsKeyNothingIsWritten) {
    start();
    driver::failCall("RegCreateKeyExA", 1, win::ERROR_ACCESS_DENIED);
    lateSave();
    EXPECT_FALSE(driver::registryKeyExists(win::HKEY_CURRENT_USER, settingsKeyPath));
}

// "CF" ---------------------------------------------------------------------------------

TEST_F(SavedSettings, TheMainRecordComesBackAsItWasRead) {
    const std::string whole = "11 3 2 2 2 2 1 1500 3000 6000 4500 21 2 36000";
    putRecord("ID", "3");
    putRecord("CF", whole);
    startAndOpen();
    putRecord("CF", "");
    saveConfig();
    EXPECT_EQ(record("CF"), whole);
}

TEST_F(SavedSettings, TheMainRecordHasFourteenTokensAndNoBlankAtItsEnd) {
    startAndOpen();
    saveConfig();
    EXPECT_EQ(tokenCount("CF"), 14);
    EXPECT_NE(record("CF")->back(), ' ');
}

TEST_F(SavedSettings, EachFlagHasItsBit) {
    startAndOpen();
    Form3.filterAdvanced = false;
    EXPECT_EQ(savedMain(0), "0");
    useKeystrokes = true;
    EXPECT_EQ(savedMain(0), "1");
    useKeystrokes = false;
    mainOnTop = true;
    EXPECT_EQ(savedMain(0), "2");
    mainOnTop = false;
    Form3.mnuFullwindow.Checked = true;
    EXPECT_EQ(savedMain(0), "4");
    Form3.mnuFullwindow.Checked = false;
    Form3.filterAdvanced = true;
    EXPECT_EQ(savedMain(0), "8");
    Form3.filterAdvanced = false;
    autoLoadSettings = false;
    EXPECT_EQ(savedMain(0), "16");
    autoLoadSettings = true;
    autoSaveSettings = false;
    EXPECT_EQ(savedMain(0), "32");
    autoSaveSettings = true;
    autoLoadURLs = false;
    EXPECT_EQ(savedMain(0), "64");
    autoLoadURLs = true;
    autoSaveURLs = false;
    EXPECT_EQ(savedMain(0), "128");
}

TEST_F(SavedSettings, TheSettingForTheFullWindowDoesNotCountButItsTickDoes) {
    startAndOpen();
    startFullWindow = true;
    EXPECT_EQ(savedMain(0), "8");
    chooseFromMenu("Full Window (ESQ)");
    startFullWindow = false;
    EXPECT_EQ(savedMain(0), "12");
}

TEST_F(SavedSettings, EachMainSettingHasItsToken) {
    startAndOpen();
    lineCheck = 3;
    EXPECT_EQ(savedMain(1), "3");
    browserType = 2;
    EXPECT_EQ(savedMain(2), "2");
    Form3.tbStrip.Placement(3);
    EXPECT_EQ(savedMain(3), "3");
    EXPECT_EQ(savedMain(4), "1");
    savedAdvMode = 2;
    Form3.advMode = 0;
    EXPECT_EQ(savedMain(5), "2");
    slideBump(1, 0);
    slideBump(3, 0);
    EXPECT_EQ(savedMain(11), "21");
    shortcutMode = 1;
    EXPECT_EQ(savedMain(12), "1");
    firstDate = -7;
    EXPECT_EQ(savedMain(13), "-7");
}

TEST_F(SavedSettings, TheGroupInViewIsRemembered) {
    startAndOpen();
    EXPECT_EQ(savedMain(6), "0");
    clickTab(2);
    EXPECT_EQ(savedMain(4), "2");
    Form3.Combo1[1].ListIndex(1);
    EXPECT_EQ(savedMain(6), "1");
}

TEST_F(SavedSettings, NoGroupInViewIsRememberedAsMinusOne) {
    start();
    Form3.Show();
    EXPECT_EQ(savedMain(6), "-1");
}

TEST_F(SavedSettings, TheMainWindowIsSavedWhereItStands) {
    putRecord("CF", mainRecord(0, "0"));
    startAndOpen();
    Form3.Top(600);
    Form3.Left(750);
    Form3.Width(7500);
    Form3.Height(5250);
    EXPECT_EQ(savedMain(7), "600");
    EXPECT_EQ(savedMain(8), "750");
    EXPECT_EQ(savedMain(9), "7500");
    EXPECT_EQ(savedMain(10), "5250");
    EXPECT_EQ(mainTop, 600);
    EXPECT_EQ(mainHeight, 5250);
}

TEST_F(SavedSettings, AMinimisedMainWindowSavesItsRestoredPlace) {
    putRecord("CF", mainRecord(0, "0"));
    startAndOpen();
    Form3.WindowState(stateMinimised);
    EXPECT_FALSE(Form3.Visible());
    saveConfig();
    EXPECT_EQ(record("CF"), mainRecord(0, "0"));
    Form3.Visible(true);
    EXPECT_EQ(Form3.WindowState(), stateMinimised);
    saveConfig();
    EXPECT_EQ(record("CF"), mainRecord(0, "0"));
}

TEST_F(SavedSettings, AMaximisedMainWindowSavesItsRestoredPlace) {
    putRecord("CF", mainRecord(0, "0"));
    startAndOpen();
    Form3.WindowState(stateMaximised);
    saveConfig();
    EXPECT_EQ(record("CF"), mainRecord(0, "0"));
}

TEST_F(SavedSettings, AHiddenMainWindowSavesItsPlace) {
    putRecord("CF", mainRecord(0, "0"));
    startAndOpen();
    clickCloseBox(Form3);
    saveConfig();
    EXPECT_EQ(record("CF"), mainRecord(0, "0"));
}

TEST_F(SavedSettings, TheFlushWritesTheMainWindowsRecords) {
    startAndOpen();
    chooseFromMenu("Flush to Tray");
    EXPECT_NE(record("CF"), std::nullopt);
    EXPECT_NE(record("CH"), std::nullopt);
}

TEST_F(SavedSettings, WithoutAutomaticSavingTheFlushWritesNothing) {
    putRecord("CF", mainRecord(0, "40"));
    startAndOpen();
    Form3.Width(7500);
    chooseFromMenu("Flush to Tray");
    EXPECT_EQ(record("CF"), mainRecord(0, "40"));
    EXPECT_EQ(record("CH"), std::nullopt);
}

TEST_F(SavedSettings, SaveSettingsWritesAllThreeRecords) {
    startAndOpen();
    chooseFromMenu("Save Settings");
    EXPECT_EQ(tokenCount("ID"), 8);
    EXPECT_EQ(tokenCount("CF"), 14);
    EXPECT_EQ(tokenCount("CH"), 8);
}

TEST_F(SavedSettings, SaveAllWritesTheMainWindowsRecords) {
    startAndOpen();
    chooseFromMenu("Save All");
    EXPECT_EQ(record("ID"), std::nullopt);
    EXPECT_NE(record("CF"), std::nullopt);
    EXPECT_NE(record("CH"), std::nullopt);
}

TEST_F(SavedSettings, TheRecordsOfOneRunAreReadByTheNext) {
    putRecord("CF", mainRecord(0, "0"));
    startAndOpen();
    clickTab(2);
    Form3.Combo1[1].ListIndex(1);
    Form3.ListView1[1].ColumnWidth(1, 3300);
    Form3.Left(750);
    chooseFromMenu("Flush to Tray");
    clickPad();
    EXPECT_EQ(currentTab, 2);
    EXPECT_EQ(Form3.Combo1[1].ListIndex(), 1);
    EXPECT_EQ(Form3.ListView1[1].ColumnWidth(1), 3300);
    EXPECT_EQ(Form3.Left(), 750);
}

// "CH" ---------------------------------------------------------------------------------

TEST_F(SavedSettings, EveryColumnsWidthIsFollowedByABlank) {
    startAndOpen();
    saveConfig();
    EXPECT_EQ(record("CH"), "2400 2400 900 1200 1680 1680 720 ");
}

TEST_F(SavedSettings, TheColumnsOfTheListInViewAreSaved) {
    startAndOpen();
    Form3.ListView1[2].ColumnWidth(1, 1500);
    Form3.ListView1[1].ColumnWidth(1, 600);
    saveConfig();
    EXPECT_EQ(record("CH"), "1500 2400 900 1200 1680 1680 720 ");
    EXPECT_EQ(colWidths[0], 1500);
    clickTab(2);
    Form3.ListView1[1].ColumnWidth(7, 0);
    saveConfig();
    EXPECT_EQ(record("CH"), "1500 2400 900 1200 1680 1680 0 ");
}

TEST_F(SavedSettings, AColumnWiderThanSixteenBitsLeavesBothRecordsUnwritten) {
    startAndOpen();
    Form3.ListView1[2].ColumnWidth(1, 32775);
    chooseFromMenu("Save Settings");
    EXPECT_NE(record("ID"), std::nullopt);
    EXPECT_EQ(record("CF"), std::nullopt);
    EXPECT_EQ(record("CH"), std::nullopt);
}

}  // namespace
}  // namespace magpie
