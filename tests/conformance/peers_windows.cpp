#ifdef _WIN32

#include <utility>

#include "tests/conformance/hand.h"
#include "tests/conformance/peers.h"
#include "tests/desktop/tools/peer_log.h"

#include <windows.h>

namespace peers {

namespace {

std::string folderOfTools() {
    char path[MAX_PATH] = "";
    ::GetModuleFileNameA(nullptr, path, sizeof path);
    const std::string file = path;
    return file.substr(0, file.rfind('\\') + 1);
}

std::string newLogPath() {
    static int number = 0;
    char folder[MAX_PATH] = "";
    ::GetTempPathA(sizeof folder, folder);
    const std::string path = std::string(folder)
                                 .append("peer")
                                 .append(std::to_string(::GetCurrentProcessId()))
                                 .append("-")
                                 .append(std::to_string(++number))
                                 .append(".log");
    ::DeleteFileA(path.c_str());
    return path;
}

std::vector<std::string> linesOf(const std::string& path) {
    std::vector<std::string> lines;
    std::string line;
    for (const char byte : bytesOf(path.c_str())) {
        if (byte == '\n') lines.push_back(std::exchange(line, {}));
        if (byte != '\n') line += byte;
    }
    return lines;
}

// The messages that a start, or an end, sends around are answered meanwhile.
template <class Condition>
void waitFor(Condition condition) {
    for (int step = 0; step < 300 && !condition(); ++step) {
        ::Sleep(10);
        hand::settle();
    }
}

}  // namespace

// A tool that runs until its standard input ends.
struct Running {
    Running(const std::string& tool, const std::vector<std::string>& arguments)
        : log(newLogPath()) {
        std::string line = "\"";
        line.append(folderOfTools()).append(tool).append("\"");
        for (const std::string& each : arguments)
            line.append(" \"").append(each == "LOG" ? log : each).append("\"");
        ::SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
        ::HANDLE output = nullptr;
        ::CreatePipe(&output, &input, &inherited, 0);
        ::SetHandleInformation(input, HANDLE_FLAG_INHERIT, 0);
        ::STARTUPINFOA start{};
        start.cb = sizeof start;
        start.dwFlags = STARTF_USESTDHANDLES;
        start.hStdInput = output;
        ::CreateProcessA(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start,
                         &process);
        ::CloseHandle(output);
        ::CloseHandle(process.hThread);
        waitFor([this] { return !linesOf(log).empty(); });
    }
    ~Running() {
        end();
        ::CloseHandle(process.hProcess);
        ::DeleteFileA(log.c_str());
    }
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;

    bool ended() const { return ::WaitForSingleObject(process.hProcess, 0) == WAIT_OBJECT_0; }
    void end() {
        if (input != nullptr) ::CloseHandle(std::exchange(input, nullptr));
        waitFor([this] { return ended(); });
        if (!ended()) ::TerminateProcess(process.hProcess, 1);
    }

    // Without "ready", which is always the first or the last of the beginning.
    std::vector<std::string> lines(const std::string& beginning = "") const {
        std::vector<std::string> found;
        for (const std::string& each : linesOf(log))
            if (each != "ready" && each.rfind(beginning, 0) == 0) found.push_back(each);
        return found;
    }

    std::string log;
    ::HANDLE input = nullptr;
    ::PROCESS_INFORMATION process{};
};

struct DdeServer::Program : Running {
    using Running::Running;
    std::string replyFile;
};

DdeServer::DdeServer(const std::string& service, Manner manner, const std::string& reply) {
    constexpr const char* names[] = {"answer", "refuse", "silent", "hang", "die"};
    const std::string replyFile = newLogPath();
    std::FILE* file = std::fopen(replyFile.c_str(), "wb");
    std::fwrite(reply.data(), 1, reply.size(), file);
    std::fclose(file);
    program_ =
        new Program("dde_server.exe", {service, "LOG", names[static_cast<int>(manner)], replyFile});
    program_->replyFile = replyFile;
}

DdeServer::~DdeServer() {
    ::DeleteFileA(program_->replyFile.c_str());
    delete program_;
}

std::vector<std::string> DdeServer::asked() const {
    return program_->lines("request ");
}

namespace {

constexpr const char* shellWindows =
    "Software\\Classes\\CLSID\\{9BA05972-F6A8-11CF-A442-00A0C90A8F39}";

// The shell's collection is served by the tool.
void treatShellWindowsAsTools(bool asTools) {
    constexpr const char* tools = "{5A2C8D51-4C1E-4D6B-9E0A-2F4B6C7D8E90}";
    const std::string key = std::string(shellWindows).append("\\TreatAs");
    if (asTools)
        ::RegSetKeyValueA(HKEY_LOCAL_MACHINE, key.c_str(), nullptr, REG_SZ, tools, 39);
    else
        ::RegDeleteKeyA(HKEY_LOCAL_MACHINE, key.c_str());
}

}  // namespace

struct Browser::Program : Running {
    using Running::Running;
};

Browser::Browser(const std::string& className, const std::string& title, const std::string& address,
                 const std::string& pageTitle, const std::string& name) {
    std::vector<std::string> arguments{className, title, "LOG", address};
    if (!pageTitle.empty()) {
        treatShellWindowsAsTools(true);
        arguments.insert(arguments.end(), {pageTitle, name});
    }
    program_ = new Program("browser_double.exe", arguments);
    window_ = reinterpret_cast<win::HWND>(::FindWindowA(className.c_str(), title.c_str()));
}

Browser::~Browser() {
    end();
    treatShellWindowsAsTools(false);
    delete program_;
}

std::vector<std::string> Browser::done() const {
    hand::settle();
    std::vector<std::string> found;
    for (const std::string& each : program_->lines())
        if (each.rfind("down ", 0) == 0 || each.rfind("up ", 0) == 0 || each == "visible" ||
            each.rfind("navigate ", 0) == 0)
            found.push_back(each);
    return found;
}

void Browser::end() {
    program_->end();
    hand::settle();
}

namespace {

std::string recorderLog() {
    return folderOfTools() + "args_recorder.log";
}

}  // namespace

Recorder::Recorder() {
    ::DeleteFileA(recorderLog().c_str());
}

Recorder::~Recorder() {
    ::DeleteFileA(recorderLog().c_str());
}

std::string Recorder::path() const {
    return folderOfTools() + "args_recorder.exe";
}

std::vector<std::string> Recorder::started() const {
    waitFor([] { return !linesOf(recorderLog()).empty(); });
    return linesOf(recorderLog());
}

}  // namespace peers

#endif
