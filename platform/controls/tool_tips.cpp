#include "platform/controls/tool_tips.h"

#include "platform/api/comctl32.h"
#include "platform/api/kernel32.h"
#include "platform/api/user32.h"

namespace magpie {

namespace {

win::TTTOOLINFOA partOf(win::HWND control, win::UINT_PTR part) {
    win::TTTOOLINFOA tool{};
    tool.hwnd = control;
    tool.uId = part;
    return tool;
}

}  // namespace

ToolTips::ToolTips(win::HWND owner)
    : owner_(owner),
      window_(win::CreateWindowExA(win::WS_EX_TOPMOST, win::TOOLTIPS_CLASSA, "",
                                   win::WS_POPUP | win::TTS_ALWAYSTIP | win::TTS_NOPREFIX,
                                   win::CW_USEDEFAULT, win::CW_USEDEFAULT, win::CW_USEDEFAULT,
                                   win::CW_USEDEFAULT, owner, nullptr, win::GetOwnModule(),
                                   nullptr)) {}

ToolTips::~ToolTips() {
    // An owned window goes with its owner; this one may outlive it by no moment.
    if (win::IsWindow(window_)) win::DestroyWindow(window_);
}

void ToolTips::tell(win::HWND control, const std::string& before, const std::string& text) {
    win::TTTOOLINFOA tool{};
    tool.uFlags = win::TTF_IDISHWND | win::TTF_SUBCLASS;
    tool.hwnd = owner_;
    tool.uId = reinterpret_cast<win::UINT_PTR>(control);
    tool.lpszText = const_cast<char*>(text.c_str());
    const win::UINT message = text.empty()     ? win::TTM_DELTOOLA
                              : before.empty() ? win::TTM_ADDTOOLA
                                               : win::TTM_UPDATETIPTEXTA;
    send(message, tool);
}

void ToolTips::tellPart(win::HWND control, win::UINT_PTR part, const win::RECT& place,
                        const std::string& text) {
    forgetPart(control, part);
    win::TTTOOLINFOA tool = partOf(control, part);
    tool.uFlags = win::TTF_SUBCLASS;
    tool.rect = place;
    tool.lpszText = const_cast<char*>(text.c_str());
    send(win::TTM_ADDTOOLA, tool);
}

void ToolTips::forgetPart(win::HWND control, win::UINT_PTR part) {
    win::TTTOOLINFOA tool = partOf(control, part);
    send(win::TTM_DELTOOLA, tool);
}

void ToolTips::send(win::UINT message, win::TTTOOLINFOA& tool) {
    tool.cbSize = sizeof tool;
    win::SendMessageA(window_, message, 0, reinterpret_cast<win::LPARAM>(&tool));
}

}  // namespace magpie
