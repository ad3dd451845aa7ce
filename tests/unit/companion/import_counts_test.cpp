#include "companion/import/import_counts.h"

#include <gtest/gtest.h>

namespace magpie {
namespace {

TEST(ImportReport, SaysWhatCameIn) {
    EXPECT_EQ(reportOf({}), "No links were found.");
    EXPECT_EQ(reportOf({1, 1, 0, 0, 0}), "1 link in 1 group was imported.");
    EXPECT_EQ(reportOf({3, 12, 0, 0, 0}), "12 links in 3 groups were imported.");
}

TEST(ImportReport, SaysWhatWasSkipped) {
    EXPECT_EQ(reportOf({1, 2, 1, 1, 1}),
              "2 links in 1 group were imported. 1 link without an address was skipped. "
              "1 file or folder could not be read. 1 link was left out: the list is full.");
    EXPECT_EQ(reportOf({0, 0, 2, 3, 4}),
              "No links were imported. 2 links without an address were skipped. "
              "3 files or folders could not be read. 4 links were left out: the list is full.");
}

}  // namespace
}  // namespace magpie
