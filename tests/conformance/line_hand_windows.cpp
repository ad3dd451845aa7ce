#ifdef _WIN32

#include <cstdio>
#include <string>

#include "tests/conformance/hand.h"
#include "tests/conformance/line_hand.h"

#include <windows.h>

namespace hand {

namespace {

constexpr const char* overrides = "Software\\Wine\\DllOverrides";
constexpr const char* names[] = {"rasapi32", "wininet"};

std::string besideTheProgram(const char* name) {
    char path[MAX_PATH] = "";
    ::GetModuleFileNameA(nullptr, path, MAX_PATH);
    const std::string program = path;
    return program.substr(0, program.rfind('\\') + 1) + name;
}

std::string inSystemFolder(const char* name) {
    char path[MAX_PATH] = "";
    ::GetSystemDirectoryA(path, MAX_PATH);
    return std::string(path).append("\\").append(name).append(".dll");
}

std::string scriptPath() {
    char path[MAX_PATH] = "";
    ::GetTempPathA(MAX_PATH, path);
    return std::string(path).append("magpie_line.txt");
}

// Wine prefers its own libraries to those in the system's folder, unless it is told otherwise, as
// long as this process runs.
class LineDouble {
public:
    LineDouble() {
        const std::string library = besideTheProgram("line_double.dll");
        for (const char* name : names) {
            placed_ = ::CopyFileA(library.c_str(), inSystemFolder(name).c_str(), FALSE) && placed_;
            ::RegSetKeyValueA(HKEY_CURRENT_USER, overrides, name, REG_SZ, "native", 7);
        }
        ::SetEnvironmentVariableA("MAGPIE_LINE", scriptPath().c_str());
        write();
    }
    ~LineDouble() {
        for (const char* name : names) ::RegDeleteKeyValueA(HKEY_CURRENT_USER, overrides, name);
        ::DeleteFileA(scriptPath().c_str());
        ::DeleteFileA(scriptPath().append(".log").c_str());
    }
    LineDouble(const LineDouble&) = delete;
    LineDouble& operator=(const LineDouble&) = delete;

    bool placed() const { return placed_; }

    void write() const {
        std::FILE* file = std::fopen(scriptPath().c_str(), "w");
        if (file == nullptr) return;
        // A handle of more than 32 bits, as the 64-bit system has them.
        for (std::size_t each = 0; each < states.size(); ++each)
            std::fprintf(file, "connection 1A2B3C4D%08zX %lX\n", each + 1,
                         static_cast<unsigned long>(states[each]));
        if (online) std::fputs("online\n", file);
        std::fclose(file);
    }

    std::vector<win::DWORD> states;
    bool online = false;

private:
    bool placed_ = true;
};

LineDouble& lineDouble() {
    static LineDouble only;
    return only;
}

}  // namespace

bool movesTheLine() {
    return underWine() && lineDouble().placed();
}

void setDialUp(const std::vector<win::DWORD>& states) {
    lineDouble().states = states;
    lineDouble().write();
}

void setOnline(bool online) {
    lineDouble().online = online;
    lineDouble().write();
}

}  // namespace hand

#endif
