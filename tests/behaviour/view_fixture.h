// ViewFixture: the open main window over a store of a test's own.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "core/state.h"
#include "mainwindow/form3.h"
#include "platform/memory/driver.h"
#include "platform/memory/driver_system.h"
#include "platform/services/screen.h"
#include "store/groups.h"
#include "store/records.h"
#include "tests/behaviour/program_fixture.h"
#include "tray/form1.h"
#include "views/group_list.h"
#include "views/refresh.h"

namespace magpie {

class ViewFixture : public ProgramFixture {
public:
    // Opens the main window with these groups, the first one in view, and no records.
    static void openWith(std::initializer_list<std::string_view> groups) {
        putStackFile("");
        startAndOpen();
        for (const std::string_view name : groups) NewCatagory(name);
        rebuildGroupList(true);
    }

    // Adds a record that no mask is about: not rated, never visited, made on the last day
    // of 1999.
    static URLData& add(std::string_view name, double owner = 0) {
        URLData& record = uBlock.URLDatas().Add(name, "http://server/", owner);
        record.Created = dateFromCivil(1999, 12, 31, 12);
        return record;
    }

    // The titles that a refresh leaves.
    static std::vector<std::string> refreshed() {
        RefreshURLPage();
        return titlesInView();
    }

    // Every group at once, on the Advanced tab.
    static void listAll() { Form3.advMode = 0; }

    static void expectHourglassAndHidingOver() {
        EXPECT_EQ(Screen.MousePointer(), Pointer::standard);
        EXPECT_TRUE(Form3.ListView1[lvIndex].Visible());
        EXPECT_NE(win::memory::driver::cursor(), win::IDC_WAIT_NUMBER);
    }
};

}  // namespace magpie
