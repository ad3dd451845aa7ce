// IsDialogMessageA on a window that is no dialog of the platform's own.
#include <gmock/gmock.h>

#include "tests/conformance/hand.h"
#include "tests/conformance/log_window.h"

using namespace win;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class DialogKeys : public testing::Test {
protected:
    DialogKeys() { listenFor({WM_COMMAND, WM_KEYDOWN, WM_CHAR}); }

    HWND add(const char* className, const char* text, int id, DWORD style, HWND parent) {
        return CreateWindowExA(0, className, text, WS_CHILD | WS_VISIBLE | style, 10,
                               10 + 25 * count++, 80, 20, parent,
                               reinterpret_cast<HMENU>(std::intptr_t{id}), nullptr, nullptr);
    }

    HWND button(const char* text, int id, DWORD style = WS_TABSTOP) {
        return add("BUTTON", text, id, style, form);
    }

    // Through the queue, as a real loop does it.
    void key(int virtualKey) {
        PostMessageA(GetFocus() ? GetFocus() : HWND(form), WM_KEYDOWN,
                     static_cast<WPARAM>(virtualKey), 1);
        desk::pump(form);
    }

    void character(UINT message, char letter) {
        PostMessageA(GetFocus(), message, static_cast<WPARAM>(letter), 1);
        desk::pump(form);
    }

    int count = 0;
    LogWindow form{"form", {.style = WS_POPUP | WS_VISIBLE, .place = {20, 20, 320, 420}}};
};

TEST_F(DialogKeys, TabGoesRoundTheStops) {
    HWND one = button("one", 1001);
    HWND label = button("label", 1002, 0);
    HWND hidden = button("hidden", 1003);
    ShowWindow(hidden, SW_HIDE);
    HWND disabled = button("disabled", 1004);
    EnableWindow(disabled, false);
    HWND two = button("two", 1005);
    SetFocus(one);
    key(VK_TAB);
    EXPECT_EQ(GetFocus(), two);
    key(VK_TAB);
    EXPECT_EQ(GetFocus(), one);
    SetFocus(label);
    key(VK_TAB);
    EXPECT_EQ(GetFocus(), two);
    SetFocus(form);
    key(VK_TAB);
    EXPECT_EQ(GetFocus(), one);
}

TEST_F(DialogKeys, ShiftGoesBackward) {
    HWND one = button("one", 1001);
    HWND two = button("two", 1002);
    HWND three = button("three", 1003);
    auto backward = [this] {
        hand::keyDown(VK_SHIFT);
        hand::keyDown(VK_TAB);
        hand::keyUp(VK_TAB);
        hand::keyUp(VK_SHIFT);
        hand::settle(form);
        return GetFocus();
    };
    SetFocus(two);
    EXPECT_EQ(backward(), one);
    EXPECT_EQ(backward(), three);
    SetFocus(form);
    EXPECT_EQ(backward(), form);
}

TEST_F(DialogKeys, ContainersAreEnteredWhenTheySaySo) {
    HWND one = button("one", 1001);
    HWND closed = add("STATIC", "", 1002, SS_NOTIFY, form);
    add("BUTTON", "unreachable", 1003, WS_TABSTOP, closed);
    HWND open = add("STATIC", "", 1004, SS_NOTIFY, form);
    SetWindowLongPtrA(open, GWL_EXSTYLE, WS_EX_CONTROLPARENT);
    HWND inner = add("BUTTON", "inner", 1005, WS_TABSTOP, open);
    HWND last = button("last", 1006);
    SetFocus(one);
    key(VK_TAB);
    EXPECT_EQ(GetFocus(), inner);
    key(VK_TAB);
    EXPECT_EQ(GetFocus(), last);
    ShowWindow(open, SW_HIDE);
    SetFocus(one);
    key(VK_TAB);
    EXPECT_EQ(GetFocus(), last);
}

TEST_F(DialogKeys, WithoutAStopTabIsAnOrdinaryKey) {
    button("label", 1001, 0);
    SetFocus(form);
    heard();
    MSG message{form, WM_KEYDOWN, static_cast<WPARAM>(VK_TAB), 1, 0, {}};
    IsDialogMessageA(form, &message);
    EXPECT_EQ(GetFocus(), form);
}

TEST_F(DialogKeys, ATextBoxIsEnteredWithItsTextSelected) {
    HWND one = button("one", 1001);
    HWND edit = add("EDIT", "text", 1002, WS_TABSTOP, form);
    SetFocus(one);
    key(VK_TAB);
    EXPECT_EQ(GetFocus(), edit);
    EXPECT_EQ(SendMessageA(edit, EM_GETSEL, 0, 0), makeLParam(0, 4));
}

TEST_F(DialogKeys, EscapeIsCancel) {
    HWND cancel = button("cancel", IDCANCEL);
    SetFocus(cancel);
    heard();
    key(VK_ESCAPE);
    EXPECT_THAT(heard(), ElementsAre("form command 2 0"));
}

