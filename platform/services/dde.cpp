#include "platform/services/dde.h"

#include <memory>
#include <new>

#include "platform/api/ddeml.h"
#include "platform/api/kernel32.h"
#include "platform/api/user32.h"
#include "platform/runtime/failure.h"

namespace magpie {

namespace {

constexpr win::DWORD longest = 5000;  // milliseconds, of a whole conversation

// Shared by the interface thread, which waits for `over`, and the thread that talks. Whichever
// is the last to leave ends it.
struct Conversation {
    Conversation(const std::string& whom, const std::string& about, const std::string& what)
        : service(whom), topic(about), item(what) {}
    ~Conversation() {
        if (over != nullptr) win::CloseHandle(over);
    }
    Conversation(const Conversation&) = delete;
    Conversation& operator=(const Conversation&) = delete;

    std::string service;
    std::string topic;
    std::string item;
    win::DWORD begin = win::GetTickCount();
    win::HANDLE over = win::CreateEventA(nullptr, 1, 0, nullptr);

    // Known once `over` is signalled.
    std::string reply;
    int failure = 0;

    win::DWORD timeLeft() const {
        const win::DWORD passed = win::GetTickCount() - begin;
        return passed < longest ? longest - passed : 0;
    }
};

using SharedConversation = std::shared_ptr<Conversation>;

// A client has nothing to say to what the library tells it.
win::HDDEDATA nothing(win::UINT, win::UINT, win::HCONV, win::HSZ, win::HSZ, win::HDDEDATA,
                      win::ULONG_PTR, win::ULONG_PTR) {
    return nullptr;
}

class Client {
public:
    Client() {
        if (win::DdeInitializeA(&instance_, &nothing, win::APPCMD_CLIENTONLY, 0) !=
            win::DMLERR_NO_ERROR)
            throw Failure{failure::conversationUnanswered};
    }
    ~Client() { win::DdeUninitialize(instance_); }
    Client(const Client&) = delete;
    Client& operator=(const Client&) = delete;

    win::DWORD instance() const { return instance_; }

    [[noreturn]] void raise() const {
        switch (win::DdeGetLastError(instance_)) {
            case win::DMLERR_NO_CONV_ESTABLISHED: throw Failure{failure::conversationUnanswered};
            case win::DMLERR_DATAACKTIMEOUT: throw Failure{failure::conversationTimedOut};
            default: throw Failure{failure::conversationRefused};
        }
    }

private:
    win::DWORD instance_ = 0;
};

class Name {
public:
    Name(const Client& client, const std::string& text)
        : client_(client),
          handle_(win::DdeCreateStringHandleA(client.instance(), text.c_str(), win::CP_WINANSI)) {
        if (handle_ == nullptr) throw Failure{failure::invalidCall};
    }
    ~Name() { win::DdeFreeStringHandle(client_.instance(), handle_); }
    Name(const Name&) = delete;
    Name& operator=(const Name&) = delete;

    win::HSZ handle() const { return handle_; }

private:
    const Client& client_;
    win::HSZ handle_;
};

class Connection {
public:
    Connection(const Client& client, const Name& service, const Name& topic)
        : handle_(win::DdeConnect(client.instance(), service.handle(), topic.handle(), nullptr)) {
        if (handle_ == nullptr) client.raise();
    }
    ~Connection() { win::DdeDisconnect(handle_); }
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    win::HCONV handle() const { return handle_; }

private:
    win::HCONV handle_;
};

std::string textOf(win::HDDEDATA data) {
    std::string bytes(win::DdeGetData(data, {}, 0), '\0');
    bytes.resize(win::DdeGetData(data, bytes, 0));
    win::DdeFreeDataHandle(data);
    return bytes.substr(0, bytes.find('\0'));
}

// A program that took all the time to answer the call is not asked any more: another one may
// have been by then.
std::string request(const Client& client, const Connection& connection, const Name& item,
                    win::DWORD milliseconds) {
    if (milliseconds == 0) throw Failure{failure::conversationTimedOut};
    const win::HDDEDATA data =
        win::DdeClientTransaction(nullptr, 0, connection.handle(), item.handle(), win::CF_TEXT,
                                  win::XTYP_REQUEST, milliseconds, nullptr);
    if (data == nullptr) client.raise();
    return textOf(data);
}

// Tells the interface thread before it hangs up: a server that is busy with a request that it
// was given up on keeps whoever leaves it waiting.
void talk(Conversation& conversation) {
    try {
        const Client client;
        const Name service(client, conversation.service);
        const Name topic(client, conversation.topic);
        const Name item(client, conversation.item);
        const Connection connection(client, service, topic);
        try {
            conversation.reply = request(client, connection, item, conversation.timeLeft());
        } catch (const Failure& failed) {
            conversation.failure = failed.number;
        } catch (const std::bad_alloc&) {  // for a reply without measure
            conversation.failure = failure::conversationRefused;
        }
        win::SetEvent(conversation.over);
    } catch (const Failure& failed) {
        conversation.failure = failed.number;
        win::SetEvent(conversation.over);
    }
}

win::DWORD talkBeside(void* parameter) noexcept {
    const std::unique_ptr<SharedConversation> shared(static_cast<SharedConversation*>(parameter));
    talk(**shared);
    return 0;
}

void startTalking(const SharedConversation& conversation) {
    auto shared = std::make_unique<SharedConversation>(conversation);
    const win::HANDLE thread = win::CreateThread(nullptr, 0, &talkBeside, shared.get(), 0, nullptr);
    if (thread == nullptr) throw Failure{failure::conversationUnanswered};
    shared.release();
    win::CloseHandle(thread);
}

// What other threads send is answered by looking at the queue at all. The end of the program is
// for its loop.
void answerOthersAndPaint() {
    win::MSG message;
    while (win::PeekMessageA(&message, nullptr, win::WM_PAINT, win::WM_PAINT, win::PM_REMOVE)) {
        if (message.message == win::WM_QUIT) {
            win::PostQuitMessage(static_cast<int>(message.wParam));
            return;
        }
        win::DispatchMessageA(&message);
    }
}

bool conversing = false;

class Conversing {
public:
    Conversing() { conversing = true; }
    ~Conversing() { conversing = false; }
    Conversing(const Conversing&) = delete;
    Conversing& operator=(const Conversing&) = delete;
};

void waitFor(const Conversation& conversation) {
    const Conversing untilItIsOver;
    constexpr win::DWORD messageCame = win::WAIT_OBJECT_0 + 1;
    for (;;) {
        // Also ahead of the wait, which ends for what comes and not for what has come.
        answerOthersAndPaint();
        const win::DWORD woken = win::MsgWaitForMultipleObjects(
            1, &conversation.over, 0, conversation.timeLeft(), win::QS_SENDMESSAGE | win::QS_PAINT);
        if (woken == win::WAIT_OBJECT_0) return;
        if (woken != messageCame || conversation.timeLeft() == 0)
            throw Failure{failure::conversationTimedOut};
    }
}

}  // namespace

std::string ddeRequest(const std::string& service, const std::string& topic,
                       const std::string& item) {
    if (service.empty()) throw Failure{failure::conversationUnanswered};
    const auto conversation = std::make_shared<Conversation>(service, topic, item);
    if (conversation->over == nullptr) throw Failure{failure::conversationUnanswered};
    startTalking(conversation);
    waitFor(*conversation);
    if (conversation->failure != 0) throw Failure{conversation->failure};
    return conversation->reply;
}

bool conversationWaits() {
    return conversing;
}

}  // namespace magpie
