// The class "tooltips_class32".
#include <gmock/gmock.h>
#include <string>

#include "tests/conformance/parent.h"

namespace {

struct ToolTip : testing::Test {
    Parent parent;
    win::HWND first = parent.add("STATIC", win::SS_NOTIFY, {0, 0, 50, 20});
    win::HWND second = parent.add("STATIC", win::SS_NOTIFY, {0, 30, 50, 50});
    win::HWND tips = win::CreateWindowExA(win::WS_EX_TOPMOST, win::TOOLTIPS_CLASSA, "",
                                          win::WS_POPUP | win::TTS_ALWAYSTIP | win::TTS_NOPREFIX, 0,
                                          0, 10, 10, parent.window(), nullptr, nullptr, nullptr);

    win::LRESULT send(win::UINT message, win::HWND about, char* text) {
        win::TTTOOLINFOA tool{};
        tool.cbSize = sizeof tool;
        tool.uFlags = win::TTF_IDISHWND | win::TTF_SUBCLASS;
        tool.hwnd = parent.window();
        tool.uId = reinterpret_cast<win::UINT_PTR>(about);
        tool.lpszText = text;
        return win::SendMessageA(tips, message, 0, reinterpret_cast<win::LPARAM>(&tool));
    }
    win::LRESULT tell(win::UINT message, win::HWND about, std::string text = {}) {
        return send(message, about, text.data());
    }
    std::string text(win::HWND about) {
        char buffer[100] = "untouched";
        send(win::TTM_GETTEXTA, about, buffer);
        return buffer;
    }
    win::LRESULT count() { return win::SendMessageA(tips, win::TTM_GETTOOLCOUNT, 0, 0); }
};

TEST_F(ToolTip, BeginsWithoutToolsAndOutOfSight) {
    EXPECT_EQ(count(), 0);
    EXPECT_FALSE(win::IsWindowVisible(tips));
    EXPECT_EQ(win::GetWindow(tips, win::GW_OWNER), parent.window());
}

TEST_F(ToolTip, KeepsATextForEachTool) {
    EXPECT_TRUE(tell(win::TTM_ADDTOOLA, first, "one"));
    EXPECT_TRUE(tell(win::TTM_ADDTOOLA, second, "two"));
    EXPECT_EQ(count(), 2);
    EXPECT_EQ(text(first), "one");
    EXPECT_EQ(text(second), "two");
}

TEST_F(ToolTip, ChangesTheTextOfAToolItKnows) {
    tell(win::TTM_UPDATETIPTEXTA, first, "early");
    EXPECT_EQ(count(), 0);
    tell(win::TTM_ADDTOOLA, first, "one");
    tell(win::TTM_UPDATETIPTEXTA, first, "another");
    EXPECT_EQ(text(first), "another");
    tell(win::TTM_UPDATETIPTEXTA, first, "");
    EXPECT_EQ(text(first), "");
}

TEST_F(ToolTip, ForgetsATool) {
    tell(win::TTM_ADDTOOLA, first, "one");
    tell(win::TTM_ADDTOOLA, second, "two");
    tell(win::TTM_DELTOOLA, first);
    tell(win::TTM_DELTOOLA, first);
    EXPECT_EQ(count(), 1);
    EXPECT_EQ(text(first), "untouched");
    EXPECT_EQ(text(second), "two");
}

TEST_F(ToolTip, AToolAddedTwiceHasToBeForgottenTwice) {
    tell(win::TTM_ADDTOOLA, first, "one");
    tell(win::TTM_ADDTOOLA, first, "one");
    EXPECT_EQ(count(), 2);
    tell(win::TTM_DELTOOLA, first);
    EXPECT_EQ(text(first), "one");
}

TEST_F(ToolTip, AToolMayBeAPartOfAWindow) {
    win::TTTOOLINFOA tool{};
    tool.cbSize = sizeof tool;
    tool.uFlags = win::TTF_SUBCLASS;
    tool.hwnd = first;
    tool.rect = {0, 0, 10, 10};
    char left[] = "left";
    char right[] = "right";
    tool.lpszText = left;
    EXPECT_TRUE(
        win::SendMessageA(tips, win::TTM_ADDTOOLA, 0, reinterpret_cast<win::LPARAM>(&tool)));
    tool.uId = 1;
    tool.rect = {10, 0, 50, 10};
    tool.lpszText = right;
    EXPECT_TRUE(
        win::SendMessageA(tips, win::TTM_ADDTOOLA, 0, reinterpret_cast<win::LPARAM>(&tool)));
    EXPECT_EQ(count(), 2);
    char buffer[100] = "";
    tool.lpszText = buffer;
    win::SendMessageA(tips, win::TTM_GETTEXTA, 0, reinterpret_cast<win::LPARAM>(&tool));
    EXPECT_STREQ(buffer, "right");
    win::SendMessageA(tips, win::TTM_DELTOOLA, 0, reinterpret_cast<win::LPARAM>(&tool));
    EXPECT_EQ(count(), 1);
}

}  // namespace
