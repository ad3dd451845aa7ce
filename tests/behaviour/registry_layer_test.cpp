// What the settings' registry layer promises to the rest of the program: nothing absent,
// strange or failing reaches the caller, and what was written is what is read.
#include <cstdint>
#include <gtest/gtest.h>
#include <string>
#include <string_view>

#include "config/reg_module.h"
#include "platform/memory/driver.h"
#include "platform/memory/driver_system.h"
#include "platform/runtime/failure.h"
#include "tests/unit/runtime/failure_of.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;
using win::HKEY_CURRENT_USER;

class RegistryLayer : public testing::Test {
protected:
    ~RegistryLayer() override {
        EXPECT_EQ(driver::liveInSystem().registryKeys, 0) << "a key stayed open";
        EXPECT_EQ(driver::faultsLeft(), 0);
    }

    static void store(std::string_view name, win::DWORD type, const std::string& bytes) {
        driver::setRegistryValue(HKEY_CURRENT_USER, settingsKey, name, type, bytes);
    }
    static win::memory::RegistryValue stored(std::string_view name) {
        return driver::registryValue(HKEY_CURRENT_USER, settingsKey, name).value();
    }
    static bool isStored(std::string_view name) {
        return driver::registryValue(HKEY_CURRENT_USER, settingsKey, name).has_value();
    }

    // The settings key, open while the test lives.
    struct Open {
        Open() {
            regCreateKey(settingsKey, HKEY_CURRENT_USER);
            win::RegOpenKeyExA(HKEY_CURRENT_USER, settingsKey, 0, 63, &key);
        }
        ~Open() { win::RegCloseKey(key); }

        win::HKEY key = nullptr;
    };
};

// ---- What is not there --------------------------------------------------------------

TEST_F(RegistryLayer, AnAbsentValueInAnAbsentKeyReadsAsEmpty) {
    EXPECT_EQ(regGetValue(settingsKey, "ID"), "");
    EXPECT_FALSE(driver::registryKeyExists(HKEY_CURRENT_USER, settingsKey));
}

TEST_F(RegistryLayer, AnAbsentValueInAPresentKeyReadsAsEmpty) {
    regCreateKey(settingsKey, HKEY_CURRENT_USER);
    EXPECT_EQ(regGetValue(settingsKey, "ID"), "");
}

TEST_F(RegistryLayer, AWriteIntoAnAbsentKeyIsLost) {
    regPutValue(settingsKey, "ID", std::string("1 2"), win::REG_SZ);
    EXPECT_FALSE(driver::registryKeyExists(HKEY_CURRENT_USER, settingsKey));
    EXPECT_EQ(regGetValue(settingsKey, "ID"), "");
}

TEST_F(RegistryLayer, AKeyIsCreatedWithAllKeysOnTheWay) {
    regCreateKey(settingsKey, HKEY_CURRENT_USER);
    EXPECT_TRUE(driver::registryKeyExists(HKEY_CURRENT_USER, "Software\\fennelworks\\Magpie"));
    regPutValue(settingsKey, "ID", std::string("1"), win::REG_SZ);
    regCreateKey(settingsKey, HKEY_CURRENT_USER);
    EXPECT_EQ(regGetValue(settingsKey, "ID"), "1");
}

TEST_F(RegistryLayer, AKeyNameThatTheSystemRefusesReadsAsEmptyAndLosesWrites) {
    const std::string name = "\\" + std::string(settingsKey);
    regCreateKey(name, HKEY_CURRENT_USER);
    regPutValue(name, "ID", std::string("1"), win::REG_SZ);
    EXPECT_EQ(regGetValue(name, "ID"), "");
}

// ---- Texts --------------------------------------------------------------------------

TEST_F(RegistryLayer, ATextWithABlankReadsBackAsItWasWritten) {
    regCreateKey(settingsKey, HKEY_CURRENT_USER);
    for (const std::string text : {"one two", " ", "trailing ", " leading", "1 0 True  x"}) {
        regPutValue(settingsKey, "CF", text, win::REG_SZ);
        EXPECT_EQ(regGetValue(settingsKey, "CF"), text);
    }
}

