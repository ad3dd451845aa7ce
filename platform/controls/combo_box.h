// ComboBox: a drop-down list. Rows are counted from 0; the selected row is -1 when
// there is none.
#pragma once

#include <cstdint>
#include <string>

#include "platform/controls/control.h"

namespace magpie {

class ComboBox : public Control {
public:
    // `name` is what accessibility tools read out.
    void create(Container& container, const Place& place, const std::string& name,
                bool sorted = false);

    void AddItem(const std::string& text);
    // Takes a row away. Taking the selected one leaves none selected, without a click.
    // Raises 380 for a row that is not there.
    void RemoveItem(int row);
    void Clear();
    int ListCount();
    // Row of the item added last.
    int NewIndex();

    int ListIndex();
    // Selects a row, -1 for none. The click is raised only when the row changes.
    // Raises 380 for a row that is not there.
    void ListIndex(int row);

    // The number and the text of a row. Raise 380 for a row that is not there.
    std::int32_t ItemData(int row);
    void ItemData(int row, std::int32_t number);
    std::string List(int row);
    // The row keeps its number, and stays selected if it was, without a click.
    void List(int row, const std::string& text);

    // The first row that the opened list shows, 0 when there are no rows.
    int TopIndex();

    void onCommand(win::WORD code) override;

protected:
    void place() override;

private:
    void needRow(int row);

    int newIndex_ = -1;
};

}  // namespace magpie
