// The class "ComboBox", as a drop-down list.
#include <algorithm>
#include <gmock/gmock.h>
#include <string>
#include <vector>

#include "tests/conformance/parent.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct ComboBox : testing::Test {
    Parent parent;
    win::HWND combo = make(0);

    win::HWND make(win::DWORD style) {
        return parent.add("COMBOBOX", win::CBS_DROPDOWNLIST | win::WS_VSCROLL | style,
                          {10, 10, 160, 210}, "caption");
    }
    win::LRESULT send(win::UINT message, int wParam = 0, win::LPARAM lParam = 0) {
        return win::SendMessageA(combo, message, static_cast<win::WPARAM>(wParam), lParam);
    }
    int add(const std::string& text) {
        return static_cast<int>(
            send(win::CB_ADDSTRING, 0, reinterpret_cast<win::LPARAM>(text.c_str())));
    }
    void fill(const std::vector<std::string>& texts) {
        for (const auto& text : texts) add(text);
    }
    std::string at(int row) {
        char text[100] = "";
        send(win::CB_GETLBTEXT, row, reinterpret_cast<win::LPARAM>(text));
        return text;
    }
    std::vector<std::string> all() {
        std::vector<std::string> found;
        for (int row = 0; row < send(win::CB_GETCOUNT); ++row) found.push_back(at(row));
        return found;
    }
    int selected() { return static_cast<int>(send(win::CB_GETCURSEL)); }
    int height() {
        win::RECT place{};
        win::GetWindowRect(combo, &place);
        return place.bottom - place.top;
    }
    std::string shown() {
        char text[100] = "";
        win::GetWindowTextA(combo, text);
        return text;
    }
    // What the user's key selects, and that it is told.
    int afterKey(int key) {
        parent.takeCommands();
        pressKey(combo, key);
        EXPECT_THAT(parent.takeCommands(), ElementsAre(win::CBN_SELENDOK, win::CBN_SELCHANGE));
        return selected();
    }
    int afterLetter(char letter) {
        parent.takeCommands();
        typeLetter(combo, letter);
        EXPECT_THAT(parent.takeCommands(), ElementsAre(win::CBN_SELENDOK, win::CBN_SELCHANGE));
        return selected();
    }
};

TEST_F(ComboBox, BeginsEmpty) {
    EXPECT_EQ(send(win::CB_GETCOUNT), 0);
    EXPECT_EQ(selected(), win::CB_ERR);
    EXPECT_EQ(shown(), "");
    EXPECT_EQ(win::GetWindowTextLengthA(combo), 0);
    EXPECT_EQ(send(win::WM_GETDLGCODE), win::DLGC_WANTARROWS | win::DLGC_WANTCHARS);
}

TEST_F(ComboBox, IsAsHighAsItsTextWhateverHeightItIsGiven) {
    const int closed = height();
    EXPECT_LT(closed, 40);
    win::SetWindowPos(combo, nullptr, 0, 0, 170, 300, win::SWP_NOMOVE | win::SWP_NOZORDER);
    EXPECT_EQ(height(), closed);
    EXPECT_EQ(send(win::CB_SETITEMHEIGHT, -1, 25), 25);
    const int higher = height();
    EXPECT_EQ(higher, 31);
    EXPECT_EQ(send(win::CB_SETITEMHEIGHT, -1, 20), 20);
    EXPECT_EQ(height(), higher - 5);
}

TEST_F(ComboBox, MakesRoomForRowsToCome) {
    EXPECT_GE(send(win::CB_INITSTORAGE, 10, 100), 10);
    EXPECT_EQ(send(win::CB_GETCOUNT), 0);
}

TEST_F(ComboBox, KeepsRowsInTheOrderTheyCame) {
    EXPECT_EQ(add("delta"), 0);
    EXPECT_EQ(add("alpha"), 1);
    EXPECT_THAT(all(), ElementsAre("delta", "alpha"));
    EXPECT_EQ(send(win::CB_GETLBTEXTLEN, 1), 5);
    EXPECT_EQ(send(win::CB_GETLBTEXTLEN, 2), win::CB_ERR);
    EXPECT_EQ(send(win::CB_GETLBTEXT, 2, 0), win::CB_ERR);
    EXPECT_EQ(send(win::CB_GETLBTEXTLEN, -1), win::CB_ERR);
}

