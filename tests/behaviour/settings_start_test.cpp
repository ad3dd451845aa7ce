// The start reads its settings whatever stands in the registry.
#include "tests/behaviour/settings_fixture.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;
using testing::IsEmpty;
using testing::SizeIs;

using SettingsAtTheStart = SettingsFixture;

// The flags ----------------------------------------------------------------------------

TEST_F(SettingsAtTheStart, EachUpperFlagTurnsItsSettingOff) {
    start();
    const auto settings = [] {
        return std::vector<bool>{autoLoadSettings, autoSaveSettings, autoLoadURLs, autoSaveURLs};
    };
    for (int flags = 0; flags < 256; ++flags) {
        SCOPED_TRACE(flags);
        putRecord("CF", std::to_string(flags));
        earlyConfig();
        const std::vector<bool> wanted = {(flags & 16) == 0, (flags & 32) == 0, (flags & 64) == 0,
                                          (flags & 128) == 0};
        EXPECT_EQ(settings(), wanted);
    }
}

TEST_F(SettingsAtTheStart, FlagsThatAreNoNumberMeanAllFourOn) {
    start();
    for (const char* word : {"", "x", " ", " 240", "1e400", "2147483648", "True"}) {
        SCOPED_TRACE(word);
        autoLoadSettings = autoSaveSettings = autoLoadURLs = autoSaveURLs = false;
        putRecord("CF", word);
        earlyConfig();
        EXPECT_TRUE(autoLoadSettings && autoSaveSettings && autoLoadURLs && autoSaveURLs);
    }
}

TEST_F(SettingsAtTheStart, FlagsOfAnySizeAreTakenBitByBit) {
    start();
    for (const char* word : {"-1", "2147483647", "240.4", "&HF0"}) {
        SCOPED_TRACE(word);
        putRecord("CF", word);
        earlyConfig();
        EXPECT_FALSE(autoLoadSettings || autoSaveSettings || autoLoadURLs || autoSaveURLs);
    }
    putRecord("CF", "256");
    earlyConfig();
    EXPECT_TRUE(autoLoadSettings && autoSaveSettings && autoLoadURLs && autoSaveURLs);
}

// What stands in the registry ----------------------------------------------------------

TEST_F(SettingsAtTheStart, ANumberInTheRegistryReadsAsItsDecimalText) {
    driver::setRegistryValue(win::HKEY_CURRENT_USER, settingsKeyPath, "ID", win::REG_DWORD,
                             std::string("\x02\0\0\0", 4));
    driver::setRegistryValue(win::HKEY_CURRENT_USER, settingsKeyPath, "CF", win::REG_DWORD,
                             std::string("\x10\0\0\0", 4));
    start();
    EXPECT_EQ(lineCheck, 2);
    EXPECT_FALSE(noTrayIcon);
    EXPECT_FALSE(autoLoadSettings);
    EXPECT_TRUE(autoSaveSettings);
}

TEST_F(SettingsAtTheStart, ValuesWithoutATextAreAFirstStart) {
    const struct {
        win::DWORD type;
        std::string bytes;
    } cases[] = {{3, std::string("2 3000 4500\0", 12)}, {2, std::string("2\0", 2)},
                 {7, std::string("2\0\0", 3)},          {win::REG_SZ, ""},
                 {win::REG_SZ, std::string(1, '\0')},   {win::REG_SZ, "2"}};
    for (const auto& each : cases) {
        SCOPED_TRACE(each.type);
        for (const char* name : {"ID", "CF", "CH"})
            driver::setRegistryValue(win::HKEY_CURRENT_USER, settingsKeyPath, name, each.type,
                                     each.bytes);
        noTrayIcon = iconOnTop = activeIcon = false;
        start();
        EXPECT_EQ(lineCheck, 0);
        EXPECT_TRUE(noTrayIcon);
        EXPECT_TRUE(iconOnTop);
        EXPECT_TRUE(Form1.Visible());
        EXPECT_TRUE(autoLoadSettings && autoSaveURLs);
        Form1.discard();
    }
}

