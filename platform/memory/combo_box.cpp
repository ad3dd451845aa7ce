// Combo box: the class "ComboBox": a drop-down list of texts, each with a number.
// The list never opens here; the keyboard reaches every row.
#include <algorithm>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

#include "platform/memory/refuse.h"
#include "platform/memory/sort_order.h"
#include "platform/memory/window.h"

namespace win::memory {
namespace {

// Pixels around the text of the closed box, and of the text itself until told.
constexpr int frame = 6;
constexpr int usualHeight = 18;

// Rows of the list that have room in it; on a real desktop its height and the font decide.
constexpr int rowsInSight = 16;

struct Item {
    std::string text;
    LPARAM data = 0;
};

struct ComboState : ControlState {
    std::vector<Item> items;
    int selected = -1;
    int caret = 0;  // the row that keys start from
    int top = 0;    // the first row in sight, were the list open
    int height = usualHeight;

    int count() const { return static_cast<int>(items.size()); }
    int lastTop() const { return std::max(0, count() - rowsInSight); }
    // Null for a row that is not there.
    Item* at(WPARAM row) { return row < items.size() ? &items[row] : nullptr; }
};

// The height that a combo box is given is that of its opened list.
void keepHeight(HWND combo) {
    RECT now{};
    GetWindowRect(combo, &now);
    const int height = controlState<ComboState>(combo).height + frame;
    if (now.bottom - now.top == height) return;
    SetWindowPos(combo, nullptr, 0, 0, now.right - now.left, height,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

// Where the platform's search by halves puts a text among its equals.
std::size_t sortedPlace(const std::vector<Item>& items, const std::string& text) {
    std::size_t from = 0;
    std::size_t to = items.size();
    while (from < to) {
        const std::size_t middle = (from + to - 1) / 2;
        const int side = compareAsListed(text, items[middle].text);
        if (side == 0) return middle;
        if (side < 0)
            to = middle;
        else
            from = middle + 1;
    }
    return from;
}

LRESULT insertItem(ComboState& state, std::size_t place, Item added) {
    state.items.insert(state.items.begin() + static_cast<std::ptrdiff_t>(place), std::move(added));
    const int row = static_cast<int>(place);
    if (row <= state.selected) ++state.selected;
    if (row <= state.caret && state.count() > 1) ++state.caret;
    return row;
}

LRESULT addItem(HWND combo, LPARAM text) {
    auto& state = controlState<ComboState>(combo);
    Item added{reinterpret_cast<const char*>(text), 0};
    const bool sorted = windowOf(combo).style & CBS_SORT;
    const std::size_t place = sorted ? sortedPlace(state.items, added.text) : state.items.size();
    return insertItem(state, place, std::move(added));
}

// Also a sorted list takes it where it is put; -1 is the end.
LRESULT insertItemAt(ComboState& state, WPARAM row, LPARAM text) {
    const auto wanted = static_cast<INT>(row);
    if (wanted > state.count()) return CB_ERR;
    const auto place = wanted < 0 ? state.items.size() : static_cast<std::size_t>(wanted);
    return insertItem(state, place, {reinterpret_cast<const char*>(text), 0});
}

LRESULT removeItem(ComboState& state, WPARAM row) {
    if (!state.at(row)) return CB_ERR;
    state.items.erase(state.items.begin() + static_cast<std::ptrdiff_t>(row));
    const int removed = static_cast<int>(row);
    if (removed == state.selected) state.selected = -1;
    if (removed < state.selected) --state.selected;
    state.caret = std::max(0, std::min(state.caret, state.count() - 1));
    // Only when all rows have room again does their beginning come back.
    if (state.count() == rowsInSight) state.top = 0;
    return state.count();
}

// A row that is not there leaves the selection as it is; -1 takes it away.
LRESULT select(ComboState& state, WPARAM row) {
    const int wanted = static_cast<INT>(row);
    if (wanted == -1) state.selected = -1;
    if (wanted < 0 || wanted >= state.count()) return CB_ERR;
    state.selected = state.caret = wanted;
    return wanted;
}

// The program's choice goes to the top as far as there are rows below to fill the list.
LRESULT selectByProgram(ComboState& state, WPARAM row) {
    const LRESULT chosen = select(state, row);
    if (chosen != CB_ERR) state.top = std::min(state.selected, state.lastTop());
    return chosen;
}

// The user's choice moves the list only as far as it must.
void selectByUser(HWND combo, int row) {
    auto& state = controlState<ComboState>(combo);
    select(state, static_cast<WPARAM>(row));
    state.top = std::max(std::min(state.top, row), row - rowsInSight + 1);
    notifyCommand(combo, CBN_SELENDOK);
    notifyCommand(combo, CBN_SELCHANGE);
}

// Every such key is told as a change, also where there is no further row.
void pressKey(HWND combo, WPARAM key) {
    if (key == VK_PRIOR || key == VK_NEXT || key == VK_F4) refuse("key in a combo box", key);
    const auto& state = controlState<ComboState>(combo);
    const int last = state.count() - 1;
    // The first key only comes back to the row that was selected last.
    const bool returns = state.selected != state.caret;
    int row = state.caret;
    switch (key) {
        case VK_HOME: row = 0; break;
        case VK_END: row = last; break;
        case VK_UP:
        case VK_LEFT: row = returns ? row : std::max(row - 1, 0); break;
        case VK_DOWN:
        case VK_RIGHT: row = returns ? row : std::min(row + 1, last); break;
        case VK_SPACE:
            if (!returns) return;
            break;
        default: return;
    }
    if (last >= 0) selectByUser(combo, row);
}

// A letter goes to the next row that begins with it, round the end.
void typeLetter(HWND combo, WPARAM letter) {
    const auto& state = controlState<ComboState>(combo);
    constexpr WPARAM firstPrintable = 0x20;
    if (letter < firstPrintable) return;
    const std::string wanted(1, static_cast<char>(letter));
    for (int step = 1; step <= state.count(); ++step) {
        const int row = (state.caret + step) % state.count();
        const std::string& text = state.items[static_cast<std::size_t>(row)].text;
        if (text.empty() || compareAsListed(text.substr(0, 1), wanted) != 0) continue;
        selectByUser(combo, row);
        return;
    }
}

// The text on show, as far as `size` bytes hold it.
LRESULT copyText(const std::string& text, std::size_t size, char* to) {
    const std::size_t length = std::min(text.size(), size - 1);
    std::memcpy(to, text.data(), length);
    to[length] = '\0';
    return static_cast<LRESULT>(length);
}

LRESULT itemMessage(ComboState& state, UINT message, WPARAM row, LPARAM lParam) {
    Item* item = state.at(row);
    if (!item) return CB_ERR;
    switch (message) {
        case CB_GETLBTEXT:
            return copyText(item->text, item->text.size() + 1, reinterpret_cast<char*>(lParam));
        case CB_GETLBTEXTLEN: return static_cast<LRESULT>(item->text.size());
        case CB_SETITEMDATA: item->data = lParam; return 1;
        default: return item->data;
    }
}

LRESULT setHeight(HWND combo, WPARAM row, LPARAM height) {
    if (static_cast<INT>(row) != -1) refuse("height of a combo box's row", row);
    controlState<ComboState>(combo).height = static_cast<int>(height);
    keepHeight(combo);
    return height;
}

LRESULT comboMessage(HWND combo, UINT message, WPARAM wParam, LPARAM lParam) {
    auto& state = controlState<ComboState>(combo);
    switch (message) {
        case CB_ADDSTRING: return addItem(combo, lParam);
        case CB_INSERTSTRING: return insertItemAt(state, wParam, lParam);
        case CB_GETTOPINDEX: return state.top;
        case CB_DELETESTRING: return removeItem(state, wParam);
        case CB_RESETCONTENT:
            state.items.clear();
            state.selected = -1;
            state.caret = 0;
            state.top = 0;
            return 1;
        case CB_INITSTORAGE: return static_cast<LRESULT>(wParam);
        case CB_GETCOUNT: return state.count();
        case CB_GETCURSEL: return state.selected;
        case CB_SETCURSEL: return selectByProgram(state, wParam);
        case CB_SETITEMHEIGHT: return setHeight(combo, wParam, lParam);
        case CB_GETLBTEXT:
        case CB_GETLBTEXTLEN:
        case CB_GETITEMDATA:
        case CB_SETITEMDATA: return itemMessage(state, message, wParam, lParam);
        default: refuse("combo box's message", message);
    }
}

std::string shownText(HWND combo) {
    auto& state = controlState<ComboState>(combo);
    const Item* item = state.at(static_cast<WPARAM>(state.selected));
    return item ? item->text : "";
}

}  // namespace

LRESULT comboBoxProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    constexpr UINT firstOfClass = 0x0140;
    constexpr UINT lastOfClass = 0x0165;
    if (message >= firstOfClass && message <= lastOfClass)
        return comboMessage(window, message, wParam, lParam);
    switch (message) {
        case WM_CREATE:
            if ((windowOf(window).style & CBS_DROPDOWNLIST) != CBS_DROPDOWNLIST)
                refuse("combo box of style", windowOf(window).style);
            return 0;
        case WM_SIZE: keepHeight(window); return 0;
        case WM_GETDLGCODE: return DLGC_WANTARROWS | DLGC_WANTCHARS;
        case WM_GETTEXTLENGTH: return static_cast<LRESULT>(shownText(window).size());
        case WM_GETTEXT:
            return copyText(shownText(window), wParam, reinterpret_cast<char*>(lParam));
        case WM_SETTEXT: return CB_ERR;
        case WM_KEYDOWN: pressKey(window, wParam); return 0;
        case WM_CHAR: typeLetter(window, wParam); return 0;
        case WM_SETFOCUS: notifyCommand(window, CBN_SETFOCUS); return 0;
        case WM_KILLFOCUS:
            notifyCommand(window, CBN_SELENDCANCEL);
            notifyCommand(window, CBN_KILLFOCUS);
            return 0;
        case WM_LBUTTONDOWN: refuse("opening of a combo box's list", "by mouse");
        case WM_LBUTTONDBLCLK: refuse("opening of a combo box's list", "by double click");
        case WM_MOUSEWHEEL: refuse("turning of the wheel", "over a combo box");
        default: return DefWindowProcA(window, message, wParam, lParam);
    }
}

}  // namespace win::memory
