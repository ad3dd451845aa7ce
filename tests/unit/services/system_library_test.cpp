#include "platform/services/system_library.h"

#include <gtest/gtest.h>

#include "platform/api/constants.h"
#include "platform/memory/driver.h"
#include "platform/memory/driver_line.h"
#include "tests/unit/runtime/failure_of.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;

int requiring(SystemLibrary& library, const char* function) {
    return failureOf([&] { library.require(function); });
}

TEST(SystemLibrary, OneThatIsThereHasItsFunctions) {
    SystemLibrary library("rasapi32.dll");
    EXPECT_EQ(requiring(library, "RasEnumConnectionsA"), 0);
    EXPECT_EQ(requiring(library, "RasGetConnectStatusA"), 0);
}

TEST(SystemLibrary, OneThatIsMissingIsAFileThatIsNotFound) {
    SystemLibrary library("no_such.dll");
    EXPECT_EQ(requiring(library, "RasEnumConnectionsA"), 53);
}

TEST(SystemLibrary, AFunctionThatIsMissingHasAFailureOfItsOwn) {
    SystemLibrary library("rasapi32.dll");
    EXPECT_EQ(requiring(library, "RasHangUpA"), 453);
}

TEST(SystemLibrary, OneThatIsMissingIsLookedForAgain) {
    SystemLibrary library("rasapi32.dll");
    auto gone = driver::takeLibraryAway("rasapi32.dll");
    EXPECT_EQ(requiring(library, "RasEnumConnectionsA"), 53);
    EXPECT_EQ(requiring(library, "RasEnumConnectionsA"), 53);
    gone.reset();
    EXPECT_EQ(requiring(library, "RasEnumConnectionsA"), 0);
}

TEST(SystemLibrary, OneThatWasLoadedStays) {
    SystemLibrary library("rasapi32.dll");
    library.require("RasEnumConnectionsA");
    const auto gone = driver::takeLibraryAway("rasapi32.dll");
    driver::failCall("LoadLibraryExA", 1, win::ERROR_MOD_NOT_FOUND);
    EXPECT_EQ(requiring(library, "RasEnumConnectionsA"), 0);
    EXPECT_EQ(driver::faultsLeft(), 1);
}

}  // namespace
}  // namespace magpie
