// The shell's folders.
#include <gtest/gtest.h>

#include "platform/api/kernel32.h"
#include "platform/api/shell32.h"

using namespace win;

namespace {

TEST(ShellFolders, FavoritesIsAFolderOfTheDisk) {
    ITEMIDLIST* place = nullptr;
    ASSERT_EQ(SHGetSpecialFolderLocation(nullptr, CSIDL_FAVORITES, &place), 0);
    ASSERT_NE(place, nullptr);
    char path[260] = "";
    EXPECT_TRUE(SHGetPathFromIDListA(place, path));
    EXPECT_STRNE(path, "");
    EXPECT_TRUE(GetFileAttributesA(path) & FILE_ATTRIBUTE_DIRECTORY);
}

}  // namespace
