// BrowserFixture: the open main window and a desktop with browsers that a test lays out: which
// are installed, which can be talked to, whose windows are on the screen.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/memory/driver_programs.h"
#include "tests/behaviour/entry_fixture.h"

namespace magpie {

class BrowserFixture : public EntryFixture {
public:
    // The three browsers are installed, the main window shows the group "A", and the settings
    // name this browser. No browser is running.
    static void open(int browser);

    static void install(std::string_view file);
    // Of each program that was started, its file's name and its command line: "Opera.EXE url".
    static std::vector<std::string> started();

    // Double clicks the first row, after it was given this address.
    static void visit(const std::string& url);
    // "Send" in the menu of the rows, "Last Active" or "New Window", for the first row.
    static void send(const std::string& line);
    // "From Browser" by its key, with the user acting in the dialog that comes.
    static void capture(const std::function<void()>& user);
    // The same by its line in the menu.
    static void captureByMenu(const std::function<void()>& user);
    // The same by the key, where no dialog comes.
    static void captureNothing();

    // A program that answers requests on both topics, with this reply.
    static win::memory::DdePeer& answering(const std::string& service,
                                           const std::string& reply = "1");
    static win::memory::DdePeer& refusing(const std::string& service);
    static win::memory::DdePeer& silent(const std::string& service);

    // "18 down", ..., of all keys that the program has pressed.
    static std::vector<std::string> keys();

    static constexpr const char* ieTitle = "Front page - Microsoft Internet Explorer";
};

}  // namespace magpie
