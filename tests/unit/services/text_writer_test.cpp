#include <gtest/gtest.h>
#include <optional>
#include <string>

#include "platform/api/kernel32.h"
#include "platform/memory/driver.h"
#include "platform/memory/driver_system.h"
#include "platform/runtime/failure.h"
#include "platform/services/files.h"
#include "tests/unit/runtime/failure_of.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;

const std::string path = "C:\\Magpie\\a.pns";

class TextWriterTest : public testing::Test {
protected:
    TextWriterTest() { driver::makeFolder("C:\\Magpie"); }

    static int failureOfOpening(const std::string& name) {
        return failureOf([&] {
            TextWriter writer(name);
            return 0;
        });
    }
    static int failureOfClosing(TextWriter& writer) {
        return failureOf([&] {
            writer.close();
            return 0;
        });
    }
};

TEST_F(TextWriterTest, LinesEndInCrLf) {
    TextWriter writer(path);
    writer.writeLine("one");
    writer.write("tw");
    writer.write("o");
    writer.writeLine("");
    writer.close();
    EXPECT_EQ(driver::file(path), "one\r\ntwo\r\n");
    EXPECT_EQ(driver::liveInSystem().handles, 0);
}

TEST_F(TextWriterTest, WhatStoodThereIsReplaced) {
    driver::putFile(path, "something longer");
    TextWriter(path).writeLine("new");
    EXPECT_EQ(driver::file(path), "new\r\n");
}

TEST_F(TextWriterTest, NothingWrittenIsAnEmptyFile) {
    TextWriter(path).close();
    EXPECT_EQ(driver::file(path), "");
}

TEST_F(TextWriterTest, MoreThanTheBufferIsWrittenWhole) {
    std::string expected;
    TextWriter writer(path);
    for (int i = 0; i < 50'000; ++i) {
        const std::string line = "line " + std::to_string(i);
        writer.writeLine(line);
        expected += line + "\r\n";
    }
    const std::string block(1'000'000, 'x');
    writer.write(block);
    writer.close();
    EXPECT_EQ(driver::file(path), expected + block);
}

TEST_F(TextWriterTest, AnAbandonedWriterLeavesWhatWasWritten) {
    const int number = failureOf([] {
        TextWriter writer(path);
        writer.writeLine("before");
        throw Failure{failure::typeMismatch};
        return 0;
    });
    EXPECT_EQ(number, failure::typeMismatch);
    EXPECT_EQ(driver::file(path), "before\r\n");
    EXPECT_EQ(driver::liveInSystem().handles, 0);
}

TEST_F(TextWriterTest, AFullDiskRaisesAtTheClose) {
    driver::setDiskRoom(3);
    TextWriter writer(path);
    writer.writeLine("too long");
    EXPECT_EQ(failureOfClosing(writer), failure::diskFull);
    EXPECT_EQ(driver::file(path), "");
    EXPECT_EQ(driver::liveInSystem().handles, 0);
}

TEST_F(TextWriterTest, AFullDiskInTheMiddleKeepsWhatWasWrittenBefore) {
    const std::string block(100'000, 'x');
    driver::setDiskRoom(150'000);
    TextWriter writer(path);
    writer.write(block);
    EXPECT_EQ(failureOf([&] {
                  writer.write(block);
                  return 0;
              }),
              failure::diskFull);
    EXPECT_EQ(failureOfClosing(writer), 0);
    EXPECT_EQ(driver::file(path), block);
}

TEST_F(TextWriterTest, AnAbandonedWriterIsSilentOnAFullDisk) {
    driver::setDiskRoom(3);
    EXPECT_NO_THROW(TextWriter(path).writeLine("too long"));
    EXPECT_EQ(driver::liveInSystem().handles, 0);
}

TEST_F(TextWriterTest, AWriteThatFailsRaisesItsNumber) {
    driver::failCall("WriteFile", 1, win::ERROR_ACCESS_DENIED);
    TextWriter writer(path);
    writer.writeLine("a");
    EXPECT_EQ(failureOfClosing(writer), failure::pathAccess);
}

TEST_F(TextWriterTest, WhatCannotBeCreatedRaisesItsNumber) {
    driver::putFile(path, "old");
    EXPECT_EQ(failureOfOpening("C:\\none\\a.pns"), failure::pathNotFound);
    EXPECT_EQ(failureOfOpening("C:\\Magpie"), failure::pathAccess);
    EXPECT_EQ(failureOfOpening("C:\\Magpie\\a?.pns"), failure::badFileName);
    EXPECT_EQ(failureOfOpening("C:\\Magpie\\" + std::string(300, 'a')), failure::badFileName);
    for (const char* stream : {"C:\\Magpie\\a:b", "C:\\Magpie\\:b", "\\:b", "\\a:b", "::"})
        EXPECT_EQ(failureOfOpening(stream), failure::badFileName) << stream;
    driver::setReadOnly(path, true);
    EXPECT_EQ(failureOfOpening(path), failure::pathAccess);
    driver::setReadOnly(path, false);
    const auto lock = driver::lockFile(path);
    EXPECT_EQ(failureOfOpening(path), failure::permissionDenied);
    EXPECT_EQ(driver::file(path), "old");
}

}  // namespace
}  // namespace magpie
