// The class "SysListView32" in report view: rows, texts, columns, places.
#include <cstring>
#include <gmock/gmock.h>
#include <string>
#include <vector>

#include "tests/conformance/list_view_user.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct ListView : ListViewUser {};

TEST_F(ListView, BeginsEmpty) {
    EXPECT_EQ(count(), 0);
    EXPECT_EQ(focusedRow(), -1);
    EXPECT_EQ(send(win::LVM_GETSELECTEDCOUNT), 0);
    EXPECT_EQ(send(win::WM_GETDLGCODE), win::DLGC_WANTARROWS | win::DLGC_WANTCHARS);
}

TEST_F(ListView, PutsRowsInAtTheirPlace) {
    EXPECT_EQ(insert(0x7FFFFFFF, "b", 2), 0);
    EXPECT_EQ(insert(1, "c", 3), 1);
    EXPECT_EQ(insert(0, "a", 1), 0);
    EXPECT_EQ(insert(2, "b2", 4), 2);
    EXPECT_EQ(insert(-1, "nowhere"), -1);
    EXPECT_THAT(titles(), ElementsAre("a", "b", "b2", "c"));
    EXPECT_EQ(param(2), 4);
    EXPECT_EQ(param(4), -1);
    EXPECT_THAT(parent.takeNotices(), IsEmpty());
}

TEST_F(ListView, ARowBeginsInTheFirstColumn) {
    win::LVITEMA item{};
    item.mask = win::LVIF_TEXT;
    item.iSubItem = 1;
    char text[] = "x";
    item.pszText = text;
    EXPECT_EQ(send(win::LVM_INSERTITEMA, 0, &item), -1);
}

TEST_F(ListView, KeepsATextForEachColumn) {
    fill(2);
    EXPECT_TRUE(setText(1, 1, "nine"));
    EXPECT_EQ(text(1, 1), "nine");
    EXPECT_EQ(text(0, 1), "");
    EXPECT_TRUE(setText(1, 1, nullptr));
    EXPECT_EQ(text(1, 1), "");
    EXPECT_THAT(parent.takeNotices(), IsEmpty());
}

TEST_F(ListView, KeepsNoTextOutsideItsRowsAndColumns) {
    fill(1);
    EXPECT_FALSE(setText(0, 2, "x"));
    EXPECT_FALSE(setText(1, 0, "x"));
    EXPECT_EQ(text(0, 2), "");
    EXPECT_EQ(text(1), "untouched");
    EXPECT_EQ(text(-1), "untouched");
}

TEST_F(ListView, OnlyANewTextOfTheFirstColumnIsTold) {
    fill(1);
    EXPECT_TRUE(setText(0, 0, "r0"));
    EXPECT_THAT(parent.takeNotices(), IsEmpty());
    EXPECT_TRUE(setText(0, 0, "new"));
    EXPECT_THAT(parent.takeNotices(),
                ElementsAre(Notice{win::LVN_ITEMCHANGED, 0, 0, 0, 0, win::LVIF_TEXT, 100}));
    EXPECT_EQ(text(0), "new");
}

// One system ends a text that it cuts, the other does not: a reader clears its buffer,
// names a byte less than it has, and takes an answer that fills the room for a cut one.
TEST_F(ListView, ATextThatIsCutFillsTheRoom) {
    insert(0, "hello world");
    for (int room : {1, 5, 11}) {
        std::vector<char> buffer(static_cast<std::size_t>(room) + 1, '\0');
        win::LVITEMA item{};
        item.pszText = buffer.data();
        item.cchTextMax = room;
        EXPECT_GE(send(win::LVM_GETITEMTEXTA, 0, &item), room - 1);
        EXPECT_EQ(std::string("hello world").compare(0, std::strlen(buffer.data()), buffer.data()),
                  0);
    }
    EXPECT_EQ(text(0), "hello world");
}

