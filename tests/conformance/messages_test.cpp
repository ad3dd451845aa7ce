// Posting, fetching, filtering and dispatching messages; timers; the end of the loop.
#include <gmock/gmock.h>

#include "platform/api/kernel32.h"
#include "tests/conformance/log_window.h"

using namespace win;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr UINT own = WM_APP + 1;

class Messages : public testing::Test {
protected:
    Messages() { desk::pump(); }

    MSG message{};
    LogWindow a{"a", {.style = WS_POPUP, .place = {20, 20, 120, 120}}};

    // An answer for the message of the test's own, which DefWindowProcA does not know.
    void takeOwn(LogWindow& window) {
        window.answer = [](UINT each, WPARAM, LPARAM) {
            return each >= WM_APP ? std::optional<LRESULT>(42) : std::nullopt;
        };
    }
};

TEST_F(Messages, AreSentAtOnceAndPostedForLater) {
    takeOwn(a);
    listenFor({own, own + 1});
    EXPECT_TRUE(PostMessageA(a, own, 1, 2));
    EXPECT_EQ(SendMessageA(a, own + 1, 0, 0), 42);
    EXPECT_THAT(heardSoFar(), ElementsAre(testing::EndsWith(std::to_string(own + 1))));
    EXPECT_THAT(heard(), ElementsAre(testing::EndsWith(std::to_string(own))));
}

TEST_F(Messages, AFetchedMessageIsWhatWasPosted) {
    PostMessageA(a, own, 11, -12);
    EXPECT_TRUE(PeekMessageA(&message, nullptr, 0, 0, PM_NOREMOVE));
    EXPECT_TRUE(PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE));
    EXPECT_EQ(message.hwnd, a);
    EXPECT_EQ(message.message, own);
    EXPECT_EQ(message.wParam, 11u);
    EXPECT_EQ(message.lParam, -12);
    EXPECT_FALSE(PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE));
}

TEST_F(Messages, AreFilteredByNumberAndWindow) {
    LogWindow child("child", {.style = WS_CHILD, .parent = a});
    LogWindow b("b", {.style = WS_POPUP});
    desk::pump();
    PostMessageA(b, own, 0, 0);
    PostMessageA(a, own + 1, 0, 0);
    PostMessageA(child, own + 2, 0, 0);
    EXPECT_FALSE(PeekMessageA(&message, nullptr, own + 5, own + 9, PM_REMOVE));
    EXPECT_TRUE(PeekMessageA(&message, a, 0, 0, PM_REMOVE));
    EXPECT_EQ(message.message, own + 1);
    EXPECT_TRUE(PeekMessageA(&message, a, own, own + 9, PM_REMOVE));
    EXPECT_EQ(message.hwnd, child);
    EXPECT_FALSE(PeekMessageA(&message, a, 0, 0, PM_REMOVE));
    EXPECT_TRUE(PeekMessageA(&message, nullptr, own, own, PM_REMOVE));
    EXPECT_EQ(message.hwnd, b);
}

TEST_F(Messages, GoWithTheirWindow) {
    LogWindow b("b", {.style = WS_POPUP});
    desk::pump();
    PostMessageA(b, own, 0, 0);
    DestroyWindow(b);
    EXPECT_FALSE(PeekMessageA(&message, nullptr, own, own, PM_REMOVE));
}

TEST_F(Messages, DispatchingReturnsTheAnswer) {
    takeOwn(a);
    MSG made{a, own, 0, 0, 0, {}};
    EXPECT_EQ(DispatchMessageA(&made), 42);
    HWND window = a;
    DestroyWindow(a);
    made.hwnd = window;
    EXPECT_EQ(DispatchMessageA(&made), 0);
}

TEST_F(Messages, TheEndComesAfterWhatWasPosted) {
    PostQuitMessage(7);
    PostMessageA(a, own, 0, 0);
    EXPECT_TRUE(GetMessageA(&message, nullptr, 0, 0));
    EXPECT_EQ(message.message, own);
    EXPECT_TRUE(PeekMessageA(&message, nullptr, 0, 0, PM_NOREMOVE));
    EXPECT_EQ(message.message, WM_QUIT);
    EXPECT_FALSE(GetMessageA(&message, nullptr, 0, 0));
    EXPECT_EQ(message.message, WM_QUIT);
    EXPECT_EQ(message.wParam, 7u);
    EXPECT_FALSE(PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE));
}

TEST_F(Messages, WaitingLeavesThemWhereTheyAre) {
    takeOwn(a);
    listenFor({own});
    PostMessageA(a, own, 0, 0);
    EXPECT_TRUE(WaitMessage());
    EXPECT_THAT(heardSoFar(), IsEmpty());
    EXPECT_EQ(heard().size(), 1u);
}

TEST_F(Messages, KeysBecomeCharacters) {
    listenFor({WM_KEYDOWN, WM_CHAR, WM_SYSKEYDOWN, WM_SYSCHAR, WM_KEYUP, own});
    takeOwn(a);
    for (int key : {int('A'), int('7'), VK_RETURN, VK_TAB, VK_BACK, VK_ESCAPE, VK_SPACE, VK_HOME})
        PostMessageA(a, WM_KEYDOWN, static_cast<WPARAM>(key), 1);
    PostMessageA(a, WM_KEYUP, 'A', 1);
    PostMessageA(a, WM_SYSKEYDOWN, 'B', 1);
    PostMessageA(a, own, 0, 0);
    EXPECT_THAT(heard(), ElementsAre("a key down 65", "a key down 55", "a key down 13",
                                     "a key down 9", "a key down 8", "a key down 27",
                                     "a key down 32", "a key down 36", "a key up 65",
                                     "a system key down 66", testing::EndsWith(std::to_string(own)),
                                     "a char 97", "a char 55", "a char 13", "a char 9", "a char 8",
                                     "a char 27", "a char 32", "a system char 98"));
}

