#include "tests/behaviour/store_fixture.h"

#include "config/reg_module.h"
#include "core/state.h"
#include "mainwindow/form3.h"
#include "mainwindow/tab_screens.h"
#include "platform/controls/common_controls.h"
#include "platform/controls/message_loop.h"
#include "platform/memory/driver.h"
#include "platform/memory/driver_system.h"
#include "resources/resource_ids.h"
#include "store/groups.h"
#include "store/stack_file.h"
#include "store/stack_line.h"
#include "tray/form1.h"

namespace magpie {

namespace driver = win::memory::driver;

StoreFixture::StoreFixture() {
    driver::makeFolder("C:\\Magpie");
    driver::setRegistryText(win::HKEY_CURRENT_USER, settingsKey, "ID", "0 0 0 1 0 0 False False");
    driver::provideIcon(MAGPIE_ICON);
    driver::pumpWith(DoEvents);
    startCommonControls();
    wireForm1();
    wireForm3();
    Form1.load();
    Form3.Show();
    driver::pump();
}

void StoreFixture::TearDown() {
    EXPECT_EQ(driver::unplayed(), 0);
    EXPECT_EQ(driver::faultsLeft(), 0);
}

std::string StoreFixture::lines(std::string text) {
    for (char& byte : text) {
        if (byte == '|') byte = stackSeparator;
    }
    return text;
}

void StoreFixture::putStackFile(std::string_view text) {
    driver::putFile(stackPathInTests, lines(std::string(text)));
}

std::optional<std::string> StoreFixture::stackFile() {
    return driver::file(stackPathInTests);
}

std::optional<std::string> StoreFixture::backup() {
    return driver::file(backupPathInTests);
}

void StoreFixture::showTab(int tab) {
    Form3.tbStrip.SelectTab(tab);
    tabSwitch();
    driver::pump();
}

std::vector<std::string> StoreFixture::groupNames() {
    std::vector<std::string> names;
    for (std::int32_t i = 0; i < IDXList.uBound(); ++i) names.push_back(IDXList[i].Name);
    return names;
}

std::vector<std::string> StoreFixture::recordNames() {
    std::vector<std::string> names;
    for (const URLData& record : uBlock.URLDatas()) names.push_back(record.Name());
    return names;
}

URLData& StoreFixture::record(int position) {
    return uBlock.URLDatas().Item(position);
}

URLData& StoreFixture::addRecord(std::string_view name, double owner) {
    URLData& added = uBlock.URLDatas().Add(name, "http://server/" + std::string(name), owner);
    added.Created = {36404.38541};
    return added;
}

void StoreFixture::addGroupWithRecord() {
    NewCatagory("A");
    addRecord("a", 0);
    urlsDirty = 1;
}

bool StoreFixture::read(bool merge) {
    return ReadStackFile(stackPathInTests, merge);
}

bool StoreFixture::readText(std::string_view text, bool merge) {
    putStackFile(text);
    return read(merge);
}

std::string StoreFixture::written() {
    WriteStackFile("C:\\written.pns");
    return driver::file("C:\\written.pns").value();
}

}  // namespace magpie
