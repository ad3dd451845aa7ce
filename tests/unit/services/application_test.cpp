#include "platform/services/application.h"

#include <gtest/gtest.h>

#include "platform/api/kernel32.h"
#include "platform/memory/driver.h"
#include "platform/memory/driver_system.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;

std::string tailOf(const std::string& line) {
    driver::setCommandLine(line);
    return commandTail();
}

TEST(Application, ItsFolderHasNoBackslashAtTheEnd) {
    EXPECT_EQ(appFolder(), "C:\\Magpie");
    driver::setProgram("D:\\My Programs\\Magpie 1.0\\Magpie.exe");
    EXPECT_EQ(appFolder(), "D:\\My Programs\\Magpie 1.0");
}

TEST(Application, ARootKeepsItsBackslash) {
    driver::setProgram("C:\\Magpie.exe");
    EXPECT_EQ(appFolder(), "C:\\");
}

TEST(Application, AFolderDeepDownIsToldWhole) {
    const std::string folder = "C:\\" + std::string(400, 'x');
    driver::setProgram(folder + "\\Magpie.exe");
    EXPECT_EQ(appFolder(), folder);
}

TEST(Application, WithoutAnAnswerItHasNoFolder) {
    driver::failCall("GetModuleFileNameA", 1, 5);
    EXPECT_EQ(appFolder(), "");
}

TEST(Application, TheProgramsNameIsNoPartOfTheTail) {
    EXPECT_EQ(commandTail(), "");
    EXPECT_EQ(tailOf("\"C:\\My Magpie\\Magpie.exe\" MyBooks"), "MyBooks");
    EXPECT_EQ(tailOf("C:\\Magpie\\Magpie.exe MyBooks"), "MyBooks");
    EXPECT_EQ(tailOf("Magpie.exe"), "");
    EXPECT_EQ(tailOf(""), "");
    EXPECT_EQ(tailOf("\"C:\\unclosed name"), "");
}

TEST(Application, TheTailIsTakenWholeButForBlanksAround) {
    EXPECT_EQ(tailOf("\"C:\\Magpie.exe\"   my books  /x \"y\"  "), "my books  /x \"y\"");
    EXPECT_EQ(tailOf("\"C:\\Magpie.exe\"MyBooks"), "MyBooks");
    EXPECT_EQ(tailOf("\"C:\\Magpie.exe\"    "), "");
}

TEST(Application, TheFirstInstanceIsAloneHoweverOftenItAsks) {
    EXPECT_FALSE(anotherInstance());
    EXPECT_FALSE(anotherInstance());
    EXPECT_EQ(driver::liveInSystem().handles, 1);
}

TEST(Application, ASecondInstanceFindsTheFirst) {
    const auto first = driver::otherProgramHolds("Local\\Magpie.Fennelworks.Instance");
    EXPECT_TRUE(anotherInstance());
    EXPECT_TRUE(anotherInstance());
}

TEST(Application, WithoutAMarkItCountsAsAlone) {
    driver::failCall("CreateMutexA", 1, win::ERROR_ACCESS_DENIED);
    EXPECT_FALSE(anotherInstance());
}

}  // namespace
}  // namespace magpie
