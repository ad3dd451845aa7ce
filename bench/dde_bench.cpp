// What it takes to send an address to a running browser by dynamic data exchange, beside a bare
// request of a program that does nothing else: the same server, the same item. A program that
// serves "Opera" has to be running (bench/dde.sh). Prints the ratio with its limit; with --check
// the program fails when it is over.
#include <algorithm>
#include <cstdio>
#include <cstring>
#include <vector>

#include "bench/stopwatch.h"
#include "browser/dde_roads.h"
#include "core/state.h"
#include "platform/api/ddeml.h"

namespace magpie::bench {
namespace {

constexpr const char* address = "http://server/index.html";
constexpr const char* item = "\"http://server/index.html\",,-1";
constexpr double limit = 2;
constexpr std::size_t rounds = 41;

win::HDDEDATA nothing(win::UINT, win::UINT, win::HCONV, win::HSZ, win::HSZ, win::HDDEDATA,
                      win::ULONG_PTR, win::ULONG_PTR) {
    return nullptr;
}

bool bareRequest() {
    win::DWORD instance = 0;
    win::DdeInitializeA(&instance, &nothing, win::APPCMD_CLIENTONLY, 0);
    const auto name = [instance](const char* text) {
        return win::DdeCreateStringHandleA(instance, text, win::CP_WINANSI);
    };
    const win::HCONV conversation =
        win::DdeConnect(instance, name("Opera"), name("WWW_OpenURL"), nullptr);
    const win::HDDEDATA data = win::DdeClientTransaction(
        nullptr, 0, conversation, name(item), win::CF_TEXT, win::XTYP_REQUEST, 5000, nullptr);
    if (data != nullptr) win::DdeFreeDataHandle(data);
    win::DdeDisconnect(conversation);
    win::DdeUninitialize(instance);
    return data != nullptr;
}

double median(std::vector<double> times) {
    const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
    std::ranges::nth_element(times, middle);
    return *middle;
}

int measure(bool check) {
    ddeApps = {"IEXPLORE", "Netscape", "Opera", ""};
    browserType = 2;
    std::vector<double> bare;
    std::vector<double> delivery;
    bool served = true;
    // By turns, so that what else the machine does falls on both.
    for (std::size_t round = 0; round < rounds; ++round) {
        bare.push_back(timeOf([&] { served = bareRequest() && served; }));
        delivery.push_back(
            timeOf([&] { served = deliverByDde(address, false) == Delivery::done && served; }));
    }
    if (!served) {
        std::puts("no program serves \"Opera\"");
        return 2;
    }
    const double ratio = median(delivery) / median(bare);
    std::printf("bare request %.2f ms, delivery %.2f ms: %.2f times (limit %.1f)\n", median(bare),
                median(delivery), ratio, limit);
    return check && ratio > limit ? 1 : 0;
}

}  // namespace
}  // namespace magpie::bench

int main(int count, char** arguments) {
    const bool check = count > 1 && std::strcmp(arguments[1], "--check") == 0;
    return magpie::bench::measure(check);
}
