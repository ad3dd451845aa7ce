#include <array>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <string_view>

#include "platform/api/kernel32.h"

using namespace win;

namespace {

constexpr DWORD insufficientBuffer = 122;

std::string programPath() {
    std::array<char, 300> path{};
    const DWORD length = GetModuleFileNameA(nullptr, path);
    return {path.data(), length};
}

TEST(Process, KnowsTheFileThatItRuns) {
    EXPECT_NE(GetModuleHandleA(nullptr), nullptr);
    EXPECT_EQ(GetOwnModule(), GetModuleHandleA(nullptr));
    EXPECT_THAT(programPath(), testing::EndsWith(".exe"));
    EXPECT_EQ(programPath().substr(1, 2), ":\\");
    std::array<char, 300> path{};
    EXPECT_EQ(GetModuleFileNameA(GetModuleHandleA(nullptr), path), programPath().size());
    EXPECT_EQ(path.data(), programPath());
}

TEST(Process, CutsItsPathToTheBuffer) {
    std::array<char, 5> path{'#', '#', '#', '#', '#'};
    EXPECT_EQ(GetModuleFileNameA(nullptr, path), path.size());
    EXPECT_EQ(GetLastError(), insufficientBuffer);
    // Whether the last byte is a NUL differs between the system's versions.
    EXPECT_EQ(std::string_view(path.data(), 4), programPath().substr(0, 4));
}

TEST(Process, TellsItsPathIntoABufferThatJustFits) {
    std::string path(programPath().size() + 1, '#');
    EXPECT_EQ(GetModuleFileNameA(nullptr, path), programPath().size());
    EXPECT_EQ(path.c_str(), programPath());
}

TEST(Process, CommandLineBeginsWithTheProgram) {
    const std::string path = programPath();
    const std::string line = GetCommandLineA();
    EXPECT_THAT(line, testing::HasSubstr(path.substr(path.rfind('\\') + 1)));
}

TEST(Process, TellsTheSystemsVersion) {
    OSVERSIONINFOA version{};
    version.dwOSVersionInfoSize = 148;
    EXPECT_TRUE(GetVersionExA(&version));
    EXPECT_EQ(version.dwOSVersionInfoSize, 148u);
    EXPECT_EQ(version.dwPlatformId, 2u);
    EXPECT_GE(version.dwMajorVersion, 5u);
    EXPECT_GT(version.dwBuildNumber, 0u);
}

TEST(Process, TellsNoVersionIntoARecordOfAnotherSize) {
    OSVERSIONINFOA version{};
    version.dwOSVersionInfoSize = 147;
    EXPECT_FALSE(GetVersionExA(&version));
    EXPECT_EQ(GetLastError(), insufficientBuffer);
    EXPECT_EQ(version.dwPlatformId, 0u);
}

TEST(Process, KeepsTheLastError) {
    SetLastError(4711);
    EXPECT_EQ(GetLastError(), 4711u);
}

TEST(Mutex, ASecondOneOfTheNameIsToldSo) {
    SetLastError(77);
    HANDLE first = CreateMutexA(nullptr, false, "Local\\MagpieConformanceSecond");
    EXPECT_EQ(GetLastError(), ERROR_SUCCESS);
    HANDLE second = CreateMutexA(nullptr, false, "Local\\MagpieConformanceSecond");
    EXPECT_EQ(GetLastError(), ERROR_ALREADY_EXISTS);
    EXPECT_NE(first, nullptr);
    EXPECT_NE(second, nullptr);
    EXPECT_NE(first, second);
    CloseHandle(first);
    CloseHandle(second);
}

TEST(Mutex, TheNameIsFreeWhenItsLastHandleIsClosed) {
    const char* name = "Local\\MagpieConformanceClosed";
    HANDLE first = CreateMutexA(nullptr, false, name);
    HANDLE second = CreateMutexA(nullptr, false, name);
    CloseHandle(first);
    HANDLE third = CreateMutexA(nullptr, false, name);
    EXPECT_EQ(GetLastError(), ERROR_ALREADY_EXISTS);
    CloseHandle(second);
    CloseHandle(third);
    HANDLE again = CreateMutexA(nullptr, false, name);
    EXPECT_EQ(GetLastError(), ERROR_SUCCESS);
    CloseHandle(again);
}

TEST(Mutex, TheSessionIsTheDefaultPlaceOfAName) {
    HANDLE first = CreateMutexA(nullptr, false, "Local\\MagpieConformancePlace");
    HANDLE second = CreateMutexA(nullptr, false, "MagpieConformancePlace");
    EXPECT_EQ(GetLastError(), ERROR_ALREADY_EXISTS);
    CloseHandle(first);
    CloseHandle(second);
}

TEST(Handles, NullIsNone) {
    EXPECT_FALSE(CloseHandle(nullptr));
    EXPECT_EQ(GetLastError(), ERROR_INVALID_HANDLE);
}

TEST(GlobalMemory, KeepsItsBytesWhileUnlocked) {
    HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, 6);
    ASSERT_NE(memory, nullptr);
    EXPECT_EQ(GlobalSize(memory), 6u);
    std::string_view("hello").copy(static_cast<char*>(GlobalLock(memory)), 5);
    GlobalUnlock(memory);
    EXPECT_EQ(std::string_view(static_cast<char*>(GlobalLock(memory)), 5), "hello");
    GlobalUnlock(memory);
    EXPECT_EQ(GlobalFree(memory), nullptr);
}

TEST(GlobalMemory, CountsItsLocks) {
    HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, 6);
    void* bytes = GlobalLock(memory);
    EXPECT_EQ(GlobalLock(memory), bytes);
    EXPECT_TRUE(GlobalUnlock(memory));
    EXPECT_FALSE(GlobalUnlock(memory));
    EXPECT_EQ(GetLastError(), ERROR_SUCCESS);
    EXPECT_FALSE(GlobalUnlock(memory));
    EXPECT_EQ(GetLastError(), 158u);
    GlobalFree(memory);
}

}  // namespace
