// The class "Static".
#include <gmock/gmock.h>
#include <string>

#include "platform/api/gdi32.h"
#include "platform/api/kernel32.h"
#include "tests/conformance/parent.h"
#include "tests/conformance/test_folder.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// A picture of one pixel, from a file.
win::HANDLE loadPicture() {
    const TestFolder folder;
    const std::string path = folder.path("picture.bmp");
    std::string bytes(58, '\0');
    bytes[0] = 'B', bytes[1] = 'M';
    bytes[2] = 58;   // size of the file
    bytes[10] = 54;  // where the pixels begin
    bytes[14] = 40;  // size of the second header
    bytes[18] = 1, bytes[22] = 1;
    bytes[26] = 1;   // planes
    bytes[28] = 24;  // bits of a pixel
    bytes[34] = 4;
    win::HANDLE file = win::CreateFileA(path.c_str(), win::GENERIC_WRITE, 0, nullptr,
                                        win::CREATE_ALWAYS, win::FILE_ATTRIBUTE_NORMAL, nullptr);
    win::DWORD written = 0;
    win::WriteFile(file, bytes, &written, nullptr);
    win::CloseHandle(file);
    return win::LoadImageA(nullptr, path.c_str(), win::IMAGE_BITMAP, 0, 0, win::LR_LOADFROMFILE);
}

struct Static : testing::Test {
    Parent parent;

    win::HWND make(win::DWORD style) {
        return parent.add("STATIC", style, {10, 10, 90, 35}, "&Label");
    }
    win::LRESULT hitTest(win::HWND label) {
        win::POINT at{20, 20};
        win::ClientToScreen(parent.window(), &at);
        return win::SendMessageA(label, win::WM_NCHITTEST, 0, win::makeLParam(at.x, at.y));
    }
};

TEST_F(Static, ALabelIsNothingForTheMouse) {
    win::HWND label = make(win::SS_LEFT);
    EXPECT_EQ(win::SendMessageA(label, win::WM_GETDLGCODE, 0, 0), win::DLGC_STATIC);
    EXPECT_EQ(hitTest(label), win::HTTRANSPARENT);
    click(label, 5, 5);
    EXPECT_THAT(parent.takeCommands(), IsEmpty());
}

TEST_F(Static, KeepsItsText) {
    win::HWND label = make(win::SS_LEFT);
    char text[20] = "";
    EXPECT_EQ(win::GetWindowTextA(label, text), 6);
    EXPECT_STREQ(text, "&Label");
    EXPECT_TRUE(win::SetWindowTextA(label, "other"));
    EXPECT_EQ(win::GetWindowTextLengthA(label), 5);
}

TEST_F(Static, ATalkativeOneTakesTheMouse) {
    win::HWND label = make(win::SS_NOTIFY);
    EXPECT_EQ(hitTest(label), win::HTCLIENT);
    click(label, 5, 5);
    EXPECT_THAT(parent.takeCommands(), ElementsAre(win::STN_CLICKED));
    secondClick(label, 5, 5);
    EXPECT_THAT(parent.takeCommands(), ElementsAre(win::STN_DBLCLK));
}

TEST_F(Static, APictureComesBackWhenTheNextIsSet) {
    for (win::DWORD sizing : {win::SS_REALSIZECONTROL, win::SS_CENTERIMAGE}) {
        win::HWND frame = make(win::SS_BITMAP | sizing);
        const auto set = [&](win::HANDLE picture) {
            return reinterpret_cast<win::HANDLE>(
                win::SendMessageA(frame, win::STM_SETIMAGE, win::IMAGE_BITMAP,
                                  reinterpret_cast<win::LPARAM>(picture)));
        };
        const auto get = [&] {
            return reinterpret_cast<win::HANDLE>(
                win::SendMessageA(frame, win::STM_GETIMAGE, win::IMAGE_BITMAP, 0));
        };
        EXPECT_EQ(get(), nullptr);
        win::HANDLE first = loadPicture();
        win::HANDLE second = loadPicture();
        ASSERT_NE(first, nullptr);
        ASSERT_NE(second, first);
        EXPECT_EQ(set(first), nullptr);
        EXPECT_EQ(get(), first);
        EXPECT_EQ(set(second), first);
        EXPECT_EQ(set(nullptr), second);
        EXPECT_EQ(get(), nullptr);
        win::RECT size{};
        win::GetClientRect(frame, &size);
        EXPECT_EQ(size.right, 80);
        EXPECT_EQ(size.bottom, 25);
        win::DeleteObject(first);
        win::DeleteObject(second);
    }
}

}  // namespace
