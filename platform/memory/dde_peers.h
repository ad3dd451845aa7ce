// DdePeers: the programs that can be talked to by dynamic data exchange, and how each of them
// takes it.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace win::memory {

struct DdePeer {
    std::string service;
    std::vector<std::string> topics{"WWW_OpenURL", "WWW_GetWindowInfo"};
    // The reply to a request for an item of a topic; nothing refuses it.
    std::function<std::optional<std::string>(const std::string& topic, const std::string& item)>
        answer = [](const std::string&, const std::string&) { return std::optional("1"); };
    std::uint64_t hangs = 0;    // ticks that whoever connects waits for it; `never` for ever
    std::uint64_t silence = 0;  // ticks before it answers a request
    bool dies = false;          // with the first request

    std::vector<std::string> asked{};  // "topic item", so far
};

// A deque: a conversation keeps the address of its peer.
std::deque<DdePeer>& ddePeers();

// Instances that were not ended.
inline int openDdeInstances = 0;

}  // namespace win::memory
