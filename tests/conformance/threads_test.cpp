// Threads beside the interface thread, and waiting for them.
#include <gmock/gmock.h>

#include "platform/api/ddeml.h"
#include "platform/api/kernel32.h"
#include "platform/api/user32.h"
#include "tests/conformance/log_window.h"
#include "tests/conformance/peers.h"

using namespace win;

namespace {

class Threads : public testing::Test {
protected:
    ~Threads() override { CloseHandle(event); }

    DWORD wait(DWORD milliseconds) {
        return MsgWaitForMultipleObjects(1, &event, 0, milliseconds, QS_SENDMESSAGE | QS_PAINT);
    }
    static void start(THREADPROC procedure, void* parameter) {
        HANDLE thread = CreateThread(nullptr, 0, procedure, parameter, 0, nullptr);
        ASSERT_NE(thread, nullptr);
        EXPECT_TRUE(CloseHandle(thread));
    }

    HANDLE event = CreateEventA(nullptr, 1, 0, nullptr);
};

DWORD signal(void* event) {
    SetEvent(event);
    return 0;
}

struct Work {
    HANDLE event = nullptr;
    UINT result = 0;
};

HDDEDATA nothing(UINT, UINT, HCONV, HSZ, HSZ, HDDEDATA, ULONG_PTR, ULONG_PTR) {
    return nullptr;
}

// Asks for a server that is not there, whoever hangs.
DWORD connectToNobody(void* parameter) {
    auto& work = *static_cast<Work*>(parameter);
    DWORD instance = 0;
    DdeInitializeA(&instance, nothing, APPCMD_CLIENTONLY, 0);
    HSZ name = DdeCreateStringHandleA(instance, "Nobody", CP_WINANSI);
    DdeConnect(instance, name, name, nullptr);
    work.result = DdeGetLastError(instance);
    DdeFreeStringHandle(instance, name);
    DdeUninitialize(instance);
    SetEvent(work.event);
    return 0;
}

struct Letter {
    HANDLE event = nullptr;
    HWND to = nullptr;
    LRESULT answer = 0;
};

DWORD sendTwice(void* parameter) {
    auto& letter = *static_cast<Letter*>(parameter);
    letter.answer = SendMessageA(letter.to, WM_USER, 1, 2);
    PostMessageA(letter.to, WM_USER + 1, 0, 0);
    letter.answer += SendMessageA(letter.to, WM_USER, 3, 4);
    SetEvent(letter.event);
    return 0;
}

TEST_F(Threads, WhatOneSendsIsAnsweredByALookAtTheQueueAndWhatItPostsWaits) {
    LogWindow window("a");
    std::vector<UINT> got;
    window.answer = [&](UINT message, WPARAM wParam, LPARAM) -> std::optional<LRESULT> {
        if (message != WM_USER && message != WM_USER + 1) return std::nullopt;
        got.push_back(message);
        return static_cast<LRESULT>(wParam * 10);
    };
    Letter letter{event, window};
    start(sendTwice, &letter);
    MSG message{};
    for (DWORD woken = wait(3000); woken != WAIT_OBJECT_0; woken = wait(3000)) {
        ASSERT_EQ(woken, WAIT_OBJECT_0 + 1);
        while (PeekMessageA(&message, nullptr, WM_PAINT, WM_PAINT, PM_REMOVE))
            DispatchMessageA(&message);
    }
    EXPECT_EQ(letter.answer, 40);
    EXPECT_THAT(got, testing::ElementsAre(WM_USER, WM_USER));
    desk::pump();
    EXPECT_THAT(got, testing::ElementsAre(WM_USER, WM_USER, WM_USER + 1));
}

TEST_F(Threads, WhoeverWaitsGoesOnWhenTheEventIsSet) {
    start(signal, event);
    EXPECT_EQ(wait(3000), WAIT_OBJECT_0);
    // It stays set.
    EXPECT_EQ(wait(0), WAIT_OBJECT_0);
}

TEST_F(Threads, AnEventThatNobodySetsCostsTheTime) {
    const DWORD begin = GetTickCount();
    EXPECT_EQ(wait(200), WAIT_TIMEOUT);
    EXPECT_GE(GetTickCount() - begin, 190u);
    EXPECT_LT(GetTickCount() - begin, 2000u);
}

TEST_F(Threads, AThreadThatIsHeldUpHoldsNobodyElseAndGoesOnByItself) {
    const peers::DdeServer hanging("Opera", peers::Manner::hangs);
    Work work{event};
    start(connectToNobody, &work);
    EXPECT_EQ(wait(300), WAIT_TIMEOUT);
    EXPECT_EQ(work.result, 0u);
    EXPECT_EQ(wait(30000), WAIT_OBJECT_0);
    EXPECT_EQ(work.result, DMLERR_NO_CONV_ESTABLISHED);
}

}  // namespace
