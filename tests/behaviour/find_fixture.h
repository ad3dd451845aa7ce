// FindFixture: the open main window over rows of a test's own, and what Find does to them.
#pragma once

#include <initializer_list>
#include <string_view>
#include <vector>

#include "tests/behaviour/view_fixture.h"
#include "views/find.h"
#include "views/find_form.h"

namespace magpie {

class FindFixture : public ViewFixture {
public:
    ~FindFixture() override { Find.discard(); }

    // Rows with these titles, the first one selected. Rows count from 0 here.
    static void open(std::initializer_list<std::string_view> titles) {
        openWith({"A"});
        for (const std::string_view title : titles) add(title);
        RefreshURLPage();
        if (titles.size() > 0) select({0});
    }

    // The last one gets the list's focus mark as well.
    static void select(std::initializer_list<int> rows) {
        for (const int row : rows) list().Row(row + 1).Selected(true);
    }

    static ListView& list() { return Form3.ListView1[lvIndex]; }

    static std::vector<int> selected() {
        std::vector<int> rows;
        for (int row = 0; row < list().Count(); ++row)
            if (list().Row(row + 1).Selected()) rows.push_back(row);
        return rows;
    }

    static int focused() {
        return static_cast<int>(win::SendMessageA(list().hWnd(), win::LVM_GETNEXTITEM,
                                                  static_cast<win::WPARAM>(-1),
                                                  static_cast<win::LPARAM>(win::LVNI_FOCUSED)));
    }
};

}  // namespace magpie
