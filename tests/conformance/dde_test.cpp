// Conversations with another program by dynamic data exchange.
#include <gmock/gmock.h>
#include <string>

#include "platform/api/ddeml.h"
#include "platform/api/kernel32.h"
#include "tests/conformance/peers.h"

using namespace win;

namespace {

using peers::DdeServer;
using peers::Manner;
using testing::ElementsAre;
using testing::IsEmpty;

HDDEDATA nothing(UINT, UINT, HCONV, HSZ, HSZ, HDDEDATA, ULONG_PTR, ULONG_PTR) {
    return nullptr;
}

class Dde : public testing::Test {
protected:
    Dde() { EXPECT_EQ(DdeInitializeA(&instance, nothing, APPCMD_CLIENTONLY, 0), DMLERR_NO_ERROR); }
    ~Dde() override { EXPECT_TRUE(DdeUninitialize(instance)); }

    HSZ name(const std::string& text) {
        return DdeCreateStringHandleA(instance, text.c_str(), CP_WINANSI);
    }
    HCONV connect(const std::string& service, const std::string& topic = "WWW_OpenURL") {
        HSZ first = name(service);
        HSZ second = name(topic);
        HCONV conversation = DdeConnect(instance, first, second, nullptr);
        DdeFreeStringHandle(instance, first);
        DdeFreeStringHandle(instance, second);
        return conversation;
    }
    HDDEDATA request(HCONV conversation, const std::string& item, DWORD milliseconds = 3000) {
        HSZ handle = name(item);
        HDDEDATA data = DdeClientTransaction(nullptr, 0, conversation, handle, CF_TEXT,
                                             XTYP_REQUEST, milliseconds, nullptr);
        if (handle) DdeFreeStringHandle(instance, handle);
        return data;
    }
    static std::string textOf(HDDEDATA data) {
        std::string bytes(DdeGetData(data, {}, 0), '\0');
        EXPECT_EQ(DdeGetData(data, bytes, 0), bytes.size());
        DdeFreeDataHandle(data);
        return bytes.substr(0, bytes.find('\0'));
    }

    DWORD instance = 0;
};

TEST_F(Dde, ARequestIsAnsweredAndTheItemArrivesAsItWas) {
    const DdeServer server("Netscape", Manner::answers, "\"http://a/\",\"A \xE9\"");
    HCONV conversation = connect("netscape");
    ASSERT_NE(conversation, nullptr);
    HDDEDATA data = request(conversation, "\"http://b/\xE9\"\",,-1,7");
    ASSERT_NE(data, nullptr);
    EXPECT_EQ(textOf(data), "\"http://a/\",\"A \xE9\"");
    EXPECT_TRUE(DdeDisconnect(conversation));
    EXPECT_THAT(server.asked(), ElementsAre("request WWW_OpenURL \"http://b/\xE9\"\",,-1,7"));
}

TEST_F(Dde, AReplyMayBeLongAndIsReadInPartsAsWell) {
    const std::string reply = std::string(50000, 'a') + std::string(50000, 'b');
    const DdeServer server("Netscape", Manner::answers, reply);
    HCONV conversation = connect("Netscape");
    HDDEDATA data = request(conversation, "-1");
    ASSERT_NE(data, nullptr);
    char middle[4];
    EXPECT_EQ(DdeGetData(data, middle, 49998), 4u);
    EXPECT_EQ(std::string(middle, 4), "aabb");
    EXPECT_EQ(textOf(data), reply);
    DdeDisconnect(conversation);
}

TEST_F(Dde, NobodyAnswersUnderAnotherNameOrTopic) {
    const DdeServer server("Netscape", Manner::answers);
    EXPECT_EQ(connect("Opera"), nullptr);
    EXPECT_EQ(DdeGetLastError(instance), DMLERR_NO_CONV_ESTABLISHED);
    EXPECT_EQ(DdeGetLastError(instance), DMLERR_NO_ERROR);
    EXPECT_EQ(connect("Netscape", "Other"), nullptr);
    EXPECT_EQ(DdeGetLastError(instance), DMLERR_NO_CONV_ESTABLISHED);
    EXPECT_THAT(server.asked(), IsEmpty());
}

TEST_F(Dde, ARequestCanBeRefused) {
    const DdeServer server("Netscape", Manner::refuses);
    HCONV conversation = connect("Netscape");
    EXPECT_EQ(request(conversation, "-1"), nullptr);
    EXPECT_EQ(DdeGetLastError(instance), DMLERR_NOTPROCESSED);
    DdeDisconnect(conversation);
    EXPECT_THAT(server.asked(), ElementsAre("request WWW_OpenURL -1"));
}

TEST_F(Dde, AServerThatStaysSilentCostsTheTimeThatItIsGiven) {
    const DdeServer server("Netscape", Manner::silent);
    HCONV conversation = connect("Netscape");
    const DWORD begin = GetTickCount();
    EXPECT_EQ(request(conversation, "-1", 300), nullptr);
    EXPECT_EQ(DdeGetLastError(instance), DMLERR_DATAACKTIMEOUT);
    EXPECT_GE(GetTickCount() - begin, 290u);
    EXPECT_LT(GetTickCount() - begin, 3000u);
    DdeDisconnect(conversation);
}

TEST_F(Dde, AServerThatEndsWithTheRequestGivesNoReply) {
    const DdeServer server("Netscape", Manner::dies);
    HCONV conversation = connect("Netscape");
    EXPECT_EQ(request(conversation, "-1", 1000), nullptr);
    EXPECT_NE(DdeGetLastError(instance), DMLERR_NO_ERROR);
    DdeDisconnect(conversation);
    EXPECT_EQ(connect("Netscape"), nullptr);
}

TEST_F(Dde, AProgramThatHangsHoldsWhoeverConnects) {
    const DdeServer hanging("Opera", Manner::hangs);
    const DWORD begin = GetTickCount();
    EXPECT_EQ(connect("Netscape"), nullptr);
    EXPECT_GE(GetTickCount() - begin, 4000u);
}

TEST_F(Dde, AnInstanceEndsOnce) {
    DWORD other = 0;
    ASSERT_EQ(DdeInitializeA(&other, nothing, APPCMD_CLIENTONLY, 0), DMLERR_NO_ERROR);
    EXPECT_TRUE(DdeUninitialize(other));
    EXPECT_FALSE(DdeUninitialize(other));
}

TEST_F(Dde, ANameHas255BytesAtMostAndOneAtLeast) {
    HSZ longest = name(std::string(255, 'x'));
    EXPECT_NE(longest, nullptr);
    DdeFreeStringHandle(instance, longest);
    EXPECT_EQ(name(std::string(256, 'x')), nullptr);
    EXPECT_EQ(name(""), nullptr);
    const DdeServer server("Netscape", Manner::answers);
    HCONV conversation = connect("Netscape");
    EXPECT_EQ(request(conversation, std::string(256, 'x')), nullptr);
    EXPECT_EQ(DdeGetLastError(instance), DMLERR_INVALIDPARAMETER);
    HDDEDATA data = request(conversation, std::string(255, 'x'));
    ASSERT_NE(data, nullptr);
    DdeFreeDataHandle(data);
    DdeDisconnect(conversation);
    EXPECT_THAT(server.asked(), ElementsAre("request WWW_OpenURL " + std::string(255, 'x')));
}

}  // namespace
