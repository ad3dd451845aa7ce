// Reads what the program's main window shows, from outside of it.
//   window_reader rows     the rows of the record list in view, sub-items after a "|"
//   window_reader headings the middle of each of its headings, "x y" on the screen
//   window_reader group    the group chosen in the drop-down
//   window_reader panes    the panes of the status bar
//   window_reader tip      the tool tip that is up
//   window_reader panel    the side panel's controls on show: groups with their ticks,
//                          buttons, check boxes, choices, and fields in quotes
//   window_reader dialog   the same of the dialog that is up
//   window_reader box T    the text of the message box with title T
//   window_reader selected the titles of the selected rows
//   window_reader top      the title of the first row in sight
//   window_reader place T  place and size on the screen of the control on show with text T,
//                          of the dialog if one is up
//   window_reader controls how many windows there are in it
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

// The SDK's base comes first.
// clang-format off
#include <windows.h>
#include <commctrl.h>
// clang-format on

namespace {

constexpr DWORD patience = 5000;  // milliseconds for an answer

LRESULT ask(HWND window, UINT message, WPARAM wParam = 0, const void* lParam = nullptr) {
    DWORD_PTR answer = 0;
    SendMessageTimeoutA(window, message, wParam, reinterpret_cast<LPARAM>(lParam), SMTO_ABORTIFHUNG,
                        patience, &answer);
    return static_cast<LRESULT>(answer);
}

// A record and a text in the memory of the window's process.
class Borrowed {
public:
    explicit Borrowed(HWND window) {
        DWORD id = 0;
        GetWindowThreadProcessId(window, &id);
        process_ =
            OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE, FALSE, id);
        memory_ = static_cast<char*>(
            VirtualAllocEx(process_, nullptr, recordSize + textSize, MEM_COMMIT, PAGE_READWRITE));
    }
    ~Borrowed() {
        VirtualFreeEx(process_, memory_, 0, MEM_RELEASE);
        CloseHandle(process_);
    }
    Borrowed(const Borrowed&) = delete;
    Borrowed& operator=(const Borrowed&) = delete;

    char* text() const { return memory_ + recordSize; }
    template <class Record>
    const void* put(const Record& record) const {
        WriteProcessMemory(process_, memory_, &record, sizeof record, nullptr);
        return memory_;
    }
    std::string taken() const {
        char found[textSize] = "";
        ReadProcessMemory(process_, text(), found, textSize - 1, nullptr);
        return found;
    }

    static constexpr std::size_t recordSize = 256;
    static constexpr std::size_t textSize = 1024;

private:
    HANDLE process_ = nullptr;
    char* memory_ = nullptr;
};

std::vector<HWND> children(HWND window, const char* wanted) {
    struct Search {
        const char* wanted;
        std::vector<HWND> found;
    } search{wanted, {}};
    EnumChildWindows(
        window,
        [](HWND child, LPARAM lParam) -> BOOL {
            auto& here = *reinterpret_cast<Search*>(lParam);
            char name[64] = "";
            GetClassNameA(child, name, sizeof name);
            if (!*here.wanted || !_stricmp(name, here.wanted)) here.found.push_back(child);
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&search));
    return search.found;
}

std::string titleOf(HWND window) {
    char text[64] = "";
    GetWindowTextA(window, text, sizeof text);
    return text;
}

std::string cell(HWND list, const Borrowed& memory, int row, int column) {
    LVITEMA item{};
    item.iSubItem = column;
    item.pszText = memory.text();
    item.cchTextMax = static_cast<int>(Borrowed::textSize);
    ask(list, LVM_GETITEMTEXTA, static_cast<WPARAM>(row), memory.put(item));
    return memory.taken();
}

// The record list in view, or null.
HWND recordList(HWND form) {
    for (HWND list : children(form, WC_LISTVIEWA))
        if (IsWindowVisible(list) && titleOf(list) == "Bookmarks") return list;
    return nullptr;
}

