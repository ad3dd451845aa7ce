// Tool tip: the class "tooltips_class32". It keeps what it would say; nothing pops up.
#include "platform/memory/tool_tip.h"

#include <cstring>

#include "platform/memory/refuse.h"

namespace win::memory {
namespace {

TTTOOLINFOA& requestedTool(LPARAM tool) {
    auto& request = *reinterpret_cast<TTTOOLINFOA*>(tool);
    if (request.cbSize != sizeof(TTTOOLINFOA)) refuse("tool of size", request.cbSize);
    return request;
}

std::string textOf(const TTTOOLINFOA& request) {
    const auto address = reinterpret_cast<std::intptr_t>(request.lpszText);
    if (address == 0 || address == -1) refuse("tool without a text of its own", request.uFlags);
    return request.lpszText;
}

LRESULT addTool(ToolTipState& state, const TTTOOLINFOA& request) {
    // A whole window, or a part of its owner.
    if ((request.uFlags & ~TTF_IDISHWND) != TTF_SUBCLASS) refuse("flags of a tool", request.uFlags);
    state.tools.push_back({request.hwnd, request.uId, textOf(request)});
    return 1;
}

LRESULT deleteTool(ToolTipState& state, const TTTOOLINFOA& request) {
    if (const Tool* found = state.find(request.hwnd, request.uId))
        state.tools.erase(state.tools.begin() + (found - state.tools.data()));
    return 0;
}

LRESULT changeText(ToolTipState& state, const TTTOOLINFOA& request) {
    if (Tool* found = state.find(request.hwnd, request.uId)) found->text = textOf(request);
    return 0;
}

LRESULT tellText(ToolTipState& state, WPARAM size, const TTTOOLINFOA& request) {
    // How far a longer text is copied differs among the versions of the class.
    constexpr std::size_t least = 80;
    if (size != 0) refuse("size of a tool tip's text", size);
    const Tool* found = state.find(request.hwnd, request.uId);
    if (!found) return 0;
    if (found->text.size() >= least) refuse("tool tip's text cut", found->text);
    std::memcpy(request.lpszText, found->text.c_str(), found->text.size() + 1);
    return 0;
}

LRESULT toolTipMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto& state = controlState<ToolTipState>(window);
    switch (message) {
        case TTM_ADDTOOLA: return addTool(state, requestedTool(lParam));
        case TTM_DELTOOLA: return deleteTool(state, requestedTool(lParam));
        case TTM_UPDATETIPTEXTA: return changeText(state, requestedTool(lParam));
        case TTM_GETTEXTA: return tellText(state, wParam, requestedTool(lParam));
        case TTM_GETTOOLCOUNT: return static_cast<LRESULT>(state.tools.size());
        default: refuse("tool tip's message", message);
    }
}

}  // namespace

Tool* ToolTipState::find(HWND owner, UINT_PTR id) {
    for (Tool& tool : tools) {
        if (tool.owner == owner && tool.id == id) return &tool;
    }
    return nullptr;
}

LRESULT toolTipProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    constexpr UINT firstOfClass = WM_USER;
    constexpr UINT lastOfClass = WM_USER + 0x2000;
    if (message >= firstOfClass && message <= lastOfClass)
        return toolTipMessage(window, message, wParam, lParam);
    return DefWindowProcA(window, message, wParam, lParam);
}

}  // namespace win::memory
