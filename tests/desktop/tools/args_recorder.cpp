// ArgsRecorder: stands in for a browser that is started: it appends its whole command line
// behind the program's name to the file of its own name with the extension ".log".
#include <string>

#include "tests/desktop/tools/peer_log.h"

#include <windows.h>

int main() {
    char path[MAX_PATH] = "";
    GetModuleFileNameA(nullptr, path, sizeof path);
    const std::string file = path;
    PeerLog log(file.substr(0, file.rfind('.')).append(".log").c_str());
    std::string line = GetCommandLineA();
    // The name stands in quotes, as the shell writes it, or ends at the first blank.
    const std::size_t end = line[0] == '"' ? line.find('"', 1) + 1 : line.find(' ');
    line = end < line.size() ? line.substr(end) : "";
    if (!line.empty() && line[0] == ' ') line.erase(0, 1);
    log.line(line);
    return 0;
}