TEST_F(ListView, TellsOfARowWhatIsAskedFor) {
    fill(2);
    setText(1, 1, "nine");
    setState(1, both, both);
    char buffer[20] = "";
    win::LVITEMA item{};
    item.mask = win::LVIF_TEXT | win::LVIF_PARAM | win::LVIF_STATE;
    item.iItem = 1;
    item.pszText = buffer;
    item.cchTextMax = sizeof buffer;
    item.stateMask = selected;
    EXPECT_TRUE(send(win::LVM_GETITEMA, 0, &item));
    EXPECT_STREQ(item.pszText, "r1");
    EXPECT_EQ(item.lParam, 101);
    EXPECT_EQ(item.state, selected);
    item.iSubItem = 1;
    EXPECT_TRUE(send(win::LVM_GETITEMA, 0, &item));
    EXPECT_STREQ(item.pszText, "nine");
    EXPECT_EQ(item.lParam, 101);
    EXPECT_EQ(item.state, 0u);
    item.iItem = 2;
    EXPECT_FALSE(send(win::LVM_GETITEMA, 0, &item));
}

TEST_F(ListView, ARowsChangesAreToldTogether) {
    fill(2);
    char text[] = "new";
    win::LVITEMA item{};
    item.mask = win::LVIF_TEXT | win::LVIF_PARAM | win::LVIF_STATE;
    item.iItem = 1;
    item.pszText = text;
    item.lParam = 777;
    item.state = selected;
    item.stateMask = selected;
    EXPECT_TRUE(send(win::LVM_SETITEMA, 0, &item));
    EXPECT_THAT(parent.takeNotices(),
                ElementsAre(Notice{win::LVN_ITEMCHANGED, 1, 0, selected, 0,
                                   win::LVIF_TEXT | win::LVIF_PARAM | win::LVIF_STATE, 777}));
    EXPECT_TRUE(send(win::LVM_SETITEMA, 0, &item));
    EXPECT_THAT(parent.takeNotices(), IsEmpty());
    item.mask = win::LVIF_PARAM;
    item.lParam = 778;
    EXPECT_TRUE(send(win::LVM_SETITEMA, 0, &item));
    EXPECT_THAT(parent.takeNotices(),
                ElementsAre(Notice{win::LVN_ITEMCHANGED, 1, 0, 0, 0, win::LVIF_PARAM, 778}));
    item.iItem = 2;
    EXPECT_FALSE(send(win::LVM_SETITEMA, 0, &item));
}

TEST_F(ListView, AColumnAfterTheFirstHasATextOnly) {
    fill(1);
    char text[] = "nine";
    win::LVITEMA item{};
    item.mask = win::LVIF_TEXT;
    item.iSubItem = 1;
    item.pszText = text;
    EXPECT_TRUE(send(win::LVM_SETITEMA, 0, &item));
    EXPECT_EQ(ListViewUser::text(0, 1), "nine");
    item.mask = win::LVIF_PARAM;
    EXPECT_FALSE(send(win::LVM_SETITEMA, 0, &item));
    EXPECT_EQ(param(0), 100);
}

TEST_F(ListView, TakesRowsOut) {
    fill(5);
    EXPECT_TRUE(send(win::LVM_DELETEITEM, 0));
    EXPECT_TRUE(send(win::LVM_DELETEITEM, 3));
    EXPECT_TRUE(send(win::LVM_DELETEITEM, 1));
    EXPECT_THAT(titles(), ElementsAre("r1", "r3"));
    EXPECT_FALSE(send(win::LVM_DELETEITEM, 2));
    EXPECT_FALSE(send(win::LVM_DELETEITEM, -1));
    EXPECT_TRUE(send(win::LVM_DELETEALLITEMS));
    EXPECT_EQ(count(), 0);
    EXPECT_TRUE(send(win::LVM_DELETEALLITEMS));
    EXPECT_THAT(parent.takeNotices(), IsEmpty());
}

TEST_F(ListView, ManyRowsComeAndGoInAnyOrder) {
    constexpr int rows = 2000;
    send(win::WM_SETREDRAW, 0);
    EXPECT_TRUE(send(win::LVM_SETITEMCOUNT, rows));
    EXPECT_EQ(count(), 0);
    std::vector<win::LPARAM> expected;
    for (int row = 0; row < rows; ++row) {
        const int place = row * 7 % (row + 1);
        EXPECT_EQ(insert(place, "x", row), place);
        expected.insert(expected.begin() + place, row);
    }
    for (int row = 0; row < rows / 2; ++row) {
        const int place = row * 11 % static_cast<int>(expected.size());
        send(win::LVM_DELETEITEM, place);
        expected.erase(expected.begin() + place);
    }
    send(win::WM_SETREDRAW, 1);
    ASSERT_EQ(count(), static_cast<int>(expected.size()));
    for (int row = 0; row < count(); ++row)
        ASSERT_EQ(param(row), expected[static_cast<std::size_t>(row)]);
}