TEST_F(RegistryLayer, AStoredTextEndsInExactlyOneNul) {
    regCreateKey(settingsKey, HKEY_CURRENT_USER);
    regPutValue(settingsKey, "CF", std::string("a b"), win::REG_SZ);
    EXPECT_EQ(stored("CF").type, win::REG_SZ);
    EXPECT_EQ(stored("CF").bytes, std::string("a b\0", 4));
}

TEST_F(RegistryLayer, AnEmptyTextIsStoredAndReadsAsEmpty) {
    regCreateKey(settingsKey, HKEY_CURRENT_USER);
    regPutValue(settingsKey, "CF", std::string(), win::REG_SZ);
    EXPECT_EQ(stored("CF").bytes, std::string(1, '\0'));
    EXPECT_EQ(regGetValue(settingsKey, "CF"), "");
}

TEST_F(RegistryLayer, AnEmptyVariantIsStoredAsAnEmptyText) {
    regCreateKey(settingsKey, HKEY_CURRENT_USER);
    regPutValue(settingsKey, "CF", RegVariant{}, win::REG_SZ);
    EXPECT_EQ(stored("CF").bytes, std::string(1, '\0'));
}

TEST_F(RegistryLayer, ANumberWrittenAsATextIsItsDecimalText) {
    regCreateKey(settingsKey, HKEY_CURRENT_USER);
    regPutValue(settingsKey, "CF", std::int32_t{-12}, win::REG_SZ);
    EXPECT_EQ(stored("CF").bytes, std::string("-12\0", 4));
}

TEST_F(RegistryLayer, EveryByteOfATextIsKept) {
    std::string text;
    for (int i = 1; i < 256; ++i) text += static_cast<char>(i);
    regCreateKey(settingsKey, HKEY_CURRENT_USER);
    regPutValue(settingsKey, "CF", text, win::REG_SZ);
    EXPECT_EQ(regGetValue(settingsKey, "CF"), text);
}

TEST_F(RegistryLayer, ATextOfAMegabyteIsKept) {
    const std::string text(1 << 20, 'x');
    regCreateKey(settingsKey, HKEY_CURRENT_USER);
    regPutValue(settingsKey, "CF", text, win::REG_SZ);
    EXPECT_EQ(regGetValue(settingsKey, "CF"), text);
}

TEST_F(RegistryLayer, TheNulIsDroppedByCountAndNotBySearch) {
    store("inside", win::REG_SZ, std::string("a\0b\0", 4));
    EXPECT_EQ(regGetValue(settingsKey, "inside"), std::string("a\0b", 3));
    store("without", win::REG_SZ, "abc");
    EXPECT_EQ(regGetValue(settingsKey, "without"), "ab");
}

TEST_F(RegistryLayer, AValueOfNoLengthReadsAsEmptyAndLeavesTheVariantAlone) {
    store("CF", win::REG_SZ, "");
    EXPECT_EQ(regGetValue(settingsKey, "CF"), "");
    const Open open;
    RegVariant value = std::string("before");
    regQueryValue(open.key, "CF", value);
    EXPECT_EQ(value, RegVariant(std::string("before")));
}

// ---- Numbers and other types --------------------------------------------------------

TEST_F(RegistryLayer, ANumberReadsAsItsDecimalText) {
    store("n", win::REG_DWORD, std::string("\x2A\0\0\0", 4));
    EXPECT_EQ(regGetValue(settingsKey, "n"), "42");
    store("n", win::REG_DWORD, std::string("\xFF\xFF\xFF\xFF", 4));
    EXPECT_EQ(regGetValue(settingsKey, "n"), "-1");
    store("n", win::REG_DWORD, std::string(4, '\0'));
    EXPECT_EQ(regGetValue(settingsKey, "n"), "0");
}

