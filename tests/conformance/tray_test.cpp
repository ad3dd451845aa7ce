#include <gtest/gtest.h>
#include <string_view>

#include "platform/api/kernel32.h"
#include "platform/api/shell32.h"
#include "platform/api/user32.h"

using namespace win;

namespace {

class Tray : public testing::Test {
protected:
    Tray() {
        window = makeWindow();
        data.cbSize = sizeof data;
        data.hWnd = window;
        data.uID = 1;
        data.uFlags = NIF_MESSAGE | NIF_ICON | NIF_TIP;
        data.uCallbackMessage = WM_MOUSEMOVE;
        std::string_view("Tip").copy(data.szTip, sizeof data.szTip);
    }
    ~Tray() override {
        Shell_NotifyIconA(NIM_DELETE, &data);
        DestroyWindow(window);
    }

    static HWND makeWindow() {
        return CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr,
                               GetModuleHandleA(nullptr), nullptr);
    }

    HWND window = nullptr;
    NOTIFYICONDATAA_V1 data{};
};

TEST_F(Tray, AnIconIsAddedOnceAndDeletedOnce) {
    EXPECT_TRUE(Shell_NotifyIconA(NIM_ADD, &data));
    EXPECT_FALSE(Shell_NotifyIconA(NIM_ADD, &data));
    EXPECT_TRUE(Shell_NotifyIconA(NIM_DELETE, &data));
    EXPECT_FALSE(Shell_NotifyIconA(NIM_DELETE, &data));
}

TEST_F(Tray, OnlyAKnownIconCanBeChanged) {
    EXPECT_FALSE(Shell_NotifyIconA(NIM_MODIFY, &data));
    Shell_NotifyIconA(NIM_ADD, &data);
    data.uFlags = NIF_TIP;
    EXPECT_TRUE(Shell_NotifyIconA(NIM_MODIFY, &data));
    data.uFlags = 0;
    EXPECT_TRUE(Shell_NotifyIconA(NIM_MODIFY, &data));
}

TEST_F(Tray, IconsOfAWindowAreToldApartByTheirNumber) {
    EXPECT_TRUE(Shell_NotifyIconA(NIM_ADD, &data));
    NOTIFYICONDATAA_V1 second = data;
    second.uID = 2;
    EXPECT_FALSE(Shell_NotifyIconA(NIM_MODIFY, &second));
    EXPECT_TRUE(Shell_NotifyIconA(NIM_ADD, &second));
    EXPECT_TRUE(Shell_NotifyIconA(NIM_DELETE, &second));
    EXPECT_TRUE(Shell_NotifyIconA(NIM_MODIFY, &data));
}

TEST_F(Tray, IconsAreToldApartByTheirWindow) {
    EXPECT_TRUE(Shell_NotifyIconA(NIM_ADD, &data));
    NOTIFYICONDATAA_V1 other = data;
    other.hWnd = makeWindow();
    EXPECT_TRUE(Shell_NotifyIconA(NIM_ADD, &other));
    EXPECT_TRUE(Shell_NotifyIconA(NIM_DELETE, &other));
    DestroyWindow(other.hWnd);
}

TEST_F(Tray, TheIconOfAWindowThatIsGoneCannotBeDeleted) {
    NOTIFYICONDATAA_V1 gone = data;
    gone.hWnd = makeWindow();
    EXPECT_TRUE(Shell_NotifyIconA(NIM_ADD, &gone));
    DestroyWindow(gone.hWnd);
    // The shell looks after its icons now and then; a call for another one is not enough.
    BOOL deleted = true;
    for (int tries = 0; deleted && tries < 50; ++tries) {
        Sleep(20);
        gone.uFlags = 0;
        deleted = Shell_NotifyIconA(NIM_MODIFY, &gone);
    }
    EXPECT_FALSE(deleted);
    EXPECT_FALSE(Shell_NotifyIconA(NIM_DELETE, &gone));
}

}  // namespace