TEST_F(SettingsAtTheStart, AMegabyteInTheRegistryDoesNotStopTheStart) {
    const std::size_t megabyte = 1 << 20;
    std::string numbers;
    while (numbers.size() < megabyte) numbers += "1 ";
    for (const std::string& text :
         {std::string(megabyte, ' '), std::string(megabyte, '9'), std::string(megabyte, 'x'),
          std::string(megabyte, '\0'), numbers}) {
        SCOPED_TRACE(text.substr(0, 4));
        for (const char* name : {"ID", "CF", "CH"}) putRecord(name, text);
        start();
        EXPECT_TRUE(Form1.loaded());
        EXPECT_TRUE(Form1.Timer1.Enabled());
        Form3.Show();
        EXPECT_TRUE(Form3.Visible());
        EXPECT_TRUE(reallyLoaded);
        Form3.discard();
        Form1.discard();
    }
}

TEST_F(SettingsAtTheStart, ARecordOfMoreTokensThanAByteCountsHasThePadOnTop) {
    std::string record = "2 3000 4500 0 0 1 False False";
    while (record.size() < 2000) record += " x";
    start();
    iconOnTop = false;
    readTray(record);
    EXPECT_TRUE(iconOnTop);
}

TEST_F(SettingsAtTheStart, ARegistryThatCanNotBeReadIsAFirstStart) {
    putRecord("ID", "2 3000 4500 1 0 1 False True");
    putRecord("CF", "240");
    for (int call = 1; call <= 2; ++call)
        driver::failCall("RegOpenKeyExA", call, win::ERROR_ACCESS_DENIED);
    start();
    EXPECT_EQ(driver::faultsLeft(), 0);
    EXPECT_EQ(lineCheck, 0);
    EXPECT_TRUE(noTrayIcon);
    EXPECT_TRUE(Form1.Visible());
    EXPECT_TRUE(autoLoadSettings && autoSaveSettings && autoLoadURLs && autoSaveURLs);
}

TEST_F(SettingsAtTheStart, AValueThatVanishesBetweenTwoQueriesIsAFirstStart) {
    putRecord("ID", "2 3000 4500 1 0 1 False True");
    driver::failCall("RegQueryValueExA", 2, win::ERROR_FILE_NOT_FOUND);
    start();
    EXPECT_EQ(lineCheck, 0);
    EXPECT_TRUE(noTrayIcon);
}

// Other things that go wrong at the start ----------------------------------------------

TEST_F(SettingsAtTheStart, APlatformThatDoesNotTellItsVersionIsNumberZero) {
    osPlatform = 9;
    putRecord("ID", "2");
    driver::failCall("GetVersionExA", 1, win::ERROR_ACCESS_DENIED);
    start();
    EXPECT_EQ(osPlatform, 0);
    EXPECT_EQ(lineCheck, 2);
}

TEST_F(SettingsAtTheStart, AStartWithoutPicturesReadsEverythingElse) {
    for (const char* name : {"ia", "ib", "ic", "id"})
        driver::removeFile(std::string("C:\\Magpie\\uBank\\") + name + ".bnk");
    putRecord("ID", trayRecord(6, "False"));
    putRecord("CF", "16");
    start();
    EXPECT_TRUE(activeIcon);
    EXPECT_TRUE(Form1.Visible());
    EXPECT_EQ(driver::pictureOf(Form1.Picture1.hWnd()), "");
    EXPECT_FALSE(autoLoadSettings);
    EXPECT_THAT(driver::shownTrayIcons(), SizeIs(1));
}

TEST_F(SettingsAtTheStart, ATrayIconThatTheShellRefusesDoesNotStopTheStart) {
    putRecord("ID", trayRecord(6, "False"));
    driver::failCall("Shell_NotifyIconA", 1, win::ERROR_ACCESS_DENIED);
    start();
    EXPECT_THAT(driver::shownTrayIcons(), IsEmpty());
    EXPECT_TRUE(Form1.Visible());
}

}  // namespace
}  // namespace magpie
