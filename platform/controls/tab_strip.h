// TabStrip: a row of tabs along one edge of its area. Tabs are counted from 1.
#pragma once

#include <string>
#include <vector>

#include "platform/controls/control.h"

namespace magpie {

enum TabPlacement : int { tabsTop = 0, tabsBottom = 1, tabsLeft = 2, tabsRight = 3 };

class TabStrip : public Control {
public:
    void create(Container& container, const Place& place, const std::string& name);

    void addTab(const std::string& caption, const std::string& key, const std::string& tip);

    // Number of the selected tab, 0 while there is none.
    int SelectedTab();
    // The click is raised for the selected tab as well. Raises 9 for a tab that is not
    // there.
    void SelectTab(int tab);

    // Selects the tab so many steps on, round the ends. Does nothing without tabs.
    void turn(int step);

    // Raises 380 for anything but 0 to 3.
    int Placement();
    void Placement(int placement);

    win::LRESULT onNotify(win::LPARAM header) override;

private:
    struct Tab {
        std::string caption;
        std::string key;
        std::string tip;
    };

    WindowKind kind() const;
    void insertTab(std::size_t at);
    void place() override;
    void tellTips();
    void forgetTips();

    std::vector<Tab> tabs_;
    int placement_ = tabsTop;
};

}  // namespace magpie