TEST_F(RegistryLayer, ANumberIsWrittenInFourBytes) {
    regCreateKey(settingsKey, HKEY_CURRENT_USER);
    regPutValue(settingsKey, "n", std::int32_t{258}, win::REG_DWORD);
    EXPECT_EQ(stored("n").type, win::REG_DWORD);
    EXPECT_EQ(stored("n").bytes, std::string("\2\1\0\0", 4));
    regPutValue(settingsKey, "n", std::string("-2147483648"), win::REG_DWORD);
    EXPECT_EQ(regGetValue(settingsKey, "n"), "-2147483648");
    regPutValue(settingsKey, "n", RegVariant{}, win::REG_DWORD);
    EXPECT_EQ(regGetValue(settingsKey, "n"), "0");
}

TEST_F(RegistryLayer, ATextThatIsNoNumberIsNotWrittenAsOne) {
    regCreateKey(settingsKey, HKEY_CURRENT_USER);
    const auto put = [](const std::string& text) {
        return failureOf([&] {
            regPutValue(settingsKey, "n", text, win::REG_DWORD);
            return 0;
        });
    };
    EXPECT_EQ(put("abc"), failure::typeMismatch);
    EXPECT_EQ(put("2147483648"), failure::overflow);
    EXPECT_FALSE(isStored("n"));
}

TEST_F(RegistryLayer, BinaryReadsAsEmpty) {
    store("b", win::REG_BINARY, std::string("abc\0", 4));
    EXPECT_EQ(regGetValue(settingsKey, "b"), "");
    const Open open;
    RegVariant value = std::string("before");
    EXPECT_EQ(regQueryValue(open.key, "b", value), -1);
    EXPECT_EQ(value, RegVariant(std::string("before")));
}

TEST_F(RegistryLayer, AnyOtherTypeReadsAsEmpty) {
    for (const win::DWORD type : {0u, 2u, 5u, 7u, 11u}) {
        store("v", type, std::string("abcdefg\0", 8));
        EXPECT_EQ(regGetValue(settingsKey, "v"), "") << type;
    }
}

TEST_F(RegistryLayer, WritingWithAnotherTypeDoesNothingAndIsASuccess) {
    const Open open;
    EXPECT_EQ(regSetValue(open.key, "b", win::REG_BINARY, std::string("abc")), 0);
    EXPECT_EQ(regSetValue(open.key, "b", 0, std::string("abc")), 0);
    EXPECT_EQ(regSetValue(nullptr, "b", 7, std::string("abc")), 0);
    EXPECT_FALSE(isStored("b"));
}

TEST_F(RegistryLayer, AValueChangesItsTypeWithTheWriteThatReplacesIt) {
    regCreateKey(settingsKey, HKEY_CURRENT_USER);
    regPutValue(settingsKey, "v", std::int32_t{7}, win::REG_DWORD);
    regPutValue(settingsKey, "V", std::string("seven"), win::REG_SZ);
    EXPECT_EQ(regGetValue(settingsKey, "v"), "seven");
}

// ---- Status and variant of the inner routines ---------------------------------------

TEST_F(RegistryLayer, AQueryAnswersWithTheValueAndSuccess) {
    store("t", win::REG_SZ, std::string("text\0", 5));
    store("n", win::REG_DWORD, std::string("\5\0\0\0", 4));
    const Open open;
    RegVariant value;
    EXPECT_EQ(regQueryValue(open.key, "t", value), 0);
    EXPECT_EQ(value, RegVariant(std::string("text")));
    EXPECT_EQ(regQueryValue(open.key, "n", value), 0);
    EXPECT_EQ(value, RegVariant(std::int32_t{5}));
}