TEST_F(ListView, ColumnsKeepTextAndWidth) {
    char buffer[20] = "";
    win::LVCOLUMNA column{};
    column.mask = win::LVCF_TEXT | win::LVCF_WIDTH | win::LVCF_SUBITEM;
    column.pszText = buffer;
    column.cchTextMax = sizeof buffer;
    EXPECT_TRUE(send(win::LVM_GETCOLUMNA, 1, &column));
    EXPECT_STREQ(column.pszText, "Count");
    EXPECT_EQ(column.cx, 80);
    EXPECT_EQ(column.iSubItem, 1);
    column.cchTextMax = 3;
    EXPECT_TRUE(send(win::LVM_GETCOLUMNA, 1, &column));
    EXPECT_STREQ(column.pszText, "Co");
    EXPECT_FALSE(send(win::LVM_GETCOLUMNA, 2, &column));
    EXPECT_EQ(send(win::LVM_INSERTCOLUMNA, -1, &column), -1);
    EXPECT_EQ(send(win::LVM_INSERTCOLUMNA, 9, &column), 2);
}

TEST_F(ListView, ColumnsCanBeChanged) {
    char text[] = "Number";
    win::LVCOLUMNA column{};
    column.mask = win::LVCF_TEXT | win::LVCF_WIDTH;
    column.pszText = text;
    column.cx = 70;
    EXPECT_TRUE(send(win::LVM_SETCOLUMNA, 1, &column));
    EXPECT_FALSE(send(win::LVM_SETCOLUMNA, 2, &column));
    EXPECT_EQ(send(win::LVM_GETCOLUMNWIDTH, 1), 70);
    EXPECT_TRUE(send(win::LVM_SETCOLUMNWIDTH, 1, win::LPARAM{100}));
    EXPECT_EQ(send(win::LVM_GETCOLUMNWIDTH, 1), 100);
    EXPECT_TRUE(send(win::LVM_SETCOLUMNWIDTH, 1));
    EXPECT_EQ(send(win::LVM_GETCOLUMNWIDTH, 1), 0);
    EXPECT_FALSE(send(win::LVM_SETCOLUMNWIDTH, 2, win::LPARAM{100}));
    EXPECT_EQ(send(win::LVM_GETCOLUMNWIDTH, 2), 0);
}

TEST_F(ListView, AClickOnAHeadingIsTold) {
    auto header = reinterpret_cast<win::HWND>(send(win::LVM_GETHEADER));
    ASSERT_NE(header, nullptr);
    EXPECT_EQ(win::GetParent(header), list);
    EXPECT_TRUE(win::IsWindowVisible(header));
    EXPECT_EQ(win::SendMessageA(header, win::HDM_GETITEMCOUNT, 0, 0), 2);
    win::RECT at{};
    EXPECT_TRUE(
        win::SendMessageA(header, win::HDM_GETITEMRECT, 1, reinterpret_cast<win::LPARAM>(&at)));
    EXPECT_FALSE(
        win::SendMessageA(header, win::HDM_GETITEMRECT, 2, reinterpret_cast<win::LPARAM>(&at)));
    EXPECT_EQ(at.left, 60);
    EXPECT_EQ(at.right, 140);
    const int y = (at.top + at.bottom) / 2;
    const Notice told{.code = win::LVN_COLUMNCLICK, .item = -1, .column = 1};
    click(header, 100, y);
    EXPECT_THAT(takeClicks(), ElementsAre(told));
    press(header, 100, y);
    release(header, 30, y);
    click(header, 300, y);
    EXPECT_THAT(takeClicks(), IsEmpty());
    click(header, 100, y, MouseButton::right);
    EXPECT_THAT(takeClicks(), IsEmpty());
}

TEST_F(ListView, TheHeaderIsAsWideAsTheList) {
    win::SetWindowPos(list, nullptr, 0, 0, 300, 150, win::SWP_NOMOVE | win::SWP_NOZORDER);
    win::RECT inner{};
    win::RECT header{};
    win::GetClientRect(list, &inner);
    win::GetClientRect(reinterpret_cast<win::HWND>(send(win::LVM_GETHEADER)), &header);
    EXPECT_EQ(header.right, inner.right);
}

