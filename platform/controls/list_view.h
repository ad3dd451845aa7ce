// ListView: a list of rows under columns, in report view. Rows and columns are
// counted from 1. A list that holds rows always has a selected item: the row with
// the focus mark, or the first row where none has it. That is not the selection
// of the bulk commands, which counts the rows that carry the selection mark.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/api/comctl32.h"
#include "platform/controls/control.h"

namespace magpie {

class ListView;

// One row. It follows its row when the list is put into another order, and is good until
// rows are removed before it or the list is cleared.
class ListRow {
public:
    int position() const;
    std::string Text() const { return SubItem(0); }
    void Text(const std::string& text) const { SubItem(0, text); }
    // Text of column `column + 1`.
    std::string SubItem(int column) const;
    void SubItem(int column, const std::string& text) const;

    const std::string& Tag() const;
    void Tag(const std::string& tag) const;

    bool Selected() const;
    // Selecting gives the focus mark as well; it takes nothing from other rows but
    // in a list of single selection.
    void Selected(bool selected) const;
    bool Checked() const;
    void Checked(bool checked) const;
    void EnsureVisible() const;

private:
    friend class ListView;
    // `number` is the row's lParam, `ordering` the order of the list that the position is of.
    ListRow(ListView& list, int position, win::LPARAM number, unsigned ordering)
        : list_(&list), position_(position), number_(number), ordering_(ordering) {}

    // Where the row stands at this moment, in order or not yet.
    int place() const;

    ListView* list_;
    int position_;
    win::LPARAM number_;
    unsigned ordering_;
};

class ListView : public Control {
public:
    enum class Selection { single, multiple };

    // `name` is what accessibility tools read out.
    void create(Container& container, const Place& place, const std::string& name,
                Selection selection);

    void addColumn(const std::string& heading, double width);
    int ColumnCount();
    // Twips. Raise 9 for a column that is not there; a negative width raises 380.
    double ColumnWidth(int column);
    void ColumnWidth(int column, double width);
    void ColumnHeading(int column, const std::string& heading);

    // Without boxes the rows keep their ticks, which can be read and set all the same.
    void CheckBoxes(bool shown);

    int Count();
    void Clear();
    // Appends a row and answers it. Texts are cut by nobody.
    ListRow Add(const std::string& text, const std::string& tag = {});
    // Raise 9 for a row that is not there.
    ListRow Row(int position);
    void Remove(int position);
    // Raises 91 when the list is empty.
    ListRow SelectedItem();

    // The sort that stays in force: while Sorted, the rows are in the order of one column's
    // texts, those there when it is set and those added later, each by the first text that
    // it gets in that column. A text that is changed afterwards leaves its row in place.
    // Texts are compared as compareIgnoringCase does; rows that compare equal stay in the
    // order in which they were added, whatever the direction. Setting any of the three while
    // Sorted puts all rows in order anew.
    bool Sorted();
    void Sorted(bool sorted);
    // 0 the row's Text, n its sub-item n. Raises 380 for a column that is not there.
    int SortKey();
    void SortKey(int column);
    // 0 ascending, 1 descending. Raises 380 for any other.
    int SortOrder();
    void SortOrder(int order);

    // Rearranges the rows once (LVM_SORTITEMS). The routine gets the lParam of the upper and of
    // the lower of two rows, and the list's window handle; above 0 lets the lower one go before
    // the upper one, anything else leaves the two alone.
    void SortBy(win::PFNLVCOMPARE routine);

    // Sends one of the list's own messages (LVM_) past this object's window procedure, for
    // what is asked of every row of a full list. The rows are in their order.
    win::LRESULT ask(win::UINT message, win::WPARAM wParam, win::LPARAM lParam);

    // A click with the left or the right button, on rows or beside them, is told by
    // onItemClick if it fell on a row, then by onClick, then by onMouseUp, which comes
    // after every release. All are told when the list is through with the mouse, so that
    // a routine may do with it, and with the form, what it likes. The second press of a
    // double click of the left button is told by onDblClick, also beside the rows.
    Event<> onItemClick;
    Event<int> onColumnClick;  // the mouse clicked a heading, counted from 1

    // Below the row with the focus mark; the list's upper left corner without one.
    win::POINT menuPlace() override;

    win::LRESULT onNotify(win::LPARAM header) override;
    bool handleMessage(win::UINT message, win::WPARAM wParam, win::LPARAM lParam,
                       win::LRESULT& answer) override;
    void forgetWindow() override;

protected:
    void place() override;

private:
    friend class ListRow;

    // A button that was let go and is not told yet.
    struct Release {
        MouseReport mouse;
        bool click = false;
        bool onRow = false;
    };

    bool handleMouse(win::UINT message, win::WPARAM wParam, win::LPARAM lParam,
                     win::LRESULT& answer);
    int focusedRow();  // from 0; -1 for none
    void tellRelease();

    win::LRESULT send(win::UINT message, win::WPARAM wParam, win::LPARAM lParam);
    // Past this object's own window procedure, for what is sent for every row of a full list.
    win::LRESULT sendStraight(win::UINT message, win::WPARAM wParam, win::LPARAM lParam);
    ListRow rowAt(int position);
    std::string& tagOf(win::LPARAM number);
    std::string textAt(int position, int column);
    void setText(const ListRow& row, int column, const std::string& text);
    void setState(const ListRow& row, win::UINT state, win::UINT mask);
    win::UINT stateOf(const ListRow& row, win::UINT mask);
    void needColumn(int column);
    void loseOrder();
    void putInOrder();

    // A row's lParam numbers its tag here, so that a tag follows its row through
    // every rearrangement.
    std::vector<std::string> tags_;
    int columns_ = 0;
    int pressed_ = 0;  // the buttons that went down here and were not let go
    std::optional<Release> released_;
    bool doubleClicked_ = false;  // and not told yet

    bool sorted_ = false;
    int sortKey_ = 0;
    int sortOrder_ = 0;
    // Rows are not put in order one by one as they come, which would take long, but all
    // together as soon as somebody looks: the program, or whoever sends the window a message.
    bool outOfOrder_ = false;
    int sending_ = 0;        // messages of this object's own on their way
    unsigned ordering_ = 0;  // counts the orders that the rows have had
};

// Hides a list and holds its drawing while it is filled, and shows it again, also
// when the filling is abandoned.
class FillingList {
public:
    explicit FillingList(ListView& list);
    ~FillingList();
    FillingList(const FillingList&) = delete;
    FillingList& operator=(const FillingList&) = delete;

private:
    ListView& list_;
    bool hadFocus_;  // hiding takes the focus away; showing gives it back
};

}  // namespace magpie
