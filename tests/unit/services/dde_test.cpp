// One question to another program: what comes back, and the numbers of what goes wrong.
#include "platform/services/dde.h"

#include <gmock/gmock.h>

#include "platform/api/kernel32.h"
#include "platform/memory/driver.h"
#include "platform/memory/driver_programs.h"
#include "platform/memory/threads.h"
#include "platform/runtime/failure.h"
#include "tests/unit/runtime/failure_of.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;
using win::memory::DdePeer;

DdePeer& answering(const std::optional<std::string>& reply) {
    DdePeer& peer = driver::addDdePeer({.service = "Server"});
    peer.answer = [reply](const std::string&, const std::string&) { return reply; };
    return peer;
}

int failureOfAsking(const std::string& service = "Server", const std::string& item = "item") {
    return failureOf([&] { return ddeRequest(service, "WWW_OpenURL", item).size(); });
}

TEST(DdeRequest, TheReplyEndsAtItsFirstNul) {
    answering(std::string("text\0more", 9));
    EXPECT_EQ(ddeRequest("server", "www_openurl", "item"), "text");
}

TEST(DdeRequest, AnEmptyReplyIsOne) {
    answering("");
    EXPECT_EQ(ddeRequest("Server", "WWW_OpenURL", "item"), "");
}

TEST(DdeRequest, NobodyThereIs282) {
    answering("1");
    EXPECT_EQ(failureOfAsking("Other"), 282);
    EXPECT_EQ(failureOfAsking(""), 282);
    EXPECT_EQ(failureOf([] { return ddeRequest("Server", "Other", "item").size(); }), 282);
}

TEST(DdeRequest, ARefusalIs285) {
    answering(std::nullopt);
    EXPECT_EQ(failureOfAsking(), 285);
}

TEST(DdeRequest, AServerThatDiesIs285) {
    answering("1").dies = true;
    EXPECT_EQ(failureOfAsking(), 285);
}

TEST(DdeRequest, FiveSecondsWithoutAnAnswerAre286) {
    answering("1").silence = 60000;
    const win::DWORD begin = win::GetTickCount();
    EXPECT_EQ(failureOfAsking(), 286);
    EXPECT_EQ(win::GetTickCount() - begin, 5000u);
}

TEST(DdeRequest, AProgramThatHangsIs286AsWell) {
    answering("1").hangs = win::memory::never;
    EXPECT_EQ(failureOfAsking(), 286);
}

TEST(DdeRequest, ATextThatCannotTravelIs5) {
    answering("1");
    EXPECT_EQ(failureOfAsking("Server", std::string(256, 'x')), 5);
    EXPECT_EQ(failureOfAsking("Server", ""), 5);
    EXPECT_EQ(ddeRequest("Server", "WWW_OpenURL", std::string(255, 'x')), "1");
}

TEST(DdeRequest, WithoutAThreadOrItsLibraryNobodyIsThere) {
    answering("1");
    for (const char* call : {"CreateThread", "CreateEventA", "DdeInitializeA"}) {
        driver::failCall(call, 1, win::ERROR_ACCESS_DENIED);
        EXPECT_EQ(failureOfAsking(), 282) << call;
    }
    EXPECT_EQ(ddeRequest("Server", "WWW_OpenURL", "item"), "1");
}

TEST(DdeRequest, AConversationWaitsUntilItIsOver) {
    bool waited = false;
    answering("1").answer = [&](const std::string&, const std::string&) {
        waited = conversationWaits();
        return std::optional<std::string>("1");
    };
    EXPECT_FALSE(conversationWaits());
    ddeRequest("Server", "WWW_OpenURL", "item");
    EXPECT_TRUE(waited);
    EXPECT_FALSE(conversationWaits());
    driver::removeDdePeers();
    failureOfAsking();
    EXPECT_FALSE(conversationWaits());
}

}  // namespace
}  // namespace magpie
