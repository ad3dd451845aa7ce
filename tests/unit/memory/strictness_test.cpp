// What the memory desktop does not know ends the process and is named.
#include <gtest/gtest.h>

#include "platform/api/comctl32.h"
#include "platform/api/gdi32.h"
#include "platform/api/user32.h"
#include "platform/memory/driver.h"

using namespace win;
namespace driver = win::memory::driver;

namespace {

HWND popup(DWORD style = 0) {
    return CreateWindowExA(0, "STATIC", "popup", WS_POPUP | WS_VISIBLE | style, 10, 10, 100, 100,
                           nullptr, nullptr, nullptr, nullptr);
}

HWND list() {
    INITCOMMONCONTROLSEX classes{sizeof classes, ICC_LISTVIEW_CLASSES};
    InitCommonControlsEx(&classes);
    return CreateWindowExA(0, WC_LISTVIEWA, "", WS_CHILD | LVS_REPORT, 0, 0, 50, 50, popup(),
                           nullptr, nullptr, nullptr);
}

TEST(Strictness, AnUnknownClassIsRefused) {
    EXPECT_DEATH(
        CreateWindowExA(0, "Nowhere", "", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr),
        "class of a new window: Nowhere");
}

TEST(Strictness, AControlOfAClassThatWasNotAskedForIsRefused) {
    EXPECT_DEATH(CreateWindowExA(0, WC_LISTVIEWA, "", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr,
                                 nullptr, nullptr),
                 "class of a new window: SysListView32");
}

TEST(Strictness, AnUnknownStyleIsRefused) {
    EXPECT_DEATH(popup(0x8000), "style of a Static");
}

TEST(Strictness, AnUnknownMessageToAListIsRefused) {
    HWND window = list();
    constexpr UINT arrange = 0x1016;  // LVM_ARRANGE
    EXPECT_DEATH(SendMessageA(window, arrange, 0, 0), "0x1016");
}

TEST(Strictness, AnUnknownMessageToAWindowIsRefused) {
    HWND window = popup();
    EXPECT_DEATH(SendMessageA(window, WM_APP + 3, 0, 0), "message to a Static.*0x8003");
}

TEST(Strictness, AStaleWindowIsRefused) {
    HWND window = popup();
    DestroyWindow(window);
    EXPECT_FALSE(IsWindow(window));
    EXPECT_DEATH(ShowWindow(window, SW_HIDE), "no such window");
    EXPECT_DEATH(SendMessageA(nullptr, WM_NULL, 0, 0), "no such window");
}

TEST(Strictness, AHandleIsNeverGivenTwice) {
    HWND first = popup();
    DestroyWindow(first);
    EXPECT_NE(popup(), first);
}

TEST(Strictness, AnUnansweredBoxIsRefused) {
    EXPECT_DEATH(MessageBoxA(nullptr, "Sure?", "Question", MB_YESNO),
                 "message box without an answer: Sure");
    EXPECT_DEATH(
        {
            driver::answerMessageBox(IDOK);
            MessageBoxA(nullptr, "Sure?", "Question", MB_YESNO);
        },
        "does not have the button");
}

TEST(Strictness, AnUnansweredMenuIsRefused) {
    HWND owner = popup();
    HMENU menu = CreatePopupMenu();
    EXPECT_DEATH(TrackPopupMenu(menu, TPM_RETURNCMD, 0, 0, 0, owner, nullptr),
                 "popup menu: without an answer");
    EXPECT_DEATH(
        {
            driver::choose("Nothing");
            TrackPopupMenu(menu, TPM_RETURNCMD, 0, 0, 0, owner, nullptr);
        },
        "no line of the menu: Nothing");
    DestroyMenu(menu);
    EXPECT_DEATH(GetMenuItemCount(menu), "no menu");
}

TEST(Strictness, ALoopThatWaitsForNothingIsRefused) {
    MSG message{};
    EXPECT_DEATH(GetMessageA(&message, nullptr, 0, 0), "waits with nothing to come");
    HWND window = popup();
    SetTimer(window, 1, 1000, nullptr);
    EXPECT_DEATH(GetMessageA(&message, window, WM_COMMAND, WM_COMMAND), "filter shuts out");
    EXPECT_DEATH(while (GetMessageA(&message, nullptr, 0, 0)) DispatchMessageA(&message),
                 "waits for a day");
    DestroyWindow(window);
}

TEST(Strictness, AMouseThatCannotGetThereIsRefused) {
    HWND below = popup(SS_NOTIFY);
    HWND above = popup(SS_NOTIFY);
    EXPECT_DEATH(driver::click(below, {5, 5}), "covered window");
    EXPECT_DEATH(driver::click(above, {500, 5}), "beside the window");
    ShowWindow(above, SW_HIDE);
    EXPECT_DEATH(driver::click(above, {5, 5}), "hidden window");
}

TEST(Strictness, ADragWithoutATargetIsRefused) {
    HWND window = popup();
    EXPECT_DEATH(SendMessageA(window, WM_NCLBUTTONDOWN, static_cast<WPARAM>(HTCAPTION), 0),
                 "drag without a target");
}

TEST(Strictness, WhatIsNoObjectCannotBeDeleted) {
    EXPECT_DEATH(DeleteObject(GetSysColorBrush(COLOR_BTNFACE)), "deleted what is no object");
    EXPECT_DEATH(DestroyIcon(nullptr), "icon that is not owned");
}

}  // namespace