class Timers : public Messages {
protected:
    // Delivers messages until the log has as many lines.
    std::vector<std::string> await(std::size_t lines) {
        std::vector<std::string> got;
        while (got.size() < lines) {
            GetMessageA(&message, nullptr, 0, 0);
            DispatchMessageA(&message);
            for (const std::string& each : heardSoFar()) got.push_back(each);
        }
        return got;
    }
};

TEST_F(Timers, FireAgainAndAgain) {
    listenFor({WM_TIMER});
    EXPECT_EQ(SetTimer(a, 5, 20, nullptr), 5u);
    EXPECT_THAT(await(3), ElementsAre("a timer 5", "a timer 5", "a timer 5"));
    EXPECT_TRUE(KillTimer(a, 5));
    EXPECT_FALSE(KillTimer(a, 5));
}

TEST_F(Timers, TheSoonerComesFirst) {
    listenFor({WM_TIMER});
    SetTimer(a, 1, 200, nullptr);
    SetTimer(a, 2, 120, nullptr);
    EXPECT_THAT(await(1), ElementsAre("a timer 2"));
    KillTimer(a, 2);
    EXPECT_THAT(await(1), ElementsAre("a timer 1"));
    KillTimer(a, 1);
}

TEST_F(Timers, AMissedTimerComesOnce) {
    listenFor({WM_TIMER});
    SetTimer(a, 1, 100, nullptr);
    Sleep(450);
    EXPECT_THAT(heard(), ElementsAre("a timer 1"));
    KillTimer(a, 1);
}

TEST_F(Timers, ATimerThatIsSetAgainBeginsAnew) {
    listenFor({WM_TIMER});
    SetTimer(a, 1, 10, nullptr);
    EXPECT_EQ(SetTimer(a, 1, 60000, nullptr), 1u);
    Sleep(60);
    EXPECT_THAT(heard(), IsEmpty());
    KillTimer(a, 1);
}

TEST_F(Timers, StandBehindMessages) {
    takeOwn(a);
    listenFor({WM_TIMER, own});
    SetTimer(a, 1, 10, nullptr);
    Sleep(60);
    PostMessageA(a, own, 0, 0);
    EXPECT_THAT(heard(), ElementsAre(testing::EndsWith(std::to_string(own)), "a timer 1"));
    KillTimer(a, 1);
}

TEST_F(Timers, AreFilteredLikeMessages) {
    LogWindow b("b", {.style = WS_POPUP});
    desk::pump();
    SetTimer(a, 1, 10, nullptr);
    Sleep(60);
    EXPECT_FALSE(PeekMessageA(&message, b, 0, 0, PM_REMOVE));
    EXPECT_FALSE(PeekMessageA(&message, nullptr, own, own, PM_REMOVE));
    EXPECT_TRUE(PeekMessageA(&message, a, WM_TIMER, WM_TIMER, PM_REMOVE));
    EXPECT_EQ(message.wParam, 1u);
    KillTimer(a, 1);
}

UINT_PTR firedId = 0;

TEST_F(Timers, WithoutAWindowTheyCallTheirProcedure) {
    UINT_PTR id = SetTimer(nullptr, 99, 10, [](HWND, UINT what, UINT_PTR which, DWORD) {
        EXPECT_EQ(what, WM_TIMER);
        firedId = which;
    });
    EXPECT_NE(id, 0u);
    while (!firedId) {
        GetMessageA(&message, nullptr, 0, 0);
        DispatchMessageA(&message);
    }
    EXPECT_EQ(firedId, id);
    EXPECT_EQ(SetTimer(nullptr, id, 60000, nullptr), id);
    EXPECT_TRUE(KillTimer(nullptr, id));
}

TEST_F(Timers, GoWithTheirWindow) {
    LogWindow b("b", {.style = WS_POPUP});
    SetTimer(b, 1, 10, nullptr);
    DestroyWindow(b);
    Sleep(60);
    EXPECT_FALSE(PeekMessageA(&message, nullptr, WM_TIMER, WM_TIMER, PM_REMOVE));
}

TEST_F(Timers, WaitingEndsWhenOneFallsDue) {
    listenFor({WM_TIMER});
    SetTimer(a, 1, 30, nullptr);
    EXPECT_TRUE(WaitMessage());
    EXPECT_THAT(heard(), ElementsAre("a timer 1"));
    KillTimer(a, 1);
}

TEST_F(Timers, TheLoopEndsFromATimer) {
    SetTimer(nullptr, 0, 30, [](HWND, UINT, UINT_PTR which, DWORD) {
        KillTimer(nullptr, which);
        PostQuitMessage(3);
    });
    while (GetMessageA(&message, nullptr, 0, 0)) DispatchMessageA(&message);
    EXPECT_EQ(message.wParam, 3u);
}

}  // namespace