TEST_F(ComboBox, TakesARowAtAPlace) {
    const auto insert = [&](int row, const char* text) {
        return send(win::CB_INSERTSTRING, row, reinterpret_cast<win::LPARAM>(text));
    };
    fill({"b", "d"});
    send(win::CB_SETCURSEL, 1);
    EXPECT_EQ(insert(0, "a"), 0);
    EXPECT_EQ(insert(2, "c"), 2);
    EXPECT_EQ(insert(4, "e"), 4);
    EXPECT_EQ(insert(-1, "f"), 5);
    EXPECT_EQ(insert(7, "none"), win::CB_ERR);
    EXPECT_THAT(all(), ElementsAre("a", "b", "c", "d", "e", "f"));
    EXPECT_EQ(selected(), 3);
    EXPECT_EQ(send(win::CB_GETITEMDATA, 2), 0);
}

TEST_F(ComboBox, TakesARowAtAPlaceAlsoWhenSorted) {
    combo = make(win::CBS_SORT);
    fill({"b", "a"});
    EXPECT_EQ(send(win::CB_INSERTSTRING, 0, reinterpret_cast<win::LPARAM>("z")), 0);
    EXPECT_THAT(all(), ElementsAre("z", "a", "b"));
}

TEST_F(ComboBox, ShowsItsBeginningWhileAllRowsHaveRoom) {
    EXPECT_EQ(send(win::CB_GETTOPINDEX), 0);
    fill({"a", "b", "c", "d", "e", "f", "g", "h"});
    send(win::CB_SETCURSEL, 7);
    EXPECT_EQ(send(win::CB_GETTOPINDEX), 0);
    send(win::CB_DELETESTRING, 7);
    EXPECT_EQ(send(win::CB_GETTOPINDEX), 0);
}

// How many rows have room is the platform's affair: fewer than these.
struct ManyRows : ComboBox {
    ManyRows() {
        for (int row = 0; row < count; ++row)
            add(std::string(1, static_cast<char>('A' + row % 26)));
        send(win::CB_SETCURSEL, count - 1);
        lastTop = top();
        EXPECT_GT(lastTop, 10);
        EXPECT_LT(lastTop, count - 8);
        send(win::CB_SETCURSEL, 0);
    }
    int top() { return static_cast<int>(send(win::CB_GETTOPINDEX)); }

    static constexpr int count = 60;
    int lastTop = 0;
};

TEST_F(ManyRows, TheChosenRowIsOnTopAsFarAsRowsBelowFillTheList) {
    EXPECT_EQ(top(), 0);
    for (const int row : {5, lastTop - 1, lastTop, lastTop + 1, 3, count - 2}) {
        send(win::CB_SETCURSEL, row);
        EXPECT_EQ(top(), std::min(row, lastTop)) << row;
    }
    send(win::CB_SETCURSEL, 4);
    EXPECT_EQ(send(win::CB_SETCURSEL, count), win::CB_ERR);
    EXPECT_EQ(top(), 4);
    send(win::CB_SETCURSEL, -1);
    EXPECT_EQ(top(), 4);
}

TEST_F(ManyRows, AKeyMovesTheListOnlyAsFarAsItMust) {
    send(win::CB_SETCURSEL, 5);
    EXPECT_EQ(afterKey(win::VK_DOWN), 6);
    EXPECT_EQ(top(), 5);
    EXPECT_EQ(afterKey(win::VK_UP), 5);
    EXPECT_EQ(afterKey(win::VK_UP), 4);
    EXPECT_EQ(top(), 4);
    EXPECT_EQ(afterKey(win::VK_END), count - 1);
    EXPECT_EQ(top(), lastTop);
    EXPECT_EQ(afterKey(win::VK_HOME), 0);
    EXPECT_EQ(top(), 0);
    const int shown = count - lastTop;
    for (int row = 1; row <= shown; ++row) afterKey(win::VK_DOWN);
    EXPECT_EQ(top(), 1);
    EXPECT_EQ(afterLetter('b'), 27);
    EXPECT_EQ(top(), 27 - shown + 1);
}

TEST_F(ManyRows, ComingAndGoingTheyLeaveTheRowNumberOnTopAlone) {
    const int row = lastTop - 5;
    send(win::CB_SETCURSEL, row);
    send(win::CB_DELETESTRING, count - 1);
    EXPECT_EQ(top(), row);
    send(win::CB_DELETESTRING, 0);
    EXPECT_EQ(top(), row);
    send(win::CB_DELETESTRING, row - 1);
    EXPECT_EQ(selected(), -1);
    EXPECT_EQ(top(), row);
    send(win::CB_INSERTSTRING, 0, reinterpret_cast<win::LPARAM>("new"));
    EXPECT_EQ(top(), row);
    fill({"more"});
    EXPECT_EQ(top(), row);
    send(win::CB_RESETCONTENT);
    EXPECT_EQ(top(), 0);
}

