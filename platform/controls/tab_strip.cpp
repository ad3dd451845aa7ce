#include "platform/controls/tab_strip.h"

#include "platform/api/comctl32.h"
#include "platform/api/user32.h"
#include "platform/api/uxtheme.h"
#include "platform/controls/control_failure.h"
#include "platform/controls/form.h"
#include "platform/controls/tool_tips.h"

namespace magpie {

void TabStrip::create(Container& container, const Place& place, const std::string& name) {
    tabs_.clear();
    placement_ = tabsTop;
    createWindow(container, kind(), place, name);
}

Control::WindowKind TabStrip::kind() const {
    const win::DWORD common = win::WS_TABSTOP;
    switch (placement_) {
        case tabsBottom: return {win::WC_TABCONTROLA, common | win::TCS_BOTTOM};
        case tabsLeft:
            return {win::WC_TABCONTROLA, common | win::TCS_VERTICAL | win::TCS_MULTILINE};
        case tabsRight:
            return {win::WC_TABCONTROLA,
                    common | win::TCS_VERTICAL | win::TCS_RIGHT | win::TCS_MULTILINE};
        default: return {win::WC_TABCONTROLA, common};
    }
}

void TabStrip::addTab(const std::string& caption, const std::string& key, const std::string& tip) {
    hWnd();
    tabs_.push_back({caption, key, tip});
    insertTab(tabs_.size() - 1);
    tellTips();
}

void TabStrip::insertTab(std::size_t at) {
    win::TCITEMA item{};
    item.mask = win::TCIF_TEXT;
    item.pszText = const_cast<char*>(tabs_[at].caption.c_str());
    win::SendMessageA(hWnd(), win::TCM_INSERTITEMA, at, reinterpret_cast<win::LPARAM>(&item));
}

void TabStrip::place() {
    Control::place();
    tellTips();
}

// The class has tips of its own, but not on every desktop; so the form's are told where
// the tabs lie.
void TabStrip::tellTips() {
    for (std::size_t at = 0; at < tabs_.size(); ++at) {
        win::RECT tab{};
        if (win::SendMessageA(hWnd(), win::TCM_GETITEMRECT, at,
                              reinterpret_cast<win::LPARAM>(&tab)))
            form().toolTips().tellPart(hWnd(), at, tab, tabs_[at].tip);
    }
}

void TabStrip::forgetTips() {
    for (std::size_t at = 0; at < tabs_.size(); ++at) form().toolTips().forgetPart(hWnd(), at);
}

int TabStrip::SelectedTab() {
    return static_cast<int>(win::SendMessageA(hWnd(), win::TCM_GETCURSEL, 0, 0)) + 1;
}

void TabStrip::SelectTab(int tab) {
    hWnd();
    if (tab < 1 || tab > static_cast<int>(tabs_.size())) throw Failure{failure::subscript};
    win::SendMessageA(hWnd(), win::TCM_SETCURSEL, static_cast<win::WPARAM>(tab - 1), 0);
    onClick.raise(Index);
}

void TabStrip::turn(int step) {
    hWnd();
    const int count = static_cast<int>(tabs_.size());
    if (count == 0) return;
    const int wanted = (SelectedTab() - 1 + step) % count;
    SelectTab((wanted < 0 ? wanted + count : wanted) + 1);
}

int TabStrip::Placement() {
    hWnd();
    return placement_;
}

// The platform fixes the edge when the window is made, so another edge is another
// window.
void TabStrip::Placement(int placement) {
    if (placement < tabsTop || placement > tabsRight) throw Failure{failure::invalidProperty};
    if (placement == Placement()) return;
    placement_ = placement;
    const int selected = SelectedTab();
    forgetTips();
    recreateWindow(kind());
    // Visual styles know tabs at the top only; elsewhere the class draws them by itself.
    if (placement != tabsTop) win::SetWindowTheme(hWnd(), L" ", L" ");
    for (std::size_t i = 0; i < tabs_.size(); ++i) insertTab(i);
    tellTips();
    win::SendMessageA(hWnd(), win::TCM_SETCURSEL, static_cast<win::WPARAM>(selected - 1), 0);
}

win::LRESULT TabStrip::onNotify(win::LPARAM header) {
    const auto* told = reinterpret_cast<const win::NMHDR*>(header);
    if (told->code == win::TCN_SELCHANGE) onClick.raise(Index);
    return 0;
}

}  // namespace magpie
