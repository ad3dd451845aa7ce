#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <vector>

#include "platform/api/kernel32.h"
#include "platform/memory/driver.h"
#include "platform/memory/driver_system.h"
#include "platform/runtime/failure.h"
#include "platform/services/files.h"
#include "tests/unit/runtime/failure_of.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr int deviceError = 57;
const std::string path = "C:\\Magpie\\a.pns";

std::vector<std::string> linesOf(std::string_view bytes) {
    driver::putFile(path, bytes);
    TextReader reader(path);
    std::vector<std::string> lines;
    while (!reader.atEnd()) lines.emplace_back(reader.readLine());
    return lines;
}

// The lines as one byte after the other would find them.
std::vector<std::string> linesByHand(std::string_view bytes) {
    std::vector<std::string> lines;
    std::string line;
    bool open = false;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const bool ends = bytes[i] == '\n' || bytes[i] == '\r';
        if (bytes[i] == '\r' && i + 1 < bytes.size() && bytes[i + 1] == '\n') ++i;
        if (!ends) line += bytes[i];
        open = !ends;
        if (!ends) continue;
        lines.push_back(line);
        line.clear();
    }
    if (open) lines.push_back(line);
    return lines;
}

int failureOfOpening(const std::string& name) {
    return failureOf([&] {
        TextReader reader(name);
        return 0;
    });
}

TEST(TextReader, EveryKindOfLineEndEndsALine) {
    EXPECT_THAT(linesOf("a\r\nb\nc\rd\r\n"), ElementsAre("a", "b", "c", "d"));
}

TEST(TextReader, TheLastLineNeedsNoEnd) {
    EXPECT_THAT(linesOf("a\r\nb"), ElementsAre("a", "b"));
    EXPECT_THAT(linesOf("a"), ElementsAre("a"));
}

TEST(TextReader, AnEmptyFileHasNoLine) {
    EXPECT_THAT(linesOf(""), IsEmpty());
}

TEST(TextReader, EmptyLinesAreLines) {
    EXPECT_THAT(linesOf("\r\n\n\r\r\n"), ElementsAre("", "", "", ""));
    EXPECT_THAT(linesOf("\n\r"), ElementsAre("", ""));
}

TEST(TextReader, ANulIsAByteLikeAnyOther) {
    EXPECT_THAT(linesOf(std::string_view("a\0b\r\n\0\r\n", 8)),
                ElementsAre(std::string("a\0b", 3), std::string("\0", 1)));
}

TEST(TextReader, EveryByteComesBackAsItIs) {
    std::string bytes;
    for (int i = 0; i < 256; ++i) {
        if (i != '\r' && i != '\n') bytes += static_cast<char>(i);
    }
    EXPECT_THAT(linesOf(bytes + "\r\n" + bytes), ElementsAre(bytes, bytes));
}

TEST(TextReader, ALineOfTenMegabytesIsOneLine) {
    const std::string line(10'000'000, 'x');
    EXPECT_THAT(linesOf(line + "\r\nend"), ElementsAre(line, "end"));
}

TEST(TextReader, LineEndsOnTheEdgeOfAChunkAreFound) {
    for (const std::string end : {"\r\n", "\n", "\r"}) {
        for (std::size_t size = 64 * 1024 - 3; size < 64 * 1024 + 3; ++size) {
            const std::string line(size, 'x');
            EXPECT_THAT(linesOf(line + end + "b" + end), ElementsAre(line, "b")) << size;
            EXPECT_THAT(linesOf(line + end), ElementsAre(line)) << size;
        }
    }
}

TEST(TextReader, LinesAreThoseOfAReaderByteForByte) {
    std::string bytes;
    unsigned seed = 1;
    for (int i = 0; i < 300'000; ++i) {
        seed = seed * 1103515245 + 12345;
        bytes += "abc\r\n\n\r\0"[seed >> 16 & 7];
    }
    EXPECT_EQ(linesOf(bytes), linesByHand(bytes));
}

TEST(TextReader, ReadingBehindTheEndRaises) {
    driver::putFile(path, "a");
    TextReader reader(path);
    EXPECT_EQ(reader.readLine(), "a");
    EXPECT_EQ(failureOf([&] { return reader.readLine(); }), failure::inputPastEnd);
    EXPECT_TRUE(reader.atEnd());
}

TEST(TextReader, WhatCannotBeOpenedRaisesItsNumber) {
    driver::putFile(path, "a");
    EXPECT_EQ(failureOfOpening("C:\\Magpie\\none.pns"), failure::fileNotFound);
    EXPECT_EQ(failureOfOpening("C:\\none\\a.pns"), failure::pathNotFound);
    EXPECT_EQ(failureOfOpening("C:\\Magpie"), failure::pathAccess);
    EXPECT_EQ(failureOfOpening("C:\\Magpie\\a*.pns"), failure::badFileName);
    EXPECT_EQ(failureOfOpening(""), failure::pathNotFound);
    const auto lock = driver::lockFile(path);
    EXPECT_EQ(failureOfOpening(path), failure::permissionDenied);
}

TEST(TextReader, AReadThatFailsEndsTheFile) {
    std::string bytes;
    while (bytes.size() < 200'000) bytes += "a line\r\n";
    driver::putFile(path, bytes);
    driver::failCall("ReadFile", 2, win::ERROR_INVALID_HANDLE);
    TextReader reader(path);
    int lines = 0;
    int steps = 0;
    std::vector<int> failures;
    // As one who goes on after each failure, until told that the end is there.
    for (bool ended = false; !ended && steps < 100'000; ++steps) {
        const int number = failureOf([&] {
            ended = reader.atEnd();
            if (ended) return 0;
            reader.readLine();
            return ++lines;
        });
        if (number != 0) failures.push_back(number);
    }
    EXPECT_LT(steps, 100'000);
    EXPECT_EQ(lines, 64 * 1024 / 8);
    EXPECT_THAT(failures, ElementsAre(deviceError));
    EXPECT_EQ(driver::faultsLeft(), 0);
}

TEST(TextReader, AWholeLineBeforeAReadThatFailsIsStillRead) {
    const std::string line(64 * 1024 - 1, 'x');
    driver::putFile(path, line + "\nlost");
    driver::failCall("ReadFile", 2, win::ERROR_INVALID_HANDLE);
    TextReader reader(path);
    EXPECT_EQ(reader.readLine(), line);
    EXPECT_EQ(failureOf([&] { return reader.atEnd(); }), deviceError);
    EXPECT_TRUE(reader.atEnd());
}

TEST(TextReader, AFirstReadThatFailsRaises) {
    driver::putFile(path, "a");
    driver::failCall("ReadFile", 1, win::ERROR_INVALID_HANDLE);
    TextReader reader(path);
    EXPECT_EQ(failureOf([&] { return reader.atEnd(); }), deviceError);
    EXPECT_TRUE(reader.atEnd());
}

TEST(TextReader, TheFileIsClosedAtTheEnd) {
    linesOf("a\r\nb");
    EXPECT_EQ(driver::liveInSystem().handles, 0);
}

}  // namespace
}  // namespace magpie