TEST_F(ManyRows, WhereAllHaveRoomAgainTheBeginningComesBack) {
    send(win::CB_SETCURSEL, 5);
    while (send(win::CB_GETCOUNT) > count - lastTop) {
        EXPECT_EQ(top(), 5);
        send(win::CB_DELETESTRING, 6);
    }
    EXPECT_EQ(top(), 0);
    send(win::CB_SETCURSEL, 3);
    EXPECT_EQ(top(), 0);
}

TEST_F(ComboBox, KeepsANumberWithEachRow) {
    fill({"a", "b"});
    EXPECT_EQ(send(win::CB_GETITEMDATA, 1), 0);
    EXPECT_NE(send(win::CB_SETITEMDATA, 1, 77), win::CB_ERR);
    EXPECT_EQ(send(win::CB_GETITEMDATA, 1), 77);
    EXPECT_EQ(send(win::CB_DELETESTRING, 0), 1);
    EXPECT_EQ(send(win::CB_GETITEMDATA, 0), 77);
    EXPECT_EQ(send(win::CB_SETITEMDATA, 1, 5), win::CB_ERR);
    EXPECT_EQ(send(win::CB_GETITEMDATA, 1), win::CB_ERR);
}

TEST_F(ComboBox, SelectingByMessageTellsNobody) {
    fill({"a", "bee", "c"});
    EXPECT_EQ(send(win::CB_SETCURSEL, 1), 1);
    EXPECT_EQ(selected(), 1);
    EXPECT_EQ(shown(), "bee");
    EXPECT_EQ(win::GetWindowTextLengthA(combo), 3);
    EXPECT_EQ(send(win::CB_SETCURSEL, 3), win::CB_ERR);
    EXPECT_EQ(selected(), 1);
    EXPECT_EQ(send(win::CB_SETCURSEL, -1), win::CB_ERR);
    EXPECT_EQ(selected(), -1);
    EXPECT_EQ(shown(), "");
    EXPECT_THAT(parent.takeCommands(), IsEmpty());
}

TEST_F(ComboBox, ItsTextCannotBeSet) {
    fill({"a"});
    send(win::CB_SETCURSEL, 0);
    EXPECT_EQ(send(win::WM_SETTEXT, 0, reinterpret_cast<win::LPARAM>("other")), win::CB_ERR);
    EXPECT_EQ(shown(), "a");
}

TEST_F(ComboBox, TheSelectionStaysOnItsRow) {
    fill({"a", "b", "c", "d"});
    send(win::CB_SETCURSEL, 2);
    EXPECT_EQ(send(win::CB_DELETESTRING, 0), 3);
    EXPECT_EQ(selected(), 1);
    EXPECT_EQ(send(win::CB_DELETESTRING, 2), 2);
    EXPECT_EQ(selected(), 1);
    EXPECT_EQ(send(win::CB_DELETESTRING, 1), 1);
    EXPECT_EQ(selected(), -1);
    EXPECT_EQ(send(win::CB_DELETESTRING, 5), win::CB_ERR);
    EXPECT_THAT(parent.takeCommands(), IsEmpty());
}

TEST_F(ComboBox, IsEmptiedAtOnce) {
    fill({"a", "b"});
    send(win::CB_SETCURSEL, 1);
    send(win::CB_RESETCONTENT);
    EXPECT_EQ(send(win::CB_GETCOUNT), 0);
    EXPECT_EQ(selected(), -1);
    EXPECT_THAT(parent.takeCommands(), IsEmpty());
}

TEST_F(ComboBox, SortsWithoutRegardToCase) {
    combo = make(win::CBS_SORT);
    EXPECT_EQ(add("delta"), 0);
    EXPECT_EQ(add("Alpha"), 0);
    EXPECT_EQ(add("charlie"), 1);
    EXPECT_EQ(add("Bravo"), 1);
    EXPECT_EQ(add("zeta"), 4);
    EXPECT_THAT(all(), ElementsAre("Alpha", "Bravo", "charlie", "delta", "zeta"));
    send(win::CB_SETCURSEL, 2);
    add("Alpha two");
    EXPECT_EQ(selected(), 3);
    add("yankee");
    EXPECT_EQ(selected(), 3);
}

