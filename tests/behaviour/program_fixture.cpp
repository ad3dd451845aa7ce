#include "tests/behaviour/program_fixture.h"

#include "core/start_up.h"
#include "core/state.h"
#include "mainwindow/form3.h"
#include "platform/controls/message_loop.h"
#include "platform/memory/driver.h"
#include "platform/memory/driver_system.h"
#include "resources/resource_ids.h"
#include "store/stack_line.h"
#include "tray/form1.h"

namespace magpie {

namespace driver = win::memory::driver;

namespace {

// The smallest true bitmap file: one pixel, 24 bits.
std::string smallBitmap() {
    std::string bytes(58, '\0');
    bytes.replace(0, 2, "BM");
    bytes[2] = 58;
    bytes[10] = 54;
    bytes[14] = 40;
    bytes[18] = 1;
    bytes[22] = 1;
    bytes[26] = 1;
    bytes[28] = 24;
    return bytes;
}

}  // namespace

ProgramFixture::ProgramFixture() {
    driver::makeFolder("C:\\Magpie");
    driver::setProgram("C:\\Magpie\\Magpie.exe");
    for (const char* name : {"ia", "ib", "ic", "id", "b1u", "b1d"})
        driver::putFile(std::string("C:\\Magpie\\uBank\\").append(name).append(".bnk"),
                        smallBitmap());
    driver::provideIcon(MAGPIE_ICON);
    driver::pumpWith(DoEvents);
}

ProgramFixture::~ProgramFixture() {
    Form3.discard();
    Form1.discard();
}

void ProgramFixture::TearDown() {
    EXPECT_EQ(driver::unplayed(), 0);
    EXPECT_EQ(driver::faultsLeft(), 0);
}

std::string ProgramFixture::lines(std::string text) {
    for (char& byte : text)
        if (byte == '|') byte = stackSeparator;
    return text;
}

void ProgramFixture::putStackFile(std::string_view text) {
    driver::putFile(stackFilePath, lines(std::string(text)));
}

std::optional<std::string> ProgramFixture::stackFile() {
    return driver::file(stackFilePath);
}

std::optional<std::string> ProgramFixture::backup() {
    return driver::file(backupPath);
}

void ProgramFixture::putSampleFile() {
    putStackFile(
        "+Reference\r\n"
        "http://server/index.html|Front page|8E53EC00|8E34968D|3|1|4\r\n"
        "http://server/tools.html|Tools|0|8E34968D|0|1|0\r\n"
        "+Work\r\n"
        "http://server/a.html|Plan|0|8E53EC00|0|0|0\r\n");
}

void ProgramFixture::putRecord(std::string_view name, std::string_view text) {
    driver::setRegistryText(win::HKEY_CURRENT_USER, settingsKeyPath, name, text);
}

std::optional<std::string> ProgramFixture::record(std::string_view name) {
    return driver::registryText(win::HKEY_CURRENT_USER, settingsKeyPath, name);
}

void ProgramFixture::start() {
    beginMagpie();
    driver::pump();
}

void ProgramFixture::clickPad() {
    driver::click(Form1.Picture1.hWnd(), {8, 8});
    driver::pump();
}

void ProgramFixture::startAndOpen() {
    if (!stackFile()) putSampleFile();
    start();
    clickPad();
}

void ProgramFixture::clickTab(int tab) {
    win::RECT area{};
    win::SendMessageA(Form3.tbStrip.hWnd(), win::TCM_GETITEMRECT, static_cast<win::WPARAM>(tab - 1),
                      reinterpret_cast<win::LPARAM>(&area));
    driver::click(Form3.tbStrip.hWnd(),
                  {(area.left + area.right) / 2, (area.top + area.bottom) / 2});
    driver::pump();
}

std::vector<std::string> ProgramFixture::rowTexts(int row) {
    std::vector<std::string> texts;
    ListView& list = Form3.ListView1[lvIndex];
    for (int column = 0; column < list.ColumnCount(); ++column)
        texts.push_back(list.Row(row).SubItem(column));
    return texts;
}

std::vector<std::string> ProgramFixture::titlesInView() {
    std::vector<std::string> titles;
    ListView& list = Form3.ListView1[lvIndex];
    for (int row = 1; row <= list.Count(); ++row) titles.push_back(list.Row(row).Text());
    return titles;
}

}  // namespace magpie
