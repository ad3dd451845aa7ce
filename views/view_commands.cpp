#include "views/view_commands.h"

#include "platform/api/constants.h"
#include "views/list_all.h"
#include "views/refresh.h"

namespace magpie {

void Combo1_Click() {
    setListAll(false);
    RefreshURLPage();
}

void txtFilter_KeyDown(int keyCode, int) {
    if (keyCode == win::VK_RETURN) RefreshURLPage();
}

}  // namespace magpie
