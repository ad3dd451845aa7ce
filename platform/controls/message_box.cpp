#include "platform/controls/message_box.h"

#include "platform/api/user32.h"
#include "platform/controls/form.h"

namespace magpie {

int MsgBox(const std::string& text, win::UINT buttons, const char* title) {
    return win::MessageBoxA(dialogOwner(), text.c_str(), title, buttons);
}

}  // namespace magpie
