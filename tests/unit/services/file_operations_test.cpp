#include <gtest/gtest.h>
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

class FileOperations : public testing::Test {
protected:
    FileOperations() { driver::putFile(pns, "new"); }

    static int failureOfRenaming(const std::string& from, const std::string& to) {
        return failureOf([&] {
            renameFile(from, to);
            return 0;
        });
    }
    static int failureOfDeleting(const std::string& path) {
        return failureOf([&] {
            deleteFile(path);
            return 0;
        });
    }

    const std::string pns = "C:\\Magpie\\a.pns";
    const std::string bak = "C:\\Magpie\\a.bak";
    const std::string missing = "C:\\Magpie\\none.pns";
};

TEST_F(FileOperations, AFolderIsNoFile) {
    EXPECT_TRUE(fileExists(pns));
    EXPECT_TRUE(fileExists("c:\\MAGPIE\\A.PNS"));
    EXPECT_FALSE(fileExists(missing));
    EXPECT_FALSE(fileExists("C:\\Magpie"));
    EXPECT_FALSE(fileExists("C:\\Magpie\\*.pns"));
    EXPECT_FALSE(fileExists(""));
}

TEST_F(FileOperations, ARenamedFileKeepsItsBytes) {
    EXPECT_EQ(failureOfRenaming(pns, bak), 0);
    EXPECT_EQ(driver::file(bak), "new");
    EXPECT_FALSE(fileExists(pns));
}

TEST_F(FileOperations, RenamingNeverReplaces) {
    driver::putFile(bak, "old");
    EXPECT_EQ(failureOfRenaming(pns, bak), failure::fileExists);
    EXPECT_EQ(driver::file(bak), "old");
    EXPECT_EQ(driver::file(pns), "new");
}

TEST_F(FileOperations, RenamingWhatIsNotThereRaises) {
    EXPECT_EQ(failureOfRenaming(missing, bak), failure::fileNotFound);
    EXPECT_EQ(failureOfRenaming("C:\\none\\a.pns", bak), failure::pathNotFound);
    EXPECT_EQ(failureOfRenaming(pns, "C:\\none\\a.bak"), failure::pathNotFound);
}

TEST_F(FileOperations, WhatAnotherProgramHoldsStays) {
    const auto lock = driver::lockFile(pns);
    EXPECT_EQ(failureOfRenaming(pns, bak), failure::permissionDenied);
    EXPECT_EQ(failureOfDeleting(pns), failure::permissionDenied);
    EXPECT_TRUE(fileExists(pns));
}

TEST_F(FileOperations, ADeletedFileIsGone) {
    EXPECT_EQ(failureOfDeleting(pns), 0);
    EXPECT_FALSE(fileExists(pns));
    EXPECT_EQ(failureOfDeleting(pns), failure::fileNotFound);
}

TEST_F(FileOperations, AReadOnlyFileAndAFolderAreNotDeleted) {
    driver::setReadOnly(pns, true);
    EXPECT_EQ(failureOfDeleting(pns), failure::pathAccess);
    EXPECT_EQ(failureOfDeleting("C:\\Magpie"), failure::pathAccess);
}

TEST_F(FileOperations, AFolderIsMadeOnceAndOnlyUnderAName) {
    const auto failureOfMaking = [](const std::string& path) {
        return failureOf([&] {
            makeFolder(path);
            return 0;
        });
    };
    EXPECT_EQ(failureOfMaking("C:\\Magpie\\new"), 0);
    EXPECT_EQ(failureOfMaking("C:\\Magpie\\new"), failure::pathAccess);
    EXPECT_EQ(failureOfMaking(pns), failure::pathAccess);
    EXPECT_EQ(failureOfMaking("C:\\none\\new"), failure::pathNotFound);
    EXPECT_EQ(failureOfMaking("C:\\Magpie\\what?"), failure::badFileName);
    EXPECT_EQ(failureOfMaking("C:\\Magpie\\a:b"), failure::badFileName);
    EXPECT_EQ(failureOfMaking("\\:b"), failure::badFileName);
    EXPECT_EQ(failureOfMaking("C:\\Magpie\\" + std::string(300, 'a')), failure::badFileName);
}

TEST_F(FileOperations, AnErrorWithoutANumberOfItsOwnIsTheDevices) {
    driver::failCall("DeleteFileA", 1, 1117);
    EXPECT_EQ(failureOfDeleting(pns), 57);
    driver::failCall("MoveFileA", 1, win::ERROR_DISK_FULL);
    EXPECT_EQ(failureOfRenaming(pns, bak), failure::diskFull);
}

}  // namespace
}  // namespace magpie
