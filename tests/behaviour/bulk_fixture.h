// BulkFixture: rows of a test's own in the open main window, selected and acted on by the
// menu of the record lists. Rows count from 0 here.
#pragma once

#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "entries/frm_move.h"
#include "entries/row_match.h"
#include "platform/api/user32.h"
#include "tests/behaviour/menu_fixture.h"

namespace magpie {

class BulkFixture : public MenuFixture {
public:
    ~BulkFixture() override { frmMove.discard(); }

    // Groups "A" and "B", and in "A", which is in view, records with these titles. Nothing
    // has changed so far.
    static void open(std::initializer_list<std::string_view> titles) {
        openWith({"A", "B"});
        for (const std::string_view title : titles) add(title);
        refresh();
    }

    static void refresh() {
        RefreshURLPage();
        urlsDirty = 0;
    }

    // The last one gets the focus mark as well.
    static void select(std::initializer_list<int> rows) {
        for (const int row : rows) records().Row(row + 1).Selected(true);
    }

    static std::vector<int> selected() {
        std::vector<int> rows;
        for (int row = 0; row < records().Count(); ++row)
            if (records().Row(row + 1).Selected()) rows.push_back(row);
        return rows;
    }

    static void cut(int row) { setRowState(row, win::LVIS_CUT, win::LVIS_CUT); }

    // -1 for none.
    static int focused() {
        return static_cast<int>(win::SendMessageA(records().hWnd(), win::LVM_GETNEXTITEM,
                                                  static_cast<win::WPARAM>(-1),
                                                  static_cast<win::LPARAM>(win::LVNI_FOCUSED)));
    }

    // A line of the menu that the menu key opens over the list in view.
    static void choose(const std::string& caption) {
        records().SetFocus();
        win::memory::driver::choose(caption);
        win::memory::driver::key(win::VK_APPS);
        win::memory::driver::pump();
    }

    // The same, with this button of the question that comes.
    static void chooseAndAnswer(const std::string& caption, int button) {
        win::memory::driver::answerMessageBox(button);
        choose(caption);
    }

    // "Move", with the user acting in the dialog, which is closed if that did not do it.
    static void move(const std::function<void()>& user) {
        win::memory::driver::whenIdle([user] {
            ASSERT_TRUE(frmMove.Visible());
            user();
            frmMove.unload();
            win::PostMessageA(win::GetActiveWindow(), win::WM_NULL, 0, 0);
        });
        choose("Move");
    }

    // "Move", and in the dialog that group and "Accept".
    static void moveTo(const std::string& group) {
        move([group] {
            int row = 0;
            while (frmMove.Combo1.List(row) != group) ++row;
            frmMove.Combo1.ListIndex(row);
            clickOn(frmMove.acceptCmd);
        });
    }

    static void clickOn(Control& control) {
        win::memory::driver::click(control.hWnd(), win::memory::driver::middleOf(control.hWnd()));
        win::memory::driver::pump();
    }

    static std::vector<std::string> column(int column) {
        std::vector<std::string> texts;
        for (int row = 0; row < records().Count(); ++row) texts.push_back(rowText(row, column));
        return texts;
    }

    static std::vector<std::string> keysLeft() {
        std::vector<std::string> keys;
        for (const URLData& record : uBlock.URLDatas()) keys.push_back(record.ID());
        return keys;
    }
    static std::vector<int> ratings() {
        std::vector<int> found;
        for (const URLData& record : uBlock.URLDatas()) found.push_back(record.Rated);
        return found;
    }
    static std::vector<double> owners() {
        std::vector<double> found;
        for (const URLData& record : uBlock.URLDatas()) found.push_back(record.Owner);
        return found;
    }

    static bool isTopMost(Form& form) {
        return (win::GetWindowLongPtrA(form.hWnd(), win::GWL_EXSTYLE) & win::WS_EX_TOPMOST) != 0;
    }
};

}  // namespace magpie
