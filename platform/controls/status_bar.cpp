#include "platform/controls/status_bar.h"

#include "platform/api/comctl32.h"
#include "platform/api/user32.h"
#include "platform/controls/form.h"
#include "platform/controls/tool_tips.h"

namespace magpie {

void StatusBar::create(Form& form, const std::vector<double>& widths, const std::string& name) {
    createWindow(form, {win::STATUSCLASSNAMEA, win::SBARS_SIZEGRIP}, {}, name);
    edges_.clear();
    double edge = 0;
    for (double width : widths) edges_.push_back(pixelsX(edge += width));
    edges_.back() = -1;
    panes_ = static_cast<int>(edges_.size());
    tips_.assign(edges_.size(), "");
    win::SendMessageA(hWnd(), win::SB_SETPARTS, edges_.size(),
                      reinterpret_cast<win::LPARAM>(edges_.data()));
    form.dock(*this);
    win::SendMessageA(hWnd(), win::WM_SIZE, 0, 0);
}

win::WPARAM StatusBar::needPane(int pane) {
    hWnd();
    if (pane < 1 || pane > panes_) throw Failure{failure::subscript};
    return static_cast<win::WPARAM>(pane - 1);
}

std::string StatusBar::Pane(int pane) {
    const win::WPARAM number = needPane(pane);
    const auto length = win::LOWORD(
        static_cast<std::uintptr_t>(win::SendMessageA(hWnd(), win::SB_GETTEXTLENGTHA, number, 0)));
    std::string text(static_cast<std::size_t>(length) + 1, '\0');
    win::SendMessageA(hWnd(), win::SB_GETTEXTA, number, reinterpret_cast<win::LPARAM>(text.data()));
    text.resize(length);
    return text;
}

void StatusBar::Pane(int pane, const std::string& text) {
    win::SendMessageA(hWnd(), win::SB_SETTEXTA, needPane(pane),
                      reinterpret_cast<win::LPARAM>(text.c_str()));
}

void StatusBar::PaneToolTip(int pane, const std::string& tip) {
    tips_[needPane(pane)] = tip;
    tellTips();
}

// The class shows a tip of its own only over a pane whose text is cut off.
void StatusBar::tellTips() {
    win::RECT pane{};
    win::GetClientRect(hWnd(), &pane);
    const int end = pane.right;
    for (std::size_t at = 0; at < tips_.size(); ++at) {
        pane.right = edges_[at] < 0 ? end : edges_[at];
        if (!tips_[at].empty()) form().toolTips().tellPart(hWnd(), at, pane, tips_[at]);
        pane.left = pane.right;
    }
}

// The class repaints only what a larger size adds, and its grip would stay behind.
bool StatusBar::handleMessage(win::UINT message, win::WPARAM wParam, win::LPARAM lParam,
                              win::LRESULT& answer) {
    if (message == win::WM_SIZE) {
        win::InvalidateRect(hWnd(), nullptr, 1);
        tellTips();
    }
    return Control::handleMessage(message, wParam, lParam, answer);
}

}  // namespace magpie