HWND headerOf(HWND list) {
    return reinterpret_cast<HWND>(ask(list, LVM_GETHEADER));
}

int columnsOf(HWND list) {
    return static_cast<int>(ask(headerOf(list), HDM_GETITEMCOUNT));
}

void printSelected(HWND list) {
    if (!list) return;
    const Borrowed memory(list);
    const void* flags = reinterpret_cast<const void*>(std::uintptr_t{LVNI_SELECTED});
    auto row = static_cast<int>(ask(list, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), flags));
    for (; row >= 0;
         row = static_cast<int>(ask(list, LVM_GETNEXTITEM, static_cast<WPARAM>(row), flags)))
        std::puts(cell(list, memory, row, 0).c_str());
}

void printTop(HWND list) {
    if (!list) return;
    const Borrowed memory(list);
    std::puts(cell(list, memory, static_cast<int>(ask(list, LVM_GETTOPINDEX)), 0).c_str());
}

void printRows(HWND list) {
    if (!list) return;
    const Borrowed memory(list);
    const auto rows = static_cast<int>(ask(list, LVM_GETITEMCOUNT));
    const int columns = columnsOf(list);
    for (int row = 0; row < rows; ++row) {
        std::string line = cell(list, memory, row, 0);
        for (int column = 1; column < columns; ++column)
            line.append("|").append(cell(list, memory, row, column));
        std::puts(line.c_str());
    }
}

void printHeadings(HWND list) {
    if (!list) return;
    RECT header{};
    GetWindowRect(headerOf(list), &header);
    int left = static_cast<int>(header.left);
    for (int column = 0; column < columnsOf(list); ++column) {
        const auto width =
            static_cast<int>(ask(list, LVM_GETCOLUMNWIDTH, static_cast<WPARAM>(column)));
        std::printf("%d %d\n", left + width / 2, static_cast<int>(header.top + header.bottom) / 2);
        left += width;
    }
}

void printGroup(HWND form) {
    for (HWND combo : children(form, WC_COMBOBOXA)) {
        if (!IsWindowVisible(combo)) continue;
        char text[256] = "";
        ask(combo, WM_GETTEXT, sizeof text, text);
        std::puts(text);
    }
}

bool isClass(HWND window, const char* name) {
    char found[64] = "";
    GetClassNameA(window, found, sizeof found);
    return _stricmp(found, name) == 0;
}

const char* tickOf(bool ticked) {
    return ticked ? "[x] " : "[ ] ";
}

void printGroups(HWND list) {
    const Borrowed memory(list);
    HDITEMA heading{};
    heading.mask = HDI_TEXT;
    heading.pszText = memory.text();
    heading.cchTextMax = static_cast<int>(Borrowed::textSize);
    ask(reinterpret_cast<HWND>(ask(list, LVM_GETHEADER)), HDM_GETITEMA, 0, memory.put(heading));
    std::puts(memory.taken().c_str());
    const bool boxes = (ask(list, LVM_GETEXTENDEDLISTVIEWSTYLE) & LVS_EX_CHECKBOXES) != 0;
    const auto rows = static_cast<int>(ask(list, LVM_GETITEMCOUNT));
    for (int row = 0; row < rows; ++row) {
        const auto* mask = reinterpret_cast<const void*>(std::uintptr_t{LVIS_STATEIMAGEMASK});
        const LRESULT state = ask(list, LVM_GETITEMSTATE, static_cast<WPARAM>(row), mask);
        std::printf("%s%s\n", boxes ? tickOf(state >> 12 == 2) : "",
                    cell(list, memory, row, 0).c_str());
    }
}

void printControl(HWND control) {
    char text[256] = "";
    ask(control, WM_GETTEXT, sizeof text, text);
    if (isClass(control, WC_LISTVIEWA)) {
        printGroups(control);
    } else if (isClass(control, WC_EDITA)) {
        std::printf("\"%s\"\n", text);
    } else if (*text) {
        const bool box = isClass(control, WC_BUTTONA) &&
                         (GetWindowLongA(control, GWL_STYLE) & 0xF) == BS_AUTOCHECKBOX;
        std::printf("%s%s\n", box ? tickOf(ask(control, BM_GETCHECK) == BST_CHECKED) : "", text);
    }
}

