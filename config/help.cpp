#include "config/help.h"

#include "core/state.h"
#include "platform/api/hhctrl.h"
#include "platform/services/system_library.h"

namespace magpie {

namespace {

void callHelp(win::HWND window, win::UINT command, win::DWORD_PTR data) {
    static SystemLibrary library("hhctrl.ocx");
    library.require("HtmlHelpA");
    win::HtmlHelpA(window, helpFile.c_str(), command, data);
}

}  // namespace

void showHelp(Form& owner) {
    callHelp(owner.hWnd(), win::HH_DISPLAY_TOPIC, 0);
}

void out_ShowHelpID(std::int32_t ContextID, win::HWND hWND) {
    callHelp(hWND, win::HH_HELP_CONTEXT, static_cast<win::DWORD_PTR>(ContextID));
}

}  // namespace magpie
