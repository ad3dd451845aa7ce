#include "views/find.h"

#include <optional>

#include "core/misc.h"
#include "core/state.h"
#include "entries/row_match.h"
#include "mainwindow/form3.h"
#include "platform/api/comctl32.h"
#include "platform/api/user32.h"
#include "platform/runtime/letter_case.h"
#include "platform/runtime/pattern.h"
#include "platform/runtime/split.h"
#include "views/find_form.h"

namespace magpie {

namespace {

constexpr std::uint8_t findHoldsInterface = 4;
constexpr std::uint8_t upwards = 1;
constexpr int rowUp = 0;
constexpr int rowDown = 1;

// The first row from `i` on in steps of `step` whose title matches; one off the list if
// there is none. The pattern is read when there is a title to hold against it.
std::int32_t nextMatch(std::int32_t i, std::int32_t step, const std::string& text) {
    std::optional<Pattern> pattern;
    std::string shown;
    std::string title;
    const std::int32_t rows = rowCount();
    for (; i >= 0 && i < rows; i += step) {
        if (!pattern) pattern.emplace(std::string("*").append(upperCase(text)).append("*"));
        readRowText(shown, i, 0);
        upperCaseInto(title, shown);
        if (pattern->matches(title)) break;
    }
    return i;
}

// Where the list's first row stands or would stand, in pixels.
int topOfRows() {
    win::RECT place{};
    place.left = win::LVIR_BOUNDS;
    win::SendMessageA(Form3.ListView1[lvIndex].hWnd(), win::LVM_GETITEMRECT, 0,
                      reinterpret_cast<win::LPARAM>(&place));
    return place.top;
}

// The last message's state is the number of the list's scroll message and not that
// message: the row takes the focus mark, and the list stays where it is. Under Wine a row
// that takes the focus mark comes into sight, so the list is put back.
void moveSelection(std::int32_t from, std::int32_t to) {
    constexpr win::UINT marks = win::LVM_ENSUREVISIBLE;
    const int top = topOfRows();
    setRowState(from, 0, win::LVIS_SELECTED);
    setRowState(to, win::LVIS_SELECTED, win::LVIS_SELECTED);
    setRowState(to, marks, marks);
    if (const int moved = topOfRows() - top; moved != 0)
        win::SendMessageA(Form3.ListView1[lvIndex].hWnd(), win::LVM_SCROLL, 0, moved);
}

}  // namespace

void mnuFind_Click(int Index) {
    if (Form3.ListView1[lvIndex].Count() == 0) return;
    switch (Index) {
        case 0: showDialogModal(Find); break;
        case 1: findRow(findText, 0); break;
        case 2: findRow(findText, upwards); break;
        default: break;
    }
}

// A main window that has gone under the dialog has no rows, and is not loaded to be asked.
void findRow(const std::string& text, std::uint8_t direction) {
    if (text.empty() || !Form3.loaded() || selectedCount() < 1) return;
    const std::int32_t start = singleSelect(false);
    const std::int32_t step = direction == upwards ? -1 : 1;
    const std::int32_t found = nextMatch(start + step, step, text);
    if (found >= 0 && found < rowCount()) moveSelection(start, found);
}

void Find_Load() {
    Find.Icon(Form3.Icon());
    Find.Text1.Text(findText);
    Find.Combo1.ListIndex(rowDown);
    modalOpen = findHoldsInterface;
    centerOnMain(Find);
}

void Find_Activate() {
    Find.Text1.SetFocus();
    Find.Text1.selectAll();
}

void Find_Unload() {
    modalOpen = 0;
}

void findNext_Click() {
    findText = trimBlanks(Find.Text1.Text());
    if (findText.empty()) {
        win::MessageBeep(win::MB_OK);
        return;
    }
    findRow(findText, Find.Combo1.ListIndex() == rowUp ? upwards : 0);
}

void findCancel_Click() {
    Find.unload();
}

}  // namespace magpie
