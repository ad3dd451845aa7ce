#include "platform/controls/common_controls.h"

#include "platform/api/comctl32.h"

namespace magpie {

void startCommonControls() {
    win::INITCOMMONCONTROLSEX classes{};
    classes.dwSize = sizeof classes;
    classes.dwICC = win::ICC_STANDARD_CLASSES | win::ICC_LISTVIEW_CLASSES | win::ICC_BAR_CLASSES |
                    win::ICC_TAB_CLASSES;
    win::InitCommonControlsEx(&classes);
}

}  // namespace magpie
