#include <array>
#include <gtest/gtest.h>
#include <string>
#include <string_view>

#include "platform/api/kernel32.h"
#include "platform/api/user32.h"

using namespace win;

namespace {

constexpr DWORD clipboardNotOpen = 1418;
constexpr DWORD invalidWindowHandle = 1400;

HWND makeWindow() {
    return CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr,
                           GetModuleHandleA(nullptr), nullptr);
}

HGLOBAL memoryWith(std::string_view text) {
    HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, text.size() + 1);
    auto* bytes = static_cast<char*>(GlobalLock(memory));
    bytes[text.copy(bytes, text.size())] = '\0';
    GlobalUnlock(memory);
    return memory;
}

std::string textIn(HANDLE memory) {
    const std::string text = static_cast<char*>(GlobalLock(memory));
    GlobalUnlock(memory);
    return text;
}

class ClipboardTest : public testing::Test {
protected:
    void TearDown() override { DestroyWindow(window); }

    HWND window = makeWindow();
};

TEST_F(ClipboardTest, TextPutThereStays) {
    ASSERT_TRUE(OpenClipboard(window));
    EXPECT_TRUE(EmptyClipboard());
    HGLOBAL memory = memoryWith("hello");
    EXPECT_EQ(SetClipboardData(CF_TEXT, memory), memory);
    EXPECT_EQ(textIn(GetClipboardData(CF_TEXT)), "hello");
    EXPECT_TRUE(CloseClipboard());

    ASSERT_TRUE(OpenClipboard(nullptr));
    HANDLE found = GetClipboardData(CF_TEXT);
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(textIn(found), "hello");
    EXPECT_GE(GlobalSize(found), 6u);
    EXPECT_TRUE(CloseClipboard());
}

TEST_F(ClipboardTest, AnEmptiedClipboardHasNoText) {
    OpenClipboard(window);
    EmptyClipboard();
    SetClipboardData(CF_TEXT, memoryWith("hello"));
    EXPECT_TRUE(EmptyClipboard());
    EXPECT_EQ(GetClipboardData(CF_TEXT), nullptr);
    CloseClipboard();
}

TEST_F(ClipboardTest, ItIsEmptiedWithoutAWindowAsWell) {
    OpenClipboard(window);
    EmptyClipboard();
    SetClipboardData(CF_TEXT, memoryWith("hello"));
    CloseClipboard();
    EXPECT_TRUE(OpenClipboard(nullptr));
    EXPECT_TRUE(EmptyClipboard());
    EXPECT_EQ(GetClipboardData(CF_TEXT), nullptr);
    CloseClipboard();
}

TEST_F(ClipboardTest, ALaterTextTakesThePlaceOfTheFirst) {
    OpenClipboard(window);
    EmptyClipboard();
    SetClipboardData(CF_TEXT, memoryWith("one"));
    SetClipboardData(CF_TEXT, memoryWith("two, and longer"));
    EXPECT_EQ(textIn(GetClipboardData(CF_TEXT)), "two, and longer");
    CloseClipboard();
}

TEST_F(ClipboardTest, NothingWorksWhileItIsNotOpen) {
    EXPECT_FALSE(EmptyClipboard());
    EXPECT_EQ(GetLastError(), clipboardNotOpen);
    SetLastError(0);
    EXPECT_EQ(GetClipboardData(CF_TEXT), nullptr);
    EXPECT_EQ(GetLastError(), clipboardNotOpen);
    SetLastError(0);
    EXPECT_FALSE(CloseClipboard());
    EXPECT_EQ(GetLastError(), clipboardNotOpen);
    SetLastError(0);
    HGLOBAL memory = memoryWith("lost");
    EXPECT_EQ(SetClipboardData(CF_TEXT, memory), nullptr);
    EXPECT_EQ(GetLastError(), clipboardNotOpen);
    GlobalFree(memory);
}

TEST_F(ClipboardTest, OnlyTheWindowThatOpenedItMayOpenItAgain) {
    HWND other = makeWindow();
    ASSERT_TRUE(OpenClipboard(window));
    EXPECT_TRUE(OpenClipboard(window));
    EXPECT_FALSE(OpenClipboard(other));
    EXPECT_EQ(GetLastError(), ERROR_ACCESS_DENIED);
    CloseClipboard();
    EXPECT_TRUE(OpenClipboard(other));
    CloseClipboard();
    DestroyWindow(other);
}

TEST_F(ClipboardTest, AWindowThatIsGoneCannotOpenIt) {
    HWND gone = makeWindow();
    DestroyWindow(gone);
    EXPECT_FALSE(OpenClipboard(gone));
    EXPECT_EQ(GetLastError(), invalidWindowHandle);
}

}  // namespace
