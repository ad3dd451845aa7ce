// The class "Button".
#include <gmock/gmock.h>

#include "tests/conformance/parent.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct Button : testing::Test {
    Parent parent;

    win::HWND make(win::DWORD style) {
        return parent.add("BUTTON", style, {10, 10, 90, 35}, "&Press");
    }
    static win::LRESULT send(win::HWND button, win::UINT message, win::WPARAM wParam = 0) {
        return win::SendMessageA(button, message, wParam, 0);
    }
};

TEST_F(Button, TellsTheDialogWhatItIs) {
    EXPECT_EQ(send(make(win::BS_PUSHBUTTON), win::WM_GETDLGCODE),
              win::DLGC_BUTTON | win::DLGC_UNDEFPUSHBUTTON);
    EXPECT_EQ(send(make(win::BS_DEFPUSHBUTTON), win::WM_GETDLGCODE),
              win::DLGC_BUTTON | win::DLGC_DEFPUSHBUTTON);
    EXPECT_EQ(send(make(win::BS_AUTOCHECKBOX), win::WM_GETDLGCODE), win::DLGC_BUTTON);
    EXPECT_EQ(send(make(win::BS_GROUPBOX), win::WM_GETDLGCODE), win::DLGC_STATIC);
}

TEST_F(Button, OnlyAGroupBoxLetsTheMouseThrough) {
    win::HWND button = make(win::BS_PUSHBUTTON);
    win::HWND box = make(win::BS_GROUPBOX);
    win::POINT at{20, 20};
    win::ClientToScreen(parent.window(), &at);
    const win::LPARAM point = win::makeLParam(at.x, at.y);
    EXPECT_EQ(win::SendMessageA(button, win::WM_NCHITTEST, 0, point), win::HTCLIENT);
    EXPECT_EQ(win::SendMessageA(box, win::WM_NCHITTEST, 0, point), win::HTTRANSPARENT);
}

TEST_F(Button, AClickTakesTheFocusAndIsTold) {
    win::HWND button = make(win::BS_PUSHBUTTON);
    press(button, 5, 5);
    EXPECT_EQ(win::GetFocus(), button);
    EXPECT_EQ(win::GetCapture(), button);
    EXPECT_THAT(parent.takeCommands(), IsEmpty());
    release(button, 5, 5);
    EXPECT_EQ(win::GetCapture(), nullptr);
    EXPECT_THAT(parent.takeCommands(), ElementsAre(win::BN_CLICKED));
}

TEST_F(Button, AReleaseElsewhereIsNoClick) {
    win::HWND button = make(win::BS_AUTOCHECKBOX);
    press(button, 5, 5);
    release(button, 300, 5);
    EXPECT_EQ(win::GetCapture(), nullptr);
    release(button, 5, 5);
    EXPECT_THAT(parent.takeCommands(), IsEmpty());
    EXPECT_EQ(send(button, win::BM_GETCHECK), 0);
}

TEST_F(Button, APressWhoseCaptureIsLostIsNoClick) {
    win::HWND button = make(win::BS_PUSHBUTTON);
    press(button, 5, 5);
    win::ReleaseCapture();
    release(button, 5, 5);
    EXPECT_THAT(parent.takeCommands(), IsEmpty());
}

TEST_F(Button, TheSecondPressOfADoubleClickPressesAgain) {
    win::HWND button = make(win::BS_PUSHBUTTON);
    click(button, 5, 5);
    secondClick(button, 5, 5);
    EXPECT_THAT(parent.takeCommands(), ElementsAre(win::BN_CLICKED, win::BN_CLICKED));
}

TEST_F(Button, ATalkativeOneTellsOfFocusAndDoubleClicks) {
    win::HWND button = make(win::BS_AUTOCHECKBOX | win::BS_NOTIFY);
    win::SetFocus(button);
    EXPECT_THAT(parent.takeCommands(), ElementsAre(win::BN_SETFOCUS));
    secondClick(button, 5, 5);
    EXPECT_THAT(parent.takeCommands(), ElementsAre(win::BN_DOUBLECLICKED));
    win::SetFocus(parent.window());
    EXPECT_THAT(parent.takeCommands(), ElementsAre(win::BN_KILLFOCUS));
}

