#include "entries/selection_walk.h"

#include <utility>

#include "core/state.h"
#include "mainwindow/form3.h"
#include "platform/api/user32.h"
#include "platform/controls/message_loop.h"
#include "platform/runtime/failure.h"
#include "store/record_key.h"

namespace magpie {

namespace {

ListView& list() {
    return Form3.ListView1[lvIndex];
}

class Waiting {
public:
    explicit Waiting(bool& waiting) : waiting_(waiting) { waiting_ = true; }
    ~Waiting() { waiting_ = false; }
    Waiting(const Waiting&) = delete;
    Waiting& operator=(const Waiting&) = delete;

private:
    bool& waiting_;
};

}  // namespace

// Drawn after each of them, many rows would take minutes.
SelectionWalk::SelectionWalk(win::UINT mask, std::int32_t row, std::int32_t remaining)
    : mask_(mask), row_(row), remaining_(remaining) {
    if (remaining > 1) held_.emplace(list());
}

SelectionWalk::~SelectionWalk() {
    draw();
}

void SelectionWalk::draw() {
    if (!held_) return;
    held_.reset();
    win::InvalidateRect(list().hWnd(), nullptr, 1);
}

bool SelectionWalk::nextRow() {
    if (remaining_ == 0) return false;
    row_ = nextRowWith(row_, mask_);
    if (row_ >= rowCount()) return false;
    std::swap(texts_, textsBefore_);
    readRowTexts(texts_, row_);
    --remaining_;
    return true;
}

// Of a row like the one before, the record cannot stand ahead of that one's: what stands there
// did not look so, and has not changed since.
bool SelectionWalk::nextRecord() {
    while (nextRow()) {
        record_ = recordOfRow(texts_, texts_ == textsBefore_ ? record_ : nullptr);
        if (record_ != nullptr) return true;
        waitAtRow();
    }
    return false;
}

void SelectionWalk::deleteRecord() {
    uBlock.URLDatas().Delete(recordKey(record_->ID()));
    record_ = nullptr;
}

// A row that was taken out of the selection is one less to do.
void SelectionWalk::waitAtRow() {
    draw();
    const std::vector<std::int32_t> others = otherRows();
    sleepAtRow();
    if (otherRows() != others)
        remaining_ = 0;
    else if (rowState(row_, mask_) != 0)
        ++remaining_;
}

// Until the row is let go or has a record.
void SelectionWalk::sleepAtRow() {
    const ListView& begun = list();
    const win::HWND window = list().hWnd();
    const Waiting now(waiting_);
    do {
        DoEventsOrSleep();
        if (!begun.hasWindow(window)) throw Failure{failure::objectNotSet};
        if (rowState(row_, mask_) == 0) return;
        readRowTexts(texts_, row_);
    } while (recordOfRow(texts_) == nullptr);
}

// The rows that are selected beside this one.
std::vector<std::int32_t> SelectionWalk::otherRows() const {
    std::vector<std::int32_t> rows;
    const std::int32_t count = rowCount();
    for (std::int32_t row = nextRowWith(0, mask_); row < count; row = nextRowWith(row + 1, mask_))
        if (row != row_) rows.push_back(row);
    return rows;
}

}  // namespace magpie
