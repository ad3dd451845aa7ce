// Peers: other programs that stand in for browsers, on either desktop. Each runs as long as its
// object lives, and writes down what it is asked.
#pragma once

#include <string>
#include <vector>

#include "platform/api/user32.h"

namespace peers {

// How a program takes what it is asked by dynamic data exchange.
enum class Manner { answers, refuses, silent, hangs, dies };

// Can be talked to on the topic "WWW_OpenURL".
class DdeServer {
public:
    // A silent one answers a request, and one that hangs answers anything, after eight seconds.
    DdeServer(const std::string& service, Manner manner, const std::string& reply = "1");
    ~DdeServer();
    DdeServer(const DdeServer&) = delete;
    DdeServer& operator=(const DdeServer&) = delete;

    // "request TOPIC ITEM", so far.
    std::vector<std::string> asked() const;

private:
    struct Program;
    Program* program_;
};

// A window on the screen. With a page title it offers automation; so there can be one of those.
class Browser {
public:
    Browser(const std::string& className, const std::string& title, const std::string& address = "",
            const std::string& pageTitle = "",
            const std::string& name = "Microsoft Internet Explorer");
    ~Browser();
    Browser(const Browser&) = delete;
    Browser& operator=(const Browser&) = delete;

    win::HWND window() const { return window_; }
    // Of the keys "down KEY" and "up KEY", by their virtual codes; of automation "visible" and
    // "navigate ADDRESS"; so far.
    std::vector<std::string> done() const;
    // Ends the program.
    void end();

private:
    struct Program;
    Program* program_;
    win::HWND window_ = nullptr;
};

// A program that writes down its command line when it is started.
class Recorder {
public:
    Recorder();
    ~Recorder();
    Recorder(const Recorder&) = delete;
    Recorder& operator=(const Recorder&) = delete;

    std::string path() const;
    // The command lines behind the program's name, so far; waits for the first.
    std::vector<std::string> started() const;
};

}  // namespace peers
