// SettingsFixture: the program with settings records of a test's own.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "config/config.h"
#include "core/state.h"
#include "mainwindow/form3.h"
#include "platform/api/user32.h"
#include "platform/memory/driver.h"
#include "platform/memory/driver_system.h"
#include "tests/behaviour/program_fixture.h"
#include "tray/form1.h"

namespace magpie {

class SettingsFixture : public ProgramFixture {
public:
    // "CF" as a careful user would have it, with one token of a test's own.
    static std::string mainRecord(int position, std::string_view token) {
        constexpr std::string_view usual[] = {"0",    "0",    "0",    "0",    "1",  "1", "0",
                                              "1500", "3000", "6000", "4500", "31", "0", "36000"};
        std::string text;
        for (int at = 0; at < 14; ++at) {
            if (at > 0) text += ' ';
            text += at == position ? token : usual[at];
        }
        return text;
    }

    // The same of "ID".
    static std::string trayRecord(int position, std::string_view token) {
        constexpr std::string_view usual[] = {"0", "3000", "4500", "0", "1", "0", "True", "False"};
        std::string text;
        for (int at = 0; at < 8; ++at) {
            if (at > 0) text += ' ';
            text += at == position ? token : usual[at];
        }
        return text;
    }

    // Puts a record and lets the running program read it.
    static void readTray(std::string_view id) {
        putRecord("ID", id);
        earlyConfig();
    }
    static void readMain(std::string_view cf) {
        putRecord("CF", cf);
        loadConfig();
    }

    // Column widths of a record list, twips.
    static std::vector<double> widths(int list) {
        std::vector<double> all;
        for (int i = 1; i <= Form3.ListView1[list].ColumnCount(); ++i)
            all.push_back(Form3.ListView1[list].ColumnWidth(i));
        return all;
    }

    // A record's token as it stands in the registry.
    static std::string tokenOf(std::string_view name, int position) {
        const std::string text = record(name).value_or("no such record");
        std::size_t from = 0;
        for (int at = 0; at < position; ++at) {
            from = text.find(' ', from);
            if (from == std::string::npos) return "no such token";
            ++from;
        }
        return text.substr(from, text.find(' ', from) - from);
    }

    static bool isTopMost(Form& form) {
        return (win::GetWindowLongPtrA(form.hWnd(), win::GWL_EXSTYLE) & win::WS_EX_TOPMOST) != 0;
    }

    // Chooses from the main window's menu.
    static void chooseFromMenu(const std::string& caption) {
        win::memory::driver::choose(caption);
        Button& button = currentTab == 1 ? Form3.Command3[1] : Form3.Command1[1];
        win::memory::driver::click(button.hWnd(), {8, 8});
        win::memory::driver::pump();
    }
};

}  // namespace magpie
