// GroupFixture: three groups with a record each, and the questions that group commands ask.
#pragma once

#include <string>
#include <vector>

#include "platform/api/user32.h"
#include "store/group_commands.h"
#include "tests/behaviour/view_fixture.h"

namespace magpie {

class GroupFixture : public ViewFixture {
public:
    // What the question for a name showed.
    struct Asked {
        std::string title;
        std::string text;
        win::RECT place{};
        int modal = 0;
        bool onTop = false;
    };

    static win::HWND box() { return win::memory::driver::findWindow("InputBox", ""); }
    static win::HWND part(const char* className, const char* text) {
        return win::memory::driver::findChild(box(), className, text);
    }
    static bool onTop() {
        return (win::GetWindowLongPtrA(Form3.hWnd(), win::GWL_EXSTYLE) & win::WS_EX_TOPMOST) != 0;
    }
    static std::string textOf(win::HWND window) {
        char text[200] = "";
        win::GetWindowTextA(window, text);
        return text;
    }

    // Answers the next question for a name; an empty one by Cancel.
    void answer(const std::string& name) {
        win::memory::driver::whenIdle([this, name] {
            ASSERT_NE(part("STATIC", "Enter Group Name: "), nullptr);
            asked.title = textOf(box());
            asked.text = textOf(part("EDIT", ""));
            win::GetWindowRect(box(), &asked.place);
            asked.modal = modalOpen;
            asked.onTop = onTop();
            if (name.empty()) {
                win::memory::driver::key(win::VK_ESCAPE);
            } else {
                win::memory::driver::type(name);
                win::memory::driver::key(win::VK_RETURN);
            }
            win::PostMessageA(win::GetActiveWindow(), win::WM_NULL, 0, 0);
        });
    }
    void newGroup(const std::string& name) {
        answer(name);
        mnuNewCombo_Click();
    }

    static std::vector<std::string> groupNames() {
        std::vector<std::string> names;
        for (std::int32_t i = 0; i < IDXList.uBound(); ++i) names.push_back(IDXList[i].Name);
        return names;
    }
    static std::vector<int> groupIds() {
        std::vector<int> ids;
        for (std::int32_t i = 0; i < IDXList.uBound(); ++i) ids.push_back(IDXList[i].GroupID);
        return ids;
    }
    static std::vector<double> owners() {
        std::vector<double> found;
        for (const URLData& record : uBlock.URLDatas()) found.push_back(record.Owner);
        return found;
    }
    static std::vector<std::string> comboTexts() {
        std::vector<std::string> texts;
        for (int row = 0; row < Form3.Combo1[1].ListCount(); ++row)
            texts.push_back(Form3.Combo1[1].List(row));
        return texts;
    }
    static std::vector<std::string> groupRows() {
        std::vector<std::string> texts;
        for (int row = 1; row <= Form3.ListView1[3].Count(); ++row)
            texts.push_back(Form3.ListView1[3].Row(row).Text() + " " +
                            Form3.ListView1[3].Row(row).Tag());
        return texts;
    }
    // Groups named by their position, "00" and on, with a record each, on either tab.
    static void openMany(int count, int tab) {
        openWith({});
        Form3.advMode = 1;
        for (int i = 0; i < count; ++i) {
            const std::string name{static_cast<char>('0' + i / 10),
                                   static_cast<char>('0' + i % 10)};
            NewCatagory(name);
            add("record " + name, i);
        }
        rebuildGroupList(true);
        RefreshURLPage();
        if (tab == 2) clickTab(2);
        urlsDirty = 0;
    }
    // Whether the selected row of the Group List is in sight.
    static bool groupIsInSight() {
        win::RECT place{};
        place.left = win::LVIR_BOUNDS;
        ListView& groups = Form3.ListView1[3];
        win::SendMessageA(groups.hWnd(), win::LVM_GETITEMRECT,
                          static_cast<win::WPARAM>(groups.SelectedItem().position() - 1),
                          reinterpret_cast<win::LPARAM>(&place));
        win::RECT inner{};
        win::GetClientRect(groups.hWnd(), &inner);
        return place.top >= 0 && place.bottom <= inner.bottom;
    }
    // Three groups with a record each, on the Standard tab or on the pick list of groups.
    static void openThree(int tab) {
        openWith({"A", "B", "C"});
        Form3.advMode = 1;
        add("a", 0);
        add("b", 1);
        add("c", 2);
        RefreshURLPage();
        if (tab == 2) clickTab(2);
        urlsDirty = 0;
    }
    static void pick(int row) {
        if (currentTab == 2)
            Form3.Combo1[1].ListIndex(row);
        else
            Form3.ListView1[3].Row(row + 1).Selected(true);
        RefreshURLPage();
    }

    Asked asked;
};

}  // namespace magpie
