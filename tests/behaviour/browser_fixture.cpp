#include "tests/behaviour/browser_fixture.h"

#include "platform/memory/driver_system.h"

namespace magpie {

namespace driver = win::memory::driver;

namespace {

constexpr const char* appPaths = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\App Paths\\";
constexpr const char* folder = "C:\\Browsers\\";

}  // namespace

void BrowserFixture::open(int browser) {
    for (const char* file : {"IEXPLORE.EXE", "Netscape.exe", "Opera.EXE"}) install(file);
    EntryFixture::open();
    browserType = browser;
    useKeystrokes = false;
    activeIcon = false;
    modalOpen = 0;
}

void BrowserFixture::install(std::string_view file) {
    const std::string path = std::string(folder).append(file);
    driver::putFile(path, "MZ");
    driver::setRegistryText(win::HKEY_LOCAL_MACHINE, std::string(appPaths).append(file), "", path);
}

std::vector<std::string> BrowserFixture::started() {
    std::vector<std::string> lines;
    for (const win::memory::Launch& each : driver::launched())
        lines.push_back(each.file.substr(std::string_view(folder).size()) + " " + each.parameters);
    return lines;
}

void BrowserFixture::visit(const std::string& url) {
    record(1).URL(url);
    RefreshURLPage();
    urlsDirty = 0;
    driver::doubleClick(records().hWnd(), {30, 17 + 7});
    driver::pump();
}

void BrowserFixture::send(const std::string& line) {
    records().SetFocus();
    records().Row(1).Selected(true);
    driver::choose(line);
    driver::key(win::VK_APPS);
    driver::pump();
}

void BrowserFixture::capture(const std::function<void()>& user) {
    asking([] { key('B', {.ctrl = true}); }, user);
}

void BrowserFixture::captureByMenu(const std::function<void()>& user) {
    asking([] { Form3.mnuAddEntry[0].onClick.raise(0); }, user);
}

void BrowserFixture::captureNothing() {
    const int idle = driver::unplayed();
    key('B', {.ctrl = true});
    EXPECT_FALSE(Form2.loaded());
    EXPECT_EQ(modalOpen, 0);
    EXPECT_EQ(urlsDirty, 0);
    EXPECT_EQ(driver::unplayed(), idle);
}

win::memory::DdePeer& BrowserFixture::answering(const std::string& service,
                                                const std::string& reply) {
    win::memory::DdePeer& peer = driver::addDdePeer({.service = service});
    peer.answer = [reply](const std::string&, const std::string&) { return std::optional(reply); };
    return peer;
}

win::memory::DdePeer& BrowserFixture::refusing(const std::string& service) {
    win::memory::DdePeer& peer = driver::addDdePeer({.service = service});
    peer.answer = [](const std::string&, const std::string&) {
        return std::optional<std::string>();
    };
    return peer;
}

win::memory::DdePeer& BrowserFixture::silent(const std::string& service) {
    win::memory::DdePeer& peer = answering(service);
    peer.silence = 60000;
    return peer;
}

std::vector<std::string> BrowserFixture::keys() {
    std::vector<std::string> lines;
    for (const win::memory::SentKey& each : driver::keysSent())
        lines.push_back(std::to_string(each.virtualKey) + (each.down ? " down" : " up"));
    return lines;
}

}  // namespace magpie
