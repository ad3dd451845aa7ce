// Starting programs by the shell.
#include <gmock/gmock.h>
#include <string>

#include "platform/api/shell32.h"
#include "tests/conformance/peers.h"

using namespace win;

namespace {

using testing::ElementsAre;

std::intptr_t start(const std::string& file, const std::string& parameters) {
    return reinterpret_cast<std::intptr_t>(
        ShellExecuteA(nullptr, "Open", file.c_str(), parameters.c_str(), nullptr, SW_SHOWNORMAL));
}

TEST(Launch, AProgramGetsItsParametersAsTheyAre) {
    const peers::Recorder recorder;
    const std::string address = "http://server/a b\"c\"?" + std::string(2000, 'x');
    EXPECT_GT(start(recorder.path(), address), 32);
    EXPECT_THAT(recorder.started(), ElementsAre(address));
}

TEST(Launch, WithoutAFileNothingStarts) {
    EXPECT_LE(start("", "http://server/"), 32);
    EXPECT_EQ(start("C:\\no folder\\nothing.exe", "http://server/"), SE_ERR_FNF);
}

}  // namespace
