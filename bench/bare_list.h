// BareList: a list view of the platform's with nothing of ours around it, filled and changed by
// the plainest loops, as the baseline of what the record list takes.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "platform/api/types.h"

namespace magpie::bench {

using RowTexts = std::array<std::string, 7>;

class BareList {
public:
    // As large as `like`, with columns as wide, on a window of its own.
    explicit BareList(win::HWND like);
    ~BareList();
    BareList(const BareList&) = delete;
    BareList& operator=(const BareList&) = delete;

    void clear();
    // Inserts the rows and their texts with redraw off.
    void insert(const std::vector<RowTexts>& rows);

    // Reads the first column of every row, and answers how many bytes there were.
    std::size_t readTitles();

    // Rearranges the rows once: the one inserted as number i comes to `places[i]`, from 0.
    void rearrange(const std::vector<int>& places);

    // Selects every row.
    void selectAll();
    // These ask each selected row for its state and its seven texts. Then the one deletes it, and
    // the other clears its mark and writes a text. They answer how many bytes were read.
    std::size_t deleteSelected();
    std::size_t writeSelected(int column, const std::string& text);

private:
    std::size_t readRow(win::WPARAM row);

    win::HWND window_;
    win::HWND list_;
};

}  // namespace magpie::bench