TEST_F(DialogKeys, EnterPressesTheDefaultButtonThatTheWindowNames) {
    HWND one = button("one", 1001);
    HWND two = button("two", 1002);
    SetFocus(one);
    heard();
    key(VK_RETURN);
    EXPECT_THAT(heard(), ElementsAre("form command 1 0"));
    form.answer = [](UINT message, WPARAM, LPARAM) {
        return message == DM_GETDEFID ? std::optional<LRESULT>(makeLParam(1002, DC_HASDEFID))
                                      : std::nullopt;
    };
    key(VK_RETURN);
    EXPECT_THAT(heard(), ElementsAre("form command 1002 0"));
    EnableWindow(two, false);
    key(VK_RETURN);
    EXPECT_THAT(heard(), IsEmpty());
}

TEST_F(DialogKeys, EnterPressesAFocusedDefaultButton) {
    HWND one = button("one", 1001, WS_TABSTOP | BS_DEFPUSHBUTTON);
    SetFocus(one);
    heard();
    key(VK_RETURN);
    EXPECT_THAT(heard(), ElementsAre("form command 1001 0"));
}

TEST_F(DialogKeys, AnAccessKeyClicksItsButton) {
    button("&first", 1001);
    HWND two = button("se&cond && last", 1002);
    LogWindow inside("inside", {.style = WS_CHILD | WS_VISIBLE, .parent = form});
    add("BUTTON", "&inner", 1004, WS_TABSTOP, inside);
    SetFocus(two);
    heard();
    character(WM_CHAR, 'f');
    character(WM_CHAR, 'C');
    character(WM_SYSCHAR, 'i');
    EXPECT_THAT(heard(),
                ElementsAre("form command 1001 0", "form command 1002 0", "inside command 1004 0"));
    EnableWindow(two, false);
    SetFocus(form);
    character(WM_SYSCHAR, 'f');
    EXPECT_THAT(heard(), ElementsAre("form command 1001 0"));
}

TEST_F(DialogKeys, AControlThatWantsItsKeysGetsThem) {
    LogWindow wants("wants", {.style = WS_CHILD | WS_VISIBLE, .parent = form});
    button("&x", 1001);
    LRESULT code = DLGC_WANTALLKEYS;
    wants.answer = [&](UINT message, WPARAM, LPARAM) {
        return message == WM_GETDLGCODE ? std::optional<LRESULT>(code) : std::nullopt;
    };
    SetFocus(wants);
    heard();
    for (int each : {VK_TAB, VK_ESCAPE, VK_RETURN, VK_LEFT}) key(each);
    character(WM_CHAR, 'x');
    EXPECT_EQ(GetFocus(), wants);
    EXPECT_THAT(heard(), ElementsAre("wants key down 9", "wants char 9", "wants key down 27",
                                     "wants char 27", "wants key down 13", "wants char 13",
                                     "wants key down 37", "wants char 120"));
    code = DLGC_WANTTAB | DLGC_WANTCHARS | DLGC_WANTARROWS;
    key(VK_TAB);
    key(VK_DOWN);
    character(WM_CHAR, 'x');
    EXPECT_THAT(heard(), ElementsAre("wants key down 9", "wants char 9", "wants key down 40",
                                     "wants char 120"));
}

TEST_F(DialogKeys, OtherKeysAreDelivered) {
    LogWindow child("child", {.style = WS_CHILD | WS_VISIBLE, .parent = form});
    SetFocus(child);
    heard();
    key(VK_HOME);
    key('Q');
    EXPECT_THAT(heard(), ElementsAre("child key down 36", "child key down 81", "child char 113"));
}

TEST_F(DialogKeys, MessagesOfOtherWindowsAreNotTheDialogs) {
    LogWindow other("other", {.style = WS_POPUP});
    MSG message{other, WM_KEYDOWN, static_cast<WPARAM>(VK_TAB), 0, 0, {}};
    EXPECT_FALSE(IsDialogMessageA(form, &message));
    MSG none{nullptr, WM_TIMER, 0, 0, 0, {}};
    EXPECT_FALSE(IsDialogMessageA(form, &none));
}

// A dialog of the platform's own would go on to the next control.
TEST_F(DialogKeys, ALabelsAccessKeyIsLeftToTheWindow) {
    HWND one = button("one", 1001);
    HWND label = add("STATIC", "&name", 1002, 0, form);
    add("EDIT", "", 1003, WS_TABSTOP, form);
    SetFocus(one);
    std::vector<std::pair<WPARAM, LPARAM>> asked;
    form.answer = [&](UINT message, WPARAM wParam, LPARAM lParam) {
        if (message == WM_NEXTDLGCTL) asked.emplace_back(wParam, lParam);
        return std::optional<LRESULT>();
    };
    character(WM_SYSCHAR, 'n');
    EXPECT_EQ(GetFocus(), one);
    EXPECT_THAT(asked, ElementsAre(std::pair(reinterpret_cast<WPARAM>(label), LPARAM{1}),
                                   std::pair(WPARAM{0}, LPARAM{0})));
}

}  // namespace
