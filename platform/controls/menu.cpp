#include "platform/controls/menu.h"

#include <string>
#include <string_view>

#include "platform/api/user32.h"
#include "platform/controls/form.h"
#include "platform/runtime/letter_case.h"

namespace magpie {

namespace {

const Form* popupOwner = nullptr;  // the form whose menu is up

// Keeps in mind whose menu is up.
class PopupUp {
public:
    explicit PopupUp(const Form& owner) : before_(popupOwner) { popupOwner = &owner; }
    ~PopupUp() { popupOwner = before_; }
    PopupUp(const PopupUp&) = delete;
    PopupUp& operator=(const PopupUp&) = delete;

private:
    const Form* before_;
};

// Owns the platform's menu while it is up.
class MenuHandle {
public:
    explicit MenuHandle(win::HMENU menu) : menu_(menu) {}
    ~MenuHandle() {
        if (menu_ != nullptr) win::DestroyMenu(menu_);
    }
    MenuHandle(const MenuHandle&) = delete;
    MenuHandle& operator=(const MenuHandle&) = delete;

private:
    win::HMENU menu_;
};

void insert(win::HMENU menu, const MenuRow& row, win::UINT id, win::HMENU below) {
    win::MENUITEMINFOA info{};
    info.cbSize = sizeof info;
    std::string caption = row.caption;
    if (row.key[0] != '\0') caption += std::string("\t") + row.key;
    if (caption == "-") {
        info.fMask = win::MIIM_FTYPE;
        info.fType = win::MFT_SEPARATOR;
    } else {
        info.fMask = win::MIIM_STRING | win::MIIM_STATE | win::MIIM_ID |
                     (below != nullptr ? win::MIIM_SUBMENU : 0);
        info.fState = (row.item->Enabled ? win::MFS_ENABLED : win::MFS_GRAYED) |
                      (row.item->Checked ? win::MFS_CHECKED : 0);
        info.wID = id;
        info.hSubMenu = below;
        info.dwTypeData = caption.data();
    }
    const auto last = static_cast<win::UINT>(win::GetMenuItemCount(menu));
    if (!win::InsertMenuItemA(menu, last, 1, &info) && below != nullptr) win::DestroyMenu(below);
}

// Builds the rows from `at` on that lie at `depth`; identifiers are row numbers
// from 1 of the whole table. What the platform makes no menu for is left out.
win::HMENU build(std::span<const MenuRow> table, std::size_t& at, int depth) {
    win::HMENU menu = win::CreatePopupMenu();
    while (at < table.size() && table[at].depth >= depth) {
        const MenuRow& row = table[at];
        const auto id = static_cast<win::UINT>(++at);
        win::HMENU below = nullptr;
        if (at < table.size() && table[at].depth > depth) below = build(table, at, depth + 1);
        if (row.item->Visible && menu != nullptr)
            insert(menu, row, id, below);
        else if (below != nullptr)
            win::DestroyMenu(below);
    }
    return menu;
}

// A line with an access key of its own answers to that alone.
bool canBeChosenBy(char letter, win::HMENU menu, int at) {
    char caption[80] = "";
    win::MENUITEMINFOA info{};
    info.cbSize = sizeof info;
    info.fMask = win::MIIM_FTYPE | win::MIIM_STATE | win::MIIM_STRING;
    info.dwTypeData = caption;
    info.cch = sizeof caption;
    return win::GetMenuItemInfoA(menu, static_cast<win::UINT>(at), 1, &info) &&
           (info.fType & win::MFT_SEPARATOR) == 0 && (info.fState & win::MFS_GRAYED) == 0 &&
           std::string_view(caption).find('&') == std::string_view::npos &&
           upperCase(std::string(1, caption[0])) == upperCase(std::string(1, letter));
}

}  // namespace

void designMenu(std::span<const MenuRow> table) {
    for (const MenuRow& row : table) {
        row.item->Enabled = row.enabled;
        row.item->Checked = false;
        row.item->Visible = true;
    }
}

void PopupMenu(Form& owner, std::span<const MenuRow> table) {
    win::POINT mouse{};
    win::GetCursorPos(&mouse);
    PopupMenu(owner, table, mouse);
}

void PopupMenu(Form& owner, std::span<const MenuRow> table, win::POINT at) {
    constexpr win::UINT flags =
        win::TPM_LEFTALIGN | win::TPM_RIGHTBUTTON | win::TPM_RETURNCMD | win::TPM_NONOTIFY;
    win::HWND window = owner.hWnd();
    win::BOOL chosen = 0;
    {
        std::size_t row = 0;
        win::HMENU menu = build(table, row, 0);
        const MenuHandle closing(menu);
        const PopupUp up(owner);
        if (menu != nullptr)
            chosen = win::TrackPopupMenu(menu, flags, at.x, at.y, 0, window, nullptr);
    }
    if (chosen <= 0) return;
    const MenuItem& item = *table[static_cast<std::size_t>(chosen) - 1].item;
    item.onClick.raise(item.Index);
}

void closePopupOf(const Form& owner) {
    if (popupOwner == &owner) win::EndMenu();
}

win::LRESULT lineOfLetter(win::HMENU menu, char letter) {
    constexpr int none = -1;
    int found = none;
    for (int at = 0; at < win::GetMenuItemCount(menu); ++at) {
        if (!canBeChosenBy(letter, menu, at)) continue;
        if (found != none) return win::makeLParam(0, win::MNC_IGNORE);
        found = at;
    }
    return found == none ? win::makeLParam(0, win::MNC_IGNORE)
                         : win::makeLParam(found, win::MNC_EXECUTE);
}

const MenuRow* rowWithShortcut(std::span<const MenuRow> table, char letter) {
    const std::string key = std::string("Ctrl+").append(1, letter);
    for (const MenuRow& row : table)
        if (row.key == key) return &row;
    return nullptr;
}

bool chooseRow(std::span<const MenuRow> table, const MenuRow& row) {
    int depth = row.depth + 1;
    // Backward: the first row above that lies less deep is the sub-menu around this one.
    for (auto at = static_cast<std::size_t>(&row - table.data()) + 1; at > 0 && depth > 0; --at) {
        const MenuRow& each = table[at - 1];
        if (each.depth >= depth) continue;
        if (!each.item->Enabled || !each.item->Visible) return false;
        depth = each.depth;
    }
    row.item->onClick.raise(row.item->Index);
    return true;
}

}  // namespace magpie
