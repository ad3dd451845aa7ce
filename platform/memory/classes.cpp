#include "platform/memory/classes.h"

#include <deque>

#include "platform/api/comctl32.h"
#include "platform/memory/faults.h"
#include "platform/memory/refuse.h"
#include "platform/memory/window.h"

namespace win::memory {
namespace {

char lower(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter + ('a' - 'A')) : letter;
}

WindowClass systemClass(const char* name, WNDPROC procedure, DWORD knownStyles) {
    return {name, procedure,  CS_DBLCLKS, LoadCursorA(nullptr, resourceName(IDC_ARROW_NUMBER)),
            true, knownStyles};
}

// A deque, because windows keep the address of their class.
std::deque<WindowClass>& classes() {
    static std::deque<WindowClass> registered = {
        systemClass("Button", buttonProcedure, 0x000F | BS_NOTIFY),
        systemClass("Static", staticProcedure,
                    SS_BITMAP | SS_NOTIFY | SS_CENTERIMAGE | SS_REALSIZECONTROL),
        systemClass("Edit", editProcedure, ES_AUTOHSCROLL),
        systemClass("#32770", DefWindowProcA, 0),
        systemClass("ComboBox", comboBoxProcedure, CBS_DROPDOWNLIST | CBS_SORT | CBS_HASSTRINGS),
    };
    return registered;
}

void addOnce(const WindowClass& added) {
    if (!findClass(added.name)) classes().push_back(added);
}

}  // namespace

bool sameIgnoringCase(std::string_view left, std::string_view right) {
    if (left.size() != right.size()) return false;
    for (std::size_t at = 0; at < left.size(); ++at) {
        if (lower(left[at]) != lower(right[at])) return false;
    }
    return true;
}

const WindowClass* findClass(std::string_view name) {
    for (const WindowClass& each : classes()) {
        if (sameIgnoringCase(each.name, name)) return &each;
    }
    return nullptr;
}

}  // namespace win::memory

namespace win {

using namespace memory;

ATOM RegisterClassExA(const WNDCLASSEXA* definition) {
    if (faultIn("RegisterClassExA")) return 0;
    if (definition->cbSize != sizeof(WNDCLASSEXA)) refuse("class of size", definition->cbSize);
    if (definition->style & ~(CS_VREDRAW | CS_HREDRAW | CS_DBLCLKS))
        refuse("class style", definition->style);
    if (definition->cbClsExtra || definition->cbWndExtra || definition->lpszMenuName)
        refuse("class with extra bytes or a menu", definition->lpszClassName);
    if (findClass(definition->lpszClassName)) return 0;
    classes().push_back({definition->lpszClassName, definition->lpfnWndProc, definition->style,
                         definition->hCursor, false, 0});
    return static_cast<ATOM>(0xC000 + classes().size());
}

BOOL InitCommonControlsEx(const INITCOMMONCONTROLSEX* wanted) {
    if (faultIn("InitCommonControlsEx")) return false;
    constexpr DWORD known =
        ICC_LISTVIEW_CLASSES | ICC_BAR_CLASSES | ICC_TAB_CLASSES | ICC_STANDARD_CLASSES;
    if (wanted->dwSize != sizeof(INITCOMMONCONTROLSEX)) refuse("controls of size", wanted->dwSize);
    if (wanted->dwICC & ~known) refuse("classes of common controls", wanted->dwICC);
    if (wanted->dwICC & ICC_LISTVIEW_CLASSES) {
        addOnce(systemClass(WC_HEADERA, headerProcedure, 0));
        addOnce(systemClass(WC_LISTVIEWA, listViewProcedure,
                            LVS_REPORT | LVS_SINGLESEL | LVS_SHOWSELALWAYS | LVS_SHAREIMAGELISTS));
    }
    if (wanted->dwICC & ICC_BAR_CLASSES) {
        addOnce(systemClass(STATUSCLASSNAMEA, statusBarProcedure, SBARS_SIZEGRIP | SBARS_TOOLTIPS));
        addOnce(systemClass(TOOLTIPS_CLASSA, toolTipProcedure, TTS_ALWAYSTIP | TTS_NOPREFIX));
    }
    if (wanted->dwICC & ICC_TAB_CLASSES) {
        addOnce(
            systemClass(WC_TABCONTROLA, tabControlProcedure,
                        TCS_RIGHT | TCS_VERTICAL | TCS_MULTILINE | TCS_TOOLTIPS | TCS_FOCUSNEVER));
        addOnce(systemClass(TOOLTIPS_CLASSA, toolTipProcedure, TTS_ALWAYSTIP | TTS_NOPREFIX));
    }
    return true;
}

}  // namespace win
