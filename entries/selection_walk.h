// Selection walk: the pass over the selected rows of the record list in view that the bulk
// operations have in common. What is done to a row has to take it off the walk's way: by
// deleting it, so that the next one moves up to its place, or by clearing its mark. A row
// that stays as it was is met again.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "entries/row_match.h"
#include "platform/controls/control.h"

namespace magpie {

class SelectionWalk {
public:
    // Begins at a row, counted from 0, and ends when so many rows are done, or behind the
    // last row. A row counts as selected when its state has one of the flags of the mask.
    SelectionWalk(win::UINT mask, std::int32_t row, std::int32_t remaining);
    ~SelectionWalk();
    SelectionWalk(const SelectionWalk&) = delete;
    SelectionWalk& operator=(const SelectionWalk&) = delete;

    // Goes to the next selected row; false at the end.
    bool nextRow();

    // Goes to the next selected row, and finds its record. While a row has none the walk
    // stays there and lets window events run, until somebody takes the selection off the
    // row; where that changed the selection of other rows as well, nothing more was asked for
    // and the walk ends. Raises what rowIsRecord raises, and 91 when the list goes away under
    // the wait: who walks is to be abandoned then, or it would bring the main window back.
    bool nextRecord();

    // Whether some walk stays at a row. Commands on the selected rows do nothing then.
    static bool waits() { return waiting_; }

    std::int32_t row() const { return row_; }
    const RowTexts& texts() const { return texts_; }
    URLData& record() const { return *record_; }
    // Deletes the record that was found.
    void deleteRecord();

private:
    void waitAtRow();
    void sleepAtRow();
    std::vector<std::int32_t> otherRows() const;
    void draw();

    win::UINT mask_;
    std::int32_t row_;
    std::int32_t remaining_;
    RowTexts texts_;
    RowTexts textsBefore_;  // of the row before
    URLData* record_ = nullptr;
    static inline bool waiting_ = false;
    std::optional<HeldDrawing> held_;
};

}  // namespace magpie
