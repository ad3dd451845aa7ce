#include <array>
#include <gtest/gtest.h>
#include <string>
#include <string_view>

#include "platform/api/comdlg32.h"
#include "platform/api/kernel32.h"
#include "platform/api/user32.h"
#include "tests/conformance/file_dialog_user.h"
#include "tests/conformance/test_folder.h"

using namespace win;

namespace {

class FileDialogs : public testing::Test {
protected:
    FileDialogs() {
        dialog.lStructSize = sizeof dialog;
        dialog.hwndOwner = owner;
        dialog.lpstrFilter = "(*.PNS)\0*.pns\0";
        dialog.lpstrFile = file.data();
        dialog.nMaxFile = DWORD(file.size());
        dialog.lpstrTitle = "Open It As";
        dialog.lpstrInitialDir = folderPath.c_str();
        dialog.Flags = OFN_EXPLORER | OFN_HIDEREADONLY | OFN_NOCHANGEDIR;
    }
    ~FileDialogs() override { DestroyWindow(owner); }

    TestFolder folder;
    std::string folderPath = folder.path();
    HWND owner = CreateWindowExA(0, "STATIC", "", WS_POPUP | WS_VISIBLE, 0, 0, 200, 100, nullptr,
                                 nullptr, GetModuleHandleA(nullptr), nullptr);
    std::array<char, 260> file{};
    OPENFILENAMEA dialog{};
};

TEST_F(FileDialogs, AChosenFileIsGivenBackWhole) {
    const std::string path = folder.path("my books.pns");
    FileDialogUser user(owner, path);
    EXPECT_TRUE(GetOpenFileNameA(&dialog));
    EXPECT_EQ(std::string_view(file.data()), path);
    EXPECT_EQ(std::string_view(file.data() + dialog.nFileOffset), "my books.pns");
    EXPECT_EQ(std::string_view(file.data() + dialog.nFileExtension), "pns");
}

TEST_F(FileDialogs, AFileToSaveNeedNotBeThere) {
    const std::string path = folder.path("new");
    FileDialogUser user(owner, path);
    EXPECT_TRUE(GetSaveFileNameA(&dialog));
    EXPECT_EQ(std::string_view(file.data()), path);
    EXPECT_EQ(std::string_view(file.data() + dialog.nFileOffset), "new");
    EXPECT_EQ(dialog.nFileExtension, 0);
}

TEST_F(FileDialogs, CancelIsFalseAndLeavesTheNameAlone) {
    std::string_view("before").copy(file.data(), 6);
    {
        FileDialogUser user(owner, std::nullopt);
        EXPECT_FALSE(GetOpenFileNameA(&dialog));
    }
    EXPECT_EQ(std::string_view(file.data()), "before");
    FileDialogUser user(owner, std::nullopt);
    EXPECT_FALSE(GetSaveFileNameA(&dialog));
    EXPECT_EQ(std::string_view(file.data()), "before");
}

TEST_F(FileDialogs, TitleAndNameStandOnTheDialog) {
    std::string_view("mine.pns").copy(file.data(), 8);
    FileDialogUser user(owner, std::nullopt);
    EXPECT_FALSE(GetOpenFileNameA(&dialog));
    EXPECT_EQ(user.seen().title, "Open It As");
    EXPECT_EQ(user.seen().name, "mine.pns");
}

TEST_F(FileDialogs, TheOwnerIsDisabledWhileTheDialogIsUp) {
    FileDialogUser user(owner, std::nullopt);
    EXPECT_FALSE(GetOpenFileNameA(&dialog));
    EXPECT_FALSE(user.seen().ownerEnabled);
    EXPECT_TRUE(IsWindowEnabled(owner));
}

}  // namespace
