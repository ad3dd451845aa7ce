// The class "Edit", one line.
#include <gmock/gmock.h>
#include <string>
#include <utility>

#include "tests/conformance/parent.h"

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

using Range = std::pair<win::DWORD, win::DWORD>;

struct Edit : testing::Test {
    Parent parent;
    win::HWND edit = parent.add("EDIT", win::ES_AUTOHSCROLL, {10, 10, 210, 32}, "hello");

    win::LRESULT send(win::UINT message, win::WPARAM wParam = 0, win::LPARAM lParam = 0) {
        return win::SendMessageA(edit, message, wParam, lParam);
    }
    std::string text() {
        char buffer[100] = "";
        win::GetWindowTextA(edit, buffer);
        return buffer;
    }
    Range selection() {
        Range found{99, 99};
        send(win::EM_GETSEL, reinterpret_cast<win::WPARAM>(&found.first),
             reinterpret_cast<win::LPARAM>(&found.second));
        return found;
    }
    void select(int first, int last) {
        EXPECT_EQ(send(win::EM_SETSEL, static_cast<win::WPARAM>(first), last), 1);
    }
    void start(const char* content, int first, int last) {
        win::SetWindowTextA(edit, content);
        select(first, last);
        parent.takeCommands();
    }
};

#define EXPECT_STANDS(content, first, last) \
    EXPECT_EQ(text(), content);             \
    EXPECT_THAT(selection(), Pair(first, last))

TEST_F(Edit, WantsArrowsLettersAndItsTextSelected) {
    EXPECT_EQ(send(win::WM_GETDLGCODE),
              win::DLGC_HASSETSEL | win::DLGC_WANTCHARS | win::DLGC_WANTARROWS);
}

TEST_F(Edit, BeginsWithItsTextAndTheCaretInFront) {
    EXPECT_STANDS("hello", 0u, 0u);
}

TEST_F(Edit, ASelectionEndsWithTheText) {
    select(1, 3);
    EXPECT_EQ(send(win::EM_GETSEL), win::makeLParam(1, 3));
    select(2, 99);
    EXPECT_STANDS("hello", 2u, 5u);
}

TEST_F(Edit, ASelectionBackwardsIsToldForwards) {
    select(3, 1);
    EXPECT_EQ(selection(), Range(1, 3));
}

TEST_F(Edit, MinusOneReachesToTheEndOrTakesTheSelectionAway) {
    select(0, -1);
    EXPECT_EQ(selection(), Range(0, 5));
    select(-1, 0);
    EXPECT_EQ(selection(), Range(5, 5));
}

TEST_F(Edit, EveryNewTextIsToldEvenTheSame) {
    select(1, 3);
    win::SetWindowTextA(edit, "world");
    EXPECT_THAT(parent.takeCommands(), ElementsAre(win::EN_UPDATE, win::EN_CHANGE));
    EXPECT_STANDS("world", 0u, 0u);
    win::SetWindowTextA(edit, "world");
    EXPECT_THAT(parent.takeCommands(), ElementsAre(win::EN_UPDATE, win::EN_CHANGE));
}

TEST_F(Edit, TypingTakesThePlaceOfTheSelection) {
    start("world", 1, 3);
    typeLetter(edit, 'X');
    EXPECT_THAT(parent.takeCommands(), ElementsAre(win::EN_UPDATE, win::EN_CHANGE));
    EXPECT_STANDS("wXld", 2u, 2u);
    typeLetter(edit, 'Y');
    EXPECT_STANDS("wXYld", 3u, 3u);
}

TEST_F(Edit, TheRubOutKeysTakeALetterOrTheSelection) {
    start("abcdef", 3, 3);
    typeLetter(edit, '\b');
    EXPECT_THAT(parent.takeCommands(), ElementsAre(win::EN_UPDATE, win::EN_CHANGE));
    EXPECT_STANDS("abdef", 2u, 2u);
    pressKey(edit, win::VK_DELETE);
    EXPECT_STANDS("abef", 2u, 2u);
    select(1, 3);
    typeLetter(edit, '\b');
    EXPECT_STANDS("af", 1u, 1u);
    select(0, 2);
    pressKey(edit, win::VK_DELETE);
    EXPECT_STANDS("", 0u, 0u);
}

