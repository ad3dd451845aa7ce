// ListViewUser: a list view in report view, and short words for its messages.
#pragma once

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "tests/conformance/parent.h"

struct ListViewUser : testing::Test {
    static constexpr win::UINT focused = win::LVIS_FOCUSED;
    static constexpr win::UINT selected = win::LVIS_SELECTED;
    static constexpr win::UINT both = focused | selected;
    static constexpr win::UINT cut = win::LVIS_CUT;
    static constexpr win::UINT unticked = 0x1000;
    static constexpr win::UINT ticked = 0x2000;

    Parent parent;
    win::HWND list = make(0);

    // With two columns, "Title" of 60 and "Count" of 80 pixels.
    win::HWND make(win::DWORD style);
    void makeSingle() { list = make(win::LVS_SINGLESEL); }
    void addCheckBoxes();

    win::LRESULT send(win::UINT message, int wParam = 0, win::LPARAM lParam = 0);
    win::LRESULT send(win::UINT message, int wParam, const void* record);

    // Answers the row's number. The parameter of row "r3" that fill() makes is 103.
    int insert(int at, const char* text, win::LPARAM param = 0);
    int insertWithState(int at, win::UINT state, win::UINT mask);
    void fill(int rows);

    int count() { return static_cast<int>(send(win::LVM_GETITEMCOUNT)); }
    std::string text(int row, int column = 0);
    win::LRESULT setText(int row, int column, const char* text);
    std::vector<std::string> titles();
    win::LPARAM param(int row);

    bool setState(int row, win::UINT state, win::UINT mask);
    std::vector<win::UINT> states();  // of all rows, every bit
    int focusedRow();

    win::RECT place(int row);
    win::POINT middle(int row, int column = 0);
    void clickOn(int row, int column = 0, MouseButton button = MouseButton::left);

    // LVN_ITEMCHANGED as the parent should hear it.
    static Notice change(int row, win::LPARAM param, win::UINT before, win::UINT now);
    // The notices about clicks only.
    std::vector<Notice> takeClicks();
};
