#include "platform/api/ddeml.h"

#include <algorithm>
#include <cstring>
#include <map>
#include <utility>

#include "platform/memory/classes.h"
#include "platform/memory/dde_peers.h"
#include "platform/memory/faults.h"
#include "platform/memory/refuse.h"
#include "platform/memory/threads.h"

namespace win {

struct HszTag {
    std::string text;
};

struct HddedataTag {
    std::string bytes;
};

struct HconvTag {
    DWORD instance = 0;
    memory::DdePeer* peer = nullptr;
    std::string topic;
};

namespace memory {
namespace {

struct Instance {
    UINT lastError = DMLERR_NO_ERROR;
};

std::map<DWORD, Instance>& instances() {
    static std::map<DWORD, Instance> open;
    return open;
}

Instance& instanceOf(DWORD number) {
    const auto found = instances().find(number);
    if (found == instances().end()) refuse("no instance of conversations", number);
    return found->second;
}

void failWith(DWORD instance, UINT error) {
    instanceOf(instance).lastError = error;
}

// Whoever connects asks all, and waits for each that hangs.
void askEverybody() {
    std::uint64_t longest = 0;
    for (const DdePeer& each : ddePeers()) longest = std::max(longest, each.hangs);
    if (longest) holdThreadUp(longest);
}

DdePeer* serverOf(const std::string& service, const std::string& topic) {
    for (DdePeer& each : ddePeers()) {
        const bool knows = std::ranges::any_of(
            each.topics, [&](const std::string& known) { return sameIgnoringCase(known, topic); });
        if (knows && sameIgnoringCase(each.service, service)) return &each;
    }
    return nullptr;
}

HDDEDATA noReply(const HconvTag& conversation, UINT error) {
    failWith(conversation.instance, error);
    return nullptr;
}

// The reply may take longer than whoever asks has time.
HDDEDATA replyOf(const HconvTag& conversation, const std::string& item, DWORD milliseconds) {
    DdePeer& peer = *conversation.peer;
    peer.asked.push_back(conversation.topic + " " + item);
    if (peer.dies) {
        peer.topics.clear();
        return noReply(conversation, DMLERR_SERVER_DIED);
    }
    if (peer.silence) holdThreadUp(std::min<std::uint64_t>(peer.silence, milliseconds));
    if (peer.silence > milliseconds) return noReply(conversation, DMLERR_DATAACKTIMEOUT);
    const auto reply = peer.answer(conversation.topic, item);
    if (!reply) return noReply(conversation, DMLERR_NOTPROCESSED);
    return new HddedataTag{*reply + '\0'};
}

}  // namespace

std::deque<DdePeer>& ddePeers() {
    static std::deque<DdePeer> peers;
    return peers;
}

}  // namespace memory

using namespace memory;

UINT DdeInitializeA(DWORD* instance, PFNCALLBACK callback, DWORD commands, ULONG reserved) {
    static DWORD last = 0;
    if (commands != APPCMD_CLIENTONLY || !callback || reserved || *instance)
        refuse("DdeInitializeA", commands);
    if (DWORD error = faultIn("DdeInitializeA")) return error;
    *instance = ++last;
    instances()[last] = {};
    ++openDdeInstances;
    return DMLERR_NO_ERROR;
}

BOOL DdeUninitialize(DWORD instance) {
    if (instances().erase(instance) == 0) return 0;
    --openDdeInstances;
    return 1;
}

UINT DdeGetLastError(DWORD instance) {
    return std::exchange(instanceOf(instance).lastError, UINT{DMLERR_NO_ERROR});
}

HSZ DdeCreateStringHandleA(DWORD instance, const char* text, INT codePage) {
    constexpr std::size_t longest = 255;
    instanceOf(instance);
    if (codePage != CP_WINANSI) refuse("code page", static_cast<std::uintmax_t>(codePage));
    const std::size_t length = std::strlen(text);
    return length == 0 || length > longest ? nullptr : new HszTag{text};
}

BOOL DdeFreeStringHandle(DWORD instance, HSZ text) {
    instanceOf(instance);
    delete text;
    return 1;
}

HCONV DdeConnect(DWORD instance, HSZ service, HSZ topic, void* context) {
    if (!service || !topic || context) refuse("DdeConnect", "with anybody");
    askEverybody();
    DdePeer* peer = serverOf(service->text, topic->text);
    if (!peer) {
        failWith(instance, DMLERR_NO_CONV_ESTABLISHED);
        return nullptr;
    }
    return new HconvTag{instance, peer, topic->text};
}

BOOL DdeDisconnect(HCONV conversation) {
    delete conversation;
    return 1;
}

HDDEDATA DdeClientTransaction(void* data, DWORD bytes, HCONV conversation, HSZ item, UINT format,
                              UINT type, DWORD milliseconds, DWORD* result) {
    if (data || bytes || result || format != CF_TEXT || type != XTYP_REQUEST)
        refuse("transaction", type);
    if (!item) return noReply(*conversation, DMLERR_INVALIDPARAMETER);
    return replyOf(*conversation, item->text, milliseconds);
}

DWORD DdeGetData(HDDEDATA data, std::span<char> buffer, DWORD offset) {
    const std::string& bytes = data->bytes;
    if (buffer.empty()) return static_cast<DWORD>(bytes.size());
    return static_cast<DWORD>(bytes.copy(buffer.data(), buffer.size(), offset));
}

BOOL DdeFreeDataHandle(HDDEDATA data) {
    delete data;
    return 1;
}

}  // namespace win