TEST_F(RegistryLayer, AFailedFirstQueryAnswersItsStatusAndLeavesTheVariantAlone) {
    const Open open;
    RegVariant value = std::string("before");
    EXPECT_EQ(regQueryValue(open.key, "none", value), win::LSTATUS(win::ERROR_FILE_NOT_FOUND));
    EXPECT_EQ(value, RegVariant(std::string("before")));
    EXPECT_EQ(regQueryValue(nullptr, "none", value), win::LSTATUS(win::ERROR_INVALID_HANDLE));
    EXPECT_EQ(value, RegVariant(std::string("before")));
}

TEST_F(RegistryLayer, ATextThatFailsAtItsSecondQueryLeavesTheVariantEmpty) {
    store("t", win::REG_SZ, std::string("text\0", 5));
    const Open open;
    RegVariant value = std::string("before");
    driver::failCall("RegQueryValueExA", 2, win::ERROR_MORE_DATA);
    EXPECT_EQ(regQueryValue(open.key, "t", value), win::LSTATUS(win::ERROR_MORE_DATA));
    EXPECT_EQ(value, RegVariant{});
}

TEST_F(RegistryLayer, ANumberThatFailsAtItsSecondQueryLeavesTheVariantAlone) {
    store("n", win::REG_DWORD, std::string("\5\0\0\0", 4));
    const Open open;
    RegVariant value = std::int32_t{1};
    driver::failCall("RegQueryValueExA", 2, win::ERROR_ACCESS_DENIED);
    EXPECT_EQ(regQueryValue(open.key, "n", value), win::LSTATUS(win::ERROR_ACCESS_DENIED));
    EXPECT_EQ(value, RegVariant(std::int32_t{1}));
}

TEST_F(RegistryLayer, AWriteAnswersThePlatformsStatus) {
    const Open open;
    EXPECT_EQ(regSetValue(open.key, "t", win::REG_SZ, std::string("a")), 0);
    EXPECT_EQ(regSetValue(nullptr, "t", win::REG_SZ, std::string("a")),
              win::LSTATUS(win::ERROR_INVALID_HANDLE));
    EXPECT_EQ(regSetValue(nullptr, "t", win::REG_DWORD, std::int32_t{1}),
              win::LSTATUS(win::ERROR_INVALID_HANDLE));
}

// ---- What goes wrong ----------------------------------------------------------------

TEST_F(RegistryLayer, AReadThatFailsReadsAsEmpty) {
    store("t", win::REG_SZ, std::string("text\0", 5));
    driver::failCall("RegOpenKeyExA", 1, win::ERROR_ACCESS_DENIED);
    EXPECT_EQ(regGetValue(settingsKey, "t"), "");
    driver::failCall("RegQueryValueExA", 1, win::ERROR_ACCESS_DENIED);
    EXPECT_EQ(regGetValue(settingsKey, "t"), "");
    driver::failCall("RegQueryValueExA", 2, win::ERROR_ACCESS_DENIED);
    EXPECT_EQ(regGetValue(settingsKey, "t"), "");
    EXPECT_EQ(regGetValue(settingsKey, "t"), "text");
}

TEST_F(RegistryLayer, AWriteThatFailsIsLostInSilence) {
    store("t", win::REG_SZ, std::string("old\0", 4));
    driver::failCall("RegOpenKeyExA", 1, win::ERROR_ACCESS_DENIED);
    regPutValue(settingsKey, "t", std::string("new"), win::REG_SZ);
    EXPECT_EQ(regGetValue(settingsKey, "t"), "old");
    driver::failCall("RegSetValueExA", 1, win::ERROR_DISK_FULL);
    regPutValue(settingsKey, "t", std::string("new"), win::REG_SZ);
    EXPECT_EQ(regGetValue(settingsKey, "t"), "old");
}

TEST_F(RegistryLayer, AKeyThatCannotBeCreatedIsPassedOver) {
    driver::failCall("RegCreateKeyExA", 1, win::ERROR_ACCESS_DENIED);
    regCreateKey(settingsKey, HKEY_CURRENT_USER);
    EXPECT_FALSE(driver::registryKeyExists(HKEY_CURRENT_USER, settingsKey));
}

}  // namespace
}  // namespace magpie
