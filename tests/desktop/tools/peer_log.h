// PeerLog: what a program that stands in for a browser has been asked, line by line in a file,
// so that a journey can read it while the program runs.
#pragma once

#include <cstdio>
#include <string>

class PeerLog {
public:
    explicit PeerLog(const char* path) : file_(std::fopen(path, "ab")) {}
    ~PeerLog() {
        if (file_ != nullptr) std::fclose(file_);
    }
    PeerLog(const PeerLog&) = delete;
    PeerLog& operator=(const PeerLog&) = delete;

    void line(const std::string& text) {
        if (file_ == nullptr) return;
        std::fprintf(file_, "%s\n", text.c_str());
        std::fflush(file_);
    }

private:
    std::FILE* file_;
};

// The bytes of a file; empty when there is none.
inline std::string bytesOf(const char* path) {
    std::string bytes;
    std::FILE* file = std::fopen(path, "rb");
    if (file == nullptr) return bytes;
    char part[4096];
    for (std::size_t count = 0; (count = std::fread(part, 1, sizeof part, file)) > 0;)
        bytes.append(part, count);
    std::fclose(file);
    return bytes;
}
