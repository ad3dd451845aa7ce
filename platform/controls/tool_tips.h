// ToolTips: the one tool-tip window of a form, and the texts it shows for the
// form's controls.
#pragma once

#include <string>

#include "platform/api/comctl32.h"
#include "platform/api/types.h"

namespace magpie {

class ToolTips {
public:
    explicit ToolTips(win::HWND owner);
    ~ToolTips();
    ToolTips(const ToolTips&) = delete;
    ToolTips& operator=(const ToolTips&) = delete;

    // Changes the tip of `control` from `before` to `text`; an empty text is no tip.
    void tell(win::HWND control, const std::string& before, const std::string& text);

    // The tip of a part of `control`, in pixels of it; told anew, the part may have
    // moved. Parts have to be forgotten before their control goes.
    void tellPart(win::HWND control, win::UINT_PTR part, const win::RECT& place,
                  const std::string& text);
    void forgetPart(win::HWND control, win::UINT_PTR part);

private:
    void send(win::UINT message, win::TTTOOLINFOA& tool);

    win::HWND owner_;
    win::HWND window_;
};

}  // namespace magpie