TEST_F(Edit, WithNothingToRubOutNothingIsTold) {
    start("abc", 0, 0);
    typeLetter(edit, '\b');
    select(3, 3);
    pressKey(edit, win::VK_DELETE);
    EXPECT_EQ(text(), "abc");
    EXPECT_THAT(parent.takeCommands(), IsEmpty());
}

TEST_F(Edit, TheArrowsMoveTheCaretWithinTheText) {
    start("abc", 1, 1);
    pressKey(edit, win::VK_RIGHT);
    EXPECT_EQ(selection(), Range(2, 2));
    pressKey(edit, win::VK_END);
    pressKey(edit, win::VK_RIGHT);
    EXPECT_EQ(selection(), Range(3, 3));
    pressKey(edit, win::VK_LEFT);
    EXPECT_EQ(selection(), Range(2, 2));
    pressKey(edit, win::VK_HOME);
    pressKey(edit, win::VK_LEFT);
    EXPECT_EQ(selection(), Range(0, 0));
    pressKey(edit, win::VK_DOWN);
    EXPECT_EQ(selection(), Range(1, 1));
    pressKey(edit, win::VK_UP);
    EXPECT_EQ(selection(), Range(0, 0));
}

TEST_F(Edit, TheArrowsLeaveASelectionFromItsFreeEnd) {
    start("abcdef", 1, 3);
    pressKey(edit, win::VK_LEFT);
    EXPECT_EQ(selection(), Range(2, 2));
    select(3, 1);
    pressKey(edit, win::VK_RIGHT);
    EXPECT_EQ(selection(), Range(2, 2));
}

TEST_F(Edit, KeysOfTheDialogAreNoText) {
    start("abc", 1, 2);
    for (int key : {win::VK_RETURN, win::VK_ESCAPE, win::VK_TAB}) {
        pressKey(edit, key);
        typeLetter(edit, static_cast<char>(key));
    }
    EXPECT_STANDS("abc", 1u, 2u);
    EXPECT_THAT(parent.takeCommands(), IsEmpty());
}

TEST_F(Edit, TheLimitHoldsForTypingOnly) {
    EXPECT_EQ(send(win::EM_LIMITTEXT, 5), 0);
    start("1234567", 7, 7);
    EXPECT_EQ(text(), "1234567");
    typeLetter(edit, 'a');
    EXPECT_EQ(text(), "1234567");
    EXPECT_THAT(parent.takeCommands(), Contains(win::EN_MAXTEXT));
    start("1234", 4, 4);
    typeLetter(edit, 'a');
    EXPECT_THAT(parent.takeCommands(), ElementsAre(win::EN_UPDATE, win::EN_CHANGE));
    typeLetter(edit, 'b');
    EXPECT_STANDS("1234a", 5u, 5u);
    EXPECT_THAT(parent.takeCommands(), Contains(win::EN_MAXTEXT));
    select(0, 2);
    typeLetter(edit, 'c');
    EXPECT_STANDS("c34a", 1u, 1u);
}

TEST_F(Edit, TheLimitEndsAtThirtyThousandUntilItIsLifted) {
    const std::string full(30000, 'x');
    win::SetWindowTextA(edit, full.c_str());
    typeLetter(edit, 'a');
    EXPECT_EQ(win::GetWindowTextLengthA(edit), 30000);
    EXPECT_EQ(send(win::EM_LIMITTEXT, 0), 0);
    typeLetter(edit, 'a');
    EXPECT_EQ(win::GetWindowTextLengthA(edit), 30001);
}

TEST_F(Edit, AClickPutsTheCaretThere) {
    click(edit, 150, 8);
    EXPECT_EQ(win::GetFocus(), edit);
    EXPECT_EQ(selection(), Range(5, 5));
    click(edit, 0, 8);
    EXPECT_EQ(selection(), Range(0, 0));
}

TEST_F(Edit, TellsOfTheFocus) {
    win::SetFocus(edit);
    EXPECT_THAT(parent.takeCommands(), ElementsAre(win::EN_SETFOCUS));
    win::SetFocus(parent.window());
    EXPECT_THAT(parent.takeCommands(), ElementsAre(win::EN_KILLFOCUS));
}

}  // namespace
