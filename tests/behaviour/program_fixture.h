// ProgramFixture: the whole program on the memory desktop, from its start on. The
// constructor lays out a disk with the program's folder and its pictures; nothing has
// started yet, so that a test can put files, registry values and a command line
// there first.
#pragma once

#include <gmock/gmock.h>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/api/comctl32.h"

namespace magpie {

class ProgramFixture : public testing::Test {
public:
    ProgramFixture();
    // Takes the windows away, as the end of the process does.
    ~ProgramFixture() override;

    // Whatever a test has prepared must have happened, or what it looks at there was never seen.
    void TearDown() override;

    // A stack file's bytes, in which "|" stands for the separator and every line ends
    // in CR LF as written.
    static std::string lines(std::string text);
    static void putStackFile(std::string_view text);
    static std::optional<std::string> stackFile();
    static std::optional<std::string> backup();

    // Two groups, "Reference" with "Front page" and "Tools", and "Work" with "Plan".
    static void putSampleFile();

    // The records "ID", "CF", "CH".
    static void putRecord(std::string_view name, std::string_view text);
    static std::optional<std::string> record(std::string_view name);

    // Starts the program up to its message loop.
    static void start();
    // A left click on the pad, left of its drag strip.
    static void clickPad();
    // Starts, with the sample file unless there is a file, and opens the main window.
    static void startAndOpen();

    // Clicks a tab of the main window: 1 Advanced, 2 Standard.
    static void clickTab(int tab);

    // Column texts of a row of the record list in view; rows count from 1.
    static std::vector<std::string> rowTexts(int row);
    static std::vector<std::string> titlesInView();

    static constexpr const char* stackFilePath = "C:\\Magpie\\Pienest.pns";
    static constexpr const char* backupPath = "C:\\Magpie\\Pienest.bak";
    static constexpr const char* settingsKeyPath = "SOFTWARE\\Fennelworks\\Magpie";
};

}  // namespace magpie
