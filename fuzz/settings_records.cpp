// Any bytes as the three settings records: the first line "ID", the second "CF", the rest
// "CH". The program that reads them goes on, and what it writes then has its full number of
// tokens.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "config/config.h"
#include "core/start_up.h"
#include "core/state.h"
#include "mainwindow/form3.h"
#include "platform/controls/message_loop.h"
#include "platform/memory/driver.h"
#include "platform/memory/driver_system.h"
#include "resources/resource_ids.h"
#include "tray/form1.h"

namespace {

using namespace magpie;
namespace driver = win::memory::driver;

constexpr const char* settingsFolder = "SOFTWARE\\Fennelworks\\Magpie";

void require(bool holds) {
    if (!holds) std::abort();
}

void putRecord(const char* name, std::string_view text) {
    driver::setRegistryText(win::HKEY_CURRENT_USER, settingsFolder, name, text);
}

std::string record(const char* name) {
    return driver::registryText(win::HKEY_CURRENT_USER, settingsFolder, name).value();
}

long blanksIn(const std::string& text) {
    return std::count(text.begin(), text.end(), ' ');
}

// The program with two groups and its main window open, but for its pictures: a pad and a
// flip box without them are the harder case.
void startProgram() {
    driver::setProgram("C:\\Magpie\\Magpie.exe");
    driver::putFile("C:\\Magpie\\Pienest.pns",
                    "+Reference\r\nhttp://server/\xA7"
                    "Page\xA7"
                    "0\xA7"
                    "0\xA7"
                    "0\xA7"
                    "0\xA7"
                    "0\r\n+Work\r\n");
    driver::provideIcon(MAGPIE_ICON);
    driver::pumpWith(DoEvents);
    beginMagpie();
    Form3.Show();
    driver::pump();
}

void readAll() {
    earlyConfig();
    loadConfig();
    reloadLastGroup();
    driver::pump();
}

// From the same settings on for every input, so that a finding can be repeated.
void readUsualRecords() {
    putRecord("ID", "2 3000 4500 1 1 0 False False");
    putRecord("CF", "8 2 0 0 1 1 0 1500 3000 6000 4500 31 0 36000");
    putRecord("CH", "2400 2400 900 1200 1680 1680 720 ");
    readAll();
}

void checkWritten() {
    saveConfig();
    lateSave();
    require(blanksIn(record("ID")) == 7);
    require(blanksIn(record("CF")) == 13);
    require(blanksIn(record("CH")) == 7 && record("CH").back() == ' ');
}

// What was written reads as the settings that wrote it.
void checkReadBack() {
    const std::string tray = record("ID");
    const std::string main = record("CF");
    const std::string columns = record("CH");
    activeIcon = false;
    readAll();
    checkWritten();
    require(record("CH") == columns);
    require(record("CF").substr(0, record("CF").find(' ')) == main.substr(0, main.find(' ')));
    require(record("ID").substr(0, 1) == tray.substr(0, 1));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const bool started = (startProgram(), true);
    require(started);
    readUsualRecords();

    std::string_view rest(reinterpret_cast<const char*>(data), size);
    for (const char* name : {"ID", "CF"}) {
        const std::string_view line = rest.substr(0, rest.find('\n'));
        putRecord(name, line);
        rest.remove_prefix(std::min(rest.size(), line.size() + 1));
    }
    putRecord("CH", rest);
    readAll();
    require(Form1.loaded() && Form3.loaded());
    checkWritten();
    checkReadBack();
    return 0;
}