TEST_F(ListView, RowsStandBelowTheHeaderAndEachOther) {
    fill(2);
    win::RECT header{};
    win::GetClientRect(reinterpret_cast<win::HWND>(send(win::LVM_GETHEADER)), &header);
    EXPECT_EQ(place(0).left, 0);
    EXPECT_EQ(place(0).right, 140);
    EXPECT_EQ(place(0).top, header.bottom);
    EXPECT_EQ(place(1).top, place(0).bottom);
    EXPECT_EQ(place(2).top, -1);
}

TEST_F(ListView, ARowCanBeBroughtIntoSight) {
    fill(50);
    const win::RECT first = place(0);
    win::RECT inner{};
    win::GetClientRect(list, &inner);
    EXPECT_TRUE(send(win::LVM_ENSUREVISIBLE, 30));
    EXPECT_LE(place(30).bottom, inner.bottom);
    EXPECT_GE(place(30).top, first.top);
    EXPECT_LT(place(0).top, 0);
    const win::RECT thirtieth = place(30);
    EXPECT_TRUE(send(win::LVM_ENSUREVISIBLE, 30));
    EXPECT_EQ(place(30).top, thirtieth.top);
    EXPECT_TRUE(send(win::LVM_ENSUREVISIBLE, 2));
    EXPECT_EQ(place(2).top, first.top);
    EXPECT_FALSE(send(win::LVM_ENSUREVISIBLE, 50));
    EXPECT_FALSE(send(win::LVM_ENSUREVISIBLE, -1));
}

TEST_F(ListView, TheRowsCanBeScrolledAsFarAsTheyReach) {
    fill(50);
    const win::RECT first = place(0);
    const int height = first.bottom - first.top;
    win::RECT inner{};
    win::GetClientRect(list, &inner);
    EXPECT_TRUE(send(win::LVM_SCROLL, 0, win::LPARAM{3 * height}));
    EXPECT_EQ(place(3).top, first.top);
    EXPECT_TRUE(send(win::LVM_SCROLL, 0, win::LPARAM{-height}));
    EXPECT_EQ(place(2).top, first.top);
    EXPECT_TRUE(send(win::LVM_SCROLL, 0, win::LPARAM{-100 * height}));
    EXPECT_EQ(place(0).top, first.top);
    EXPECT_TRUE(send(win::LVM_SCROLL, 0, win::LPARAM{100 * height}));
    EXPECT_LE(place(49).bottom, inner.bottom);
    EXPECT_GT(place(49).bottom, inner.bottom - height);
}

TEST_F(ListView, TheFocusComesIntoSightTheSelectionDoesNot) {
    fill(50);
    win::RECT inner{};
    win::GetClientRect(list, &inner);
    setState(40, selected, selected);
    EXPECT_GT(place(40).top, inner.bottom);
    setState(40, focused, focused);
    EXPECT_LE(place(40).bottom, inner.bottom);
    send(win::LVM_DELETEALLITEMS);
    fill(1);
    EXPECT_GT(place(0).top, 0);
}

TEST_F(ListView, ExtendedStylesChangeUnderAMask) {
    const auto get = [&] { return send(win::LVM_GETEXTENDEDLISTVIEWSTYLE); };
    EXPECT_EQ(get(), win::LRESULT{win::LVS_EX_FULLROWSELECT});
    EXPECT_EQ(send(win::LVM_SETEXTENDEDLISTVIEWSTYLE, static_cast<int>(win::LVS_EX_LABELTIP),
                   win::LPARAM{win::LVS_EX_LABELTIP | win::LVS_EX_DOUBLEBUFFER}),
              win::LRESULT{win::LVS_EX_FULLROWSELECT});
    EXPECT_EQ(get(), win::LRESULT{win::LVS_EX_FULLROWSELECT | win::LVS_EX_LABELTIP});
    send(win::LVM_SETEXTENDEDLISTVIEWSTYLE, 0, win::LPARAM{win::LVS_EX_DOUBLEBUFFER});
    EXPECT_EQ(get(), win::LRESULT{win::LVS_EX_DOUBLEBUFFER});
}

}  // namespace
