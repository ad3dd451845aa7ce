// What the memory desktop's controls do not know, they refuse by name.
#include <gtest/gtest.h>

#include "platform/api/comctl32.h"
#include "platform/api/user32.h"

namespace {

using namespace win;

LRESULT procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return DefWindowProcA(window, message, wParam, lParam);
}

HWND makeParent() {
    const INITCOMMONCONTROLSEX classes{sizeof classes,
                                       ICC_LISTVIEW_CLASSES | ICC_BAR_CLASSES | ICC_TAB_CLASSES};
    InitCommonControlsEx(&classes);
    WNDCLASSEXA definition{};
    definition.cbSize = sizeof definition;
    definition.lpfnWndProc = procedure;
    definition.lpszClassName = "Parent";
    RegisterClassExA(&definition);
    return CreateWindowExA(0, "Parent", "", WS_OVERLAPPEDWINDOW, 0, 0, 400, 300, nullptr, nullptr,
                           nullptr, nullptr);
}

HWND make(const char* className, DWORD style) {
    static HWND parent = makeParent();
    return CreateWindowExA(0, className, "", WS_CHILD | WS_VISIBLE | style, 0, 0, 100, 100, parent,
                           nullptr, nullptr, nullptr);
}

struct Unknown {
    const char* className;
    DWORD style;
    UINT message;
    WPARAM wParam;
    const char* refusal;
};

class ControlRefusals : public testing::TestWithParam<Unknown> {};

TEST_P(ControlRefusals, AnUnknownMessageOrKeyEndsTheTest) {
    const Unknown& unknown = GetParam();
    HWND control = make(unknown.className, unknown.style);
    EXPECT_DEATH(SendMessageA(control, unknown.message, unknown.wParam, 0), unknown.refusal);
}

constexpr DWORD report = LVS_REPORT;
constexpr DWORD list = CBS_DROPDOWNLIST;

INSTANTIATE_TEST_SUITE_P(
    Messages, ControlRefusals,
    testing::Values(Unknown{"BUTTON", 0, 0x00F2, 0, "button message"},
                    Unknown{"BUTTON", BS_AUTOCHECKBOX, BM_SETCHECK, 2, "check state"},
                    Unknown{"BUTTON", 0, BM_SETSTYLE, 4, "button type"},
                    Unknown{"STATIC", SS_BITMAP, STM_GETIMAGE, IMAGE_BITMAP, "picture that sizes"},
                    Unknown{"STATIC", SS_LEFT, STM_GETIMAGE, IMAGE_BITMAP, "picture in a static"},
                    Unknown{"EDIT", ES_AUTOHSCROLL, 0x00C2, 0, "text box's message"},
                    Unknown{"EDIT", ES_AUTOHSCROLL, WM_CHAR, 3, "control character"},
                    Unknown{"COMBOBOX", list, 0x014F, 0, "combo box's message"},
                    Unknown{"COMBOBOX", list, WM_KEYDOWN, VK_F4, "key in a combo box"},
                    Unknown{"COMBOBOX", list, WM_LBUTTONDOWN, 0, "opening of a combo box's list"},
                    Unknown{WC_LISTVIEWA, report, 0x1051, 0, "list view's message"},
                    Unknown{WC_LISTVIEWA, report, WM_KEYDOWN, VK_NEXT, "key in a list view"},
                    Unknown{WC_LISTVIEWA, report, WM_CHAR, 'a', "search in a list view"},
                    Unknown{WC_LISTVIEWA, report, WM_LBUTTONDOWN, 0, "mouse in a list view"},
                    Unknown{WC_TABCONTROLA, 0, 0x1308, 0, "tab control's message"},
                    Unknown{STATUSCLASSNAMEA, 0, 0x0409, 0, "status bar's message"},
                    Unknown{STATUSCLASSNAMEA, 0, SB_SETTEXTA, 0x100, "drawing of a status bar"}));

TEST(ControlStyleRefusals, AnUnknownStyleEndsTheTest) {
    EXPECT_DEATH(make("COMBOBOX", 0x0001), "combo box of style");
    EXPECT_DEATH(make(WC_LISTVIEWA, 0), "view of a list view");
    EXPECT_DEATH(make("BUTTON", 0x0100), "style of a Button");
}

}  // namespace
