// StoreFixture: the program with its main window open on an empty store, and a disk with the
// program's folder, for tests of records, groups and stack files.
#pragma once

#include <gmock/gmock.h>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "store/records.h"

namespace magpie {

class StoreFixture : public testing::Test {
public:
    StoreFixture();
    // Whatever a test has prepared must have happened.
    void TearDown() override;

    // Bytes as they stand in a file, in which "|" stands for the separator.
    static std::string lines(std::string text);

    // The default stack file and its backup.
    static void putStackFile(std::string_view text);
    static std::optional<std::string> stackFile();
    static std::optional<std::string> backup();

    // Shows the screen of a tab: 1 Advanced, 2 Standard.
    static void showTab(int tab);

    static std::vector<std::string> groupNames();
    static std::vector<std::string> recordNames();
    static URLData& record(int position);

    // Adds a record whose dates survive the file.
    static URLData& addRecord(std::string_view name, double owner);

    // One group "A" with the record "a", and a change that is not saved.
    static void addGroupWithRecord();

    // Reads the default stack file, after it was given this text.
    static bool read(bool merge = false);
    static bool readText(std::string_view text, bool merge = false);

    // What the store makes as a file.
    static std::string written();

    static constexpr const char* stackPathInTests = "C:\\Magpie\\Pienest.pns";
    static constexpr const char* backupPathInTests = "C:\\Magpie\\Pienest.bak";
};

}  // namespace magpie
