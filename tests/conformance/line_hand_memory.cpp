#ifndef _WIN32

#include "platform/memory/driver_line.h"
#include "tests/conformance/line_hand.h"

namespace hand {

namespace driver = win::memory::driver;

bool movesTheLine() {
    return true;
}

void setDialUp(const std::vector<win::DWORD>& states) {
    std::vector<win::memory::DialUp> connections;
    for (const win::DWORD state : states)
        connections.push_back({static_cast<std::uint32_t>(0x10001 + connections.size()), state});
    driver::setDialUp(std::move(connections));
}

void setOnline(bool online) {
    driver::setOnline(online);
}

}  // namespace hand

#endif