TEST_F(Button, TheSpaceBarClicksWhenItComesUp) {
    win::HWND button = make(win::BS_DEFPUSHBUTTON);
    win::SetFocus(button);
    pressKey(button, win::VK_SPACE);
    EXPECT_THAT(parent.takeCommands(), IsEmpty());
    releaseKey(button, win::VK_SPACE);
    EXPECT_THAT(parent.takeCommands(), ElementsAre(win::BN_CLICKED));
}

TEST_F(Button, OtherKeysDoNothing) {
    win::HWND button = make(win::BS_PUSHBUTTON);
    win::SetFocus(button);
    pressKey(button, win::VK_RETURN);
    releaseKey(button, win::VK_RETURN);
    EXPECT_THAT(parent.takeCommands(), IsEmpty());
}

TEST_F(Button, LosingTheFocusEndsAPress) {
    win::HWND button = make(win::BS_PUSHBUTTON);
    win::SetFocus(button);
    pressKey(button, win::VK_SPACE);
    win::SetFocus(parent.window());
    releaseKey(button, win::VK_SPACE);
    EXPECT_THAT(parent.takeCommands(), IsEmpty());
    EXPECT_EQ(win::GetCapture(), nullptr);
}

TEST_F(Button, CanBeClickedByMessage) {
    win::HWND button = make(win::BS_PUSHBUTTON);
    EXPECT_EQ(send(button, win::BM_CLICK), 0);
    EXPECT_THAT(parent.takeCommands(), ElementsAre(win::BN_CLICKED));
}

TEST_F(Button, ACheckBoxTurnsOverBeforeTheClickIsTold) {
    win::HWND box = make(win::BS_AUTOCHECKBOX);
    click(box, 5, 5);
    EXPECT_EQ(send(box, win::BM_GETCHECK), 1);
    EXPECT_THAT(parent.takeCommands(), ElementsAre(win::BN_CLICKED));
    click(box, 5, 5);
    EXPECT_EQ(send(box, win::BM_GETCHECK), 0);
}

TEST_F(Button, SettingACheckTellsNobody) {
    win::HWND box = make(win::BS_AUTOCHECKBOX);
    EXPECT_EQ(send(box, win::BM_SETCHECK, win::BST_CHECKED), 0);
    EXPECT_EQ(send(box, win::BM_GETCHECK), 1);
    EXPECT_EQ(send(box, win::BM_SETCHECK, win::BST_UNCHECKED), 0);
    EXPECT_EQ(send(box, win::BM_GETCHECK), 0);
    EXPECT_THAT(parent.takeCommands(), IsEmpty());
}

TEST_F(Button, APushButtonKeepsNoCheck) {
    win::HWND button = make(win::BS_PUSHBUTTON);
    send(button, win::BM_SETCHECK, win::BST_CHECKED);
    EXPECT_EQ(send(button, win::BM_GETCHECK), 0);
    click(button, 5, 5);
    EXPECT_EQ(send(button, win::BM_GETCHECK), 0);
}

TEST_F(Button, BecomesTheDefaultAndBack) {
    win::HWND button = make(win::BS_PUSHBUTTON | win::BS_NOTIFY);
    EXPECT_EQ(send(button, win::BM_SETSTYLE, win::BS_DEFPUSHBUTTON), 0);
    EXPECT_EQ(win::GetWindowLongPtrA(button, win::GWL_STYLE) & 0xFFFF,
              static_cast<win::LONG_PTR>(win::BS_DEFPUSHBUTTON | win::BS_NOTIFY));
    EXPECT_EQ(send(button, win::WM_GETDLGCODE), win::DLGC_BUTTON | win::DLGC_DEFPUSHBUTTON);
    send(button, win::BM_SETSTYLE, win::BS_PUSHBUTTON);
    EXPECT_EQ(send(button, win::WM_GETDLGCODE), win::DLGC_BUTTON | win::DLGC_UNDEFPUSHBUTTON);
}

}  // namespace