TEST_F(ComboBox, SortsEqualTextsAsItsSearchMeetsThem) {
    combo = make(win::CBS_SORT);
    fill({"same", "SAME", "Same", "sAME", "saMe"});
    EXPECT_THAT(all(), ElementsAre("Same", "saMe", "sAME", "SAME", "same"));
}

TEST_F(ComboBox, SortsSignsThenDigitsThenLetters) {
    combo = make(win::CBS_SORT);
    const std::string order = "'- !\"#$%&()*,./:;?@[\\]^_`{|}~+<=>0123456789";
    for (auto sign = order.rbegin(); sign != order.rend(); ++sign) add({*sign});
    for (char letter = 'z'; letter >= 'a'; --letter) add({letter});
    std::string sorted;
    for (const auto& text : all()) sorted += text;
    EXPECT_EQ(sorted, order + "abcdefghijklmnopqrstuvwxyz");
}

TEST_F(ComboBox, SortsHyphensAndApostrophesLast) {
    combo = make(win::CBS_SORT);
    fill({"co-op", "coop", "cop", "can't", "cant", "cans", "x-ray", "xray", "xa", "xz", "foobar",
          "foo bar", "foo.bar"});
    EXPECT_THAT(all(), ElementsAre("cans", "cant", "can't", "coop", "co-op", "cop", "foo bar",
                                   "foo.bar", "foobar", "xa", "xray", "x-ray", "xz"));
}

TEST_F(ComboBox, TheArrowsSelectAndAreToldEvenAtTheEnds) {
    fill({"a", "b", "c"});
    EXPECT_EQ(afterKey(win::VK_DOWN), 0);
    EXPECT_EQ(afterKey(win::VK_DOWN), 1);
    EXPECT_EQ(afterKey(win::VK_RIGHT), 2);
    EXPECT_EQ(afterKey(win::VK_DOWN), 2);
    EXPECT_EQ(afterKey(win::VK_UP), 1);
    EXPECT_EQ(afterKey(win::VK_LEFT), 0);
    EXPECT_EQ(afterKey(win::VK_UP), 0);
    EXPECT_EQ(afterKey(win::VK_END), 2);
    EXPECT_EQ(afterKey(win::VK_HOME), 0);
}

TEST_F(ComboBox, AKeyAfterTheSelectionWentComesBackToItsRow) {
    fill({"a", "b", "c", "d"});
    send(win::CB_SETCURSEL, 2);
    send(win::CB_SETCURSEL, -1);
    EXPECT_EQ(afterKey(win::VK_DOWN), 2);
    send(win::CB_SETCURSEL, -1);
    EXPECT_EQ(afterKey(win::VK_SPACE), 2);
}

TEST_F(ComboBox, OtherKeysSelectNothing) {
    fill({"a", "b"});
    for (int key : {win::VK_RETURN, win::VK_ESCAPE}) pressKey(combo, key);
    typeLetter(combo, '\r');
    EXPECT_EQ(selected(), -1);
    send(win::CB_SETCURSEL, 1);
    pressKey(combo, win::VK_SPACE);
    EXPECT_EQ(selected(), 1);
    EXPECT_THAT(parent.takeCommands(), IsEmpty());
}

TEST_F(ComboBox, ALetterGoesToTheNextRowThatBeginsWithIt) {
    fill({"alpha", "bravo", "Bull", "charlie"});
    send(win::CB_SETCURSEL, 0);
    EXPECT_EQ(afterLetter('b'), 1);
    EXPECT_EQ(afterLetter('B'), 2);
    EXPECT_EQ(afterLetter('b'), 1);
    EXPECT_EQ(afterLetter('c'), 3);
    EXPECT_EQ(afterLetter('a'), 0);
    typeLetter(combo, 'x');
    EXPECT_THAT(parent.takeCommands(), IsEmpty());
    EXPECT_EQ(selected(), 0);
}

TEST_F(ComboBox, AnEmptyOneTellsOfNoKey) {
    pressKey(combo, win::VK_DOWN);
    typeLetter(combo, 'a');
    EXPECT_EQ(selected(), -1);
    EXPECT_THAT(parent.takeCommands(), IsEmpty());
}

TEST_F(ComboBox, TellsOfTheFocus) {
    win::SetFocus(combo);
    EXPECT_THAT(parent.takeCommands(), ElementsAre(win::CBN_SETFOCUS));
    win::SetFocus(parent.window());
    EXPECT_THAT(parent.takeCommands(), ElementsAre(win::CBN_SELENDCANCEL, win::CBN_KILLFOCUS));
}

}  // namespace
