#ifndef _WIN32

#include <optional>

#include "platform/memory/driver_programs.h"
#include "platform/memory/driver_system.h"
#include "tests/conformance/peers.h"

namespace peers {

namespace driver = win::memory::driver;

namespace {

constexpr std::uint64_t longSilence = 8000;
constexpr const char* recorderPath = "C:\\Magpie\\recorder.exe";

}  // namespace

struct DdeServer::Program {
    win::memory::DdePeer& peer;
};

DdeServer::DdeServer(const std::string& service, Manner manner, const std::string& reply) {
    win::memory::DdePeer peer{.service = service};
    peer.answer = [reply](const std::string&, const std::string&) { return std::optional(reply); };
    if (manner == Manner::refuses)
        peer.answer = [](const std::string&, const std::string&) {
            return std::optional<std::string>();
        };
    if (manner == Manner::silent) peer.silence = longSilence;
    if (manner == Manner::hangs) peer.hangs = longSilence;
    peer.dies = manner == Manner::dies;
    program_ = new Program{driver::addDdePeer(std::move(peer))};
}

DdeServer::~DdeServer() {
    program_->peer.topics.clear();
    program_->peer.hangs = 0;
    delete program_;
}

std::vector<std::string> DdeServer::asked() const {
    std::vector<std::string> lines;
    for (const std::string& each : program_->peer.asked) lines.push_back("request " + each);
    return lines;
}

struct Browser::Program {
    std::vector<std::string> keys;
    win::memory::ShellWindow* automation = nullptr;
};

Browser::Browser(const std::string& className, const std::string& title, const std::string& address,
                 const std::string& pageTitle, const std::string& name)
    : program_(new Program) {
    window_ = driver::openOtherWindow(className, title, [this](int key, bool down) {
        program_->keys.push_back((down ? "down " : "up ") + std::to_string(key));
    });
    if (!pageTitle.empty())
        program_->automation = &driver::addShellWindow(
            {.name = name, .window = window_, .locationName = pageTitle, .locationUrl = address});
}

Browser::~Browser() {
    if (win::IsWindow(window_)) end();
    delete program_;
}

std::vector<std::string> Browser::done() const {
    std::vector<std::string> lines = program_->keys;
    if (const auto* automation = program_->automation)
        lines.insert(lines.end(), automation->done.begin(), automation->done.end());
    return lines;
}

void Browser::end() {
    driver::closeOtherWindow(window_);
    driver::endShellWindows();
}

Recorder::Recorder() {
    driver::putFile(recorderPath, "MZ");
}

Recorder::~Recorder() = default;

std::string Recorder::path() const {
    return recorderPath;
}

std::vector<std::string> Recorder::started() const {
    std::vector<std::string> lines;
    for (const win::memory::Launch& each : driver::launched())
        if (each.file == recorderPath) lines.push_back(each.parameters);
    return lines;
}

}  // namespace peers

#endif