// The panel is what the Advanced screen holds beside the list of records.
void printPanel(HWND form) {
    HWND screen = nullptr;
    for (HWND list : children(form, WC_LISTVIEWA))
        if (IsWindowVisible(list) && titleOf(list) == "Bookmarks") screen = GetParent(list);
    for (HWND control : children(screen, ""))
        if (IsWindowVisible(control) && titleOf(control) != "Bookmarks" &&
            !isClass(control, WC_HEADERA))
            printControl(control);
}

void printDialog(HWND dialog) {
    for (HWND control : children(dialog, ""))
        if (IsWindowVisible(control) && !isClass(control, WC_HEADERA)) printControl(control);
}

// The dialog that is up, or null.
HWND dialogUp() {
    for (const char* name : {"Find", "Form2", "Rated", "MagpiePreferences"}) {
        HWND dialog = FindWindowA(name, nullptr);
        if (dialog && IsWindowVisible(dialog)) return dialog;
    }
    return nullptr;
}

void printPlace(HWND form, const char* wanted) {
    for (HWND control : children(form, "")) {
        RECT place{};
        if (!IsWindowVisible(control) || titleOf(control) != wanted) continue;
        GetWindowRect(control, &place);
        std::printf("%ld %ld %ld %ld\n", place.left, place.top, place.right - place.left,
                    place.bottom - place.top);
    }
}

void printPanes(HWND form) {
    for (HWND bar : children(form, STATUSCLASSNAMEA)) {
        const Borrowed memory(bar);
        const auto panes = static_cast<WPARAM>(ask(bar, SB_GETPARTS));
        for (WPARAM pane = 0; pane < panes; ++pane) {
            ask(bar, SB_GETTEXTA, pane, memory.text());
            std::puts(memory.taken().c_str());
        }
    }
}

// Of whatever program; only one tip is up at a time.
void printTip() {
    EnumWindows(
        [](HWND window, LPARAM) -> BOOL {
            char name[64] = "";
            GetClassNameA(window, name, sizeof name);
            if (_stricmp(name, TOOLTIPS_CLASSA) != 0 || !IsWindowVisible(window)) return TRUE;
            char text[256] = "";
            ask(window, WM_GETTEXT, sizeof text, text);
            std::puts(text);
            return TRUE;
        },
        0);
}

// Of whatever program.
void printBox(const char* title) {
    HWND box = FindWindowA("#32770", title);
    if (!box) return;
    for (HWND text : children(box, WC_STATICA)) {
        char line[1024] = "";
        ask(text, WM_GETTEXT, sizeof line, line);
        if (*line) std::puts(line);
    }
}

}  // namespace

int main(int count, char** arguments) {
    const std::string what = count >= 2 ? arguments[1] : "";
    HWND form = FindWindowA("Form3", nullptr);
    if (what == "tip") {
        printTip();
        return 0;
    }
    if (what == "box" && count == 3) {
        printBox(arguments[2]);
        return 0;
    }
    if (!form) return 1;
    if (what == "rows") {
        printRows(recordList(form));
    } else if (what == "headings") {
        printHeadings(recordList(form));
    } else if (what == "group") {
        printGroup(form);
    } else if (what == "panes") {
        printPanes(form);
    } else if (what == "panel") {
        printPanel(form);
    } else if (what == "dialog") {
        printDialog(dialogUp());
    } else if (what == "selected") {
        printSelected(recordList(form));
    } else if (what == "top") {
        printTop(recordList(form));
    } else if (what == "place" && count == 3) {
        printPlace(dialogUp() ? dialogUp() : form, arguments[2]);
    } else if (what == "controls") {
        std::printf("%zu\n", children(form, "").size());
    } else {
        return 2;
    }
    return 0;
}
